// The file, the interface and the plan. What follows from Apply is in KXTableRun_ApplyingTest.cpp.

#include "KXTableRun.h"

#include "TableRunFixture.h"
#include "files/KeptPlan.h"
#include "files/SealedJSON.h"

#include <cerrno>
#include <set>

namespace kx {

namespace {

class KXTableRunTest : public TableRunTest {};

} // namespace

TEST_F(KXTableRunTest, WithoutAFileOnlyAFileCanBeChosen) {
    EXPECT_EQ(tableRun.stage(), Stage::empty);
    EXPECT_TRUE(tableRun.canChoose());
    EXPECT_FALSE(tableRun.canAsk());
    EXPECT_FALSE(tableRun.canApply());
    EXPECT_FALSE(tableRun.canStop());
    EXPECT_FALSE(tableRun.canRevert());
    EXPECT_FALSE(tableRun.canSaveReport());
    EXPECT_EQ(tableRun.heading(), "");
    EXPECT_EQ(tableRun.journalLine(), "");
    tableRun.apply();
    tableRun.stop();
    tableRun.revert();
    tableRun.saveReport();
    EXPECT_EQ(tableRun.stage(), Stage::empty);
    EXPECT_EQ(savePanel.asked, 0);
}

TEST_F(KXTableRunTest, ThePlanSaysWhatWouldChangeAndSendsRequestsOnly) {
    addUnits(1, 3);
    openAndAsk(file("rack.csv", "serial,unit-id,destination-port\n" + serial(1) + ",RACK7A,3521\n" +
                                    serial(2) + ",,3520\n"));
    EXPECT_EQ(tableRun.stage(), Stage::planned);
    ASSERT_EQ(tableRun.lineCount(), 3U);
    EXPECT_EQ(row(0), (Texts{"2", serial(1), "unit ID", "42", "RACK7A", "· To change", ""}));
    EXPECT_EQ(row(1), (Texts{"2", serial(1), "destination Port number", "3520", "3521",
                             "· To change", ""}));
    EXPECT_EQ(row(2), (Texts{"3", serial(2), "", "", "", "= Unchanged", ""}));
    EXPECT_EQ(tableRun.heading(), "Units to change: 1, parameters in all: 2. Unchanged: 1, "
                                  "refused: 0, without an answer: 0.");
    EXPECT_FALSE(tableRun.meansTrouble());
    EXPECT_TRUE(tableRun.canApply());
    EXPECT_TRUE(tableRun.canSaveReport());
    EXPECT_EQ(commands(), 0);
    EXPECT_EQ(lock.taken, 0) << "a plan changes nothing";
    EXPECT_TRUE(journals().empty());
}

TEST_F(KXTableRunTest, TheMainWindowKeepsItsPortAndTheRunHasAnotherOneWhileItAsks) {
    addUnits(1, 1);
    const auto before = systemCalls.openDescriptors();
    tableRun.open(table(1, 1));
    EXPECT_EQ(ownPorts, std::vector<std::uint16_t>{3521});
    settle();
    EXPECT_EQ(ownPorts, (std::vector<std::uint16_t>{3521, 0}));
    EXPECT_EQ(systemCalls.openDescriptors(), before);
    EXPECT_EQ(runLoop.pendingCallCount(), 0U) << "nothing is left to do";
}

TEST_F(KXTableRunTest, WhenAllPortsAreTakenNobodyIsAskedAndItIsSaid) {
    for (int port = 0; port < 4; ++port) {
        systemCalls.failNext(Operation::bind, EADDRINUSE);
    }
    sent();
    openAndAsk(table(1, 1));
    EXPECT_EQ(tableRun.stage(), Stage::unasked);
    EXPECT_EQ(tableRun.heading(), "All of the UDP ports 3520 to 3523 are taken by other programs.");
    EXPECT_TRUE(tableRun.meansTrouble());
    EXPECT_EQ(sent(), Lines{});
    addUnits(1, 1);
    tableRun.ask();
    settle();
    EXPECT_EQ(tableRun.stage(), Stage::planned) << "Ask Again is the way on";
}

TEST_F(KXTableRunTest, AFaultyFileAsksNobodyAndTellsEachFaultWithItsLineAndColumn) {
    sent();
    openAndAsk(file("rack.csv",
                    "serial,unit-id,destination-port\n4.7E+11,A,3521\n" + serial(1) + ",B,9999\n"));
    EXPECT_EQ(tableRun.stage(), Stage::faulty);
    ASSERT_EQ(tableRun.lineCount(), 2U);
    EXPECT_EQ(tableRun.cell(0, PlanColumn::line), "2");
    EXPECT_EQ(tableRun.cell(0, PlanColumn::parameter), "serial");
    EXPECT_EQ(tableRun.cell(0, PlanColumn::wanted), "4.7E+11");
    EXPECT_EQ(tableRun.cell(0, PlanColumn::state), "✗ Wrong");
    EXPECT_TRUE(isIn(tableRun.cell(0, PlanColumn::reason), "spreadsheet"));
    EXPECT_EQ(tableRun.cell(1, PlanColumn::line), "3");
    EXPECT_EQ(tableRun.cell(1, PlanColumn::parameter), "destination-port");
    EXPECT_EQ(tableRun.heading(),
              "The file has 2 faults. Correct them, and choose the file again.");
    EXPECT_FALSE(tableRun.canApply());
    EXPECT_FALSE(tableRun.canAsk());
    EXPECT_FALSE(tableRun.canSaveReport());
    EXPECT_EQ(tableRun.journalLine(), "");
    EXPECT_EQ(sent(), Lines{});
}

TEST_F(KXTableRunTest, AFileThatCannotBeReadIsNamedWithTheReason) {
    openAndAsk(folder + "/none.csv");
    EXPECT_EQ(tableRun.stage(), Stage::empty);
    EXPECT_EQ(tableRun.heading(),
              "“" + folder + "/none.csv” cannot be read: No such file or directory.");
    EXPECT_TRUE(tableRun.meansTrouble());
    EXPECT_EQ(tableRun.path(), "");
}

TEST_F(KXTableRunTest, ADamagedPlanAndOneOfAnotherVersionAreToldFromATableAndFromEachOther) {
    const std::string kept = textOfKeptPlan("serial,unit-id\n" + serial(1) + ",A\n", {});
    const std::string path = folder + "/kept.plan";
    openAndAsk(file("kept.plan", kept.substr(0, kept.size() / 2)));
    EXPECT_EQ(tableRun.stage(), Stage::empty);
    EXPECT_EQ(tableRun.heading(), "“" + path + "” is damaged.");
    openAndAsk(file("kept.plan", sealedText(R"({"kind":"plan","schema":2})")));
    EXPECT_EQ(tableRun.stage(), Stage::empty);
    EXPECT_EQ(tableRun.heading(), "“" + path + "” has the format of another version of kxctl.");
    EXPECT_TRUE(tableRun.meansTrouble());
    EXPECT_FALSE(tableRun.canApply());
}

TEST_F(KXTableRunTest, AKeptPlanRefusesAUnitThatShowsAnotherValueSinceAndNamesTheParameter) {
    addUnits(1, 1);
    SeenUnit seen;
    seen.record.setValue(UnitParameter::serialNumber, serial(1));
    seen.record.setValue(UnitParameter::destinationPortNumber, "3520");
    seen.record.setValue(UnitParameter::devicePortNumber, "10000");
    const std::string table = "serial,destination-port\n" + serial(1) + ",3521\n";
    const WantedRow row{.line = 2, .serialNumber = serial(1), .edits = {}, .seen = seen};
    const std::string plan = file("kept.plan", textOfKeptPlan(table, std::vector{row}));
    openAndAsk(plan);
    EXPECT_EQ(states(), Texts{"· To change"}) << tableRun.cell(0, PlanColumn::reason);
    unit(1).settings.devicePort = {0x27, 0x11};
    openAndAsk(plan);
    EXPECT_EQ(states(), Texts{"✗ Refused"});
    EXPECT_EQ(tableRun.cell(0, PlanColumn::reason),
              "The plan is out of date: device-port was “10000” and is “10001” now.");
}

TEST_F(KXTableRunTest, FromTheFirstMomentItIsSaidThatUnitsAreAsked) {
    std::set<std::string> said;
    tableRun.setFollower([&] { said.insert(tableRun.heading()); });
    tableRun.open(table(1, 1));
    EXPECT_FALSE(tableRun.meansTrouble());
    EXPECT_EQ(said, (std::set<std::string>{"", "Asking the units. 0 have answered."}));
    tableRun.setFollower({});
}

TEST_F(KXTableRunTest, WhatHoldsApplyBackMeansTroubleAndAFaultyFileToo) {
    addUnits(1, 1);
    openAndAsk(table(1, 2));
    EXPECT_TRUE(tableRun.meansTrouble()) << "a unit does not answer";
    tableRun.setKeepsGoing(true);
    EXPECT_FALSE(tableRun.meansTrouble()) << "the person goes on";
    openAndAsk(file("faulty.csv", "serial,unit-id\n4.7E+11,A\n"));
    EXPECT_TRUE(tableRun.meansTrouble());
}

TEST_F(KXTableRunTest, TheFileIsChosenInAPanelAndCancelChangesNothing) {
    addUnits(1, 1);
    tableRun.chooseFile();
    EXPECT_EQ(tableRun.stage(), Stage::empty);
    openPanel.choice = table(1, 1);
    tableRun.chooseFile();
    settle();
    EXPECT_EQ(tableRun.path(), *openPanel.choice);
    EXPECT_EQ(tableRun.stage(), Stage::planned);
}

TEST_F(KXTableRunTest, WhileUnitsAreAskedNoOtherFileIsTaken) {
    addUnits(1, 1);
    tableRun.open(table(1, 1));
    EXPECT_EQ(tableRun.stage(), Stage::asking);
    EXPECT_FALSE(tableRun.canChoose());
    tableRun.chooseFile();
    tableRun.chooseJournal();
    EXPECT_EQ(openPanel.asked, 0);
    const std::string path = tableRun.path();
    tableRun.open(folder + "/none.csv");
    EXPECT_EQ(tableRun.path(), path);
}

TEST_F(KXTableRunTest, AUnitThatDoesNotAnswerHoldsApplyBackUnlessItIsToKeepGoing) {
    addUnits(1, 1);
    openAndAsk(table(1, 2));
    EXPECT_EQ(states(), (Texts{"· To change", "· To change", "○ No answer", "○ No answer"}));
    EXPECT_EQ(tableRun.cell(2, PlanColumn::reason), "The unit " + serial(2) + " does not answer.");
    EXPECT_TRUE(isIn(tableRun.heading(), "Apply sends nothing while lines are refused"));
    EXPECT_FALSE(tableRun.canApply());
    tableRun.setKeepsGoing(true);
    EXPECT_TRUE(tableRun.canApply());
    EXPECT_FALSE(isIn(tableRun.heading(), "Apply sends nothing"));
}

TEST_F(KXTableRunTest, ATableThatIsWrongInItselfIsNeverPassed) {
    addUnits(1, 2);
    openAndAsk(file("rack.csv", "serial,internal-ip,unit-id\n" + serial(1) + ",192.168.1.1,\n" +
                                    serial(2) + ",,A\n"));
    EXPECT_EQ(tableRun.cell(0, PlanColumn::state), "✗ Refused");
    EXPECT_EQ(tableRun.cell(0, PlanColumn::reason), "192.168.1.1 is this host's own address.");
    tableRun.setKeepsGoing(true);
    EXPECT_FALSE(tableRun.canApply());
    EXPECT_TRUE(isIn(tableRun.heading(), "lines of the table are wrong"));
}

TEST_F(KXTableRunTest, WithNothingToChangeThereIsNothingToApply) {
    addUnits(1, 1);
    openAndAsk(file("rack.csv", "serial,destination-port\n" + serial(1) + ",3520\n"));
    EXPECT_EQ(states(), Texts{"= Unchanged"});
    EXPECT_FALSE(tableRun.canApply());
}

TEST_F(KXTableRunTest, StopEndsTheAskingAndLeavesNoPlan) {
    tableRun.open(table(1, 1));
    EXPECT_TRUE(tableRun.canStop());
    EXPECT_EQ(tableRun.heading(), "Asking the units. 0 have answered.");
    tableRun.stop();
    EXPECT_FALSE(tableRun.canStop());
    settle();
    EXPECT_EQ(tableRun.stage(), Stage::unasked);
    EXPECT_EQ(tableRun.heading(), "Stopped.");
    EXPECT_EQ(tableRun.lineCount(), 0U);
    EXPECT_TRUE(tableRun.canAsk());
}

TEST_F(KXTableRunTest, OneInterfaceNeedsNoChoiceAndOfSeveralAPersonChooses) {
    EXPECT_EQ(tableRun.chosenInterface(), 0U);
    HostInterface second = ownInterface();
    second.name = "kx1";
    second.title = "Office (kx1)";
    hostInterfaces.interfaces.push_back(second);
    addUnits(1, 1);
    openAndAsk(table(1, 1));
    EXPECT_EQ(tableRun.stage(), Stage::unasked);
    EXPECT_EQ(tableRun.chosenInterface(), std::nullopt);
    EXPECT_TRUE(isIn(tableRun.heading(), "interface"));
    tableRun.useInterface("kx0");
    settle();
    EXPECT_EQ(tableRun.stage(), Stage::planned);
    EXPECT_EQ(tableRun.chosenInterface(), 0U);
}

TEST_F(KXTableRunTest, TheInterfaceOfTheMainWindowIsTakenUntilAnotherOneIsChosenHere) {
    HostInterface second = ownInterface();
    second.name = "kx1";
    hostInterfaces.interfaces.push_back(second);
    tableRun.refreshInterfaces();
    chosenInMainWindow = "kx1";
    EXPECT_EQ(tableRun.chosenInterface(), 1U);
    tableRun.useInterface("kx0");
    EXPECT_EQ(tableRun.chosenInterface(), 0U);
    chosenInMainWindow = "lo";
    EXPECT_EQ(tableRun.chosenInterface(), 0U);
}

TEST_F(KXTableRunTest, APlanKeepsItsInterfaceWhateverIsChosenInTheMainWindowLater) {
    HostInterface second = ownInterface();
    second.name = "kx1";
    second.networks = {{.address = 0x0A000001U, .mask = 0xFF000000U}}; // 10.0.0.1
    hostInterfaces.interfaces.push_back(second);
    chosenInMainWindow = "kx0";
    addUnits(1, 1);
    openAndAsk(table(1, 1));
    ASSERT_EQ(tableRun.stage(), Stage::planned);
    chosenInMainWindow = "kx1";
    EXPECT_EQ(tableRun.chosenInterface(), 0U);
    tableRun.apply();
    settle();
    EXPECT_EQ(states(), Texts(2, "✓ Done")) << tableRun.heading();
    tableRun.open(table(1, 1));
    EXPECT_EQ(tableRun.chosenInterface(), 1U) << "another file takes what is chosen now";
    settle();
}

TEST_F(KXTableRunTest, ChoosingTheSameInterfaceAgainKeepsWhatThereIsToSee) {
    addUnits(1, 1);
    openAndAsk(table(1, 1));
    applyAndWait();
    ASSERT_EQ(tableRun.stage(), Stage::ended);
    tableRun.useInterface("kx0");
    EXPECT_EQ(tableRun.stage(), Stage::ended);
}

TEST_F(KXTableRunTest, WithoutAnInterfaceThatCanAskNobodyIsAsked) {
    hostInterfaces.interfaces.front().canAsk = false;
    sent();
    openAndAsk(table(1, 1));
    EXPECT_EQ(tableRun.stage(), Stage::unasked);
    EXPECT_TRUE(tableRun.meansTrouble());
    EXPECT_FALSE(tableRun.heading().empty());
    EXPECT_EQ(sent(), Lines{});
}

TEST_F(KXTableRunTest, ThePlanIsMadeAnewWhenUnitsAreAskedAgain) {
    addUnits(1, 1);
    openAndAsk(table(1, 1));
    const auto number = tableRun.listNumber();
    units.front().settings.destinationPort = {0x0D, 0xC1}; // 3521
    tableRun.ask();
    settle();
    EXPECT_NE(tableRun.listNumber(), number);
    EXPECT_EQ(column(PlanColumn::parameter), Texts{"unit ID"});
}

TEST_F(KXTableRunTest, AFileThatIsNoJournalIsSaidAndThePlanStays) {
    addUnits(1, 1);
    openAndAsk(table(1, 1));
    openPanel.choice = table(1, 1);
    tableRun.chooseJournal();
    EXPECT_EQ(tableRun.stage(), Stage::planned);
    EXPECT_TRUE(tableRun.meansTrouble());
    EXPECT_EQ(tableRun.lineCount(), 2U);
}

TEST_F(KXTableRunTest, AnAddressThatAnotherHostHoldsIsRefusedBeforeApply) {
    addUnits(1, 2);
    foreignHosts[0xC0A80265U] = "02:99:99:99:99:99"; // 192.168.2.101
    tableRun.open(moves(1, 2));
    bool wasLookedFor = false;
    passUntil([&] {
        wasLookedFor = wasLookedFor || isIn(tableRun.heading(), "Finding out who holds");
        return tableRun.canChoose();
    });
    EXPECT_TRUE(wasLookedFor);
    EXPECT_EQ(states(), (Texts{"✗ Refused", "· To change"}));
    EXPECT_EQ(tableRun.cell(0, PlanColumn::reason),
              address(101) + " is held by 02:99:99:99:99:99.");
    EXPECT_FALSE(tableRun.canApply());
    forgetAnswers();
    tableRun.setKeepsGoing(true);
    tableRun.apply();
    settle();
    EXPECT_EQ(states(), (Texts{"✗ Refused", "✓ Done"}));
    EXPECT_EQ(unit(1).commands, 0);
}

TEST_F(KXTableRunTest, StopEndsTheSearchForHoldersToo) {
    addUnits(1, 1);
    tableRun.open(moves(1, 1));
    passUntil([this] { return isIn(tableRun.heading(), "Finding out who holds"); });
    tableRun.stop();
    settle();
    EXPECT_EQ(tableRun.stage(), Stage::unasked);
    EXPECT_EQ(tableRun.heading(), "Stopped.");
    EXPECT_FALSE(tableRun.canApply());
    EXPECT_FALSE(tableRun.canSaveReport());
    EXPECT_EQ(ownPorts.back(), 0) << "its port is given up";
}

} // namespace kx
