// The window Configure from File…, with the mouse, with the keyboard and as a screen reader has it.

#include "platform/qt/FromFileWindow.h"

#include "FromFileFixture.h"
#include "platform/qt/AnnouncedLabel.h"

#include <QClipboard>

namespace kx {

TEST_F(FromFileWindowTest, WithoutAFileItAsksForOneAndSaysWhatATableIs) {
    window.present();
    ASSERT_TRUE(QTest::qWaitFor([] { return panel() != nullptr; }));
    EXPECT_EQ(utf8Text(panel()->windowTitle()), "Choose a Table of Units");
    panel()->reject();
    EXPECT_TRUE(shownTable().placeholderText().contains("serial"));
    EXPECT_EQ(shownTable().accessibleDescription(), shownTable().placeholderText());
    EXPECT_FALSE(button("fromFileApplyButton").isEnabled());
    EXPECT_FALSE(control<QProgressBar>("fromFileProgress").isVisible());
}

TEST_F(FromFileWindowTest, TheChosenFileIsShownAsAPlan) {
    addUnits(1, 2);
    window.present();
    ASSERT_TRUE(QTest::qWaitFor([] { return panel() != nullptr; }));
    choose(table(1, 2));
    EXPECT_TRUE(control<QProgressBar>("fromFileProgress").isVisible());
    EXPECT_GT(control<QProgressBar>("fromFileProgress").y(), shownTable().geometry().bottom());
    EXPECT_TRUE(button("fromFileStopButton").isEnabled());
    settle();
    EXPECT_EQ(label("fromFileName"), folder + "/rack.csv");
    ASSERT_EQ(model().rowCount(), 4);
    EXPECT_EQ(utf8Text(cell(0, PlanColumn::unit)), serial(1));
    EXPECT_EQ(utf8Text(cell(0, PlanColumn::parameter)), "unit ID");
    EXPECT_EQ(utf8Text(cell(0, PlanColumn::wanted)), "R1");
    EXPECT_EQ(utf8Text(cell(0, PlanColumn::state)), "· To change");
    EXPECT_TRUE(label("fromFileHeading").starts_with("Units to change: 2, parameters in all: 4."));
    EXPECT_TRUE(button("fromFileApplyButton").isEnabled());
    EXPECT_FALSE(button("fromFileStopButton").isEnabled());
    EXPECT_FALSE(control<QProgressBar>("fromFileProgress").isVisible());
}

TEST_F(FromFileWindowTest, TheBarCountsUnitsAndTheStatesAreThere) {
    addUnits(1, 12);
    show();
    openAndAsk(table(1, 12));
    unit(2).lost = "U"; // it takes its time
    button("fromFileApplyButton").click();
    passUntil([this] { return tableRun.progress().total > 0 && tableRun.progress().ended > 0; });
    runLoop.advanceBy(100ms);
    const auto& bar = control<QProgressBar>("fromFileProgress");
    EXPECT_EQ(bar.maximum(), 12);
    EXPECT_GE(bar.value(), 1);
    EXPECT_TRUE(bar.format().contains(" of 12 units")) << utf8Text(bar.format());
    EXPECT_FALSE(button("fromFileChooseButton").isEnabled());
    EXPECT_FALSE(control<QCheckBox>("fromFileKeepGoingBox").isEnabled());
    settle();
    EXPECT_TRUE(button("fromFileRevertButton").isEnabled());
    EXPECT_TRUE(button("fromFileReportButton").isEnabled());
    EXPECT_TRUE(label("fromFileJournal").starts_with("The journal is “"));
}

TEST_F(FromFileWindowTest, TheReasonThatMattersMostIsThereWithoutASearch) {
    showPlan();
    EXPECT_EQ(shownTable().currentIndex().row(), 4);
    EXPECT_EQ(label("fromFileReason"), "The unit " + serial(3) + " does not answer.");
    unit(2).ignored = "T";
    tableRun.setKeepsGoing(true);
    applyAndWait();
    EXPECT_EQ(shownTable().currentIndex().row(), 2) << "a half configured unit weighs more";
    openAndAsk(file("rack.csv", "serial,unit-id\n4.7E+11,A\n"));
    EXPECT_TRUE(isIn(label("fromFileReason"), "a number that a spreadsheet has shortened"));
    unit(2).ignored.clear();
    openAndAsk(table(2, 2));
    EXPECT_EQ(label("fromFileReason"), "") << "all is well";
}

TEST_F(FromFileWindowTest, AFileThatIsStillFaultyShowsItsFirstFaultAgain) {
    show();
    openAndAsk(file("rack.csv", "serial,unit-id\n4.7E+11,A\n4758000001,B\n"));
    EXPECT_TRUE(isIn(label("fromFileReason"), "4.7E+11"));
    openAndAsk(file("rack.csv", "serial,unit-id\n" + serial(1) + ",A\n4758000001,B\n"));
    EXPECT_EQ(shownTable().currentIndex().row(), 0);
    EXPECT_TRUE(isIn(label("fromFileReason"), "4758000001"));
    EXPECT_TRUE(control<AnnouncedLabel>("fromFileHeading").meansTrouble());
}

TEST_F(FromFileWindowTest, EveryButtonNamesItsKeyInItsToolTip) {
    const std::map<std::string, std::string> keys{
        {"fromFileChooseButton", "(Ctrl+O)"},     {"fromFileAskButton", "(F5)"},
        {"fromFileApplyButton", "(Ctrl+Return)"}, {"fromFileStopButton", "(Ctrl+.)"},
        {"fromFileReportButton", "(Ctrl+S)"},     {"fromFileHelpButton", "(F1)"},
        {"fromFileCloseButton", "(Esc)"}};
    for (const auto& [name, key] : keys) {
        EXPECT_TRUE(isIn(utf8Text(button(name.c_str()).toolTip()), key)) << name;
        EXPECT_FALSE(button(name.c_str()).accessibleDescription().isEmpty()) << name;
    }
}

TEST_F(FromFileWindowTest, LongNamesDoNotMakeTheWindowWider) {
    hostInterfaces.interfaces.front().title = std::string(300, 'w');
    tableRun.refreshInterfaces();
    show();
    const int before = window.minimumSizeHint().width();
    const int width = window.width();
    const std::string name(200, 'f');
    openAndAsk(file(name, "serial,unit-id\n4.7E+11,A\n"));
    EXPECT_EQ(window.minimumSizeHint().width(), before);
    EXPECT_LE(before, width);
    EXPECT_TRUE(isIn(label("fromFileName"), "…"));
    EXPECT_TRUE(control<QLabel>("fromFileName").toolTip().contains(qtText(name.substr(0, 100))));
    EXPECT_LE(control<QComboBox>("fromFileInterfacePopUp").geometry().right(), width);
}

TEST_F(FromFileWindowTest, TheReasonOfTheCurrentLineIsShownWhole) {
    showPlan();
    shownTable().setCurrentIndex(model().index(4, 0));
    EXPECT_EQ(label("fromFileReason"), "The unit " + serial(3) + " does not answer.");
    shownTable().setCurrentIndex(model().index(0, 0));
    EXPECT_EQ(label("fromFileReason"), "");
    shownTable().setCurrentIndex(model().index(4, 0));
    button("fromFileAskButton").click();
    EXPECT_EQ(label("fromFileReason"), "") << "there is no such line any more";
    settle();
}

TEST_F(FromFileWindowTest, KeepGoingAllowsApply) {
    showPlan();
    EXPECT_FALSE(button("fromFileApplyButton").isEnabled());
    control<QCheckBox>("fromFileKeepGoingBox").click();
    EXPECT_TRUE(button("fromFileApplyButton").isEnabled());
    control<QCheckBox>("fromFileKeepGoingBox").click();
    EXPECT_FALSE(button("fromFileApplyButton").isEnabled());
}

TEST_F(FromFileWindowTest, TroubleHasASignAndPlainWordsHaveNone) {
    addUnits(1, 1);
    show();
    openAndAsk(table(1, 1));
    EXPECT_FALSE(control<AnnouncedLabel>("fromFileHeading").meansTrouble());
    lock.refusal = RunLockRefusal{.holder = 4711};
    button("fromFileApplyButton").click();
    EXPECT_TRUE(control<AnnouncedLabel>("fromFileHeading").meansTrouble());
    EXPECT_TRUE(label("fromFileHeading").starts_with("Another run changes units"));
}

TEST_F(FromFileWindowTest, EveryActionHasAKey) {
    addUnits(1, 2);
    show();
    press(Qt::Key_O, Qt::ControlModifier);
    ASSERT_NE(panel(), nullptr);
    choose(table(1, 2));
    settle();
    window.activateWindow(); // no window manager does so when a panel has closed
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    press(Qt::Key_F5);
    EXPECT_EQ(tableRun.stage(), Stage::asking);
    settle();
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(tableRun.stage(), Stage::applying);
    press(Qt::Key_Period, Qt::ControlModifier);
    EXPECT_FALSE(tableRun.canStop());
    settle();
    press(Qt::Key_S, Qt::ControlModifier);
    ASSERT_NE(panel(), nullptr);
    choose(folder + "/report.csv");
    EXPECT_TRUE(written.contains(folder + "/report.csv"));
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    press(Qt::Key_F1);
    EXPECT_EQ(helps, 1);
    press(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(FromFileWindowTest, TheTabKeyGoesFromTheFileOverThePlanToTheButtons) {
    addUnits(1, 1);
    show();
    openAndAsk(table(1, 1));
    button("fromFileChooseButton").setFocus();
    for (const char* name : {"fromFileJournalButton", "fromFileInterfacePopUp", "fromFileAskButton",
                             "fromFileTable", "fromFileKeepGoingBox", "fromFileApplyButton",
                             "fromFileReportButton", "fromFileHelpButton", "fromFileCloseButton"}) {
        press(Qt::Key_Tab);
        EXPECT_TRUE(control<QWidget>(name).hasFocus()) << name;
    }
}

TEST_F(FromFileWindowTest, APressTooManyOnApplyDoesNotStopTheRun) {
    addUnits(1, 2);
    show();
    openAndAsk(table(1, 2));
    button("fromFileApplyButton").setFocus();
    press(Qt::Key_Space);
    ASSERT_EQ(tableRun.stage(), Stage::applying);
    press(Qt::Key_Space);
    EXPECT_TRUE(tableRun.canStop());
    EXPECT_TRUE(shownTable().hasFocus());
    settle();
}

TEST_F(FromFileWindowTest, AskAgainHasTheKeyboardAgainWhenTheUnitsHaveAnswered) {
    showPlan();
    button("fromFileAskButton").setFocus();
    press(Qt::Key_Space);
    EXPECT_TRUE(shownTable().hasFocus());
    settle();
    EXPECT_TRUE(button("fromFileAskButton").hasFocus());
}

TEST_F(FromFileWindowTest, SelectedLinesAreCopiedAsATable) {
    showPlan();
    shownTable().setFocus();
    shownTable().selectRow(4);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(utf8Text(QApplication::clipboard()->text()),
              "Line\tUnit\tParameter\tBefore\tWanted\tState\tReason\n4\t" + serial(3) +
                  "\tunit ID\t\tR3\t○ No answer\tThe unit " + serial(3) + " does not answer.\n");
}

TEST_F(FromFileWindowTest, AScreenReaderSaysTheStateWithoutItsSignAndTheReasonWithTheCell) {
    showPlan();
    EXPECT_EQ(utf8Text(cell(4, PlanColumn::state, Qt::AccessibleTextRole)), "No answer");
    EXPECT_EQ(utf8Text(cell(4, PlanColumn::unit, Qt::AccessibleDescriptionRole)),
              "The unit " + serial(3) + " does not answer.");
    EXPECT_EQ(utf8Text(shownTable().accessibleName()), "Plan");
    EXPECT_EQ(utf8Text(control<QProgressBar>("fromFileProgress").accessibleName()), "Progress");
}

TEST_F(FromFileWindowTest, MarkupInAFileIsTextAndNotMarkup) {
    show();
    openAndAsk(file("<b>rack<b>.csv", "serial,unit-id\n<i>x</i>,A\n"));
    EXPECT_EQ(control<QLabel>("fromFileName").textFormat(), Qt::PlainText);
    EXPECT_EQ(utf8Text(cell(0, PlanColumn::wanted)), "<i>x</i>");
    EXPECT_FALSE(cell(0, PlanColumn::reason, Qt::ToolTipRole).contains("<i>"));
}

TEST_F(FromFileWindowTest, ClosingWhileUnitsAreConfiguredAsksAndGoOnGoesOn) {
    addUnits(1, 4);
    show();
    openAndAsk(table(1, 4));
    tableRun.apply();
    passUntil([this] { return commands() == 1; });
    window.close();
    EXPECT_TRUE(window.isVisible());
    ASSERT_NE(question(), nullptr);
    answer(QMessageBox::RejectRole);
    settle();
    EXPECT_EQ(commands(), 8);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(FromFileWindowTest, StopInTheQuestionFinishesWhatIsUnderWayAndTheWindowShowsIt) {
    addUnits(1, 4);
    show();
    openAndAsk(table(1, 4));
    tableRun.apply();
    passUntil([this] { return commands() == 1; });
    window.close();
    ASSERT_NE(question(), nullptr);
    answer(QMessageBox::AcceptRole);
    settle();
    EXPECT_EQ(commands(), 2);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(utf8Text(cell(2, PlanColumn::state)), "– Not begun");
}

TEST_F(FromFileWindowTest, ClosingAfterStopAsksNobodyAndTheUnitUnderWayIsFinished) {
    addUnits(1, 4);
    show();
    openAndAsk(table(1, 4));
    tableRun.apply();
    passUntil([this] { return commands() == 1; });
    button("fromFileStopButton").click();
    window.close();
    EXPECT_EQ(question(), nullptr);
    EXPECT_TRUE(window.isVisible());
    settle();
    EXPECT_EQ(commands(), 2);
    EXPECT_EQ(utf8Text(cell(1, PlanColumn::state)), "✓ Done");
    window.close();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(FromFileWindowTest, TheQuestionGoesWhenTheRunHasEndedMeanwhile) {
    addUnits(1, 1);
    show();
    openAndAsk(table(1, 1));
    tableRun.apply();
    window.close();
    ASSERT_NE(question(), nullptr);
    settle();
    EXPECT_EQ(question(), nullptr);
    EXPECT_EQ(commands(), 2);
}

TEST_F(FromFileWindowTest, ClosingWhileUnitsAreAskedStopsThat) {
    show();
    tableRun.open(table(1, 1));
    window.close();
    EXPECT_FALSE(window.isVisible());
    settle();
    EXPECT_EQ(tableRun.stage(), Stage::unasked);
}

TEST_F(FromFileWindowTest, TheInterfaceIsChosenInItsPopUp) {
    HostInterface second = ownInterface();
    second.name = "kx1";
    second.title = "Office (kx1)";
    hostInterfaces.interfaces.push_back(second);
    addUnits(1, 1);
    show();
    openAndAsk(table(1, 1));
    auto& popUp = control<QComboBox>("fromFileInterfacePopUp");
    EXPECT_EQ(popUp.currentIndex(), -1);
    EXPECT_EQ(utf8Text(popUp.placeholderText()), "None chosen");
    popUp.setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(popUp.currentIndex(), 0);
    settle();
    EXPECT_EQ(tableRun.stage(), Stage::planned);
}

} // namespace kx
