#include "platform/qt/QtTextLabel.h"

#include "platform/qt/QtText.h"

namespace kx {

QtTextLabel::QtTextLabel(QLabel& label)
    : _label(label) {
    label.setTextFormat(Qt::PlainText);
}

void QtTextLabel::setStringValue(std::string_view text) {
    _label.setText(qtText(text));
}

} // namespace kx
