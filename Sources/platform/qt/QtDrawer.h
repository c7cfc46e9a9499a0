// The drawer at the lower edge of the window.
//
// The drawer is a pane of a vertical splitter, below the window's content. Opening it makes the
// window taller as far as the screen has room, and takes the rest from the content. Closing it
// makes the window smaller by the height that it gained. The user may drag the splitter; the height
// is kept for the next time. The content of the drawer slides in and out within the time that the
// style gives to animations. When the style gives none, or the window is not shown, the drawer
// opens and closes at once. The widgets must outlive it.

#pragma once

#include "Outlets.h"

#include <QRect>
#include <QSplitter>
#include <QVariantAnimation>
#include <functional>

namespace kx {

// How much taller a window may become without leaving the screen below, in device-independent
// pixels; less than 0 when it is below already. Wayland tells no program where its windows are, and
// puts most of them in the middle or higher. There the place is not told, and half of what the
// screen has more than the window is the answer.
int roomBelow(const QRect& window, const QRect& screen, bool isPlaceTold);

class QtDrawer final : public Drawer {
public:
    // `splitter` has two panes: one around `content`, and `drawer`. The only child of `drawer` is
    // `panel`, which slides. The drawer starts closed.
    QtDrawer(QSplitter& splitter, QWidget& content, QWidget& drawer, QWidget& panel);

    void open() override;
    void close() override;
    DrawerState state() const override { return _state; }

    // Runs after each change of the state.
    void setStateAction(std::function<void(DrawerState)> action);

private:
    void setState(DrawerState state);
    void slide(DrawerState towards);
    void placePanel(double out);
    void slid();
    void makeRoom();
    void giveRoomBack();

    QSplitter& _splitter;
    QWidget& _content;
    QWidget& _drawer;
    QWidget& _panel;
    DrawerState _state = DrawerState::closed;
    std::function<void(DrawerState)> _stateAction;
    QVariantAnimation _animation; // visible part of the panel, from 0 to 1
    int _height;                  // height of the open drawer
    int _grownBy = 0;             // the height that the window gained from opening
};

} // namespace kx
