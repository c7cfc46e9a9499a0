// The choice of a port, the listener's start, and the endpoint's events but received datagrams.

#include "ControllerFixture.h"
#include "support/LocalizedText.h"

#include <stdexcept>

namespace kx {

namespace {

using ControllerListener = ControllerTest;

// Fails for one message, as a broken translation might.
class BrokenText final : public LocalizedText {
public:
    explicit BrokenText(bool withPlatformException)
        : _withPlatformException(withPlatformException)
        , _previous(installLocalizedText(this)) {}
    ~BrokenText() override { installLocalizedText(_previous); }
    BrokenText(const BrokenText&) = delete;
    BrokenText& operator=(const BrokenText&) = delete;

    std::string textForKey(std::string_view key) const override {
        if (key != "\nRequest unit parameters with address: %@") {
            return std::string(key);
        }
        if (_withPlatformException) {
            throw PlatformException("no such text");
        }
        throw std::logic_error("a mistake in the program");
    }

private:
    bool _withPlatformException;
    const LocalizedText* _previous;
};

} // namespace

TEST_F(ControllerListener, AnotherPortRestartsTheListenerOnIt) {
    launch();
    const int firstSocket = systemCalls.lastDescriptor();
    const auto firstListener = controller.udpListener();
    window.udpPortPopUp.selectItemWithTitle("3522");
    controller.udpPortSelect();
    EXPECT_EQ(log(), (Lines{"[Begin Discover]", "UDP listener did start. 0.0.0.0:3522",
                            "Request unit parameters with address: 255.255.255.255",
                            "UDP server did send data."}));
    EXPECT_EQ(systemCalls.closeCount(firstSocket), 1U);
    EXPECT_NE(controller.udpListener(), firstListener);
    EXPECT_EQ(controller.udpListener()->port(), 3522U);
    EXPECT_EQ(firstListener->port(), 0U);
}

TEST_F(ControllerListener, BroadcastUsesPort3520WhateverPortIsListenedOnOrUnitSelected) {
    launch();
    discover({SampleUnit()}); // its device port is 10000
    ASSERT_EQ(selectedUnit(), "01 02 03 04 05 06");
    window.udpPortPopUp.selectItemWithTitle("3523");
    controller.udpPortSelect();
    EXPECT_EQ(lastSent(), "255.255.255.255:3520 ^^IdX");
}

TEST_F(ControllerListener, BroadcastIsAllowedBeforeItIsSent) {
    launch();
    std::vector<Operation> order;
    for (const auto& call : systemCalls.calls()) {
        if (call.operation == Operation::enableBroadcast || call.operation == Operation::sendTo) {
            EXPECT_EQ(call.descriptor, systemCalls.lastDescriptor());
            order.push_back(call.operation);
        }
    }
    EXPECT_EQ(order, (std::vector{Operation::enableBroadcast, Operation::sendTo}));
}

TEST_F(ControllerListener, RefusedBroadcastIsLoggedAndNothingIsSent) {
    systemCalls.failNext(Operation::enableBroadcast, EPERM);
    launch();
    EXPECT_EQ(log(), (Lines{"[Begin Discover]", "UDP listener did start. 0.0.0.0:3520",
                            "Error setting SO_BROADCAST " + posixErrorText(EPERM)}));
    EXPECT_EQ(sent(), Lines{});
    EXPECT_EQ(controller.udpListener()->port(), 3520U);
}

TEST_F(ControllerListener, PortThatIsTakenIsLogged) {
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    launch();
    EXPECT_EQ(log(), (Lines{"[Begin Discover]", "UDP did stop with error.",
                            "  " + posixErrorText(EADDRINUSE)}));
    EXPECT_EQ(sent(), Lines{});
    ASSERT_NE(controller.udpListener(), nullptr);
    EXPECT_EQ(controller.udpListener()->port(), 0U);
}

TEST_F(ControllerListener, DiscoverRecoversFromATakenPort) {
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    launch();
    controller.discoverButton();
    EXPECT_EQ(log().at(1), "UDP listener did start. 0.0.0.0:3520");
}

TEST_F(ControllerListener, ListenerOfAnotherFamilyHasNoAddressInTheLog) {
    launch();
    const auto length = controller.eventLog().size();
    controller.echoDidStartWithAddress(*controller.udpListener(), dataForAddress6({}, 3520));
    EXPECT_EQ(logSince(length), (Lines{"UDP listener did start. ",
                                       "Request unit parameters with address: 255.255.255.255",
                                       "UDP server did send data."}));
}

TEST_F(ControllerListener, StartOfAnotherEndpointIsIgnored) {
    launch();
    const Lines before = log();
    const auto stranger = UDPEcho::make(runLoop, hostResolver, systemCalls);
    controller.echoDidStartWithAddress(*stranger, dataForAddress(0, 3520));
    EXPECT_EQ(log(), before);
    EXPECT_EQ(sent().size(), 1U);
}

TEST_F(ControllerListener, SendOfAnotherEndpointIsNotLogged) {
    launch();
    const Lines before = log();
    const auto stranger = UDPEcho::make(runLoop, hostResolver, systemCalls);
    controller.echoDidSendDataToAddress(*stranger, {}, {});
    EXPECT_EQ(log(), before);
}

TEST_F(ControllerListener, ErrorsOfEveryEndpointAreLogged) {
    launch();
    const auto length = controller.eventLog().size();
    const auto stranger = UDPEcho::make(runLoop, hostResolver, systemCalls);
    controller.echoDidReceiveError(*stranger, posixError(ECONNREFUSED));
    controller.echoDidFailToSendDataToAddressError(*stranger, {}, {}, posixError(ENETUNREACH));
    controller.echoDidStopWithError(*stranger, posixError(EACCES));
    EXPECT_EQ(logSince(length),
              (Lines{"UDP did receive error.", "  " + posixErrorText(ECONNREFUSED),
                     "UDP failed to send data.", "  " + posixErrorText(ENETUNREACH),
                     "UDP did stop with error.", "  " + posixErrorText(EACCES)}));
    EXPECT_EQ(controller.udpListener()->port(), 3520U);
}

TEST_F(ControllerListener, FailedReadIsLoggedAndTheListenerGoesOn) {
    launch();
    const auto length = controller.eventLog().size();
    systemCalls.failNext(Operation::receiveFrom, ECONNREFUSED);
    runLoop.makeReadable(systemCalls.lastDescriptor());
    EXPECT_EQ(logSince(length),
              (Lines{"UDP did receive error.", "  " + posixErrorText(ECONNREFUSED)}));
    receive(SampleUnit().reply());
    EXPECT_EQ(controller.devices().size(), 1U);
}

TEST_F(ControllerListener, EmptyDatagramIsLoggedAsAnError) {
    launch();
    const auto length = controller.eventLog().size();
    receive({});
    EXPECT_EQ(logSince(length), (Lines{"UDP did receive error.", "  " + posixErrorText(EPIPE)}));
}

TEST_F(ControllerListener, FailedBroadcastIsLogged) {
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    launch();
    EXPECT_EQ(log(), (Lines{"[Begin Discover]", "UDP listener did start. 0.0.0.0:3520",
                            "Request unit parameters with address: 255.255.255.255",
                            "UDP failed to send data.", "  " + posixErrorText(ENETUNREACH)}));
}

TEST_F(ControllerListener, SendOfNoBytesCountsAsFailed) {
    systemCalls.giveNext(Operation::sendTo, 0);
    launch();
    EXPECT_EQ(log().back(), "  " + posixErrorText(EPIPE));
}

TEST_F(ControllerListener, StoppedListenerStaysUntilTheNextRestart) {
    systemCalls.failNext(Operation::bind, EACCES);
    launch();
    const auto stopped = controller.udpListener();
    controller.interfaceSelect();
    controller.reloadUnitParameterButton();
    runLoop.advanceBy(2000ms);
    EXPECT_EQ(controller.udpListener(), stopped);
}

TEST_F(ControllerListener, SendingThroughAStoppedListenerIsAFailedSend) {
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    launch();
    const auto length = controller.eventLog().size();
    controller.reloadUnitParameterButton();
    EXPECT_EQ(logSince(length),
              (Lines{"Request unit parameters with address: 255.255.255.255",
                     "UDP failed to send data.", "  The UDP listener is not running."}));
    EXPECT_EQ(sent(), Lines{});
}

TEST_F(ControllerListener, ExceptionWhileTheListenerStartsGoesToTheSystemLog) {
    const BrokenText broken(true);
    launch();
    EXPECT_EQ(systemLog.lines(), Lines{"Exception during echo:didStartWithAddress: no such text"});
    EXPECT_EQ(log(), (Lines{"[Begin Discover]", "UDP listener did start. 0.0.0.0:3520"}));
    EXPECT_EQ(sent(), Lines{});
    EXPECT_EQ(controller.udpListener()->port(), 3520U);
}

TEST_F(ControllerListener, OtherExceptionsArePassedOn) {
    const BrokenText broken(false);
    EXPECT_THROW(launch(), std::logic_error);
}

} // namespace kx
