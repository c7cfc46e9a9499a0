#include "platform/qt/LogSearch.h"

#include "platform/qt/QtText.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kx {

namespace {

std::string found(const LogText& text, std::optional<LogRange> range) {
    return range.has_value() ? text.text().substr(range->from, range->to - range->from) + " at " +
                                   std::to_string(range->from)
                             : "(none)";
}

} // namespace

TEST(LogSearch, FindsInEitherDirectionAndEitherCase) {
    LogText text;
    text.append("Reply one\nreply two\nREPLY three");
    EXPECT_EQ(found(text, findForward(text, "reply", 0)), "Reply at 0");
    EXPECT_EQ(found(text, findForward(text, "reply", 1)), "reply at 10");
    EXPECT_EQ(found(text, findForward(text, "reply", 21)), "(none)");
    EXPECT_EQ(found(text, findBackward(text, "reply", text.size())), "REPLY at 20");
    EXPECT_EQ(found(text, findBackward(text, "reply", 20)), "reply at 10");
    EXPECT_EQ(found(text, findBackward(text, "reply", 4)), "(none)");
    EXPECT_EQ(found(text, findForward(text, "TWO", 0)), "two at 16");
    EXPECT_EQ(found(text, findForward(text, "four", 0)), "(none)");
}

TEST(LogSearch, PositionsCountBytesNotCharacters) {
    LogText text;
    text.append("Ä網😀 Größe");
    EXPECT_EQ(found(text, findForward(text, "GRÖSSE", 0)), "(none)");
    EXPECT_EQ(found(text, findForward(text, "GRÖß", 0)), "Größ at 10");
    EXPECT_EQ(found(text, findBackward(text, "😀", text.size())), "😀 at 5");
}

TEST(LogSearch, ALetterMatchesOneThatTakesMoreBytes) {
    LogText text;
    text.append("4 \u212A, 5 K, 6 k"); // the first one is the kelvin sign
    EXPECT_EQ(found(text, findForward(text, "4 k", 0)), "4 \u212A at 0");
    EXPECT_EQ(found(text, findForward(text, "5 \u212A", 0)), "5 K at 7");
    EXPECT_EQ(found(text, findBackward(text, "\u212A", text.size())), "k at 14");
}

TEST(LogSearch, FindsEveryMatchOfALongTextForwardsAndBackwards) {
    LogText text;
    for (int line = 0; line < 3000; ++line) {
        text.append("\n" + std::to_string(line) + " Ä網😀 " +
                    std::string(static_cast<std::size_t>(line % 300), 'x'));
    }
    std::vector<std::size_t> forwards;
    for (auto match = findForward(text, "Ä網😀", 0); match.has_value();
         match = findForward(text, "Ä網😀", match->to)) {
        forwards.push_back(match->from);
    }
    std::vector<std::size_t> backwards;
    for (auto match = findBackward(text, "Ä網😀", text.size()); match.has_value();
         match = findBackward(text, "Ä網😀", match->from)) {
        backwards.insert(backwards.begin(), match->from);
    }
    EXPECT_EQ(forwards.size(), 3000U);
    EXPECT_EQ(backwards, forwards);
}

TEST(LogSearch, FindsWhatLiesAcrossTheRowsOfALongLine) {
    const std::string sought = "sought 😀 text";
    for (std::size_t before = 65'400; before < 65'560; before += 3) {
        LogText text;
        text.append(std::string(before, '.') + sought + std::string(9000, '.'));
        const std::string expected = sought + " at " + std::to_string(before);
        EXPECT_EQ(found(text, findForward(text, qtText(sought), 0)), expected);
        EXPECT_EQ(found(text, findBackward(text, qtText(sought), text.size())), expected);
    }
}

TEST(LogSearch, FindsLettersOfTwoUnitsInEitherCaseInALongLine) {
    const std::string written = "Written \U00010400 Text"; // a letter in upper case
    const std::string sought = "wRITTEN \U00010428 tEXT";  // and in lower case
    LogText text;
    text.append(std::string(9000, '.') + written + std::string(9000, '.'));
    EXPECT_EQ(found(text, findForward(text, qtText(sought), 0)), written + " at 9000");
    EXPECT_EQ(found(text, findBackward(text, qtText(sought), text.size())), written + " at 9000");
}

TEST(LogSearch, CountsMatchesAlsoAcrossPieces) {
    LogText text;
    EXPECT_EQ(countMatches(text, "ab", 10), 0U);
    std::size_t expected = 0;
    for (; text.size() < 300'000; ++expected) {
        text.append("xABy ab-\n");
    }
    EXPECT_EQ(countMatches(text, "ab", 1'000'000), 2 * expected);
    EXPECT_EQ(countMatches(text, "y ab", 1'000'000), expected);
    EXPECT_EQ(countMatches(text, "-\nxa", 1'000'000), expected - 1);
    EXPECT_EQ(countMatches(text, "ab", 17), 17U);
    EXPECT_EQ(countMatches(LogText("aaaa"), "aa", 10), 2U);
}

} // namespace kx
