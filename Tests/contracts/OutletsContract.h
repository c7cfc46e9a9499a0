// What every adapter of the window's controls must do (Outlets.h), as tests that are compiled
// against each of them.
//
// An adapter takes part by a trait: a default-constructible class, for tables one that is
// constructed from the data source, that makes the control and shows what a person sees of it.
//
//   pop-up       PopUpButton& control(); std::vector<std::string> titles(); bool isEnabled();
//   text field   TextField& control();
//   table view   Trait(TableViewDataSource&) with the columns "parameterName" and "parameterValue";
//                TableView& control(); int rowCount();
//                std::string cellText(int row, const std::string& identifier);
//                void selectRow(int row), as a person does; -1 selects nothing
//                void typeIntoCell(int row, const std::string& identifier,
//                                  const std::string& text), as a person does
//   text view    TextView& control(); std::string text(); bool isEndVisible();
//   drawer       Drawer& control(), closed at first; void finishMoving()
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, PopUpButtonContract, RecordedPopUpButtonTrait);

#pragma once

#include "Outlets.h"
#include "tables/TableViewDataSource.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kx {

using Titles = std::vector<std::string>;

// --- Pop-up button ---

template<class Trait>
class PopUpButtonContract : public ::testing::Test {
protected:
    PopUpButton& control() { return trait.control(); }
    std::string selectedTitle() { return control().titleOfSelectedItem().value_or("(none)"); }

    Trait trait;
};

TYPED_TEST_SUITE_P(PopUpButtonContract);

TYPED_TEST_P(PopUpButtonContract, EmptyPopUpHasNoSelectedTitle) {
    EXPECT_EQ(this->control().titleOfSelectedItem(), std::nullopt);
    EXPECT_EQ(this->trait.titles(), Titles{});
}

TYPED_TEST_P(PopUpButtonContract, FirstItemAddedBecomesSelected) {
    this->control().addItemsWithTitles({"one", "two"});
    EXPECT_EQ(this->trait.titles(), (Titles{"one", "two"}));
    EXPECT_EQ(this->selectedTitle(), "one");
}

TYPED_TEST_P(PopUpButtonContract, SelectedTitleStaysSelectedWhenItemsAreAdded) {
    this->control().addItemsWithTitles({"one", "two"});
    this->control().selectItemAtIndex(1);
    this->control().addItemsWithTitles({"three"});
    EXPECT_EQ(this->trait.titles(), (Titles{"one", "two", "three"}));
    EXPECT_EQ(this->selectedTitle(), "two");
}

TYPED_TEST_P(PopUpButtonContract, AddingAnExistingTitleMovesItToTheEnd) {
    this->control().addItemsWithTitles({"one", "two", "three"});
    this->control().addItemsWithTitles({"two"});
    EXPECT_EQ(this->trait.titles(), (Titles{"one", "three", "two"}));
}

TYPED_TEST_P(PopUpButtonContract, SelectedTitleStaysSelectedWhenItIsReplaced) {
    this->control().addItemsWithTitles({"one", "two", "three"});
    this->control().addItemsWithTitles({"one"});
    EXPECT_EQ(this->trait.titles(), (Titles{"two", "three", "one"}));
    EXPECT_EQ(this->selectedTitle(), "one");
}

TYPED_TEST_P(PopUpButtonContract, EqualTitlesOfOneCallGiveOneItem) {
    this->control().addItemsWithTitles({"one", "two", "one"});
    EXPECT_EQ(this->trait.titles(), (Titles{"two", "one"}));
}

TYPED_TEST_P(PopUpButtonContract, TitlesThatDifferInCaseOrBlanksAreDifferent) {
    this->control().addItemsWithTitles({"one", "One", "one "});
    EXPECT_EQ(this->trait.titles(), (Titles{"one", "One", "one "}));
}

TYPED_TEST_P(PopUpButtonContract, SelectingAnIndexBeyondTheItemsDoesNothing) {
    this->control().addItemsWithTitles({"one", "two"});
    this->control().selectItemAtIndex(1);
    this->control().selectItemAtIndex(2);
    this->control().selectItemAtIndex(-1);
    EXPECT_EQ(this->selectedTitle(), "two");
}

TYPED_TEST_P(PopUpButtonContract, SelectingAnIndexOfAnEmptyPopUpDoesNothing) {
    this->control().selectItemAtIndex(0);
    EXPECT_EQ(this->control().titleOfSelectedItem(), std::nullopt);
}

