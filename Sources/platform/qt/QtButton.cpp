#include "platform/qt/QtButton.h"

#include "platform/qtcore/QtText.h"

#include <QAbstractButton>

namespace kx {

QtButton::QtButton(QAbstractButton& button)
    : _button(button) {}

// Qt takes a tool tip that looks like markup for markup, and breaks the lines of no other.
void QtButton::setDescription(std::string_view text) {
    const QString description = qtText(text);
    _button.setToolTip("<span>" + description.toHtmlEscaped() + "</span>");
    _button.setAccessibleDescription(description);
}

} // namespace kx
