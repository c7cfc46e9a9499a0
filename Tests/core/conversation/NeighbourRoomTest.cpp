#include "conversation/NeighbourRoom.h"

#include "doubles/ManualRunLoop.h"
#include "doubles/ScriptedNeighbours.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

class NeighbourRoomTest : public testing::Test {
protected:
    bool take() {
        return room.takePlace([this] { ++calls; });
    }

    // Takes places up to the next look at the table.
    void takeToNextLook() {
        for (std::size_t i = 0; i < NeighbourRoom::unitsBetweenLooks; ++i) {
            ASSERT_TRUE(take());
        }
    }

    ManualRunLoop runLoop;
    ScriptedNeighbours neighbours;
    NeighbourRoom room{runLoop, neighbours};
    int calls = 0;
};

} // namespace

TEST_F(NeighbourRoomTest, AFullTableIsSeenAtTheBeginningAndAfterAFewUnits) {
    takeToNextLook();
    neighbours.inUse = NeighbourRoom::mostEntries;
    EXPECT_FALSE(take());
    EXPECT_TRUE(room.isAwaited());
    neighbours.inUse = NeighbourRoom::mostEntries - 1;
    EXPECT_TRUE(take());
    EXPECT_FALSE(room.isAwaited());
    neighbours.inUse = NeighbourRoom::mostEntries;
    NeighbourRoom second(runLoop, neighbours);
    EXPECT_FALSE(second.takePlace([] {}));
}

TEST_F(NeighbourRoomTest, TheEntriesOfUnitsThatAreDoneAreTakenOutOnlyWhenItIsFull) {
    for (std::uint32_t address = 1; address <= 10; ++address) {
        room.release(address, 3);
    }
    takeToNextLook();
    EXPECT_TRUE(take());
    EXPECT_TRUE(neighbours.forgotten.empty());
    for (std::size_t i = 1; i < NeighbourRoom::unitsBetweenLooks; ++i) {
        ASSERT_TRUE(take());
    }
    neighbours.inUse = NeighbourRoom::mostEntries + 5;
    EXPECT_TRUE(take());
    ASSERT_EQ(neighbours.forgotten.size(), 10U);
    EXPECT_EQ(neighbours.forgotten.front(), 1U);
}

TEST_F(NeighbourRoomTest, WithoutRightsItIsTriedAgainUntilTheSystemHasGivenEntriesUp) {
    neighbours.mayForget = false;
    neighbours.inUse = NeighbourRoom::mostEntries;
    room.release(1, 3);
    EXPECT_FALSE(take());
    runLoop.advanceBy(NeighbourRoom::timeBetweenLooks);
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(take());
    neighbours.inUse = 100;
    runLoop.advanceBy(NeighbourRoom::timeBetweenLooks);
    EXPECT_EQ(calls, 2);
    EXPECT_TRUE(take());
}

TEST_F(NeighbourRoomTest, AfterAMinuteTheRunGoesOn) {
    neighbours.mayForget = false;
    neighbours.inUse = NeighbourRoom::mostEntries;
    int refusals = 0;
    while (!take()) {
        ++refusals;
    }
    EXPECT_EQ(refusals, NeighbourRoom::mostLooks);
    EXPECT_EQ(NeighbourRoom::mostLooks * NeighbourRoom::timeBetweenLooks, std::chrono::minutes(1));
    for (std::size_t i = 1; i < NeighbourRoom::unitsBetweenLooks; ++i) {
        ASSERT_TRUE(take());
    }
    EXPECT_FALSE(take()) << "and waits again the next time";
}

TEST_F(NeighbourRoomTest, NobodyIsCalledWhoWaitsNoLonger) {
    neighbours.mayForget = false;
    neighbours.inUse = NeighbourRoom::mostEntries;
    EXPECT_FALSE(take());
    room.stopWaiting();
    runLoop.advanceBy(std::chrono::minutes(2));
    EXPECT_EQ(calls, 0);
}

} // namespace kx
