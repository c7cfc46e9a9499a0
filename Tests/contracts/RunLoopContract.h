// What every run loop must do, whatever it stands on: the contract of support/RunLoop.h.
//
// A test program runs it against its loop by
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(Poll, RunLoopContract, PollRunLoopTrait);
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
// PipeDescriptors (contracts/PipeDescriptors.h) gives a trait of a real loop its descriptors.

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

// --- Delayed calls ---

TYPED_TEST_P(RunLoopContract, ADelayedCallComesOnceAndNotBeforeItsTime) {
    int calls = 0;
    const auto start = this->trait.now();
    auto calledAt = start;
    const auto call = this->callAfter(25, [&] {
        ++calls;
        calledAt = this->trait.now();
    });
    ASSERT_TRUE(this->runUntilCount(calls, 1));
    EXPECT_GE(calledAt - start, std::chrono::milliseconds(25));
    this->trait.runFor(std::chrono::milliseconds(30));
    EXPECT_EQ(calls, 1);
}

TYPED_TEST_P(RunLoopContract, DelayedCallsComeInTheOrderOfTheirDueTimes) {
    std::string order;
    const auto late = this->callAfter(30, [&] { order += "c"; });
    const auto early = this->callAfter(1, [&] { order += "a"; });
    const auto middle = this->callAfter(15, [&] { order += "b"; });
    ASSERT_TRUE(this->trait.runUntil([&] { return order.size() == 3; }));
    EXPECT_EQ(order, "abc");
}

TYPED_TEST_P(RunLoopContract, EqualDueTimesKeepTheOrderOfTheRequests) {
    std::string order;
    std::vector<RunLoop::Handle> handles;
    for (const char name : std::string("abcdef")) {
        handles.push_back(this->callAfter(5, [&order, name] { order += name; }));
    }
    ASSERT_TRUE(this->trait.runUntil([&] { return order.size() == 6; }));
    EXPECT_EQ(order, "abcdef");
}

TYPED_TEST_P(RunLoopContract, ADelayBelowZeroIsADelayOfZero) {
    std::string order;
    const auto first = this->callAfter(0, [&] { order += "a"; });
    const auto second = this->callAfter(-1000, [&] { order += "b"; });
    ASSERT_TRUE(this->trait.runUntil([&] { return order.size() == 2; }));
    EXPECT_EQ(order, "ab");
}

TYPED_TEST_P(RunLoopContract, AZeroDelayAskedForInACallComesAfterThatCall) {
    std::string order;
    RunLoop::Handle inner;
    const auto outer = this->callAfter(0, [&] {
        order += "(";
        inner = this->callAfter(0, [&] { order += "inner"; });
        order += ")";
    });
    const auto second = this->callAfter(0, [&] { order += "second"; });
    ASSERT_TRUE(this->trait.runUntil([&] { return order.find("inner") != std::string::npos; }));
    EXPECT_EQ(order, "()secondinner");
}

TYPED_TEST_P(RunLoopContract, ADestroyedHandleCancelsItsCall) {
    int calls = 0;
    auto call = this->callAfter(5, [&] { ++calls; });
    call.reset();
    this->runAWhile();
    EXPECT_EQ(calls, 0);
}

TYPED_TEST_P(RunLoopContract, ACallThatWasAlreadyDueCanBeCancelledByAnotherOne) {
    int laterCalls = 0;
    int calls = 0;
    RunLoop::Handle later;
    const auto call = this->callAfter(0, [&] {
        ++calls;
        later.reset();
    });
    later = this->callAfter(0, [&] { ++laterCalls; });
    ASSERT_TRUE(this->runUntilCount(calls, 1));
    this->runAWhile();
    EXPECT_EQ(laterCalls, 0);
}

TYPED_TEST_P(RunLoopContract, ACallMayDestroyItsOwnHandle) {
    int calls = 0;
    RunLoop::Handle call;
    call = this->callAfter(0, [&] {
        call.reset();
        ++calls;
    });
    ASSERT_TRUE(this->runUntilCount(calls, 1));
    this->runAWhile();
    EXPECT_EQ(calls, 1);
}

