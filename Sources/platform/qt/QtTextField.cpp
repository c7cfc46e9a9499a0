#include "platform/qt/QtTextField.h"

#include "platform/qt/QtText.h"
#include "support/VisibleText.h"

namespace kx {

void QtTextField::setStringValue(std::string_view text) {
    _text = text;
    _lineEdit.setText(qtText(_lineEdit.isReadOnly() ? visibleText(text) : _text));
    // A text longer than the field shows its beginning.
    _lineEdit.setCursorPosition(0);
}

std::string QtTextField::stringValue() const {
    return _lineEdit.isReadOnly() ? _text : utf8Text(_lineEdit.text());
}

} // namespace kx
