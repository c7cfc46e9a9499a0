#include "units/UnitCommand.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

std::string edit(UnitParameter parameter, std::string_view typed) {
    return editCommand(parameter, typed).value_or("(no command)");
}

std::tm localTime(int month, int day, int hour, int minute) {
    std::tm time{};
    time.tm_mon = month - 1;
    time.tm_mday = day;
    time.tm_hour = hour;
    time.tm_min = minute;
    return time;
}

} // namespace

TEST(CommandProtocol, DefaultPortIsHexadecimal0DC0) {
    EXPECT_EQ(defaultUnitPort, 0x0DC0);
}

TEST(CommandProtocol, RequestsHaveNoArgument) {
    EXPECT_EQ(parameterRequestCommand, "^^IdX");
    EXPECT_EQ(restoreCommand, "^^IdZ");
}

TEST(MACAddressArgument, IsTheTextWithoutColonsWhereverTheyStand) {
    EXPECT_EQ(argumentForText(ValueForm::hardwareAddress, "00:1a:2B:3c:4D:5e"), "001a2B3c4D5e");
    EXPECT_EQ(argumentForText(ValueForm::hardwareAddress, "::a b::"), "a b");
    EXPECT_EQ(argumentForText(ValueForm::hardwareAddress, ""), "");
}

TEST(IPAddressArgument, IsEightDigitsFirstOctetFirst) {
    EXPECT_EQ(argumentForText(ValueForm::ipv4Address, "192.168.1.20"), "C0A80114");
    EXPECT_EQ(argumentForText(ValueForm::ipv4Address, "0.0.0.1"), "00000001");
    EXPECT_EQ(argumentForText(ValueForm::ipv4Address, "nowhere"), "00000000");
}

TEST(DestinationPortArgument, Is3520UnlessItIsOneOfTheFourPorts) {
    EXPECT_EQ(argumentForText(ValueForm::listeningPort, "3519"), "0DC0");
    EXPECT_EQ(argumentForText(ValueForm::listeningPort, "3520"), "0DC0");
    EXPECT_EQ(argumentForText(ValueForm::listeningPort, "3522"), "0DC2");
    EXPECT_EQ(argumentForText(ValueForm::listeningPort, "3523"), "0DC3");
    EXPECT_EQ(argumentForText(ValueForm::listeningPort, "3524"), "0DC0");
    EXPECT_EQ(argumentForText(ValueForm::listeningPort, ""), "0DC0");
}

TEST(DevicePortArgument, IsAnyNumberInFourDigitsOrMore) {
    EXPECT_EQ(argumentForText(ValueForm::anyPort, "0"), "0000");
    EXPECT_EQ(argumentForText(ValueForm::anyPort, "65535"), "FFFF");
    EXPECT_EQ(argumentForText(ValueForm::anyPort, "65536"), "10000");
    EXPECT_EQ(argumentForText(ValueForm::anyPort, "-2"), "FFFFFFFE");
    EXPECT_EQ(argumentForText(ValueForm::anyPort, ""), "0000");
}

TEST(UnitIDArgument, IsANumberOrTheBytesOfTheText) {
    EXPECT_EQ(argumentForText(ValueForm::unitID, "12"), "00000000000C");
    EXPECT_EQ(argumentForText(ValueForm::unitID, "AB"), "4142");
    EXPECT_EQ(argumentForText(ValueForm::unitID, ""), "");
    EXPECT_EQ(argumentForText(ValueForm::unitID, "A\xFF"), std::nullopt);
}

TEST(SerialNumberArgument, IsTheTextWithoutBlanksWhereverTheyStand) {
    EXPECT_EQ(argumentForText(ValueForm::serialNumber, "00 1A 2B 3C 4D 5E"), "001A2B3C4D5E");
    EXPECT_EQ(argumentForText(ValueForm::serialNumber, "  a:b  "), "a:b");
    EXPECT_EQ(argumentForText(ValueForm::serialNumber, ""), "");
}

