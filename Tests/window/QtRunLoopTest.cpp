#include "platform/qt/QtRunLoop.h"

#include "contracts/PipeDescriptors.h"
#include "contracts/RunLoopCallsContract.h"
#include "contracts/RunLoopContract.h"
#include "contracts/RunLoopWatchesContract.h"

#include <unistd.h>

#include <QAbstractEventDispatcher>
#include <QSignalSpy>
#include <QTest>

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
    QTest::qWait(50); // what earlier tests left in the queue

    QEventLoop rest;
    const auto end = loop.callOnceAfter(milliseconds(300), [&] { rest.quit(); });
    const QSignalSpy wakeUps(QAbstractEventDispatcher::instance(),
                             &QAbstractEventDispatcher::awake);
    rest.exec();
    EXPECT_LE(wakeUps.count(), 4); // to begin, and for the end
}

} // namespace kx
