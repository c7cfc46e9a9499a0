// The link by which each datagram leaves.

#include "ControllerFixture.h"

namespace kx {

namespace {

constexpr std::uint32_t chosenLink = 2;
constexpr std::uint32_t otherLink = 7;

class ControllerLink : public ControllerTest {
protected:
    ControllerLink() {
        interfaces.addService("Ethernet", "eth0", "192.168.1.20", "255.255.255.0");
        interfaces.addTitle("Tunnel (tun0)", "=tun0");
        systemCalls.addLink("eth0", chosenLink);
        systemCalls.addLink("tun0", 4);
        launch();
    }

    void choose(const std::string& title = "Ethernet (eth0)") {
        window.interfacePopUp.selectItemWithTitle(title);
        controller.interfaceSelect();
    }

    void receiveBy(std::uint32_t link, const Bytes& datagram) {
        systemCalls.queueDatagram(datagram, dataForAddress(ipForString("192.168.1.10"), 3520),
                                  link);
        runLoop.makeReadable(systemCalls.lastDescriptor());
    }

    // A unit answers by the other link and is selected.
    void discoverByOtherLink() {
        controller.discoverButton();
        receiveBy(otherLink, SampleUnit().reply());
        runLoop.advanceBy(2000ms);
    }

    // "192.168.1.255:3520 ^^IdX by 2" for the latest datagram.
    std::string last() const {
        return lastSent() + " by " + std::to_string(systemCalls.sentDatagrams().back().link);
    }
};

} // namespace

TEST_F(ControllerLink, BeforeAChoiceTheRoutesDecide) {
    EXPECT_EQ(last(), "255.255.255.255:3520 ^^IdX by 0");
    controller.restoreDefaultSettings();
    EXPECT_EQ(last(), "255.255.255.255:3520 ^^IdZ by 0");
}

TEST_F(ControllerLink, BroadcastsLeaveByTheChosenOne) {
    choose();
    controller.discoverButton();
    EXPECT_EQ(last(), "192.168.1.255:3520 ^^IdX by 2");
    controller.reloadUnitParameterButton();
    EXPECT_EQ(last(), "192.168.1.255:3520 ^^IdX by 2");
    controller.restoreDefaultSettings();
    EXPECT_EQ(last(), "192.168.1.255:3520 ^^IdZ by 2");
}

TEST_F(ControllerLink, AChosenOneWithoutAServiceIsTakenAllTheSame) {
    choose("Tunnel (tun0)");
    controller.discoverButton();
    EXPECT_EQ(last(), "255.255.255.255:3520 ^^IdX by 4");
}

TEST_F(ControllerLink, AChoiceTouchesNoSocket) {
    const auto before = systemCalls.calls().size();
    choose();
    EXPECT_EQ(systemCalls.calls().size(), before);
}

TEST_F(ControllerLink, TheOneThatHasTheNameNowIsTaken) {
    choose();
    systemCalls.addLink("eth0", 9); // the adapter was plugged in anew
    controller.discoverButton();
    EXPECT_EQ(last(), "192.168.1.255:3520 ^^IdX by 9");
}

TEST_F(ControllerLink, WhenTheChosenOneIsGoneTheSendFailsAndTheLogSaysSo) {
    choose();
    systemCalls.removeLink("eth0");
    controller.discoverButton();
    EXPECT_EQ(log(), (Lines{"[Begin Discover]", "UDP listener did start. 0.0.0.0:3520",
                            "Request unit parameters with address: 192.168.1.255",
                            "UDP failed to send data.", "  " + posixErrorText(ENODEV)}));
    EXPECT_EQ(sent().size(), 2U) << "it takes no other way";
}

TEST_F(ControllerLink, ASystemThatCannotBeAskedForTheMomentChangesNothing) {
    choose();
    controller.discoverButton();
    systemCalls.failLinks(EMFILE);
    controller.reloadUnitParameterButton();
    EXPECT_EQ(last(), "192.168.1.255:3520 ^^IdX by 2");
}

TEST_F(ControllerLink, CommandsLeaveByTheOneOnWhichTheUnitWasHeardLast) {
    choose();
    discoverByOtherLink();
    apply(UnitParameter::destinationPortNumber, "3521");
    EXPECT_EQ(last(), "192.168.1.10:10000 ^^IdT0DC1 by 7");
    controller.sendOptionButton();
    EXPECT_EQ(last(), "192.168.1.10:10000 ^^IdV\\r by 7");
    controller.reloadUnitParameterButton();
    EXPECT_EQ(last(), "192.168.1.10:10000 ^^IdX by 7");
    controller.restoreDefaultSettings();
    EXPECT_EQ(last(), "192.168.1.10:10000 ^^IdZ by 7");
    receiveBy(5, SampleUnit().reply());
    controller.reloadUnitParameterButton();
    EXPECT_EQ(last(), "192.168.1.10:10000 ^^IdX by 5");
    receiveBy(6, SampleUnit().acknowledgement());
    EXPECT_EQ(last(), "192.168.1.10:10000 ^^IdX by 6") << "an acknowledgement is heard too";
}

TEST_F(ControllerLink, AMoveLeavesByTheOneOnWhichTheUnitWasHeard) {
    discoverByOtherLink();
    apply(UnitParameter::internalIPAddress, "10.0.0.7");
    EXPECT_EQ(last(), "10.0.0.7:10000 ^^IdI0A000007 by 7");
}

TEST_F(ControllerLink, AUnitWhoseAddressIsNotKnownIsLookedForOnTheChosenOne) {
    choose();
    discoverByOtherLink();
    receiveBy(otherLink, sparseReplyOf(SampleUnit()));
    controller.reloadUnitParameterButton();
    EXPECT_EQ(last(), "192.168.1.255:3520 ^^IdX by 2");
}

// A forged record does it.
TEST_F(ControllerLink, AUnitThatTellsABroadcastAddressMovesNoBroadcastToItsLink) {
    SampleUnit broadcaster;
    for (const Bytes& address : {Bytes{192, 168, 1, 255}, Bytes{255, 255, 255, 255}}) {
        broadcaster.internalIP = address;
        choose();
        controller.discoverButton();
        receiveBy(otherLink, broadcaster.reply());
        runLoop.advanceBy(2000ms);
        controller.restoreDefaultSettings();
        EXPECT_TRUE(last().ends_with("^^IdZ by 2")) << last();
        controller.reloadUnitParameterButton();
        EXPECT_TRUE(last().ends_with("^^IdX by 2")) << last();
        apply(UnitParameter::destinationPortNumber, "3521");
        EXPECT_TRUE(last().ends_with("^^IdT0DC1 by 2")) << last();
        controller.sendOptionButton();
        EXPECT_TRUE(last().ends_with("^^IdV\\r by 2")) << last();
    }
}

TEST_F(ControllerLink, ACommandToABroadcastAddressThatTheInterfaceHasLostFails) {
    SampleUnit broadcaster;
    broadcaster.internalIP = {192, 168, 1, 255};
    choose();
    discover({broadcaster});
    interfaces.clear();
    const std::size_t before = sent().size();
    apply(UnitParameter::destinationPortNumber, "3521");
    EXPECT_EQ(quietLine(), "Not sent: " + posixErrorText(ENETUNREACH) + ".");
    EXPECT_EQ(sent().size(), before);
}

TEST_F(ControllerLink, ACommandByALinkThatIsGoneFails) {
    discoverByOtherLink();
    systemCalls.removeLink("link 7");
    apply(UnitParameter::destinationPortNumber, "3521");
    EXPECT_EQ(quietLine(), "Not sent: " + posixErrorText(ENODEV) + ".");
}

} // namespace kx
