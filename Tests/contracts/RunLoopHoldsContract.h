// Tests that every run loop must pass while it is held: a part of the contract of
// support/RunLoop.h. contracts/RunLoopContract.h tells how to run them.

#pragma once

#include "contracts/BrokenContract.h"
#include "contracts/RunLoopContract.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kx {

template<typename Trait>
class RunLoopHoldsContract : public RunLoopContract<Trait> {
protected:
    RunLoop::Handle hold() { return this->trait.runLoop().holdCallbacks(); }
    bool runUntilOrderIs(const std::string& order) {
        return this->trait.runUntil([this, &order] { return called == order; });
    }

    std::string called; // names of the called ones, in order
};

TYPED_TEST_SUITE_P(RunLoopHoldsContract);

TYPED_TEST_P(RunLoopHoldsContract, WhatFallsDueDuringAHoldIsCalledAfterItInItsOrder) {
    const auto last = this->callAfter(5, [this] { this->called += "c"; });
    const auto first = this->callAfter(3, [this] { this->called += "a"; });
    const auto second = this->callAfter(3, [this] { this->called += "b"; });
    auto hold = this->hold();
    this->runAWhile();
    this->runAWhile();
    EXPECT_EQ(this->called, "");
    hold.reset();
    EXPECT_EQ(this->called, ""); // the end of the hold itself calls nothing
    EXPECT_TRUE(this->runUntilOrderIs("abc"));
    this->runAWhile();
    EXPECT_EQ(this->called, "abc");
}

TYPED_TEST_P(RunLoopHoldsContract, WhatFallsDueAfterAHoldComesBehindWhatFellDueInIt) {
    const auto held = this->callAfter(5, [this] { this->called += "a"; });
    auto hold = this->hold();
    this->runAWhile();
    hold.reset();
    const auto next = this->callAfter(0, [this] { this->called += "b"; });
    EXPECT_TRUE(this->runUntilOrderIs("ab"));
}

TYPED_TEST_P(RunLoopHoldsContract, AHoldMakesNoCallComeBeforeItsTime) {
    const auto asked = this->trait.now();
    const auto call = this->callAfter(40, [this] { this->called += "a"; });
    auto hold = this->hold();
    this->runAWhile();
    hold.reset();
    EXPECT_TRUE(this->runUntilOrderIs("a"));
    EXPECT_GE(this->trait.now() - asked, std::chrono::milliseconds(40));
}

TYPED_TEST_P(RunLoopHoldsContract, WhatCanBeReadDuringAHoldIsReadAfterIt) {
    const int before = this->newReadableDescriptor();
    const int meanwhile = this->trait.newDescriptor();
    const auto first = this->watch(before, [&] {
        this->called += "a";
        this->trait.setReadable(before, false);
    });
    const auto second = this->watch(meanwhile, [&] {
        this->called += "b";
        this->trait.setReadable(meanwhile, false);
    });
    auto hold = this->hold();
    this->trait.setReadable(meanwhile, true);
    this->runAWhile();
    EXPECT_EQ(this->called, "");
    hold.reset();
    EXPECT_EQ(this->called, "");
    EXPECT_TRUE(this->trait.runUntil([this] { return this->called.size() == 2; }));
    this->runAWhile();
    EXPECT_EQ(this->called.size(), 2U);
    EXPECT_NE(this->called.find('a'), std::string::npos);
    EXPECT_NE(this->called.find('b'), std::string::npos);
}

TYPED_TEST_P(RunLoopHoldsContract, WhatIsAskedForDuringAHoldWaitsToo) {
    auto hold = this->hold();
    const int descriptor = this->newReadableDescriptor();
    const auto watch = this->watch(descriptor, [&] {
        this->called += "r";
        this->trait.setReadable(descriptor, false);
    });
    const auto call = this->callAfter(0, [this] { this->called += "c"; });
    this->runAWhile();
    EXPECT_EQ(this->called, "");
    hold.reset();
    EXPECT_TRUE(this->trait.runUntil([this] { return this->called.size() == 2; }));
}

TYPED_TEST_P(RunLoopHoldsContract, WhatIsEndedDuringAHoldStaysSilent) {
    const int descriptor = this->newReadableDescriptor();
    auto watch = this->watch(descriptor, [&] {
        this->called += "r";
        this->trait.setReadable(descriptor, false);
    });
    auto call = this->callAfter(0, [this] { this->called += "c"; });
    auto hold = this->hold();
    this->runAWhile();
    watch.reset();
    call.reset();
    hold.reset();
    this->runAWhile();
    EXPECT_EQ(this->called, "");
}

TYPED_TEST_P(RunLoopHoldsContract, TheLastHoldToEndCounts) {
    const auto call = this->callAfter(0, [this] { this->called += "c"; });
    auto first = this->hold();
    auto second = this->hold();
    first.reset();
    this->runAWhile();
    EXPECT_EQ(this->called, "");
    second.reset();
    EXPECT_TRUE(this->runUntilOrderIs("c"));
}

TYPED_TEST_P(RunLoopHoldsContract, ACallbackMayBeginAHoldThatStandsWhenItHasReturned) {
    RunLoop::Handle hold;
    const auto call = [&](const char* name) {
        this->called += name;
        hold = this->hold();
    };
    const int descriptor = this->newReadableDescriptor();
    int reads = 0;
    const auto watch = this->watch(descriptor, [&] {
        this->trait.setReadable(descriptor, ++reads < 2);
        call("r");
    });
    const int other = this->newReadableDescriptor();
    const auto otherWatch = this->watch(other, [&] {
        this->trait.setReadable(other, false);
        call("s");
    });
    const auto first = this->callAfter(0, [&] { call("a"); });
    const auto second = this->callAfter(0, [&] { call("b"); });
    for (std::size_t count = 1; count <= 5; ++count) {
        ASSERT_TRUE(this->trait.runUntil([&] { return this->called.size() >= count; }));
        this->runAWhile();
        EXPECT_EQ(this->called.size(), count); // only one of all that could be called
        hold.reset();
    }
    EXPECT_EQ(reads, 2);
    EXPECT_LT(this->called.find('a'), this->called.find('b'));
}

TYPED_TEST_P(RunLoopHoldsContract, ARunDuringAHoldWouldWaitForEverAndIsABrokenContract) {
    const auto watch = this->watch(this->newReadableDescriptor(), [this] { this->called += "r"; });
    const auto hold = this->hold();
    this->trait.runLoop().runUntil([] { return true; });
    EXPECT_BROKEN_CONTRACT(this->trait.runLoop().runUntil([this] { return !this->called.empty(); }),
                           "the loop is not held", "Sources/support/RunLoop");
}

REGISTER_TYPED_TEST_SUITE_P(RunLoopHoldsContract, WhatFallsDueDuringAHoldIsCalledAfterItInItsOrder,
                            WhatFallsDueAfterAHoldComesBehindWhatFellDueInIt,
                            AHoldMakesNoCallComeBeforeItsTime,
                            WhatCanBeReadDuringAHoldIsReadAfterIt,
                            WhatIsAskedForDuringAHoldWaitsToo, WhatIsEndedDuringAHoldStaysSilent,
                            TheLastHoldToEndCounts,
                            ACallbackMayBeginAHoldThatStandsWhenItHasReturned,
                            ARunDuringAHoldWouldWaitForEverAndIsABrokenContract);

} // namespace kx
