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

    // A table that gives every unit a name.
    static std::vector<WantedRow> names(std::uint32_t count) {
        std::vector<WantedRow> rows;
        for (std::uint32_t number = 1; number <= count; ++number) {
            rows.push_back(row(number + 1, number, name("N" + std::to_string(number))));
        }
        return rows;
    }

    // The kinds of the journal's entries: commands as themselves.
    std::vector<std::string> journalLines() const {
        std::vector<std::string> lines;
        for (const JournalEntry& entry : journal.entries) {
            if (const auto* const command = std::get_if<JournalledCommand>(&entry)) {
                lines.push_back(command->command);
            } else if (const auto* const outcome = std::get_if<JournalledOutcome>(&entry)) {
                lines.push_back(outcome->state == ChangeState::done ? "done" : "not done");
            } else {
                const auto& binding = std::get<JournalledBinding>(entry);
                lines.push_back((binding.isMade ? "bind " : "gone ") + binding.address);
            }
        }
        return lines;
    }
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

// --- Faults of units ---

TEST_F(PlanRunTest, NothingBeginsAfterASilentUnitAndTheOnesUnderWayAreFinished) {
    addUnits(1, 30);
    unit(3).commandsUntilSilence = 0;
    apply(names(30));
    EXPECT_EQ(states()[2], RowState::silent);
    EXPECT_EQ(reason(2).objection, RowObjection::fellSilent);
    EXPECT_EQ(reason(2).parameter, UnitParameter::unitID);
    EXPECT_EQ(run->plan().sum(RowState::silent), 1U);
    EXPECT_EQ(run->plan().sum(done) + run->plan().sum(untouched), 29U);
    EXPECT_EQ(unitsWithCommands(), run->plan().sum(done));
}

TEST_F(PlanRunTest, AFirstUnitThatIsSilentLeavesAllOthersUntouched) {
    addUnits(1, 5);
    unit(1).commandsUntilSilence = 0;
    apply(names(5));
    EXPECT_EQ(states(), (States{RowState::silent, untouched, untouched, untouched, untouched}));
    EXPECT_EQ(reason(1).objection, RowObjection::othersFailed);
    EXPECT_EQ(reason(1).otherLine, 2U);
}

TEST_F(PlanRunTest, AUnitThatTookSomeValuesAndFellSilentIsHalf) {
    addUnits(1, 1);
    unit(1).commandsUntilSilence = 1;
    apply({row(2, 1, {{UnitParameter::unitID, "A"}, {UnitParameter::devicePortNumber, "4000"}})});
    EXPECT_EQ(states(), States{RowState::half});
    EXPECT_EQ(reason(0).objection, RowObjection::fellSilent);
}

TEST_F(PlanRunTest, AUnitThatAcknowledgesAndDoesNotTakeAValueIsNotDone) {
    addUnits(1, 2);
    unit(1).ignored = "U";
    const auto begun = runLoop.now();
    apply({row(2, 1, name("A"))});
    EXPECT_EQ(states(), States{refused});
    EXPECT_EQ(reason(0).objection, RowObjection::notTaken);
    EXPECT_EQ(reason(0).shown, "42");
    EXPECT_LT(runLoop.now() - begun, 4s); // it has said that it got the command
    apply({row(2, 1,
               {{UnitParameter::unitID, "A"}, {UnitParameter::destinationPortNumber, "3523"}})});
    EXPECT_EQ(states(), States{RowState::half});
}

TEST_F(PlanRunTest, AUnitThatShowsAValueThatNobodyWantedIsHalf) {
    addUnits(1, 1);
    unit(1).misread = "T";
    apply({row(2, 1, {{UnitParameter::destinationPortNumber, "3523"}})});
    EXPECT_EQ(states(), States{RowState::half});
    EXPECT_EQ(reason(0).objection, RowObjection::different);
    EXPECT_EQ(reason(0).shown, "3459");
}

