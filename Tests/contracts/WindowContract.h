// The contract of the window, its alert and the application (Outlets.h): tests that every adapter
// must pass.
//
// An adapter takes part through a trait, a default-constructible class:
//
//   window        Window& control();
//                 void type(const std::string& text), as a person who has not ended the edit
//                 void refuseToEnd(); after this the edit gives up the focus only by force. Does
//                 nothing where no edit ever refuses.
//                 bool isEditing(); std::vector<std::string> stored(), the texts that edits stored
//                 when they ended, in order
//   alert         Alert& control()
//                 Texts runAlert(title, message, button), shows the alert, dismisses it by its
//                 button, and returns the visible texts: title, message, text of every button
//   application   Application& control();
//                 bool runEvent(const std::function<void()>& event), true when the loop that
//                 handles this event ended with it

#pragma once

#include "Outlets.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kx {

using Texts = std::vector<std::string>;

// --- Window ---

template<class Trait>
class WindowContract : public ::testing::Test {
protected:
    Window& control() { return trait.control(); }

    Trait trait;
};

TYPED_TEST_SUITE_P(WindowContract);

TYPED_TEST_P(WindowContract, WithoutAnEditThereIsNothingToEnd) {
    EXPECT_TRUE(this->control().makeFirstResponder());
    this->control().endEditing();
    EXPECT_EQ(this->trait.stored(), Texts{});
}

TYPED_TEST_P(WindowContract, NothingIsStoredBeforeTheEditEnds) {
    this->trait.type("192.168.1.20");
    EXPECT_TRUE(this->trait.isEditing());
    EXPECT_EQ(this->trait.stored(), Texts{});
}

TYPED_TEST_P(WindowContract, TakingTheFocusEndsTheEditAndStoresWhatWasTyped) {
    this->trait.type("192.168.1.20");
    EXPECT_TRUE(this->control().makeFirstResponder());
    EXPECT_FALSE(this->trait.isEditing());
    EXPECT_EQ(this->trait.stored(), Texts{"192.168.1.20"});
}

TYPED_TEST_P(WindowContract, EndEditingEndsTheEditAndStoresWhatWasTyped) {
    this->trait.type("192.168.1.20");
    this->control().endEditing();
    EXPECT_FALSE(this->trait.isEditing());
    EXPECT_EQ(this->trait.stored(), Texts{"192.168.1.20"});
}

TYPED_TEST_P(WindowContract, WhatWasTypedIsStoredOnce) {
    this->trait.type("192.168.1.20");
    EXPECT_TRUE(this->control().makeFirstResponder());
    this->control().endEditing();
    EXPECT_TRUE(this->control().makeFirstResponder());
    EXPECT_EQ(this->trait.stored(), Texts{"192.168.1.20"});
}

TYPED_TEST_P(WindowContract, RefusedFocusChangesNothingAndForceEndsTheEdit) {
    this->trait.type("192.168.1.20");
    this->trait.refuseToEnd();
    const bool granted = this->control().makeFirstResponder();
    EXPECT_EQ(this->trait.isEditing(), !granted);
    EXPECT_EQ(this->trait.stored(), granted ? Texts{"192.168.1.20"} : Texts{});
    this->control().endEditing();
    EXPECT_FALSE(this->trait.isEditing());
    EXPECT_EQ(this->trait.stored(), Texts{"192.168.1.20"});
    EXPECT_TRUE(this->control().makeFirstResponder());
}

REGISTER_TYPED_TEST_SUITE_P(WindowContract, WithoutAnEditThereIsNothingToEnd,
                            NothingIsStoredBeforeTheEditEnds,
                            TakingTheFocusEndsTheEditAndStoresWhatWasTyped,
                            EndEditingEndsTheEditAndStoresWhatWasTyped, WhatWasTypedIsStoredOnce,
                            RefusedFocusChangesNothingAndForceEndsTheEdit);

// --- Alert ---

template<class Trait>
class AlertContract : public ::testing::Test {
protected:
    Trait trait;
};

TYPED_TEST_SUITE_P(AlertContract);

TYPED_TEST_P(AlertContract, ShowsItsTextsUntilItsOneButtonIsPressed) {
    EXPECT_EQ(this->trait.runAlert("KXConfig", "Some features may not be available.", "OK"),
              (Texts{"KXConfig", "Some features may not be available.", "OK"}));
}

TYPED_TEST_P(AlertContract, CanBeShownAgain) {
    this->trait.runAlert("KXConfig", "first", "OK");
    EXPECT_EQ(this->trait.runAlert("KXConfig", "second", "Weiter"),
              (Texts{"KXConfig", "second", "Weiter"}));
}

TYPED_TEST_P(AlertContract, WhatLooksLikeMarkupIsText) {
    EXPECT_EQ(this->trait.runAlert("KXConfig", "<b>Über</b>", "OK"),
              (Texts{"KXConfig", "<b>Über</b>", "OK"}));
}

REGISTER_TYPED_TEST_SUITE_P(AlertContract, ShowsItsTextsUntilItsOneButtonIsPressed, CanBeShownAgain,
                            WhatLooksLikeMarkupIsText);

// --- Application ---

template<class Trait>
class ApplicationContract : public ::testing::Test {
protected:
    Trait trait;
};

TYPED_TEST_SUITE_P(ApplicationContract);

TYPED_TEST_P(ApplicationContract, RunsOnUntilItIsAskedToEnd) {
    EXPECT_FALSE(this->trait.runEvent([] {}));
}

TYPED_TEST_P(ApplicationContract, EndsWhenItIsAsked) {
    EXPECT_TRUE(this->trait.runEvent([this] { this->trait.control().terminate(); }));
}

TYPED_TEST_P(ApplicationContract, HandlesItsCurrentEventToTheEnd) {
    bool eventWentOn = false;
    EXPECT_TRUE(this->trait.runEvent([&] {
        this->trait.control().terminate();
        eventWentOn = true;
    }));
    EXPECT_TRUE(eventWentOn);
}

TYPED_TEST_P(ApplicationContract, AskingTwiceInOneEventIsAskingOnce) {
    EXPECT_TRUE(this->trait.runEvent([this] {
        this->trait.control().terminate();
        this->trait.control().terminate();
    }));
    EXPECT_FALSE(this->trait.runEvent([] {}));
}

REGISTER_TYPED_TEST_SUITE_P(ApplicationContract, RunsOnUntilItIsAskedToEnd, EndsWhenItIsAsked,
                            HandlesItsCurrentEventToTheEnd, AskingTwiceInOneEventIsAskingOnce);

} // namespace kx