TEST(EditCommand, DestinationPortWithinItsRangeIsSent) {
    EXPECT_EQ(edit(UnitParameter::destinationPortNumber, "3520"), "^^IdT0DC0");
    EXPECT_EQ(edit(UnitParameter::destinationPortNumber, "3521"), "^^IdT0DC1");
    EXPECT_EQ(edit(UnitParameter::destinationPortNumber, "3523"), "^^IdT0DC3");
}

TEST(EditCommand, DestinationPortOutsideItsRangeBecomes3520) {
    for (const char* typed : {"3524", "3519", "80", "-1", "70000", "port", "-3521"}) {
        EXPECT_EQ(edit(UnitParameter::destinationPortNumber, typed), "^^IdT0DC0") << typed;
    }
}

TEST(EditCommand, DevicePortIsNotChecked) {
    EXPECT_EQ(edit(UnitParameter::devicePortNumber, "80"), "^^IdP0050");
    EXPECT_EQ(edit(UnitParameter::devicePortNumber, "10001"), "^^IdP2711");
    EXPECT_EQ(edit(UnitParameter::devicePortNumber, "70000"), "^^IdP11170");
    EXPECT_EQ(edit(UnitParameter::devicePortNumber, "-1"), "^^IdPFFFFFFFF");
    EXPECT_EQ(edit(UnitParameter::devicePortNumber, "port"), "^^IdP0000");
}

TEST(EditCommand, NumbersAreReadAsFarAsTheirDigitsGo) {
    EXPECT_EQ(edit(UnitParameter::destinationPortNumber, " 3521 or so"), "^^IdT0DC1");
    EXPECT_EQ(edit(UnitParameter::devicePortNumber, "99999999999"), "^^IdP7FFFFFFF");
}

TEST(EditCommand, UnitIDThatBeginsWithADigitIsANumberOfTwelveDigits) {
    EXPECT_EQ(edit(UnitParameter::unitID, "12"), "^^IdU00000000000C");
    EXPECT_EQ(edit(UnitParameter::unitID, "7"), "^^IdU000000000007");
    EXPECT_EQ(edit(UnitParameter::unitID, "7AB"), "^^IdU000000000007");
    EXPECT_EQ(edit(UnitParameter::unitID, "0"), "^^IdU000000000000");
    EXPECT_EQ(edit(UnitParameter::unitID, "99999999999"), "^^IdU00007FFFFFFF");
}

TEST(EditCommand, AnyOtherUnitIDIsItsBytesHoweverManyThereAre) {
    EXPECT_EQ(edit(UnitParameter::unitID, "AB"), "^^IdU4142");
    EXPECT_EQ(edit(UnitParameter::unitID, "seventh"), "^^IdU736576656E7468");
    EXPECT_EQ(edit(UnitParameter::unitID, "\xC3\x84"), "^^IdUC384");
    EXPECT_EQ(edit(UnitParameter::unitID, "-1"), "^^IdU2D31");
    EXPECT_EQ(edit(UnitParameter::unitID, " 5"), "^^IdU2035");
}

TEST(EditCommand, UnitIDThatIsNotUTF8GivesNoCommand) {
    EXPECT_EQ(editCommand(UnitParameter::unitID, "\xFFunit"), std::nullopt);
    EXPECT_EQ(editCommand(UnitParameter::unitID, "5\xFF"), std::nullopt);
}

TEST(EditCommand, SerialNumberLosesItsBlanksWhereverTheyStand) {
    EXPECT_EQ(edit(UnitParameter::serialNumber, "00 1A 2B 3C 4D 5E"), "^^IdS001A2B3C4D5E");
    EXPECT_EQ(edit(UnitParameter::serialNumber, " 0  0\t:x "), "^^IdS00\t:x");
}

