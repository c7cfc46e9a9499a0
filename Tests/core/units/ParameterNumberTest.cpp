#include "units/ParameterNumber.h"

#include <gtest/gtest.h>

namespace kx {

TEST(ParameterNumber, ATextIsReadAndWrittenBack) {
    const auto isWrittenBack = [](UnitParameter parameter, std::string_view text) {
        return textOfParameter(parameter, numberOfParameter(parameter, text)) == text;
    };
    EXPECT_TRUE(isWrittenBack(UnitParameter::serialNumber, "4B 58 00 00 FF 01"));
    EXPECT_TRUE(isWrittenBack(UnitParameter::internalMACAddress, "02:4B:58:00:0A:01"));
    EXPECT_TRUE(isWrittenBack(UnitParameter::destinationMACAddress, "FF:FF:FF:FF:FF:FF"));
    EXPECT_TRUE(isWrittenBack(UnitParameter::internalIPAddress, "255.255.255.255"));
    EXPECT_TRUE(isWrittenBack(UnitParameter::destinationIPAddress, "0.0.0.0"));
    EXPECT_TRUE(isWrittenBack(UnitParameter::devicePortNumber, "65535"));
    EXPECT_TRUE(isWrittenBack(UnitParameter::destinationPortNumber, "0"));
}

TEST(ParameterNumber, NumbersHaveTheOrderOfTheirValues) {
    const auto ip = UnitParameter::internalIPAddress;
    EXPECT_LT(numberOfParameter(ip, "192.0.2.9"), numberOfParameter(ip, "192.0.2.10"));
    EXPECT_LT(numberOfParameter(ip, "9.255.255.255"), numberOfParameter(ip, "10.0.0.0"));
    const auto port = UnitParameter::devicePortNumber;
    EXPECT_LT(numberOfParameter(port, "9999"), numberOfParameter(port, "10000"));
}

TEST(ParameterNumber, SixBytesAreANumberWithTheFirstMostSignificant) {
    EXPECT_EQ(numberOfSixBytes("01 02 03 04 05 06"), 0x010203040506U);
    EXPECT_EQ(numberOfSixBytes("01:02:03:04:05:06"), 0x010203040506U);
    EXPECT_EQ(numberOfSixBytes(std::nullopt), 0U);
    EXPECT_EQ(numberOfSixBytes(std::string_view("01 02").substr(0, 4)), 0x01U) << "half a byte";
    EXPECT_EQ(textOfSixBytes(0x010203040506U, ""), "010203040506");
}

TEST(ParameterNumber, AUnitIDKeepsItsBytes) {
    const UnitIDBytes bytes{0xFF, 0, 'A', 0, 0, 7};
    EXPECT_EQ(unitIDOfNumber(numberOfUnitID(bytes)), bytes);
}

} // namespace kx
