#include "platform/qt/QtButton.h"

#include "platform/qt/QtText.h"

#include <QAbstractButton>

namespace kx {

// Qt takes a tool tip that looks like markup for markup, and breaks the lines of no other.
void describeButton(QAbstractButton& button, const QString& sentence, const QKeySequence& key) {
    const QString keys =
        key.isEmpty() ? QString() : " (" + key.toString(QKeySequence::NativeText) + ')';
    button.setToolTip("<span>" + (sentence + keys).toHtmlEscaped() + "</span>");
    button.setAccessibleDescription(sentence);
}

QtButton::QtButton(QAbstractButton& button)
    : _button(button) {}

void QtButton::setDescription(std::string_view text) {
    describeButton(_button, qtText(text), _key);
}

} // namespace kx