TYPED_TEST_P(RunLoopContract, ACallMayReplaceItsOwnHandle) {
    int calls = 0;
    RunLoop::Handle call;
    std::function<void()> again = [&] {
        if (++calls < 3) {
            call = this->callAfter(1, again);
        }
    };
    call = this->callAfter(1, again);
    ASSERT_TRUE(this->runUntilCount(calls, 3));
    this->runAWhile();
    EXPECT_EQ(calls, 3);
}

TYPED_TEST_P(RunLoopContract, ACallObjectLivesUntilTheCallReturned) {
    auto token = std::make_shared<int>(7);
    const std::weak_ptr<int> observed = token;
    RunLoop::Handle call;
    int calls = 0;
    call = this->callAfter(0, [&, kept = std::move(token)] {
        call.reset();
        EXPECT_FALSE(observed.expired());
        calls += *kept == 7 ? 1 : 0;
    });
    ASSERT_TRUE(this->runUntilCount(calls, 1));
    this->runAWhile();
    EXPECT_TRUE(observed.expired());
}

TYPED_TEST_P(RunLoopContract, AfterTheCallTheHandleHoldsNothing) {
    auto token = std::make_shared<int>(7);
    const std::weak_ptr<int> observed = token;
    int calls = 0;
    const auto call = this->callAfter(0, [&calls, kept = std::move(token)] { ++calls; });
    ASSERT_TRUE(this->runUntilCount(calls, 1));
    this->runAWhile();
    EXPECT_TRUE(observed.expired());
}

TYPED_TEST_P(RunLoopContract, TheLongestDelayNeitherComesEarlyNorOverflows) {
    std::string order;
    const auto call = this->trait.runLoop().callOnceAfter(std::chrono::milliseconds::max(),
                                                          [&] { order += "never"; });
    const auto monthLater =
        this->trait.runLoop().callOnceAfter(std::chrono::hours(24 * 31), [&] { order += "month"; });
    const auto soon = this->callAfter(1, [&] { order += "soon"; });
    ASSERT_TRUE(this->trait.runUntil([&] { return !order.empty(); }));
    this->runAWhile();
    EXPECT_EQ(order, "soon");
}

// --- Watches ---

TYPED_TEST_P(RunLoopContract, ADescriptorThatIsNotOpenCannotBeWatched) {
    const std::vector<int> closed = this->trait.closedDescriptors();
    ASSERT_FALSE(closed.empty());
    for (const int descriptor : closed) {
        EXPECT_EQ(this->watch(descriptor, [] {}), nullptr) << descriptor;
    }
}

TYPED_TEST_P(RunLoopContract, AWatchIsSilentWhileNothingCanBeRead) {
    int calls = 0;
    const auto watch = this->watch(this->trait.newDescriptor(), [&] { ++calls; });
    this->runAWhile();
    EXPECT_EQ(calls, 0);
}

TYPED_TEST_P(RunLoopContract, AWatchFiresAgainAndAgainWhileTheDescriptorCanBeRead) {
    int calls = 0;
    const int descriptor = this->trait.newDescriptor();
    const auto watch = this->watch(descriptor, [&] { ++calls; });
    this->trait.setReadable(descriptor, true);
    ASSERT_TRUE(this->runUntilCount(calls, 3));
    this->trait.setReadable(descriptor, false);
    calls = 0;
    this->runAWhile();
    EXPECT_EQ(calls, 0);
    this->trait.setReadable(descriptor, true);
    EXPECT_TRUE(this->runUntilCount(calls, 1));
}

TYPED_TEST_P(RunLoopContract, AnUnreadDescriptorDoesNotKeepDelayedCallsWaiting) {
    int calls = 0;
    const auto watch = this->watch(this->newReadableDescriptor(), [] {});
    const auto call = this->callAfter(5, [&] { ++calls; });
    EXPECT_TRUE(this->runUntilCount(calls, 1));
}

