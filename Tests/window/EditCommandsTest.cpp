// Copy and Select All, by the keys, the menu and the context menu, in every kind of control.

#include "MainWindowFixture.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>

namespace kx {

namespace {

class EditCommandsTest : public MainWindowTest {
protected:
    EditCommandsTest() { QGuiApplication::clipboard()->setText("before"); }

    static std::string clipboard() { return QGuiApplication::clipboard()->text().toStdString(); }

    std::string copiedByKeys() {
        press(Qt::Key_C, Qt::ControlModifier);
        return clipboard();
    }

    QLineEdit* editor() {
        return control<QTableView>("editParameterTableView").viewport()->findChild<QLineEdit*>();
    }
};

} // namespace

TEST_F(EditCommandsTest, TheSelectedRowIsCopiedWithATabBetweenItsCells) {
    launchWithTwoUnits();
    clickParameter(UnitParameter::devicePortNumber);
    EXPECT_EQ(copiedByKeys(), "device Port number\t10000");
}

TEST_F(EditCommandsTest, TheMenuCopiesTheRowToo) {
    launchWithTwoUnits();
    clickParameter(UnitParameter::internalIPAddress, 0);
    control<QAction>("copyAction").trigger();
    EXPECT_EQ(clipboard(), "internal IP address\t192.168.1.10");
}

TEST_F(EditCommandsTest, TheContextMenusOfBothTablesOfferCopy) {
    launch();
    for (const char* table : {"unitParameterTableView", "editParameterTableView"}) {
        auto& view = control<QTableView>(table);
        EXPECT_EQ(view.contextMenuPolicy(), Qt::ActionsContextMenu);
        EXPECT_TRUE(view.actions().contains(&control<QAction>("copyAction")));
    }
    const QList<QAction*> ofParameters = control<QWidget>("unitParameterTableView").actions();
    EXPECT_TRUE(ofParameters.contains(&control<QAction>("copyValueAction")));
    EXPECT_TRUE(ofParameters.contains(&control<QAction>("copyParametersAction")));
}

TEST_F(EditCommandsTest, TheLogOffersFind) {
    launch();
    const QList<QAction*> ofLog = control<QWidget>("logTextView").actions();
    EXPECT_TRUE(ofLog.contains(&control<QAction>("findAction")));
}

TEST_F(EditCommandsTest, ARightClickSelectsTheRowThatCopyThenTakes) {
    launchWithTwoUnits();
    auto& table = control<QTableView>("unitParameterTableView");
    QTest::mouseClick(table.viewport(), Qt::RightButton, Qt::NoModifier,
                      table.visualRect(table.model()->index(2, 1)).center());
    control<QAction>("copyAction").trigger();
    EXPECT_EQ(clipboard(), "destination Port number\t3520");
}

TEST_F(EditCommandsTest, ATableWithoutASelectionLeavesTheClipboardAlone) {
    launchWithTwoUnits();
    control<QWidget>("unitParameterTableView").setFocus();
    EXPECT_EQ(copiedByKeys(), "before");
}

TEST_F(EditCommandsTest, TheEditRowCopiesItsNameAndValue) {
    launchWithTwoUnits();
    auto& editRow = control<QTableView>("editParameterTableView");
    editRow.setFocus();
    EXPECT_EQ(copiedByKeys(), "before"); // the edit row is still empty
    clickParameter(UnitParameter::devicePortNumber);
    editRow.setFocus();
    EXPECT_EQ(copiedByKeys(), "device Port number\t10000");
}

TEST_F(EditCommandsTest, AnOpenEditKeepsItsOwnCopyAndSelectAll) {
    launchWithTwoUnits();
    clickParameter(UnitParameter::devicePortNumber);
    press(Qt::Key_Return);
    type("4711");
    press(Qt::Key_Left, Qt::ShiftModifier);
    press(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(copiedByKeys(), "11");
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(copiedByKeys(), "4711");
    EXPECT_NE(editor(), nullptr);
    control<QAction>("selectAllAction").trigger();
    control<QAction>("copyAction").trigger();
    EXPECT_EQ(clipboard(), "4711");
}

TEST_F(EditCommandsTest, AnOpenEditTakesWhatIsPastedAndGivesWhatIsCut) {
    launchWithTwoUnits();
    clickParameter(UnitParameter::devicePortNumber);
    press(Qt::Key_Return);
    QGuiApplication::clipboard()->setText("3522");
    press(Qt::Key_V, Qt::ControlModifier);
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), "3522");
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(editor()->text(), "");
    EXPECT_EQ(clipboard(), "3522");
}

