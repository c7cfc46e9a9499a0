// What becomes of a run whose units, journal or user do not let it end as planned.

#include "RunFixture.h"

#include <chrono>

namespace kx {

namespace {

class PlanRunFaultsTest : public RunTest {
protected:
    static constexpr auto done = RowState::done;
    static constexpr auto refused = RowState::refused;
    static constexpr auto untouched = RowState::untouched;

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

// --- Faults of units ---

TEST_F(PlanRunFaultsTest, NothingBeginsAfterASilentUnitAndTheOnesUnderWayAreFinished) {
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

TEST_F(PlanRunFaultsTest, AFirstUnitThatIsSilentLeavesAllOthersUntouched) {
    addUnits(1, 5);
    unit(1).commandsUntilSilence = 0;
    apply(names(5));
    EXPECT_EQ(states(), (States{RowState::silent, untouched, untouched, untouched, untouched}));
    EXPECT_EQ(reason(1).objection, RowObjection::othersFailed);
    EXPECT_EQ(reason(1).otherLine, 2U);
}

TEST_F(PlanRunFaultsTest, AUnitThatTookSomeValuesAndFellSilentIsHalf) {
    addUnits(1, 1);
    unit(1).commandsUntilSilence = 1;
    apply({row(2, 1, {{UnitParameter::unitID, "A"}, {UnitParameter::devicePortNumber, "4000"}})});
    EXPECT_EQ(states(), States{RowState::half});
    EXPECT_EQ(reason(0).objection, RowObjection::fellSilent);
}

TEST_F(PlanRunFaultsTest, AUnitThatAcknowledgesAndDoesNotTakeAValueIsNotDone) {
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

TEST_F(PlanRunFaultsTest, AUnitThatShowsAValueThatNobodyWantedIsHalf) {
    addUnits(1, 1);
    unit(1).misread = "T";
    apply({row(2, 1, {{UnitParameter::destinationPortNumber, "3523"}})});
    EXPECT_EQ(states(), States{RowState::half});
    EXPECT_EQ(reason(0).objection, RowObjection::different);
    EXPECT_EQ(reason(0).shown, "3459");
}

TEST_F(PlanRunFaultsTest, AUnitIDThatIsNoTextAndBecomesAnotherOneThatIsNoTextIsHalf) {
    addUnits(1, 2);
    for (const std::uint32_t number : {1U, 2U}) {
        unit(number).settings.unitID = {0xFF, 0xFE, 0, 0, 0, 1};
    }
    unit(1).misread = "U";
    unit(2).ignored = "U";
    apply({row(2, 1, name("\u00E9")), row(3, 2, name("A"))}, {.keepsGoing = true});
    EXPECT_EQ(reason(1).objection, RowObjection::notTaken);
    EXPECT_EQ(reason(1).shown, "FFFE00000001");
    EXPECT_EQ(states(), (States{RowState::half, refused}));
    EXPECT_EQ(reason(0).objection, RowObjection::different);
    EXPECT_EQ(reason(0).shown, "C3E900000000");
}

TEST_F(PlanRunFaultsTest, AUnitThatNeverTellsAValueMayHaveTakenIt) {
    addUnits(1, 1);
    unit(1).isSparse = true;
    apply({row(2, 1, {{UnitParameter::devicePortNumber, "4000"}})});
    EXPECT_EQ(states(), States{RowState::half});
    EXPECT_EQ(reason(0).objection, RowObjection::different);
    EXPECT_EQ(reason(0).shown, "");
    EXPECT_EQ(run->plan().rows[0].changes[0].state, ChangeState::different);
}

TEST_F(PlanRunFaultsTest, AUnitThatDoesNotAnswerForItsNewAddressIsHalf) {
    addUnits(1, 2);
    unit(1).answersARP = false;
    apply({row(2, 1, move(9)), row(3, 2, name("A"))});
    EXPECT_EQ(states(), (States{RowState::half, untouched}));
    EXPECT_EQ(reason(0).objection, RowObjection::foreignAnswer);
    EXPECT_TRUE(bindings.entries.empty());
}

TEST_F(PlanRunFaultsTest, WhoeverAnswersForTheNewAddressInTheUnitsPlaceIsNamed) {
    addUnits(1, 1);
    unit(1).answersARP = false;
    begin(planOf({row(2, 1, move(9))}));
    for (int step = 0; step < 1000 && commands() == 0; ++step) {
        runLoop.advanceBy(1ms);
    }
    foreignHosts[PlayedUnit::numberOf(octetsOf(9))] = "AA:BB:CC:DD:EE:FF";
    finish();
    EXPECT_EQ(states(), States{RowState::half});
    EXPECT_EQ(reason(0).objection, RowObjection::foreignAnswer);
    EXPECT_EQ(reason(0).others, std::vector<std::string>{"AA:BB:CC:DD:EE:FF"});
}

TEST_F(PlanRunFaultsTest, ACommandThatTheNetworkRefusesRefusesItsRow) {
    addUnits(1, 2);
    begin(planOf({row(2, 1, {})}));
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    apply({row(2, 1, name("A")), row(3, 2, name("B"))}, {.keepsGoing = true});
    EXPECT_EQ(states(), (States{refused, done}));
    EXPECT_EQ(reason(0).objection, RowObjection::notSent);
    EXPECT_TRUE(reason(0).failure.has_value());
}

TEST_F(PlanRunFaultsTest, ACommandThatTheNetworkTookOnceMayHaveArrived) {
    addUnits(1, 1);
    isHeldBack = true;
    begin(planOf(names(1)));
    runLoop.advanceBy(2900ms);
    systemCalls.failNext(Operation::sendTo, ENETUNREACH); // when the command is begun again
    finish();
    EXPECT_EQ(states(), States{RowState::silent});
    EXPECT_EQ(reason(0).objection, RowObjection::fellSilent);
    EXPECT_EQ(revertedRows(journal.entries).rows.size(), 1U);
}

TEST_F(PlanRunFaultsTest, AMoveThatWasCommandedOnceMayHaveBeenMadeThoughRightsAreGoneNow) {
    addUnits(1, 2);
    unit(1).lost = "I";
    unit(2).answersARP = false;
    for (const std::uint32_t number : {1U, 2U}) {
        bindings.answerToBind = {.state = ARPEntryState::started};
        bindings.asked = 0;
        begin(planOf({row(2, number, move(7 + number))}));
        while (bindings.asked == 0) {
            turn();
        }
        bindings.answerToBind = {.state = ARPEntryState::dismissed};
        finish();
        EXPECT_GT(bindings.asked, 1);
        EXPECT_EQ(states(), States{number == 1 ? refused : RowState::half});
        EXPECT_EQ(reason(0).objection,
                  number == 1 ? RowObjection::notTaken : RowObjection::foreignAnswer);
        EXPECT_EQ(revertedRows(journal.entries).rows.size(), number);
    }
}

TEST_F(PlanRunFaultsTest, ManyCommandsThatTheNetworkRefusesAtOnceEndEveryRow) {
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

TEST_F(PlanRunFaultsTest, WhenNobodyGivesRightsNoOtherMoveAsksForThem) {
    addUnits(1, 4);
    for (const ARPEntryState state : {ARPEntryState::rightsNotGiven, ARPEntryState::dismissed,
                                      ARPEntryState::cannotRun, ARPEntryState::ended}) {
        bindings.answerToBind = {.state = state, .code = 1};
        bindings.asked = 0;
        apply({row(2, 1, move(11)), row(3, 2, move(12)), row(4, 3, move(13)), row(5, 4, name("A"))},
              {.keepsGoing = true});
        EXPECT_EQ(states()[2], refused);
        EXPECT_EQ(reason(2).objection, RowObjection::notBound);
        EXPECT_EQ(run->plan().sum(refused), 3U);
        EXPECT_EQ(bindings.asked, state == ARPEntryState::ended ? 3 : 1)
            << "a tool may fail for one address alone";
    }
}

TEST_F(PlanRunFaultsTest, AUnitWhoseMoveGetsNoRightsAfterItTookOtherValuesIsHalf) {
    addUnits(1, 1);
    bindings.answerToBind = {.state = ARPEntryState::dismissed};
    apply({row(2, 1,
               {{UnitParameter::unitID, "A"}, {UnitParameter::internalIPAddress, address(9)}})});
    EXPECT_EQ(states(), States{RowState::half});
    EXPECT_EQ(reason(0).objection, RowObjection::notBound);
}

TEST_F(PlanRunFaultsTest, ATwinThatAnswersMeanwhileGetsNoCommand) {
    addUnits(1, 1);
    SampleUnit twin = unit(1).settings;
    twin.internalMAC = sixBytes(0x02, 9);
    twin.internalIP = octetsOf(9);
    const Edits edits{{UnitParameter::unitID, "A"}, {UnitParameter::devicePortNumber, "4000"}};
    journal.isSlow = true;
    begin(planOf({row(2, 1, edits)}));
    receive(twin.reply(), PlayedUnit::numberOf(twin.internalIP));
    finish();
    EXPECT_EQ(states(), States{refused});
    EXPECT_EQ(reason(0).objection, RowObjection::twinAnswered);
    EXPECT_EQ(commands(), 0);
    journal.isSlow = false;
    begin(planOf({row(2, 1, edits)}));
    receive(twin.reply(), PlayedUnit::numberOf(twin.internalIP));
    finish();
    EXPECT_EQ(states(), States{RowState::half});
    EXPECT_EQ(reason(0).objection, RowObjection::twinAnswered);
    EXPECT_EQ(commands(), 1);
}

TEST_F(PlanRunFaultsTest, ARowThatWaitsForAMoveWithoutRightsIsRefused) {
    addUnits(1, 3);
    bindings.answerToBind = {.state = ARPEntryState::dismissed};
    apply({row(2, 1, move(11)), row(3, 2, move(12)), row(4, 3, move(2))}, {.keepsGoing = true});
    EXPECT_EQ(states(), States(3, refused));
    EXPECT_EQ(reason(2).objection, RowObjection::waitsForRefused);
    EXPECT_EQ(reason(2).otherLine, 3U);
}

TEST_F(PlanRunFaultsTest, AnEntryThatCannotBeTakenOutIsTold) {
    addUnits(1, 1);
    bindings.answerToRelease = {.state = ARPEntryState::ended, .code = 1};
    apply({row(2, 1, move(9))});
    EXPECT_TRUE(run->plan().rows[0].isStillBound);
    EXPECT_EQ(bindingsLeft(journal.entries).size(), 1U);
}

// --- The journal ---

TEST_F(PlanRunFaultsTest, TheJournalTellsTheOldValueBeforeEachCommandAndTheOutcomeAfterIt) {
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

TEST_F(PlanRunFaultsTest, AJournalThatFailsEndsTheRunWhereverItFails) {
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

TEST_F(PlanRunFaultsTest, ARowThatTheJournalStoppedBeforeItsFirstCommandIsUntouched) {
    addUnits(1, 2);
    journal.entriesUntilFailure = 0;
    apply(names(2), {.keepsGoing = true});
    EXPECT_EQ(states(), (States{untouched, untouched}));
    EXPECT_EQ(reason(0).objection, RowObjection::journalFailed);
    EXPECT_EQ(commands(), 0);
}

TEST_F(PlanRunFaultsTest, ARowThatWaitsForOneThatTheJournalStoppedIsUntouchedToo) {
    addUnits(1, 2);
    journal.entriesUntilFailure = 0;
    apply({row(2, 1, move(2)), row(3, 2, move(9))}, {.keepsGoing = true});
    EXPECT_EQ(states(), (States{untouched, untouched}));
    EXPECT_EQ(reason(0).objection, RowObjection::journalFailed);
}

TEST_F(PlanRunFaultsTest, AJournalThatFailsAfterAnInterruptionIsToldWhereItLeftAUnitHalf) {
    addUnits(1, 1);
    journal.entriesUntilFailure = 2; // a command and its outcome
    begin(planOf(
        {row(2, 1, {{UnitParameter::unitID, "A"}, {UnitParameter::devicePortNumber, "4000"}})}));
    run->interrupt();
    finish();
    EXPECT_EQ(states(), States{RowState::half});
    EXPECT_EQ(reason(0).objection, RowObjection::journalFailed);
}

TEST_F(PlanRunFaultsTest, ASlowJournalHoldsEveryCommandBack) {
    addUnits(1, 30);
    journal.isSlow = true;
    apply(names(30));
    EXPECT_EQ(states(), States(30, done));
    EXPECT_TRUE(violations.empty());
}

// --- Interruptions ---

TEST_F(PlanRunFaultsTest, AnInterruptionFinishesTheUnitsUnderWayAndLeavesTheOthersUntouched) {
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

TEST_F(PlanRunFaultsTest, ASecondInterruptionSendsNoFurtherCommandToTheUnitsUnderWay) {
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

TEST_F(PlanRunFaultsTest, AnInterruptionOfTheSearchSendsNothing) {
    addUnits(1, 2);
    begin(planOf({row(2, 1, move(9)), row(3, 2, name("A"))}));
    EXPECT_TRUE(run->isSearching());
    run->interrupt();
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(states(), (States{untouched, untouched}));
    EXPECT_EQ(commands(), 0);
}

TEST_F(PlanRunFaultsTest, ARunThatIsGivenUpSendsNothingAnyMore) {
    addUnits(1, 9);
    journal.isSlow = true;
    begin(planOf(names(9)));
    run.reset();
    runLoop.advanceBy(5s);
    EXPECT_EQ(commands(), 0);
}

} // namespace kx
