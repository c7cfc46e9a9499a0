#include "words/QuotedText.h"

#include <gtest/gtest.h>

namespace kx {

TEST(QuotedText, AForeignTextStaysOnOneLineAndIsCut) {
    EXPECT_EQ(safeForSentence(std::string(32, 'A')), std::string(32, 'A'));
    EXPECT_EQ(safeForSentence(std::string(33, 'A')), std::string(32, 'A') + "…");
    std::string umlauts;
    for (int i = 0; i < 40; ++i) {
        umlauts += "ü";
    }
    EXPECT_EQ(safeForSentence(umlauts), umlauts.substr(0, 64) + "…");
    EXPECT_EQ(safeForSentence("a\n\tb\r"), "a\uFFFD\uFFFDb\uFFFD");
    EXPECT_EQ(safeForSentence(std::string_view("a\0b", 3)), "a\uFFFDb");
    EXPECT_EQ(safeForSentence("a\u0085\u2028\u2029b"), "a\uFFFD\uFFFD\uFFFDb");
    EXPECT_EQ(safeForSentence("1\u202E2\u20663\u200F4"), "1\uFFFD2\uFFFD3\uFFFD4");
    std::string marks;
    for (int i = 0; i < 32; ++i) {
        marks += "\uFFFD";
    }
    EXPECT_EQ(safeForSentence(std::string(100, '\x80')), marks + "…");
}

} // namespace kx
