// The contract of the window's plain controls (Outlets.h): tests that every adapter must pass.
// Pop-ups have PopUpButtonContract.h, tables TableViewContract.h, window and application
// WindowContract.h.
//
// An adapter takes part through a trait: a default-constructible class that makes the control,
// gives the contents that a person sees, and does what a person does. The control runs its action
// when a person uses it; a test sets the action with setAction(std::function<void()>).
//
//   text field   TextField& control();
//                void type(const std::string& text), as a person does; setAction()
//   button       Button& control(); std::string toolTip(), as a person reads it;
//                std::string spokenDescription(), as a screen reader says it
//   text label   TextLabel& control(); std::string shownText()
//   text view    TextView& control(); std::string text(); bool isEndVisible(), which waits for
//                the view to show its text
//   drawer       Drawer& control(), closed at first; void finishMoving()
//   save panel   SavePanel& control(); bool isOpen(); std::string title() and suggestedName() of
//                the open panel; void choose(const std::string& path) and void cancel(), as a
//                person does; std::string pathOf(const std::string& name), a path to choose
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, TextFieldContract, RecordedTextFieldTrait);

#pragma once

#include "Outlets.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

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

// --- Save panel ---

template<class Trait>
class SavePanelContract : public ::testing::Test {
protected:
    void ask(const std::string& suggestedName = "kxconfig-log.txt") {
        trait.control().ask({.title = "Save Event Log",
                             .suggestedName = suggestedName,
                             .kind = "Text",
                             .suffix = "txt"},
                            [this](const std::string& path) { chosen.push_back(path); });
    }

    Trait trait;
    std::vector<std::string> chosen;
};

TYPED_TEST_SUITE_P(SavePanelContract);

TYPED_TEST_P(SavePanelContract, AsksAndReturnsAtOnce) {
    EXPECT_FALSE(this->trait.isOpen());
    this->ask();
    EXPECT_TRUE(this->trait.isOpen());
    EXPECT_EQ(this->trait.title(), "Save Event Log");
    EXPECT_EQ(this->trait.suggestedName(), "kxconfig-log.txt");
    EXPECT_TRUE(this->chosen.empty());
}

TYPED_TEST_P(SavePanelContract, TellsTheFileThatIsChosenOnce) {
    this->ask();
    const std::string path = this->trait.pathOf("Protokoll für Müller.txt");
    this->trait.choose(path);
    EXPECT_EQ(this->chosen, std::vector<std::string>{path});
    EXPECT_FALSE(this->trait.isOpen());
}

TYPED_TEST_P(SavePanelContract, TellsNothingWhenThePersonCancels) {
    this->ask();
    this->trait.cancel();
    EXPECT_TRUE(this->chosen.empty());
    EXPECT_FALSE(this->trait.isOpen());
}

TYPED_TEST_P(SavePanelContract, CanAskAgain) {
    this->ask();
    this->trait.cancel();
    this->ask("another.txt");
    EXPECT_EQ(this->trait.suggestedName(), "another.txt");
    const std::string path = this->trait.pathOf("another.txt");
    this->trait.choose(path);
    EXPECT_EQ(this->chosen, std::vector<std::string>{path});
}

REGISTER_TYPED_TEST_SUITE_P(SavePanelContract, AsksAndReturnsAtOnce, TellsTheFileThatIsChosenOnce,
                            TellsNothingWhenThePersonCancels, CanAskAgain);

} // namespace kx
