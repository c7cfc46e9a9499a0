// A text label over Qt's label. The widget must outlive it.

#pragma once

#include "Outlets.h"

#include <QLabel>

namespace kx {

enum class EmptyLabel {
    keepsItsPlace,
    isHidden, // and takes no place; for what there is seldom something to say about
};

class QtTextLabel final : public TextLabel {
public:
    explicit QtTextLabel(QLabel& label, EmptyLabel empty = EmptyLabel::keepsItsPlace);

    void setStringValue(std::string_view text) override;

private:
    QLabel& _label;
    EmptyLabel _empty;
};

} // namespace kx
