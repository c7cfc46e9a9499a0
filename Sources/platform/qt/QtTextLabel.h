// A text label over Qt's label. The widget must outlive it.

#pragma once

#include "Outlets.h"

#include <QLabel>

namespace kx {

class QtTextLabel final : public TextLabel {
public:
    explicit QtTextLabel(QLabel& label);

    void setStringValue(std::string_view text) override;

private:
    QLabel& _label;
};

} // namespace kx
