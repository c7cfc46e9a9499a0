#include "words/LogText.h"

#include "support/QuotedLines.h"
#include "support/TextEncoding.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kx {

namespace {

std::vector<std::string> rowsOf(const LogText& text) {
    std::vector<std::string> rows;
    for (std::size_t index = 0; index < text.rowCount(); ++index) {
        rows.emplace_back(text.row(index).text);
    }
    return rows;
}

// Lines of every length up to a few hundred bytes, with letters of one to four bytes in them.
std::string manyLines(int count) {
    std::string text;
    for (int line = 0; line < count; ++line) {
        text += "\n" + std::to_string(line) + " Ä網😀 " +
                std::string(static_cast<std::size_t>(line % 300), 'x');
    }
    return text;
}

} // namespace

TEST(LogText, AnEmptyTextHasOneEmptyRow) {
    LogText text;
    EXPECT_EQ(rowsOf(text), std::vector<std::string>{""});
    text.append("some");
    text.clear();
    EXPECT_EQ(rowsOf(text), std::vector<std::string>{""});
    EXPECT_EQ(text.size(), 0U);
}

TEST(LogText, OnlyALineFeedEndsALine) {
    LogText text;
    text.append("one\rstill one\v\f\u0085\u2028\u2029\ntwo");
    EXPECT_EQ(rowsOf(text),
              (std::vector<std::string>{"one\rstill one\v\f\u0085\u2028\u2029", "two"}));
    EXPECT_TRUE(text.row(0).endsLine);
    EXPECT_FALSE(text.row(1).endsLine);
}

TEST(LogText, ALastLineFeedBeginsAnEmptyRow) {
    LogText text;
    text.append("one\n");
    EXPECT_EQ(rowsOf(text), (std::vector<std::string>{"one", ""}));
    EXPECT_EQ(text.row(1).position, 4U);
}

TEST(LogText, ALineMayArriveInParts) {
    LogText text;
    text.append("\nUDP listener did start. ");
    text.append("0.0.0.0:3520");
    text.append("");
    EXPECT_EQ(rowsOf(text), (std::vector<std::string>{"", "UDP listener did start. 0.0.0.0:3520"}));
}

TEST(LogText, EveryPositionIsInTheRowThatHoldsIt) {
    LogText text;
    const std::string whole = manyLines(3000);
    text.append(whole);
    for (std::size_t index = 0; index < text.rowCount(); ++index) {
        const LogText::Row row = text.row(index);
        EXPECT_EQ(text.rowAt(row.position), index);
        EXPECT_EQ(text.rowAt(row.position + row.text.size()), index);
        EXPECT_EQ(whole.substr(row.position, row.text.size()), row.text);
    }
    EXPECT_EQ(text.rowCount(), 3001U);
}

TEST(LogText, AppendingInPartsGivesTheSameAsAppendingAtOnce) {
    const std::string whole = manyLines(3000);
    LogText atOnce;
    atOnce.append(whole);
    LogText inParts;
    std::string_view rest = whole;
    for (std::size_t length = 1; !rest.empty(); length = length % 97 + 1) {
        std::size_t end = std::min(length, rest.size());
        while (end < rest.size() && (static_cast<unsigned char>(rest[end]) & 0xC0U) == 0x80U) {
            ++end;
        }
        inParts.append(rest.substr(0, end));
        rest.remove_prefix(end);
    }
    EXPECT_EQ(inParts.text(), whole);
    EXPECT_EQ(rowsOf(inParts), rowsOf(atOnce));
}

TEST(LogText, ALongLineGoesOnInTheNextRowWithoutALineFeed) {
    const std::string line(3 * LogText::longestRow, 'x');
    LogText text;
    text.append("a\n" + line + "\nb");
    ASSERT_EQ(text.rowCount(), 5U);
    EXPECT_EQ(text.row(1).text.size(), LogText::longestRow);
    EXPECT_FALSE(text.row(1).endsLine);
    EXPECT_FALSE(text.row(2).endsLine);
    EXPECT_TRUE(text.row(3).endsLine);
    EXPECT_EQ(text.row(4).text, "b");
    EXPECT_EQ(text.rowAt(text.row(2).position), 2U);
    EXPECT_EQ(text.text(), "a\n" + line + "\nb");
}

TEST(LogText, ALongLineIsNotBrokenInsideACharacter) {
    std::string line;
    for (std::size_t letter = 0; letter < LogText::longestRow; ++letter) {
        line += "網";
    }
    LogText text;
    text.append("." + line);
    std::string joined;
    for (const std::string& row : rowsOf(text)) {
        EXPECT_EQ(lengthOfWholeCharacters(bytesOfText(row)), row.size());
        joined += row;
    }
    EXPECT_EQ(joined, "." + line);
}

