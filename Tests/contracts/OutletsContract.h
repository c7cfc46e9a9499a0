// The contract of the window's plain controls (Outlets.h): tests that every adapter must pass.
// Tables have TableViewContract.h, window and application WindowContract.h.
//
// An adapter takes part through a trait: a default-constructible class that makes the control,
// gives the contents that a person sees, and does what a person does. The control runs its action
// when a person uses it; a test sets the action with setAction(std::function<void()>).
//
//   pop-up       PopUpButton& control(); std::vector<std::string> titles(); bool isEnabled();
//                void chooseItem(const std::string& title), as a person does; setAction();
//                Titles dimmedTitles(); std::string spokenDescriptionOfSelected()
//   text field   TextField& control();
//                void type(const std::string& text), as a person does; setAction()
//   button       Button& control(); std::string toolTip(), as a person reads it;
//                std::string spokenDescription(), as a screen reader says it
//   text label   TextLabel& control(); std::string shownText()
//   text view    TextView& control(); std::string text(); bool isEndVisible(), which waits for
//                the view to show its text
//   drawer       Drawer& control(), closed at first; void finishMoving()
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, PopUpButtonContract, RecordedPopUpButtonTrait);

#pragma once

#include "Outlets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
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

TYPED_TEST_P(TextFieldContract, TypingRunsTheActionAndGivesTheText) {
    int actions = 0;
    this->trait.setAction([&] { ++actions; });
    this->trait.type("V");
    EXPECT_EQ(this->trait.control().stringValue(), "V");
    EXPECT_EQ(actions, 1);
}

TYPED_TEST_P(TextFieldContract, SettingTheTextRunsNoAction) {
    int actions = 0;
    this->trait.setAction([&] { ++actions; });
    this->trait.control().setStringValue("V");
    this->trait.control().setStringValue("");
    EXPECT_EQ(actions, 0);
}

REGISTER_TYPED_TEST_SUITE_P(TextFieldContract, TypingRunsTheActionAndGivesTheText,
                            SettingTheTextRunsNoAction, IsEmptyAtFirst, GivesBackTheTextThatWasSet,
                            EmptyTextReplacesWhatWasThere);

// --- Button ---

template<class Trait>
class ButtonContract : public ::testing::Test {
protected:
    Trait trait;
};

TYPED_TEST_SUITE_P(ButtonContract);

TYPED_TEST_P(ButtonContract, ItsDescriptionIsShownAndSaid) {
    EXPECT_EQ(this->trait.toolTip(), "");
    EXPECT_EQ(this->trait.spokenDescription(), "");
    for (const char* const text : {"Asks the unit at 192.0.2.11.", "<b>&amp;</b> “網路”"}) {
        this->trait.control().setDescription(text);
        EXPECT_EQ(this->trait.toolTip(), text);
        EXPECT_EQ(this->trait.spokenDescription(), text);
    }
}

REGISTER_TYPED_TEST_SUITE_P(ButtonContract, ItsDescriptionIsShownAndSaid);

// --- Text label ---

template<class Trait>
class TextLabelContract : public ::testing::Test {
protected:
    Trait trait;
};

TYPED_TEST_SUITE_P(TextLabelContract);

TYPED_TEST_P(TextLabelContract, ShowsTheTextThatWasSet) {
    EXPECT_EQ(this->trait.shownText(), "");
    this->trait.control().setStringValue("Apply sends nothing: no unit is selected.");
    EXPECT_EQ(this->trait.shownText(), "Apply sends nothing: no unit is selected.");
    this->trait.control().setStringValue("“Grün” & 網路");
    EXPECT_EQ(this->trait.shownText(), "“Grün” & 網路");
    this->trait.control().setStringValue("");
    EXPECT_EQ(this->trait.shownText(), "");
}

TYPED_TEST_P(TextLabelContract, WhatLooksLikeMarkupIsText) {
    this->trait.control().setStringValue("<b>&amp;</b>");
    EXPECT_EQ(this->trait.shownText(), "<b>&amp;</b>");
}

REGISTER_TYPED_TEST_SUITE_P(TextLabelContract, ShowsTheTextThatWasSet, WhatLooksLikeMarkupIsText);

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
    this->control().setString(LogText("[Begin Discover]"));
    this->control().insertAtEnd("\nUDP listener did start. ");
    this->control().insertAtEnd("0.0.0.0:3520");
    EXPECT_EQ(this->trait.text(), "[Begin Discover]\nUDP listener did start. 0.0.0.0:3520");
}

TYPED_TEST_P(TextViewContract, SettingTheTextReplacesAllOfIt) {
    this->control().insertAtEnd("\nold");
    this->control().setString(LogText("[Begin Discover]\nnew"));
    EXPECT_EQ(this->trait.text(), "[Begin Discover]\nnew");
    this->control().setString(LogText(""));
    EXPECT_EQ(this->trait.text(), "");
}

TYPED_TEST_P(TextViewContract, KeepsLineBreaksTabsAndBlanks) {
    const std::string text = "\n\tunit ID: 42\n  two blanks before\n";
    this->control().setString(LogText(text));
    EXPECT_EQ(this->trait.text(), text);
}

TYPED_TEST_P(TextViewContract, KeepsEveryOtherCharacterAsItIs) {
    const std::string text = "a\r\nb\rc\v\f\u0085d\u2028e\u2029f\u00A0g\u200B網😀\x7F\x1B[0m";
    this->control().setString(LogText(text));
    this->control().insertAtEnd(text);
    EXPECT_EQ(this->trait.text(), text + text);
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
                            KeepsEveryOtherCharacterAsItIs, ScrollingShowsTheEndOfALongText);

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
