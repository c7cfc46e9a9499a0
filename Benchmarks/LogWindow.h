// The real window and the real controller off screen, with a scripted network: the common part of
// the benchmarks of the event log.

#pragma once

#include "KXConfigAppDelegate.h"
#include "doubles/FixedWallClock.h"
#include "doubles/ManualRunLoop.h"
#include "doubles/RecordedOutlets.h"
#include "doubles/ScriptedHostResolver.h"
#include "doubles/ScriptedSystemCalls.h"
#include "platform/qt/LogTextView.h"
#include "platform/qt/MainWindow.h"

#include <vector>

namespace kx {

class LogWindow {
public:
    LogWindow();
    ~LogWindow();
    LogWindow(const LogWindow&) = delete;
    LogWindow& operator=(const LogWindow&) = delete;

    // Waits until the drawer is fully open.
    void openDrawer();

    // Appends whole lines, as long as the longest line of a reply's entry.
    void appendLines(int count);

    // Does the work of the Qt loop between two batches of datagrams.
    static void handleEvents();

    // Handles events until the view shows the end of the log. Returns at once with the drawer
    // closed.
    void showEnd();

    KXConfigAppDelegate& controller() { return _controller; }
    LogTextView& view() { return *_window.findChild<LogTextView*>("logTextView"); }

    void receive(const Bytes& datagram);

private:
    bool drawerIs(DrawerState state);

    ManualRunLoop _runLoop;
    ScriptedHostResolver _resolver;
    ScriptedSystemCalls _systemCalls;
    FixedWallClock _wallClock{2026, 3, 5, 14, 7, 0};
    RecordedApplication _application;
    MainWindow _window;
    KXConfigAppDelegate _controller;
};

// Replies of 81 bytes, each from another unit.
std::vector<Bytes> repliesOfUnits(int count);

} // namespace kx
