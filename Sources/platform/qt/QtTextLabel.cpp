#include "platform/qt/QtTextLabel.h"

#include "platform/qtcore/QtText.h"

namespace kx {

QtTextLabel::QtTextLabel(AnnouncedLabel& label)
    : _label(label) {
    QtTextLabel::setStringValue({});
}

void QtTextLabel::setStringValue(std::string_view text) {
    _label.say(qtText(text));
}

} // namespace kx
