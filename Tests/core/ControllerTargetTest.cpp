// Whom Reload and Restore Defaults reach: the quiet line and the buttons say it beforehand.

#include "ControllerFixture.h"

namespace kx {

namespace {

const std::string noUnit =
    "No unit is selected: Restore Defaults, like Reload, reaches every unit that hears it.";
const std::string noAddress = "The address of this unit is not known: Restore Defaults, like "
                              "Reload, reaches every unit that hears it.";
const std::string addressOfMany = "This unit tells an address of many as its own: Restore "
                                  "Defaults, like Reload, Apply and Send, reaches every unit that "
                                  "hears it.";

class ControllerTarget : public ControllerTest {
protected:
    ControllerTarget() {
        interfaces.addService("Ethernet", "eth0", "192.168.1.20", "255.255.255.0");
        systemCalls.addLink("eth0", 2);
        launch();
    }

    void expectEverybody(const std::string& sentence) {
        EXPECT_EQ(warning(), sentence);
        EXPECT_EQ(window.reloadButton.description(),
                  "Asks every unit that hears it for its parameters.");
        EXPECT_EQ(window.restoreButton.description(),
                  "Resets every unit that hears it to its factory settings.");
    }

    void expectUnitAt(const std::string& address) {
        EXPECT_EQ(warning(), "");
        EXPECT_EQ(window.reloadButton.description(),
                  "Asks the unit at " + address + " for its parameters.");
        EXPECT_EQ(window.restoreButton.description(),
                  "Resets the unit at " + address + " to its factory settings.");
    }

