// Tests that every run loop must pass with watches: a part of the contract of support/RunLoop.h.
// contracts/RunLoopContract.h tells how to run them.

#pragma once

#include "contracts/RunLoopContract.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kx {

template<typename Trait>
class RunLoopWatchesContract : public RunLoopContract<Trait> {};

TYPED_TEST_SUITE_P(RunLoopWatchesContract);

TYPED_TEST_P(RunLoopWatchesContract, ADescriptorThatIsNotOpenCannotBeWatched) {
    const std::vector<int> closed = this->trait.closedDescriptors();
    ASSERT_FALSE(closed.empty());
    for (const int descriptor : closed) {
        EXPECT_EQ(this->watch(descriptor, [] {}), nullptr) << descriptor;
    }
}

TYPED_TEST_P(RunLoopWatchesContract, AWatchIsSilentWhileNothingCanBeRead) {
    int calls = 0;
    const auto watch = this->watch(this->trait.newDescriptor(), [&] { ++calls; });
    this->runAWhile();
    EXPECT_EQ(calls, 0);
}

TYPED_TEST_P(RunLoopWatchesContract, AWatchFiresAgainAndAgainWhileTheDescriptorCanBeRead) {
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

TYPED_TEST_P(RunLoopWatchesContract, AnUnreadDescriptorDoesNotKeepDelayedCallsWaiting) {
    int calls = 0;
    const auto watch = this->watch(this->newReadableDescriptor(), [] {});
    const auto call = this->callAfter(5, [&] { ++calls; });
    EXPECT_TRUE(this->runUntilCount(calls, 1));
}

TYPED_TEST_P(RunLoopWatchesContract, OneFloodedDescriptorDoesNotKeepAnotherWaiting) {
    int floods = 0;
    int calls = 0;
    const auto flood = this->watch(this->newReadableDescriptor(), [&] { ++floods; });
    const auto watch = this->watch(this->newReadableDescriptor(), [&] { ++calls; });
    ASSERT_TRUE(this->runUntilCount(calls, 5));
    EXPECT_LE(floods, calls + 1);
    EXPECT_GE(floods, calls - 1);
}

TYPED_TEST_P(RunLoopWatchesContract, ACallThatAsksForItselfDoesNotKeepWatchesWaiting) {
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

TYPED_TEST_P(RunLoopWatchesContract, ADestroyedHandleEndsItsWatch) {
    int calls = 0;
    auto watch = this->watch(this->newReadableDescriptor(), [&] { ++calls; });
    watch.reset();
    this->runAWhile();
    EXPECT_EQ(calls, 0);
}

TYPED_TEST_P(RunLoopWatchesContract, AWatchMayEndItself) {
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

TYPED_TEST_P(RunLoopWatchesContract, AWatchMayEndAnotherThatIsReadableInTheSameTurn) {
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

TYPED_TEST_P(RunLoopWatchesContract, AWatchMayCancelACallThatIsDueInTheSameTurn) {
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

TYPED_TEST_P(RunLoopWatchesContract, ACallMayEndAWatch) {
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

TYPED_TEST_P(RunLoopWatchesContract, AWatchAddedByAWatchFiresAfterIt) {
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

TYPED_TEST_P(RunLoopWatchesContract, ADescriptorCanBeWatchedAnewFromInsideItsWatch) {
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

TYPED_TEST_P(RunLoopWatchesContract, AWatchObjectLivesUntilItsCallReturned) {
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

REGISTER_TYPED_TEST_SUITE_P(
    RunLoopWatchesContract, ADescriptorThatIsNotOpenCannotBeWatched,
    AWatchIsSilentWhileNothingCanBeRead, AWatchFiresAgainAndAgainWhileTheDescriptorCanBeRead,
    AnUnreadDescriptorDoesNotKeepDelayedCallsWaiting, OneFloodedDescriptorDoesNotKeepAnotherWaiting,
    ACallThatAsksForItselfDoesNotKeepWatchesWaiting, ADestroyedHandleEndsItsWatch,
    AWatchMayEndItself, AWatchMayEndAnotherThatIsReadableInTheSameTurn,
    AWatchMayCancelACallThatIsDueInTheSameTurn, ACallMayEndAWatch, AWatchAddedByAWatchFiresAfterIt,
    ADescriptorCanBeWatchedAnewFromInsideItsWatch, AWatchObjectLivesUntilItsCallReturned);

} // namespace kx