TYPED_TEST_P(RunLoopContract, OneFloodedDescriptorDoesNotKeepAnotherWaiting) {
    int floods = 0;
    int calls = 0;
    const auto flood = this->watch(this->newReadableDescriptor(), [&] { ++floods; });
    const auto watch = this->watch(this->newReadableDescriptor(), [&] { ++calls; });
    ASSERT_TRUE(this->runUntilCount(calls, 5));
    EXPECT_LE(floods, calls + 1);
    EXPECT_GE(floods, calls - 1);
}

TYPED_TEST_P(RunLoopContract, ACallThatAsksForItselfDoesNotKeepWatchesWaiting) {
    int reads = 0;
    RunLoop::Handle call;
    std::function<void()> again = [&] {
        if (reads == 0) {
            call = this->callAfter(0, again);
        }
    };
    call = this->callAfter(0, again);
    const auto watch = this->watch(this->newReadableDescriptor(), [&] { ++reads; });
    EXPECT_TRUE(this->runUntilCount(reads, 1));
}

TYPED_TEST_P(RunLoopContract, ADestroyedHandleEndsItsWatch) {
    int calls = 0;
    auto watch = this->watch(this->newReadableDescriptor(), [&] { ++calls; });
    watch.reset();
    this->runAWhile();
    EXPECT_EQ(calls, 0);
}

TYPED_TEST_P(RunLoopContract, AWatchMayEndItself) {
    int calls = 0;
    RunLoop::Handle watch;
    watch = this->watch(this->newReadableDescriptor(), [&] {
        watch.reset();
        ++calls;
    });
    ASSERT_TRUE(this->runUntilCount(calls, 1));
    this->runAWhile();
    EXPECT_EQ(calls, 1);
}

TYPED_TEST_P(RunLoopContract, AWatchMayEndAnotherThatIsReadableInTheSameTurn) {
    int calls = 0;
    RunLoop::Handle one;
    RunLoop::Handle other;
    one = this->watch(this->newReadableDescriptor(), [&] {
        ++calls;
        other.reset();
        one.reset();
    });
    other = this->watch(this->newReadableDescriptor(), [&] {
        ++calls;
        one.reset();
        other.reset();
    });
    ASSERT_TRUE(this->runUntilCount(calls, 1));
    this->runAWhile();
    EXPECT_EQ(calls, 1);
}

TYPED_TEST_P(RunLoopContract, AWatchMayCancelACallThatIsDueInTheSameTurn) {
    int order = 0;
    int readAt = 0;
    int calledAt = 0;
    RunLoop::Handle call;
    RunLoop::Handle watch;
    watch = this->watch(this->newReadableDescriptor(), [&] {
        readAt = ++order;
        watch.reset();
        call.reset();
    });
    call = this->callAfter(0, [&] { calledAt = ++order; });
    ASSERT_TRUE(this->runUntilCount(readAt, 1));
    this->runAWhile();
    EXPECT_LT(calledAt, readAt); // 0 when it was cancelled, 1 when it came first
}

TYPED_TEST_P(RunLoopContract, ACallMayEndAWatch) {
    int reads = 0;
    int calls = 0;
    int readsBefore = 0;
    RunLoop::Handle watch;
    watch = this->watch(this->newReadableDescriptor(), [&] { ++reads; });
    const auto call = this->callAfter(0, [&] {
        watch.reset();
        readsBefore = reads;
        ++calls;
    });
    ASSERT_TRUE(this->runUntilCount(calls, 1));
    this->runAWhile();
    EXPECT_EQ(reads, readsBefore);
}

