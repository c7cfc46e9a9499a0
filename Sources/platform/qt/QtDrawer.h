// The drawer at the lower edge of the window.
//
// The drawer is a pane of a vertical splitter, below the window's content. Opening it makes the
// window taller as far as the screen has room, and takes the rest from the content; closing gives
// back what the window grew by. The user may drag the splitter; the height is kept for the next
// time. What is in the drawer slides in and out within the time that the style gives to animations;
// where that is none, or the window is not shown, the drawer opens and closes at once. The widgets
// must outlive it.

#pragma once

#include "Outlets.h"

#include <QSplitter>
#include <QVariantAnimation>
#include <functional>

namespace kx {

class QtDrawer final : public Drawer {
public:
    // `splitter` has two panes: one around `content`, and `drawer`, whose only child `panel` is
    // what slides. The drawer starts closed.
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
    QVariantAnimation _animation; // the part of the panel that is out, from 0 to 1
    int _height;                  // that the drawer opens to
    int _grownBy = 0;             // the height that the window gained from opening
};

} // namespace kx