TYPED_TEST_P(PopUpButtonContract, SelectsByTitle) {
    this->control().addItemsWithTitles({"one", "two"});
    this->control().selectItemWithTitle("two");
    EXPECT_EQ(this->selectedTitle(), "two");
}

TYPED_TEST_P(PopUpButtonContract, SelectingAnUnknownTitleSelectsNothing) {
    this->control().addItemsWithTitles({"one", "two"});
    this->control().selectItemWithTitle("three");
    EXPECT_EQ(this->control().titleOfSelectedItem(), std::nullopt);
}

TYPED_TEST_P(PopUpButtonContract, AddingToAPopUpWithoutSelectionSelectsTheFirstItem) {
    this->control().addItemsWithTitles({"one", "two"});
    this->control().selectItemWithTitle("nowhere");
    this->control().addItemsWithTitles({"three"});
    EXPECT_EQ(this->selectedTitle(), "one");
}

TYPED_TEST_P(PopUpButtonContract, RemovingAllItemsRemovesTheSelection) {
    this->control().addItemsWithTitles({"one", "two"});
    this->control().removeAllItems();
    EXPECT_EQ(this->trait.titles(), Titles{});
    EXPECT_EQ(this->control().titleOfSelectedItem(), std::nullopt);
}

TYPED_TEST_P(PopUpButtonContract, KeepsTitlesInUTF8) {
    this->control().addItemsWithTitles({"Büro (eth0)", "網路 (eth1)"});
    this->control().selectItemWithTitle("網路 (eth1)");
    EXPECT_EQ(this->selectedTitle(), "網路 (eth1)");
}

TYPED_TEST_P(PopUpButtonContract, IsEnabledUntilItIsDisabled) {
    EXPECT_TRUE(this->trait.isEnabled());
    this->control().setEnabled(false);
    EXPECT_FALSE(this->trait.isEnabled());
    this->control().setEnabled(true);
    EXPECT_TRUE(this->trait.isEnabled());
}

REGISTER_TYPED_TEST_SUITE_P(
    PopUpButtonContract, EmptyPopUpHasNoSelectedTitle, FirstItemAddedBecomesSelected,
    SelectedTitleStaysSelectedWhenItemsAreAdded, AddingAnExistingTitleMovesItToTheEnd,
    SelectedTitleStaysSelectedWhenItIsReplaced, EqualTitlesOfOneCallGiveOneItem,
    TitlesThatDifferInCaseOrBlanksAreDifferent, SelectingAnIndexBeyondTheItemsDoesNothing,
    SelectingAnIndexOfAnEmptyPopUpDoesNothing, SelectsByTitle,
    SelectingAnUnknownTitleSelectsNothing, AddingToAPopUpWithoutSelectionSelectsTheFirstItem,
    RemovingAllItemsRemovesTheSelection, KeepsTitlesInUTF8, IsEnabledUntilItIsDisabled);

// --- Text field ---

template<class Trait>
class TextFieldContract : public ::testing::Test {
protected:
    Trait trait;
};

TYPED_TEST_SUITE_P(TextFieldContract);

TYPED_TEST_P(TextFieldContract, IsEmptyAtFirst) {
    EXPECT_EQ(this->trait.control().stringValue(), "");
}

TYPED_TEST_P(TextFieldContract, GivesBackTheTextThatWasSet) {
    this->trait.control().setStringValue("-Z11152347");
    EXPECT_EQ(this->trait.control().stringValue(), "-Z11152347");
    this->trait.control().setStringValue("  Ä  ");
    EXPECT_EQ(this->trait.control().stringValue(), "  Ä  ");
}

TYPED_TEST_P(TextFieldContract, EmptyTextReplacesWhatWasThere) {
    this->trait.control().setStringValue("V");
    this->trait.control().setStringValue("");
    EXPECT_EQ(this->trait.control().stringValue(), "");
}

REGISTER_TYPED_TEST_SUITE_P(TextFieldContract, IsEmptyAtFirst, GivesBackTheTextThatWasSet,
                            EmptyTextReplacesWhatWasThere);

// --- Table view ---

// Rows that a test changes at will; the view must not notice before it is told to reload.
class ListedRows final : public TableViewDataSource {
public:
    using Row = std::map<std::string, std::string, std::less<>>;

