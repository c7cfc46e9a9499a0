// Delays of Qt's loop while the clocks of the host jump.

#include "doubles/JumpingClock.h"
#include "platform/qtcore/QtRunLoop.h"

#include <gtest/gtest.h>

#include <chrono>

namespace kx {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr std::time_t hour = 3600;

} // namespace

TEST(QtLoopClockJumps, TheClockOfThisTestJumps) {
    const JumpingClock clock;
    const auto before = std::chrono::system_clock::now();
    JumpingClock::jumpBy(hour);
    EXPECT_GE(std::chrono::system_clock::now() - before, std::chrono::hours(1));
}

TEST(QtLoopClockJumps, ADelayedCallIsNotEarlyWhenTheClockIsSetForwardsOrTheHostWasSuspended) {
    const JumpingClock clock;
    QtRunLoop loop;
    bool isCalled = false;
    const auto start = steady_clock::now();
    const auto call = loop.callOnceAfter(milliseconds(200), [&] { isCalled = true; });
    JumpingClock::jumpBy(hour);
    loop.runUntil([&] { return isCalled; });
    EXPECT_GE(steady_clock::now() - start, milliseconds(200));
}

TEST(QtLoopClockJumps, ADelayedCallIsNotLateWhenTheClockIsSetBackwards) {
    const JumpingClock clock;
    QtRunLoop loop;
    bool isCalled = false;
    const auto start = steady_clock::now();
    const auto call = loop.callOnceAfter(milliseconds(100), [&] { isCalled = true; });
    JumpingClock::jumpBy(-hour);
    const auto giveUp = loop.callOnceAfter(std::chrono::seconds(5), [] {});
    loop.runUntil(
        [&] { return isCalled || steady_clock::now() - start > std::chrono::seconds(5); });
    EXPECT_TRUE(isCalled);
}

} // namespace kx
