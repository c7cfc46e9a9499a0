#include "platform/qt/QtDrawer.h"

#include <QGuiApplication>
#include <QLayout>
#include <QScreen>
#include <QStyle>
#include <algorithm>
#include <utility>

namespace kx {

int roomBelow(const QRect& window, const QRect& screen, bool isPlaceTold) {
    return isPlaceTold ? screen.bottom() - window.bottom()
                       : (screen.height() - window.height()) / 2;
}

QtDrawer::QtDrawer(QSplitter& splitter, QWidget& content, QWidget& drawer, QWidget& panel)
    : _splitter(splitter)
    , _content(content)
    , _drawer(drawer)
    , _panel(panel)
    , _height(drawer.sizeHint().height()) {
    drawer.hide();
    _animation.setStartValue(0.0);
    _animation.setEndValue(1.0);
    _animation.setEasingCurve(QEasingCurve::OutCubic);
    QObject::connect(&_animation, &QVariantAnimation::valueChanged, &_animation,
                     [this](const QVariant& out) { placePanel(out.toDouble()); });
    QObject::connect(&_animation, &QVariantAnimation::finished, &_animation, [this] { slid(); });
}

void QtDrawer::open() {
    if (_state == DrawerState::closed) {
        makeRoom();
    }
    if (_state == DrawerState::closed || _state == DrawerState::closing) {
        slide(DrawerState::opening);
    }
}

void QtDrawer::close() {
    if (_state == DrawerState::open) {
        _height = _drawer.height();
    }
    if (_state == DrawerState::open || _state == DrawerState::opening) {
        slide(DrawerState::closing);
    }
}

void QtDrawer::setStateAction(std::function<void(DrawerState)> action) {
    _stateAction = std::move(action);
}

void QtDrawer::setState(DrawerState state) {
    _state = state;
    if (_stateAction) {
        _stateAction(state);
    }
}

void QtDrawer::slide(DrawerState towards) {
    const bool opening = towards == DrawerState::opening;
    setState(towards);
    _animation.setDirection(opening ? QAbstractAnimation::Forward : QAbstractAnimation::Backward);
    if (_animation.state() == QAbstractAnimation::Running) {
        return; // it turns round at its present place
    }
    const int duration =
        _drawer.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &_drawer);
    if (duration <= 0 || !_drawer.window()->isVisible()) {
        slid();
        return;
    }
    placePanel(opening ? 0.0 : 1.0);
    _animation.setDuration(duration);
    _animation.start();
}

void QtDrawer::placePanel(double out) {
    _panel.move(_panel.x(), -static_cast<int>((1.0 - out) * _drawer.height()));
}

void QtDrawer::slid() {
    if (_state == DrawerState::opening) {
        setState(DrawerState::open);
        return;
    }
    _drawer.hide();
    giveRoomBack();
    setState(DrawerState::closed);
}

void QtDrawer::makeRoom() {
    QWidget* window = _drawer.window();
    const bool canGrow = window->isVisible() && !window->isMaximized() && !window->isFullScreen();
    const int wanted = _height + _splitter.handleWidth();
    const int room = roomBelow(window->frameGeometry(), window->screen()->availableGeometry(),
                               !QGuiApplication::platformName().startsWith("wayland"));
    _grownBy = canGrow ? std::clamp(room, 0, wanted) : 0;

    const int panes = _splitter.height() + _grownBy - _splitter.handleWidth();
    const int spare = panes - _content.minimumSizeHint().height();
    const int least = _drawer.minimumSizeHint().height();
    const int height = std::clamp(spare, std::min(least, _height), _height);

    _drawer.show();
    window->resize(window->width(), window->height() + _grownBy);
    window->layout()->activate();
    _splitter.setSizes({panes - height, height});
}

void QtDrawer::giveRoomBack() {
    QWidget* window = _drawer.window();
    if (!window->isMaximized() && !window->isFullScreen()) {
        window->resize(window->width(), window->height() - _grownBy);
    }
    _grownBy = 0;
}

} // namespace kx
