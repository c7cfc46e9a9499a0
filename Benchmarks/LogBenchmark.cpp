// Appending entries to the event log in the real window, off screen, with the drawer open and
// closed. Each round appends a thousand entries and lets the window paint.

#include "Comparison.h"
#include "KXConfigAppDelegate.h"
#include "doubles/FixedWallClock.h"
#include "doubles/ManualRunLoop.h"
#include "doubles/RecordedOutlets.h"
#include "doubles/ScriptedHostResolver.h"
#include "doubles/ScriptedSystemCalls.h"
#include "platform/qt/MainWindow.h"

#include <benchmark/benchmark.h>

#include <QApplication>

namespace kx {

namespace {

constexpr int entries = 1000;

void handleEvents() {
    QApplication::processEvents(QEventLoop::AllEvents);
}

void appendEntries(benchmark::State& state, bool drawerIsOpen) {
    ManualRunLoop runLoop;
    ScriptedHostResolver resolver;
    ScriptedSystemCalls systemCalls;
    const FixedWallClock wallClock(2026, 3, 5, 14, 7, 0);
    RecordedApplication application;
    MainWindow window;
    KXConfigAppDelegate controller(
        window.outlets(), {runLoop, resolver, systemCalls, wallClock, application, nullptr, {}});
    window.connectActions(controller);
    window.show();
    controller.applicationDidFinishLaunching();
    const auto wanted = drawerIsOpen ? DrawerState::open : DrawerState::closed;
    if (drawerIsOpen) {
        controller.logDrawerButton();
    }
    while (window.outlets().eventLogDrawer->state() != wanted) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    for (auto _ : state) {
        for (int i = 0; i < entries; ++i) {
            controller.appendString("\nUDP listener did receive data. Length: 81");
        }
        handleEvents();
        state.PauseTiming();
        controller.discoverButton(); // empties the log
        handleEvents();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * entries);
    window.disconnectActions();
    controller.applicationWillTerminate();
}

void appendWithDrawerClosed(benchmark::State& state) {
    appendEntries(state, false);
}
BENCHMARK(appendWithDrawerClosed)->Unit(benchmark::kMicrosecond);

void appendWithDrawerOpen(benchmark::State& state) {
    appendEntries(state, true);
}
BENCHMARK(appendWithDrawerOpen)->Unit(benchmark::kMicrosecond);

const Comparison comparison("append 1,000 entries to the log, drawer open beside drawer closed",
                            "appendWithDrawerOpen", "appendWithDrawerClosed");

} // namespace

} // namespace kx
