#include "platform/qt/PopUpComboBox.h"

#include <QAbstractItemView>
#include <QKeyEvent>

namespace kx {

void PopUpComboBox::showPopup() {
    QComboBox::showPopup();
    view()->installEventFilter(this);
}

bool PopUpComboBox::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        _keyOfList = static_cast<QKeyEvent*>(event)->key();
    } else if (event->type() == QEvent::KeyRelease) {
        noteRelease(*static_cast<QKeyEvent*>(event));
    }
    return QComboBox::eventFilter(watched, event);
}

void PopUpComboBox::keyPressEvent(QKeyEvent* event) {
    if (event->key() != _keyOfList) {
        QComboBox::keyPressEvent(event);
    }
}

void PopUpComboBox::keyReleaseEvent(QKeyEvent* event) {
    noteRelease(*event);
    QComboBox::keyReleaseEvent(event);
}

void PopUpComboBox::focusOutEvent(QFocusEvent* event) {
    _keyOfList.reset();
    QComboBox::focusOutEvent(event);
}

void PopUpComboBox::noteRelease(const QKeyEvent& event) {
    if (!event.isAutoRepeat()) {
        _keyOfList.reset();
    }
}

} // namespace kx
