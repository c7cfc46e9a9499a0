// The choice of a network interface, which decides where broadcasts go.

#include "ControllerFixture.h"

namespace kx {

namespace {

class ControllerInterface : public ControllerTest {
protected:
    ControllerInterface() {
        interfaces.addService("Ethernet", "eth0", "192.168.1.20", "255.255.255.0");
    }

    // Chooses the interface with this title and returns the target of the next discovery.
    std::string broadcastThrough(const std::string& title) {
        window.interfacePopUp.selectItemWithTitle(title);
        controller.interfaceSelect();
        controller.discoverButton();
        return lastSent();
    }
};

} // namespace

TEST_F(ControllerInterface, FirstBroadcastGoesEverywhereBecauseNoneIsChosen) {
    launch();
    EXPECT_EQ(sent(), Lines{"255.255.255.255:3520 ^^IdX"});
}

TEST_F(ControllerInterface, BroadcastFollowsTheChosenOne) {
    launch();
    EXPECT_EQ(broadcastThrough("Ethernet (eth0)"), "192.168.1.255:3520 ^^IdX");
}

TEST_F(ControllerInterface, ChoosingAnotherReplacesAddressAndMask) {
    interfaces.addService("Wi-Fi", "wlan0", "10.1.2.3", "255.255.0.0");
    launch();
    EXPECT_EQ(broadcastThrough("Ethernet (eth0)"), "192.168.1.255:3520 ^^IdX");
    EXPECT_EQ(broadcastThrough("Wi-Fi (wlan0)"), "10.1.255.255:3520 ^^IdX");
    EXPECT_EQ(broadcastThrough("Ethernet (eth0)"), "192.168.1.255:3520 ^^IdX");
}

TEST_F(ControllerInterface, ChoosingSendsAndLogsNothing) {
    launch();
    const Lines before = log();
    controller.interfaceSelect();
    EXPECT_EQ(log(), before);
    EXPECT_EQ(sent().size(), 1U);
    EXPECT_EQ(systemCalls.count(Operation::socket), 1U);
}

TEST_F(ControllerInterface, WithoutAServiceFallsBackToEverywhere) {
    interfaces.addTitle("Tunnel (tun0)", "=tun0");
    launch();
    EXPECT_EQ(broadcastThrough("Ethernet (eth0)"), "192.168.1.255:3520 ^^IdX");
    EXPECT_EQ(broadcastThrough("Tunnel (tun0)"), "255.255.255.255:3520 ^^IdX");
}

TEST_F(ControllerInterface, IsFoundByItsNameInTheTitle) {
    interfaces.addTitle("Office (2nd floor) (eth1:1)", "x");
    interfaces.setService("eth1", "service-eth1");
    interfaces.setData("service-eth1", "IPv4", "Addresses", PropertyList{"10.1.2.3", "10.9.9.9"});
    interfaces.setData("service-eth1", "IPv4", "SubnetMasks", PropertyList{"255.255.0.0"});
    launch();
    EXPECT_EQ(broadcastThrough("Office (2nd floor) (eth1:1)"), "10.1.255.255:3520 ^^IdX");
}

TEST_F(ControllerInterface, LaunchForgetsTheChoice) {
    launch();
    EXPECT_EQ(broadcastThrough("Ethernet (eth0)"), "192.168.1.255:3520 ^^IdX");
    launch();
    EXPECT_EQ(lastSent(), "255.255.255.255:3520 ^^IdX");
}

TEST_F(ControllerInterface, RequestsWithoutASelectedUnitFollowTheChoiceAtOnce) {
    launch();
    window.interfacePopUp.selectItemWithTitle("Ethernet (eth0)");
    controller.interfaceSelect();
    controller.reloadUnitParameterButton();
    EXPECT_EQ(lastSent(), "192.168.1.255:3520 ^^IdX");
    controller.restoreDefaultSettings();
    EXPECT_EQ(lastSent(), "192.168.1.255:3520 ^^IdZ");
}

} // namespace kx
