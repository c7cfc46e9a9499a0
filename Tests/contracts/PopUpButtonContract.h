// The contract of the window's pop-up button (Outlets.h): tests that every adapter must pass.
//
// An adapter takes part through a trait: a default-constructible class that makes the control,
// gives the contents that a person sees, and does what a person does. The control runs its action
// when a person uses it; a test sets the action with setAction(std::function<void()>).
//
//   PopUpButton& control(); std::vector<std::string> titles(); bool isEnabled();
//   void chooseItem(const std::string& title), as a person does; setAction();
//   Titles dimmedTitles(); std::string spokenDescriptionOfSelected()
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, PopUpButtonContract, RecordedPopUpButtonTrait);

#pragma once

#include "Outlets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace kx {

using Titles = std::vector<std::string>;

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

TYPED_TEST_P(PopUpButtonContract, ChoiceOfAPersonRunsTheAction) {
    int actions = 0;
    this->trait.setAction([&] { ++actions; });
    this->control().addItemsWithTitles({"one", "two"});
    this->trait.chooseItem("two");
    EXPECT_EQ(this->selectedTitle(), "two");
    EXPECT_EQ(actions, 1);
}

TYPED_TEST_P(PopUpButtonContract, NothingThatCodeDoesRunsTheAction) {
    int actions = 0;
    this->trait.setAction([&] { ++actions; });
    this->control().addItemsWithTitles({"one", "two"});
    this->control().selectItemAtIndex(1);
    this->control().selectItemWithTitle("one");
    this->control().addItemsWithTitles({"one"});
    this->control().selectItemWithTitle("nowhere");
    this->control().selectItemAtIndex(0);
    this->control().setEnabled(false);
    this->control().setEnabled(true);
    this->control().removeAllItems();
    EXPECT_EQ(actions, 0);
}

TYPED_TEST_P(PopUpButtonContract, TitlesAreDimmedAsTheFunctionSaysNow) {
    Titles silent{"two"};
    this->control().addItemsWithTitles({"one", "two", "three"});
    this->control().setDimming(
        [&silent](std::string_view title) {
            return std::find(silent.begin(), silent.end(), title) != silent.end();
        },
        "Silent.");
    EXPECT_EQ(this->trait.dimmedTitles(), Titles{"two"});
    EXPECT_EQ(this->trait.spokenDescriptionOfSelected(), "");
    silent = {"one", "four"};
    this->control().refreshDimming();
    EXPECT_EQ(this->trait.dimmedTitles(), Titles{"one"});
    EXPECT_EQ(this->trait.spokenDescriptionOfSelected(), "Silent.");
    this->control().addItemsWithTitles({"four"});
    EXPECT_EQ(this->trait.dimmedTitles(), (Titles{"one", "four"}));
    EXPECT_EQ(this->trait.titles(), (Titles{"one", "two", "three", "four"}));
    this->control().setDimming({}, {});
    EXPECT_EQ(this->trait.dimmedTitles(), Titles{});
    EXPECT_EQ(this->trait.spokenDescriptionOfSelected(), "");
}

REGISTER_TYPED_TEST_SUITE_P(
    PopUpButtonContract, TitlesAreDimmedAsTheFunctionSaysNow, ChoiceOfAPersonRunsTheAction,
    NothingThatCodeDoesRunsTheAction, EmptyPopUpHasNoSelectedTitle, FirstItemAddedBecomesSelected,
    SelectedTitleStaysSelectedWhenItemsAreAdded, AddingAnExistingTitleMovesItToTheEnd,
    SelectedTitleStaysSelectedWhenItIsReplaced, EqualTitlesOfOneCallGiveOneItem,
    TitlesThatDifferInCaseOrBlanksAreDifferent, SelectingAnIndexBeyondTheItemsDoesNothing,
    SelectingAnIndexOfAnEmptyPopUpDoesNothing, SelectsByTitle,
    SelectingAnUnknownTitleSelectsNothing, AddingToAPopUpWithoutSelectionSelectsTheFirstItem,
    RemovingAllItemsRemovesTheSelection, KeepsTitlesInUTF8, IsEnabledUntilItIsDisabled);

} // namespace kx
