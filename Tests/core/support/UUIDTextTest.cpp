#include "support/UUIDText.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <numeric>
#include <set>
#include <string>
#include <string_view>

namespace kx {
namespace {

TEST(UUIDText, WritesFiveGroupsOfUpperCaseDigits) {
    std::array<std::uint8_t, 16> bytes{};
    std::iota(bytes.begin(), bytes.end(), std::uint8_t{0xA4});
    EXPECT_EQ(uuidText(bytes), "A4A5A6A7-A8A9-AAAB-ACAD-AEAFB0B1B2B3");
    EXPECT_EQ(uuidText({}), "00000000-0000-0000-0000-000000000000");
}

// A random digit would be right by chance, one of sixteen times or four, but not 200 times.
TEST(UUIDText, EveryNewOneIsOfTheRandomKind) {
    for (int count = 0; count < 200; ++count) {
        const std::string text = stringWithUUID();
        ASSERT_EQ(text.size(), 36U);
        EXPECT_EQ(text[14], '4') << text; // the version
        EXPECT_NE(std::string_view("89AB").find(text[19]), std::string_view::npos)
            << text; // the variant
        EXPECT_EQ(text.find_first_not_of("0123456789ABCDEF-"), std::string::npos) << text;
    }
}

TEST(UUIDText, NoTwoAreEqual) {
    std::set<std::string> texts;
    for (int count = 0; count < 1000; ++count) {
        texts.insert(stringWithUUID());
    }
    EXPECT_EQ(texts.size(), 1000U);
}

// It is practically impossible that one of the free digits is the same 200 times by chance.
TEST(UUIDText, EveryFreeDigitVaries) {
    std::array<std::set<char>, 36> seen;
    for (int count = 0; count < 200; ++count) {
        const std::string text = stringWithUUID();
        for (std::size_t index = 0; index < text.size(); ++index) {
            seen[index].insert(text[index]);
        }
    }
    for (std::size_t index = 0; index < seen.size(); ++index) {
        const bool isFixed = index == 8 || index == 13 || index == 14 || index == 18 || index == 23;
        EXPECT_EQ(seen[index].size() > 1, !isFixed) << index;
    }
}

} // namespace
} // namespace kx