TEST(LogText, BytesThatAreNoTextDoNoHarm) {
    LogText text;
    text.append(std::string(3 * LogText::longestRow, '\x80'));
    text.append("\xFF\xC3\n\xF0\x9F");
    std::size_t size = 0;
    for (const std::string& row : rowsOf(text)) {
        size += row.size();
    }
    EXPECT_EQ(size + 1, text.size());
    EXPECT_EQ(text.row(text.rowCount() - 1).text, "\xF0\x9F");
}

TEST(LogText, CountsCharactersAsUTF16DoesAllThrough) {
    LogText text;
    text.append(manyLines(10)); // counting goes on from there
    EXPECT_EQ(text.charactersBefore(text.size()), lengthInCharacters(text.text()));
    text.append(manyLines(2000));
    const std::string whole = text.text();
    ASSERT_EQ(text.charactersBefore(text.size()), lengthInCharacters(whole));
    for (std::size_t row = 0; row < text.rowCount(); row += 37) {
        const std::size_t position = text.row(row).position;
        const std::size_t characters = text.charactersBefore(position);
        EXPECT_EQ(characters, lengthInCharacters(whole.substr(0, position)));
        EXPECT_EQ(text.positionAfter(characters), position);
    }
    EXPECT_EQ(text.positionAfter(text.size() + 1), text.size());
}

