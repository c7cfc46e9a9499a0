// The bytes that a unit receives for an edit, and their effect on the unit.

#include "WireFixture.h"
#include "support/Error.h"

#include <cerrno>
#include <utility>
#include <vector>

namespace kx {

namespace {

using enum UnitParameter;
using Cases = std::vector<std::pair<std::string, std::string>>;

const std::string overlong(1000, '7');
const std::string nonASCII = "Zürich";
const std::string hostile = "%n%s; ^^IdZ $(reboot)'\"";

class EditsByWire : public WireTest {
protected:
    void expectReceived(UnitParameter parameter, const Cases& cases) {
        for (const auto& [value, command] : cases) {
            EXPECT_EQ(receivedFor(parameter, value), command)
                << nameOfUnitParameter(parameter) << ": " << value;
            discover(); // finds a unit with a new port or number again
        }
    }
};

} // namespace

// How a value becomes an argument is tested with editCommand(), and that an empty one sends nothing
// with the controller.
TEST_F(EditsByWire, TheUnitReceivesExactlyTheseBytes) {
    expectReceived(internalMACAddress, {{"02:4b:58:00:00:09", "^^IdM024b58000009"},
                                        {nonASCII, "(nothing)"},
                                        {overlong, "^^IdM" + overlong},
                                        {hostile, "^^IdM" + hostile}});
    expectReceived(destinationMACAddress, {{"02:00:00:00:00:09", "^^IdC020000000009"}});
    expectReceived(destinationIPAddress, {{"192.0.2.77", "^^IdDC000024D"}});
    expectReceived(destinationPortNumber, {{"3523", "^^IdT0DC3"}});
    expectReceived(devicePortNumber, {{"10001", "^^IdP2711"}, {"3520", "^^IdP0DC0"}});
    expectReceived(unitID, {{"7", "^^IdU000000000007"}, {"AB", "^^IdU4142"}});
    expectReceived(serialNumber, {{"4B 58 00 00 00 01", "^^IdS4B5800000001"}});
}

TEST_F(EditsByWire, AUnitTakesItsNewAddressAtThatAddress) {
    EXPECT_EQ(receivedFor(internalIPAddress, "10.0.0.7"), "^^IdI0A000007");
    EXPECT_EQ(settings().address, 0x0A00'0007U);
    // The record has lost its address, so the request for the parameters was broadcast.
    EXPECT_EQ(shown(internalIPAddress), "10.0.0.7");
    EXPECT_TRUE(window.quietLine.text().starts_with(
        "The unit now shows 10.0.0.7 as its internal IP address (was "));
    EXPECT_EQ(receivedFor(unitID, "8"), "^^IdU000000000008");
    EXPECT_EQ(shown(unitID), "8");
}

TEST_F(EditsByWire, WithoutAnARPEntryTheUnitIsNotReachedAtItsNewAddress) {
    authority.answerDialogsWith(errAuthorizationDenied);
    EXPECT_EQ(receivedFor(internalIPAddress, "10.0.0.7"), "(nothing)");
    EXPECT_EQ(window.alert.shown().size(), 1U);
    EXPECT_EQ(receivedFor(unitID, "8"), "(nothing)");
    controller.reloadUnitParameterButton(); // sends a broadcast to the unit's port
    converse();
    EXPECT_EQ(shown(internalIPAddress), "192.0.2.11");
    EXPECT_EQ(receivedFor(unitID, "8"), "^^IdU000000000008");
}

TEST_F(EditsByWire, EmptyNonASCIIAndHostileAddressesDoNotMoveTheUnit) {
    for (const std::string& value : {std::string(), nonASCII, hostile, overlong}) {
        EXPECT_EQ(receivedFor(internalIPAddress, value), "(nothing)") << value;
        discover();
        EXPECT_EQ(shown(internalIPAddress), "192.0.2.11") << value;
    }
}

// The commands go to 0.0.0.0. The unit hears them there only when the test allows it.
TEST_F(EditsByWire, HostileAndOverlongAddressesAreZeroOnTheWire) {
    link.setARPCache([](std::uint32_t address) { return address == 0; });
    for (const std::string& value : {nonASCII, overlong}) {
        EXPECT_EQ(receivedFor(internalIPAddress, value), "^^IdI00000000") << value;
        discover();
    }
    EXPECT_EQ(receivedFor(internalIPAddress, ""), "(nothing)");
}

TEST_F(EditsByWire, AnEditThatIsTooLongForADatagramIsNotSentAndSaysSo) {
    const std::string typed(32'767, 'A'); // each byte is two digits
    EXPECT_EQ(receivedFor(unitID, typed), "(nothing)");
    EXPECT_EQ(window.quietLine.text(), "Not sent: " + posixErrorText(EMSGSIZE) + ".");
    EXPECT_NE(
        controller.eventLog().find("\nUDP failed to send data.\n  " + posixErrorText(EMSGSIZE)),
        std::string::npos);
    // The line does not promise it before the edit either.
    window.editParameterTableView.typeIntoCell(0, "parameterValue", typed);
    EXPECT_TRUE(window.quietLine.text().starts_with("Apply sends nothing: the command is too long"))
        << window.quietLine.text();
}

TEST_F(EditsByWire, EveryEditOfAWellFormedValueIsTakenOverAndShown) {
    const std::vector<std::pair<UnitParameter, std::string>> edits{
        {internalMACAddress, "02:4B:58:AA:BB:CC"}, {internalIPAddress, "192.0.2.99"},
        {destinationIPAddress, "192.0.2.98"},      {destinationMACAddress, "02:00:00:AA:BB:CC"},
        {destinationPortNumber, "3522"},           {unitID, "sensor"},
    };
    for (const auto& [parameter, value] : edits) {
        apply(parameter, value);
        converse();
        EXPECT_EQ(shown(parameter), value);
        EXPECT_TRUE(window.quietLine.text().starts_with(
            "The unit now shows " + value + " as its " +
            std::string(nameOfUnitParameter(parameter)) + " (was "))
            << window.quietLine.text();
    }
    EXPECT_EQ(link.acknowledgementCount(), edits.size());
}

// The acknowledgement makes the controller ask at the port in the record, where the unit no longer
// listens.
TEST_F(EditsByWire, ANewDevicePortShowsAtTheNextDiscover) {
    apply(devicePortNumber, "10001");
    converse();
    EXPECT_EQ(settings().devicePort, 10001);
    EXPECT_EQ(
        window.quietLine.text(),
        "The unit accepted a command and was asked for its parameters. If its port has changed, "
        "Discover finds it.");
    discover();
    EXPECT_EQ(shown(devicePortNumber), "10001");
    EXPECT_EQ(window.quietLine.text(),
              "The unit now shows 10001 as its device Port number (was 10000).");
}

TEST_F(EditsByWire, ANewSerialNumberIsAnotherUnitInTheList) {
    apply(serialNumber, "4b58 0000 0009");
    converse();
    EXPECT_EQ(window.quietLine.text(), "The unit now shows 4B 58 00 00 00 09 as its serial number "
                                       "(was 4B 58 00 00 00 01). Discover lists it under that.");
    discover();
    EXPECT_EQ(window.unitSelectPopUp.titles(),
              (std::vector<std::string>{"4B 58 00 00 00 01", "4B 58 00 00 00 09"}));
}

TEST_F(EditsByWire, WhatAUnitIgnoresItStillShows) {
    apply(internalMACAddress, "02:4B:58");
    converse();
    EXPECT_EQ(link.acknowledgementCount(), 0U);
    EXPECT_EQ(window.quietLine.text(), "Sent ^^IdM024B58. The unit has not answered yet.");
    controller.reloadUnitParameterButton();
    converse();
    EXPECT_EQ(window.quietLine.text(),
              "The unit still shows 02:4B:58:00:00:01 as its internal MAC address.");
}

TEST_F(EditsByWire, AnOptionsTitleWithoutTwoSpacesIsSentWhole) {
    window.optionCommandPopUp.addItemsWithTitles({"T 1 of 2"});
    window.optionCommandPopUp.selectItemWithTitle("T 1 of 2");
    controller.optionCommandPopUp();
    controller.sendOptionButton();
    EXPECT_EQ(link.lastCommand(), "^^IdT 1 of 2\r");
}

TEST_F(EditsByWire, OptionsAndRestoreReachTheUnitToTheByte) {
    controller.sendOptionButton();
    EXPECT_EQ(link.lastCommand(), "^^IdV\r");
    converse();
    window.optionCommandPopUp.selectItemWithTitle("-Z  Set clock");
    controller.optionCommandPopUp();
    controller.sendOptionButton();
    EXPECT_EQ(link.lastCommand(), "^^Id-Z11152347\r");
    EXPECT_EQ(link.unit().clock(), "11152347");
    converse();

    apply(unitID, "8");
    converse();
    controller.restoreDefaultSettings();
    EXPECT_EQ(link.lastCommand(), "^^IdZ");
    converse();
    runLoop.advanceBy(std::chrono::seconds(1));
    EXPECT_EQ(link.lastCommand(), "^^IdX");
    converse();
    EXPECT_EQ(shown(unitID), "1");
}

} // namespace kx
