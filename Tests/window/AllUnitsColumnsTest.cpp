// The columns of the table of all units: sorted, moved, hidden, and remembered.

#include "AllUnitsFixture.h"

#include <QHeaderView>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>

namespace kx {

namespace {

using Texts = std::vector<std::string>;

class AllUnitsColumns : public AllUnitsWindowTest {
protected:
    void openFour() {
        hearFour();
        open();
        control<AllUnitsView>("allUnitsTable").enterRows();
    }

    Texts shown() {
        Texts titles;
        for (const UnitColumn column : table().shownColumns()) {
            titles.push_back(utf8Text(AllUnitsModel::title(column)));
        }
        return titles;
    }

    // The items of the menu, as it is when it opens.
    QList<QAction*> menuItems() {
        emit table().columnMenu().aboutToShow();
        return table().columnMenu().actions();
    }
    void chooseItem(const QString& title) {
        for (QAction* const item : menuItems()) {
            if (item->text().remove('&') == title) {
                item->trigger();
                return;
            }
        }
        ADD_FAILURE() << "no item " << title.toStdString();
    }
    void goTo(UnitColumn column) {
        table().setCurrentIndex(cell(table().currentIndex().row(), column));
    }
};

} // namespace

TEST_F(AllUnitsColumns, AllOfThemAreSeenInAWindowThatIsWideEnough) {
    for (std::uint32_t number = 1; number <= 100; ++number) {
        hear(heardUnit(number));
    }
    open();
    AllUnitsView alone(model());
    alone.resize(alone.wholeWidth(), 300);
    alone.show();
    ASSERT_TRUE(alone.verticalScrollBar()->isVisible());
    EXPECT_EQ(alone.horizontalScrollBar()->maximum(), 0);
    alone.resize(alone.wholeWidth() - 10, 300);
    EXPECT_GT(alone.horizontalScrollBar()->maximum(), 0);
}

TEST_F(AllUnitsColumns, BeyondTheLastOneThereIsNoTitle) {
    const int count = model().columnCount();
    EXPECT_TRUE(model().headerData(count - 1, Qt::Horizontal, Qt::DisplayRole).isValid());
    EXPECT_FALSE(model().headerData(count, Qt::Horizontal, Qt::DisplayRole).isValid());
}

TEST_F(AllUnitsColumns, AClickOnAHeadSortsAndAnotherTurnsTheOrder) {
    HeardUnit tenth = heardUnit(10);
    hear(tenth);
    openFour();
    const int column = static_cast<int>(UnitColumn::internalIPAddress);
    QHeaderView& heads = *table().horizontalHeader();
    const QPoint place(heads.sectionViewportPosition(column) + 20, heads.height() / 2);
    QTest::mouseClick(heads.viewport(), Qt::LeftButton, {}, place);
    settle();
    EXPECT_EQ(text(4, UnitColumn::internalIPAddress), "192.0.2.10");
    QTest::mouseClick(heads.viewport(), Qt::LeftButton, {}, place);
    settle();
    EXPECT_EQ(text(0, UnitColumn::internalIPAddress), "192.0.2.10");
}

TEST_F(AllUnitsColumns, TheColumnWithTheKeyboardIsSortedByAndMovedByKeys) {
    openFour();
    goTo(UnitColumn::state);
    press(Qt::Key_Up, Qt::AltModifier);
    settle();
    EXPECT_EQ(text(0, UnitColumn::state), "⚠ Address used twice");
    press(Qt::Key_Down, Qt::AltModifier);
    settle();
    EXPECT_EQ(text(0, UnitColumn::state), "Answered");
    press(Qt::Key_Left, Qt::AltModifier);
    press(Qt::Key_Left, Qt::AltModifier);
    press(Qt::Key_Left, Qt::AltModifier); // it is the first already
    EXPECT_EQ(shown()[0], "State");
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(shown()[1], "State");
}

TEST_F(AllUnitsColumns, AColumnMovesOverHiddenOnes) {
    openFour();
    chooseItem("Unit ID");
    goTo(UnitColumn::serialNumber);
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ((Texts{shown()[0], shown()[1]}), (Texts{"State", "Serial number"}));
}

TEST_F(AllUnitsColumns, ColumnsAreHiddenAndShownByTheMenuOfAButton) {
    openFour();
    EXPECT_EQ(control<QPushButton>("allUnitsColumnsButton").menu(), &table().columnMenu());
    goTo(UnitColumn::unitID);
    chooseItem("Unit ID");
    EXPECT_EQ(shown().size(), unitColumnCount - 1);
    EXPECT_FALSE(table().isColumnHidden(table().currentIndex().column()))
        << "the keyboard has gone to a column that is shown";
    chooseItem("Unit ID");
    EXPECT_EQ(shown().size(), unitColumnCount);
}

TEST_F(AllUnitsColumns, TheKeyboardStaysInItsColumnWhenAnotherOneIsHidden) {
    openFour();
    goTo(UnitColumn::state);
    const QModelIndex before = table().currentIndex();
    chooseItem("Unit ID");
    EXPECT_EQ(table().currentIndex(), before);
}

TEST_F(AllUnitsColumns, TheLastColumnStays) {
    openFour();
    for (const UnitColumn column : table().shownColumns()) {
        table().setColumnShown(column, false);
    }
    EXPECT_EQ(shown(), (Texts{"Last heard"}));
    for (const QAction* const item : menuItems()) {
        EXPECT_EQ(item->isEnabled(), !item->isChecked()) << item->text().toStdString();
        if (item->isSeparator()) {
            break;
        }
    }
}

TEST_F(AllUnitsColumns, AHiddenColumnIsNotSearched) {
    openFour();
    typeFilter("eth2");
    EXPECT_EQ(model().rowCount(), 4);
    chooseItem("Interface");
    settle();
    EXPECT_EQ(model().rowCount(), 0);
}

TEST_F(AllUnitsColumns, TheyAreRememberedWhenTheWindowIsClosedAndOpened) {
    openFour();
    goTo(UnitColumn::state);
    press(Qt::Key_Left, Qt::AltModifier);
    press(Qt::Key_Down, Qt::AltModifier);
    chooseItem("Sender");
    const Texts before = shown();
    press(Qt::Key_Escape);
    ASSERT_FALSE(window.isVisible());
    open();
    EXPECT_EQ(shown(), before);
    EXPECT_EQ(table().horizontalHeader()->sortIndicatorSection(),
              static_cast<int>(UnitColumn::state));
    EXPECT_EQ(text(0, UnitColumn::state), "Answered");
}

} // namespace kx
