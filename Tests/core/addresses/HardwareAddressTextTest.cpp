#include "addresses/HardwareAddressText.h"

#include "doubles/MarkedLocalizedText.h"
#include "doubles/RecordedSystemLog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace kx {

namespace {

using Lines = std::vector<std::string>;
using Octets = std::array<std::uint8_t, hardwareAddressLength>;
using LongOctets = std::array<std::uint8_t, longestHardwareAddress>;

constexpr Octets untouched = {0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE};

struct EthernetText {
    explicit EthernetText(std::string_view text)
        : isParsed(eaForString(text, octets)) {}

    Octets octets = untouched;
    bool isParsed;
};

struct GroupText {
    explicit GroupText(std::string_view text) {
        octets.fill(0xEE);
        isParsed = ha16ForString(text, octets, count);
    }

    LongOctets octets{};
    std::size_t count = 99;
    bool isParsed;
};

constexpr Octets counted = {0x00, 0x11, 0x22, 0x33, 0x44, 0x55};

} // namespace

TEST(String2HexNum, ReadsDigitsOfEitherCaseAsFarAsTheyGo) {
    std::uint8_t count = 0;
    EXPECT_EQ(string2HexNum("1aF:2", 5, &count), 0x1AFU);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(string2HexNum("0123456789", 10, nullptr), 0x23456789U);
    EXPECT_EQ(string2HexNum("ABCDEF", 6, nullptr), 0xABCDEFU);
    EXPECT_EQ(string2HexNum("abcdef", 6, nullptr), 0xABCDEFU);
}

TEST(String2HexNum, ReadsNoMoreDigitsThanAllowed) {
    std::uint8_t count = 0;
    EXPECT_EQ(string2HexNum("1234", 2, &count), 0x12U);
    EXPECT_EQ(count, 2);
}

TEST(String2HexNum, OnlyTheLowEightBitsOfTheMaximumCount) {
    std::uint8_t count = 99;
    EXPECT_EQ(string2HexNum("1234", 256, &count), 0U);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(string2HexNum("1234", 257, &count), 1U);
    EXPECT_EQ(count, 1);
}

TEST(String2HexNum, NoDigitsReadAsZero) {
    std::uint8_t count = 99;
    EXPECT_EQ(string2HexNum("xyz", 3, &count), 0U);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(string2HexNum("", 3, &count), 0U);
}

TEST(String2HexNum, BytesNextToTheDigitsInTheCodeTableAreNoDigits) {
    for (const char character : std::string("/:@G`g\x80\xFF")) {
        std::uint8_t count = 99;
        string2HexNum(std::string_view(&character, 1), 1, &count);
        EXPECT_EQ(count, 0) << character;
    }
}

TEST(ParsePosition, IntHexValueStepsPastTheDigits) {
    const auto cursor = cursorForText("1f:2");
    auto position = startOfCursor(cursor);
    EXPECT_EQ(position.remaining, 4U);
    EXPECT_EQ(intHexValue(cursor, position), 0x1FU);
    EXPECT_EQ(position.offset, 2U);
    EXPECT_EQ(position.remaining, 2U);
    EXPECT_EQ(intHexValue(cursor, position), 0U);
    EXPECT_EQ(position.offset, 2U);
}

TEST(ParsePosition, SkipByteTakesOnlyTheGivenByte) {
    const auto cursor = cursorForText(":-");
    auto position = startOfCursor(cursor);
    EXPECT_FALSE(skipByte(cursor, position, '-'));
    EXPECT_EQ(position.offset, 0U);
    EXPECT_TRUE(skipByte(cursor, position, ':'));
    EXPECT_TRUE(skipByte(cursor, position, '-'));
    EXPECT_EQ(position.offset, 2U);
    EXPECT_EQ(position.remaining, 0U);
    EXPECT_FALSE(skipByte(cursor, position, '-')) << "at the end";
    EXPECT_EQ(position.offset, 2U);
}

