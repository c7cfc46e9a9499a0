#include "words/ShownText.h"

#include <gtest/gtest.h>

namespace kx {

TEST(ShownText, AForeignTextStaysOnOneLineAndIsCut) {
    EXPECT_EQ(shownInSentence(std::string(32, 'A')), std::string(32, 'A'));
    EXPECT_EQ(shownInSentence(std::string(33, 'A')), std::string(32, 'A') + "…");
    std::string umlauts;
    for (int i = 0; i < 40; ++i) {
        umlauts += "ü";
    }
    EXPECT_EQ(shownInSentence(umlauts), umlauts.substr(0, 64) + "…");
    EXPECT_EQ(shownInSentence("a\n\tb\r"), "a\uFFFD\uFFFDb\uFFFD");
    EXPECT_EQ(shownInSentence(std::string_view("a\0b", 3)), "a\uFFFDb");
    EXPECT_EQ(shownInSentence("a\u0085\u2028\u2029b"), "a\uFFFD\uFFFD\uFFFDb");
    EXPECT_EQ(shownInSentence("1\u202E2\u20663\u200F4"), "1\uFFFD2\uFFFD3\uFFFD4");
    EXPECT_EQ(shownInSentence(std::string(100, '\x80')), std::string(32, '\x80') + "…");
}

} // namespace kx
