// The quiet line: it tells what Apply will send, and the outcome of what was sent.

#include "ControllerFixture.h"

namespace kx {

namespace {

class ControllerQuietLine : public ControllerTest {
protected:
    ControllerQuietLine() { launch(); }
};

} // namespace

TEST_F(ControllerQuietLine, IsEmptyUntilAParameterIsChosen) {
    EXPECT_EQ(quietLine(), "");
    discover({SampleUnit()});
    EXPECT_EQ(quietLine(), "");
}

TEST_F(ControllerQuietLine, ChoosingARowSaysWhatApplyWouldSend) {
    discover({SampleUnit()});
    selectRow(UnitParameter::devicePortNumber);
    EXPECT_EQ(quietLine(), "Apply sends ^^IdP2710: device port 10000.");
}

TEST_F(ControllerQuietLine, FollowsWhatIsTypedAndStoresNothing) {
    discover({SampleUnit()});
    selectRow(UnitParameter::devicePortNumber);
    controller.editTextDidChange("1000x");
    EXPECT_EQ(quietLine(), "Apply sends ^^IdP03E8: device port 1000, because that is how “1000x” "
                           "is read.");
    controller.editTextDidChange("1000");
    EXPECT_EQ(quietLine(), "Apply sends ^^IdP03E8: device port 1000.");
    controller.editTextDidChange("");
    EXPECT_EQ(quietLine(), "Apply sends nothing: the value is empty.");
    EXPECT_EQ(editRows(), Lines{"device Port number = 10000"});
}

TEST_F(ControllerQuietLine, AnotherRowForgetsWhatWasTyped) {
    discover({SampleUnit()});
    selectRow(UnitParameter::destinationPortNumber);
    controller.editTextDidChange("80");
    selectRow(UnitParameter::devicePortNumber);
    EXPECT_EQ(quietLine(), "Apply sends ^^IdP2710: device port 10000.");
}

TEST_F(ControllerQuietLine, AReplyDoesNotForgetWhatIsBeingTyped) {
    discover({SampleUnit()});
    selectRow(UnitParameter::destinationPortNumber);
    controller.editTextDidChange("3521");
    receive(SampleUnit().reply());
    EXPECT_EQ(quietLine(), "Apply sends ^^IdT0DC1: destination port 3521.");
}

TEST_F(ControllerQuietLine, KnowsWhetherAUnitIsSelected) {
    discover({SampleUnit()});
    selectRow(UnitParameter::unitID);
    controller.discoverButton();
    controller.unitSelectPopUp(); // the pop-up is empty
    EXPECT_EQ(quietLine(), "Apply sends nothing: no unit is selected.");
    runLoop.advanceBy(2000ms);
    EXPECT_EQ(quietLine(), "Apply sends ^^IdU00000000002A: unit ID 42.");
}

TEST_F(ControllerQuietLine, SaysWhatBecameOfAnEdit) {
    discover({SampleUnit()});
    apply(UnitParameter::destinationPortNumber, "3523");
    EXPECT_EQ(quietLine(), "Sent ^^IdT0DC3. The unit has not answered yet.");
    SampleUnit changed;
    changed.destinationPort = {0x0D, 0xC3};
    receive(changed.acknowledgement());
    EXPECT_EQ(quietLine(), "The unit accepted a command and was asked for its parameters.");
    receive(SampleUnit().reply());
    EXPECT_EQ(quietLine(), "The unit still shows 3520 as its destination Port number.");
    receive(changed.reply());
    EXPECT_EQ(quietLine(), "The unit now shows 3523 as its destination Port number (was 3520).");
}

TEST_F(ControllerQuietLine, ReloadKeepsWhatItSaysOfAnEdit) {
    discover({SampleUnit()});
    apply(UnitParameter::destinationPortNumber, "3523");
    controller.reloadUnitParameterButton();
    EXPECT_EQ(quietLine(), "Sent ^^IdT0DC3. The unit has not answered yet.");
}

TEST_F(ControllerQuietLine, DiscoverShowsWhatBecameOfAnEdit) {
    discover({SampleUnit()});
    apply(UnitParameter::devicePortNumber, "10001");
    SampleUnit changed;
    changed.devicePort = {0x27, 0x11};
    discover({changed});
    EXPECT_EQ(quietLine(), "The unit now shows 10001 as its device Port number (was 10000).");
}

TEST_F(ControllerQuietLine, WhoeverChoosesOrTypesAnewIsToldOfThat) {
    discover({SampleUnit()});
    apply(UnitParameter::destinationPortNumber, "3523");
    controller.editTextDidChange("3521");
    receive(SampleUnit().reply());
    EXPECT_EQ(quietLine(), "Apply sends ^^IdT0DC1: destination port 3521.");
    controller.applyEditParameterButton();
    selectRow(UnitParameter::unitID);
    receive(SampleUnit().acknowledgement());
    EXPECT_EQ(quietLine(), "Apply sends ^^IdU00000000002A: unit ID 42.");
}

TEST_F(ControllerQuietLine, TheReportOfOneUnitDoesNotStandBesideAnother) {
    discoverTwo();
    apply(UnitParameter::destinationPortNumber, "3523");
    selectUnit("01 02 03 04 05 07");
    const std::string forecast = "Apply sends ^^IdT0DC3: destination port 3523. It goes to the "
                                 "unit 01 02 03 04 05 07, which "
                                 "was not shown when the row was chosen.";
    EXPECT_EQ(quietLine(), forecast);
    receive(SampleUnit().reply());
    EXPECT_EQ(quietLine(), forecast);
}

TEST_F(ControllerQuietLine, RepliesOfOtherUnitsAreNoAnswer) {
    discoverTwo();
    apply(UnitParameter::destinationPortNumber, "3523");
    systemCalls.queueDatagram(secondSampleUnit().acknowledgement(),
                              dataForAddress(ipForString("192.168.1.11"), 3520));
    runLoop.makeReadable(systemCalls.lastDescriptor());
    receive(secondSampleUnit().reply());
    receive(joined({textBytes("^^<X>"), Bytes(15), textBytes("$ok\r")})); // tells no serial number
    EXPECT_EQ(quietLine(), "Sent ^^IdT0DC3. The unit has not answered yet.");
}

TEST_F(ControllerQuietLine, AUnitWithANewSerialNumberIsRecognized) {
    discover({SampleUnit()});
    apply(UnitParameter::serialNumber, "0a 0b 0c 0d 0e 0f");
    SampleUnit changed;
    changed.serial = {10, 11, 12, 13, 14, 15};
    receive(changed.acknowledgement());
    EXPECT_EQ(quietLine(), "The unit accepted a command and was asked for its parameters.");
    receive(changed.reply());
    EXPECT_EQ(quietLine(), "The unit now shows 0A 0B 0C 0D 0E 0F as its serial number (was "
                           "01 02 03 04 05 06). Discover lists it under that.");
}

TEST_F(ControllerQuietLine, AnAddressChangeIsReportedWhenTheUnitIsBack) {
    discover({SampleUnit()});
    selectRow(UnitParameter::internalIPAddress);
    store("10.0.0.7");
    EXPECT_EQ(quietLine(), "Apply enters 10.0.0.7 at 00:1A:2B:3C:4D:5E in the ARP cache, which "
                           "needs administrator rights. Apply sends ^^IdI0A000007 to 10.0.0.7.");
    controller.applyEditParameterButton();
    EXPECT_EQ(quietLine(), "Sent ^^IdI0A000007. The unit has not answered yet.");
    authority.endTools(0);
    SampleUnit moved;
    moved.internalIP = {10, 0, 0, 7};
    receive(moved.reply());
    EXPECT_EQ(quietLine(),
              "The unit now shows 10.0.0.7 as its internal IP address (was 192.168.1.10).");
}

TEST_F(ControllerQuietLine, SaysWhenTheARPEntryIsNotOnTheLinkOfTheCommand) {
    constexpr std::uint32_t newAddress = 0x0A000007U;
    constexpr std::uint32_t link = 7;
    const std::string sentence = "Sent ^^IdI0A000007. The unit has not answered yet.";
    const std::string elsewhere = sentence + " The ARP entry for 10.0.0.7 is not on the interface "
                                             "by which the command left, so the unit may not have "
                                             "heard it.";
    const auto lineAfterMove = [&] {
        controller.discoverButton();
        systemCalls.queueDatagram(SampleUnit().reply(), dataForAddress(0xC0A8010AU, 3520), link);
        runLoop.makeReadable(systemCalls.lastDescriptor());
        runLoop.advanceBy(2000ms);
        apply(UnitParameter::internalIPAddress, "10.0.0.7");
        EXPECT_EQ(quietLine(), sentence) << "the tool is still at work";
        authority.endTools(0);
        return quietLine();
    };
    using enum NeighbourState;
    EXPECT_EQ(lineAfterMove(), elsewhere);
    neighbours.entriesOnLinks[{newAddress, 2}] = {permanent, "00:1a:2b:3c:4d:5e"};
    EXPECT_EQ(lineAfterMove(), elsewhere);
    neighbours.entriesOnLinks[{newAddress, link}] = {reachable, "00:1a:2b:3c:4d:5e"};
    EXPECT_EQ(lineAfterMove(), elsewhere) << "the entry is not fixed";
    neighbours.entriesOnLinks[{newAddress, link}] = {permanent, "00:1a:2b:3c:4d:5f"};
    EXPECT_EQ(lineAfterMove(), elsewhere) << "it is that of another host";
    neighbours.entriesOnLinks[{newAddress, link}] = {permanent, "00:1a:2b:3c:4d:5e"};
    EXPECT_EQ(lineAfterMove(), sentence);
}

TEST_F(ControllerQuietLine, SaysWhyThereIsNoARPEntry) {
    const std::string none =
        "Sent ^^IdI0A000007. The unit has not answered yet. No ARP entry was made for 10.0.0.7: ";
    discover({SampleUnit()});
    authority.answerDialogsWith(errAuthorizationDenied);
    apply(UnitParameter::internalIPAddress, "10.0.0.7");
    EXPECT_EQ(quietLine(), none + "administrator rights were not given.");

    receive(SampleUnit().reply());
    authority.answerDialogsWith(errAuthorizationSuccess);
    controller.applyEditParameterButton();
    authority.endTools(1);
    EXPECT_EQ(quietLine(), none + "the ARP tool ended with status 1.");
}

TEST_F(ControllerQuietLine, TellsRefusedRightsFromAnAddressThatTheToolCannotTake) {
    const std::string none =
        "Sent ^^IdI0A000007. The unit has not answered yet. No ARP entry was made for 10.0.0.7";
    discover({SampleUnit()});
    authority.answerDialogsWith(errAuthorizationDenied);
    apply(UnitParameter::internalIPAddress, "10.0.0.7");
    EXPECT_EQ(quietLine(), none + ": administrator rights were not given.");

    receive(SampleUnit().reply());
    const auto dialogs = authority.dialogs();
    apply(UnitParameter::internalIPAddress, "10.0.0.7ü");
    EXPECT_EQ(quietLine(), none + "ü: it can hold ASCII characters only.");
    EXPECT_EQ(authority.dialogs(), dialogs) << "nobody is asked in vain";
}

TEST_F(ControllerQuietLine, AToolThatFailsForAnEditOfThePastIsNotMentioned) {
    discover({SampleUnit()});
    apply(UnitParameter::internalIPAddress, "10.0.0.7");
    selectRow(UnitParameter::unitID);
    const std::string before = quietLine();
    authority.endTools(1);
    EXPECT_EQ(quietLine(), before);
}

TEST_F(ControllerQuietLine, SaysWhyAnEditWasNotSent) {
    discover({SampleUnit()});
    apply(UnitParameter::unitID, "");
    EXPECT_EQ(quietLine(), "Not sent: The value is empty.");
    apply(UnitParameter::internalIPAddress, "");
    EXPECT_EQ(quietLine(), "Not sent: The value is empty.");
    apply(UnitParameter::unitID, "\xFF");
    EXPECT_EQ(quietLine(), "Not sent: The unit ID is not a text in UTF-8.");
    apply(UnitParameter::internalMACAddress, "Zürich");
    EXPECT_EQ(quietLine(), "Not sent: A command can hold ASCII characters only.");
    apply(UnitParameter::internalIPAddress, "10.0.0.7");
    apply(UnitParameter::unitID, "7");
    EXPECT_EQ(quietLine(), "Not sent: The address of the unit is not known.");
}

TEST_F(ControllerQuietLine, AnEditThatTheNetworkRefusesSaysWhy) {
    discover({SampleUnit()});
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    apply(UnitParameter::unitID, "7");
    EXPECT_EQ(quietLine(), "Not sent: " + posixErrorText(ENETUNREACH) + ".");
    controller.applyEditParameterButton();
    EXPECT_EQ(quietLine(), "Sent ^^IdU000000000007. The unit has not answered yet.");
}

TEST_F(ControllerQuietLine, AnEditThroughAStoppedListenerSaysSo) {
    discover({SampleUnit()});
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    controller.discoverButton();
    apply(UnitParameter::unitID, "7");
    EXPECT_EQ(quietLine(), "Not sent: The UDP listener is not running.");
}

TEST_F(ControllerQuietLine, WhatTheNetworkBringsDoesNotEndAMessage) {
    const auto expectThatTrafficLeaves = [&](const std::string& message) {
        EXPECT_EQ(quietLine().substr(0, message.size()), message);
        for (const SampleUnit& unit : {SampleUnit(), secondSampleUnit()}) {
            receive(unit.acknowledgement());
            receive(unit.reply());
        }
        EXPECT_EQ(quietLine().substr(0, message.size()), message);
    };
    discoverTwo();
    selectRow(UnitParameter::unitID);
    store("");
    controller.discoverButton();
    controller.applyEditParameterButton();
    runLoop.advanceBy(2000ms); // completes the discovery
    expectThatTrafficLeaves("Not sent: The value is empty.");
    window.optionCommandField.setStringValue("Zürich");
    controller.restoreDefaultSettings();
    controller.sendOptionButton();
    runLoop.advanceBy(1000ms); // asks for the parameters
    expectThatTrafficLeaves("Not sent: A command can hold ASCII characters only.");
    helpOpens = false;
    controller.myHelp();
    expectThatTrafficLeaves("Help could not be opened");
    helpOpens = true;
    controller.myHelp();
    EXPECT_EQ(quietLine(), "Apply sends nothing: the value is empty.");
}

TEST_F(ControllerQuietLine, AnEditorThatIsLeftWithTheOldTextKeepsTheReport) {
    discover({SampleUnit()});
    apply(UnitParameter::destinationPortNumber, "3523");
    const std::string report = quietLine();
    controller.editTextDidChange("3523");
    EXPECT_EQ(quietLine(), report);
    controller.editTextDidChange("352");
    EXPECT_NE(quietLine(), report);
}

TEST_F(ControllerQuietLine, AReplyThatWasUnderWayAlreadyDoesNotHideTheAcceptance) {
    discover({SampleUnit()});
    apply(UnitParameter::destinationPortNumber, "3523");
    receive(SampleUnit().reply());
    EXPECT_EQ(quietLine(), "The unit still shows 3520 as its destination Port number.");
    receive(SampleUnit().acknowledgement());
    EXPECT_EQ(quietLine(), "The unit accepted a command and was asked for its parameters.");
}

TEST_F(ControllerQuietLine, SaysWhyAnOptionWasNotSentUntilTheNextAction) {
    controller.sendOptionButton();
    EXPECT_EQ(quietLine(), "Not sent: No unit is selected.");
    discover({SampleUnit()});
    EXPECT_EQ(quietLine(), "");

    window.optionCommandField.setStringValue("Zürich");
    controller.sendOptionButton();
    EXPECT_EQ(quietLine(), "Not sent: A command can hold ASCII characters only.");
    controller.reloadUnitParameterButton();
    EXPECT_EQ(quietLine(), "Asked the unit at 192.168.1.10 for its parameters. The unit has not "
                           "answered yet.");

    window.optionCommandField.setStringValue("V");
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    controller.sendOptionButton();
    EXPECT_EQ(quietLine(), "Not sent: " + posixErrorText(ENETUNREACH) + ".");
    EXPECT_TRUE(window.quietLine.meansTrouble());
    controller.sendOptionButton();
    EXPECT_EQ(quietLine(),
              "Sent ^^IdV to the unit at 192.168.1.10. The unit has not answered yet.");
    EXPECT_FALSE(window.quietLine.meansTrouble());
}

TEST_F(ControllerQuietLine, SaysWhyARestoreOrAReloadWasNotSent) {
    discover({SampleUnit()});
    const std::string refused = "Not sent: " + posixErrorText(ENETUNREACH) + ".";
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    controller.restoreDefaultSettings();
    EXPECT_EQ(quietLine(), refused);
    runLoop.advanceBy(1000ms); // sends the request for the parameters
    EXPECT_EQ(quietLine(), refused);
    controller.restoreDefaultSettings();
    EXPECT_EQ(quietLine(),
              "Sent ^^IdZ to the unit at 192.168.1.10. The unit has not answered yet.");
    runLoop.advanceBy(1000ms);

    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    controller.reloadUnitParameterButton();
    EXPECT_EQ(quietLine(), refused);
    controller.reloadUnitParameterButton();
    EXPECT_EQ(quietLine(), "Asked the unit at 192.168.1.10 for its parameters. The unit has not "
                           "answered yet.");

    systemCalls.failNext(Operation::bind, EADDRINUSE);
    controller.discoverButton();
    for (const auto press : {&KXConfigAppDelegate::restoreDefaultSettings,
                             &KXConfigAppDelegate::reloadUnitParameterButton}) {
        controller.unitSelectPopUp(); // ends a message
        EXPECT_EQ(quietLine(), "");
        (controller.*press)();
        EXPECT_EQ(quietLine(), "Not sent: The UDP listener is not running.");
    }
}

// A person pressed nothing at that time.
TEST_F(ControllerQuietLine, OfTheRequestThatFollowsARestoreOnlyTheLogSaysThatItWasNotSent) {
    discover({SampleUnit()});
    selectRow(UnitParameter::unitID);
    controller.restoreDefaultSettings();
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    runLoop.advanceBy(1000ms);
    EXPECT_EQ(log().back(), "  " + posixErrorText(ENETUNREACH));
    EXPECT_EQ(quietLine(),
              "Sent ^^IdZ to the unit at 192.168.1.10. The unit has not answered yet.");
}

TEST_F(ControllerQuietLine, ARestoreEndsTheReportOfAnEdit) {
    discover({SampleUnit()});
    apply(UnitParameter::destinationPortNumber, "3523");
    controller.restoreDefaultSettings();
    EXPECT_EQ(quietLine(),
              "Sent ^^IdZ to the unit at 192.168.1.10. The unit has not answered yet.");
    receive(SampleUnit().reply());
    EXPECT_EQ(quietLine(),
              "Sent ^^IdZ to the unit at 192.168.1.10. The unit has not answered yet.");
}

TEST_F(ControllerQuietLine, ANewLaunchBeginsWithAnEmptyLine) {
    discover({SampleUnit()});
    apply(UnitParameter::destinationPortNumber, "3523");
    launch();
    EXPECT_EQ(quietLine(), "");
}

TEST_F(ControllerQuietLine, HelpLeavesTheReportOfAnEditAlone) {
    discover({SampleUnit()});
    apply(UnitParameter::destinationPortNumber, "3521");
    const std::string report = quietLine();
    EXPECT_NE(report.find("Sent ^^IdT0DC1."), std::string::npos) << report;
    controller.myHelp();
    EXPECT_EQ(quietLine(), report);
}

} // namespace kx
