// What a text with a limit forgets, and what it shares with its copies.

#include "LogTexts.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kx {

namespace {

constexpr std::size_t longestText = 300'000;
constexpr std::string_view notice = "[Older text is gone]";

LogText limitedText() {
    LogText text;
    text.setLimit(longestText, notice);
    return text;
}

// Appends numbered lines, and trims after each as an owner does.
void appendLines(LogText& text, int count, int first = 0) {
    for (int line = first; line < first + count; ++line) {
        text.append("\nline " + std::to_string(line) + " " +
                    std::string(static_cast<std::size_t>(line % 90), 'x'));
        text.trim();
        ASSERT_LE(text.size(), longestText);
    }
}

} // namespace

TEST(LogTextLimit, WithinItsLimitATextIsWhole) {
    LogText text = limitedText();
    const std::string whole(longestText, 'x');
    text.append(whole);
    EXPECT_EQ(text.surplus(), 0U);
    EXPECT_EQ(text.trim().bytes, 0U);
    EXPECT_EQ(text.text(), whole);
    text.append("x");
    EXPECT_GT(text.surplus(), 0U);
}

TEST(LogTextLimit, BeyondItsLimitTheOldestPiecesGoAndOneLineSaysSo) {
    LogText text = limitedText();
    appendLines(text, 20'000);
    const std::string kept = text.text();
    EXPECT_LE(kept.size(), longestText);
    EXPECT_GT(kept.size(), longestText - 2 * std::size_t{65'536}) << "and no more than needed";
    EXPECT_TRUE(kept.starts_with(std::string(notice) + "\n"));
    EXPECT_EQ(kept.find(notice, 1), std::string::npos) << "the line is there once";
    EXPECT_TRUE(kept.ends_with("\nline 19999 " + std::string(19'999 % 90, 'x')));
    EXPECT_EQ(text.row(0).text, notice);
    EXPECT_TRUE(text.row(1).text.starts_with("line "));
}

TEST(LogTextLimit, ATrimmedTextIsCutIntoTheRowsAndCharactersOfWhatIsLeft) {
    LogText text = limitedText();
    text.charactersBefore(0);
    for (int part = 0; part < 40; ++part) {
        appendLines(text, 300, part * 300);
        text.append("網😀");
        const LogText anew(text.text());
        ASSERT_EQ(text.size(), anew.size());
        ASSERT_EQ(text.rowCount(), anew.rowCount());
        ASSERT_EQ(text.charactersBefore(text.size()), anew.charactersBefore(anew.size()));
        for (std::size_t position = 0; position < text.size(); position += 5'003) {
            ASSERT_EQ(text.rowAt(position), anew.rowAt(position));
            ASSERT_EQ(text.row(text.rowAt(position)).text, anew.row(anew.rowAt(position)).text);
            ASSERT_EQ(text.charactersBefore(position), anew.charactersBefore(position));
            ASSERT_EQ(text.positionAfter(position), anew.positionAfter(position));
        }
    }
}

TEST(LogTextLimit, PositionsAndRowsMoveWithTheirText) {
    LogText text = limitedText();
    std::size_t position = 0;
    std::size_t row = 0;
    std::string there;
    for (int line = 0; line < 20'000; ++line) {
        text.append("\nline " + std::to_string(line) + " and so on and on and on");
        const LogText::Trimmed trimmed = text.trim();
        if (trimmed.bytes > 0 && position + trimmed.noticeBytes < trimmed.bytes) {
            EXPECT_EQ(trimmed.movedPosition(position), notice.size() + 1);
            EXPECT_EQ(trimmed.movedRow(row), 1U);
            there.clear();
        }
        position = trimmed.movedPosition(position);
        row = trimmed.movedRow(row);
        if (there.empty()) {
            row = text.rowCount() - 1;
            position = text.row(row).position;
            there = text.row(row).text;
        }
        ASSERT_EQ(text.row(row).text, there);
        ASSERT_EQ(text.rowAt(position), row);
    }
}

TEST(LogTextLimit, ACopyHasTheSameLimitAndAClearedTextKeepsIt) {
    LogText text = limitedText();
    appendLines(text, 10'000);
    LogText copy = text;
    appendLines(text, 10'000);
    appendLines(copy, 10'000);
    EXPECT_EQ(copy.text(), text.text());
    text.clear();
    EXPECT_EQ(text.size(), 0U);
    EXPECT_EQ(text.rowCount(), 1U);
    appendLines(text, 20'000);
    EXPECT_TRUE(text.text().starts_with(notice));
}

// --- Sharing ---

TEST(LogTextLimit, TextsThatGrowAlikeShareTheirMemory) {
    LogText text = limitedText();
    LogText other = text;
    for (int line = 0; line < 20'000; ++line) {
        for (LogText* const each : {&text, &other}) {
            each->append("\nline " + std::to_string(line));
            each->trim();
        }
        other.shareMemoryOf(text);
        ASSERT_TRUE(line % 1000 != 0 || other.text() == text.text());
    }
    const std::size_t beforeLast = text.size() - 100'000;
    EXPECT_EQ(other.pieceAt(beforeLast).text.data(), text.pieceAt(beforeLast).text.data());
    EXPECT_NE(other.pieceAt(text.size()).text.data(), text.pieceAt(text.size()).text.data())
        << "the last piece still grows";
}

TEST(LogTextLimit, ATextOfAnotherLengthIsNotTakenForAnEqualOne) {
    LogText text(manyLines(3000));
    const std::string before = text.text();
    text.shareMemoryOf(LogText(manyLines(3001)));
    EXPECT_EQ(text.text(), before);
}

TEST(LogTextLimit, AnExcerptHasItsRangeAndNotTheWholeText) {
    LogText text = limitedText();
    appendLines(text, 20'000);
    for (const std::size_t from : {std::size_t{0}, std::size_t{70'000}, text.size() - 10}) {
        for (const std::size_t to : {from, from + 5, std::min(from + 100'000, text.size())}) {
            const LogText::Excerpt excerpt = text.excerpt(from, to);
            EXPECT_EQ(excerpt.text.shownText(from - excerpt.position, to - excerpt.position),
                      text.shownText(from, to));
            EXPECT_LE(excerpt.text.size(), to - from + 2 * std::size_t{65'536});
            const bool isFull = text.pieceAt(from).position < text.pieceAt(text.size()).position;
            EXPECT_EQ(excerpt.text.pieceAt(0).text.data() == text.pieceAt(from).text.data(), isFull)
                << "no full piece is copied";
        }
    }
}

} // namespace kx
