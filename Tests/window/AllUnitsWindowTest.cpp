// The window of all units: what it shows, says and copies.

#include "AllUnitsFixture.h"
#include "ScreenReader.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QPushButton>

namespace kx {

namespace {

using Texts = std::vector<std::string>;

std::string clipboard() {
    return utf8Text(QGuiApplication::clipboard()->text());
}

} // namespace

// --- Rows ---

TEST_F(AllUnitsWindowTest, WithoutUnitsItSaysWhatToDo) {
    open();
    EXPECT_EQ(count(), "");
    EXPECT_EQ(utf8Text(table().placeholderText()),
              "No unit has answered yet. Press Discover in the main window.");
    EXPECT_EQ(table().accessibleDescription(), table().placeholderText());
    EXPECT_FALSE(control<QPushButton>("allUnitsExportButton").isEnabled());
}

TEST_F(AllUnitsWindowTest, EveryUnitIsARowWithItsStateInWords) {
    hearFour();
    open();
    EXPECT_EQ(count(), "4 units");
    EXPECT_EQ(column(UnitColumn::serialNumber),
              (Texts{sampleSerial(1), sampleSerial(2), sampleSerial(3), sampleSerial(4)}));
    EXPECT_EQ(column(UnitColumn::state),
              (Texts{"Answered", "⚠ Address used twice", "⚠ Address used twice", "○ No answer"}));
    EXPECT_EQ(text(0, UnitColumn::interface), "eth2");
}

TEST_F(AllUnitsWindowTest, UnitsThatAnswerWhileItIsOpenComeIn) {
    hear(heardUnit(1));
    open();
    EXPECT_EQ(count(), "1 unit");
    hear(heardUnit(3));
    hear(heardUnit(2));
    settle();
    EXPECT_EQ(column(UnitColumn::serialNumber),
              (Texts{sampleSerial(1), sampleSerial(2), sampleSerial(3)}));
    EXPECT_EQ(count(), "3 units");
}

TEST_F(AllUnitsWindowTest, UnitsThatAnswerWhileItIsClosedAreThereWhenItOpensAgain) {
    hear(heardUnit(1));
    open();
    press(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    hear(heardUnit(2));
    table().sortByColumn(0, Qt::DescendingOrder);
    QTest::qWait(200);
    EXPECT_EQ(model().rowCount(), 1) << "a hidden window does no work";
    open();
    EXPECT_EQ(model().rowCount(), 2);
}

TEST_F(AllUnitsWindowTest, TheTimeOfTheLatestAnswerHasADateOnAnotherDay) {
    now = QDateTime::currentDateTime().toMSecsSinceEpoch();
    hear(heardUnit(1));
    now -= 86'400'000;
    hear(heardUnit(2));
    open();
    EXPECT_EQ(text(0, UnitColumn::lastHeard).size(), std::string("14:03:22").size());
    EXPECT_EQ(text(1, UnitColumn::lastHeard).size(), std::string("2026-11-22 14:03:22").size());
}

TEST_F(AllUnitsWindowTest, AForeignUnitIDCannotActInTheTable) {
    HeardUnit unit = heardUnit(1);
    setUnitID(unit, {'a', '\n', '\t', 0x1B, 'b', 0});
    hear(unit);
    open();
    EXPECT_EQ(text(0, UnitColumn::unitID), "a\uFFFD\uFFFD\uFFFDb");
}

TEST_F(AllUnitsWindowTest, UnitsThatAreClearedMeanwhileLeaveEmptyRowsUntilTheyGo) {
    hearFour();
    open();
    units.clear();
    EXPECT_EQ(text(0, UnitColumn::serialNumber), "");
    table().grab();
    settle();
    EXPECT_EQ(model().rowCount(), 0);
}

TEST_F(AllUnitsWindowTest, SelectedRowsStaySelectedWhileOthersComeAndGo) {
    for (const int number : {2, 4, 6}) {
        hear(heardUnit(static_cast<std::uint32_t>(number)));
    }
    open();
    select(1);
    for (const int number : {1, 3, 5}) {
        hear(heardUnit(static_cast<std::uint32_t>(number)));
    }
    settle();
    const auto selected = [this] {
        Texts serials;
        for (const QModelIndex& index : table().selectionModel()->selectedRows()) {
            serials.push_back(text(index.row(), UnitColumn::serialNumber));
        }
        return serials;
    };
    EXPECT_EQ(selected(), (Texts{sampleSerial(4)}));
    EXPECT_EQ(table().currentIndex().row(), 3);
    table().sortByColumn(0, Qt::DescendingOrder);
    settle();
    EXPECT_EQ(selected(), (Texts{sampleSerial(4)}));
    typeFilter("4B5800000004");
    EXPECT_EQ(selected(), (Texts{sampleSerial(4)}));
    typeFilter("4B5800000005");
    EXPECT_EQ(selected(), Texts{});
}

// --- Filter and keys ---

TEST_F(AllUnitsWindowTest, TheFilterHidesAndTheCountSaysSo) {
    hearFour();
    open();
    type("used twice");
    settle();
    EXPECT_EQ(count(), "4 units, 2 shown");
    typeFilter("nowhere");
    EXPECT_EQ(count(), "4 units, 0 shown");
    EXPECT_EQ(utf8Text(table().placeholderText()), "No unit contains the text of the filter.");
    EXPECT_FALSE(control<QPushButton>("allUnitsExportButton").isEnabled());
}

TEST_F(AllUnitsWindowTest, EscapeTakesTheFilterAwayAndThenTheWindow) {
    hearFour();
    open();
    typeFilter("4B5800000001");
    press(Qt::Key_Escape);
    settle();
    EXPECT_EQ(filter().text(), "");
    EXPECT_EQ(model().rowCount(), 4);
    EXPECT_TRUE(window.isVisible());
    press(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(AllUnitsWindowTest, TypingInTheTableGoesToTheFilter) {
    hearFour();
    open();
    filter().setText("0");
    table().setFocus();
    type("4");
    settle();
    EXPECT_TRUE(filter().hasFocus());
    EXPECT_EQ(filter().text(), "04");
    table().setFocus();
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(filter().hasFocus());
    EXPECT_EQ(filter().selectedText(), "04");
}

TEST_F(AllUnitsWindowTest, TheKeyboardLeadsFromTheFilterToAUnit) {
    hearFour();
    open();
    EXPECT_TRUE(filter().hasFocus());
    press(Qt::Key_Return);
    EXPECT_TRUE(table().hasFocus());
    EXPECT_EQ(table().selectionModel()->selectedRows().value(0).row(), 0);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(picked, (Texts{sampleSerial(2)}));
    press(Qt::Key_Tab);
    EXPECT_TRUE(control<QPushButton>("allUnitsExportButton").hasFocus());
    press(Qt::Key_Backtab);
    press(Qt::Key_Backtab);
    EXPECT_TRUE(control<QPushButton>("allUnitsColumnsButton").hasFocus());
}

TEST_F(AllUnitsWindowTest, ADoubleClickPicksItsUnit) {
    hearFour();
    open();
    const QPoint place = table().visualRect(cell(2, UnitColumn::internalIPAddress)).center();
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(picked, (Texts{sampleSerial(3)}));
    control<QAction>("showUnitAction").trigger();
    EXPECT_EQ(picked, (Texts{sampleSerial(3), sampleSerial(3)}));
}

TEST_F(AllUnitsWindowTest, HelpOpensItsOwnPage) {
    open();
    press(Qt::Key_F1);
    QTest::mouseClick(&control<QPushButton>("allUnitsHelpButton"), Qt::LeftButton);
    EXPECT_EQ(helpPages, (Texts{"all-units", "all-units"}));
}

// --- A screen reader ---

TEST_F(AllUnitsWindowTest, AScreenReaderHearsHeadsValuesAndWhatIsWrong) {
    hearFour();
    open();
    EXPECT_EQ(table().accessibleName(), "All Units");
    QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(&table());
    QAccessibleTableInterface* const cells = accessible->tableInterface();
    ASSERT_NE(cells, nullptr);
    const auto destination = static_cast<int>(UnitColumn::destinationMACAddress);
    EXPECT_EQ(utf8Text(cells->columnDescription(destination).replace('\n', ' ')),
              "Destination MAC address");
    const auto of = [&](int row, UnitColumn column, QAccessible::Text kind) {
        return utf8Text(cells->cellAt(row, static_cast<int>(column))->text(kind));
    };
    EXPECT_EQ(of(1, UnitColumn::state, QAccessible::Name), "Address used twice");
    EXPECT_EQ(of(1, UnitColumn::internalIPAddress, QAccessible::Description),
              "The unit 4B 58 00 00 00 03 has the address 192.0.2.2, too.");
    EXPECT_EQ(of(3, UnitColumn::state, QAccessible::Name), "No answer");
    EXPECT_EQ(of(3, UnitColumn::state, QAccessible::Description),
              "It did not answer the latest Discover.");
}

TEST_F(AllUnitsWindowTest, TheCountIsANotification) {
    hearFour();
    open();
    QAccessibleInterface* const accessible =
        QAccessible::queryAccessibleInterface(&control<QLabel>("allUnitsCount"));
    EXPECT_EQ(accessible->role(), QAccessible::Notification);
    EXPECT_EQ(accessible->text(QAccessible::Name), "4 units");
}

// --- Copying ---

TEST_F(AllUnitsWindowTest, SeveralRowsAreCopiedAsATable) {
    hearFour();
    open();
    for (const UnitColumn column : table().shownColumns()) {
        const bool isWanted = column == UnitColumn::serialNumber || column == UnitColumn::state;
        table().setColumnShown(column, isWanted);
    }
    table().setFocus();
    select(0);
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "Serial number\tState\n"
                           "4B 58 00 00 00 01\tAnswered\n"
                           "4B 58 00 00 00 02\t⚠ Address used twice\n");
    press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(clipboard(), "4B 58 00 00 00 02");
}

TEST_F(AllUnitsWindowTest, AForeignUnitIDCannotForgeACopiedCell) {
    HeardUnit unit = heardUnit(1);
    setUnitID(unit, {'a', '\n', 'b', '\t', 'c', 0});
    hear(unit);
    open();
    select(0);
    control<QAction>("copyRowsAction").trigger();
    EXPECT_EQ(std::ranges::count(clipboard(), '\n'), 2);
    EXPECT_EQ(std::ranges::count(clipboard(), '\t'), 2 * (static_cast<int>(unitColumnCount) - 1));
}

TEST_F(AllUnitsWindowTest, WithoutASelectionTheClipboardStays) {
    hearFour();
    open();
    QGuiApplication::clipboard()->setText("before");
    control<QAction>("copyRowsAction").trigger();
    control<QAction>("copyCellAction").trigger();
    EXPECT_EQ(clipboard(), "before");
}

} // namespace kx
