#include "platform/qt/ScreenFit.h"

#include <QEvent>
#include <QScreen>
#include <QStyle>
#include <QWindow>
#include <algorithm>

namespace kx {

ScreenFit::ScreenFit(QWidget& window)
    : QObject(&window)
    , _window(window) {
    window.installEventFilter(this);
}

void ScreenFit::resize(QSize wanted) {
    _window.resize(wanted.boundedTo(room()));
}

QSize ScreenFit::room() const {
    return _window.screen()->availableGeometry().marginsRemoved(frame()).size();
}

// The style's measures while the window system has told none.
QMargins ScreenFit::frame() const {
    const QWindow* const handle = _window.windowHandle();
    if (handle != nullptr && !handle->frameMargins().isNull()) {
        return handle->frameMargins();
    }
    const int side = _window.style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    const int title = _window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    return {side, title + side, side, side};
}

// The window system moves the window when it puts the frame round it, and activates it afterwards.
bool ScreenFit::eventFilter(QObject* watched, QEvent* event) {
    const bool mayHaveFrame = event->type() == QEvent::Move || event->type() == QEvent::Resize ||
                              event->type() == QEvent::WindowActivate;
    if (watched == &_window && mayHaveFrame && _window.isVisible()) {
        const bool isFramed = !_window.windowHandle()->frameMargins().isNull();
        if (isFramed || event->type() == QEvent::WindowActivate) {
            _window.removeEventFilter(this);
            fit();
        }
    }
    return QObject::eventFilter(watched, event);
}

void ScreenFit::fit() {
    if (_window.isMaximized() || _window.isFullScreen()) {
        return;
    }
    const QRect screen = _window.screen()->availableGeometry();
    resize(_window.size());
    const QSize framed = _window.size().grownBy(frame());
    QRect place(_window.frameGeometry().topLeft(), framed);
    place.moveRight(std::min(place.right(), screen.right()));
    place.moveBottom(std::min(place.bottom(), screen.bottom()));
    place.moveLeft(std::max(place.left(), screen.left()));
    place.moveTop(std::max(place.top(), screen.top()));
    if (place.topLeft() != _window.frameGeometry().topLeft()) {
        _window.move(place.topLeft());
    }
}

} // namespace kx
