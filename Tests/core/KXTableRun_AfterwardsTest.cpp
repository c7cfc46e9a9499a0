// What follows a run: Revert, the journal of a killed run, and Save Report.

#include "KXTableRun.h"
#include "TableRunFixture.h"

#include <cerrno>

namespace kx {

namespace {

class TableAfterwardsTest : public TableRunTest {
protected:
    // A journal of a run that was killed after it had sent this.
    std::string killedRun(const std::vector<JournalEntry>& entries) const {
        JournalLines lines;
        std::string text = JournalLines::head({.started = "2026-11-22T18:00:00Z", .source = "x"});
        for (const JournalEntry& entry : entries) {
            text += lines.entry(entry);
        }
        return file("kxctl-journal-20261122-180000.jsonl", text);
    }

    void saveReport() {
        savePanel.choice = folder + "/report.csv";
        tableRun.saveReport();
    }
};

} // namespace

TEST_F(TableAfterwardsTest, RevertShowsThePlanOfTheOldValuesAndApplyGivesThemBack) {
    addUnits(1, 2);
    openAndAsk(table(1, 2));
    EXPECT_FALSE(tableRun.canRevert());
    applyAndWait();
    const std::string path = journals().front();
    tableRun.revert();
    settle();
    EXPECT_EQ(tableRun.stage(), Stage::planned);
    EXPECT_EQ(tableRun.path(), path);
    EXPECT_EQ(row(0), (Texts{"2", serial(1), "destination Port number", "3521", "3520",
                             "· To change", ""}));
    EXPECT_EQ(row(1), (Texts{"2", serial(1), "unit ID", "R1", "42", "· To change", ""}));
    applyAndWait();
    EXPECT_EQ(states(), Texts(4, "✓ Done"));
    EXPECT_EQ(unit(1).settings.unitID, SampleUnit().unitID);
    EXPECT_EQ(unit(2).settings.destinationPort, SampleUnit().destinationPort);
    EXPECT_EQ(journals().size(), 2U) << "a run that takes one back has its own journal";
}

TEST_F(TableAfterwardsTest, TheJournalOfAnEarlierRunIsChosenInAPanel) {
    addUnits(1, 1);
    openAndAsk(table(1, 1));
    applyAndWait();
    openPanel.choice = journals().front();
    openAndAsk(table(1, 1));
    EXPECT_EQ(states(), Texts{"= Unchanged"});
    tableRun.chooseJournal();
    settle();
    EXPECT_EQ(states(), Texts(2, "· To change"));
}

TEST_F(TableAfterwardsTest, AValueThatNoCommandBringsBackIsSaidWithThePlan) {
    addUnits(1, 1);
    unit(1).settings.destinationPort = {0x0F, 0xA0}; // 4000, which no command can ask for
    openAndAsk(table(1, 1));
    applyAndWait();
    tableRun.revert();
    settle();
    EXPECT_TRUE(isIn(tableRun.heading(), "No command brings destination-port of the unit " +
                                             serial(1) + " back: it was “4000”."))
        << tableRun.heading();
}

TEST_F(TableAfterwardsTest, AnEntryOfAKilledRunIsTakenOutBeforeTheFirstCommand) {
    addUnits(1, 1);
    const std::string left = killedRun({JournalledBinding{
        .address = address(50), .hardwareAddress = hardware(9), .isMade = true}});
    bindings.entries[0xC0A80232U] = hardware(9);
    openAndAsk(table(1, 1));
    EXPECT_EQ(bindings.entries.size(), 1U) << "a plan changes nothing on this host";
    applyAndWait();
    EXPECT_TRUE(bindings.entries.empty());
    EXPECT_EQ(states(), Texts(2, "✓ Done"));
    const auto read = readKeptJournal(left);
    ASSERT_TRUE(std::holds_alternative<KeptJournal>(read));
    EXPECT_EQ(std::get<KeptJournal>(read).journal.entries.size(), 2U) << "it is noted there";
}

TEST_F(TableAfterwardsTest, AnEntryOfAKilledRunThatStaysIsSaidInTheEnd) {
    addUnits(1, 1);
    killedRun({JournalledBinding{
        .address = address(50), .hardwareAddress = hardware(9), .isMade = true}});
    bindings.entries[0xC0A80232U] = hardware(9);
    bindings.answerToRelease = {.state = ARPEntryState::rightsNotGiven};
    openAndAsk(table(1, 1));
    applyAndWait();
    EXPECT_EQ(states(), Texts(2, "✓ Done"));
    EXPECT_TRUE(isIn(tableRun.heading(), "The entry for " + address(50) +
                                             " could not be taken out of the ARP cache again."));
}

TEST_F(TableAfterwardsTest, AUnitThatAKilledRunHasGivenANewNameIsFoundByItsJournal) {
    addUnits(1, 1);
    openAndAsk(
        file("rack.csv", "serial,new-serial,unit-id\n" + serial(1) + ',' + serial(77) + ",A\n"));
    applyAndWait();
    ASSERT_EQ(states(), Texts(2, "✓ Done"));
    tableRun.open(folder + "/rack.csv"); // the same table again, which names the old serial number
    settle();
    EXPECT_EQ(states(), Texts{"= Unchanged"});
}

TEST_F(TableAfterwardsTest, TheReportIsTheTableWithWhatBecameOfEachRow) {
    addUnits(1, 2);
    unit(1).ignored = "T";
    openAndAsk(table(1, 2));
    applyAndWait();
    saveReport();
    EXPECT_EQ(savePanel.suggestion, "rack-report.csv");
    const std::string report = written.at(*savePanel.choice);
    EXPECT_TRUE(report.starts_with("serial,unit-id,destination-port,state,reason\n" + serial(1) +
                                   ",R1,3521,half,"))
        << report;
    EXPECT_TRUE(isIn(report, serial(2) + ",R2,3521,untouched,"));
}

TEST_F(TableAfterwardsTest, AReportThatCannotBeWrittenIsSaidAndTheStatesStay) {
    addUnits(1, 1);
    openAndAsk(table(1, 1));
    applyAndWait();
    writeError = posixError(ENOSPC);
    saveReport();
    EXPECT_TRUE(
        isIn(tableRun.heading(), "“" + folder + "/report.csv” cannot be written: No space"));
    EXPECT_EQ(states(), Texts(2, "✓ Done"));
    writeError.reset();
    tableRun.saveReport();
    EXPECT_FALSE(tableRun.meansTrouble());
}

TEST_F(TableAfterwardsTest, ASavedReportDoesNotHideUnitsThatNeedALook) {
    addUnits(1, 1);
    unit(1).ignored = "T";
    openAndAsk(table(1, 1));
    applyAndWait();
    saveReport();
    EXPECT_TRUE(isIn(tableRun.heading(), "Look at the units that are half configured"));
}

} // namespace kx