    std::vector<Row> rows;

    int numberOfRowsInTableView() override { return static_cast<int>(rows.size()); }

    std::optional<PropertyListValue>
    tableViewObjectValueForTableColumnRow(const TableColumn& column, int row) override {
        const Row& cells = rows.at(static_cast<std::size_t>(row));
        const auto found = cells.find(column.identifier);
        return found != cells.end() ? std::optional(PropertyListValue(found->second))
                                    : std::nullopt;
    }

    void tableViewSetObjectValueForTableColumnRow(const PropertyListValue& value,
                                                  const TableColumn& column, int row) override {
        rows.at(static_cast<std::size_t>(row))[column.identifier] = value.description();
    }
};

template<class Trait>
class TableViewContract : public ::testing::Test {
protected:
    void showRows(int count) {
        source.rows.clear();
        for (int row = 0; row < count; ++row) {
            source.rows.push_back({{"parameterName", "name " + std::to_string(row)},
                                   {"parameterValue", "value " + std::to_string(row)}});
        }
        trait.control().reloadData();
    }

    ListedRows source;
    Trait trait{source};
};

TYPED_TEST_SUITE_P(TableViewContract);

TYPED_TEST_P(TableViewContract, ShowsNoRowsOfAnEmptySource) {
    this->trait.control().reloadData();
    EXPECT_EQ(this->trait.rowCount(), 0);
    EXPECT_EQ(this->trait.control().selectedRow(), -1);
}

TYPED_TEST_P(TableViewContract, ShowsEveryCellAfterReload) {
    this->showRows(2);
    ASSERT_EQ(this->trait.rowCount(), 2);
    EXPECT_EQ(this->trait.cellText(0, "parameterName"), "name 0");
    EXPECT_EQ(this->trait.cellText(0, "parameterValue"), "value 0");
    EXPECT_EQ(this->trait.cellText(1, "parameterName"), "name 1");
    EXPECT_EQ(this->trait.cellText(1, "parameterValue"), "value 1");
}

TYPED_TEST_P(TableViewContract, ShowsAnAbsentValueAsAnEmptyCell) {
    this->source.rows = {{{"parameterName", "unit ID"}}};
    this->trait.control().reloadData();
    EXPECT_EQ(this->trait.cellText(0, "parameterName"), "unit ID");
    EXPECT_EQ(this->trait.cellText(0, "parameterValue"), "");
}

TYPED_TEST_P(TableViewContract, FollowsItsSourceWhenRowsCome) {
    this->showRows(1);
    this->showRows(8);
    ASSERT_EQ(this->trait.rowCount(), 8);
    EXPECT_EQ(this->trait.cellText(7, "parameterValue"), "value 7");
}

TYPED_TEST_P(TableViewContract, FollowsItsSourceWhenRowsGo) {
    this->showRows(8);
    this->showRows(0);
    EXPECT_EQ(this->trait.rowCount(), 0);
}

TYPED_TEST_P(TableViewContract, HasNoSelectionUntilARowIsSelected) {
    this->showRows(3);
    EXPECT_EQ(this->trait.control().selectedRow(), -1);
    this->trait.selectRow(2);
    EXPECT_EQ(this->trait.control().selectedRow(), 2);
    this->trait.selectRow(-1);
    EXPECT_EQ(this->trait.control().selectedRow(), -1);
}

TYPED_TEST_P(TableViewContract, ReloadKeepsTheSelectionOfARowThatStillExists) {
    this->showRows(3);
    this->trait.selectRow(1);
    this->showRows(2);
    EXPECT_EQ(this->trait.control().selectedRow(), 1);
}

TYPED_TEST_P(TableViewContract, ReloadDropsTheSelectionOfARowThatIsGone) {
    this->showRows(3);
    this->trait.selectRow(2);
    this->showRows(2);
    EXPECT_EQ(this->trait.control().selectedRow(), -1);
}

TYPED_TEST_P(TableViewContract, GivesWhatIsTypedToItsSource) {
    this->showRows(2);
    this->trait.typeIntoCell(1, "parameterValue", "192.168.1.20");
    EXPECT_EQ(this->source.rows[1]["parameterValue"], "192.168.1.20");
    EXPECT_EQ(this->source.rows[0]["parameterValue"], "value 0");
}

