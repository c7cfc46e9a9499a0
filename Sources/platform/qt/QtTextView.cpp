#include "platform/qt/QtTextView.h"

namespace kx {

QtTextView::QtTextView(LogTextView& view)
    : _view(view) {}

void QtTextView::setString(const LogText& text) {
    _view.setText(text);
}

void QtTextView::insertAtEnd(std::string_view text) {
    _view.append(text);
}

void QtTextView::shareMemoryOf(const LogText& equalText) {
    _view.shareMemoryOf(equalText);
}

void QtTextView::scrollEndToVisible() {
    _view.scrollToEnd();
}

} // namespace kx
