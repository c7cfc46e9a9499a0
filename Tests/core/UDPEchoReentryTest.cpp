// Actions of a delegate on the endpoint while the endpoint calls it.

#include "UDPEchoFixture.h"

#include <cerrno>

namespace kx {

namespace {

class UDPEchoReentry : public UDPEchoTest {
protected:
    inline static const Bytes address = dataForAddress(0x0A0000FFU, 3520);

    // Gives up the last reference from inside the next event.
    void releaseInNextEvent() {
        observed = echo;
        delegate.onEvent = [this](UDPEcho&) { echo.reset(); };
    }
    void expectReleased() {
        EXPECT_TRUE(observed.expired());
        EXPECT_EQ(loop.watchCount(), 0U);
        EXPECT_EQ(resolver.requestCount(), 0U);
        expectEverySocketClosedOnce();
    }

    void stopInNextEvent() {
        delegate.onEvent = [](UDPEcho& sender) { sender.stop(); };
    }
    void restartInNextEvent() {
        delegate.onEvent = [this](UDPEcho& sender) {
            delegate.onEvent = nullptr;
            sender.stop();
            sender.startServerOnPort(3523);
        };
    }
    void expectRestarted() {
        EXPECT_EQ(echo->port(), 3523U);
        EXPECT_TRUE(echo->isServer());
        EXPECT_EQ(echo->hostAddress(), std::nullopt);
        EXPECT_EQ(systemCalls.openDescriptors().size(), 1U);
        EXPECT_EQ(loop.watchCount(), 1U);
        delegate.events.clear();
        receive(hello);
        EXPECT_EQ(onlyEvent().data, hello);
    }

