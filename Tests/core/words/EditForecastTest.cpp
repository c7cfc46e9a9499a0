// Forecasts of Apply, in words.

#include "words/EditForecast.h"

#include "doubles/MarkedLocalizedText.h"
#include "doubles/ScriptedLocalizedText.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace kx {

namespace {

using enum UnitParameter;

CommandTarget knownUnit() {
    return {
        .unitIsSelected = true, .address = "192.168.1.10", .hardwareAddress = "00:1A:2B:3C:4D:5E"};
}

std::string forecast(UnitParameter parameter, std::string_view typed, const CommandTarget& target) {
    return forecastOfEdit(editOfParameter(parameter, typed), target);
}

void expectForecasts(UnitParameter parameter,
                     const std::vector<std::pair<std::string, std::string>>& cases) {
    for (const auto& [typed, note] : cases) {
        EXPECT_EQ(forecast(parameter, typed, knownUnit()), note);
    }
}

} // namespace

TEST(EditForecast, ADestinationPortOutsideItsRangeSaysWhatIsSentInstead) {
    expectForecasts(
        destinationPortNumber,
        {
            {"3523", "Apply sends ^^IdT0DC3: destination port 3523."},
            {"3524", "Apply sends ^^IdT0DC0: destination port 3520, because 3524 is outside 3520 "
                     "to 3523."},
            {" -1x", "Apply sends ^^IdT0DC0: destination port 3520, because -1 is outside 3520 to "
                     "3523."},
            {"99999999999", "Apply sends ^^IdT0DC0: destination port 3520, because 99999999999 is "
                            "outside 3520 to 3523."},
            {"port", "Apply sends ^^IdT0DC0: destination port 3520, because “port” does not begin "
                     "with a number."},
            {"3521x", "Apply sends ^^IdT0DC1: destination port 3521, because that is how “3521x” "
                      "is read."},
        });
}

TEST(EditForecast, ADevicePortIsNotKeptInARange) {
    expectForecasts(
        devicePortNumber,
        {
            {"10001", "Apply sends ^^IdP2711: device port 10001."},
            {"0", "Apply sends ^^IdP0000: device port 0."},
            {"65535", "Apply sends ^^IdPFFFF: device port 65535."},
            {"65536", "Apply sends ^^IdP10000, more than the four digits of a port, because 65536 "
                      "is outside 0 to 65535."},
            {"-1", "Apply sends ^^IdPFFFFFFFF, more than the four digits of a port, because -1 is "
                   "outside 0 to 65535."},
            {"", "Apply sends nothing: the value is empty."},
            {"none", "Apply sends ^^IdP0000: device port 0, because “none” does not begin with a "
                     "number."},
            {"12ab", "Apply sends ^^IdP000C: device port 12, because that is how “12ab” is read."},
        });
}

TEST(EditForecast, AnIPAddressThatCannotBeReadIsZero) {
    expectForecasts(
        destinationIPAddress,
        {
            {"192.168.1.20", "Apply sends ^^IdDC0A80114: destination IP address 192.168.1.20."},
            {"0.0.0.0", "Apply sends ^^IdD00000000: destination IP address 0.0.0.0."},
            {"1.2.3", "Apply sends ^^IdD00000000: destination IP address 0.0.0.0, because “1.2.3” "
                      "is not an IPv4 address."},
            {"Zürich", "Apply sends ^^IdD00000000: destination IP address 0.0.0.0, because "
                       "“Zürich” is not an IPv4 address."},
            {"300.1.1.1", "Apply sends ^^IdD2C010101: destination IP address 44.1.1.1, because "
                          "that is how “300.1.1.1” is read."},
            {"0.0.0.0 ", "Apply sends ^^IdD00000000: destination IP address 0.0.0.0, because that "
                         "is how “0.0.0.0 ” is read."},
            {"000.0.0.0", "Apply sends ^^IdD00000000: destination IP address 0.0.0.0, because that "
                          "is how “000.0.0.0” is read."},
            {"0.0.0", "Apply sends ^^IdD00000000: destination IP address 0.0.0.0, because “0.0.0” "
                      "is not an IPv4 address."},
            {"1.2.3.4.5", "Apply sends ^^IdD01020304: destination IP address 1.2.3.4, because that "
                          "is how “1.2.3.4.5” is read."},
        });
}

