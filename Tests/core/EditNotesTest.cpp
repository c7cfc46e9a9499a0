// What Apply will send, in words.

#include "EditNotes.h"

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

void expectNotes(UnitParameter parameter,
                 const std::vector<std::pair<std::string, std::string>>& cases) {
    for (const auto& [typed, note] : cases) {
        EXPECT_EQ(noteOfEdit(parameter, typed, knownUnit()), note);
    }
}

} // namespace

TEST(EditNotes, ADestinationPortOutsideItsRangeSaysWhatIsSentInstead) {
    expectNotes(
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
            {"-", "Apply sends ^^IdT0DC0: destination port 3520, because “-” does not begin with a "
                  "number."},
            {"3521x", "Apply sends ^^IdT0DC1: destination port 3521, because that is how “3521x” "
                      "is read."},
            {"03521", "Apply sends ^^IdT0DC1: destination port 3521, because that is how “03521” "
                      "is read."},
        });
}

TEST(EditNotes, ADevicePortIsNotKeptInARange) {
    expectNotes(
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

TEST(EditNotes, AnIPAddressThatCannotBeReadIsZero) {
    expectNotes(
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
            {"1.2.3.4.5", "Apply sends ^^IdD01020304: destination IP address 1.2.3.4, because that "
                          "is how “1.2.3.4.5” is read."},
        });
}

TEST(EditNotes, AMACAddressSaysWhenItIsNone) {
    expectNotes(
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
    expectNotes(destinationMACAddress,
                {{"000A0B0C0D0E",
                  "Apply sends ^^IdC000A0B0C0D0E: destination MAC address 00:0A:0B:0C:0D:0E."}});
}

TEST(EditNotes, ASerialNumberSaysWhenItIsNone) {
    expectNotes(
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

TEST(EditNotes, AUnitIDIsANumberOrAText) {
    expectNotes(
        unitID,
        {
            {"7", "Apply sends ^^IdU000000000007: unit ID 7."},
            {"255", "Apply sends ^^IdU0000000000FF: unit ID 255."},
            {"7AB", "Apply sends ^^IdU000000000007: unit ID 7, because that is how “7AB” is read."},
            {"007", "Apply sends ^^IdU000000000007: unit ID 7, because that is how “007” is read."},
            {"256", "Apply sends ^^IdU000000000100: the number 256, which does not show as a "
                    "number because it is above 255."},
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

TEST(EditNotes, TheInternalIPAddressNeedsAnARPEntry) {
    expectNotes(
        internalIPAddress,
        {
            {"10.0.0.7", "Apply enters 10.0.0.7 at 00:1A:2B:3C:4D:5E in the ARP cache, which needs "
                         "administrator rights. It sends ^^IdI0A000007 to 10.0.0.7."},
            {"unit", "Apply hands “unit” and 00:1A:2B:3C:4D:5E to the ARP tool, which needs "
                     "administrator rights. It sends ^^IdI00000000 to 0.0.0.0, because “unit” is "
                     "not an IPv4 address."},
            {"10.0.0.7 or so",
             "Apply hands “10.0.0.7 or so” and 00:1A:2B:3C:4D:5E to the ARP tool, which needs "
             "administrator rights. It sends ^^IdI0A000007 to 10.0.0.7, because that is how "
             "“10.0.0.7 or so” is read."},
            {"Zürich", "Apply asks for administrator rights, but an ARP entry can hold ASCII "
                       "characters only. It sends ^^IdI00000000 to 0.0.0.0, because “Zürich” is "
                       "not an IPv4 address."},
            {"", "Apply sends nothing: the value is empty."},
        });
}

TEST(EditNotes, TheInternalIPAddressIsSentWithoutAUnitToo) {
    EXPECT_EQ(noteOfEdit(internalIPAddress, "10.0.0.7", {}),
              "Apply asks for administrator rights, but no MAC address is known for an ARP entry. "
              "No unit is selected. It sends ^^IdI0A000007 to 10.0.0.7.");
    EXPECT_EQ(noteOfEdit(internalIPAddress, "10.0.0.7", {.unitIsSelected = true}),
              "Apply asks for administrator rights, but no MAC address is known for an ARP entry. "
              "It sends ^^IdI0A000007 to 10.0.0.7.");
}

TEST(EditNotes, WithoutAUnitOrItsAddressNothingElseIsSent) {
    for (const UnitParameter parameter : allUnitParameters) {
        if (parameter != internalIPAddress) {
            EXPECT_EQ(noteOfEdit(parameter, "7", {}), "Apply sends nothing: no unit is selected.");
            EXPECT_EQ(noteOfEdit(parameter, "7", {.unitIsSelected = true}),
                      "Apply sends nothing: the address of the unit is not known.");
        }
        EXPECT_EQ(noteOfEdit(parameter, "", {}), "Apply sends nothing: the value is empty.");
    }
}

TEST(EditNotes, ARefusalSaysWhyNothingWasSent) {
    EXPECT_EQ(noteOfRefusal(CommandRefusal::emptyValue), "Not sent: the value is empty.");
    EXPECT_EQ(noteOfRefusal(CommandRefusal::notUTF8),
              "Not sent: the unit ID is not a text in UTF-8.");
    EXPECT_EQ(noteOfRefusal(CommandRefusal::noUnit), "Not sent: no unit is selected.");
    EXPECT_EQ(noteOfRefusal(CommandRefusal::notASCII),
              "Not sent: a command can hold ASCII characters only.");
    EXPECT_EQ(noteOfRefusal(CommandRefusal::noAddress),
              "Not sent: the address of the unit is not known.");
}

TEST(EditNotes, ACommandIsRefusedForTheFirstReasonThatAPersonCanMend) {
    EXPECT_EQ(refusalOfCommand("^^IdV\r", knownUnit()), std::nullopt);
    EXPECT_EQ(refusalOfCommand("^^IdÄ\r", knownUnit()), CommandRefusal::notASCII);
    EXPECT_EQ(refusalOfCommand("^^IdÄ\r", {}), CommandRefusal::noUnit);
    EXPECT_EQ(refusalOfCommand("^^IdÄ\r", {.unitIsSelected = true}), CommandRefusal::notASCII);
    EXPECT_EQ(refusalOfCommand("^^IdV\r", {.unitIsSelected = true}), CommandRefusal::noAddress);
}

TEST(EditNotes, AForeignTextStaysOnOneLineAndIsCut) {
    EXPECT_EQ(shownInNote(std::string(32, 'A')), std::string(32, 'A'));
    EXPECT_EQ(shownInNote(std::string(33, 'A')), std::string(32, 'A') + "…");
    std::string umlauts;
    for (int i = 0; i < 40; ++i) {
        umlauts += "ü";
    }
    EXPECT_EQ(shownInNote(umlauts), umlauts.substr(0, 64) + "…");
    EXPECT_EQ(shownInNote("a\n\tb\r"), "a\uFFFD\uFFFDb\uFFFD");
    EXPECT_EQ(shownInNote(std::string_view("a\0b", 3)), "a\uFFFDb");
    EXPECT_EQ(shownInNote(std::string(100, '\x80')), std::string(32, '\x80') + "…");
}

TEST(EditNotes, AnOverlongValueMakesAShortNote) {
    for (const UnitParameter parameter : allUnitParameters) {
        for (const char filling : {'7', 'A', '\n', '%'}) {
            const std::string note =
                noteOfEdit(parameter, std::string(10'000, filling), knownUnit());
            EXPECT_LT(note.size(), 400U) << note;
            EXPECT_EQ(note.find('\n'), std::string::npos) << note;
        }
    }
}

TEST(EditNotes, PlaceholdersInATypedTextStandAsTheyAre) {
    EXPECT_EQ(noteOfEdit(devicePortNumber, "%@%d%n", knownUnit()),
              "Apply sends ^^IdP0000: device port 0, because “%@%d%n” does not begin with a "
              "number.");
}

TEST(EditNotes, EverySentenceIsLookedUpAsAWhole) {
    const MarkedLocalizedText marked;
    EXPECT_EQ(noteOfEdit(unitID, "7", knownUnit()), "<Apply sends ^^IdU000000000007: unit ID 7.>");
    EXPECT_EQ(noteOfEdit(unitID, "7", {}), "<Apply sends nothing: no unit is selected.>");
    EXPECT_EQ(noteOfEdit(internalIPAddress, "10.0.0.7", knownUnit()),
              "<Apply enters 10.0.0.7 at 00:1A:2B:3C:4D:5E in the ARP cache, which needs "
              "administrator rights.> <It sends ^^IdI0A000007 to 10.0.0.7.>");
}

} // namespace kx
