// Tests that every run loop must pass with delayed calls: a part of the contract of
// support/RunLoop.h. contracts/RunLoopContract.h tells how to run them.

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
class RunLoopCallsContract : public RunLoopContract<Trait> {};

TYPED_TEST_SUITE_P(RunLoopCallsContract);

TYPED_TEST_P(RunLoopCallsContract, ADelayedCallComesOnceAndNotBeforeItsTime) {
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

TYPED_TEST_P(RunLoopCallsContract, DelayedCallsComeInTheOrderOfTheirDueTimes) {
    std::string order;
    const auto late = this->callAfter(30, [&] { order += "c"; });
    const auto early = this->callAfter(1, [&] { order += "a"; });
    const auto middle = this->callAfter(15, [&] { order += "b"; });
    ASSERT_TRUE(this->trait.runUntil([&] { return order.size() == 3; }));
    EXPECT_EQ(order, "abc");
}

TYPED_TEST_P(RunLoopCallsContract, EqualDueTimesKeepTheOrderOfTheRequests) {
    std::string order;
    std::vector<RunLoop::Handle> handles;
    for (const char name : std::string("abcdef")) {
        handles.push_back(this->callAfter(5, [&order, name] { order += name; }));
    }
    ASSERT_TRUE(this->trait.runUntil([&] { return order.size() == 6; }));
    EXPECT_EQ(order, "abcdef");
}

TYPED_TEST_P(RunLoopCallsContract, ADelayBelowZeroIsADelayOfZero) {
    std::string order;
    const auto first = this->callAfter(0, [&] { order += "a"; });
    const auto second = this->callAfter(-1000, [&] { order += "b"; });
    ASSERT_TRUE(this->trait.runUntil([&] { return order.size() == 2; }));
    EXPECT_EQ(order, "ab");
}

TYPED_TEST_P(RunLoopCallsContract, AZeroDelayAskedForInACallComesAfterThatCall) {
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

TYPED_TEST_P(RunLoopCallsContract, ADestroyedHandleCancelsItsCall) {
    int calls = 0;
    auto call = this->callAfter(5, [&] { ++calls; });
    call.reset();
    this->runAWhile();
    EXPECT_EQ(calls, 0);
}

TYPED_TEST_P(RunLoopCallsContract, ACallThatWasAlreadyDueCanBeCancelledByAnotherOne) {
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

TYPED_TEST_P(RunLoopCallsContract, ACallMayDestroyItsOwnHandle) {
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

TYPED_TEST_P(RunLoopCallsContract, ACallMayReplaceItsOwnHandle) {
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

TYPED_TEST_P(RunLoopCallsContract, ACallObjectLivesUntilTheCallReturned) {
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

TYPED_TEST_P(RunLoopCallsContract, AfterTheCallTheHandleHoldsNothing) {
    auto token = std::make_shared<int>(7);
    const std::weak_ptr<int> observed = token;
    int calls = 0;
    const auto call = this->callAfter(0, [&calls, kept = std::move(token)] { ++calls; });
    ASSERT_TRUE(this->runUntilCount(calls, 1));
    this->runAWhile();
    EXPECT_TRUE(observed.expired());
}

TYPED_TEST_P(RunLoopCallsContract, TheLongestDelayNeitherComesEarlyNorOverflows) {
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

TYPED_TEST_P(RunLoopCallsContract, WhatACallbackHoldsMayBeTheLastHandleOfAnotherOne) {
    int calls = 0;
    auto inner = std::make_shared<RunLoop::Handle>(this->callAfter(5, [&calls] { calls = 100; }));
    auto outer = this->callAfter(5, [kept = std::move(inner)] {});
    outer.reset();
    const auto last = this->callAfter(6, [&calls] { ++calls; });
    ASSERT_TRUE(this->runUntilCount(calls, 1));
    EXPECT_EQ(calls, 1);
}

REGISTER_TYPED_TEST_SUITE_P(RunLoopCallsContract, ADelayedCallComesOnceAndNotBeforeItsTime,
                            DelayedCallsComeInTheOrderOfTheirDueTimes,
                            EqualDueTimesKeepTheOrderOfTheRequests, ADelayBelowZeroIsADelayOfZero,
                            AZeroDelayAskedForInACallComesAfterThatCall,
                            ADestroyedHandleCancelsItsCall,
                            ACallThatWasAlreadyDueCanBeCancelledByAnotherOne,
                            ACallMayDestroyItsOwnHandle, ACallMayReplaceItsOwnHandle,
                            ACallObjectLivesUntilTheCallReturned, AfterTheCallTheHandleHoldsNothing,
                            TheLongestDelayNeitherComesEarlyNorOverflows,
                            WhatACallbackHoldsMayBeTheLastHandleOfAnotherOne);

} // namespace kx
