#include "conversation/StepOrder.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

using Steps = std::vector<std::size_t>;

} // namespace

TEST(StepOrder, StepsThatWaitForNothingKeepTheirOrder) {
    const StepOrder order = orderOfSteps({{}, {}, {}});
    EXPECT_EQ(order.steps, (Steps{0, 1, 2}));
    EXPECT_EQ(order.rings, (Steps{0, 0, 0}));
}

TEST(StepOrder, AStepStandsBehindAllThatItWaitsFor) {
    EXPECT_EQ(orderOfSteps({{2, 1}, {2}, {}}).steps, (Steps{2, 1, 0}));
}

TEST(StepOrder, StepsOfARingAreInNoOrder) {
    const StepOrder order = orderOfSteps({{1}, {0}, {}});
    EXPECT_EQ(order.steps, Steps{2});
    EXPECT_EQ(order.rings, (Steps{1, 1, 0}));
}

TEST(StepOrder, AStepThatWaitsForItselfIsARing) {
    EXPECT_EQ(orderOfSteps({{0}}).rings, Steps{1});
}

TEST(StepOrder, AStepThatWaitsForARingIsNoPartOfIt) {
    const StepOrder order = orderOfSteps({{1}, {2}, {1}});
    EXPECT_EQ(order.steps, Steps{0});
    EXPECT_EQ(order.rings, (Steps{0, 1, 1}));
}

TEST(StepOrder, AStepBetweenTwoRingsIsAPartOfNeither) {
    // 0 and 1 are a ring, 2 waits for it, and the ring of 3 and 4 waits for 2.
    const StepOrder order = orderOfSteps({{1}, {0}, {1}, {4, 2}, {3}});
    EXPECT_EQ(order.steps, Steps{2});
    EXPECT_EQ(order.rings, (Steps{1, 1, 0, 2, 2}));
}

TEST(StepOrder, AChainMayBeAsLongAsTheTable) {
    constexpr std::size_t length = 100'000;
    StepsBefore before(length);
    for (std::size_t step = 0; step + 1 < length; ++step) {
        before[step] = {step + 1};
    }
    EXPECT_EQ(orderOfSteps(before).steps.front(), length - 1);
    before.back() = {0};
    EXPECT_TRUE(orderOfSteps(before).steps.empty());
}

} // namespace kx
