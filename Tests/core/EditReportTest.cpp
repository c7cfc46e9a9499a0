// What became of an edit, in words.

#include "EditReport.h"

#include "doubles/MarkedLocalizedText.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace kx {

namespace {

using enum UnitParameter;

const std::string unit = "01 02 03 04 05 06";

EditReport reportOf(UnitParameter parameter, const std::string& typed,
                    const std::optional<std::string>& before) {
    return EditReport(
        {.parameter = parameter, .typed = typed, .unit = unit, .valueBefore = before});
}

UnitRecord recordWith(UnitParameter parameter, std::string_view value) {
    UnitRecord record;
    record.setValue(parameter, value);
    return record;
}

// The text once the unit shows `value`.
std::string textAfterReply(UnitParameter parameter, const std::string& typed,
                           const std::string& before, std::string_view value) {
    EditReport report = reportOf(parameter, typed, before);
    report.unitDidReply(recordWith(parameter, value));
    return report.text();
}

} // namespace

TEST(EditReport, GoesFromSentOverAcceptedToShown) {
    EditReport report = reportOf(destinationPortNumber, "3523", "3520");
    EXPECT_EQ(report.text(), "Sent ^^IdT0DC3. The unit has not answered yet.");
    report.unitDidAccept();
    EXPECT_EQ(report.text(), "The unit accepted ^^IdT0DC3 and was asked for its parameters.");
    report.unitDidReply(recordWith(destinationPortNumber, "3523"));
    EXPECT_EQ(report.text(), "The unit now shows 3523 as its destination Port number.");
    report.unitDidAccept(); // a duplicate
    EXPECT_EQ(report.text(), "The unit now shows 3523 as its destination Port number.");
}

TEST(EditReport, ANewDevicePortIsSeenByDiscover) {
    EditReport report = reportOf(devicePortNumber, "10001", "10000");
    report.unitDidAccept();
    EXPECT_EQ(report.text(), "The unit accepted ^^IdP2711 and was asked for its parameters. "
                             "Discover finds it on its new port.");
    EditReport same = reportOf(devicePortNumber, "10000", "10000");
    same.unitDidAccept();
    EXPECT_EQ(same.text(), "The unit accepted ^^IdP2710 and was asked for its parameters.");
}

TEST(EditReport, AnAcceptanceCountsAfterAReplyThatWasUnderWayAlready) {
    EditReport report = reportOf(destinationPortNumber, "3523", "3520");
    report.unitDidReply(recordWith(destinationPortNumber, "3520"));
    report.unitDidAccept();
    EXPECT_EQ(report.text(), "The unit accepted ^^IdT0DC3 and was asked for its parameters.");
}

TEST(EditReport, SaysWhenTheUnitStillShowsTheOldValue) {
    EditReport report = reportOf(devicePortNumber, "10001", "10000");
    report.unitDidReply(recordWith(devicePortNumber, "10000"));
    EXPECT_EQ(report.text(), "The unit still shows 10000 as its device Port number.");
    report.unitDidReply(recordWith(devicePortNumber, "10001"));
    EXPECT_EQ(report.text(), "The unit now shows 10001 as its device Port number.");
}

TEST(EditReport, SaysWhenTheUnitShowsSomethingElse) {
    EXPECT_EQ(textAfterReply(devicePortNumber, "70000", "10000", "4464"),
              "The unit now shows 4464 as its device Port number, which is not what was sent.");
    EXPECT_EQ(textAfterReply(internalMACAddress, "1", "00:1A:2B:3C:4D:5E", "01:00:00:00:00:00"),
              "The unit now shows 01:00:00:00:00:00 as its internal MAC address, which is not what "
              "was sent.");
    EditReport report = reportOf(unitID, "7", "42");
    report.unitDidReply(UnitRecord());
    EXPECT_EQ(report.text(), "The unit's parameters hold no unit ID.");
}

TEST(EditReport, AnUnchangedValueIsShownAsWell) {
    EXPECT_EQ(textAfterReply(unitID, "42", "42", "42"), "The unit now shows 42 as its unit ID.");
}

TEST(EditReport, ComparesInTheFormInWhichUnitsShowTheirValues) {
    const std::vector<std::tuple<UnitParameter, std::string, std::optional<std::string>>> cases{
        {internalMACAddress, "001a2b3c4d5e", "00:1A:2B:3C:4D:5E"},
        {destinationMACAddress, "0:0:1a2b3c4d5e", "00:1A:2B:3C:4D:5E"},
        {internalMACAddress, "00:1A:2B:3C:4D", std::nullopt},
        {internalMACAddress, "00-1A-2B-3C-4D-5E", std::nullopt},
        {internalIPAddress, " 10.0.0.7 or so", "10.0.0.7"},
        {destinationIPAddress, "300.1.1.1", "44.1.1.1"},
        {destinationIPAddress, "nonsense", "0.0.0.0"},
        {destinationPortNumber, "3523", "3523"},
        {destinationPortNumber, "80", "3520"},
        {devicePortNumber, "080x", "80"},
        {devicePortNumber, "65536", std::nullopt},
        {devicePortNumber, "-1", std::nullopt},
        {serialNumber, "0a0b0c 0d0e0f", "0A 0B 0C 0D 0E 0F"},
        {serialNumber, "0A", std::nullopt},
        {unitID, "255x", "255"},
        {unitID, "AB", "AB"},
        {unitID, "16706", std::string("\0\0\0\0AB", 6)},
        {unitID, "99999999999", std::nullopt},
    };
    for (const auto& [parameter, typed, shown] : cases) {
        EXPECT_EQ(shownValueOfEdit(parameter, typed), shown)
            << nameOfUnitParameter(parameter) << ", " << typed;
    }
}

