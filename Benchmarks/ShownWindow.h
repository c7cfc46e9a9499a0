// The real window and the real controller off screen.

#pragma once

#include "KXConfigAppDelegate.h"
#include "doubles/FixedWallClock.h"
#include "doubles/RecordedOutlets.h"
#include "doubles/ScriptedHostResolver.h"
#include "platform/qt/LogTextView.h"
#include "platform/qt/MainWindow.h"

#include <memory>

namespace kx {

class ShownWindow {
public:
    // They must outlive the window. `receiveBuffers` may be null.
    ShownWindow(RunLoop& runLoop, DatagramSystemCalls& systemCalls,
                ReceiveBufferControl* receiveBuffers = nullptr);
    ~ShownWindow();
    ShownWindow(const ShownWindow&) = delete;
    ShownWindow& operator=(const ShownWindow&) = delete;

    // Waits until the drawer is fully open.
    void openDrawer();

    // Appends whole lines, as long as the longest line of a reply's entry.
    void appendLines(int count);

    // Does the work of the Qt loop between two batches of datagrams.
    static void handleEvents();

    // Handles events until the view has painted the end of the log. Returns at once with the
    // drawer closed.
    void showEnd();

    // False when another program has the port.
    bool isListening() const { return _controller.udpListener()->port() != 0; }

    KXConfigAppDelegate& controller() { return _controller; }
    LogTextView& view() { return *_window.findChild<LogTextView*>("logTextView"); }

private:
    class PaintsOfEnd;

    bool drawerIs(DrawerState state);

    ScriptedHostResolver _resolver;
    FixedWallClock _wallClock{2026, 3, 5, 14, 7, 0};
    RecordedApplication _application;
    MainWindow _window;
    KXConfigAppDelegate _controller;
    std::unique_ptr<PaintsOfEnd> _paintsOfEnd;
};

} // namespace kx
