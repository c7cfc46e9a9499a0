#include "words/SendFailureText.h"

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

} // namespace kx
