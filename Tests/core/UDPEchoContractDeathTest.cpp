// Every contract of the endpoint, broken once: the contracts that a caller can break, and those
// that only a faulty system can break.

#include "UDPEchoFixture.h"
#include "contracts/BrokenContract.h"

#include <cerrno>

namespace kx {

namespace {

// Tests named DeathTest run first, while the process has one thread.
class UDPEchoContractDeathTest : public UDPEchoTest {
protected:
    inline static const Bytes address = dataForAddress(0x0A0000FFU, 3520);

    // The endpoint's socket has become readable.
    void turn() { loop.makeReadable(echo->nativeSocket()); }

    // The resolution ends with these addresses.
    void resolveTo(std::vector<Bytes> addresses) {
        resolver.setAddresses(hostName, std::move(addresses));
        resolver.reportAnswers();
    }
};

} // namespace

#define EXPECT_BROKEN(statement, expression)                                                       \
    EXPECT_BROKEN_CONTRACT(statement, expression, "Sources/UDPEcho")

// --- Starting ---

TEST_F(UDPEchoContractDeathTest, AServerPortLiesBetween1And65535) {
    EXPECT_BROKEN(echo->startServerOnPort(0), "(port > 0) && (port < 65536)");
    EXPECT_BROKEN(echo->startServerOnPort(65536), "(port > 0) && (port < 65536)");
}

TEST_F(UDPEchoContractDeathTest, AServerStartsOnlyWhenStopped) {
    startServer();
    EXPECT_BROKEN(echo->startServerOnPort(3522), "self.port == 0");
    EXPECT_BROKEN(echo->startServerOnPort(0), "(port > 0) && (port < 65536)");
}

TEST_F(UDPEchoContractDeathTest, TheReportNamesTheFunction) {
    EXPECT_DEATH(echo->startServerOnPort(0), "function .*startServerOnPort.*, Sources/UDPEcho");
}

TEST_F(UDPEchoContractDeathTest, AServerHasALocalAddress) {
    systemCalls.failNext(Operation::localAddress, ENOTSOCK);
    EXPECT_BROKEN(startServer(), "localAddress != NULL");
}

TEST_F(UDPEchoContractDeathTest, AClientHasAHostName) {
    EXPECT_BROKEN(echo->startConnectedToHostNamePort(std::nullopt, 0), "hostName != nil");
}

TEST_F(UDPEchoContractDeathTest, AClientPortLiesBetween1And65535) {
    EXPECT_BROKEN(echo->startConnectedToHostNamePort(hostName, 0), "(port > 0) && (port < 65536)");
    EXPECT_BROKEN(echo->startConnectedToHostNamePort(hostName, 65536),
                  "(port > 0) && (port < 65536)");
}

TEST_F(UDPEchoContractDeathTest, AClientStartsOnlyWhenStopped) {
    startResolving();
    EXPECT_BROKEN(startResolving(), "self.port == 0");
}

TEST_F(UDPEchoContractDeathTest, AClientStartsWithoutAResolution) {
    startResolving();
    echo->setPort(0);
    EXPECT_BROKEN(startResolving(), "self->_cfHost == NULL");
}

TEST_F(UDPEchoContractDeathTest, AResolverMakesRequests) {
    resolver.makeNoRequests();
    EXPECT_BROKEN(startResolving(), "self->_cfHost != NULL");
}

// --- Setting up the socket ---

TEST_F(UDPEchoContractDeathTest, ASocketIsConnectedExactlyInClientMode) {
    echo->setHostName(hostName);
    EXPECT_BROKEN(startServer(), "(address == nil) == self.isServer");
    echo->setHostName(std::nullopt);
    EXPECT_BROKEN(echo->_setupSocketConnectedToAddressPortError(address, 1, nullptr),
                  "(address == nil) == self.isServer");
}

TEST_F(UDPEchoContractDeathTest, APeerAddressIsNotLongerThanAnyAddress) {
    startResolving();
    Bytes longAddress = hostRecord;
    longAddress.resize(129);
    EXPECT_BROKEN(resolveTo({longAddress}),
                  "(address == nil) || ([address length] <= sizeof(struct sockaddr_storage))");
}

TEST_F(UDPEchoContractDeathTest, APeerAddressIsNotLongerThanAnIPv4Address) {
    startResolving();
    Bytes longAddress = hostRecord;
    longAddress.resize(17);
    EXPECT_BROKEN(resolveTo({longAddress}), "NO");
    longAddress.resize(128);
    EXPECT_BROKEN(resolveTo({longAddress}), "NO");
}

TEST_F(UDPEchoContractDeathTest, APeerAddressIsAnIPv4Address) {
    echo->setHostName(hostName);
    Bytes otherFamily = hostRecord;
    otherFamily[1] = addressFamilyIPv6;
    EXPECT_BROKEN(echo->_setupSocketConnectedToAddressPortError(otherFamily, 1, nullptr),
                  "addr.sin_family == AF_INET");
    EXPECT_BROKEN(echo->_setupSocketConnectedToAddressPortError(Bytes{}, 1, nullptr),
                  "addr.sin_family == AF_INET");
}

TEST_F(UDPEchoContractDeathTest, ASocketPortHas16Bits) {
    startResolving();
    echo->setPort(65536);
    EXPECT_BROKEN(resolveTo({hostRecord}), "port < 65536");
}

TEST_F(UDPEchoContractDeathTest, ASocketIsMadeOnlyWhenThereIsNone) {
    startServer();
    echo->setPort(0);
    EXPECT_BROKEN(startServer(), "self->_cfSocket == NULL");
}

TEST_F(UDPEchoContractDeathTest, ASocketClosesItsDescriptorWhenItEnds) {
    systemCalls.setSocketFlags(0);
    EXPECT_BROKEN(startServer(),
                  "CFSocketGetSocketFlags(self->_cfSocket) & kCFSocketCloseOnInvalidate");
    systemCalls.setSocketFlags(~kCFSocketCloseOnInvalidate);
    EXPECT_BROKEN(startServer(),
                  "CFSocketGetSocketFlags(self->_cfSocket) & kCFSocketCloseOnInvalidate");
}

TEST_F(UDPEchoContractDeathTest, ASocketCanBeWatched) {
    loop.refuseToWatch();
    EXPECT_BROKEN(startServer(), "rls != NULL");
}

TEST_F(UDPEchoContractDeathTest, ASocketThatCouldNotBeSetUpCanBeClosed) {
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    systemCalls.failNext(Operation::close, EIO);
    EXPECT_BROKEN(startServer(), "junk == 0");
}

TEST_F(UDPEchoContractDeathTest, ThereIsASocketExactlyWhenTheSetUpSucceeded) {
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    bool hasCalledBack = false;
    systemCalls.setObserver([&](const ScriptedSystemCalls::Call& call) {
        if (call.operation == Operation::close && !hasCalledBack) {
            hasCalledBack = true;
            startServer(); // called from inside the start that fails
        }
    });
    EXPECT_BROKEN(startServer(), "(err == 0) == (self->_cfSocket != NULL)");
}

// --- The end of a resolution ---

TEST_F(UDPEchoContractDeathTest, AResolutionEndsWhileTheClientIsStarted) {
    startResolving();
    echo->setPort(0);
    EXPECT_BROKEN(resolveTo({hostRecord}), "self.port != 0");
}

TEST_F(UDPEchoContractDeathTest, OnlyAResolutionInProgressEnds) {
    startServer();
    EXPECT_BROKEN(HostResolveCallback(nullptr, HostInfoType::addresses, {}, echo.get()),
                  "self->_cfHost != NULL");
    EXPECT_BROKEN(echo->_hostResolutionDone({}), "self->_cfHost != NULL");
}

TEST_F(UDPEchoContractDeathTest, AResolutionEndsBeforeThereIsASocket) {
    startResolving();
    echo->setPort(0);
    echo->setHostName(std::nullopt);
    startServer();
    EXPECT_BROKEN(resolveTo({hostRecord}), "self->_cfSocket == NULL");
}

TEST_F(UDPEchoContractDeathTest, AResolutionEndsBeforeThereIsAPeer) {
    startResolving();
    echo->setHostAddress(peerAddress);
    EXPECT_BROKEN(resolveTo({hostRecord}), "self.hostAddress == nil");
}

TEST_F(UDPEchoContractDeathTest, AResolvedAddressIsAWholeAddress) {
    startResolving();
    Bytes shortAddress = hostRecord;
    shortAddress.resize(15);
    EXPECT_BROKEN(resolveTo({shortAddress}), "addrLen >= sizeof(struct sockaddr)");
    EXPECT_BROKEN(resolveTo({Bytes{}}), "addrLen >= sizeof(struct sockaddr)");
}

TEST_F(UDPEchoContractDeathTest, AConnectedSocketHasAPeer) {
    startResolving();
    systemCalls.failNext(Operation::peerAddress, ENOTCONN);
    EXPECT_BROKEN(resolveTo({hostRecord}), "hostAddress != NULL");
}

// --- Sending ---

TEST_F(UDPEchoContractDeathTest, ASendHasData) {
    EXPECT_BROKEN(echo->_sendDataToAddress(std::nullopt, std::nullopt), "data != nil");
}

TEST_F(UDPEchoContractDeathTest, AServerSendsToAnAddressAndAClientToNone) {
    startServer();
    EXPECT_BROKEN(echo->_sendDataToAddress(hello, std::nullopt), "(addr != nil) == self.isServer");
    echo->stop();
    startClient();
    EXPECT_BROKEN(echo->_sendDataToAddress(hello, address), "(addr != nil) == self.isServer");
}

TEST_F(UDPEchoContractDeathTest, ASendAddressIsNotLongerThanAnyAddress) {
    startServer();
    EXPECT_BROKEN(echo->_sendDataToAddress(hello, Bytes(129)),
                  "(addr == nil) || ([addr length] <= sizeof(struct sockaddr_storage))");
}

TEST_F(UDPEchoContractDeathTest, ASendNeedsASocket) {
    EXPECT_BROKEN(echo->_sendDataToAddress(hello, address), "sock >= 0");
    startResolving();
    EXPECT_BROKEN(echo->_sendDataToAddress(hello, std::nullopt), "sock >= 0");
}

TEST_F(UDPEchoContractDeathTest, AClientSendsToAPeerThatItKnows) {
    startClient();
    echo->setHostAddress(std::nullopt);
    EXPECT_BROKEN(echo->_sendDataToAddress(hello, std::nullopt), "addr != nil");
}

TEST_F(UDPEchoContractDeathTest, ADatagramIsSentWhole) {
    startServer();
    systemCalls.giveNext(Operation::sendTo, 3);
    EXPECT_BROKEN(echo->_sendDataToAddress(hello, address),
                  "(NSUInteger) bytesWritten == [data length]");
}

TEST_F(UDPEchoContractDeathTest, SendingToThePeerIsForConnectedClients) {
    EXPECT_BROKEN(echo->sendData(hello), "NO");
    startServer();
    EXPECT_BROKEN(echo->sendData(hello), "NO");
    echo->stop();
    startResolving();
    EXPECT_BROKEN(echo->sendData(hello), "NO");
    EXPECT_BROKEN(echo->sendData(std::nullopt), "NO");
}

TEST_F(UDPEchoContractDeathTest, SendingToThePeerHasData) {
    startClient();
    EXPECT_BROKEN(echo->sendData(std::nullopt), "data != nil");
}

// --- Receiving ---

TEST_F(UDPEchoContractDeathTest, AReadNeedsASocket) {
    EXPECT_BROKEN(echo->_readData(), "sock >= 0");
    EXPECT_BROKEN(
        SocketReadCallback(nullptr, SocketCallbackType::read, nullptr, nullptr, echo.get()),
        "sock >= 0");
}

TEST_F(UDPEchoContractDeathTest, AReadYieldsNoMoreThanTheBufferHolds) {
    startServer();
    systemCalls.giveNext(Operation::receiveFrom, 65537);
    EXPECT_BROKEN(turn(), "dataObj != nil");
}

TEST_F(UDPEchoContractDeathTest, AReadYieldsASender) {
    startServer();
    systemCalls.queueDatagram(hello, {});
    EXPECT_BROKEN(turn(), "addrObj != nil");
}

// --- Stopping ---

TEST_F(UDPEchoContractDeathTest, AStopWithErrorHasAnError) {
    EXPECT_BROKEN(echo->_stopWithError(std::nullopt), "error != nil");
}

// --- Callbacks ---

TEST_F(UDPEchoContractDeathTest, TheSocketCallbackIsForAnEndpoint) {
    CallbackInfo other;
    EXPECT_BROKEN(SocketReadCallback(nullptr, SocketCallbackType::read, nullptr, nullptr, nullptr),
                  "[obj isKindOfClass:[UDPEcho class]]");
    EXPECT_BROKEN(SocketReadCallback(nullptr, SocketCallbackType::none, nullptr, nullptr, &other),
                  "[obj isKindOfClass:[UDPEcho class]]");
}

TEST_F(UDPEchoContractDeathTest, TheSocketCallbackIsForTheEndpointsOwnSocket) {
    startServer();
    systemCalls.setSocketFlags(0);
    const EndpointSocket other(systemCalls, echo->nativeSocket());
    EXPECT_BROKEN(
        SocketReadCallback(&other, SocketCallbackType::none, nullptr, nullptr, echo.get()),
        "s == obj->_cfSocket");
    EXPECT_BROKEN(
        SocketReadCallback(nullptr, SocketCallbackType::read, nullptr, nullptr, echo.get()),
        "s == obj->_cfSocket");
}

// A stopped endpoint has no socket, so a null socket counts as its own.

TEST_F(UDPEchoContractDeathTest, TheSocketCallbackIsForReadingOnly) {
    EXPECT_BROKEN(
        SocketReadCallback(nullptr, SocketCallbackType::data, &address, &address, echo.get()),
        "type == kCFSocketReadCallBack");
}

TEST_F(UDPEchoContractDeathTest, TheSocketCallbackCarriesNoAddress) {
    EXPECT_BROKEN(
        SocketReadCallback(nullptr, SocketCallbackType::read, &address, &address, echo.get()),
        "address == nil");
}

TEST_F(UDPEchoContractDeathTest, TheSocketCallbackCarriesNoData) {
    EXPECT_BROKEN(
        SocketReadCallback(nullptr, SocketCallbackType::read, nullptr, &address, echo.get()),
        "data == nil");
}

TEST_F(UDPEchoContractDeathTest, TheResolverCallbackIsForAnEndpoint) {
    CallbackInfo other;
    EXPECT_BROKEN(HostResolveCallback(nullptr, HostInfoType::addresses, {}, nullptr),
                  "[obj isKindOfClass:[UDPEcho class]]");
    EXPECT_BROKEN(HostResolveCallback(nullptr, HostInfoType::names, {}, &other),
                  "[obj isKindOfClass:[UDPEcho class]]");
}

TEST_F(UDPEchoContractDeathTest, TheResolverCallbackIsForTheEndpointsOwnResolution) {
    startResolving();
    const auto other = resolver.requestForHostName(hostName);
    EXPECT_BROKEN(HostResolveCallback(other.get(), HostInfoType::names, {}, echo.get()),
                  "theHost == obj->_cfHost");
}

TEST_F(UDPEchoContractDeathTest, TheResolverCallbackIsForAddressesOnly) {
    EXPECT_BROKEN(HostResolveCallback(nullptr, HostInfoType::names, {}, echo.get()),
                  "typeInfo == kCFHostAddresses");
}

} // namespace kx