TEST(EditForecast, AMACAddressSaysWhenItIsNone) {
    expectForecasts(
        internalMACAddress,
        {
            {"00:1A:2b:3C:4D:5E",
             "Apply sends ^^IdM001A2b3C4D5E: internal MAC address 00:1A:2b:3C:4D:5E."},
            {"001A2B3C4D5E",
             "Apply sends ^^IdM001A2B3C4D5E: internal MAC address 00:1A:2B:3C:4D:5E."},
            {"00:1A", "Apply sends ^^IdM001A, though a MAC address has 12 hexadecimal digits and "
                      "this has 4."},
            {":", "Apply sends ^^IdM, though a MAC address has 12 hexadecimal digits and this has "
                  "0."},
            {"00-1A-2B-3C-4D-5E", "Apply sends ^^IdM00-1A-2B-3C-4D-5E, though a MAC address has 12 "
                                  "hexadecimal digits and nothing else but colons."},
            {"Zürich", "Apply sends nothing: a command can hold ASCII characters only."},
        });
    expectForecasts(
        destinationMACAddress,
        {{"000A0B0C0D0E",
          "Apply sends ^^IdC000A0B0C0D0E: destination MAC address 00:0A:0B:0C:0D:0E."}});
}

TEST(EditForecast, ASerialNumberSaysWhenItIsNone) {
    expectForecasts(
        serialNumber,
        {
            {"00 1A 2B 3C 4D 5E",
             "Apply sends ^^IdS001A2B3C4D5E: serial number 00 1A 2B 3C 4D 5E."},
            {"00 1A 2B 3C 4D 5E 6F", "Apply sends ^^IdS001A2B3C4D5E6F, though a serial number has "
                                     "12 hexadecimal digits and this has 14."},
            {"00:1A:2B:3C:4D:5E", "Apply sends ^^IdS00:1A:2B:3C:4D:5E, though a serial number has "
                                  "12 hexadecimal digits and nothing else but blanks."},
            {"№ 5", "Apply sends nothing: a command can hold ASCII characters only."},
        });
}

TEST(EditForecast, AUnitIDIsANumberOrAText) {
    expectForecasts(
        unitID,
        {
            {"7", "Apply sends ^^IdU000000000007: unit ID 7."},
            {"255", "Apply sends ^^IdU0000000000FF: unit ID 255."},
            {"7AB", "Apply sends ^^IdU000000000007: unit ID 7, because that is how “7AB” is read."},
            {"007", "Apply sends ^^IdU000000000007: unit ID 7, because that is how “007” is read."},
            {"256", "Apply sends ^^IdU000000000100: the number 256, which does not show as a "
                    "number because it is above 255."},
            {"99999999999",
             "Apply sends ^^IdU00007FFFFFFF: the number 2147483647, because that is how "
             "“99999999999” is read. Above 255 it does not show as a number."},
            {"300abc",
             "Apply sends ^^IdU00000000012C: the number 300, because that is how “300abc” "
             "is read. Above 255 it does not show as a number."},
            {"sensor", "Apply sends ^^IdU73656E736F72: unit ID “sensor”."},
            {"AB", "Apply sends ^^IdU4142: the text “AB”, though a unit ID has 6 bytes and this "
                   "has 2."},
            {"letters", "Apply sends ^^IdU6C657474657273: the text “letters”, though a unit ID has "
                        "6 bytes and this has 7."},
            {"größe", "Apply sends ^^IdU6772C3B6C39F65: the text “größe”, though a unit ID has 6 "
                      "bytes and this has 7."},
            {"-7", "Apply sends ^^IdU2D37: the text “-7”, though a unit ID has 6 bytes and this "
                   "has 2."},
            {"\xFF", "Apply sends nothing: the unit ID is not a text in UTF-8."},
        });
}

TEST(EditForecast, TheInternalIPAddressNeedsAnARPEntry) {
    expectForecasts(
        internalIPAddress,
        {
            {"10.0.0.7", "Apply enters 10.0.0.7 at 00:1A:2B:3C:4D:5E in the ARP cache, which needs "
                         "administrator rights. Apply sends ^^IdI0A000007 to 10.0.0.7."},
            {"unit",
             "Apply hands “unit” and 00:1A:2B:3C:4D:5E to the ARP tool, which needs "
             "administrator rights. Apply sends ^^IdI00000000 to 0.0.0.0, because “unit” is "
             "not an IPv4 address."},
            {"10.0.0.7 or so",
             "Apply hands “10.0.0.7 or so” and 00:1A:2B:3C:4D:5E to the ARP tool, which needs "
             "administrator rights. Apply sends ^^IdI0A000007 to 10.0.0.7, because that is how "
             "“10.0.0.7 or so” is read."},
            {"Zürich", "Apply asks for administrator rights, but an ARP entry can hold ASCII "
                       "characters only. Apply sends ^^IdI00000000 to 0.0.0.0, because “Zürich” is "
                       "not an IPv4 address."},
            {"", "Apply sends nothing: the value is empty."},
        });
}