TYPED_TEST_P(RunLoopContract, AWatchAddedByAWatchFiresAfterIt) {
    std::string order;
    RunLoop::Handle first;
    RunLoop::Handle second;
    const int descriptor = this->newReadableDescriptor();
    first = this->watch(this->newReadableDescriptor(), [&] {
        order += "(";
        first.reset();
        second = this->watch(descriptor, [&] {
            order += "second";
            second.reset();
        });
        order += ")";
    });
    ASSERT_TRUE(this->trait.runUntil([&] { return order.find("second") != std::string::npos; }));
    this->runAWhile();
    EXPECT_EQ(order, "()second");
}

TYPED_TEST_P(RunLoopContract, ADescriptorCanBeWatchedAnewFromInsideItsWatch) {
    int oldCalls = 0;
    int newCalls = 0;
    const int descriptor = this->newReadableDescriptor();
    RunLoop::Handle watch;
    watch = this->watch(descriptor, [&] {
        ++oldCalls;
        watch.reset();
        watch = this->watch(descriptor, [&] { ++newCalls; });
    });
    ASSERT_TRUE(this->runUntilCount(newCalls, 2));
    EXPECT_EQ(oldCalls, 1);
}

TYPED_TEST_P(RunLoopContract, AWatchObjectLivesUntilItsCallReturned) {
    auto token = std::make_shared<int>(7);
    const std::weak_ptr<int> observed = token;
    RunLoop::Handle watch;
    int calls = 0;
    watch = this->watch(this->newReadableDescriptor(), [&, kept = std::move(token)] {
        watch.reset();
        EXPECT_FALSE(observed.expired());
        calls += *kept == 7 ? 1 : 0;
    });
    ASSERT_TRUE(this->runUntilCount(calls, 1));
    this->runAWhile();
    EXPECT_TRUE(observed.expired());
}

TYPED_TEST_P(RunLoopContract, WhatACallbackHoldsMayBeTheLastHandleOfAnotherOne) {
    int calls = 0;
    auto inner = std::make_shared<RunLoop::Handle>(this->callAfter(5, [&calls] { calls = 100; }));
    auto outer = this->callAfter(5, [kept = std::move(inner)] {});
    outer.reset();
    const auto last = this->callAfter(6, [&calls] { ++calls; });
    ASSERT_TRUE(this->runUntilCount(calls, 1));
    EXPECT_EQ(calls, 1);
}

REGISTER_TYPED_TEST_SUITE_P(
    RunLoopContract, NothingIsCalledFromInsideTheRequest, ADelayedCallComesOnceAndNotBeforeItsTime,
    DelayedCallsComeInTheOrderOfTheirDueTimes, EqualDueTimesKeepTheOrderOfTheRequests,
    ADelayBelowZeroIsADelayOfZero, AZeroDelayAskedForInACallComesAfterThatCall,
    ADestroyedHandleCancelsItsCall, ACallThatWasAlreadyDueCanBeCancelledByAnotherOne,
    ACallMayDestroyItsOwnHandle, ACallMayReplaceItsOwnHandle, ACallObjectLivesUntilTheCallReturned,
    AfterTheCallTheHandleHoldsNothing, TheLongestDelayNeitherComesEarlyNorOverflows,
    ADescriptorThatIsNotOpenCannotBeWatched, AWatchIsSilentWhileNothingCanBeRead,
    AWatchFiresAgainAndAgainWhileTheDescriptorCanBeRead,
    AnUnreadDescriptorDoesNotKeepDelayedCallsWaiting, OneFloodedDescriptorDoesNotKeepAnotherWaiting,
    ACallThatAsksForItselfDoesNotKeepWatchesWaiting, ADestroyedHandleEndsItsWatch,
    AWatchMayEndItself, AWatchMayEndAnotherThatIsReadableInTheSameTurn,
    AWatchMayCancelACallThatIsDueInTheSameTurn, ACallMayEndAWatch, AWatchAddedByAWatchFiresAfterIt,
    ADescriptorCanBeWatchedAnewFromInsideItsWatch, AWatchObjectLivesUntilItsCallReturned,
    WhatACallbackHoldsMayBeTheLastHandleOfAnotherOne);

} // namespace kx