TEST(LogText, AMillionLinesAreFoundByRowAndByPosition) {
    LogText text;
    for (int line = 0; line < 1'000'000; ++line) {
        text.append("\nUDP listener did receive data. Length: 81");
    }
    EXPECT_EQ(text.rowCount(), 1'000'001U);
    EXPECT_EQ(text.row(1'000'000).text, "UDP listener did receive data. Length: 81");
    EXPECT_EQ(text.rowAt(text.size()), 1'000'000U);
    EXPECT_EQ(text.row(777'777).position, 1U + 777'776U * 42U);
}

TEST(LogText, ItsPiecesInTurnAreAllOfIt) {
    const LogText text(manyLines(3000));
    std::string joined;
    while (joined.size() < text.size()) {
        const LogText::Piece piece = text.pieceAt(joined.size());
        ASSERT_EQ(piece.position, joined.size());
        joined += piece.text;
    }
    EXPECT_TRUE(joined == manyLines(3000));
    EXPECT_TRUE(text.pieceAt(text.size()).text.ends_with(text.row(text.rowCount() - 1).text));
}

TEST(LogText, NoFullPieceMovesWhenTheTextGrows) {
    LogText text(manyLines(1000));
    const char* const first = text.pieceAt(0).text.data();
    text.append(manyLines(3000));
    EXPECT_EQ(text.pieceAt(0).text.data(), first);
}

TEST(LogText, ACopySharesAllButTheLastPiece) {
    const LogText text(manyLines(3000));
    const LogText copy = text; // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_TRUE(copy.text() == text.text());
    EXPECT_EQ(copy.rowCount(), text.rowCount());
    const std::size_t last = text.pieceAt(text.size()).position;
    ASSERT_GT(last, 0U);
    for (std::size_t position = 0; position < last;) {
        const LogText::Piece piece = text.pieceAt(position);
        EXPECT_EQ(copy.pieceAt(position).text.data(), piece.text.data());
        position += piece.text.size();
    }
}

TEST(LogText, ACopyAndItsOriginGrowApart) {
    const std::string common = manyLines(3000);
    LogText text(common);
    EXPECT_EQ(text.charactersBefore(text.size()), lengthInCharacters(common));
    LogText copy = text;
    text.append("\norigin" + manyLines(1000));
    copy.append("\ncopy" + manyLines(2000));
    EXPECT_TRUE(text.text() == common + "\norigin" + manyLines(1000));
    EXPECT_TRUE(copy.text() == common + "\ncopy" + manyLines(2000));
    EXPECT_EQ(copy.row(3001).text, "copy");
    EXPECT_EQ(text.charactersBefore(text.size()), lengthInCharacters(text.text()));
    EXPECT_EQ(copy.charactersBefore(copy.size()), lengthInCharacters(copy.text()));
}

TEST(LogText, ACopyOutlivesItsOrigin) {
    LogText text(manyLines(3000));
    const LogText copy = text;
    text.clear();
    text.append("new");
    EXPECT_EQ(text.text(), "new");
    EXPECT_TRUE(copy.text() == manyLines(3000));
}

// --- Foreign text ---

TEST(LogText, AQuotedLineFeedEndsNoLineAndComesOutAsItWas) {
    LogText text;
    text.append("\nReceived: " + quotedLines("one\nReceived: forged") + "\nnext");
    EXPECT_EQ(text.rowCount(), 3U);
    EXPECT_EQ(text.text(), "\nReceived: one\nReceived: forged\nnext");
    EXPECT_EQ(text.shownText(0, text.size()), "\nReceived: one\uFFFDReceived: forged\nnext");
}

TEST(LogText, WhatIsShownHasMarksInThePlaceOfWhatActs) {
    EXPECT_EQ(shownRow(std::string_view("a\0\r\x1B\x7F\tb", 7)), "a\uFFFD\uFFFD\uFFFD\uFFFD\tb");
    EXPECT_EQ(shownRow("\u0085\u2028\u200B"), "\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(shownRow("Ä網😀 שלום"), "Ä網😀 שלום");
}

TEST(LogText, ACarriageReturnAtTheEndOfARowIsShownAsABlank) {
    EXPECT_EQ(shownRow("command: ^^IdV\r"), "command: ^^IdV ");
    EXPECT_EQ(shownRow("\r\r"), "\uFFFD ");
    const LogText text("V\r\nr\rs\nend\r");
    EXPECT_EQ(text.shownText(0, text.size()), "V \nr\uFFFDs\nend ");
}

TEST(LogText, EveryRangeIsShownAsThatPartOfAll) {
    const LogText text("\n\tone: \u202E\x1Bx\r\n\n" + std::string(1500, 'y') + "網\r\nlast\n");
    const std::string all = text.shownText(0, text.size());
    for (std::size_t from = 0; from < 30; ++from) {
        for (const std::size_t to : {from, from + 1, from + 5, text.size() - 3, text.size()}) {
            const bool splits = charactersIn(all) != charactersIn(text.text());
            ASSERT_FALSE(splits);
            const auto units = [&](std::size_t position) {
                return text.charactersBefore(position);
            };
            const std::size_t begin = bytesOfCharacters(all, units(from));
            const std::size_t end = bytesOfCharacters(all, units(to));
            const bool isInside =
                text.positionAfter(units(from)) != from || text.positionAfter(units(to)) != to;
            if (!isInside) {
                EXPECT_EQ(text.shownText(from, to), all.substr(begin, end - begin))
                    << from << " to " << to;
            }
        }
    }
}

// --- The limit ---

namespace {

constexpr std::size_t limit = 300'000;
constexpr std::string_view notice = "[Older text is gone]";

LogText limitedText() {
    LogText text;
    text.setLimit(limit, notice);
    return text;
}

// Appends numbered lines, and trims after each as an owner does.
void appendLines(LogText& text, int count, int first = 0) {
    for (int line = first; line < first + count; ++line) {
        text.append("\nline " + std::to_string(line) + " " +
                    std::string(static_cast<std::size_t>(line % 90), 'x'));
        text.trim();
        ASSERT_LE(text.size(), limit);
    }
}

} // namespace

TEST(LogText, WithinItsLimitATextIsWhole) {
    LogText text = limitedText();
    const std::string whole(limit, 'x');
    text.append(whole);
    EXPECT_EQ(text.surplus(), 0U);
    EXPECT_EQ(text.trim().bytes, 0U);
    EXPECT_EQ(text.text(), whole);
    text.append("x");
    EXPECT_GT(text.surplus(), 0U);
}

TEST(LogText, BeyondItsLimitTheOldestPiecesGoAndOneLineSaysSo) {
    LogText text = limitedText();
    appendLines(text, 20'000);
    const std::string kept = text.text();
    EXPECT_LE(kept.size(), limit);
    EXPECT_GT(kept.size(), limit - 2 * std::size_t{65'536}) << "and no more than needed";
    EXPECT_TRUE(kept.starts_with(std::string(notice) + "\n"));
    EXPECT_EQ(kept.find(notice, 1), std::string::npos) << "the line is there once";
    EXPECT_TRUE(kept.ends_with("\nline 19999 " + std::string(19'999 % 90, 'x')));
    EXPECT_EQ(text.row(0).text, notice);
    EXPECT_TRUE(text.row(1).text.starts_with("line "));
}

TEST(LogText, ATrimmedTextIsCutIntoTheRowsAndCharactersOfWhatIsLeft) {
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

TEST(LogText, PositionsAndRowsMoveWithTheirText) {
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

TEST(LogText, ACopyHasTheSameLimitAndAClearedTextKeepsIt) {
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

TEST(LogText, TextsThatGrowAlikeShareTheirMemory) {
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

TEST(LogText, ATextOfAnotherLengthIsNotTakenForAnEqualOne) {
    LogText text(manyLines(3000));
    const std::string before = text.text();
    text.shareMemoryOf(LogText(manyLines(3001)));
    EXPECT_EQ(text.text(), before);
}

TEST(LogText, AnExcerptHasItsRangeAndNotTheWholeText) {
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
