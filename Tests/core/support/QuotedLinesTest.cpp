#include "support/QuotedLines.h"

#include "support/TextEncoding.h"

#include <gtest/gtest.h>

namespace kx {

TEST(QuotedLines, AQuotedTextHasNoLineFeedAndComesOutAsItWas) {
    const std::string text = "one\ntwo\r\n\n網😀\t";
    EXPECT_EQ(quotedLines(text), "one\xC1two\r\xC1\xC1網😀\t");
    EXPECT_EQ(unquotedLines(quotedLines(text)), text);
    EXPECT_EQ(quotedLines(""), "");
}

TEST(QuotedLines, TheQuotedLineFeedStandsInNoTextAndIsOneCharacter) {
    EXPECT_FALSE(isValidUTF8(bytesOfText(std::string(1, quotedLineFeed))));
    EXPECT_EQ(lengthInCharacters(std::string(1, quotedLineFeed)), 1U);
}

} // namespace kx