TEST(ParsePosition, TheLengthOfACursorCountsCharacters) {
    const auto cursor = cursorForText("\xC3\xA9:");
    EXPECT_EQ(cursor.length, 2U);
    ParsePosition position{2, 0};
    EXPECT_FALSE(skipByte(cursor, position, ':')) << "the byte is there, but beyond the length";
}

TEST(StringForEA, PrintsTwoUpperCaseDigitsForEachOctet) {
    EXPECT_EQ(stringForEA(Octets{0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E}), "00:1A:2B:3C:4D:5E");
    EXPECT_EQ(stringForEA(Octets{}), "00:00:00:00:00:00");
    EXPECT_EQ(stringForEA(Octets{255, 254, 16, 15, 9, 10}), "FF:FE:10:0F:09:0A");
}

TEST(StringForHA16, PrintsAsManyOctetsAsCounted) {
    const Bytes octets = {1, 2, 3, 4, 5, 6, 7, 0xAB};
    EXPECT_EQ(stringForHA16(octets, 8), "01:02:03:04:05:06:07:AB");
    EXPECT_EQ(stringForHA16(octets, 2), "01:02");
}

TEST(StringForHA16, PrintsTheFirstOctetWhateverTheCount) {
    const Bytes octets = {0x0F, 2};
    EXPECT_EQ(stringForHA16(octets, 0), "0F");
    EXPECT_EQ(stringForHA16(octets, 1), "0F");
}

TEST(StringForHA16, PrintsNoOctetThatIsNotThere) {
    EXPECT_EQ(stringForHA16(Bytes{1, 2}, 16), "01:02");
    EXPECT_EQ(stringForHA16(Bytes{}, 0), "");
}

TEST(EaForString, ReadsSixGroupsWithAnyMixOfSeparators) {
    RecordedSystemLog log;
    for (const auto* text : {"00:11:22:33:44:55", "00-11-22-33-44-55", "00:11-22:33-44:55",
                             "0:11:22:33:44:55", "00:11:22:33:44:55 on en0", "0000:11:22:33:44:55",
                             "00:11:22:33:44:55:66", "00:11:22:33:44:55:"}) {
        const EthernetText parsed(text);
        EXPECT_TRUE(parsed.isParsed) << text;
        EXPECT_EQ(parsed.octets, counted) << text;
    }
    EXPECT_EQ(log.lines(), Lines{});
}

TEST(EaForString, EmptyGroupsReadAsZero) {
    const EthernetText colons(":::::");
    EXPECT_TRUE(colons.isParsed);
    EXPECT_EQ(colons.octets, Octets{});
    const EthernetText trailing("1:2:3:4:5:");
    EXPECT_TRUE(trailing.isParsed);
    EXPECT_EQ(trailing.octets, (Octets{1, 2, 3, 4, 5, 0}));
}

TEST(EaForString, OfMoreThanTwoDigitsTheLastTwoCount) {
    EXPECT_EQ(EthernetText("100:11:22:33:44:55").octets, counted);
    EXPECT_EQ(EthernetText("123:0:0:0:0:0fffffffff12").octets, (Octets{0x23, 0, 0, 0, 0, 0x12}));
}

TEST(EaForString, AnEmptyTextFailsWithoutAMessage) {
    RecordedSystemLog log;
    const EthernetText parsed("");
    EXPECT_FALSE(parsed.isParsed);
    EXPECT_EQ(parsed.octets, untouched);
    EXPECT_EQ(log.lines(), Lines{});
}

TEST(EaForString, AMissingGroupLogsTheMessageAndTheText) {
    const RecordedSystemLog log;
    EXPECT_FALSE(EthernetText("00:11:22:33:44").isParsed);
    EXPECT_FALSE(EthernetText("001122334455").isParsed);
    EXPECT_FALSE(EthernetText("00 11 22 33 44 55").isParsed);
    const std::string message = "HardwareAddressFormatter: invalid Ethernet address";
    EXPECT_EQ(log.lines(), (Lines{message, "00:11:22:33:44", message, "001122334455", message,
                                  "00 11 22 33 44 55"}));
}

