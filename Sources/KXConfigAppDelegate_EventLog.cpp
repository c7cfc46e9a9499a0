#include "KXConfigAppDelegate.h"
#include "support/LocalizedText.h"

#include <iterator>

namespace kx {

void KXConfigAppDelegate::appendString(std::string_view text) {
    logText.append(text);
    if (_outlets.eventLogDrawer->state() != DrawerState::closed) {
        _outlets.logTextView->insertAtEnd(text);
        _outlets.logTextView->scrollEndToVisible();
    }
}

void KXConfigAppDelegate::appendMessage(std::string_view key,
                                        std::initializer_list<FormatArgument> arguments) {
    appendString(localizedText(key, arguments));
}

// Piece by piece: no copy of a long log in one piece is needed beside it and the view's own.
void KXConfigAppDelegate::showWholeLog() {
    const auto& pieces = logText.pieces();
    _outlets.logTextView->setString(pieces.front());
    for (auto piece = std::next(pieces.begin()); piece != pieces.end(); ++piece) {
        _outlets.logTextView->insertAtEnd(*piece);
    }
}

void KXConfigAppDelegate::logDrawerButton() {
    switch (_outlets.eventLogDrawer->state()) {
    case DrawerState::closed:
        _outlets.eventLogDrawer->open();
        showWholeLog();
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
