#include "conversation/PlanRun.h"

#include "RunFixture.h"

#include <chrono>

namespace kx {

namespace {

class PlanRunTest : public RunTest {
protected:
    static constexpr auto done = RowState::done;
    static constexpr auto refused = RowState::refused;
    static constexpr auto untouched = RowState::untouched;
};

} // namespace

// --- Good runs ---

TEST_F(PlanRunTest, ARowIsDoneWhenItsUnitShowsEveryValue) {
    addUnits(1, 1);
    apply({row(2, 1,
               {{UnitParameter::serialNumber, serial(9)},
                {UnitParameter::unitID, "RACK7A"},
                {UnitParameter::devicePortNumber, "4000"}})});
    EXPECT_EQ(states(), States{done});
    EXPECT_EQ(unit(1).serialNumber(), serial(9));
    EXPECT_EQ(unit(1).settings.devicePort, (Bytes{0x0F, 0xA0}));
    EXPECT_EQ(run->plan().rows[0].changes[0].state, ChangeState::done);
    EXPECT_EQ(run->plan().rows[0].changes[0].shown, serial(9));
    EXPECT_EQ(run->plan().rows[0].serialNumber, serial(1));
    EXPECT_EQ(run->ended(), 1U);
    EXPECT_TRUE(violations.empty());
}

TEST_F(PlanRunTest, ValuesThatAreShownAlreadyAreNeverSent) {
    addUnits(1, 2);
    apply({row(2, 1, {{UnitParameter::unitID, "42"}}),
           row(3, 2, {{UnitParameter::unitID, "42"}, {UnitParameter::devicePortNumber, "4000"}})});
    EXPECT_EQ(states(), (States{RowState::unchanged, done}));
    EXPECT_EQ(commands(), 1);
    EXPECT_EQ(run->total(), 1U);
}

TEST_F(PlanRunTest, ATableThatIsAppliedAgainChangesNothing) {
    addUnits(1, 5);
    apply(names(5));
    const int before = commands();
    apply(names(5));
    EXPECT_EQ(states(), States(5, RowState::unchanged));
    EXPECT_EQ(commands(), before);
}

TEST_F(PlanRunTest, OneUnitIsChangedAloneAndThenEightAtOnce) {
    addUnits(1, 20);
    isHeldBack = true;
    begin(planOf(names(20)));
    EXPECT_EQ(
        std::ranges::count_if(sent(), [](const auto& line) { return line.ends_with("^^IdU4E31"); }),
        1);
    runLoop.advanceBy(100ms);
    EXPECT_TRUE(sent().empty());
    isHeldBack = false;
    while (unit(1).commands == 0 || run->ended() == 0) {
        turn();
        isHeldBack = unit(1).commands > 0 && run->ended() > 0;
    }
    std::set<std::string> targets;
    for (const auto& line : sent()) {
        targets.insert(line.substr(0, line.find(' ')));
    }
    EXPECT_EQ(targets.size(), 1U + 8U);
    isHeldBack = false;
    finish();
    EXPECT_EQ(states(), States(20, done));
}

TEST_F(PlanRunTest, NoUnitsAtOnceCountsAsOne) {
    addUnits(1, 3);
    apply(names(3), {.inFlight = 0});
    EXPECT_EQ(states(), States(3, done));
}

TEST_F(PlanRunTest, AnEmptyTableEndsAtOnce) {
    apply({});
    EXPECT_TRUE(run->plan().rows.empty());
}

// --- The whole is checked before the first command ---

TEST_F(PlanRunTest, NothingIsSentWhenARowIsRefusedOrSilent) {
    addUnits(1, 3);
    unit(3).isSilent = true;
    apply({row(2, 1, name("A")), row(3, 2, move(1)), row(4, 3, name("B"))});
    EXPECT_EQ(states(), (States{untouched, refused, RowState::silent}));
    EXPECT_EQ(reason(0).objection, RowObjection::othersRefused);
    EXPECT_EQ(commands(), 0);
}

TEST_F(PlanRunTest, RowsThatAreRightGoOnWhenTheRunKeepsGoing) {
    addUnits(1, 3);
    unit(3).isSilent = true;
    apply({row(2, 1, name("A")), row(3, 2, move(1)), row(4, 3, name("B"))}, {.keepsGoing = true});
    EXPECT_EQ(states(), (States{done, refused, RowState::silent}));
    EXPECT_EQ(commands(), 1);
}

TEST_F(PlanRunTest, ARingIsRefusedAndTheOthersAreUntouched) {
    addUnits(1, 3);
    apply({row(2, 1, move(2)), row(3, 2, move(1)), row(4, 3, move(9))});
    EXPECT_EQ(states(), (States{refused, refused, untouched}));
    EXPECT_EQ(bindings.asked, 0);
    EXPECT_EQ(commands(), 0);
}

TEST_F(PlanRunTest, AnAddressThatAnotherHostHoldsRefusesItsRowBeforeTheFirstCommand) {
    addUnits(1, 2);
    foreignHosts[0xC0A80209U] = "AA:BB:CC:DD:EE:FF";
    apply({row(2, 1, name("A")), row(3, 2, move(9))});
    EXPECT_EQ(states(), (States{untouched, refused}));
    EXPECT_EQ(reason(1).objection, RowObjection::heldByHost);
    EXPECT_EQ(reason(1).value, address(9));
    EXPECT_EQ(reason(1).others, std::vector<std::string>{"AA:BB:CC:DD:EE:FF"});
    EXPECT_EQ(commands(), 0);
}

TEST_F(PlanRunTest, AnAddressOfWhichNothingIsKnownRefusesItsRow) {
    addUnits(1, 2);
    bindings.entries[0xC0A80209U] = "AA:BB:CC:DD:EE:FF"; // an entry that somebody has made by hand
    apply({row(2, 1, name("A")), row(3, 2, move(9))}, {.keepsGoing = true});
    EXPECT_EQ(states(), (States{done, refused}));
    EXPECT_EQ(reason(1).objection, RowObjection::unknownHolder);
}

TEST_F(PlanRunTest, TwoHundredNewAddressesAreLookedAtAtOnce) {
    addUnits(1, 200);
    std::vector<WantedRow> rows;
    for (std::uint32_t number = 1; number <= 200; ++number) {
        rows.push_back(row(number + 1, number, move(1000 + number)));
    }
    begin(planOf(rows));
    const auto begun = runLoop.now();
    while (run->isSearching()) {
        EXPECT_EQ(commands(), 0);
        turn();
    }
    EXPECT_LT(runLoop.now() - begun, 5s);
    finish();
    EXPECT_EQ(states(), States(200, done));
    EXPECT_LT(runLoop.now() - begun, 10s);
    EXPECT_TRUE(bindings.entries.empty());
    EXPECT_TRUE(violations.empty());
}

// --- Order ---

TEST_F(PlanRunTest, AChainOfMovesIsCarriedOutFromItsEnd) {
    addUnits(1, 12);
    std::vector<WantedRow> rows;
    for (std::uint32_t number = 1; number <= 12; ++number) {
        rows.push_back(row(number + 1, number, move(number + 1)));
    }
    UnitPlan plan = planOf(rows);
    lostPercent = 30; // units take their commands at different times
    begin(std::move(plan));
    finish();
    EXPECT_EQ(states(), States(12, done));
    EXPECT_EQ(unit(1).address(), 0xC0A80202U);
    EXPECT_EQ(unit(12).address(), 0xC0A8020DU);
    EXPECT_TRUE(violations.empty());
}

TEST_F(PlanRunTest, AChainOfSerialNumbersIsCarriedOutFromItsEnd) {
    addUnits(1, 12);
    std::vector<WantedRow> rows;
    for (std::uint32_t number = 1; number <= 12; ++number) {
        rows.push_back(row(number + 1, number, rename(number + 1)));
    }
    UnitPlan plan = planOf(rows);
    lostPercent = 30; // units take their commands at different times
    begin(std::move(plan));
    finish();
    EXPECT_EQ(states(), States(12, done));
    EXPECT_EQ(unit(12).serialNumber(), serial(13));
    EXPECT_TRUE(violations.empty());
}

TEST_F(PlanRunTest, ARowWaitsForEveryRowThatGivesItSomething) {
    addUnits(1, 3);
    unit(3).lost = "S";
    apply({row(2, 1,
               {{UnitParameter::internalIPAddress, address(2)},
                {UnitParameter::serialNumber, serial(3)}}),
           row(3, 2, move(9)), row(4, 3, rename(9))},
          {.keepsGoing = true});
    EXPECT_EQ(states(), (States{refused, done, refused}));
    EXPECT_EQ(reason(0).objection, RowObjection::waitsForRefused);
    EXPECT_EQ(reason(0).otherLine, 4U);
    EXPECT_EQ(unit(1).commands, 0);
}

TEST_F(PlanRunTest, ARowWhoseAddressWasNotFreedIsRefused) {
    addUnits(1, 3);
    unit(2).lost = "I";
    apply({row(2, 1, move(2)), row(3, 2, move(9)), row(4, 3, name("A"))}, {.keepsGoing = true});
    EXPECT_EQ(states(), (States{refused, refused, done}));
    EXPECT_EQ(reason(1).objection, RowObjection::notTaken);
    EXPECT_EQ(reason(1).shown, address(2));
    EXPECT_EQ(reason(0).objection, RowObjection::waitsForRefused);
    EXPECT_EQ(reason(0).otherLine, 3U);
    EXPECT_EQ(unit(1).commands, 0);
}

// --- Losses ---

TEST_F(PlanRunTest, EveryRowIsDoneThoughAThirdOfAllDatagramsGetsLost) {
    addUnits(1, 200);
    std::vector<WantedRow> rows;
    for (std::uint32_t number = 1; number <= 200; ++number) {
        rows.push_back(row(number + 1, number,
                           {{UnitParameter::unitID, "N" + std::to_string(number)},
                            {UnitParameter::destinationPortNumber, "3522"},
                            {UnitParameter::devicePortNumber, "4000"}}));
    }
    lostPercent = 33;
    UnitPlan plan = planOf(rows);
    begin(std::move(plan));
    finish();
    EXPECT_EQ(run->plan().sum(done), 200U);
    EXPECT_TRUE(violations.empty());
}

// --- Size ---

TEST_F(PlanRunTest, TenThousandUnitsCostTenTimesOfAThousand) {
    const auto cost = [this](std::uint32_t count) {
        removeUnits();
        addUnits(1, count);
        std::vector<WantedRow> rows;
        for (std::uint32_t number = 1; number <= count; ++number) {
            rows.push_back(row(number + 1, number,
                               {{UnitParameter::unitID, "N"},
                                {UnitParameter::destinationPortNumber, "3522"},
                                {UnitParameter::devicePortNumber, "4000"}}));
        }
        begin(planOf(rows));
        const auto begun = std::chrono::steady_clock::now();
        const std::size_t before = systemCalls.count(Operation::sendTo);
        finish();
        EXPECT_EQ(run->plan().sum(done), count);
        // Three commands, and a request after each of them; after a new port one to each port. The
        // first command went out before.
        EXPECT_EQ(systemCalls.count(Operation::sendTo) - before, 7 * count - 1);
        return std::chrono::steady_clock::now() - begun;
    };
    const auto thousand = cost(1000);
    const auto tenThousand = cost(10'000);
    EXPECT_LT(tenThousand, 30 * thousand);
}

} // namespace kx