TEST(EaForString, TheMessageIsLocalizedAndTheTextIsNot) {
    const MarkedLocalizedText localized;
    const RecordedSystemLog log;
    EXPECT_FALSE(EthernetText("x").isParsed);
    EXPECT_EQ(log.lines(), (Lines{"<HardwareAddressFormatter: invalid Ethernet address>", "x"}));
}

TEST(EaForString, OctetsReadBeforeTheFailureStayAndTheOthersAreNotWritten) {
    const RecordedSystemLog log;
    EXPECT_EQ(EthernetText("12:34 56").octets, (Octets{0x12, 0x34, 0xEE, 0xEE, 0xEE, 0xEE}));
}

TEST(EaForString, ColonAndHyphenAreTheOnlySeparators) {
    const RecordedSystemLog log;
    for (int byte = 0; byte < 128; ++byte) {
        std::string text = "0g1g2g3g4g5"; // g stands for the character
        std::ranges::replace(text, 'g', static_cast<char>(byte));
        EXPECT_EQ(EthernetText(text).isParsed, byte == ':' || byte == '-') << byte;
    }
}

TEST(EaForString, LeadingBlanksAreNotSkipped) {
    const RecordedSystemLog log;
    EXPECT_FALSE(EthernetText(" 00:11:22:33:44:55").isParsed);
}

TEST(EaForString, AZeroByteEndsAGroupLikeAnyOtherCharacter) {
    const RecordedSystemLog log;
    EXPECT_FALSE(EthernetText(std::string_view("0\0:1:2:3:4:5", 12)).isParsed);
}

TEST(EaForString, PercentSignsInTheTextAreNoFormat) {
    const RecordedSystemLog log;
    EXPECT_FALSE(EthernetText("%@%n").isParsed);
    EXPECT_EQ(log.lines().at(1), "%@%n");
}

TEST(EaForString, ATextOf256CharactersReadsNoDigitsAtItsBeginning) {
    const RecordedSystemLog log;
    const std::string address = "00:11:22:33:44:55";
    EXPECT_TRUE(EthernetText(address + std::string(255 - address.size(), ' ')).isParsed);
    EXPECT_FALSE(EthernetText(address + std::string(256 - address.size(), ' ')).isParsed);
    EXPECT_TRUE(EthernetText(address + std::string(300 - address.size(), ' ')).isParsed);
}

TEST(Ha16ForString, ReadsSixAndEightGroups) {
    const GroupText eight("01:02:03:04:05:06:07:08");
    EXPECT_TRUE(eight.isParsed);
    EXPECT_EQ(eight.count, 8U);
    EXPECT_EQ(eight.octets,
              (LongOctets{1, 2, 3, 4, 5, 6, 7, 8, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE}));
    const GroupText six("01-02-03:04:05:123");
    EXPECT_TRUE(six.isParsed);
    EXPECT_EQ(six.count, 6U);
    EXPECT_EQ(six.octets[5], 0x23);
}

TEST(Ha16ForString, ASeparatorAtTheEndIsTolerated) {
    const GroupText six("01:02:03:04:05:06:");
    EXPECT_TRUE(six.isParsed);
    EXPECT_EQ(six.count, 6U);
    EXPECT_EQ(GroupText("01:02:03:04:05:06:07:08-").count, 8U);
}

TEST(Ha16ForString, WhateverFollowsSixOrEightGroupsIsIgnored) {
    const RecordedSystemLog log;
    EXPECT_EQ(GroupText("1:2:3:4:5:6 on en0").count, 6U);
    EXPECT_EQ(GroupText("1:2:3:4:5:6:7:8x").count, 8U);
    EXPECT_TRUE(GroupText("1:2:3:4:5:6:7:8x").isParsed);
    EXPECT_EQ(log.lines(), Lines{});
}

