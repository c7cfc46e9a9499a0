#include "UDPEchoFixture.h"

#include <netdb.h>

#include <cerrno>

namespace kx {

namespace {

class UDPEchoClient : public UDPEchoTest {
protected:
    inline static const Bytes ipv6Record = dataForAddress6({0xFE, 0x80}, 0);
    inline static const Bytes otherRecord = dataForAddress(0x0A000004U, 0);

    // Starts as a client of a host with these addresses.
    void resolveTo(const std::vector<Bytes>& addresses) {
        resolver.setAddresses(hostName, addresses);
        startResolving();
        resolver.reportAnswers();
    }

    void expectStopWithError(const Error& error) {
        const auto event = onlyEvent();
        EXPECT_EQ(event.kind, EchoEvent::stopped);
        EXPECT_EQ(event.error, error);
        expectStopped();
    }
};

} // namespace

TEST_F(UDPEchoClient, WhileResolvingItHasANameAndAPortAndNoSocket) {
    startResolving();
    EXPECT_TRUE(delegate.events.empty());
    EXPECT_EQ(echo->port(), 3522U);
    EXPECT_EQ(echo->hostName(), hostName);
    EXPECT_FALSE(echo->isServer());
    EXPECT_EQ(echo->hostAddress(), std::nullopt);
    EXPECT_EQ(echo->nativeSocket(), -1);
    EXPECT_EQ(resolver.startedNames(), std::vector<std::string>{hostName});
    EXPECT_EQ(resolver.pendingCount(), 1U);
    EXPECT_TRUE(systemCalls.calls().empty());
}

TEST_F(UDPEchoClient, ConnectsToTheResolvedAddressAtItsPortAndReportsThePeer) {
    startClient();
    const auto event = onlyEvent();
    EXPECT_EQ(event.kind, EchoEvent::started);
    EXPECT_EQ(event.echo, echo.get());
    EXPECT_EQ(event.address, peerAddress);
    EXPECT_EQ(systemCalls.calls()[1].operation, Operation::connect);
    EXPECT_EQ(systemCalls.calls()[1].address, peerAddress);
    EXPECT_EQ(systemCalls.count(Operation::bind), 0U);
}

TEST_F(UDPEchoClient, RunningItHasItsPeerAndAWatchedSocketAndNoResolution) {
    startClient();
    EXPECT_EQ(echo->port(), 3522U);
    EXPECT_EQ(echo->hostName(), hostName);
    EXPECT_EQ(echo->hostAddress(), peerAddress);
    EXPECT_TRUE(loop.isWatching(echo->nativeSocket()));
    EXPECT_EQ(resolver.pendingCount(), 0U);
    EXPECT_TRUE(resolver.cancelledNames().empty());
}

TEST_F(UDPEchoClient, TheResolutionIsReleasedBeforeTheStartIsReported) {
    std::size_t requestsAtStart = 99;
    delegate.onEvent = [&](UDPEcho&) { requestsAtStart = resolver.requestCount(); };
    startClient();
    EXPECT_EQ(requestsAtStart, 0U);
}

TEST_F(UDPEchoClient, ThePortInTheResolvedAddressIsNotLookedAt) {
    resolveTo({dataForAddress(0x0A000003U, 99)});
    EXPECT_EQ(echo->hostAddress(), peerAddress);
}

TEST_F(UDPEchoClient, TheStoredNameIsTheEndpointsOwn) {
    std::optional<std::string> name = hostName;
    echo->startConnectedToHostNamePort(name, 3522);
    name->assign("changed");
    EXPECT_EQ(echo->hostName(), hostName);
}

TEST_F(UDPEchoClient, AddressesOfOtherFamiliesAreSkipped) {
    resolveTo({ipv6Record, hostRecord});
    EXPECT_EQ(onlyEvent().kind, EchoEvent::started);
    EXPECT_EQ(systemCalls.count(Operation::connect), 1U);
}

TEST_F(UDPEchoClient, AHostWithOnlyIPv6AddressesIsNotFound) {
    resolveTo({ipv6Record, ipv6Record});
    expectStopWithError({"kCFErrorDomainCFNetwork", 1, std::nullopt});
    EXPECT_TRUE(systemCalls.calls().empty());
}

TEST_F(UDPEchoClient, AHostWithoutAddressesIsNotFound) {
    resolveTo({});
    expectStopWithError({"kCFErrorDomainCFNetwork", 1, std::nullopt});
}

TEST_F(UDPEchoClient, AResolutionWithoutAListIsNotFound) {
    resolver.setAnswer(hostName, {{}, std::nullopt});
    startResolving();
    resolver.reportAnswers();
    expectStopWithError({"kCFErrorDomainCFNetwork", 1, std::nullopt});
}

TEST_F(UDPEchoClient, TheFirstAddressThatAcceptsIsTaken) {
    systemCalls.failNext(Operation::connect, ENETUNREACH);
    resolveTo({otherRecord, hostRecord, otherRecord});
    const auto event = onlyEvent();
    EXPECT_EQ(event.kind, EchoEvent::started);
    EXPECT_EQ(event.address, peerAddress);
    EXPECT_EQ(systemCalls.count(Operation::connect), 2U);
    EXPECT_EQ(systemCalls.closeCount(1000), 1U);
    EXPECT_EQ(systemCalls.openDescriptors(), std::set<int>{1001});
}

TEST_F(UDPEchoClient, WhenNoAddressAcceptsTheLastReasonIsReported) {
    systemCalls.failNext(Operation::connect, ENETUNREACH);
    systemCalls.failNext(Operation::connect, EACCES);
    resolveTo({otherRecord, hostRecord, ipv6Record});
    expectStopWithError({"NSPOSIXErrorDomain", EACCES, std::nullopt});
}

TEST_F(UDPEchoClient, ASocketThatCannotBeMadeIsReportedToo) {
    systemCalls.failNext(Operation::socket, ENFILE);
    resolveTo({hostRecord});
    expectStopWithError({"NSPOSIXErrorDomain", ENFILE, std::nullopt});
}

TEST_F(UDPEchoClient, AConnectedSocketThatCannotBeMadeNonBlockingIsClosed) {
    systemCalls.failNext(Operation::statusFlags, EBADF);
    resolveTo({hostRecord});
    expectStopWithError({"NSPOSIXErrorDomain", EBADF, std::nullopt});
}

TEST_F(UDPEchoClient, AResolverErrorIsAnUnknownHostWithTheResolversCode) {
    resolver.setError(hostName, {kCFStreamErrorDomainNetDB, EAI_NONAME});
    startResolving();
    resolver.reportAnswers();
    expectStopWithError(
        unknownHostError(PropertyDictionary{{"kCFGetAddrInfoFailureKey", EAI_NONAME}}));
}

TEST_F(UDPEchoClient, AnErrorOfAnotherDomainIsAnUnknownHostWithoutUserInfo) {
    resolver.setError(hostName, {kCFStreamErrorDomainPOSIX, ENOMEM});
    startResolving();
    resolver.reportAnswers();
    expectStopWithError(unknownHostError());
}

TEST_F(UDPEchoClient, AResolutionThatCannotStartStopsFromInsideTheStart) {
    resolver.refuseToStart({kCFStreamErrorDomainNetDB, EAI_AGAIN});
    startResolving();
    expectStopWithError(
        unknownHostError(PropertyDictionary{{"kCFGetAddrInfoFailureKey", EAI_AGAIN}}));
}

TEST_F(UDPEchoClient, AResolutionThatTheSystemCannotStartHasNoUserInfo) {
    resolver.refuseToStart({kCFStreamErrorDomainPOSIX, EAGAIN});
    startResolving();
    expectStopWithError(unknownHostError());
}

TEST_F(UDPEchoClient, StopWhileResolvingCancelsWithoutAWord) {
    resolver.setAddresses(hostName, {hostRecord});
    startResolving();
    echo->stop();
    EXPECT_EQ(resolver.cancelledNames(), std::vector<std::string>{hostName});
    resolver.reportAnswers();
    EXPECT_TRUE(delegate.events.empty());
    expectStopped();
}

TEST_F(UDPEchoClient, TheEndOfAResolvingEndpointCancels) {
    startResolving();
    echo.reset();
    EXPECT_EQ(resolver.cancelledNames(), std::vector<std::string>{hostName});
    EXPECT_TRUE(delegate.events.empty());
}

TEST_F(UDPEchoClient, StopWhileRunningClosesWithoutAWord) {
    startClient();
    delegate.events.clear();
    echo->stop();
    EXPECT_TRUE(delegate.events.empty());
    expectStopped();
}

TEST_F(UDPEchoClient, TheEndOfARunningClientStopsItSilently) {
    startClient();
    delegate.events.clear();
    echo.reset();
    EXPECT_TRUE(delegate.events.empty());
    EXPECT_EQ(loop.watchCount(), 0U);
    expectEverySocketClosedOnce();
}

TEST_F(UDPEchoClient, EndingAResolutionTwiceIsSafe) {
    startResolving();
    echo->_stopHostResolution();
    echo->_stopHostResolution();
    EXPECT_EQ(resolver.cancelledNames().size(), 1U);
}

TEST_F(UDPEchoClient, WithoutADelegateItRunsAndFailsInSilence) {
    echo->setDelegate(nullptr);
    startClient();
    EXPECT_EQ(echo->hostAddress(), peerAddress);
    echo->stop();
    resolver.refuseToStart({kCFStreamErrorDomainPOSIX, EAGAIN});
    startResolving();
    expectStopped();
}

} // namespace kx
