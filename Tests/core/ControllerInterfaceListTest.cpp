// The interface pop-up, brought up to date when it opens.

#include "ControllerFixture.h"

namespace kx {

namespace {

class ControllerInterfaces : public ControllerTest {
protected:
    void addEthernet(const std::string& name = "Ethernet") {
        interfaces.addService(name, "eth0", "192.168.1.20", "255.255.255.0");
    }
    void addWiFi() { interfaces.addService("Wi-Fi", "wlan0", "10.0.0.5", "255.0.0.0"); }

    void choose(const std::string& title) {
        window.interfacePopUp.selectItemWithTitle(title);
        controller.interfaceSelect();
    }
    std::string selected() {
        return window.interfacePopUp.titleOfSelectedItem().value_or("(none)");
    }
    std::string broadcast() {
        controller.discoverButton();
        return lastSent();
    }
};

} // namespace

TEST_F(ControllerInterfaces, OpeningListsWhatThereIsThen) {
    addEthernet();
    launch();
    addWiFi();
    EXPECT_EQ(window.interfacePopUp.titles(), Titles{"Ethernet (eth0)"});
    controller.interfacePopUpWillOpen();
    EXPECT_EQ(window.interfacePopUp.titles(), (Titles{"Ethernet (eth0)", "Wi-Fi (wlan0)"}));
    EXPECT_EQ(selected(), "Ethernet (eth0)");
}

TEST_F(ControllerInterfaces, OpeningSendsAndLogsNothing) {
    addEthernet();
    launch();
    const Lines before = log();
    addWiFi();
    controller.interfacePopUpWillOpen();
    EXPECT_EQ(log(), before);
    EXPECT_EQ(sent().size(), 1U);
}

TEST_F(ControllerInterfaces, TheChosenInterfaceStaysChosenWhereverItStands) {
    addEthernet();
    addWiFi();
    launch();
    choose("Wi-Fi (wlan0)");
    interfaces.clear();
    addWiFi();
    addEthernet();
    controller.interfacePopUpWillOpen();
    EXPECT_EQ(window.interfacePopUp.titles(), (Titles{"Wi-Fi (wlan0)", "Ethernet (eth0)"}));
    EXPECT_EQ(selected(), "Wi-Fi (wlan0)");
    EXPECT_EQ(broadcast(), "10.255.255.255:3520 ^^IdX");
}

TEST_F(ControllerInterfaces, AnotherNameForTheChosenInterfaceKeepsItChosen) {
    addEthernet();
    addWiFi();
    launch();
    choose("Ethernet (eth0)");
    interfaces.clear();
    addWiFi();
    addEthernet("Office");
    controller.interfacePopUpWillOpen();
    EXPECT_EQ(selected(), "Office (eth0)");
}

TEST_F(ControllerInterfaces, ItsOwnTitleGoesBeforeAnotherServiceOnTheSameInterface) {
    addEthernet();
    interfaces.addTitle("Office (eth0)", "second");
    launch();
    choose("Office (eth0)");
    addWiFi();
    controller.interfacePopUpWillOpen();
    EXPECT_EQ(selected(), "Office (eth0)");
}

TEST_F(ControllerInterfaces, NothingIsSelectedOnceTheChosenInterfaceIsGone) {
    addEthernet();
    addWiFi();
    launch();
    choose("Ethernet (eth0)");
    interfaces.clear();
    interfaces.setState("eth0", std::nullopt);
    addWiFi();
    controller.interfacePopUpWillOpen();
    EXPECT_EQ(window.interfacePopUp.titles(), Titles{"Wi-Fi (wlan0)"});
    EXPECT_EQ(selected(), "(none)");
    EXPECT_EQ(broadcast(), "192.168.1.255:3520 ^^IdX") << "until another one is chosen";
    choose("Wi-Fi (wlan0)");
    EXPECT_EQ(broadcast(), "10.255.255.255:3520 ^^IdX");
}

TEST_F(ControllerInterfaces, TheChosenInterfaceIsSelectedAgainWhenItComesBack) {
    addEthernet();
    addWiFi();
    launch();
    choose("Wi-Fi (wlan0)");
    interfaces.clear();
    addEthernet();
    controller.interfacePopUpWillOpen();
    EXPECT_EQ(selected(), "(none)");
    addWiFi();
    controller.interfacePopUpWillOpen();
    EXPECT_EQ(selected(), "Wi-Fi (wlan0)");
    EXPECT_EQ(broadcast(), "10.255.255.255:3520 ^^IdX");
}

TEST_F(ControllerInterfaces, TheChosenInterfaceIsSelectedAgainAfterAnEmptyList) {
    addEthernet();
    addWiFi();
    launch();
    choose("Wi-Fi (wlan0)");
    interfaces.clear();
    controller.interfacePopUpWillOpen();
    addEthernet();
    addWiFi();
    controller.interfacePopUpWillOpen();
    EXPECT_EQ(selected(), "Wi-Fi (wlan0)");
}

TEST_F(ControllerInterfaces, AfterAnEmptyListNoOtherInterfaceLooksChosen) {
    addEthernet();
    addWiFi();
    launch();
    choose("Wi-Fi (wlan0)");
    interfaces.clear();
    controller.interfacePopUpWillOpen();
    addEthernet();
    interfaces.setState("wlan0", std::nullopt);
    controller.interfacePopUpWillOpen();
    EXPECT_EQ(selected(), "(none)");
    EXPECT_EQ(broadcast(), "10.255.255.255:3520 ^^IdX") << "until another one is chosen";
}

TEST_F(ControllerInterfaces, BeforeAnyChoiceTheFirstIsSelectedWhenTheSelectedOneIsGone) {
    addEthernet();
    launch();
    interfaces.clear();
    addWiFi();
    controller.interfacePopUpWillOpen();
    EXPECT_EQ(selected(), "Wi-Fi (wlan0)") << "as after a launch";
    EXPECT_EQ(broadcast(), "255.255.255.255:3520 ^^IdX") << "as after a launch, none is chosen";
}

TEST_F(ControllerInterfaces, NoConfiguredInterfacesCanBecomeRealOnes) {
    launch();
    EXPECT_FALSE(window.interfacePopUp.isEnabled());
    addEthernet();
    addWiFi();
    controller.interfacePopUpWillOpen();
    EXPECT_EQ(window.interfacePopUp.titles(), (Titles{"Ethernet (eth0)", "Wi-Fi (wlan0)"}));
    EXPECT_TRUE(window.interfacePopUp.isEnabled());
    EXPECT_EQ(selected(), "Ethernet (eth0)") << "as after a launch";
    EXPECT_EQ(broadcast(), "255.255.255.255:3520 ^^IdX") << "as after a launch, none is chosen";
}

TEST_F(ControllerInterfaces, RealInterfacesCanAllGo) {
    addEthernet();
    launch();
    interfaces.clear();
    controller.interfacePopUpWillOpen();
    EXPECT_EQ(window.interfacePopUp.titles(), Titles{"No configured interfaces"});
    EXPECT_EQ(selected(), "No configured interfaces");
    EXPECT_FALSE(window.interfacePopUp.isEnabled());
}

TEST_F(ControllerInterfaces, OpeningWithoutAnyKnowledgeOfTheHostsNetworkChangesNothing) {
    KXConfigAppDelegate blind(window.outlets(), {runLoop, hostResolver, systemCalls, wallClock,
                                                 application, nullptr, nullptr});
    blind.applicationDidFinishLaunching();
    blind.interfacePopUpWillOpen();
    EXPECT_EQ(window.interfacePopUp.titles(), Titles{"No configured interfaces"});
}

} // namespace kx