TEST(Ha16ForString, AnotherNumberOfGroupsFailsSilently) {
    const RecordedSystemLog log;
    for (const auto* text : {"", "1", "1:2:3:4:5", "01:02:03:04:05:06:07",
                             "01:02:03:04:05:06:07:08:09", "01:02:03:04:05:06:07:", ":"}) {
        const GroupText parsed(text);
        EXPECT_FALSE(parsed.isParsed) << text;
        EXPECT_EQ(parsed.count, 0U) << text;
    }
    EXPECT_EQ(log.lines(), Lines{});
}

TEST(Ha16ForString, ColonAndHyphenAreTheOnlySeparators) {
    const RecordedSystemLog log;
    for (int byte = 0; byte < 128; ++byte) {
        std::string text = "0g1g2g3g4g5"; // g stands for the character
        std::ranges::replace(text, 'g', static_cast<char>(byte));
        EXPECT_EQ(GroupText(text).isParsed, byte == ':' || byte == '-') << byte;
    }
}

TEST(Ha16ForString, AWrongCharacterAfterAnotherNumberOfGroupsLogsTheMessageAndTheText) {
    const RecordedSystemLog log;
    const GroupText parsed("01:02:03x");
    EXPECT_FALSE(parsed.isParsed);
    EXPECT_EQ(parsed.count, 0U);
    EXPECT_FALSE(GroupText("1:2:3:4:5:6:7:8:9:10x").isParsed);
    const std::string message = "HardwareAddress: invalid Ethernet address";
    EXPECT_EQ(log.lines(), (Lines{message, "01:02:03x", message, "1:2:3:4:5:6:7:8:9:10x"}));
}

TEST(Ha16ForString, TheMessageIsLocalized) {
    const MarkedLocalizedText localized;
    const RecordedSystemLog log;
    EXPECT_FALSE(GroupText("x").isParsed);
    EXPECT_EQ(log.lines(), (Lines{"<HardwareAddress: invalid Ethernet address>", "x"}));
}

TEST(Ha16ForString, SixteenGroupsFailAtOnceAndMoreAreNotRead) {
    const RecordedSystemLog log;
    const GroupText parsed("0:1:2:3:4:5:6:7:8:9:a:b:c:d:e:f:10:11x");
    EXPECT_FALSE(parsed.isParsed);
    EXPECT_EQ(parsed.count, 0U);
    EXPECT_EQ(parsed.octets[15], 0x0F);
    EXPECT_EQ(log.lines(), Lines{});
}

// What lies behind the text would complete it.
TEST(HardwareAddressText, GroupsBehindTheEndOfATextAreNotRead) {
    const RecordedSystemLog log;
    const std::string_view whole = "00:11:22:33:44:55:66:77";
    const EthernetText five(whole.substr(0, 14));
    EXPECT_FALSE(five.isParsed);
    EXPECT_EQ(five.octets, (Octets{0x00, 0x11, 0x22, 0x33, 0x44, 0xEE}));
    const GroupText six(whole.substr(0, 17));
    EXPECT_TRUE(six.isParsed);
    EXPECT_EQ(six.count, 6U);
    EXPECT_EQ(six.octets[6], 0xEE);
    EXPECT_FALSE(GroupText(whole.substr(0, 14)).isParsed);
}

TEST(HardwareAddressText, NoTextIsReadBeyondItsEnd) {
    const RecordedSystemLog log;
    const std::string text = "01:02-03:\xC3\xA9:04:05:06:07:08:\xF0\x9F\x98\x80";
    for (std::size_t length = 0; length <= text.size(); ++length) {
        // A copy of exactly this size, so that a sanitizer sees every byte too many.
        const std::vector<char> copy(text.begin(), text.begin() + static_cast<long>(length));
        const std::string_view view(copy.data(), copy.size());
        EXPECT_FALSE(EthernetText(view).isParsed);
        EXPECT_FALSE(GroupText(view).isParsed);
    }
}

} // namespace kx
