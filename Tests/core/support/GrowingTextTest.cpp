// A long text that only grows at its end.

#include "support/GrowingText.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

std::size_t roomOf(const GrowingText& text) {
    std::size_t room = 0;
    for (const std::string& piece : text.pieces()) {
        room += piece.capacity();
    }
    return room;
}

} // namespace

TEST(GrowingText, BeginsWithOneEmptyPiece) {
    const GrowingText text;
    EXPECT_EQ(text.size(), 0U);
    EXPECT_EQ(text.pieces(), std::vector<std::string>{""});
    EXPECT_EQ(text.text(), "");
}

TEST(GrowingText, IsEverythingThatWasAppendedInOrder) {
    GrowingText text;
    std::string expected;
    for (int line = 0; line < 20'000; ++line) {
        const std::string added = "\nline " + std::to_string(line);
        text.append(added);
        expected += added;
    }
    EXPECT_GT(text.pieces().size(), 2U);
    EXPECT_EQ(text.size(), expected.size());
    EXPECT_TRUE(text.text() == expected);
}

TEST(GrowingText, AShortTextIsOnePiece) {
    GrowingText text;
    text.append("[Begin Discover]");
    text.append("");
    text.append("\nUDP server did send data.");
    EXPECT_EQ(text.pieces(),
              std::vector<std::string>{"[Begin Discover]\nUDP server did send data."});
}

TEST(GrowingText, WhatIsAppendedAtOnceIsNeverSplit) {
    GrowingText text;
    text.append(std::string(GrowingText::pieceLength - 1, 'a'));
    text.append("\xC3\xBC");
    const std::string longer(2 * GrowingText::pieceLength, 'b');
    text.append(longer);
    text.append("c");
    EXPECT_TRUE(text.pieces() ==
                (std::vector<std::string>{std::string(GrowingText::pieceLength - 1, 'a'),
                                          "\xC3\xBC", longer, "c"}));
}

TEST(GrowingText, NoPieceMovesWhenTheTextGrows) {
    GrowingText text;
    text.append(std::string(GrowingText::pieceLength, 'a'));
    text.append("b");
    const char* const full = text.pieces()[0].data();
    const char* const growing = text.pieces()[1].data();
    for (int line = 0; line < 1'000'000; ++line) {
        text.append("\n");
    }
    EXPECT_EQ(text.pieces()[0].data(), full);
    EXPECT_EQ(text.pieces()[1].data(), growing);
}

TEST(GrowingText, TakesLittleMoreRoomThanItsBytes) {
    GrowingText text;
    for (int line = 0; line < 100'000; ++line) {
        text.append("\nUDP listener did receive data. Length: 81");
        if (text.size() > 8 * GrowingText::pieceLength) {
            ASSERT_LT(roomOf(text), text.size() + text.size() / 4) << line;
        }
    }
}

TEST(GrowingText, ClearingGivesTheMemoryBack) {
    GrowingText text;
    for (int line = 0; line < 100'000; ++line) {
        text.append("\nUDP server did send data.");
    }
    text.clear();
    EXPECT_EQ(text.size(), 0U);
    EXPECT_EQ(text.pieces(), std::vector<std::string>{""});
    EXPECT_LT(roomOf(text), 100U);
    text.append("again");
    EXPECT_EQ(text.text(), "again");
}

} // namespace kx
