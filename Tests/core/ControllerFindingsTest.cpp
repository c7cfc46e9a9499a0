// The line below Discover says the weightiest finding of the latest discovery.

#include "ControllerFixture.h"

namespace kx {

namespace {

const std::string outOfDate =
    "The address and mask of the interface eth0 are out of date: they have changed since it was "
    "chosen. Choose it again to take the new ones over.";
const std::string twoHosts =
    "Two hosts answer as the unit 01 02 03 04 05 06: 192.168.1.10 and 192.168.1.99.";

class ControllerFindings : public ControllerTest {
protected:
    ControllerFindings() {
        configure("192.168.1.20", "255.255.255.0");
        systemCalls.addLink("eth0", 2);
        launch();
        runLoop.advanceBy(2000ms);
    }

    void configure(const std::string& address, const std::string& mask) {
        interfaces.clear();
        interfaces.addService("Ethernet", "eth0", address, mask);
    }

    void choose() {
        window.interfacePopUp.selectItemWithTitle("Ethernet (eth0)");
        controller.interfaceSelect();
    }

    void receiveFrom(const std::string& sender, const Bytes& datagram, std::uint32_t link = 0) {
        systemCalls.queueDatagram(datagram, dataForAddress(ipForString(sender), 3520), link);
        runLoop.makeReadable(systemCalls.lastDescriptor());
    }

