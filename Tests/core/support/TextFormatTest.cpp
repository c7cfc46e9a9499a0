#include "support/TextFormat.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace kx {
namespace {

TEST(TextFormat, FillsPlaceholdersInOrder) {
    EXPECT_EQ(filledText("\nSend to: %@ command: %@", {"10.0.0.1", "^^IdX"}),
              "\nSend to: 10.0.0.1 command: ^^IdX");
    EXPECT_EQ(filledText("%s: %d", {"error", 5}), "error: 5");
}

TEST(TextFormat, TakesEveryKindOfArgument) {
    const std::string text = "b";
    EXPECT_EQ(filledText("%@%@%@%@", {"a", text, std::string_view("c"), std::optional(text)}),
              "abcb");
    EXPECT_EQ(filledText("%d %d %d", {-1, std::uint16_t{65535}, 5000000000LL}),
              "-1 65535 5000000000");
    EXPECT_EQ(filledText("%d", {std::numeric_limits<int>::min()}), "-2147483648");
}

TEST(TextFormat, AbsentTextPrintsAsNull) {
    EXPECT_EQ(filledText("%@", {std::optional<std::string>()}), "(null)");
    EXPECT_EQ(filledText("%@", {std::optional<std::string>("")}), "");
}

TEST(TextFormat, PlaceholderWithoutArgumentStays) {
    EXPECT_EQ(filledText("%@ and %@", {"a"}), "a and %@");
    EXPECT_EQ(filledText("%d", {}), "%d");
}

TEST(TextFormat, SurplusArgumentsAreIgnored) {
    EXPECT_EQ(filledText("%@", {"a", "b"}), "a");
    EXPECT_EQ(filledText("", {"a"}), "");
}

TEST(TextFormat, DoublePercentSignIsOne) {
    EXPECT_EQ(filledText("100%%", {}), "100%");
    EXPECT_EQ(filledText("%%@", {"a"}), "%@");
    EXPECT_EQ(filledText("%%%@", {"a"}), "%a");
}

TEST(TextFormat, OtherPercentSignsStay) {
    EXPECT_EQ(filledText("50% of %x %", {"a"}), "50% of %x %");
}

TEST(TextFormat, ArgumentsAreNotFilledThemselves) {
    EXPECT_EQ(filledText("%@ %@", {"%@", "%d%%"}), "%@ %d%%");
}

} // namespace
} // namespace kx
