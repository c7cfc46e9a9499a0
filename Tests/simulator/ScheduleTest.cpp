#include "Simulator/DelayedFrames.h"
#include "Simulator/EventRate.h"

#include <gtest/gtest.h>

namespace kx::simulator {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

const TimePoint startTime{seconds(1000)};

TEST(DelayedFrames, LeaveByTimeAndThenInTheirOrder) {
    DelayedFrames frames(10);
    frames.add(startTime + milliseconds(20), {2});
    frames.add(startTime + milliseconds(10), {1});
    frames.add(startTime + milliseconds(20), {3});
    EXPECT_EQ(frames.nextDue(), startTime + milliseconds(10));
    EXPECT_EQ(frames.takeDue(startTime + milliseconds(9)), std::vector<Bytes>{});
    EXPECT_EQ(frames.takeDue(startTime + milliseconds(10)), std::vector<Bytes>{{1}});
    EXPECT_EQ(frames.takeDue(startTime + milliseconds(19)), std::vector<Bytes>{});
    EXPECT_EQ(frames.takeDue(startTime + seconds(1)), (std::vector<Bytes>{{2}, {3}}));
    EXPECT_EQ(frames.nextDue(), std::nullopt);
}

TEST(DelayedFrames, BeyondTheCapacityAreLost) {
    DelayedFrames frames(2);
    EXPECT_TRUE(frames.add(startTime, {1}));
    EXPECT_TRUE(frames.add(startTime, {2}));
    EXPECT_FALSE(frames.add(startTime, {3}));
    EXPECT_EQ(frames.takeDue(startTime), (std::vector<Bytes>{{1}, {2}}));
    EXPECT_TRUE(frames.add(startTime, {4}));
}

TEST(EventRate, KeepsItsRateHoweverItIsAsked) {
    EventRate pace(100, startTime);
    EXPECT_EQ(pace.nextDue(), startTime + milliseconds(10));
    EXPECT_EQ(pace.take(startTime + milliseconds(9)), 0U);
    EXPECT_EQ(pace.take(startTime + milliseconds(10)), 1U);
    EXPECT_EQ(pace.take(startTime + milliseconds(10)), 0U);
    EXPECT_EQ(pace.take(startTime + milliseconds(35)), 2U);
    EXPECT_EQ(pace.nextDue(), startTime + milliseconds(40));
}

TEST(EventRate, DoesNotCatchUpOnALongPause) {
    EventRate pace(100, startTime);
    EXPECT_EQ(pace.take(startTime + seconds(60)), 11U);
    EXPECT_EQ(pace.take(startTime + seconds(60) + milliseconds(10)), 1U);
}

TEST(EventRate, SlowRatesGiveOneEventAfterTheOther) {
    EventRate pace(1, startTime);
    EXPECT_EQ(pace.take(startTime + milliseconds(999)), 0U);
    EXPECT_EQ(pace.take(startTime + milliseconds(1500)), 1U);
    EXPECT_EQ(pace.take(startTime + milliseconds(2000)), 1U);
}

TEST(EventRate, RateOfZeroNeverFallsDue) {
    EventRate pace(0, startTime);
    EXPECT_EQ(pace.nextDue(), std::nullopt);
    EXPECT_EQ(pace.take(startTime + seconds(60)), 0U);
}

} // namespace
} // namespace kx::simulator
