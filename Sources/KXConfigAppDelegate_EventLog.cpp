#include "KXConfigAppDelegate.h"
#include "words/DatagramLines.h"
#include "words/EventLogEntries.h"

namespace kx {

void KXConfigAppDelegate::limitLog() {
    logText.setLimit(mostLogBytes, noticeOfRemovedEntries());
}

// The view trims its own text, which is the same, in the same way. A closed view would keep what
// was removed here, so it is emptied; opening the drawer gives it all of the log again.
void KXConfigAppDelegate::appendString(std::string_view text) {
    logText.append(text);
    const bool isOverLimit = logText.surplus() > 0;
    if (isOverLimit) {
        logText.trim();
    }
    if (_outlets.eventLogDrawer->state() != DrawerState::closed) {
        _outlets.logTextView->insertAtEnd(text);
        _outlets.logTextView->shareMemoryOf(logText);
        _outlets.logTextView->scrollEndToVisible();
    } else if (isOverLimit) {
        _outlets.logTextView->setString({});
    }
}

void KXConfigAppDelegate::commentNextSend(std::string_view entry) {
    if (_services.saving.record != nullptr) {
        _services.saving.record->commentNextSend(lineOfEntry(entry));
    }
}

void KXConfigAppDelegate::saveEventLog() {
    _saving.saveLog(logText);
}

void KXConfigAppDelegate::saveSession() {
    _saving.saveSession();
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