    std::weak_ptr<UDPEcho> observed;
};

} // namespace

// --- The start of a server ---

TEST_F(UDPEchoReentry, AServerMayBeStoppedWhenItStarts) {
    stopInNextEvent();
    startServer();
    EXPECT_EQ(onlyEvent().kind, EchoEvent::started);
    expectStopped();
}

TEST_F(UDPEchoReentry, AServerMayBeRestartedWhenItStarts) {
    restartInNextEvent();
    startServer();
    expectRestarted();
}

TEST_F(UDPEchoReentry, AServerMayBeReleasedWhenItStarts) {
    releaseInNextEvent();
    echo->startServerOnPort(3521);
    expectReleased();
}

TEST_F(UDPEchoReentry, AServerMaySendWhenItStarts) {
    delegate.onEvent = [this](UDPEcho& sender) {
        delegate.onEvent = nullptr;
        sender._sendDataToAddress(hello, address);
    };
    startServer();
    EXPECT_EQ(delegate.kinds(),
              (std::vector<EchoEvent::Kind>{EchoEvent::started, EchoEvent::sentData}));
}

// --- The start of a client ---

TEST_F(UDPEchoReentry, AClientMayBeStoppedWhenItStarts) {
    stopInNextEvent();
    startClient();
    EXPECT_EQ(onlyEvent().address, peerAddress);
    expectStopped();
}

TEST_F(UDPEchoReentry, AClientMayBeRestartedAsAServerWhenItStarts) {
    restartInNextEvent();
    startClient();
    expectRestarted();
}

TEST_F(UDPEchoReentry, AClientMayBeReleasedWhenItStarts) {
    releaseInNextEvent();
    startClient();
    expectReleased();
}

// --- A stop because of an error ---

TEST_F(UDPEchoReentry, AnEndpointMayBeReleasedWhenItFailsToBind) {
    releaseInNextEvent();
    bool wasAlive = false;
    delegate.onEvent = [this, &wasAlive](UDPEcho& sender) {
        echo.reset();
        wasAlive = !observed.expired() && sender.port() == 0;
    };
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    echo->startServerOnPort(3521);
    EXPECT_TRUE(wasAlive);
    expectReleased();
}

TEST_F(UDPEchoReentry, AnEndpointMayBeReleasedWhenItsResolutionFails) {
    releaseInNextEvent();
    resolver.setError(hostName, {kCFStreamErrorDomainPOSIX, ENOMEM});
    startResolving();
    resolver.reportAnswers();
    EXPECT_EQ(onlyEvent().kind, EchoEvent::stopped);
    expectReleased();
}

TEST_F(UDPEchoReentry, AnEndpointMayBeReleasedWhenItsResolutionCannotStart) {
    releaseInNextEvent();
    resolver.refuseToStart({kCFStreamErrorDomainPOSIX, EAGAIN});
    echo->startConnectedToHostNamePort(hostName, 3522);
    EXPECT_EQ(onlyEvent().kind, EchoEvent::stopped);
    expectReleased();
}

TEST_F(UDPEchoReentry, AnEndpointMayBeReleasedWhenNoAddressAccepts) {
    releaseInNextEvent();
    systemCalls.failNext(Operation::connect, ENETUNREACH);
    startClient();
    EXPECT_EQ(onlyEvent().kind, EchoEvent::stopped);
    expectReleased();
}

TEST_F(UDPEchoReentry, AnEndpointMayBeRestartedWhenItFails) {
    restartInNextEvent();
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    startServer();
    expectRestarted();
}

TEST_F(UDPEchoReentry, AnEndpointMayResolveAgainWhenItsResolutionFails) {
    resolver.setError(hostName, {kCFStreamErrorDomainPOSIX, ENOMEM});
    startResolving();
    delegate.onEvent = [this](UDPEcho& sender) {
        delegate.onEvent = nullptr;
        resolver.setAddresses(hostName, {hostRecord});
        sender.startConnectedToHostNamePort(hostName, 3522);
    };
    resolver.reportAnswers();
    resolver.reportAnswers();
    EXPECT_EQ(delegate.kinds(),
              (std::vector<EchoEvent::Kind>{EchoEvent::stopped, EchoEvent::started}));
    EXPECT_EQ(echo->hostAddress(), peerAddress);
}

// --- Datagrams ---

TEST_F(UDPEchoReentry, AnEndpointMayBeStoppedWhenItReceives) {
    startServer();
    delegate.events.clear();
    stopInNextEvent();
    receive(hello);
    EXPECT_EQ(onlyEvent().data, hello);
    expectStopped();
}

TEST_F(UDPEchoReentry, AnEndpointMayBeRestartedWhenItReceives) {
    startServer();
    restartInNextEvent();
    receive(hello);
    expectRestarted();
}

TEST_F(UDPEchoReentry, AnEndpointMayBeReleasedWhenItReceives) {
    startServer();
    releaseInNextEvent();
    receive(hello);
    expectReleased();
}

TEST_F(UDPEchoReentry, AnEndpointMayBeReleasedWhenAReadFails) {
    startServer();
    releaseInNextEvent();
    receive({});
    expectReleased();
}

TEST_F(UDPEchoReentry, AnEndpointMaySendWhenItReceives) {
    startServer();
    delegate.events.clear();
    delegate.onEvent = [this](UDPEcho& sender) {
        delegate.onEvent = nullptr;
        sender._sendDataToAddress(hello, address);
    };
    receive({1});
    EXPECT_EQ(delegate.kinds(),
              (std::vector<EchoEvent::Kind>{EchoEvent::receivedData, EchoEvent::sentData}));
}

TEST_F(UDPEchoReentry, AServerMayBeReleasedWhenItSent) {
    startServer();
    releaseInNextEvent();
    echo->_sendDataToAddress(hello, address);
    expectReleased();
}

TEST_F(UDPEchoReentry, AServerMayBeStoppedWhenASendFails) {
    startServer();
    delegate.events.clear();
    stopInNextEvent();
    systemCalls.failNext(Operation::sendTo, EPERM);
    echo->_sendDataToAddress(hello, address);
    EXPECT_EQ(onlyEvent().kind, EchoEvent::failedToSend);
    expectStopped();
}

TEST_F(UDPEchoReentry, AClientsPeerAddressOutlivesAStopWhileASendIsReported) {
    startClient();
    delegate.events.clear();
    stopInNextEvent();
    echo->sendData(hello);
    EXPECT_EQ(onlyEvent().address, peerAddress);
    expectStopped();
}

TEST_F(UDPEchoReentry, AClientMayBeReleasedWhenASendFails) {
    startClient();
    releaseInNextEvent();
    systemCalls.failNext(Operation::sendTo, ECONNREFUSED);
    echo->sendData(hello);
    expectReleased();
}

} // namespace kx
