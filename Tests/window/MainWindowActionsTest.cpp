// The actions of mouse and keyboard, through the real window into the controller.

#include "MainWindowFixture.h"

#include <QAbstractItemView>
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QPointer>
#include <QWheelEvent>

namespace kx {

using Texts = std::vector<std::string>;

TEST_F(MainWindowTest, AClickOnDiscoverStartsAnewAndBroadcasts) {
    launchWithTwoUnits();
    newlySent();
    click("discoverButton");
    EXPECT_EQ(newlySent(), Texts{"^^IdX"});
    EXPECT_EQ(selected("unitSelectPopUp"), "(none)");
    EXPECT_EQ(controller.eventLog().find("[Begin Discover]"), 0U);
}

TEST_F(MainWindowTest, DiscoveringTwiceListsEachUnitOnce) {
    launchWithTwoUnits();
    click("discoverButton");
    click("discoverButton");
    runLoop.advanceBy(std::chrono::seconds(2));
    const auto& units = control<QComboBox>("unitSelectPopUp");
    ASSERT_EQ(units.count(), 2);
    EXPECT_EQ(units.itemText(0), "01 02 03 04 05 06");
    EXPECT_EQ(units.itemText(1), "01 02 03 04 05 07");
}

TEST_F(MainWindowTest, ReturnPressesTheDefaultButtonFromAPopUp) {
    launchWithInterface();
    newlySent();
    control<QWidget>("udpPortPopUp").setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(newlySent(), Texts{"^^IdX"});
}

TEST_F(MainWindowTest, ReturnPressesTheButtonThatHasTheKeyboard) {
    launchWithTwoUnits();
    newlySent();
    control<QWidget>("reloadButton").setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(newlySent(), Texts{"^^IdX"});
    EXPECT_EQ(selected("unitSelectPopUp"), "01 02 03 04 05 06"); // Discover would have emptied it
}

TEST_F(MainWindowTest, ReturnInTheCommandTextSendsIt) {
    launchWithTwoUnits();
    newlySent();
    auto& field = control<QLineEdit>("optionCommandField");
    field.setFocus();
    field.selectAll();
    type("Q1");
    press(Qt::Key_Return);
    EXPECT_EQ(newlySent(), Texts{"^^IdQ1\r"});
}

TEST_F(MainWindowTest, ChoosingAUnitWithTheMouseShowsIt) {
    launchWithTwoUnits();
    EXPECT_EQ(control<QLineEdit>("unitIDField").text(), "42");
    auto& units = control<QComboBox>("unitSelectPopUp");
    QTest::mouseClick(&units, Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([&] { return units.view()->isVisible(); }));
    QAbstractItemView& list = *units.view();
    QTest::mouseMove(list.viewport(), list.visualRect(list.model()->index(1, 0)).center());
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                      list.visualRect(list.model()->index(1, 0)).center());
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return controller.selectedUnit() == std::string("01 02 03 04 05 07"); }));
    EXPECT_EQ(control<QLineEdit>("unitIDField").text(), "43");
    EXPECT_EQ(cell("unitParameterTableView", 7, 1), "43");
}

TEST_F(MainWindowTest, ChoosingAUnitWithTheKeyboardShowsIt) {
    launchWithTwoUnits();
    control<QWidget>("unitSelectPopUp").setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(controller.selectedUnit(), "01 02 03 04 05 07");
    EXPECT_EQ(control<QLineEdit>("unitIDField").text(), "43");
}

TEST_F(MainWindowTest, TheWheelChoosesNothingInAPopUpWithoutTheKeyboard) {
    launchWithTwoUnits();
    auto& units = control<QComboBox>("unitSelectPopUp");
    control<QWidget>("discoverButton").setFocus();
    const QPoint center = units.rect().center();
    QWheelEvent wheel(center, units.mapToGlobal(center), {}, QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&units, &wheel);
    EXPECT_EQ(selected("unitSelectPopUp"), "01 02 03 04 05 06");
}

TEST_F(MainWindowTest, ChoosingAPortDiscoversOnIt) {
    launchWithInterface();
    newlySent();
    control<QWidget>("udpPortPopUp").setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(newlySent(), Texts{"^^IdX"});
    EXPECT_EQ(controller.udpListener()->port(), 3521U);
    EXPECT_NE(controller.eventLog().find("UDP listener did start. 0.0.0.0:3521"),
              std::string::npos);
}

