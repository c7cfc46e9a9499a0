#include "platform/qt/OpeningComboBox.h"

#include <QEvent>

namespace kx {

void OpeningComboBox::showPopup() {
    emit aboutToOpen();
    if (isEnabled()) {
        QComboBox::showPopup();
    }
}

bool OpeningComboBox::event(QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress && !isEnabled()) {
        emit aboutToOpen();
    }
    return QComboBox::event(event);
}

} // namespace kx
