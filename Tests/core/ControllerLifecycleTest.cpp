// Launch, the choice of an interface, help and the end.

#include "ControllerFixture.h"

namespace kx {

namespace {

class ControllerLifecycle : public ControllerTest {
protected:
    // Chooses the interface that the pop-up offers and gives back where a discovery then goes.
    std::string broadcastAfterChoosing(const std::string& address, const std::string& mask) {
        interfaces.addService("Ethernet", "eth0", address, mask);
        launch();
        window.interfacePopUp.selectItemWithTitle("Ethernet (eth0)");
        controller.interfaceSelect();
        controller.discoverButton();
        return lastSent();
    }
};

} // namespace

TEST_F(ControllerLifecycle, LaunchOffersTheInterfacesInTheirOrder) {
    interfaces.addTitle("Wi-Fi (wlan0)", "b");
    interfaces.addTitle("Ethernet (eth0)", "a");
    window.interfacePopUp.addItemsWithTitles({"left over"});
    launch();
    EXPECT_EQ(window.interfacePopUp.titles(), (Titles{"Wi-Fi (wlan0)", "Ethernet (eth0)"}));
    EXPECT_TRUE(window.interfacePopUp.isEnabled());
}

TEST_F(ControllerLifecycle, LaunchWithoutInterfacesSaysSoAndDiscoversAllTheSame) {
    launch();
    EXPECT_EQ(window.interfacePopUp.titles(), Titles{"No configured interfaces"});
    EXPECT_FALSE(window.interfacePopUp.isEnabled());
    EXPECT_EQ(sent(), Lines{"255.255.255.255:3520 ^^IdX"});
}

TEST_F(ControllerLifecycle, LaunchWorksWithoutAnyKnowledgeOfTheHostsNetwork) {
    KXConfigAppDelegate blind(window.outlets(), {runLoop, hostResolver, systemCalls, wallClock,
                                                 application, nullptr, nullptr});
    blind.applicationDidFinishLaunching();
    EXPECT_EQ(window.interfacePopUp.titles(), Titles{"No configured interfaces"});
    blind.interfaceSelect();
    blind.myHelp();
    blind.reloadUnitParameterButton();
    EXPECT_EQ(lastSent(), "255.255.255.255:3520 ^^IdX");
}

TEST_F(ControllerLifecycle, LaunchClosesTheDrawer) {
    window.eventLogDrawer.setState(DrawerState::open);
    launch();
    EXPECT_EQ(window.eventLogDrawer.state(), DrawerState::closing);
}

TEST_F(ControllerLifecycle, LaunchPreparesTheOptionCommand) {
    launch();
    EXPECT_EQ(window.optionCommandField.stringValue(), "V");
}

TEST_F(ControllerLifecycle, LaunchSelectsNoUnit) {
    launch();
    EXPECT_EQ(controller.selectedUnit(), std::nullopt);
    EXPECT_TRUE(controller.devices().empty());
}

TEST_F(ControllerLifecycle, FirstBroadcastGoesEverywhereBecauseNoInterfaceIsChosen) {
    interfaces.addService("Ethernet", "eth0", "192.168.1.20", "255.255.255.0");
    launch();
    EXPECT_EQ(sent(), Lines{"255.255.255.255:3520 ^^IdX"});
}

TEST_F(ControllerLifecycle, BroadcastFollowsTheChosenInterface) {
    EXPECT_EQ(broadcastAfterChoosing("192.168.1.20", "255.255.255.0"), "192.168.1.255:3520 ^^IdX");
}

TEST_F(ControllerLifecycle, BroadcastUnderAFullMaskGoesToTheInterfaceItself) {
    EXPECT_EQ(broadcastAfterChoosing("192.168.1.20", "255.255.255.255"), "192.168.1.20:3520 ^^IdX");
}

TEST_F(ControllerLifecycle, BroadcastUnderAnEmptyMaskGoesEverywhere) {
    EXPECT_EQ(broadcastAfterChoosing("192.168.1.20", "0.0.0.0"), "255.255.255.255:3520 ^^IdX");
}

TEST_F(ControllerLifecycle, ChoosingAnInterfaceSendsAndLogsNothing) {
    interfaces.addService("Ethernet", "eth0", "192.168.1.20", "255.255.255.0");
    launch();
    const Lines before = log();
    controller.interfaceSelect();
    EXPECT_EQ(log(), before);
    EXPECT_EQ(sent().size(), 1U);
    EXPECT_EQ(systemCalls.count(Operation::socket), 1U);
}

TEST_F(ControllerLifecycle, InterfaceWithoutAnAddressFallsBackToEverywhere) {
    interfaces.addService("Ethernet", "eth0", "192.168.1.20", "255.255.255.0");
    interfaces.addTitle("Tunnel (tun0)", "=tun0");
    launch();
    window.interfacePopUp.selectItemAtIndex(0);
    controller.interfaceSelect();
    window.interfacePopUp.selectItemAtIndex(1);
    controller.interfaceSelect();
    controller.discoverButton();
    EXPECT_EQ(lastSent(), "255.255.255.255:3520 ^^IdX");
}

TEST_F(ControllerLifecycle, ConfigurationOfAnUnexpectedShapeReadsAsNoAddress) {
    const std::vector<PropertyListValue> shapes{"192.168.1.20", PropertyList{}, PropertyList{5},
                                                PropertyList{"not an address"},
                                                PropertyDictionary{{"0", "192.168.1.20"}}};
    interfaces.addService("Ethernet", "eth0", "192.168.1.20", "255.255.255.0");
    launch();
    for (const auto& shape : shapes) {
        interfaces.setData("service-eth0", "IPv4", "Addresses", shape);
        controller.interfaceSelect();
        controller.discoverButton();
        EXPECT_EQ(lastSent(), "255.255.255.255:3520 ^^IdX") << shape.description();
    }
}

TEST_F(ControllerLifecycle, MissingMaskCountsAsAnEmptyOne) {
    interfaces.addTitle("Ethernet (eth0)", "a");
    interfaces.setService("eth0", "a");
    interfaces.setData("a", "IPv4", "Addresses", PropertyList{"192.168.1.20"});
    launch();
    controller.interfaceSelect();
    controller.reloadUnitParameterButton();
    EXPECT_EQ(lastSent(), "255.255.255.255:3520 ^^IdX");
}

TEST_F(ControllerLifecycle, InterfaceIsFoundByItsNameInTheTitle) {
    interfaces.addTitle("Office (2nd floor) (eth1:1)", "x");
    interfaces.setService("eth1", "service-eth1");
    interfaces.setData("service-eth1", "IPv4", "Addresses", PropertyList{"10.1.2.3", "10.9.9.9"});
    interfaces.setData("service-eth1", "IPv4", "SubnetMasks", PropertyList{"255.255.0.0"});
    launch();
    controller.interfaceSelect();
    controller.reloadUnitParameterButton();
    EXPECT_EQ(lastSent(), "10.1.255.255:3520 ^^IdX");
}

TEST_F(ControllerLifecycle, LaunchForgetsAnEarlierAddress) {
    broadcastAfterChoosing("192.168.1.20", "255.255.255.0");
    launch();
    EXPECT_EQ(lastSent(), "255.255.255.255:3520 ^^IdX");
}

TEST_F(ControllerLifecycle, ClosingTheWindowEndsTheApplication) {
    launch();
    controller.windowWillClose();
    EXPECT_EQ(application.terminateCount(), 1);
}

TEST_F(ControllerLifecycle, HelpOpensAtItsIndex) {
    controller.myHelp();
    EXPECT_EQ(helpAnchors, Lines{"index"});
}

TEST_F(ControllerLifecycle, TerminationClosesTheSocketAndReleasesEverything) {
    launch();
    discover({SampleUnit()});
    const int socket = systemCalls.lastDescriptor();
    controller.applicationWillTerminate();
    EXPECT_EQ(controller.eventLog(), "");
    EXPECT_EQ(controller.udpListener(), nullptr);
    EXPECT_TRUE(controller.devices().empty());
    EXPECT_EQ(controller.selectedUnit(), std::nullopt);
    EXPECT_EQ(systemCalls.closeCount(socket), 1U);
    EXPECT_EQ(runLoop.watchCount(), 0U);
}

TEST_F(ControllerLifecycle, TerminationCancelsDelayedCalls) {
    launch();
    controller.restoreDefaultSettings();
    EXPECT_EQ(runLoop.pendingCallCount(), 2U);
    controller.applicationWillTerminate();
    EXPECT_EQ(runLoop.pendingCallCount(), 0U);
    const auto before = sent().size();
    runLoop.advanceBy(10s);
    EXPECT_EQ(sent().size(), before);
    EXPECT_EQ(window.unitSelectPopUp.titles(), Titles{});
}

TEST_F(ControllerLifecycle, EditTableStaysAnswerableAfterTheEnd) {
    launch();
    controller.applicationWillTerminate();
    window.editParameterTableView.typeIntoCell(0, "parameterValue", "late");
    window.editParameterTableView.reloadData();
    EXPECT_EQ(editRows(), Lines{" = "});
}

TEST_F(ControllerLifecycle, DestructionEndsEverythingThatWasStarted) {
    {
        KXConfigAppDelegate brief(window.outlets(), {runLoop, hostResolver, systemCalls, wallClock,
                                                     application, nullptr, nullptr});
        brief.applicationDidFinishLaunching();
        EXPECT_EQ(runLoop.pendingCallCount(), 1U);
    }
    EXPECT_EQ(runLoop.pendingCallCount(), 0U);
    EXPECT_EQ(runLoop.watchCount(), 0U);
    EXPECT_TRUE(systemCalls.openDescriptors().empty());
}

} // namespace kx