TEST_F(MainWindowTest, ChoosingAnInterfaceTurnsTheNextBroadcastToIt) {
    launchWithInterface();
    newlySent();
    control<QWidget>("interfacePopUp").setFocus();
    // The only interface is selected from the start, so it is chosen from the open list.
    press(Qt::Key_Space);
    auto* const list = control<QComboBox>("interfacePopUp").view();
    ASSERT_TRUE(QTest::qWaitFor([&] { return list->isVisible(); }));
    press(Qt::Key_Return);
    EXPECT_EQ(newlySent(), Texts{});
    click("discoverButton");
    EXPECT_NE(controller.eventLog().find("with address: 192.168.1.255"), std::string::npos);
}

TEST_F(MainWindowTest, ChoosingAnOptionPreparesItsCommand) {
    launchWithInterface();
    EXPECT_EQ(control<QLineEdit>("optionCommandField").text(), "V");
    newlySent();
    control<QWidget>("optionCommandPopUp").setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(control<QLineEdit>("optionCommandField").text(), "-Z11152347");
    EXPECT_EQ(newlySent(), Texts{});
}

TEST_F(MainWindowTest, AClickOnSendSendsTheCommandText) {
    launchWithTwoUnits();
    newlySent();
    click("sendOptionButton");
    EXPECT_EQ(newlySent(), Texts{"^^IdV\r"});
    EXPECT_EQ(quietLine(),
              "Sent ^^IdV to the unit at 192.168.1.10. The unit has not answered yet.");
}

TEST_F(MainWindowTest, TheQuietLineSaysWhyNothingWasSent) {
    launchWithInterface();
    newlySent();
    click("sendOptionButton");
    EXPECT_EQ(quietLine(), "Not sent: No unit is selected.");
    EXPECT_EQ(newlySent(), Texts{});

    receive(SampleUnit().reply());
    runLoop.advanceBy(std::chrono::seconds(2));
    control<QLineEdit>("optionCommandField").setText(QString::fromUtf8("Zürich"));
    click("sendOptionButton");
    EXPECT_EQ(quietLine(), "Not sent: A command can hold ASCII characters only.");
    EXPECT_EQ(newlySent(), Texts{});

    click("reloadButton");
    EXPECT_EQ(quietLine(), "Asked the unit at 192.168.1.10 for its parameters. The unit has not "
                           "answered yet.");
}

TEST_F(MainWindowTest, AClickOnRestoreDefaultsSendsItAndAsksAgain) {
    launchWithTwoUnits();
    newlySent();
    click("restoreButton");
    EXPECT_EQ(newlySent(), Texts{"^^IdZ"});
    runLoop.advanceBy(std::chrono::seconds(1));
    EXPECT_EQ(newlySent(), Texts{"^^IdX"});
}

TEST_F(MainWindowTest, SelectingAParameterCopiesItIntoTheEditRow) {
    launchWithTwoUnits();
    clickParameter(UnitParameter::devicePortNumber);
    EXPECT_EQ(cell("editParameterTableView", 0, 0), "device Port number");
    EXPECT_EQ(cell("editParameterTableView", 0, 1), "10000");
    control<QWidget>("unitParameterTableView").setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(cell("editParameterTableView", 0, 0), "internal IP address");
}

TEST_F(MainWindowTest, AClickBelowTheRowsLeavesTheEditRow) {
    launchWithTwoUnits();
    clickParameter(UnitParameter::devicePortNumber);
    window.resize(window.width(), window.height() + 100);
    auto& table = control<QTableView>("unitParameterTableView");
    QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(5, table.viewport()->height() - 3));
    EXPECT_EQ(window.outlets().unitParameterTableView->selectedRow(), -1);
    EXPECT_EQ(cell("editParameterTableView", 0, 0), "device Port number");
}

TEST_F(MainWindowTest, WhatIsTypedIntoTheEditRowReachesItsDataSource) {
    launchWithTwoUnits();
    clickParameter(UnitParameter::devicePortNumber);
    control<QWidget>("unitParameterTableView").setFocus();
    press(Qt::Key_Return); // begins an edit in the edit row
    const QPointer<QLineEdit> editor =
        control<QTableView>("editParameterTableView").viewport()->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    type("10001");
    press(Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return editor == nullptr; }));
    EXPECT_EQ(controller.tableViewObjectValueForTableColumnRow({"parameterValue"}, 0),
              PropertyListValue("10001"));
    EXPECT_EQ(cell("editParameterTableView", 0, 1), "10001");
}

TEST_F(MainWindowTest, AHalfTypedValueIsStoredWhenTheWindowEndsTheEdit) {
    launchWithTwoUnits();
    clickParameter(UnitParameter::devicePortNumber);
    auto& editRow = control<QTableView>("editParameterTableView");
    editRow.setFocus();
    press(Qt::Key_F2);
    auto* const editor = editRow.viewport()->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    type("3522");
    EXPECT_TRUE(window.outlets().window->makeFirstResponder());
    EXPECT_EQ(controller.tableViewObjectValueForTableColumnRow({"parameterValue"}, 0),
              PropertyListValue("3522"));
    EXPECT_EQ(window.focusWidget(), &editRow);
}