    std::string lineAfterDiscover() {
        controller.discoverButton();
        runLoop.advanceBy(2000ms);
        return discoveryLine();
    }
};

} // namespace

TEST_F(ControllerFindings, NothingIsSaidOfAnInterfaceThatIsAsItWasChosen) {
    EXPECT_TRUE(isNothingFound()) << "nothing is chosen";
    choose();
    EXPECT_EQ(lineAfterDiscover(), "No unit answered.");
}

TEST_F(ControllerFindings, ANewAddressIsSeenAtTheNextDiscoverAndTakenOverByChoosingAgain) {
    choose();
    controller.discoverButton();
    configure("10.1.2.3", "255.255.0.0");
    EXPECT_TRUE(isNothingFound()) << "the controller subscribes to nothing";
    const std::size_t before = sent().size();
    EXPECT_EQ(lineAfterDiscover(), outOfDate);
    EXPECT_EQ(log(), (Lines{"[Begin Discover]", "UDP listener did start. 0.0.0.0:3520",
                            "Request unit parameters with address: 192.168.1.255",
                            "UDP failed to send data.", "  " + posixErrorText(ENETUNREACH)}))
        << "address and mask stay those of the choice";
    EXPECT_EQ(sent().size(), before);
    EXPECT_EQ(lastSent(), "192.168.1.255:3520 ^^IdX")
        << "address and mask stay those of the choice";
    choose();
    EXPECT_EQ(discoveryLine(), outOfDate) << "it is about the latest discovery";
    EXPECT_EQ(lineAfterDiscover(), "No unit answered.");
    EXPECT_EQ(lastSent(), "10.1.255.255:3520 ^^IdX");
}

TEST_F(ControllerFindings, AnotherMaskIsOutOfDateToo) {
    choose();
    configure("192.168.1.20", "255.255.0.0");
    EXPECT_EQ(lineAfterDiscover(), outOfDate);
}

TEST_F(ControllerFindings, ASubnetOfTwoAddressesReachesNoUnitByBroadcast) {
    configure("192.168.1.20", "255.255.255.254");
    choose();
    EXPECT_EQ(lineAfterDiscover(), "The interface eth0 reaches no unit by broadcast. Choose the "
                                   "one that leads to the units.");
}

TEST_F(ControllerFindings, AnInterfaceThatIsGoneOrWithoutALinkIsSaid) {
    choose();
    interfaces.setState("eth0", InterfaceState{.isRunning = false, .canBroadcast = true});
    EXPECT_TRUE(lineAfterDiscover().starts_with("The interface eth0 has no link."));
    systemCalls.removeLink("eth0");
    EXPECT_TRUE(lineAfterDiscover().starts_with("The interface eth0 is gone"));
}

TEST_F(ControllerFindings, TwoHostsThatAnswerAsOneUnitAreSaidUntilTheNextDiscover) {
    receiveFrom("192.168.1.10", SampleUnit().reply());
    EXPECT_TRUE(isNothingFound()) << discoveryLine();
    const std::size_t before = controller.eventLog().size();
    receiveFrom("192.168.1.10", SampleUnit().reply());
    const Lines usual = logSince(before);
    const std::size_t length = controller.eventLog().size();
    receiveFrom("192.168.1.99", SampleUnit().reply());
    EXPECT_EQ(discoveryLine(), twoHosts);
    EXPECT_EQ(logSince(length), usual) << "nothing new is in the log";
    EXPECT_EQ(lineAfterDiscover(), "No unit answered. The one listed answered earlier. No "
                                   "interface is chosen: asked 255.255.255.255.");
}

TEST_F(ControllerFindings, AnAcknowledgementOrATextOfAnotherHostIsSaidToo) {
    for (const Bytes& reply :
         {SampleUnit().acknowledgement(), joined({SampleUnit().header(), textBytes("hello")})}) {
        discover({});
        receiveFrom("192.168.1.10", SampleUnit().reply());
        receiveFrom("192.168.1.10", reply);
        EXPECT_TRUE(isNothingFound()) << discoveryLine();
        receiveFrom("192.168.1.99", reply);
        EXPECT_EQ(discoveryLine(), twoHosts);
    }
}

TEST_F(ControllerFindings, AUnitThatIsHeardOnTwoInterfacesIsSaid) {
    for (const Bytes& reply :
         {SampleUnit().reply(), SampleUnit().acknowledgement(),
          joined({SampleUnit().header(), secondSampleUnit().parameterList()})}) {
        discover({});
        receiveFrom("192.168.1.10", SampleUnit().reply(), 2);
        receiveFrom("192.168.1.10", SampleUnit().reply(), 2);
        EXPECT_TRUE(isNothingFound()) << discoveryLine();
        receiveFrom("192.168.1.10", reply, 3);
        EXPECT_EQ(discoveryLine(),
                  "The unit 01 02 03 04 05 06 is heard on two interfaces: eth0 and "
                  "link 3. Commands leave by the one on which it was heard last.");
    }
}

TEST_F(ControllerFindings, OneAddressOfTwoUnitsIsSaid) {
    SampleUnit second = secondSampleUnit();
    second.internalIP = SampleUnit().internalIP;
    receiveFrom("192.168.1.10", SampleUnit().reply());
    receiveFrom("192.168.1.10", second.reply());
    EXPECT_EQ(discoveryLine(),
              "Two units say that their address is 192.168.1.10: 01 02 03 04 05 06 and "
              "01 02 03 04 05 07. A command may reach either.");
}

TEST_F(ControllerFindings, ASenderOfAnotherAddressIsSaid) {
    receiveFrom("192.168.1.99", SampleUnit().reply());
    EXPECT_EQ(discoveryLine(), "The unit 01 02 03 04 05 06 says that its address is 192.168.1.10, "
                               "but its answer came from 192.168.1.99.");
}

TEST_F(ControllerFindings, AUnitThatMovesOnCommandIsOneHost) {
    discover({SampleUnit()});
    apply(UnitParameter::internalIPAddress, "192.168.1.99");
    SampleUnit moved;
    moved.internalIP = {192, 168, 1, 99};
    receiveFrom("192.168.1.99", moved.reply());
    EXPECT_TRUE(isNothingFound()) << discoveryLine();
    controller.restoreDefaultSettings();
    receiveFrom("192.168.1.10", SampleUnit().reply());
    EXPECT_TRUE(isNothingFound()) << discoveryLine();
}

TEST_F(ControllerFindings, ARestoreOfEverybodyMayMoveEveryUnit) {
    SampleUnit elsewhere;
    elsewhere.internalIP = {192, 168, 1, 99};
    receiveFrom("192.168.1.99", elsewhere.reply());
    controller.restoreDefaultSettings(); // no unit is selected yet
    receiveFrom("192.168.1.10", SampleUnit().reply());
    EXPECT_TRUE(isNothingFound()) << discoveryLine();
}

TEST_F(ControllerFindings, OnlyTheWeightiestIsSaid) {
    receiveFrom("192.168.1.10", SampleUnit().reply());
    receiveFrom("192.168.1.99", SampleUnit().reply());
    EXPECT_EQ(discoveryLine(), twoHosts);
    receiveBuffers.drop(systemCalls.lastDescriptor(), 5);
    receiveFrom("192.168.1.10", SampleUnit().reply());
    runLoop.advanceBy(250ms);
    EXPECT_TRUE(discoveryLine().starts_with("The system dropped 5 datagrams"));
}

} // namespace kx