    void chooseInterface() {
        window.interfacePopUp.selectItemWithTitle("Ethernet (eth0)");
        controller.interfaceSelect();
    }
};

} // namespace

TEST_F(ControllerTarget, IsEverybodyUntilAUnitIsSelected) {
    expectEverybody(noUnit);
    EXPECT_EQ(window.quietLine.text(), noUnit);
    discover({});
    expectEverybody(noUnit);
    discover({SampleUnit()});
    expectUnitAt("192.168.1.10");
}

TEST_F(ControllerTarget, IsTheUnitThatIsSelected) {
    SampleUnit second = secondSampleUnit();
    second.internalIP = {192, 168, 1, 77};
    discover({SampleUnit(), second});
    selectUnit("01 02 03 04 05 07");
    expectUnitAt("192.168.1.77");
    selectUnit("01 02 03 04 05 06");
    expectUnitAt("192.168.1.10");
}

// A forged record does it.
TEST_F(ControllerTarget, IsEverybodyOnceTheSelectedUnitTellsNoAddress) {
    discover({SampleUnit()});
    receive(sparseReplyOf(SampleUnit()));
    expectEverybody(noAddress);
    controller.restoreDefaultSettings();
    EXPECT_EQ(lastSent(), "255.255.255.255:3520 ^^IdZ") << "as the line has said";
    receive(SampleUnit().reply());
    expectUnitAt("192.168.1.10");
}

TEST_F(ControllerTarget, IsEverybodyFromAMoveUntilTheUnitAnswers) {
    discover({SampleUnit()});
    apply(UnitParameter::internalIPAddress, "10.0.0.7");
    expectEverybody(noAddress);
    EXPECT_EQ(quietLine(), "Sent ^^IdI0A000007. The unit has not answered yet.")
        << "the outcome stands behind the warning";
    SampleUnit moved;
    moved.internalIP = {10, 0, 0, 7};
    receive(moved.reply());
    expectUnitAt("10.0.0.7");
}

TEST_F(ControllerTarget, IsEverybodyWhenTheUnitTellsAnAddressOfMany) {
    SampleUnit broadcaster;
    broadcaster.internalIP = {192, 168, 1, 255};
    discover({broadcaster});
    expectEverybody(addressOfMany); // though no interface is chosen
    chooseInterface();
    expectEverybody(addressOfMany);
    broadcaster.internalIP = {255, 255, 255, 255};
    receive(broadcaster.reply());
    expectEverybody(addressOfMany);
}

TEST_F(ControllerTarget, IsEverybodyAtTheBroadcastAddressOfAnotherInterface) {
    interfaces.addService("Wi-Fi", "wlan0", "10.1.2.3", "255.255.0.0");
    chooseInterface();
    SampleUnit broadcaster;
    broadcaster.internalIP = {10, 1, 255, 255};
    discover({SampleUnit()});
    expectUnitAt("192.168.1.10");
    receive(broadcaster.reply());
    expectEverybody(addressOfMany);
}

TEST_F(ControllerTarget, IsTheUnitAtTheOtherEndOfASubnetOfTwoAddresses) {
    interfaces.clear();
    interfaces.addService("Ethernet", "eth0", "192.168.1.20", "255.255.255.254");
    chooseInterface();
    SampleUnit other;
    other.internalIP = {192, 168, 1, 21};
    discover({other});
    EXPECT_EQ(sent().back(), "192.168.1.21:3520 ^^IdX");
    expectUnitAt("192.168.1.21");
}

TEST_F(ControllerTarget, IsEverybodyAtTheBroadcastAddressOfTheChoiceThatTheInterfaceHasLost) {
    chooseInterface();
    interfaces.clear();
    interfaces.addService("Ethernet", "eth0", "10.1.2.3", "255.255.0.0");
    SampleUnit broadcaster;
    broadcaster.internalIP = {192, 168, 1, 255};
    discover({broadcaster});
    expectEverybody(addressOfMany);
}

TEST_F(ControllerTarget, IsLookedAtAgainWhenAButtonIsPressed) {
    SampleUnit broadcaster;
    broadcaster.internalIP = {10, 1, 255, 255};
    discover({broadcaster});
    expectUnitAt("10.1.255.255");
    const auto press = [&](const auto& button) {
        interfaces.clear();
        selectUnit("01 02 03 04 05 06");
        expectUnitAt("10.1.255.255");
        interfaces.addService("Wi-Fi", "wlan0", "10.1.2.3", "255.255.0.0");
        button();
        expectEverybody(addressOfMany);
    };
    press([&] { controller.restoreDefaultSettings(); });
    press([&] { controller.reloadUnitParameterButton(); });
    press([&] { apply(UnitParameter::destinationPortNumber, "3521"); });
    press([&] { controller.sendOptionButton(); });
}

TEST_F(ControllerTarget, IsEverybodyWhoMayThenAnswerDifferently) {
    SampleUnit broadcaster;
    broadcaster.internalIP = {192, 168, 1, 255};
    const auto changesAreExpectedAfter = [&](const auto& button) {
        discover({broadcaster, secondSampleUnit()});
        button();
        SampleUnit moved = secondSampleUnit();
        moved.internalIP = {192, 168, 1, 99};
        receive(moved.reply());
        EXPECT_TRUE(isNothingFound()) << discoveryLine();
    };
    changesAreExpectedAfter([&] { controller.restoreDefaultSettings(); });
    changesAreExpectedAfter([&] { controller.sendOptionButton(); });
    changesAreExpectedAfter([&] { apply(UnitParameter::destinationPortNumber, "3521"); });
}

TEST_F(ControllerTarget, IsEverybodyWhenNothingIsKnownOfTheSelectedUnitAnyMore) {
    discover({SampleUnit()});
    window.unitSelectPopUp.addItemsWithTitles({"0A 0B 0C 0D 0E 0F"});
    selectUnit("0A 0B 0C 0D 0E 0F");
    expectEverybody(noAddress);
}

TEST_F(ControllerTarget, StandsWhateverElseIsSaid) {
    discover({SampleUnit()});
    receive(sparseReplyOf(SampleUnit()));
    selectRow(UnitParameter::serialNumber);
    EXPECT_EQ(warning(), noAddress);
    EXPECT_NE(quietLine(), "");
    controller.sendOptionButton();
    EXPECT_EQ(window.quietLine.text(),
              noAddress + " Not sent: The address of the unit is not known.");
    controller.reloadUnitParameterButton();
    EXPECT_EQ(warning(), noAddress);
    controller.discoverButton();
    runLoop.advanceBy(2000ms);
    EXPECT_EQ(warning(), noAddress);
}

TEST_F(ControllerTarget, AddsNoDialogue) {
    controller.restoreDefaultSettings();
    EXPECT_TRUE(window.alert.shown().empty());
    EXPECT_EQ(lastSent(), "255.255.255.255:3520 ^^IdZ");
}

} // namespace kx