TEST_F(MainWindowTest, TheNameInTheEditRowCannotBeChanged) {
    launchWithTwoUnits();
    clickParameter(UnitParameter::devicePortNumber);
    const auto* const model = control<QTableView>("editParameterTableView").model();
    EXPECT_FALSE(model->index(0, 0).flags().testFlag(Qt::ItemIsEditable));
    EXPECT_TRUE(model->index(0, 1).flags().testFlag(Qt::ItemIsEditable));
}

TEST_F(MainWindowTest, TheEventLogButtonOpensAndClosesTheDrawer) {
    launch();
    const Drawer& drawer = *window.outlets().eventLogDrawer;
    auto& log = control<LogTextView>("logTextView");
    EXPECT_EQ(drawer.state(), DrawerState::closed);
    EXPECT_FALSE(log.isVisible());
    click("logDrawerButton");
    EXPECT_EQ(drawer.state(), DrawerState::opening);
    EXPECT_EQ(log.toPlainText().toStdString(), controller.eventLog());
    click("logDrawerButton"); // has no effect while the drawer moves
    EXPECT_EQ(drawer.state(), DrawerState::opening);
    ASSERT_TRUE(drawerComesToRest());
    EXPECT_EQ(drawer.state(), DrawerState::open);
    EXPECT_TRUE(control<QAction>("eventLogAction").isChecked());
    click("logDrawerButton");
    EXPECT_EQ(drawer.state(), DrawerState::closing);
    click("logDrawerButton");
    EXPECT_EQ(drawer.state(), DrawerState::closing);
    ASSERT_TRUE(drawerComesToRest());
    EXPECT_EQ(drawer.state(), DrawerState::closed);
    EXPECT_FALSE(log.isVisible());
    EXPECT_FALSE(control<QAction>("eventLogAction").isChecked());
}

TEST_F(MainWindowTest, TextLoggedWhileTheDrawerMovesReachesTheView) {
    launch();
    click("logDrawerButton");
    controller.appendString("\nwhile opening");
    const auto& log = control<LogTextView>("logTextView");
    EXPECT_TRUE(log.toPlainText().endsWith("\nwhile opening"));
    ASSERT_TRUE(drawerComesToRest());
    click("logDrawerButton");
    controller.appendString("\nwhile closing");
    EXPECT_TRUE(log.toPlainText().endsWith("\nwhile closing"));
    ASSERT_TRUE(drawerComesToRest());
    controller.appendString("\nwhile closed");
    EXPECT_FALSE(log.toPlainText().contains("while closed"));
    click("logDrawerButton");
    EXPECT_TRUE(log.toPlainText().endsWith("\nwhile closed"));
}

TEST_F(MainWindowTest, TheLogCanBeSelectedAndCopiedButNotChanged) {
    launch();
    click("logDrawerButton");
    ASSERT_TRUE(drawerComesToRest());
    auto& log = control<LogTextView>("logTextView");
    log.setFocus();
    type("typed");
    EXPECT_EQ(log.toPlainText().toStdString(), controller.eventLog());
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), controller.eventLog());
}

TEST_F(MainWindowTest, MenuShortcutsDoWhatTheButtonsDo) {
    launchWithTwoUnits();
    newlySent();
    press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(newlySent(), Texts{"^^IdX"});
    press(Qt::Key_Return, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(newlySent(), Texts{"^^IdV\r"});
    press(Qt::Key_F8, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(newlySent(), Texts{"^^IdZ"});
    press(Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(window.outlets().eventLogDrawer->state(), DrawerState::opening);
    press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(newlySent(), Texts{"^^IdX"});
    EXPECT_EQ(selected("unitSelectPopUp"), "(none)");
}

TEST_F(MainWindowTest, ClosingTheWindowEndsTheApplication) {
    launch();
    window.close();
    EXPECT_EQ(application.terminateCount(), 1);
}

TEST_F(MainWindowTest, QuitClosesTheWindow) {
    launch();
    press(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(application.terminateCount(), 1);
}

TEST_F(MainWindowTest, NothingReachesAControllerThatWasTakenAway) {
    launchWithTwoUnits();
    newlySent();
    window.disconnectActions();
    click("discoverButton");
    click("sendOptionButton");
    press(Qt::Key_L, Qt::ControlModifier);
    window.close();
    EXPECT_EQ(newlySent(), Texts{});
    EXPECT_EQ(application.terminateCount(), 0);
}

} // namespace kx
