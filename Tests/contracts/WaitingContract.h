// The contract of support/Waiting.h: tests that every way of waiting must pass.
//
// A test program runs them with a trait that is made anew for each test and has
//
//     Waiting& waiting();
//     // Has the person give up, or the application asked to end, in the next wait, after a while.
//     void giveUpInTheNextWait();
//     // Runs a test as the application runs its actions.
//     void run(const std::function<void()>& test);

#pragma once

#include "support/Waiting.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>

namespace kx {

template<typename Trait>
class WaitingContract : public testing::Test {
protected:
    static constexpr auto sentence = "Waiting for a test.";

    Trait trait;
};

TYPED_TEST_SUITE_P(WaitingContract);

TYPED_TEST_P(WaitingContract, WhatIsDoneAlreadyIsAskedOnce) {
    this->trait.run([this] {
        int asked = 0;
        EXPECT_TRUE(this->trait.waiting().until(
            [&] {
                ++asked;
                return true;
            },
            this->sentence));
        EXPECT_EQ(asked, 1);
    });
}

TYPED_TEST_P(WaitingContract, IsAskedAgainAndAgainUntilItIsDone) {
    this->trait.run([this] {
        using Clock = std::chrono::steady_clock;
        const auto end = Clock::now() + std::chrono::milliseconds(600);
        int asked = 0;
        EXPECT_TRUE(this->trait.waiting().until(
            [&] {
                ++asked;
                return Clock::now() >= end;
            },
            this->sentence));
        EXPECT_GE(asked, 15); // on a busy machine, too
        EXPECT_LT(Clock::now() - end, std::chrono::seconds(2));
    });
}

TYPED_TEST_P(WaitingContract, MayBeGivenUp) {
    this->trait.run([this] {
        this->trait.giveUpInTheNextWait();
        EXPECT_FALSE(this->trait.waiting().until([] { return false; }, this->sentence));
    });
}

TYPED_TEST_P(WaitingContract, MayBeginInsideAnotherOne) {
    this->trait.run([this] {
        bool isInside = false;
        bool insideIsDone = false;
        EXPECT_TRUE(this->trait.waiting().until(
            [&] {
                if (!isInside) {
                    isInside = true;
                    insideIsDone = this->trait.waiting().until([] { return true; }, this->sentence);
                }
                return insideIsDone;
            },
            this->sentence));
    });
}

REGISTER_TYPED_TEST_SUITE_P(WaitingContract, WhatIsDoneAlreadyIsAskedOnce,
                            IsAskedAgainAndAgainUntilItIsDone, MayBeGivenUp,
                            MayBeginInsideAnotherOne);

} // namespace kx
