#include "platform/qt/QtTextLabel.h"

#include "platform/qt/QtText.h"

namespace kx {

void QtTextLabel::setStringValue(std::string_view text) {
    _label.say(qtText(text));
}

} // namespace kx
