#include "platform/qt/QtTextLabel.h"

#include "platform/qtcore/QtText.h"

namespace kx {

QtTextLabel::QtTextLabel(AnnouncedLabel& label, EmptyLabel empty)
    : _label(label)
    , _empty(empty) {
    QtTextLabel::setStringValue({});
}

void QtTextLabel::setMeansTrouble(bool meansTrouble) {
    _label.setMeansTrouble(meansTrouble);
}

void QtTextLabel::setStringValue(std::string_view text) {
    _label.say(qtText(text));
    if (_empty == EmptyLabel::isHidden) {
        _label.setVisible(!text.empty());
    }
}

} // namespace kx