TEST_F(PlanRunTest, AUnitThatDoesNotAnswerForItsNewAddressIsHalf) {
    addUnits(1, 2);
    unit(1).answersARP = false;
    apply({row(2, 1, move(9)), row(3, 2, name("A"))});
    EXPECT_EQ(states(), (States{RowState::half, untouched}));
    EXPECT_EQ(reason(0).objection, RowObjection::foreignAnswer);
    EXPECT_TRUE(bindings.entries.empty());
}

TEST_F(PlanRunTest, ACommandThatTheNetworkRefusesRefusesItsRow) {
    addUnits(1, 2);
    begin(planOf({row(2, 1, {})}));
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    apply({row(2, 1, name("A")), row(3, 2, name("B"))}, {.keepsGoing = true});
    EXPECT_EQ(states(), (States{refused, done}));
    EXPECT_EQ(reason(0).objection, RowObjection::notSent);
    EXPECT_TRUE(reason(0).failure.has_value());
}

TEST_F(PlanRunTest, ManyCommandsThatTheNetworkRefusesAtOnceEndEveryRow) {
    constexpr std::uint32_t count = 20'000;
    addUnits(1, count);
    const UnitPlan plan = planOf(names(count));
    for (std::uint32_t i = 0; i < count; ++i) {
        systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    }
    begin(plan, {.keepsGoing = true});
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(run->plan().sum(refused), count);
}

TEST_F(PlanRunTest, WhenNobodyGivesRightsNoOtherMoveAsksForThem) {
    addUnits(1, 4);
    bindings.answerToBind = {.state = ARPEntryState::dismissed};
    apply({row(2, 1, move(11)), row(3, 2, move(12)), row(4, 3, move(13)), row(5, 4, name("A"))},
          {.keepsGoing = true});
    EXPECT_EQ(states(), (States{refused, refused, refused, done}));
    EXPECT_EQ(reason(2).objection, RowObjection::notBound);
    EXPECT_EQ(bindings.asked, 1);
}

