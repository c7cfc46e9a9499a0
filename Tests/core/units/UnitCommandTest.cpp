#include "units/UnitCommand.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace kx {

namespace {

using enum UnitParameter;
using Cases = std::vector<std::pair<std::string, std::string>>; // what is typed, what is sent

void expectCommands(UnitParameter parameter, const Cases& cases) {
    for (const auto& [typed, command] : cases) {
        EXPECT_EQ(editCommand(parameter, typed), command)
            << nameOfUnitParameter(parameter) << ": " << typed;
    }
}

const std::string longText(10'000, '7');
const std::string brokenText = "A\xFF\xC0\x80"; // not UTF-8
const std::string hostileText = "%n%s%@; ^^IdZ $(reboot) '\"\t";

std::tm localTime(int month, int day, int hour, int minute) {
    std::tm time{};
    time.tm_mon = month - 1;
    time.tm_mday = day;
    time.tm_hour = hour;
    time.tm_min = minute;
    return time;
}

} // namespace

TEST(UnitCommand, DefaultPortIsHexadecimal0DC0) {
    EXPECT_EQ(defaultUnitPort, 0x0DC0);
}

TEST(UnitCommand, RequestsHaveNoArgument) {
    EXPECT_EQ(parameterRequestCommand, "^^IdX");
    EXPECT_EQ(restoreCommand, "^^IdZ");
}

// --- The commands of edits: every rule of conversion stands here, and nowhere else ---

TEST(EditCommand, MACAddressesLoseTheirColonsWhereverTheyStandAndKeepTheirCase) {
    expectCommands(internalMACAddress, {
                                           {"00:1A:2B:3C:4D:5E", "^^IdM001A2B3C4D5E"},
                                           {"00:1a:2B:3c:4D:5e", "^^IdM001a2B3c4D5e"},
                                           {"001A2B3C4D5E", "^^IdM001A2B3C4D5E"},
                                           {"::1:A::", "^^IdM1A"},
                                           {":", "^^IdM"},
                                           {"", "^^IdM"},
                                           {"00-1A 2B", "^^IdM00-1A 2B"},
                                           {"Zürich", "^^IdMZürich"},
                                           {brokenText, "^^IdM" + brokenText},
                                           {longText, "^^IdM" + longText},
                                           {hostileText, "^^IdM" + hostileText},
                                       });
    expectCommands(destinationMACAddress, {
                                              {"00:0A:0B:0C:0D:0E", "^^IdC000A0B0C0D0E"},
                                              {"::no mac", "^^IdCno mac"},
                                          });
}

TEST(EditCommand, SerialNumbersLoseTheirBlanksWhereverTheyStandAndKeepTheirCase) {
    expectCommands(serialNumber, {
                                     {"00 1A 2B 3C 4D 5E", "^^IdS001A2B3C4D5E"},
                                     {"  001a2b 3c4d5e ", "^^IdS001a2b3c4d5e"},
                                     {" 0  0\t:x ", "^^IdS00\t:x"},
                                     {"   ", "^^IdS"},
                                     {"", "^^IdS"},
                                     {"№5", "^^IdS№5"},
                                     {longText, "^^IdS" + longText},
                                     {"%n;$(x)", "^^IdS%n;$(x)"},
                                 });
}

TEST(EditCommand, IPAddressesAreEightDigitsFirstOctetFirst) {
    expectCommands(destinationIPAddress, {
                                             {"192.168.1.20", "^^IdDC0A80114"},
                                             {"0.0.0.1", "^^IdD00000001"},
                                             {"255.255.255.255", "^^IdDFFFFFFFF"},
                                             {" 10.0.0.7 and more", "^^IdD0A000007"},
                                             {"300.1.1.1", "^^IdD2C010101"},
                                         });
    expectCommands(internalIPAddress, {{"10.0.0.7", "^^IdI0A000007"}});
}

TEST(EditCommand, AnIPAddressThatDoesNotParseIsEightZeros) {
    for (const std::string& typed :
         {std::string("unit.example"), std::string("1.2.3"), std::string("Zürich"), std::string(),
          brokenText, longText, hostileText}) {
        expectCommands(destinationIPAddress, {{typed, "^^IdD00000000"}});
    }
    expectCommands(internalIPAddress, {{"nowhere", "^^IdI00000000"}});
}

TEST(EditCommand, ADestinationPortIsOneOfFour) {
    expectCommands(destinationPortNumber, {
                                              {"3520", "^^IdT0DC0"},
                                              {"3521", "^^IdT0DC1"},
                                              {"3522", "^^IdT0DC2"},
                                              {"3523", "^^IdT0DC3"},
                                              {" 3521x", "^^IdT0DC1"},
                                              {"3522ü", "^^IdT0DC2"},
                                          });
}

TEST(EditCommand, AnyOtherDestinationPortIs3520) {
    for (const std::string& typed :
         {std::string("3519"), std::string("3524"), std::string("80"), std::string("-1"),
          std::string("-3521"), std::string("70000"), std::string("port"), std::string("ü"),
          std::string(), brokenText, longText, hostileText}) {
        expectCommands(destinationPortNumber, {{typed, "^^IdT0DC0"}});
    }
}

TEST(EditCommand, ADevicePortIsNotChecked) {
    expectCommands(devicePortNumber, {
                                         {"10001", "^^IdP2711"},
                                         {"80", "^^IdP0050"},
                                         {"0", "^^IdP0000"},
                                         {"65535", "^^IdPFFFF"},
                                         {"65536", "^^IdP10000"},
                                         {"70000", "^^IdP11170"},
                                         {"-1", "^^IdPFFFFFFFF"},
                                         {"-2", "^^IdPFFFFFFFE"},
                                         {"12ab", "^^IdP000C"},
                                         {"port", "^^IdP0000"},
                                         {"Zürich", "^^IdP0000"},
                                         {"", "^^IdP0000"},
                                         {"99999999999", "^^IdP7FFFFFFF"},
                                         {longText, "^^IdP7FFFFFFF"},
                                         {hostileText, "^^IdP0000"},
                                     });
}

TEST(EditCommand, AUnitIDThatBeginsWithADigitIsANumberOfTwelveDigits) {
    expectCommands(unitID, {
                               {"7", "^^IdU000000000007"},
                               {"12", "^^IdU00000000000C"},
                               {"7AB", "^^IdU000000000007"},
                               {"0", "^^IdU000000000000"},
                               {"99999999999", "^^IdU00007FFFFFFF"},
                               {longText, "^^IdU00007FFFFFFF"},
                           });
}

TEST(EditCommand, AnyOtherUnitIDIsItsBytesHoweverManyThereAre) {
    std::string digits = "^^IdU";
    for (int i = 0; i < 3000; ++i) {
        digits += "41";
    }
    expectCommands(unitID, {
                               {"AB", "^^IdU4142"},
                               {"letters", "^^IdU6C657474657273"},
                               {"-1", "^^IdU2D31"},
                               {" 5", "^^IdU2035"},
                               {"ü", "^^IdUC3BC"},
                               {"a\tb", "^^IdU610962"},
                               {"%n;$", "^^IdU256E3B24"},
                               {"", "^^IdU"},
                               {std::string(3000, 'A'), digits},
                           });
}

TEST(EditCommand, AUnitIDThatIsNotUTF8GivesNone) {
    EXPECT_EQ(editCommand(unitID, "\xFFunit"), std::nullopt);
    EXPECT_EQ(editCommand(unitID, "5\xFF"), std::nullopt);
    EXPECT_EQ(editCommand(unitID, brokenText), std::nullopt);
}

TEST(EditCommand, IsTheLetterOfTheParameterAndTheArgumentOfItsForm) {
    for (const auto& row : parameterTable) {
        EXPECT_EQ(editCommand(row.parameter, "3521"),
                  std::string(commandPrefix) + row.commandLetter +
                      argumentForText(row.form, "3521").value_or("(none)"))
            << row.name;
    }
    EXPECT_EQ(argumentForText(ValueForm::none, "3521"), std::nullopt);
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
