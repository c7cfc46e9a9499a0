#include "addresses/IPv4Address.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>

namespace kx {
namespace {

constexpr std::uint32_t allOnes = 0xFFFFFFFFU;

TEST(IPv4Address, FirstSegmentIsTheMostSignificantByte) {
    EXPECT_EQ(ipForString("192.168.1.10"), 0xC0A8010AU);
    EXPECT_EQ(ipForString("255.255.255.255"), allOnes);
}

TEST(IPv4Address, SkipsBlanksCommasHyphensTabsAndCarriageReturnsInFront) {
    EXPECT_EQ(ipForString(" ,-\t192.168.1.10"), 0xC0A8010AU);
    EXPECT_EQ(ipForString("\r\r- 192.168.1.10"), 0xC0A8010AU);
}

TEST(IPv4Address, DoesNotSkipALineFeed) {
    EXPECT_EQ(ipForString("\n192.168.1.10"), 0U);
    EXPECT_EQ(ipForString(" \n192.168.1.10"), 0U);
}

TEST(IPv4Address, SkipsNothingBetweenSegments) {
    EXPECT_EQ(ipForString("10 .0.0.1"), 0U);
    EXPECT_EQ(ipForString("10. 9.0.1"), 0U);
}

TEST(IPv4Address, ReadsHexadecimalSegments) {
    EXPECT_EQ(ipForString("0x0A.0x00.0x00.0x01"), 0x0A000001U);
    EXPECT_EQ(ipForString("0xA.0.0.1"), 0x0A000001U);
    EXPECT_EQ(ipForString("0xaf.0xFe.0x.1"), 0xAFFE0001U);
    EXPECT_EQ(ipForString("1.2.3.0xFFF"), 0x010203FFU);
}

TEST(IPv4Address, UpperCaseXIsNoHexadecimalPrefix) {
    EXPECT_EQ(ipForString("0X0A.0.0.1"), 0U);
}

TEST(IPv4Address, HexadecimalSegmentEndsAfterTwoDigits) {
    EXPECT_EQ(ipForString("0x0AA.0.0.1"), 0U);
}

TEST(IPv4Address, MissingDotIsAFailure) {
    EXPECT_EQ(ipForString("1.2.3"), 0U);
    EXPECT_EQ(ipForString("1.2"), 0U);
    EXPECT_EQ(ipForString("1"), 0U);
    EXPECT_EQ(ipForString("1,2,3,4"), 0U);
}

TEST(IPv4Address, IgnoresWhatFollowsTheFourthSegment) {
    EXPECT_EQ(ipForString("1.2.3.4.5"), 0x01020304U);
    EXPECT_EQ(ipForString("1.2.3.4junk"), 0x01020304U);
    EXPECT_EQ(ipForString("10.0.0.1 abc"), 0x0A000001U);
    EXPECT_EQ(ipForString("1.2.3.4567"), (0x01020300U | 456U));
}

TEST(IPv4Address, EmptySegmentReadsAsZero) {
    EXPECT_EQ(ipForString("1..2.3"), 0x01000203U);
    EXPECT_EQ(ipForString("1.2.3."), 0x01020300U);
    EXPECT_EQ(ipForString("...7"), 7U);
}

TEST(IPv4Address, DecimalSegmentEndsAfterThreeDigits) {
    EXPECT_EQ(ipForString("1234.1.1.1"), 0U);
    EXPECT_EQ(ipForString("1.1.1.1234"), (0x01010100U | 123U));
}

TEST(IPv4Address, SegmentAbove255SpillsIntoTheOneBefore) {
    EXPECT_EQ(stringForIP(ipForString("1.2.2.300")), "1.2.3.44");
    EXPECT_EQ(stringForIP(ipForString("1.2.3.300")), "1.2.3.44"); // OR'ed, not added
}

TEST(IPv4Address, FirstSegmentAbove255LosesItsHighBits) {
    EXPECT_EQ(ipForString("300.1.1.1"), (300U << 24U) | 0x010101U);
    EXPECT_EQ(stringForIP(ipForString("300.1.1.1")), "44.1.1.1");
    EXPECT_EQ(stringForIP(ipForString("256.1.1.1")), "0.1.1.1");
}

TEST(IPv4Address, AllZerosLookLikeAFailure) {
    EXPECT_EQ(ipForString("0.0.0.0"), 0U);
    EXPECT_EQ(ipForString("..."), 0U);
}

TEST(IPv4Address, EmptyTextIsNoAddress) {
    EXPECT_EQ(ipForString(""), 0U);
    EXPECT_EQ(ipForString("   "), 0U);
}

TEST(IPv4Address, TextIsNoAddressFrom255CharactersOn) {
    const std::string address = "10.0.0.1 ";
    EXPECT_EQ(ipForString(address + std::string(254 - address.size(), 'x')), 0x0A000001U);
    EXPECT_EQ(ipForString(address + std::string(255 - address.size(), 'x')), 0U);
    EXPECT_EQ(ipForString(address + std::string(5000, 'x')), 0U);
}

TEST(IPv4Address, AddressAtTheEndOfTheLongestTextIsRead) {
    const std::string address = "10.0.0.1";
    EXPECT_EQ(ipForString(std::string(254 - address.size(), ' ') + address), 0x0A000001U);
    EXPECT_EQ(ipForString(std::string(254, ' ')), 0U);
}

TEST(IPv4Address, TextOfFewCharactersAndTooManyBytesFailsSafely) {
    std::string text = "10.0.0.1";
    for (int i = 0; i < 123; ++i) {
        text += "\xC3\xA9"; // one character, two bytes
    }
    EXPECT_EQ(ipForString(text), 0x0A000001U) << "254 bytes";
    EXPECT_EQ(ipForString(text + "x"), 0U) << "255 bytes";
}

TEST(IPv4Address, ZeroByteEndsTheText) {
    using namespace std::string_literals;
    EXPECT_EQ(ipForString("10.0.0.1\0.9"s), 0x0A000001U);
    EXPECT_EQ(ipForString("10.0\0.0.1"s), 0U);
}

TEST(IPv4Address, BytesAbove127AreNoDigits) {
    EXPECT_EQ(ipForString("1.2.3.4\xC2\xB2"), 0x01020304U);
    EXPECT_EQ(ipForString("\xC2\xA0"
                          "1.2.3.4"),
              0U);
}

TEST(IPv4Segment, ReportsWhatItConsumedAndAdvances) {
    std::int32_t position = 3;
    std::int32_t consumed = -1;
    EXPECT_EQ(ipSegmentFromBuf("10.254.1", position, consumed), 254U);
    EXPECT_EQ(position, 6);
    EXPECT_EQ(consumed, 3);
}

TEST(IPv4Segment, NoDigitReadsAsZeroAndConsumesNothing) {
    std::int32_t position = 2;
    std::int32_t consumed = -1;
    EXPECT_EQ(ipSegmentFromBuf("1..2", position, consumed), 0U);
    EXPECT_EQ(position, 2);
    EXPECT_EQ(consumed, 0);
}

TEST(IPv4Segment, HexadecimalPrefixCountsAsConsumed) {
    std::int32_t position = 0;
    std::int32_t consumed = -1;
    EXPECT_EQ(ipSegmentFromBuf("0x", position, consumed), 0U);
    EXPECT_EQ(consumed, 2);
    position = 0;
    EXPECT_EQ(ipSegmentFromBuf("0xfFf", position, consumed), 0xFFU);
    EXPECT_EQ(consumed, 4);
    EXPECT_EQ(position, 4);
}

TEST(IPv4Segment, StopsAfterThreeDecimalDigits) {
    std::int32_t position = 0;
    std::int32_t consumed = -1;
    EXPECT_EQ(ipSegmentFromBuf("1234", position, consumed), 123U);
    EXPECT_EQ(position, 3);
}

TEST(IPv4Segment, LongVariantReadsTenDecimalDigits) {
    std::int32_t position = 0;
    std::int32_t consumed = -1;
    EXPECT_EQ(ipSegment1FromBuf("40000000001", position, consumed), 4000000000U);
    EXPECT_EQ(consumed, 10);
    EXPECT_EQ(position, 10);
}

TEST(IPv4Segment, LongVariantWrapsBeyond32Bits) {
    std::int32_t position = 0;
    std::int32_t consumed = -1;
    EXPECT_EQ(ipSegment1FromBuf("4294967297", position, consumed), 1U);
}

TEST(IPv4Segment, LongVariantStillReadsTwoHexadecimalDigits) {
    std::int32_t position = 0;
    std::int32_t consumed = -1;
    EXPECT_EQ(ipSegment1FromBuf("0x123", position, consumed), 0x12U);
    EXPECT_EQ(consumed, 4);
}

TEST(IPv4Text, IsWrittenIntoRoomForTheLongestWithoutATerminator) {
    std::string room(16, '#');
    EXPECT_EQ(writeIP(room.data(), 0xFFFFFFFFU), room.data() + 15);
    EXPECT_EQ(room, "255.255.255.255#");
    EXPECT_EQ(writeIP(room.data(), 0x00000009U), room.data() + 7);
    EXPECT_EQ(room.substr(0, 8), "0.0.0.9.");
}

TEST(IPv4Text, HasNoZeroPadding) {
    EXPECT_EQ(stringForIP(0x0A000001U), "10.0.0.1");
    EXPECT_EQ(stringForIP(0), "0.0.0.0");
    EXPECT_EQ(stringForIP(allOnes), "255.255.255.255");
}

TEST(IPv4Text, NetNumberCarriesThePrefixLength) {
    EXPECT_EQ(stringForNetNumber(0x0A000000U, 0xFF000000U), "10.0.0.0/8");
    EXPECT_EQ(stringForNetNumber(0x0A000000U, allOnes), "10.0.0.0/32");
    EXPECT_EQ(stringForNetNumber(allOnes, allOnes), "255.255.255.255/32");
    EXPECT_EQ(stringForNetNumber(0x80000000U, 0x80000000U), "128.0.0.0/1");
}

TEST(IPv4Text, MaskOfZeroAddsNoSuffix) {
    EXPECT_EQ(stringForNetNumber(0x0A000000U, 0), "10.0.0.0");
}

TEST(IPv4Text, LowestBitAloneDecidesThePrefixOfAMaskWithHoles) {
    EXPECT_EQ(stringForNetNumber(0x0A000000U, 0xFF00FF00U), "10.0.0.0/24");
}

TEST(IPv4Prefix, IsReadFromAMaskText) {
    EXPECT_EQ(prefixForMaskStr("255.255.255.0"), "24");
    EXPECT_EQ(prefixForMaskStr("255.255.255.255"), "32");
    EXPECT_EQ(prefixForMaskStr("128.0.0.0"), "1");
    EXPECT_EQ(prefixForMaskStr("255.0.255.0"), "24");
}

TEST(IPv4Prefix, IsAbsentWithoutAMask) {
    EXPECT_EQ(prefixForMaskStr(std::nullopt), std::nullopt);
    EXPECT_EQ(prefixForMaskStr("0.0.0.0"), std::nullopt);
    EXPECT_EQ(prefixForMaskStr("none"), std::nullopt);
    EXPECT_EQ(prefixForMaskStr(""), std::nullopt);
}

TEST(IPv4Bits, RightBitIsTheLastOneWithinThePrefix) {
    EXPECT_EQ(FindRightBit(0xC0A80100U, 32), 24);
    EXPECT_EQ(FindRightBit(0xC0A80100U, 24), 24);
    EXPECT_EQ(FindRightBit(0xC0A80100U, 23), 13);
    EXPECT_EQ(FindRightBit(0x80000000U, 1), 1);
    EXPECT_EQ(FindRightBit(1, 32), 32);
    EXPECT_EQ(FindRightBit(1, 31), 0);
}

TEST(IPv4Bits, RightBitOfNoBitsIsZero) {
    EXPECT_EQ(FindRightBit(allOnes, 0), 0);
    EXPECT_EQ(FindRightBit(0, 32), 0);
}

TEST(IPv4Bits, RightBitAbove32IsNeverSet) {
    EXPECT_EQ(FindRightBit(allOnes, 33), 32);
    EXPECT_EQ(FindRightBit(allOnes, 255), 32);
}

TEST(IPv4Bits, LeftBitIsTheFirstFromTheStartOn) {
    EXPECT_EQ(FindLeftBit(0xC0A80100U, 1), 1);
    EXPECT_EQ(FindLeftBit(0xC0A80100U, 3), 9);
    EXPECT_EQ(FindLeftBit(0xC0A80100U, 24), 24);
    EXPECT_EQ(FindLeftBit(0xC0A80100U, 25), 0);
    EXPECT_EQ(FindLeftBit(1, 32), 32);
    EXPECT_EQ(FindLeftBit(0, 1), 0);
}

TEST(IPv4Bits, LeftBitFromAbove32IsZero) {
    EXPECT_EQ(FindLeftBit(allOnes, 33), 0);
    EXPECT_EQ(FindLeftBit(allOnes, 255), 0);
}

TEST(IPv4Bits, LeftBitFromZeroTestsTheLeastSignificantBitFirst) {
    EXPECT_EQ(FindLeftBit(0x80000001U, 0), 0);
    EXPECT_EQ(FindLeftBit(0x80000000U, 0), 1);
    EXPECT_EQ(FindLeftBit(0x00000002U, 0), 31);
}

} // namespace
} // namespace kx
