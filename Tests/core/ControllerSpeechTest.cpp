// What the window says before and after Restore, Reload, Send and Apply, beside the command itself.

#include "ControllerFixture.h"

namespace kx {

namespace {

class ControllerSpeech : public ControllerTest {
protected:
    ControllerSpeech() {
        interfaces.addService("Ethernet", "eth0", "192.168.1.20", "255.255.255.0");
        launch();
    }

    // The second unit tells the address of the first one, from which its datagrams come.
    static SampleUnit unitAtTheSameAddress() {
        SampleUnit unit = secondSampleUnit();
        unit.internalIP = SampleUnit().internalIP;
        return unit;
    }
};

} // namespace

TEST_F(ControllerSpeech, ARestoreOfAllSaysHowManyUnitsAcceptedIt) {
    runLoop.advanceBy(2000ms);
    controller.restoreDefaultSettings();
    EXPECT_EQ(quietLine(), "Sent ^^IdZ to every unit that hears it. No unit has answered yet.");
    SampleUnit third = secondSampleUnit();
    third.serial.back() = 8;
    for (const SampleUnit& unit : {SampleUnit(), secondSampleUnit(), third}) {
        receive(unit.acknowledgement());
    }
    EXPECT_EQ(quietLine(), "Sent ^^IdZ to every unit that hears it. Accepted by 3 units.");
    EXPECT_TRUE(window.quietLine.meansTrouble()); // the warning stands in front
}

TEST_F(ControllerSpeech, UnitsBeyondThePaceOfRequestsAreCountedToo) {
    runLoop.advanceBy(2000ms);
    controller.restoreDefaultSettings();
    for (std::uint8_t number = 1; number <= 50; ++number) {
        SampleUnit unit;
        unit.serial.back() = number;
        receive(unit.acknowledgement());
    }
    EXPECT_EQ(quietLine(), "Sent ^^IdZ to every unit that hears it. Accepted by 50 units.");
}

TEST_F(ControllerSpeech, AfterTwoSecondsWithoutAnAnswerTheYetGoes) {
    discover({SampleUnit()});
    apply(UnitParameter::destinationPortNumber, "3523");
    runLoop.advanceBy(1999ms);
    EXPECT_EQ(quietLine(), "Sent ^^IdT0DC3. The unit has not answered yet.");
    runLoop.advanceBy(1ms);
    EXPECT_EQ(quietLine(), "Sent ^^IdT0DC3. The unit has not answered.");
    EXPECT_TRUE(window.quietLine.meansTrouble());
    controller.reloadUnitParameterButton();
    EXPECT_EQ(quietLine(), "Sent ^^IdT0DC3. The unit has not answered yet.");
    selectRow(UnitParameter::unitID);
    controller.reloadUnitParameterButton();
    runLoop.advanceBy(2000ms);
    EXPECT_EQ(quietLine(),
              "Asked the unit at 192.168.1.10 for its parameters. The unit has not answered.");
}

TEST_F(ControllerSpeech, SendSaysWhatTheUnitAnswered) {
    discover({SampleUnit()});
    controller.optionCommandPopUp();
    window.optionCommandField.setStringValue("V");
    controller.sendOptionButton();
    const std::string sent = "Sent ^^IdV to the unit at 192.168.1.10. ";
    EXPECT_EQ(quietLine(), sent + "The unit has not answered yet.");
    receive(joined({SampleUnit().header(), textBytes("V2.1\r")}));
    EXPECT_EQ(quietLine(), sent + "The unit answered “V2.1”.");
    runLoop.advanceBy(2000ms);
    EXPECT_EQ(quietLine(), sent + "The unit answered “V2.1”.");
}

TEST_F(ControllerSpeech, SaysWhichUnitObeyedWhenTwoHaveOneAddress) {
    discover({SampleUnit(), unitAtTheSameAddress()});
    apply(UnitParameter::unitID, "7");
    receive(unitAtTheSameAddress().acknowledgement());
    EXPECT_EQ(quietLine(), "Sent ^^IdU000000000007. Another unit, 01 02 03 04 05 07, accepted a "
                           "command: both have the address 192.168.1.10.");
    EXPECT_TRUE(window.quietLine.meansTrouble());
}

TEST_F(ControllerSpeech, WhileAPersonPointsAtAButtonItSaysWhomThatReaches) {
    discover({SampleUnit()});
    selectRow(UnitParameter::unitID);
    const std::string forecast = quietLine();
    controller.pointAtRequest(RequestKind::restore);
    EXPECT_EQ(quietLine(), "Resets the unit at 192.168.1.10 to its factory settings.");
    receive(SampleUnit().reply()); // news does not end it
    EXPECT_EQ(quietLine(), "Resets the unit at 192.168.1.10 to its factory settings.");
    controller.pointAtRequest(RequestKind::reload);
    EXPECT_EQ(quietLine(), "Asks the unit at 192.168.1.10 for its parameters.");
    controller.pointAtRequest(std::nullopt);
    EXPECT_EQ(quietLine(), forecast);
}

TEST_F(ControllerSpeech, PressingTheButtonShowsTheOutcomeInThePlaceOfTheHint) {
    discover({SampleUnit()});
    controller.pointAtRequest(RequestKind::restore);
    controller.restoreDefaultSettings();
    receive(SampleUnit().acknowledgement());
    EXPECT_EQ(quietLine(), "Sent ^^IdZ to the unit at 192.168.1.10. The unit accepted a command.");
}

TEST_F(ControllerSpeech, AHintFollowsTheUnit) {
    discover({SampleUnit()});
    controller.pointAtRequest(RequestKind::restore);
    SampleUnit moved;
    moved.internalIP.back() = 77;
    receive(moved.reply());
    EXPECT_EQ(quietLine(), "Resets the unit at 192.168.1.77 to its factory settings.");
}

TEST_F(ControllerSpeech, SaysBeforeApplyWhatSpeaksAgainstAnAddress) {
    discoverTwo();
    selectRow(UnitParameter::internalIPAddress);
    EXPECT_FALSE(window.quietLine.meansTrouble());
    const auto remarkOn = [this](const char* address) {
        controller.editTextDidChange(address);
        EXPECT_TRUE(window.quietLine.meansTrouble()) << address;
        const std::string line = quietLine();
        const auto command = line.find(std::string(" to ") + address + ". ");
        return command == line.npos ? line : line.substr(command + 6 + std::string(address).size());
    };
    EXPECT_EQ(remarkOn("192.168.1.11"), "The unit 01 02 03 04 05 07 has it.");
    EXPECT_EQ(remarkOn("192.168.1.20"), "This computer has it.");
    EXPECT_EQ(remarkOn("192.168.1.255"), "No unit can have it: it reaches many hosts.");
    EXPECT_EQ(remarkOn("192.168.1.0"), "No unit can have it: it is the address of the subnet.");
    EXPECT_EQ(remarkOn("10.0.0.7"), "It is outside this computer's subnet, perhaps out of reach.");
    controller.editTextDidChange("192.168.1.99");
    EXPECT_FALSE(window.quietLine.meansTrouble());
}

TEST_F(ControllerSpeech, TheSubnetIsThatOfTheChosenInterface) {
    interfaces.addService("Wi-Fi", "wlan0", "10.0.0.1", "255.255.255.0");
    discover({SampleUnit()});
    selectRow(UnitParameter::internalIPAddress);
    controller.editTextDidChange("10.0.0.7");
    EXPECT_FALSE(window.quietLine.meansTrouble()) << quietLine();
    controller.interfacePopUpWillOpen();
    window.interfacePopUp.selectItemWithTitle("Ethernet (eth0)");
    controller.interfaceSelect();
    controller.editTextDidChange("10.0.0.8");
    EXPECT_TRUE(window.quietLine.meansTrouble()) << quietLine();
}

TEST_F(ControllerSpeech, AnAddressThatAUnitTellsLaterIsRemarkedToo) {
    discover({SampleUnit()});
    selectRow(UnitParameter::internalIPAddress);
    controller.editTextDidChange("192.168.1.11");
    EXPECT_FALSE(window.quietLine.meansTrouble());
    receive(secondSampleUnit().reply());
    EXPECT_TRUE(quietLine().ends_with("The unit 01 02 03 04 05 07 has it."));
}

TEST_F(ControllerSpeech, ReturnInTheEditRowSaysWhatAppliesTheValue) {
    discover({SampleUnit()});
    selectRow(UnitParameter::unitID);
    store("7");
    controller.editTextWasKept();
    EXPECT_EQ(quietLine(), "Apply sends ^^IdU000000000007: unit ID 7. Return ends the typing; "
                           "Ctrl+Return applies.");
    controller.editTextDidChange("8");
    EXPECT_EQ(quietLine(), "Apply sends ^^IdU000000000008: unit ID 8.");
}

TEST_F(ControllerSpeech, TheInterfacePopUpSaysThatNothingIsChosenAndThenWhatIs) {
    EXPECT_EQ(window.interfacePopUp.description(),
              "No interface is chosen, so Discover asks 255.255.255.255.");
    window.interfacePopUp.selectItemWithTitle("Ethernet (eth0)");
    controller.interfaceSelect();
    EXPECT_EQ(window.interfacePopUp.description(),
              "Address 192.168.1.20, mask 255.255.255.0, broadcast address 192.168.1.255. The link "
              "is up.");
    interfaces.setState("eth0", InterfaceState{.isRunning = false, .canBroadcast = true});
    controller.discoverButton();
    EXPECT_TRUE(window.interfacePopUp.description().ends_with("The link is down."));
}

TEST_F(ControllerSpeech, AListedUnitIsKnownByItsUnitIDAndItsAddress) {
    SampleUnit unit;
    unit.unitID = {'R', '7', 0, 0, 0, 0};
    discover({unit});
    EXPECT_EQ(controller.detailsOfUnit("01 02 03 04 05 06"), (Lines{"R7", "192.168.1.10"}));
    EXPECT_EQ(controller.detailsOfUnit("no such unit"), Lines{});
}

TEST_F(ControllerSpeech, WhereNoBrowserOpensTheHelpTheViewerDoesSoAtOnce) {
    Lines opened;
    bool hasViewer = true;
    KXConfigAppDelegate other(window.outlets(),
                              {.runLoop = runLoop,
                               .hostResolver = hostResolver,
                               .systemCalls = systemCalls,
                               .wallClock = wallClock,
                               .application = application,
                               .networkInterfaces = nullptr,
                               .openHelpAnchor = [](std::string_view) { return false; },
                               .openHelpInViewer =
                                   [&](std::string_view anchor) {
                                       opened.emplace_back(anchor);
                                       return hasViewer;
                                   }});
    other.applicationDidFinishLaunching();
    other.myHelp();
    EXPECT_EQ(opened, Lines{"index"});
    EXPECT_EQ(quietLine(), "");
    hasViewer = false;
    other.myHelp();
    EXPECT_TRUE(quietLine().starts_with("Help could not be opened in a web browser."));
}

} // namespace kx
