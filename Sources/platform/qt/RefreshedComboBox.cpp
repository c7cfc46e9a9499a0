#include "platform/qt/RefreshedComboBox.h"

#include <QEvent>

namespace kx {

void RefreshedComboBox::showPopup() {
    emit aboutToOpen();
    if (isEnabled()) {
        PopUpComboBox::showPopup();
    }
}

bool RefreshedComboBox::event(QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress && !isEnabled()) {
        emit aboutToOpen();
    }
    return PopUpComboBox::event(event);
}

} // namespace kx
