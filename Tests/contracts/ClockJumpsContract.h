// Delays of a real run loop while the clocks of the host jump.
//
// A test program runs them against its loop by
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(Poll, ClockJumpsContract, PollRunLoop);
//
// in one source file, because doubles/JumpingClock.h replaces the clocks of the whole program.

#pragma once

#include "doubles/JumpingClock.h"

#include <gtest/gtest.h>

#include <chrono>

namespace kx {

template<typename Loop>
class ClockJumpsContract : public testing::Test {
protected:
    static constexpr std::time_t hour = 3600;

    const JumpingClock clock;
    Loop loop;
};

TYPED_TEST_SUITE_P(ClockJumpsContract);

TYPED_TEST_P(ClockJumpsContract, TheClockOfThisTestJumps) {
    const auto before = std::chrono::system_clock::now();
    JumpingClock::jumpBy(this->hour);
    EXPECT_GE(std::chrono::system_clock::now() - before, std::chrono::hours(1));
}

TYPED_TEST_P(ClockJumpsContract,
             ADelayedCallIsNotEarlyWhenTheClockIsSetForwardsOrTheHostWasSuspended) {
    using std::chrono::steady_clock;
    constexpr std::chrono::milliseconds delay{200};
    bool isCalled = false;
    const auto start = steady_clock::now();
    const auto call = this->loop.callOnceAfter(delay, [&] { isCalled = true; });
    JumpingClock::jumpBy(this->hour);
    this->loop.runUntil([&] { return isCalled; });
    EXPECT_GE(steady_clock::now() - start, delay);
}

TYPED_TEST_P(ClockJumpsContract, ADelayedCallIsNotLateWhenTheClockIsSetBackwards) {
    using std::chrono::steady_clock;
    constexpr std::chrono::seconds patience{5};
    bool isCalled = false;
    const auto start = steady_clock::now();
    const auto call =
        this->loop.callOnceAfter(std::chrono::milliseconds(100), [&] { isCalled = true; });
    JumpingClock::jumpBy(-this->hour);
    const auto giveUp = this->loop.callOnceAfter(patience, [] {});
    this->loop.runUntil([&] { return isCalled || steady_clock::now() - start > patience; });
    EXPECT_TRUE(isCalled);
}

REGISTER_TYPED_TEST_SUITE_P(ClockJumpsContract, TheClockOfThisTestJumps,
                            ADelayedCallIsNotEarlyWhenTheClockIsSetForwardsOrTheHostWasSuspended,
                            ADelayedCallIsNotLateWhenTheClockIsSetBackwards);

} // namespace kx
