// A run waits while this host has no room for more units in its neighbour table.

#include "RunFixture.h"
#include "conversation/PlanRun.h"

#include <chrono>

namespace kx {

namespace {

class PlanRunRoomTest : public RunTest {
protected:
    static constexpr auto done = RowState::done;
    static constexpr auto untouched = RowState::untouched;

    static std::vector<WantedRow> rows(std::uint32_t count) {
        std::vector<WantedRow> all;
        for (std::uint32_t number = 1; number <= count; ++number) {
            all.push_back(row(number + 1, number, name("N" + std::to_string(number))));
        }
        return all;
    }
};

} // namespace

TEST_F(PlanRunRoomTest, AUnitWaitsWhileTheHostHasNoRoomForItsAddress) {
    addUnits(1, 3);
    neighboursInUse = NeighbourRoom::mostEntries;
    begin(planOf(rows(3)));
    runLoop.advanceBy(std::chrono::seconds(20));
    EXPECT_EQ(unitsWithCommands(), 0U);
    EXPECT_FALSE(hasEnded);
    neighboursInUse = 0;
    finish();
    EXPECT_EQ(states(), (States{done, done, done}));
}

TEST_F(PlanRunRoomTest, TheAddressesOfUnitsThatAreDoneMakeRoomForOthers) {
    const auto count = static_cast<std::uint32_t>(NeighbourRoom::unitsBetweenLooks + 20);
    addUnits(1, count);
    begin(planOf(rows(count)));
    while (unitsWithCommands() < 20) {
        turn();
    }
    neighboursInUse = NeighbourRoom::mostEntries;
    for (int i = 0; i < 1000; ++i) {
        turn();
    }
    EXPECT_EQ(unitsWithCommands(), NeighbourRoom::unitsBetweenLooks);
    ASSERT_EQ(forgotten.size(), NeighbourRoom::unitsBetweenLooks);
    EXPECT_EQ(forgotten.front(), address(1));
    neighboursInUse = 0;
    finish();
    EXPECT_EQ(run->plan().sum(RowState::done), count);
}

TEST_F(PlanRunRoomTest, AnInterruptionEndsARunThatWaitsForRoom) {
    addUnits(1, 3);
    neighboursInUse = NeighbourRoom::mostEntries;
    begin(planOf(rows(3)));
    runLoop.advanceBy(std::chrono::seconds(5));
    run->interrupt();
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(states(), (States{untouched, untouched, untouched}));
    runLoop.advanceBy(std::chrono::minutes(2));
    EXPECT_EQ(unitsWithCommands(), 0U);
}

} // namespace kx
