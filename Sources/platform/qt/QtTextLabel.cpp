#include "platform/qt/QtTextLabel.h"

#include "platform/qt/QtText.h"

namespace kx {

QtTextLabel::QtTextLabel(AnnouncedLabel& label)
    : _label(label) {
    QtTextLabel::setStringValue({});
}

void QtTextLabel::setMeansTrouble(bool meansTrouble) {
    _label.setMeansTrouble(meansTrouble);
}

void QtTextLabel::setStringValue(std::string_view text) {
    _label.say(qtText(text));
}

} // namespace kx