TEST_F(EditCommandsTest, FieldsGiveTheirSelectedText) {
    launchWithTwoUnits();
    control<QWidget>("unitIDField").setFocus();
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(copiedByKeys(), "42");
}

TEST_F(EditCommandsTest, APopUpGivesItsTitle) {
    launchWithTwoUnits();
    control<QWidget>("unitSelectPopUp").setFocus();
    EXPECT_EQ(copiedByKeys(), "01 02 03 04 05 06");
}

TEST_F(EditCommandsTest, TheQuietLineGivesWhatTheMouseSelected) {
    launchWithTwoUnits();
    control<QLineEdit>("optionCommandField").setText("Zürich");
    click("sendOptionButton");
    auto& line = control<QLabel>("quietLine");
    QTest::mouseDClick(&line, Qt::LeftButton, Qt::NoModifier, QPoint(10, 8));
    EXPECT_EQ(window.focusWidget(), &line);
    EXPECT_EQ(copiedByKeys(), "Not");
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(copiedByKeys(), "Not sent: A command can hold ASCII characters only.");
}

TEST_F(EditCommandsTest, AButtonGivesNothing) {
    launch();
    control<QWidget>("discoverButton").setFocus();
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(copiedByKeys(), "before");
}

TEST_F(EditCommandsTest, TheValueAloneAndAllParametersAreCopiedFromAnywhere) {
    launchWithTwoUnits();
    control<QAction>("copyValueAction").trigger();
    EXPECT_EQ(clipboard(), "before"); // no row is selected
    clickParameter(UnitParameter::devicePortNumber);
    control<QWidget>("discoverButton").setFocus();
    press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(clipboard(), "10000");
    control<QAction>("copyParametersAction").trigger();
    const QStringList rows = QString::fromStdString(clipboard()).split('\n');
    EXPECT_EQ(rows.size(), 9); // the last one is empty
    EXPECT_EQ(rows[0].toStdString(), "destination IP address\t192.168.1.1");
    EXPECT_EQ(rows[7].toStdString(), "unit ID\t42");
}

TEST_F(EditCommandsTest, UndoCutAndPasteWorkInTheFieldWithTheKeyboard) {
    launch();
    auto& field = control<QLineEdit>("optionCommandField");
    field.setFocus();
    field.selectAll();
    control<QAction>("cutAction").trigger();
    EXPECT_EQ(field.text(), "");
    EXPECT_EQ(clipboard(), "V");
    control<QAction>("pasteAction").trigger();
    control<QAction>("pasteAction").trigger();
    EXPECT_EQ(field.text(), "VV");
    control<QAction>("undoAction").trigger();
    EXPECT_EQ(field.text(), "V");
}

TEST_F(EditCommandsTest, TheMenuOffersOnlyWhatWouldDoSomethingAndKeepsItsKeys) {
    launch();
    control<QLineEdit>("unitIDField").setFocus(); // it is read-only
    auto& menu = control<QMenu>("editMenu");
    emit menu.aboutToShow();
    for (const char* name : {"undoAction", "cutAction", "pasteAction"}) {
        EXPECT_FALSE(control<QAction>(name).isEnabled()) << name;
        control<QAction>(name).trigger();
    }
    emit menu.aboutToHide();
    EXPECT_TRUE(control<QAction>("pasteAction").isEnabled());
    control<QLineEdit>("optionCommandField").setFocus();
    emit menu.aboutToShow();
    EXPECT_TRUE(control<QAction>("pasteAction").isEnabled());
    EXPECT_FALSE(control<QAction>("cutAction").isEnabled()); // nothing is selected
}

} // namespace kx
