#include "UDPEchoFixture.h"

#include <fcntl.h>

#include <cerrno>

namespace kx {

namespace {

class UDPEchoServer : public UDPEchoTest {
protected:
    void expectStopWithPosixError(int code) {
        const auto event = onlyEvent();
        EXPECT_EQ(event.kind, EchoEvent::stopped);
        EXPECT_EQ(event.error, (Error{"NSPOSIXErrorDomain", code, std::nullopt}));
        expectStopped();
    }
};

} // namespace

TEST_F(UDPEchoServer, IsStoppedAtFirst) {
    expectStopped();
    EXPECT_EQ(echo->delegate(), &delegate);
    EXPECT_TRUE(systemCalls.calls().empty());
    EXPECT_EQ(newEcho()->port(), 0U);
}

TEST_F(UDPEchoServer, StartBindsTheWildcardAddressAndReportsTheLocalOne) {
    echo->startServerOnPort(3521);
    const auto event = onlyEvent();
    EXPECT_EQ(event.kind, EchoEvent::started);
    EXPECT_EQ(event.echo, echo.get());
    EXPECT_EQ(event.address, dataForAddress(0, 3521));

    ASSERT_GE(systemCalls.calls().size(), 2U);
    const auto& bind = systemCalls.calls()[1];
    EXPECT_EQ(bind.operation, Operation::bind);
    EXPECT_EQ(bind.address, (Bytes{16, 2, 0x0D, 0xC1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(UDPEchoServer, StartMakesTheSystemCallsInOrderAndSetsNoSocketOption) {
    startServer();
    std::vector<Operation> operations;
    for (const auto& call : systemCalls.calls()) {
        operations.push_back(call.operation);
    }
    EXPECT_EQ(operations,
              (std::vector<Operation>{Operation::socket, Operation::bind, Operation::statusFlags,
                                      Operation::setStatusFlags, Operation::localAddress}));
}

TEST_F(UDPEchoServer, TheSocketIsMadeNonBlockingAndKeepsItsOtherFlags) {
    systemCalls.giveNext(Operation::statusFlags, O_RDWR | O_APPEND);
    startServer();
    EXPECT_EQ(systemCalls.calls()[3].flags, O_RDWR | O_APPEND | O_NONBLOCK);
}

TEST_F(UDPEchoServer, ARunningServerHasAPortAndAWatchedSocketAndNothingElse) {
    startServer();
    EXPECT_EQ(echo->port(), 3521U);
    EXPECT_TRUE(echo->isServer());
    EXPECT_EQ(echo->hostName(), std::nullopt);
    EXPECT_EQ(echo->hostAddress(), std::nullopt);
    EXPECT_EQ(echo->nativeSocket(), systemCalls.lastDescriptor());
    EXPECT_TRUE(loop.isWatching(echo->nativeSocket()));
    EXPECT_EQ(loop.watchCount(), 1U);
    EXPECT_TRUE(resolver.startedNames().empty());
}

TEST_F(UDPEchoServer, ThePortIsSetBeforeTheStartIsReported) {
    std::size_t reported = 0;
    delegate.onEvent = [&](UDPEcho& sender) { reported = sender.port(); };
    startServer();
    EXPECT_EQ(reported, 3521U);
}

TEST_F(UDPEchoServer, TheLowestAndTheHighestPortAreAccepted) {
    echo->startServerOnPort(1);
    EXPECT_EQ(onlyEvent().address, dataForAddress(0, 1));
    echo->stop();
    echo->startServerOnPort(65535);
    EXPECT_EQ(onlyEvent().address, dataForAddress(0, 65535));
    EXPECT_EQ(echo->port(), 65535U);
}

TEST_F(UDPEchoServer, WithoutADelegateNobodyAsksForTheLocalAddress) {
    echo->setDelegate(nullptr);
    startServer();
    EXPECT_EQ(echo->port(), 3521U);
    EXPECT_EQ(systemCalls.count(Operation::localAddress), 0U);
}

TEST_F(UDPEchoServer, AFailingSocketCallStopsWithItsError) {
    systemCalls.failNext(Operation::socket, EMFILE);
    startServer();
    expectStopWithPosixError(EMFILE);
    EXPECT_EQ(systemCalls.count(Operation::close), 0U);
}

TEST_F(UDPEchoServer, ABindToAPortInUseStopsWithAddressInUse) {
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    startServer();
    expectStopWithPosixError(EADDRINUSE);
    EXPECT_EQ(systemCalls.count(Operation::statusFlags), 0U);
}

TEST_F(UDPEchoServer, AFailingReadOfTheStatusFlagsStopsWithItsError) {
    systemCalls.failNext(Operation::statusFlags, EBADF);
    startServer();
    expectStopWithPosixError(EBADF);
    EXPECT_EQ(systemCalls.count(Operation::setStatusFlags), 0U);
}

TEST_F(UDPEchoServer, AFailingChangeOfTheStatusFlagsStopsWithItsError) {
    systemCalls.failNext(Operation::setStatusFlags, EPERM);
    startServer();
    expectStopWithPosixError(EPERM);
}

TEST_F(UDPEchoServer, AFailingStartWithoutADelegateIsSilent) {
    echo->setDelegate(nullptr);
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    startServer();
    expectStopped();
}

TEST_F(UDPEchoServer, AFailingStepOfTheSetUpMayGoWithoutAnErrorSlot) {
    systemCalls.failNext(Operation::bind, EACCES);
    EXPECT_FALSE(echo->_setupSocketConnectedToAddressPortError(std::nullopt, 80, nullptr));
    expectStopped();
}

TEST_F(UDPEchoServer, ASetUpThatSucceedsLeavesTheErrorSlotAlone) {
    std::optional<Error> error;
    EXPECT_TRUE(echo->_setupSocketConnectedToAddressPortError(std::nullopt, 80, &error));
    EXPECT_EQ(error, std::nullopt);
}

TEST_F(UDPEchoServer, StopReleasesEverythingWithoutAWord) {
    startServer();
    delegate.events.clear();
    echo->stop();
    EXPECT_TRUE(delegate.events.empty());
    expectStopped();
}

TEST_F(UDPEchoServer, TheWatchEndsBeforeTheDescriptorIsClosed) {
    startServer();
    std::size_t watchesAtClose = 99;
    systemCalls.setObserver([&](const ScriptedSystemCalls::Call& call) {
        if (call.operation == Operation::close) {
            watchesAtClose = loop.watchCount();
        }
    });
    echo->stop();
    EXPECT_EQ(watchesAtClose, 0U);
}

TEST_F(UDPEchoServer, ACloseThatFailsDoesNotHinderAStop) {
    startServer();
    systemCalls.failNext(Operation::close, EIO);
    echo->stop();
    expectStopped();
}

TEST_F(UDPEchoServer, StopOnAStoppedEndpointDoesNothing) {
    echo->stop();
    EXPECT_TRUE(delegate.events.empty());
    EXPECT_TRUE(systemCalls.calls().empty());
    startServer();
    echo->stop();
    delegate.events.clear();
    const auto callsBefore = systemCalls.calls().size();
    echo->stop();
    EXPECT_TRUE(delegate.events.empty());
    EXPECT_EQ(systemCalls.calls().size(), callsBefore);
    expectStopped();
}

TEST_F(UDPEchoServer, TheEndOfARunningEndpointStopsItSilently) {
    startServer();
    delegate.events.clear();
    echo.reset();
    EXPECT_TRUE(delegate.events.empty());
    EXPECT_EQ(loop.watchCount(), 0U);
    expectEverySocketClosedOnce();
}

TEST_F(UDPEchoServer, AStoppedEndpointStartsAgainInEitherMode) {
    startServer();
    echo->stop();
    startClient();
    EXPECT_FALSE(echo->isServer());
    echo->stop();
    echo->startServerOnPort(3523);
    EXPECT_EQ(echo->port(), 3523U);
    EXPECT_EQ(delegate.kinds(), (std::vector<EchoEvent::Kind>{
                                    EchoEvent::started, EchoEvent::started, EchoEvent::started}));
    EXPECT_EQ(systemCalls.openDescriptors().size(), 1U);
    echo->stop();
    expectStopped();
}

TEST_F(UDPEchoServer, AnEndpointThatFailedToStartCanBeStartedAgain) {
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    startServer();
    delegate.events.clear();
    startServer();
    EXPECT_EQ(onlyEvent().kind, EchoEvent::started);
    EXPECT_EQ(echo->port(), 3521U);
}

TEST_F(UDPEchoServer, TheAccessorsArePlain) {
    echo->setPort(7);
    EXPECT_EQ(echo->port(), 7U);
    echo->setHostName("name");
    EXPECT_EQ(echo->hostName(), "name");
    EXPECT_FALSE(echo->isServer());
    echo->setHostAddress(peerAddress);
    EXPECT_EQ(echo->hostAddress(), peerAddress);
    echo->setDelegate(nullptr);
    EXPECT_EQ(echo->delegate(), nullptr);
    echo->stop();
    expectStopped();
}

} // namespace kx
