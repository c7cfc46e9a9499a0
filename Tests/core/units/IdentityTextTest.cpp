#include "units/IdentityText.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace kx {

namespace {

std::string identity(const Bytes& data) {
    return unitIDforData(data).value_or("(no text)");
}

} // namespace

TEST(UnitIDText, IsTheLastByteWhenTheOthersAreZero) {
    EXPECT_EQ(identity({0, 0, 0, 0, 0, 7}), "7");
    EXPECT_EQ(identity({0, 0, 0, 0, 0, 0}), "0");
    EXPECT_EQ(identity({0, 0, 0, 0, 0, 255}), "255");
    EXPECT_EQ(identity({0, 0, 0, 0, 0, 7, 9}), "7");
}

TEST(UnitIDText, KeepsZeroBytesOfAText) {
    EXPECT_EQ(identity({'A', 'B', 'C', 0, 0, 0}), std::string("ABC\0\0\0", 6));
    EXPECT_EQ(identity({0, 0, 0, 0, 'A', 0}), std::string("\0\0\0\0A\0", 6));
}

TEST(UnitIDText, ReadsUTF8AndNothingElse) {
    EXPECT_EQ(identity({'n', 0xC3, 0xA4, 'h', 'e', 'r'}), "n\xC3\xA4her");
    EXPECT_EQ(unitIDforData(Bytes{0xFF, 'B', 'C', 'D', 'E', 'F'}), std::nullopt);
    EXPECT_EQ(unitIDforData(Bytes{'A', 'B', 'C', 'D', 'E', 0xC3}), std::nullopt);
}

TEST(UnitIDText, NeedsSixBytes) {
    EXPECT_THROW(unitIDforData(Bytes{0, 0, 0, 0, 0}), RangeFailure);
}

TEST(HexString, JoinsUpperCasePairs) {
    EXPECT_EQ(hexStringForData(Bytes{0x00, 0x1A, 0xFF}, ":"), "00:1A:FF");
    EXPECT_EQ(hexStringForData(Bytes{0x0A, 0xB0}, ""), "0AB0");
    EXPECT_EQ(hexStringForData(Bytes{0x01, 0x02}, ", "), "01, 02");
    EXPECT_EQ(hexStringForData(Bytes{0x01}, ":"), "01");
    EXPECT_EQ(hexStringForData(Bytes{}, ":"), "");
}

TEST(SerialNumberText, HasABlankBetweenBytes) {
    EXPECT_EQ(serialNumberText(Bytes{0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E}), "00 1A 2B 3C 4D 5E");
}

TEST(HexDigits, AreTwoAndTheEndIsBehindThem) {
    std::array<char, 3> digits{'.', '.', '.'};
    EXPECT_EQ(writeHexDigits(digits.data(), 0x0F), digits.data() + 2);
    EXPECT_EQ(std::string(digits.data(), digits.size()), "0F.");
    writeHexDigits(digits.data(), 0xA0);
    EXPECT_EQ(std::string(digits.data(), digits.size()), "A0.");
}

} // namespace kx
