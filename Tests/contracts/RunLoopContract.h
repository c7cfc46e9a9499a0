// The contract of support/RunLoop.h: tests that every run loop must pass.
//
// A test program runs them against its loop by
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(Poll, RunLoopContract, PollRunLoopTrait);
//     INSTANTIATE_TYPED_TEST_SUITE_P(Poll, RunLoopCallsContract, PollRunLoopTrait);
//     INSTANTIATE_TYPED_TEST_SUITE_P(Poll, RunLoopWatchesContract, PollRunLoopTrait);
//     INSTANTIATE_TYPED_TEST_SUITE_P(Poll, RunLoopHoldsContract, PollRunLoopTrait);
//
// with a trait that is made anew for each test and has
//
//     RunLoop& runLoop();
//     // A descriptor that the loop can watch; it cannot be read yet.
//     int newDescriptor();
//     // Descriptors that are not open.
//     std::vector<int> closedDescriptors();
//     void setReadable(int descriptor, bool readable);
//     // Runs the loop until the condition holds; false when it does not within a generous time.
//     bool runUntil(const std::function<bool()>& condition);
//     // Runs the loop for this long on its own clock.
//     void runFor(std::chrono::milliseconds time);
//     // The loop's own clock.
//     std::chrono::nanoseconds now();
//
// All suites but the first have headers of their own. PipeDescriptors (contracts/PipeDescriptors.h)
// gives the trait of a real loop its descriptors.

#pragma once

#include "support/RunLoop.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kx {

template<typename Trait>
class RunLoopContract : public testing::Test {
protected:
    using Milliseconds = std::chrono::milliseconds;

    RunLoop::Handle watch(int descriptor, std::function<void()> readable) {
        return trait.runLoop().watchForReading(descriptor, std::move(readable));
    }
    RunLoop::Handle callAfter(int milliseconds, std::function<void()> call) {
        return trait.runLoop().callOnceAfter(Milliseconds(milliseconds), std::move(call));
    }
    int newReadableDescriptor() {
        const int descriptor = trait.newDescriptor();
        trait.setReadable(descriptor, true);
        return descriptor;
    }
    bool runUntilCount(const int& count, int atLeast) {
        return trait.runUntil([&count, atLeast] { return count >= atLeast; });
    }
    // Long enough for everything that is due to be called.
    void runAWhile() { trait.runFor(Milliseconds(10)); }

    Trait trait;
};

TYPED_TEST_SUITE_P(RunLoopContract);

TYPED_TEST_P(RunLoopContract, NothingIsCalledFromInsideTheRequest) {
    int calls = 0;
    const auto watch = this->watch(this->newReadableDescriptor(), [&] { ++calls; });
    const auto call = this->callAfter(0, [&] { ++calls; });
    EXPECT_NE(watch, nullptr);
    EXPECT_NE(call, nullptr);
    EXPECT_EQ(calls, 0);
}

// --- Running until something holds ---

TYPED_TEST_P(RunLoopContract, NothingRunsWhenWhatIsWaitedForHoldsAlready) {
    int calls = 0;
    const auto call = this->callAfter(0, [&] { ++calls; });
    const auto watch = this->watch(this->newReadableDescriptor(), [&] { ++calls; });
    this->trait.runLoop().runUntil([] { return true; });
    EXPECT_EQ(calls, 0);
}

TYPED_TEST_P(RunLoopContract, TheLoopRunsUntilWhatIsWaitedForHolds) {
    int reads = 0;
    bool isCalled = false;
    const auto call = this->callAfter(20, [&] { isCalled = true; });
    const auto watch = this->watch(this->newReadableDescriptor(), [&] { ++reads; });
    this->trait.runLoop().runUntil([&] { return reads >= 3; });
    EXPECT_EQ(reads, 3);
    this->trait.runLoop().runUntil([&] { return isCalled; });
    EXPECT_TRUE(isCalled);
}

TYPED_TEST_P(RunLoopContract, ACallMayRunTheLoopInTurn) {
    std::string order;
    RunLoop::Handle inner;
    const auto outer = this->callAfter(1, [&] {
        order += "(";
        inner = this->callAfter(1, [&] { order += "inner"; });
        this->trait.runLoop().runUntil([&] { return order.ends_with("inner"); });
        order += ")";
    });
    const auto later = this->callAfter(1000, [&] { order += "later"; });
    ASSERT_TRUE(this->trait.runUntil([&] { return order.ends_with(")"); }));
    EXPECT_EQ(order, "(inner)");
}

TYPED_TEST_P(RunLoopContract, AWatchMayRunTheLoopInTurnAndIsCalledAgainMeanwhile) {
    std::string order;
    const int descriptor = this->newReadableDescriptor();
    const auto watch = this->watch(descriptor, [&] {
        if (!order.empty()) {
            order += "inner";
            this->trait.setReadable(descriptor, false);
            return;
        }
        order += "(";
        this->trait.runLoop().runUntil([&] { return order.ends_with("inner"); });
        order += ")";
    });
    ASSERT_TRUE(this->trait.runUntil([&] { return order.ends_with(")"); }));
    this->runAWhile();
    EXPECT_EQ(order, "(inner)");
}

TYPED_TEST_P(RunLoopContract, WhatARunWithinTheRunHasReadIsNotReadableAfterIt) {
    std::string order;
    std::vector<RunLoop::Handle> watches(2);
    std::vector<int> descriptors{this->newReadableDescriptor(), this->newReadableDescriptor()};
    // The watch that is called first runs the loop, in which the other descriptor is read.
    const auto called = [&](std::size_t self) {
        this->trait.setReadable(descriptors[self], false);
        if (order.empty()) {
            order += "(";
            this->trait.runLoop().runUntil([&] { return order.ends_with("other"); });
            order += ")";
        } else {
            order += "other";
        }
    };
    watches[0] = this->watch(descriptors[0], [&] { called(0); });
    watches[1] = this->watch(descriptors[1], [&] { called(1); });
    ASSERT_TRUE(this->trait.runUntil([&] { return order.ends_with(")"); }));
    this->runAWhile();
    EXPECT_EQ(order, "(other)");
}

REGISTER_TYPED_TEST_SUITE_P(RunLoopContract, NothingIsCalledFromInsideTheRequest,
                            NothingRunsWhenWhatIsWaitedForHoldsAlready,
                            TheLoopRunsUntilWhatIsWaitedForHolds, ACallMayRunTheLoopInTurn,
                            AWatchMayRunTheLoopInTurnAndIsCalledAgainMeanwhile,
                            WhatARunWithinTheRunHasReadIsNotReadableAfterIt);

} // namespace kx