TEST(EditReport, ZeroBytesAtTheEndOfAUnitIDDoNotCount) {
    EXPECT_EQ(textAfterReply(unitID, "AB", "42", std::string_view("AB\0\0\0\0", 6)),
              "The unit now shows AB as its unit ID.");
}

TEST(EditReport, AUnitWithANewSerialNumberSpeaksUnderIt) {
    EditReport report = reportOf(serialNumber, "0a0b0c0d0e0f", unit);
    EXPECT_TRUE(report.isAbout(unit));
    EXPECT_TRUE(report.isAbout("0A 0B 0C 0D 0E 0F"));
    EXPECT_FALSE(report.isAbout("0A 0B 0C 0D 0E 10"));
    report.unitDidReply(recordWith(serialNumber, "0A 0B 0C 0D 0E 0F"));
    EXPECT_EQ(report.text(), "The unit now shows 0A 0B 0C 0D 0E 0F as its serial number. Discover "
                             "lists it under that.");
    EXPECT_EQ(textAfterReply(serialNumber, unit, unit, unit),
              "The unit now shows 01 02 03 04 05 06 as its serial number.");
}

TEST(EditReport, IsAboutItsUnitAlone) {
    const EditReport report = reportOf(unitID, "7", "42");
    EXPECT_TRUE(report.isAbout(unit));
    EXPECT_FALSE(report.isAbout("01 02 03 04 05 07"));
    const EditReport withoutUnit({.parameter = internalIPAddress,
                                  .typed = "10.0.0.7",
                                  .unit = std::nullopt,
                                  .valueBefore = std::nullopt});
    EXPECT_FALSE(withoutUnit.isAbout(unit));
    EXPECT_FALSE(withoutUnit.isAbout("10.0.0.7"));
}

TEST(EditReport, AFailedSendSaysWhy) {
    EditReport report = reportOf(unitID, "7", "42");
    report.sendDidFail("Network is unreachable");
    EXPECT_EQ(report.text(), "Not sent: Network is unreachable.");
}

TEST(EditReport, SaysWhyThereIsNoARPEntry) {
    const std::string sent = "Sent ^^IdI0A000007. The unit has not answered yet.";
    const std::string none = " No ARP entry was made for 10.0.0.7: ";
    EditReport report = reportOf(internalIPAddress, "10.0.0.7", "192.168.1.10");
    report.arpEntryDidGive(0);
    EXPECT_EQ(report.text(), sent);
    report.arpEntryDidGive(std::nullopt);
    EXPECT_EQ(report.text(), sent + none + "administrator rights were not given.");
    report.arpEntryDidGive(-60031);
    EXPECT_EQ(report.text(), sent + none + "the ARP tool cannot be run.");
    report.arpEntryDidGive(-60005);
    EXPECT_EQ(report.text(), sent + none + "running the ARP tool was refused.");
    report.arpEntryDidGive(-60006);
    EXPECT_EQ(report.text(), sent + none + "the question for administrator rights was dismissed.");
    report.arpEntryDidGive(-60002);
    EXPECT_EQ(report.text(), sent + none + "the ARP tool was not started (-60002).");
    report.arpToolDidEnd("10.0.0.7", 255);
    EXPECT_EQ(report.text(), sent + none + "the ARP tool ended with status 255.");
    report.unitDidReply(recordWith(internalIPAddress, "10.0.0.7"));
    EXPECT_EQ(report.text(), "The unit now shows 10.0.0.7 as its internal IP address." + none +
                                 "the ARP tool ended with status 255.");

    EditReport notASCII = reportOf(internalIPAddress, "10.0.0.7ü", "192.168.1.10");
    notASCII.arpEntryDidGive(-1);
    EXPECT_EQ(notASCII.text(), sent + " No ARP entry was made for 10.0.0.7ü: it can hold "
                                      "ASCII characters only.");
    notASCII.arpEntryDidGive(std::nullopt);
    EXPECT_EQ(notASCII.text(), sent + " No ARP entry was made for 10.0.0.7ü: administrator rights "
                                      "were not given.");
}

TEST(EditReport, AToolThatDidItsWorkOrWorkedForAnotherAddressIsNotMentioned) {
    EditReport report = reportOf(internalIPAddress, "10.0.0.7", "192.168.1.10");
    report.arpToolDidEnd("10.0.0.7", 0);
    report.arpToolDidEnd("10.0.0.8", 1);
    EXPECT_EQ(report.text(), "Sent ^^IdI0A000007. The unit has not answered yet.");
    EditReport destination = reportOf(destinationIPAddress, "10.0.0.7", "192.168.1.10");
    destination.arpToolDidEnd("10.0.0.7", 1);
    EXPECT_EQ(destination.text(), "Sent ^^IdD0A000007. The unit has not answered yet.");
}

TEST(EditReport, EverySentenceIsLookedUpAsAWhole) {
    const MarkedLocalizedText marked;
    EditReport report = reportOf(internalIPAddress, "10.0.0.7", "192.168.1.10");
    report.arpEntryDidGive(std::nullopt);
    EXPECT_EQ(report.text(), "<Sent ^^IdI0A000007. The unit has not answered yet.> <No ARP entry "
                             "was made for 10.0.0.7: administrator rights were not given.>");
}

TEST(EditReport, NamesTheParameterAsPeopleSeeIt) {
    const MarkedLocalizedText marked;
    EXPECT_EQ(textAfterReply(destinationPortNumber, "3523", "3520", "3523"),
              "<The unit now shows 3523 as its <destination Port number>.>");
}

} // namespace kx
