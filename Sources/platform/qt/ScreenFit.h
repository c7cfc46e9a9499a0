// Keeps a window and its frame inside the screen when it is first shown.
//
// The frame belongs to the window system, which makes it only after the window has been shown. So
// the window first leaves room for a frame as the style draws one. When the frame is known, the
// window becomes smaller, or moves, as far as that is needed. Afterwards the place and the size are
// the person's own.
//
// Main thread only.

#pragma once

#include <QObject>
#include <QWidget>

namespace kx {

class ScreenFit final : public QObject {
    Q_OBJECT

public:
    // Watches the window, which owns this object.
    explicit ScreenFit(QWidget& window);

    // Gives the window this size, or what the screen has room for. Call it before the window is
    // shown.
    void resize(QSize wanted);

    // The largest size of the window, without its frame.
    QSize room() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QMargins frame() const;
    void fit();

    QWidget& _window;
};

} // namespace kx
