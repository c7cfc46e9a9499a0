// A text field over a line edit. The line edit must outlive it. A field that a person cannot edit
// shows the visible text (support/VisibleText.h), and a person copies that.

#pragma once

#include "Outlets.h"

#include <QLineEdit>

namespace kx {

class QtTextField final : public TextField {
public:
    explicit QtTextField(QLineEdit& lineEdit)
        : _lineEdit(lineEdit) {}

    void setStringValue(std::string_view text) override;
    std::string stringValue() const override;

private:
    QLineEdit& _lineEdit;
    std::string _text; // of a field that a person cannot edit
};

} // namespace kx
