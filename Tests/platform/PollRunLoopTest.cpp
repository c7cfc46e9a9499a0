#include "PollLoopDriver.h"
#include "contracts/PipeDescriptors.h"
#include "contracts/RunLoopCallsContract.h"
#include "contracts/RunLoopContract.h"
#include "contracts/RunLoopHoldsContract.h"
#include "contracts/RunLoopWatchesContract.h"

#include <sys/resource.h>

namespace kx {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

class PollRunLoopTrait {
public:
    RunLoop& runLoop() { return _loop; }
    int newDescriptor() { return _pipes.newDescriptor(); }
    std::vector<int> closedDescriptors() { return PipeDescriptors::closedDescriptors(); }
    void setReadable(int descriptor, bool readable) { _pipes.setReadable(descriptor, readable); }
    bool runUntil(const std::function<bool()>& condition) { return runLoopUntil(_loop, condition); }
    void runFor(milliseconds time) { runLoopFor(_loop, time); }
    std::chrono::nanoseconds now() { return steady_clock::now().time_since_epoch(); }

private:
    PipeDescriptors _pipes;
    PollRunLoop _loop;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Poll, RunLoopContract, PollRunLoopTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Poll, RunLoopCallsContract, PollRunLoopTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Poll, RunLoopWatchesContract, PollRunLoopTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Poll, RunLoopHoldsContract, PollRunLoopTrait);

} // namespace

TEST(PollRunLoop, RunsUntilItIsStopped) {
    PollRunLoop loop;
    int turns = 0;
    RunLoop::Handle call;
    std::function<void()> again = [&] {
        if (++turns == 3) {
            loop.stop();
        }
        call = loop.callOnceAfter(milliseconds(0), again);
    };
    call = loop.callOnceAfter(milliseconds(0), again);
    loop.run();
    EXPECT_EQ(turns, 3);
}

TEST(PollRunLoop, AStopBeforeTheRunIsWithoutEffect) {
    PollRunLoop loop;
    bool wasCalled = false;
    loop.stop();
    const auto call = loop.callOnceAfter(milliseconds(1), [&] {
        wasCalled = true;
        loop.stop();
    });
    loop.run();
    EXPECT_TRUE(wasCalled);
}

TEST(PollRunLoop, ATurnWaitsNoLongerThanItIsTold) {
    PollRunLoop loop;
    int calls = 0;
    const auto call = loop.callOnceAfter(std::chrono::hours(1), [&] { ++calls; });
    const auto start = steady_clock::now();
    EXPECT_FALSE(loop.runOnce(milliseconds(5)));
    EXPECT_FALSE(loop.runOnce(milliseconds(-5)));
    EXPECT_LT(steady_clock::now() - start, std::chrono::seconds(2));
    EXPECT_EQ(calls, 0);
}

TEST(PollRunLoop, AWaitForADueTimeIsOneTurn) {
    PollRunLoop loop;
    int calls = 0;
    const auto call = loop.callOnceAfter(milliseconds(20), [&] { ++calls; });
    EXPECT_TRUE(loop.runOnce());
    EXPECT_EQ(calls, 1);
}

// poll(2) says at once that such a descriptor is not open, in every turn.
TEST(PollRunLoop, ADescriptorThatIsClosedWhileItIsWatchedDoesNotMakeTheLoopSpin) {
    PollRunLoop loop;
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    int calls = 0;
    const auto watch = loop.watchForReading(ends[0], [&] { ++calls; });
    ::close(ends[1]);
    ::close(ends[0]);
    EXPECT_FALSE(loop.runOnce(milliseconds(20)));
    const auto start = steady_clock::now();
    EXPECT_FALSE(loop.runOnce(milliseconds(20)));
    EXPECT_GE(steady_clock::now() - start, milliseconds(20));
    EXPECT_EQ(calls, 0);
}

TEST(PollRunLoop, APollThatFailsDoesNotMakeTheLoopSpin) {
    PollRunLoop loop;
    PipeDescriptors pipes;
    const auto watch = loop.watchForReading(pipes.newDescriptor(), [] {});
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    rlimit none = before;
    none.rlim_cur = 0; // poll(2) fails with fewer descriptors than it is given
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &none), 0);
    const auto start = steady_clock::now();
    const bool hasCalled = loop.runOnce(std::chrono::seconds(5));
    const auto time = steady_clock::now() - start;
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
    EXPECT_FALSE(hasCalled);
    EXPECT_GE(time, milliseconds(5));
    EXPECT_LT(time, std::chrono::seconds(2)) << "the poll did not fail";
}

TEST(PollRunLoop, AHeldLoopRests) {
    PollRunLoop loop;
    PipeDescriptors pipes;
    const int descriptor = pipes.newDescriptor();
    pipes.setReadable(descriptor, true);
    int calls = 0;
    const auto watch = loop.watchForReading(descriptor, [&] { ++calls; });
    const auto call = loop.callOnceAfter(milliseconds(0), [&] { ++calls; });
    const auto hold = loop.holdCallbacks();
    const auto start = steady_clock::now();
    EXPECT_FALSE(loop.runOnce(milliseconds(20)));
    EXPECT_GE(steady_clock::now() - start, milliseconds(20));
    EXPECT_EQ(calls, 0);
}

TEST(PollRunLoop, AHangUpCountsAsReadable) {
    PollRunLoop loop;
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    int calls = 0;
    auto watch = loop.watchForReading(ends[0], [&] { ++calls; });
    ::close(ends[1]);
    EXPECT_TRUE(loop.runOnce(std::chrono::seconds(5)));
    EXPECT_EQ(calls, 1);
    watch.reset();
    ::close(ends[0]);
}

} // namespace kx
