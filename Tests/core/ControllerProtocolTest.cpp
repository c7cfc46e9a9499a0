// Commands out. ControllerRepliesTest.cpp has the replies.

#include "ControllerFixture.h"

namespace kx {

namespace {

class ControllerProtocol : public ControllerTest {
protected:
    ControllerProtocol() { launch(); }
};

} // namespace

TEST_F(ControllerProtocol, CommandGoesToTheSelectedUnitOnItsDevicePort) {
    discover({SampleUnit()});
    const auto length = controller.eventLog().size();
    EXPECT_TRUE(controller.sendCommand("^^IdP2711"));
    EXPECT_EQ(lastSent(), "192.168.1.10:10000 ^^IdP2711");
    EXPECT_EQ(logSince(length),
              (Lines{"Send to: 192.168.1.10 command: ^^IdP2711", "UDP server did send data."}));
}

TEST_F(ControllerProtocol, CommandToAnotherAddressStillUsesTheSelectedUnitsPort) {
    discover({SampleUnit()});
    EXPECT_TRUE(controller.sendCommandToAddress("^^IdI0A000007", "10.0.0.7"));
    EXPECT_EQ(lastSent(), "10.0.0.7:10000 ^^IdI0A000007");
}

TEST_F(ControllerProtocol, CommandWithoutASelectedUnitGoesToTheDefaultPort) {
    EXPECT_TRUE(controller.sendCommandToAddress("^^IdX", "10.0.0.7"));
    EXPECT_EQ(lastSent(), "10.0.0.7:3520 ^^IdX");
}

TEST_F(ControllerProtocol, AddressIsLoggedAsItWasGiven) {
    const auto length = controller.eventLog().size();
    controller.sendCommandToAddress("^^IdX", " 0x0A.0.0.7 and more");
    EXPECT_EQ(logSince(length).at(0), "Send to:  0x0A.0.0.7 and more command: ^^IdX");
    EXPECT_EQ(lastSent(), "10.0.0.7:3520 ^^IdX");
}

TEST_F(ControllerProtocol, AddressThatDoesNotParseIsTriedAsZero) {
    systemCalls.failNext(Operation::sendTo, EINVAL);
    const auto length = controller.eventLog().size();
    EXPECT_TRUE(controller.sendCommandToAddress("^^IdX", "nowhere"));
    EXPECT_EQ(logSince(length), (Lines{"Send to: nowhere command: ^^IdX",
                                       "UDP failed to send data.", "  " + posixErrorText(EINVAL)}));
    EXPECT_EQ(lastSent(), "0.0.0.0:3520 ^^IdX");
}

TEST_F(ControllerProtocol, NothingIsSentOrLoggedWithoutASelectedUnit) {
    const auto before = controller.eventLog();
    EXPECT_FALSE(controller.sendCommand("^^IdX"));
    EXPECT_EQ(controller.eventLog(), before);
    EXPECT_EQ(sent().size(), 1U);
}

TEST_F(ControllerProtocol, NothingIsSentToAUnitWithoutAnAddress) {
    receive(joined({SampleUnit().header(), item("<M>", {1, 2, 3, 4, 5, 6}),
                    item("<S>", {10, 11, 12, 13, 14, 15})}));
    runLoop.advanceBy(2000ms);
    ASSERT_EQ(selectedUnit(), "0A 0B 0C 0D 0E 0F");
    const auto before = controller.eventLog();
    EXPECT_FALSE(controller.sendCommand("^^IdX"));
    EXPECT_EQ(controller.eventLog(), before);
}

TEST_F(ControllerProtocol, AbsentTextsSendAndLogNothing) {
    const auto before = controller.eventLog();
    EXPECT_FALSE(controller.sendCommandToAddress(std::nullopt, "10.0.0.7"));
    EXPECT_FALSE(controller.sendCommandToAddress("^^IdX", std::nullopt));
    EXPECT_FALSE(controller.sendCommand(std::nullopt));
    EXPECT_EQ(controller.eventLog(), before);
    EXPECT_EQ(sent().size(), 1U);
}

TEST_F(ControllerProtocol, NothingIsSentOrLoggedWithoutAListener) {
    controller.applicationWillTerminate();
    EXPECT_FALSE(controller.sendCommandToAddress("^^IdX", "10.0.0.7"));
    EXPECT_EQ(controller.eventLog(), "");
    EXPECT_EQ(sent().size(), 1U);
}

TEST_F(ControllerProtocol, RequestWithoutAListenerIsLoggedAllTheSame) {
    controller.applicationWillTerminate();
    controller.reloadUnitParameterButton();
    EXPECT_EQ(controller.eventLog(), "\nRequest unit parameters with address: 255.255.255.255");
    EXPECT_EQ(sent().size(), 1U);
}

TEST_F(ControllerProtocol, CommandThatIsNotASCIIIsNeitherLoggedNorSent) {
    discover({SampleUnit()});
    const auto before = controller.eventLog();
    const auto count = sent().size();
    EXPECT_FALSE(controller.sendCommand("^^IdM\xC3\x84"));
    EXPECT_EQ(controller.eventLog(), before);
    EXPECT_EQ(sent().size(), count);
}

TEST_F(ControllerProtocol, CommandThroughAStoppedListenerIsAFailedSend) {
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    controller.discoverButton();
    const auto length = controller.eventLog().size();
    EXPECT_TRUE(controller.sendCommandToAddress("^^IdX", "10.0.0.7"));
    EXPECT_EQ(logSince(length),
              (Lines{"Send to: 10.0.0.7 command: ^^IdX", "UDP failed to send data.",
                     "  The UDP listener is not running."}));
}

TEST_F(ControllerProtocol, FailedSendIsLoggedAfterItsCommand) {
    discover({SampleUnit()});
    systemCalls.failNext(Operation::sendTo, EHOSTUNREACH);
    const auto length = controller.eventLog().size();
    EXPECT_TRUE(controller.sendCommand("^^IdX"));
    EXPECT_EQ(logSince(length),
              (Lines{"Send to: 192.168.1.10 command: ^^IdX", "UDP failed to send data.",
                     "  " + posixErrorText(EHOSTUNREACH)}));
}

TEST_F(ControllerProtocol, PercentSignsOfACommandAreLoggedAsTheyAre) {
    const auto length = controller.eventLog().size();
    controller.sendCommandToAddress("^^Id%@ %d", "10.0.0.7");
    EXPECT_EQ(logSince(length).at(0), "Send to: 10.0.0.7 command: ^^Id%@ %d");
}

TEST_F(ControllerProtocol, ASendThatTheHostRefusesIsTwoEntriesAndTheNextOneGoes) {
    for (const int error : {ENOBUFS, EPERM, ENETUNREACH}) {
        launch();
        const std::size_t before = controller.eventLog().size();
        systemCalls.failNext(Operation::sendTo, error);
        controller.reloadUnitParameterButton();
        EXPECT_EQ(logSince(before),
                  (Lines{"Request unit parameters with address: 255.255.255.255",
                         "UDP failed to send data.", "  " + posixErrorText(error)}));
        EXPECT_EQ(quietLine(), "Not sent: " + posixErrorText(error) + ".");
        const std::size_t afterwards = controller.eventLog().size();
        controller.reloadUnitParameterButton();
        EXPECT_EQ(logSince(afterwards).back(), "UDP server did send data.");
    }
}

} // namespace kx