TEST(EditForecast, TheInternalIPAddressIsSentWithoutAUnitToo) {
    EXPECT_EQ(forecast(internalIPAddress, "10.0.0.7", {}),
              "Apply asks for administrator rights, but no MAC address is known for an ARP entry. "
              "No unit is selected. Apply sends ^^IdI0A000007 to 10.0.0.7.");
    EXPECT_EQ(forecast(internalIPAddress, "10.0.0.7", {.unitIsSelected = true}),
              "Apply asks for administrator rights, but no MAC address is known for an ARP entry. "
              "Apply sends ^^IdI0A000007 to 10.0.0.7.");
}

TEST(EditForecast, WithoutAUnitOrItsAddressNothingElseIsSent) {
    for (const UnitParameter parameter : allUnitParameters) {
        if (parameter != internalIPAddress) {
            EXPECT_EQ(forecast(parameter, "7", {}), "Apply sends nothing: no unit is selected.");
            EXPECT_EQ(forecast(parameter, "7", {.unitIsSelected = true}),
                      "Apply sends nothing: the address of the unit is not known.");
        }
        EXPECT_EQ(forecast(parameter, "", {}), "Apply sends nothing: the value is empty.");
    }
}

TEST(EditForecast, NothingIsSentForAParameterThatNoCommandChanges) {
    EXPECT_EQ(forecastOfEdit(EditRefusal::notEditable, knownUnit()),
              "Apply sends nothing: no command changes this parameter.");
}

TEST(EditForecast, NothingIsSentWhileTheListenerIsStopped) {
    CommandTarget target = knownUnit();
    target.isListening = false;
    const std::string nothing = "Apply sends nothing: the UDP listener is not running.";
    EXPECT_EQ(forecast(unitID, "7", target), nothing);
    EXPECT_EQ(forecast(internalIPAddress, "10.0.0.7", target),
              "Apply enters 10.0.0.7 at 00:1A:2B:3C:4D:5E in the ARP cache, which needs "
              "administrator rights. " +
                  nothing);
    EXPECT_EQ(forecast(unitID, "", target), "Apply sends nothing: the value is empty.");
}

TEST(EditForecast, ASerialNumberThatAnotherUnitHasIsSaidToBe) {
    CommandTarget target = knownUnit();
    target.newSerialNumberIsTaken = true;
    EXPECT_EQ(forecast(serialNumber, "0a 0b 0c 0d 0e 0f", target),
              "Apply sends ^^IdS0a0b0c0d0e0f: serial number 0a 0b 0c 0d 0e 0f, which another unit "
              "has.");
}

TEST(EditForecast, AnOverlongValueMakesAShortNote) {
    for (const UnitParameter parameter : allUnitParameters) {
        for (const char filling : {'7', 'A', '\n', '%'}) {
            const std::string note = forecast(parameter, std::string(10'000, filling), knownUnit());
            EXPECT_LT(note.size(), 400U) << note;
            EXPECT_EQ(note.find('\n'), std::string::npos) << note;
        }
    }
}

TEST(EditForecast, PlaceholdersInATypedTextStandAsTheyAre) {
    EXPECT_EQ(forecast(devicePortNumber, "%@%d%n", knownUnit()),
              "Apply sends ^^IdP0000: device port 0, because “%@%d%n” does not begin with a "
              "number.");
}

TEST(EditForecast, EverySentenceIsLookedUpAsAWhole) {
    const MarkedLocalizedText marked;
    EXPECT_EQ(forecast(unitID, "7", knownUnit()), "<Apply sends ^^IdU000000000007: <unit ID 7>.>");
    EXPECT_EQ(forecast(unitID, "7", {}), "<Apply sends nothing: no unit is selected.>");
    EXPECT_EQ(forecast(internalIPAddress, "10.0.0.7", knownUnit()),
              "<Apply enters 10.0.0.7 at 00:1A:2B:3C:4D:5E in the ARP cache, which needs "
              "administrator rights.> <Apply sends ^^IdI0A000007 to 10.0.0.7.>");
}

TEST(EditForecast, TheValueAloneNeedsNeitherAUnitNorAnARPEntry) {
    const auto alone = [](UnitParameter parameter, std::string_view typed) {
        return forecastOfValueAlone(std::get<ParameterEdit>(editOfParameter(parameter, typed)));
    };
    EXPECT_EQ(alone(devicePortNumber, "70000"), forecast(devicePortNumber, "70000", knownUnit()));
    EXPECT_EQ(alone(internalIPAddress, "192.168.1.010"),
              "Apply sends ^^IdIC0A8010A: internal IP address 192.168.1.10, because that is how "
              "“192.168.1.010” is read.");
}

} // namespace kx
