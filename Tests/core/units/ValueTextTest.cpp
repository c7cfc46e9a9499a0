#include "units/ValueText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

namespace kx {

TEST(ValueText, IsNoneAtFirst) {
    EXPECT_EQ(ValueText().view(), std::nullopt);
}

TEST(ValueText, TellsAnEmptyTextFromNone) {
    EXPECT_EQ(ValueText("").view(), "");
}

TEST(ValueText, KeepsWhatWasWritten) {
    ValueText text("a longer text");
    text.write([](char* room) { return std::ranges::copy(std::string_view("42"), room).out; });
    EXPECT_EQ(text.view(), "42");
}

TEST(ValueTextDeathTest, TakesNoTextThatIsLongerThanAnyValue) {
    EXPECT_EQ(ValueText(std::string(17, 'x')).view(), std::string(17, 'x'));
    EXPECT_DEATH(ValueText(std::string(18, 'x')), "text.size\\(\\) <= longestText");
}

} // namespace kx
