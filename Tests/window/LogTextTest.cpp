// The text behind the log view: rows, positions, characters, searching.

#include "platform/qt/LogText.h"

#include "platform/qt/LogRowLayout.h"
#include "platform/qt/LogSearch.h"
#include "platform/qt/QtText.h"

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

std::string wholeText(const LogText& text) {
    return utf8Text(text.text(0, text.size()));
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

std::string found(const LogText& text, std::optional<LogRange> range) {
    return range.has_value()
               ? utf8Text(text.text(range->from, range->to)) + " at " + std::to_string(range->from)
               : "(none)";
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
    EXPECT_EQ(wholeText(inParts), whole);
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
    EXPECT_EQ(wholeText(text), "a\n" + line + "\nb");
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
        EXPECT_EQ(utf8Text(qtText(row)), row);
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
    text.append(manyLines(10)); // counting goes on where it stopped
    EXPECT_EQ(text.charactersBefore(text.size()),
              static_cast<std::size_t>(text.text(0, text.size()).size()));
    text.append(manyLines(2000));
    const QString wide = text.text(0, text.size());
    ASSERT_EQ(text.charactersBefore(text.size()), static_cast<std::size_t>(wide.size()));
    for (std::size_t row = 0; row < text.rowCount(); row += 37) {
        const std::size_t position = text.row(row).position;
        const std::size_t characters = text.charactersBefore(position);
        EXPECT_EQ(text.text(0, position).size(), static_cast<qsizetype>(characters));
        EXPECT_EQ(text.positionAfter(characters), position);
    }
    EXPECT_EQ(text.positionAfter(text.size() + 1), text.size());
}

TEST(LogText, AMillionLinesTakeLittleMoreThanTheirBytes) {
    LogText text;
    for (int line = 0; line < 1'000'000; ++line) {
        text.append("\nUDP listener did receive data. Length: 81");
    }
    EXPECT_EQ(text.rowCount(), 1'000'001U);
    EXPECT_EQ(text.row(1'000'000).text, "UDP listener did receive data. Length: 81");
    EXPECT_EQ(text.rowAt(text.size()), 1'000'000U);
    EXPECT_EQ(text.row(777'777).position, 1U + 777'776U * 42U);
}

TEST(LogRowLayout, ShowsControlCharactersAsWhatCannotHarm) {
    const std::string text("a\0\r\x1B\x7F\tb", 7);
    EXPECT_EQ(utf8Text(shownText(text)), "a����\tb");
    EXPECT_EQ(utf8Text(shownText("\u0085\u2028\u2029\u202E\u2066\u200F")), "������");
    EXPECT_EQ(utf8Text(shownText("Ä網😀 שלום")), "Ä網😀 שלום");
}

TEST(LogRowLayout, ShowsTheCarriageReturnThatEndsACommandAsABlank) {
    EXPECT_EQ(utf8Text(shownText("command: ^^IdV\r")), "command: ^^IdV ");
    EXPECT_EQ(utf8Text(shownText("\r\r")), "� ");
}

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

TEST(LogSearch, FindsEveryMatchOfALongTextForwardsAndBackwards) {
    LogText text;
    text.append(manyLines(3000));
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

} // namespace kx
