#include "words/LogText.h"

#include "LogTexts.h"
#include "support/QuotedLines.h"
#include "support/TextEncoding.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kx {

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

TEST(LogText, ZeroBytesAtTheEndOfAWordAreNeitherSeenNorCopied) {
    using namespace std::string_view_literals;
    EXPECT_EQ(shownRow("unit:A\0B\0\0 serial:1"sv), "unit:A\uFFFDB\u2060\u2060 serial:1");
    const LogText text("unit:ABC\0\0\0 serial:1\n\tunit ID: ABC\0\0\0\nend"sv);
    EXPECT_EQ(text.copiedText(0, text.size()), "unit:ABC serial:1\n\tunit ID: ABC\nend");
    EXPECT_EQ(text.copiedText(9, 10), "");
    EXPECT_EQ(text.text(), "unit:ABC\0\0\0 serial:1\n\tunit ID: ABC\0\0\0\nend"sv);
}

TEST(LogText, EveryRangeIsShownAsThatPartOfAll) {
    using namespace std::string_view_literals;
    const LogText text(std::string("\nA\0\0 b\0\tone: \u202E\x1Bx\r\n\n"sv) +
                       std::string(1500, 'y') + "網\r\nlast\n");
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

} // namespace kx
