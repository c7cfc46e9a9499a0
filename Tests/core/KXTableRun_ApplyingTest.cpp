// Apply and Stop.

#include "KXTableRun.h"
#include "TableRunFixture.h"

#include <algorithm>

namespace kx {

namespace {

class TableApplyingTest : public TableRunTest {};

} // namespace

TEST_F(TableApplyingTest, EveryUnitShowsItsRowAndEveryCommandWasInTheJournalBefore) {
    addUnits(1, 12);
    openAndAsk(table(1, 12));
    applyAndWait();
    EXPECT_EQ(tableRun.stage(), Stage::ended);
    EXPECT_EQ(states(), Texts(24, "✓ Done"));
    EXPECT_EQ(tableRun.heading(), "Done: 12, unchanged: 0, refused: 0, not begun: 0, half "
                                  "configured: 0, without an answer: 0.");
    EXPECT_FALSE(tableRun.meansTrouble());
    EXPECT_EQ(unit(12).settings.unitID, (Bytes{'R', '1', '2', 0, 0, 0}));
    EXPECT_EQ(unit(12).settings.destinationPort, (Bytes{0x0D, 0xC1}));
    EXPECT_EQ(violations, std::set<std::string>{});
    EXPECT_EQ(commands(), 24);
    EXPECT_EQ(lock.taken, 1);
    EXPECT_EQ(lock.held, 0);
}

TEST_F(TableApplyingTest, TheJournalLiesBesideTheFileAndHasEnded) {
    addUnits(1, 2);
    openAndAsk(table(1, 2));
    EXPECT_EQ(tableRun.journalLine(), "Apply keeps a journal in the folder “" + folder + "”.");
    applyAndWait();
    const std::string path = folder + "/kxctl-journal-20261122-183005.jsonl";
    EXPECT_EQ(journals(), Texts{path});
    EXPECT_EQ(tableRun.journalLine(), "The journal is “" + path + "”.");
    const auto read = readKeptJournal(path);
    ASSERT_TRUE(std::holds_alternative<KeptJournal>(read));
    EXPECT_TRUE(std::get<KeptJournal>(read).journal.hasEnded);
    EXPECT_EQ(std::get<KeptJournal>(read).journal.head.source, folder + "/rack.csv");
}

TEST_F(TableApplyingTest, WhereTheFolderTakesNoJournalItLiesAmongTheProgramsOwnFiles) {
    addUnits(1, 1);
    const std::string other = folder + "/gone";
    std::filesystem::create_directory(other);
    openAndAsk(file("gone/rack.csv", contentsOf(table(1, 1))));
    std::filesystem::remove_all(other);
    applyAndWait();
    EXPECT_EQ(states(), Texts(2, "✓ Done"));
    EXPECT_EQ(journals(stateFolder).size(), 1U);
    EXPECT_EQ(violations, std::set<std::string>{});
}

TEST_F(TableApplyingTest, WithoutAJournalNothingIsSent) {
    addUnits(1, 1);
    std::filesystem::create_directory(folder + "/gone");
    openAndAsk(file("gone/rack.csv", contentsOf(table(1, 1))));
    std::filesystem::remove_all(folder + "/gone");
    file("state", "a file where the folder should be");
    applyAndWait();
    EXPECT_EQ(tableRun.stage(), Stage::planned);
    EXPECT_TRUE(isIn(tableRun.heading(), "The journal cannot be written: "));
    EXPECT_TRUE(isIn(tableRun.heading(), "Nothing was sent."));
    EXPECT_EQ(commands(), 0);
    EXPECT_EQ(lock.held, 0);
}

TEST_F(TableApplyingTest, AUnitThatHasChangedSinceGetsNoCommandAndTheNewPlanIsShown) {
    addUnits(1, 2);
    openAndAsk(table(1, 2));
    unit(2).settings.destinationPort = {0x0D, 0xC2}; // 3522
    applyAndWait();
    EXPECT_EQ(tableRun.stage(), Stage::planned);
    EXPECT_TRUE(isIn(tableRun.heading(), "The units are not as they were: this is the new plan. "
                                         "Nothing was sent."));
    EXPECT_EQ(tableRun.cell(3, PlanColumn::before), "3522");
    EXPECT_EQ(commands(), 0);
    EXPECT_TRUE(journals().empty());
    applyAndWait();
    EXPECT_EQ(states(), Texts(4, "✓ Done")) << "now it is what the person has seen";
}

TEST_F(TableApplyingTest, AUnitThatFellSilentSinceHoldsTheOthersBack) {
    addUnits(1, 2);
    openAndAsk(table(1, 2));
    unit(2).isSilent = true;
    applyAndWait();
    EXPECT_EQ(tableRun.stage(), Stage::planned);
    EXPECT_EQ(tableRun.cell(2, PlanColumn::state), "○ No answer");
    EXPECT_EQ(commands(), 0);
}

TEST_F(TableApplyingTest, AUnitThatShowsItsRowMeanwhileIsLeftAloneAndTheOthersGoOn) {
    addUnits(1, 2);
    openAndAsk(table(1, 2));
    unit(2).settings.destinationPort = {0x0D, 0xC1};
    unit(2).settings.unitID = {'R', '2', 0, 0, 0, 0};
    applyAndWait();
    EXPECT_EQ(states(), (Texts{"✓ Done", "✓ Done", "= Unchanged"}));
    EXPECT_EQ(unit(2).commands, 0);
}

TEST_F(TableApplyingTest, AnotherRunKeepsThisOneOut) {
    addUnits(1, 1);
    openAndAsk(table(1, 1));
    lock.refusal = RunLockRefusal{.holder = 4711};
    applyAndWait();
    EXPECT_EQ(tableRun.stage(), Stage::planned);
    EXPECT_TRUE(
        isIn(tableRun.heading(), "Another run changes units from this host: process 4711."));
    EXPECT_EQ(commands(), 0);
    lock.refusal.reset();
    applyAndWait();
    EXPECT_EQ(states(), Texts(2, "✓ Done"));
    EXPECT_FALSE(tableRun.meansTrouble());
}

TEST_F(TableApplyingTest, TheProgressCountsUnitsAndTellsTheTimeThatIsLeft) {
    addUnits(1, 12);
    openAndAsk(table(1, 12));
    EXPECT_EQ(tableRun.progress().total, 0U);
    unit(2).lost = "U"; // it takes its time
    tableRun.apply();
    EXPECT_EQ(tableRun.heading(), "Asking the units again.");
    std::set<std::string> headings;
    std::set<std::string> seen;
    passUntil([&] {
        headings.insert(tableRun.heading());
        seen.insert(tableRun.progress().text);
        return tableRun.canChoose();
    });
    EXPECT_TRUE(headings.contains("Configuring the units."));
    EXPECT_TRUE(seen.contains("0 of 12 units"));
    EXPECT_TRUE(std::ranges::any_of(
        seen, [](const std::string& text) { return isIn(text, "of 12 units, about "); }));
    EXPECT_EQ(tableRun.progress().total, 0U);
}

TEST_F(TableApplyingTest, StopFinishesTheUnitsUnderWayAndLeavesTheOthersUntouched) {
    addUnits(1, 4);
    openAndAsk(table(1, 4));
    tableRun.apply();
    passUntil([this] { return commands() == 1; });
    EXPECT_TRUE(isIn(states().front(), "… Under way"));
    EXPECT_EQ(states().back(), "· To change");
    tableRun.stop();
    EXPECT_EQ(tableRun.heading(), "Stopping. The units under way are finished and read back.");
    EXPECT_FALSE(tableRun.canStop());
    settle();
    EXPECT_EQ(states(), (Texts{"✓ Done", "✓ Done", "– Not begun", "– Not begun", "– Not begun",
                               "– Not begun", "– Not begun", "– Not begun"}));
    EXPECT_EQ(commands(), 2);
    EXPECT_EQ(tableRun.cell(2, PlanColumn::reason), "Interrupted.");
    EXPECT_TRUE(tableRun.canRevert());
}

TEST_F(TableApplyingTest, StopBeforeTheFirstCommandSendsNoneAndKeepsThePlan) {
    addUnits(1, 2);
    openAndAsk(table(1, 2));
    tableRun.apply();
    tableRun.stop();
    settle();
    EXPECT_EQ(tableRun.stage(), Stage::planned);
    EXPECT_EQ(states(), Texts(4, "· To change"));
    EXPECT_TRUE(isIn(tableRun.heading(), "Stopped. Nothing was sent."));
    EXPECT_EQ(commands(), 0);
    EXPECT_EQ(lock.held, 0);
    applyAndWait();
    EXPECT_EQ(states(), Texts(4, "✓ Done"));
}

TEST_F(TableApplyingTest, WhoWaitsForTheEndIsToldWhenNothingIsUnderWay) {
    int told = 0;
    tableRun.stopThen([&] { ++told; });
    EXPECT_EQ(told, 1) << "nothing was under way";
    addUnits(1, 4);
    openAndAsk(table(1, 4));
    tableRun.apply();
    passUntil([this] { return commands() == 1; });
    tableRun.stopThen([&] { ++told; });
    EXPECT_EQ(told, 1);
    settle();
    EXPECT_EQ(told, 2);
    EXPECT_EQ(states().front(), "✓ Done");
}

TEST_F(TableApplyingTest, WhoStopsAndThenWaitsForTheEndLeavesNoUnitHalfConfigured) {
    addUnits(1, 1);
    openAndAsk(table(1, 1));
    tableRun.apply();
    passUntil([this] { return commands() == 1; });
    EXPECT_FALSE(tableRun.isStopping());
    tableRun.stop();
    EXPECT_TRUE(tableRun.isStopping());
    std::string told;
    tableRun.stopThen([&] { told += "first "; });
    tableRun.stopThen([&] { told += "second"; });
    settle();
    EXPECT_EQ(told, "first second");
    EXPECT_EQ(states(), Texts(2, "✓ Done"));
    EXPECT_FALSE(tableRun.needsALook());
    EXPECT_FALSE(tableRun.isStopping());
}

TEST_F(TableApplyingTest, ARunThatIsBrokenOffSendsAUnitUnderWayNoFurtherCommand) {
    addUnits(1, 1);
    openAndAsk(table(1, 1));
    tableRun.apply();
    passUntil([this] { return commands() == 1; });
    int told = 0;
    tableRun.stopThen([&] { ++told; });
    tableRun.breakOff();
    settle();
    EXPECT_EQ(told, 1);
    EXPECT_EQ(commands(), 1);
    EXPECT_EQ(tableRun.stage(), Stage::ended);
    EXPECT_TRUE(tableRun.needsALook());
}

TEST_F(TableApplyingTest, ARunWithARefusedUnitMeansTroubleAndOneThatWasStoppedDoesNot) {
    addUnits(1, 4);
    openAndAsk(table(1, 4));
    tableRun.apply();
    passUntil([this] { return commands() == 1; });
    tableRun.stop();
    settle();
    EXPECT_FALSE(tableRun.meansTrouble()) << tableRun.heading();
    bindings.answerToBind = {.state = ARPEntryState::rightsNotGiven};
    openAndAsk(moves(2, 3));
    applyAndWait();
    ASSERT_EQ(tableRun.stage(), Stage::ended);
    EXPECT_TRUE(tableRun.meansTrouble()) << tableRun.heading();
}

TEST_F(TableApplyingTest, AHalfConfiguredUnitStopsTheRunAndIsNamed) {
    addUnits(1, 3);
    unit(1).ignored = "T";
    openAndAsk(table(1, 3));
    applyAndWait();
    EXPECT_EQ(states(), (Texts{"✓ Done", "⚠ Other value", "– Not begun", "– Not begun",
                               "– Not begun", "– Not begun"}));
    EXPECT_TRUE(tableRun.meansTrouble());
    EXPECT_TRUE(isIn(tableRun.heading(), "Look at the units that are half configured"));
    const Texts sentences = tableRun.sentencesAboutUnitsToLookAt();
    ASSERT_EQ(sentences.size(), 1U);
    EXPECT_TRUE(sentences.front().starts_with("Line 2, " + serial(1) + ": "));
}

TEST_F(TableApplyingTest, WhoSaysNoToTheFirstMoveIsAskedForNoOther) {
    addUnits(1, 4);
    bindings.answerToBind = {.state = ARPEntryState::rightsNotGiven};
    openAndAsk(moves(1, 4));
    applyAndWait();
    EXPECT_EQ(bindings.asked, 1);
    EXPECT_EQ(commands(), 0);
    EXPECT_EQ(tableRun.stage(), Stage::ended);
    EXPECT_FALSE(tableRun.needsALook());
}

TEST_F(TableApplyingTest, EveryMoveOfThePlanIsDoneAndItsEntryTakenOutAgain) {
    addUnits(1, 4);
    openAndAsk(moves(1, 4));
    applyAndWait();
    EXPECT_EQ(states(), Texts(4, "✓ Done"));
    EXPECT_EQ(unit(4).settings.internalIP, octetsOf(104));
    EXPECT_EQ(bindings.asked, 4);
    EXPECT_TRUE(bindings.entries.empty());
    EXPECT_EQ(violations, std::set<std::string>{});
}

TEST_F(TableApplyingTest, AnEntryThatStaysIsSaidWithItsAddress) {
    addUnits(1, 1);
    bindings.answerToRelease = {.state = ARPEntryState::ended, .code = 1};
    openAndAsk(moves(1, 1));
    applyAndWait();
    EXPECT_TRUE(
        isIn(tableRun.cell(0, PlanColumn::reason),
             "The entry for " + address(101) + " could not be taken out of the ARP cache again."));
}

TEST_F(TableApplyingTest, WhatEndsInTheMiddleLeavesNoSocketAndNoLock) {
    addUnits(1, 4);
    const auto before = systemCalls.openDescriptors();
    {
        KXTableRun other({.session = {.runLoop = runLoop,
                                      .hostResolver = hostResolver,
                                      .systemCalls = systemCalls,
                                      .receiveBuffers = &receiveBuffers},
                          .now = [this] { return runLoop.now(); },
                          .utc = [] { return std::chrono::seconds(0); },
                          .wallClock = wallClock,
                          .interfaces = hostInterfaces,
                          .moves = services,
                          .lock = lock,
                          .writeFile = [](const std::string&,
                                          std::string_view) { return std::optional<Error>(); },
                          .stateFolder = stateFolder});
        other.open(table(1, 4));
        passUntil([&] { return other.canChoose(); });
        other.apply();
        passUntil([this] { return commands() == 1; });
        EXPECT_EQ(lock.held, 1);
    }
    EXPECT_EQ(systemCalls.openDescriptors(), before);
    EXPECT_EQ(lock.held, 0);
    EXPECT_EQ(runLoop.pendingCallCount(), 0U);
}

} // namespace kx
