#include "Simulator/DelayedFrames.h"
#include "Simulator/Pace.h"

#include <gtest/gtest.h>

namespace kx::simulator {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

const TimePoint kStart{seconds(1000)};

TEST(DelayedFrames, LeaveByTimeAndThenInTheirOrder) {
    DelayedFrames frames(10);
    frames.add(kStart + milliseconds(20), {2});
    frames.add(kStart + milliseconds(10), {1});
    frames.add(kStart + milliseconds(20), {3});
    EXPECT_EQ(frames.nextDue(), kStart + milliseconds(10));
    EXPECT_EQ(frames.takeDue(kStart + milliseconds(9)), std::vector<Bytes>{});
    EXPECT_EQ(frames.takeDue(kStart + milliseconds(10)), std::vector<Bytes>{{1}});
    EXPECT_EQ(frames.takeDue(kStart + milliseconds(19)), std::vector<Bytes>{});
    EXPECT_EQ(frames.takeDue(kStart + seconds(1)), (std::vector<Bytes>{{2}, {3}}));
    EXPECT_EQ(frames.nextDue(), std::nullopt);
}

TEST(DelayedFrames, BeyondTheCapacityAreLost) {
    DelayedFrames frames(2);
    EXPECT_TRUE(frames.add(kStart, {1}));
    EXPECT_TRUE(frames.add(kStart, {2}));
    EXPECT_FALSE(frames.add(kStart, {3}));
    EXPECT_EQ(frames.takeDue(kStart), (std::vector<Bytes>{{1}, {2}}));
    EXPECT_TRUE(frames.add(kStart, {4}));
}

TEST(Pace, KeepsItsRateHoweverItIsAsked) {
    Pace pace(100, kStart);
    EXPECT_EQ(pace.nextDue(), kStart + milliseconds(10));
    EXPECT_EQ(pace.take(kStart + milliseconds(9)), 0U);
    EXPECT_EQ(pace.take(kStart + milliseconds(10)), 1U);
    EXPECT_EQ(pace.take(kStart + milliseconds(10)), 0U);
    EXPECT_EQ(pace.take(kStart + milliseconds(35)), 2U);
    EXPECT_EQ(pace.nextDue(), kStart + milliseconds(40));
}

TEST(Pace, DoesNotCatchUpOnALongPause) {
    Pace pace(100, kStart);
    EXPECT_EQ(pace.take(kStart + seconds(60)), 11U);
    EXPECT_EQ(pace.take(kStart + seconds(60) + milliseconds(10)), 1U);
}

TEST(Pace, SlowRatesGiveOneEventAfterTheOther) {
    Pace pace(1, kStart);
    EXPECT_EQ(pace.take(kStart + milliseconds(999)), 0U);
    EXPECT_EQ(pace.take(kStart + milliseconds(1500)), 1U);
    EXPECT_EQ(pace.take(kStart + milliseconds(2000)), 1U);
}

TEST(Pace, RateOfZeroNeverFallsDue) {
    Pace pace(0, kStart);
    EXPECT_EQ(pace.nextDue(), std::nullopt);
    EXPECT_EQ(pace.take(kStart + seconds(60)), 0U);
}

} // namespace
} // namespace kx::simulator
