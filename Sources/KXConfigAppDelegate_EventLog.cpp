#include "KXConfigAppDelegate.h"

namespace kx {

void KXConfigAppDelegate::appendString(std::string_view text) {
    logText.append(text);
    if (_outlets.eventLogDrawer->state() != DrawerState::closed) {
        _outlets.logTextView->insertAtEnd(text);
        _outlets.logTextView->scrollEndToVisible();
    }
}

void KXConfigAppDelegate::logDrawerButton() {
    switch (_outlets.eventLogDrawer->state()) {
    case DrawerState::closed:
        _outlets.eventLogDrawer->open();
        _outlets.logTextView->setString(logText);
        break;
    case DrawerState::open:
        _outlets.eventLogDrawer->close();
        break;
    case DrawerState::opening:
    case DrawerState::closing:
        break;
    }
}

} // namespace kx
