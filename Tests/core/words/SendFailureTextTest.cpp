#include "words/SendFailureText.h"

#include "doubles/ScriptedLocalizedText.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace kx {

TEST(SendFailureText, ARefusalSaysWhyNothingWasSent) {
    EXPECT_EQ(noteOfRefusal(CommandRefusal::notEditable),
              "Not sent: No command changes this parameter.");
    EXPECT_EQ(noteOfRefusal(CommandRefusal::emptyValue), "Not sent: The value is empty.");
    EXPECT_EQ(noteOfRefusal(CommandRefusal::notUTF8),
              "Not sent: The unit ID is not a text in UTF-8.");
    EXPECT_EQ(noteOfRefusal(CommandRefusal::noUnit), "Not sent: No unit is selected.");
    EXPECT_EQ(noteOfRefusal(CommandRefusal::notASCII),
              "Not sent: A command can hold ASCII characters only.");
    EXPECT_EQ(noteOfRefusal(CommandRefusal::noAddress),
              "Not sent: The address of the unit is not known.");
}

TEST(SendFailureText, WhatTheNetworkSaysOfASendEndsWithAFullStop) {
    EXPECT_EQ(noteOfSendFailure({.error = posixError(ENETUNREACH)}),
              "Not sent: Network is unreachable.");
    EXPECT_EQ(noteOfSendFailure({}), "Not sent: The UDP listener is not running.");
}

TEST(SendFailureText, AReasonInAnotherScriptGetsNoSecondFullStop) {
    ScriptedLocalizedText japanese;
    japanese.setTranslation("The UDP listener is not running.", "UDP リスナーが動作していません。");
    japanese.setTranslation("Not sent: %@", "送信しませんでした: %@");
    const LocalizedText* const before = installLocalizedText(&japanese);
    EXPECT_EQ(noteOfSendFailure({}), "送信しませんでした: UDP リスナーが動作していません。");
    installLocalizedText(before);
}

} // namespace kx
