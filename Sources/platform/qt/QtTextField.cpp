#include "platform/qt/QtTextField.h"

#include "platform/qtcore/QtText.h"

namespace kx {

void QtTextField::setStringValue(std::string_view text) {
    _lineEdit.setText(qtText(text));
    // A text longer than the field shows its beginning.
    _lineEdit.setCursorPosition(0);
}

std::string QtTextField::stringValue() const {
    return utf8Text(_lineEdit.text());
}

} // namespace kx