REGISTER_TYPED_TEST_SUITE_P(TableViewContract, ShowsNoRowsOfAnEmptySource,
                            ShowsEveryCellAfterReload, ShowsAnAbsentValueAsAnEmptyCell,
                            FollowsItsSourceWhenRowsCome, FollowsItsSourceWhenRowsGo,
                            HasNoSelectionUntilARowIsSelected,
                            ReloadKeepsTheSelectionOfARowThatStillExists,
                            ReloadDropsTheSelectionOfARowThatIsGone, GivesWhatIsTypedToItsSource);

// --- Text view ---

template<class Trait>
class TextViewContract : public ::testing::Test {
protected:
    TextView& control() { return trait.control(); }

    Trait trait;
};

TYPED_TEST_SUITE_P(TextViewContract);

TYPED_TEST_P(TextViewContract, IsEmptyAtFirst) {
    EXPECT_EQ(this->trait.text(), "");
}

TYPED_TEST_P(TextViewContract, InsertsAtTheEndExactlyWhatItIsGiven) {
    this->control().setString("[Begin Discover]");
    this->control().insertAtEnd("\nUDP listener did start. ");
    this->control().insertAtEnd("0.0.0.0:3520");
    EXPECT_EQ(this->trait.text(), "[Begin Discover]\nUDP listener did start. 0.0.0.0:3520");
}

TYPED_TEST_P(TextViewContract, SettingTheTextReplacesAllOfIt) {
    this->control().insertAtEnd("\nold");
    this->control().setString("[Begin Discover]\nnew");
    EXPECT_EQ(this->trait.text(), "[Begin Discover]\nnew");
    this->control().setString("");
    EXPECT_EQ(this->trait.text(), "");
}

TYPED_TEST_P(TextViewContract, KeepsLineBreaksTabsAndBlanks) {
    const std::string text = "\n\tunit ID: 42\n  two blanks before\n";
    this->control().setString(text);
    EXPECT_EQ(this->trait.text(), text);
}

TYPED_TEST_P(TextViewContract, ScrollingShowsTheEndOfALongText) {
    for (int line = 0; line < 500; ++line) {
        this->control().insertAtEnd("\nUDP server did send data.");
    }
    this->control().scrollEndToVisible();
    EXPECT_TRUE(this->trait.isEndVisible());
}

REGISTER_TYPED_TEST_SUITE_P(TextViewContract, IsEmptyAtFirst, InsertsAtTheEndExactlyWhatItIsGiven,
                            SettingTheTextReplacesAllOfIt, KeepsLineBreaksTabsAndBlanks,
                            ScrollingShowsTheEndOfALongText);

// --- Drawer ---

template<class Trait>
class DrawerContract : public ::testing::Test {
protected:
    Drawer& control() { return trait.control(); }

    Trait trait;
};

TYPED_TEST_SUITE_P(DrawerContract);

TYPED_TEST_P(DrawerContract, OpeningEndsOpen) {
    this->control().open();
    const DrawerState meanwhile = this->control().state();
    EXPECT_TRUE(meanwhile == DrawerState::opening || meanwhile == DrawerState::open);
    this->trait.finishMoving();
    EXPECT_EQ(this->control().state(), DrawerState::open);
}

TYPED_TEST_P(DrawerContract, ClosingEndsClosed) {
    this->control().open();
    this->trait.finishMoving();
    this->control().close();
    const DrawerState meanwhile = this->control().state();
    EXPECT_TRUE(meanwhile == DrawerState::closing || meanwhile == DrawerState::closed);
    this->trait.finishMoving();
    EXPECT_EQ(this->control().state(), DrawerState::closed);
}

TYPED_TEST_P(DrawerContract, ClosingAClosedDrawerLeavesItClosed) {
    EXPECT_EQ(this->control().state(), DrawerState::closed);
    this->control().close();
    EXPECT_EQ(this->control().state(), DrawerState::closed);
}

TYPED_TEST_P(DrawerContract, OpeningAnOpenDrawerLeavesItOpen) {
    this->control().open();
    this->trait.finishMoving();
    this->control().open();
    EXPECT_EQ(this->control().state(), DrawerState::open);
}

REGISTER_TYPED_TEST_SUITE_P(DrawerContract, OpeningEndsOpen, ClosingEndsClosed,
                            ClosingAClosedDrawerLeavesItClosed, OpeningAnOpenDrawerLeavesItOpen);

} // namespace kx
