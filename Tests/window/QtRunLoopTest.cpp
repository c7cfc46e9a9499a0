#include "platform/qt/QtRunLoop.h"

#include "contracts/PipeDescriptors.h"
#include "contracts/RunLoopCallsContract.h"
#include "contracts/RunLoopContract.h"
#include "contracts/RunLoopHoldsContract.h"
#include "contracts/RunLoopWatchesContract.h"
#include "platform/qt/QtAlert.h"
#include "support/TaskSupport.h"

#include <qpa/qwindowsysteminterface.h>
#include <unistd.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <QWindow>

namespace kx {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

class QtRunLoopTrait {
public:
    RunLoop& runLoop() { return _loop; }
    int newDescriptor() { return _pipes.newDescriptor(); }
    std::vector<int> closedDescriptors() { return PipeDescriptors::closedDescriptors(); }
    void setReadable(int descriptor, bool readable) { _pipes.setReadable(descriptor, readable); }
    bool runUntil(const std::function<bool()>& condition) { return QTest::qWaitFor(condition); }
    void runFor(milliseconds time) { QTest::qWait(static_cast<int>(time.count())); }
    std::chrono::nanoseconds now() { return steady_clock::now().time_since_epoch(); }

private:
    PipeDescriptors _pipes;
    QtRunLoop _loop;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, RunLoopContract, QtRunLoopTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, RunLoopCallsContract, QtRunLoopTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, RunLoopWatchesContract, QtRunLoopTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, RunLoopHoldsContract, QtRunLoopTrait);

class PaintCounter final : public QWidget {
public:
    int paintings = 0;

protected:
    void paintEvent(QPaintEvent* /*event*/) override { ++paintings; }
};

class KeyCounter final : public QWindow {
public:
    int keys = 0;

protected:
    void keyPressEvent(QKeyEvent* /*event*/) override { ++keys; }
};

} // namespace

TEST(QtRunLoop, AHangUpCountsAsReadable) {
    QtRunLoop loop;
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    int calls = 0;
    auto watch = loop.watchForReading(ends[0], [&] { ++calls; });
    ::close(ends[1]);
    EXPECT_TRUE(QTest::qWaitFor([&] { return calls > 0; }));
    watch.reset();
    ::close(ends[0]);
}

TEST(QtRunLoop, NothingWakesTheLoopAtRest) {
    QtRunLoop loop;
    PipeDescriptors pipes;
    const auto watch = loop.watchForReading(pipes.newDescriptor(), [] {});
    const auto call = loop.callOnceAfter(std::chrono::hours(1), [] {});
    QTest::qWait(50); // handles the events of earlier tests

    QEventLoop rest;
    const auto end = loop.callOnceAfter(milliseconds(300), [&] { rest.quit(); });
    const QSignalSpy wakeUps(QAbstractEventDispatcher::instance(),
                             &QAbstractEventDispatcher::awake);
    rest.exec();
    EXPECT_LE(wakeUps.count(), 4); // wake-ups at the beginning and at the end
}

TEST(QtRunLoop, WhatWaitsForTheEndOfAHoldDoesNotWakeTheLoop) {
    QtRunLoop loop;
    PipeDescriptors pipes;
    const int descriptor = pipes.newDescriptor();
    pipes.setReadable(descriptor, true);
    int calls = 0;
    const auto watch = loop.watchForReading(descriptor, [&] { ++calls; });
    const auto call = loop.callOnceAfter(milliseconds(10), [&] { ++calls; });
    const auto hold = loop.holdCallbacks();
    QTest::qWait(50); // handles the events of earlier tests

    const QSignalSpy wakeUps(QAbstractEventDispatcher::instance(),
                             &QAbstractEventDispatcher::awake);
    QEventLoop rest;
    QTimer::singleShot(milliseconds(300), &rest, &QEventLoop::quit);
    rest.exec();
    EXPECT_LE(wakeUps.count(), 4); // wake-ups at the beginning and at the end
    EXPECT_EQ(calls, 0);
}

TEST(QtRunLoop, UnderAnAlertAHeldLoopCallsNothingAndTheWindowIsStillPainted) {
    QtRunLoop loop;
    PaintCounter window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));

    PipeDescriptors pipes;
    const int descriptor = pipes.newDescriptor();
    pipes.setReadable(descriptor, true);
    std::string called;
    RunLoop::Handle watch;
    watch = loop.watchForReading(descriptor, [&] {
        called += "r";
        watch.reset();
    });
    const auto second = loop.callOnceAfter(milliseconds(2), [&] { called += "b"; });
    const auto first = loop.callOnceAfter(milliseconds(1), [&] { called += "a"; });
    int paintings = 0;
    QTimer::singleShot(milliseconds(100), &window, [&] {
        const int before = window.paintings;
        window.update();
        EXPECT_TRUE(QTest::qWaitFor([&] { return window.paintings > before; }));
        paintings = window.paintings - before;
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
    });
    {
        const auto hold = loop.holdCallbacks();
        QtAlert(window).runModal("KXConfig", "Some features may not be available.", "OK");
    }
    EXPECT_GT(paintings, 0);
    EXPECT_EQ(called, "");
    EXPECT_TRUE(QTest::qWaitFor([&] { return called.size() == 3; }));
    EXPECT_LT(called.find('a'), called.find('b'));
}

TEST(QtRunLoop, WhatAPersonDoesWaitsAndDoesNotKeepTheLoopBusy) {
    QtRunLoop loop;
    KeyCounter window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QTest::qWait(50); // handles the events of earlier tests

    // The window system reports a key in this way: it waits in a queue until the loop takes it.
    QWindowSystemInterface::handleKeyEvent(&window, QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    bool isOver = false;
    int questions = 0;
    const auto end = loop.callOnceAfter(milliseconds(300), [&] { isOver = true; });
    loop.runUntil([&] {
        ++questions;
        return isOver;
    });
    EXPECT_EQ(window.keys, 0);
    EXPECT_LE(questions, 20);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.keys == 1; }));
}

TEST(QtRunLoop, AToolIsWaitedForWhileTheLoopRuns) {
    QtRunLoop loop;
    int calls = 0;
    const auto call = loop.callOnceAfter(milliseconds(0), [&] { ++calls; });
    EXPECT_EQ(TaskSupport::doPipedTaskArgumentsOutput("/bin/sh", {"-c", "sleep 0.1; exit 3"},
                                                      std::nullopt, loop),
              3);
    EXPECT_EQ(calls, 1);
}

} // namespace kx
