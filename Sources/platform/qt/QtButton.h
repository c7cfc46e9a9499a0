// A button of the window. The widget must outlive it.

#pragma once

#include "Outlets.h"

class QAbstractButton;

namespace kx {

class QtButton final : public Button {
public:
    explicit QtButton(QAbstractButton& button);

    // Every character of the text is shown unchanged.
    void setDescription(std::string_view text) override;

private:
    QAbstractButton& _button;
};

} // namespace kx