TEST_F(PlanRunTest, AnEntryThatCannotBeTakenOutIsTold) {
    addUnits(1, 1);
    bindings.answerToRelease = {.state = ARPEntryState::ended, .code = 1};
    apply({row(2, 1, move(9))});
    EXPECT_TRUE(run->plan().rows[0].isStillBound);
    EXPECT_EQ(bindingsLeft(journal.entries).size(), 1U);
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

// --- The journal ---

TEST_F(PlanRunTest, TheJournalTellsTheOldValueBeforeEachCommandAndTheOutcomeAfterIt) {
    addUnits(1, 1);
    apply({row(2, 1,
               {{UnitParameter::unitID, "A"}, {UnitParameter::internalIPAddress, address(9)}})});
    EXPECT_EQ(journalLines(),
              (std::vector<std::string>{"^^IdU41", "done", "^^IdIC0A80209", "bind 192.168.2.9",
                                        "gone 192.168.2.9", "done"}));
    const auto& first = std::get<JournalledCommand>(journal.entries[0]);
    EXPECT_EQ(first.from, "42");
    EXPECT_EQ(first.fromUnitID, (UnitIDBytes{0, 0, 0, 0, 0, 42}));
    EXPECT_EQ(first.to, "A");
    EXPECT_EQ(first.unit.line, 2U);
    EXPECT_EQ(first.unit.rowSerialNumber, serial(1));
    EXPECT_EQ(first.unit.serialNumber, serial(1));
    EXPECT_EQ(first.unit.hardwareAddress, hardware(1));
    EXPECT_TRUE(violations.empty());
}

TEST_F(PlanRunTest, AJournalThatFailsEndsTheRunWhereverItFails) {
    for (std::size_t written = 0; written < 40; ++written) {
        for (const bool isSlow : {false, true}) {
            removeUnits();
            addUnits(1, 10);
            journal.clear();
            journal.entriesUntilFailure = written;
            journal.isSlow = isSlow;
            std::vector<WantedRow> rows;
            for (std::uint32_t number = 1; number <= 10; ++number) {
                rows.push_back(row(number + 1, number,
                                   {{UnitParameter::unitID, "N"},
                                    {UnitParameter::internalIPAddress, address(100 + number)},
                                    {UnitParameter::devicePortNumber, "4000"}}));
            }
            apply(rows, {.keepsGoing = true});
            EXPECT_TRUE(run->hasJournalFailed());
            EXPECT_LE(static_cast<std::size_t>(commands()), written);
            EXPECT_GT(run->plan().sum(untouched), 0U);
            EXPECT_EQ(run->plan().sum(RowState::planned), 0U);
            EXPECT_TRUE(bindings.entries.empty());
        }
    }
}

TEST_F(PlanRunTest, ARowThatTheJournalStoppedBeforeItsFirstCommandIsUntouched) {
    addUnits(1, 2);
    journal.entriesUntilFailure = 0;
    apply(names(2), {.keepsGoing = true});
    EXPECT_EQ(states(), (States{untouched, untouched}));
    EXPECT_EQ(reason(0).objection, RowObjection::journalFailed);
    EXPECT_EQ(commands(), 0);
}

TEST_F(PlanRunTest, ASlowJournalHoldsEveryCommandBack) {
    addUnits(1, 30);
    journal.isSlow = true;
    apply(names(30));
    EXPECT_EQ(states(), States(30, done));
    EXPECT_TRUE(violations.empty());
}

// --- Interruptions ---

TEST_F(PlanRunTest, AnInterruptionFinishesTheUnitsUnderWayAndLeavesTheOthersUntouched) {
    addUnits(1, 30);
    std::vector<WantedRow> rows;
    for (std::uint32_t number = 1; number <= 30; ++number) {
        rows.push_back(
            row(number + 1, number,
                {{UnitParameter::unitID, "N"}, {UnitParameter::devicePortNumber, "4000"}}));
    }
    begin(planOf(rows));
    while (run->ended() < 3) {
        turn();
    }
    run->interrupt();
    EXPECT_FALSE(hasEnded);
    finish();
    EXPECT_EQ(run->plan().sum(done) + run->plan().sum(untouched), 30U);
    EXPECT_GE(run->plan().sum(done), 8U);
    EXPECT_EQ(reason(29).objection, RowObjection::interrupted);
    EXPECT_EQ(unitsWithCommands(), run->plan().sum(done));
}

TEST_F(PlanRunTest, ASecondInterruptionSendsNoFurtherCommandToTheUnitsUnderWay) {
    addUnits(1, 2);
    unit(1).lost = "U";
    begin(planOf(
        {row(2, 1, {{UnitParameter::unitID, "N"}, {UnitParameter::devicePortNumber, "4000"}}),
         row(3, 2, name("A"))}));
    runLoop.advanceBy(1s);
    run->interrupt();
    run->interrupt();
    EXPECT_FALSE(hasEnded);
    const auto begun = runLoop.now();
    finish();
    EXPECT_LE(runLoop.now() - begun, 2100ms); // the command under way is read back
    EXPECT_EQ(states(), (States{refused, untouched}));
    EXPECT_EQ(unit(1).commands, 0);
}

TEST_F(PlanRunTest, AnInterruptionOfTheSearchSendsNothing) {
    addUnits(1, 2);
    begin(planOf({row(2, 1, move(9)), row(3, 2, name("A"))}));
    EXPECT_TRUE(run->isSearching());
    run->interrupt();
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(states(), (States{untouched, untouched}));
    EXPECT_EQ(commands(), 0);
}

TEST_F(PlanRunTest, ARunThatIsGivenUpSendsNothingAnyMore) {
    addUnits(1, 9);
    journal.isSlow = true;
    begin(planOf(names(9)));
    run.reset();
    runLoop.advanceBy(5s);
    EXPECT_EQ(commands(), 0);
}

} // namespace kx