TEST(EditCommand, MACAddressesLoseTheirColonsAndKeepTheirCase) {
    EXPECT_EQ(edit(UnitParameter::internalMACAddress, "00:1a:2B:3c:4D:5e"), "^^IdM001a2B3c4D5e");
    EXPECT_EQ(edit(UnitParameter::internalMACAddress, "001A2B3C4D5E"), "^^IdM001A2B3C4D5E");
    EXPECT_EQ(edit(UnitParameter::destinationMACAddress, "00:0A:0B:0C:0D:0E"), "^^IdC000A0B0C0D0E");
    EXPECT_EQ(edit(UnitParameter::destinationMACAddress, "::no mac"), "^^IdCno mac");
}

TEST(EditCommand, AddressesAreEightDigitsFirstOctetFirst) {
    EXPECT_EQ(edit(UnitParameter::internalIPAddress, "192.168.1.10"), "^^IdIC0A8010A");
    EXPECT_EQ(edit(UnitParameter::internalIPAddress, "10.0.0.7"), "^^IdI0A000007");
    EXPECT_EQ(edit(UnitParameter::destinationIPAddress, "192.168.1.20"), "^^IdDC0A80114");
}

TEST(EditCommand, AddressThatDoesNotParseIsEightZeros) {
    EXPECT_EQ(edit(UnitParameter::internalIPAddress, "nowhere"), "^^IdI00000000");
    EXPECT_EQ(edit(UnitParameter::destinationIPAddress, "1.2.3"), "^^IdD00000000");
}

TEST(OptionCommand, WrapsTheWholeTextAndEndsWithACarriageReturn) {
    EXPECT_EQ(optionCommand("V"), "^^IdV\r");
    EXPECT_EQ(optionCommand("V").size(), 6U);
    EXPECT_EQ(optionCommand(""), "^^Id\r");
    EXPECT_EQ(optionCommand(" a  b "), "^^Id a  b \r");
}

TEST(OptionTitle, IsCutBeforeItsFirstTwoBlanks) {
    EXPECT_EQ(optionTextForTitle("V  Version", localTime(3, 5, 14, 7)), "V");
    EXPECT_EQ(optionTextForTitle("A B   C  D", localTime(3, 5, 14, 7)), "A B");
    EXPECT_EQ(optionTextForTitle("  described only", localTime(3, 5, 14, 7)), "");
}

TEST(OptionTitle, WithoutTwoBlanksIsUsedWhole) {
    EXPECT_EQ(optionTextForTitle("Q status", localTime(3, 5, 14, 7)), "Q status");
    EXPECT_EQ(optionTextForTitle("", localTime(3, 5, 14, 7)), "");
}

TEST(OptionTitle, ClockOptionBecomesTheDateInEightDigits) {
    EXPECT_EQ(optionTextForTitle("-Z  Set clock", localTime(11, 15, 23, 47)), "-Z11152347");
    EXPECT_EQ(optionTextForTitle("-Z  Set clock", localTime(3, 5, 14, 7)), "-Z03051407");
    EXPECT_EQ(optionTextForTitle("-Z", localTime(1, 1, 0, 0)), "-Z01010000");
}

TEST(OptionTitle, ClockOptionLosesWhatFollowsIt) {
    EXPECT_EQ(optionTextForTitle("-Zebra x", localTime(12, 31, 23, 59)), "-Z12312359");
}

TEST(OptionTitle, OnlyTheBeginningMakesAClockOption) {
    EXPECT_EQ(optionTextForTitle("V -Z", localTime(3, 5, 14, 7)), "V -Z");
    EXPECT_EQ(optionTextForTitle("-z", localTime(3, 5, 14, 7)), "-z");
}

TEST(UnitPort, IsTheDefaultWithoutAText) {
    EXPECT_EQ(unitPortForText(std::nullopt), 3520);
    EXPECT_EQ(unitPortForText(""), 3520);
}

TEST(UnitPort, IsTheNumberCutTo16Bits) {
    EXPECT_EQ(unitPortForText("3521"), 3521);
    EXPECT_EQ(unitPortForText("70000"), 4464);
    EXPECT_EQ(unitPortForText("-1"), 65535);
    EXPECT_EQ(unitPortForText("none"), 0);
}

} // namespace kx
