// The endpoint on real sockets. All traffic stays on the loopback interface.

#include "PollLoopDriver.h"
#include "UDPEcho.h"
#include "addresses/SocketAddressRecord.h"
#include "platform/posix/ThreadHostResolver.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <net/if.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <cerrno>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kx {

namespace {

constexpr std::uint32_t loopback = 0x7F000001U;

std::uint16_t portOf(const Bytes& record) {
    std::uint32_t address = 0;
    IPv6Octets address6{};
    std::uint16_t port = 0;
    addressForData(record, address, address6, &port);
    return port;
}

// A plain socket of the test on 127.0.0.1.
class LoopbackSocket {
public:
    LoopbackSocket() {
        const timeval fiveSeconds{5, 0}; // a lost datagram must not stop the tests
        EXPECT_EQ(_systemCalls.bind(_descriptor, dataForAddress(loopback, 0)), 0);
        EXPECT_EQ(
            ::setsockopt(_descriptor, SOL_SOCKET, SO_RCVTIMEO, &fiveSeconds, sizeof fiveSeconds),
            0);
    }
    ~LoopbackSocket() { _systemCalls.close(_descriptor); }
    LoopbackSocket(const LoopbackSocket&) = delete;
    LoopbackSocket& operator=(const LoopbackSocket&) = delete;

    int descriptor() const { return _descriptor; }
    Bytes address() { return _systemCalls.localAddress(_descriptor).value_or(Bytes{}); }
    std::uint16_t port() { return portOf(address()); }
    void sendTo(const Bytes& data, std::uint16_t port) {
        EXPECT_EQ(_systemCalls.sendTo(_descriptor, data, dataForAddress(loopback, port)),
                  static_cast<ssize_t>(data.size()));
    }
    Bytes receive(Bytes& sender) {
        Bytes buffer(65536);
        DatagramOrigin origin;
        const auto length = _systemCalls.receiveFrom(_descriptor, buffer, origin);
        sender = std::move(origin.sender);
        buffer.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
        return buffer;
    }

private:
    DatagramSystemCalls _systemCalls;
    int _descriptor = _systemCalls.socket();
};

// A port that is free at this moment.
std::uint16_t freePort() {
    return LoopbackSocket().port();
}

class CollectingDelegate final : public UDPEchoDelegate {
public:
    std::vector<Bytes> received;
    std::vector<Bytes> senders;
    std::vector<std::uint32_t> links;
    std::vector<Bytes> sent;
    std::vector<Bytes> startAddresses;
    std::vector<Error> receiveErrors;
    std::vector<Error> sendErrors;
    std::vector<Error> stopErrors;
    std::function<void()> onEvent = [] {};

    void echoDidReceiveDataFromAddress(UDPEcho& echo, const Bytes& data,
                                       const Bytes& from) override {
        received.push_back(data);
        senders.push_back(from);
        links.push_back(echo.link());
        actOnEvent();
    }
    void echoDidReceiveError(UDPEcho&, const Error& error) override {
        receiveErrors.push_back(error);
        actOnEvent();
    }
    void echoDidSendDataToAddress(UDPEcho&, const Bytes& data, const Bytes&) override {
        sent.push_back(data);
    }
    void echoDidFailToSendDataToAddressError(UDPEcho&, const Bytes&, const Bytes&,
                                             const Error& error) override {
        sendErrors.push_back(error);
    }
    void echoDidStartWithAddress(UDPEcho&, const Bytes& address) override {
        startAddresses.push_back(address);
        actOnEvent();
    }
    void echoDidStopWithError(UDPEcho&, const Error& error) override {
        stopErrors.push_back(error);
        actOnEvent();
    }

private:
    // A copy, because the action may replace itself.
    void actOnEvent() {
        const auto action = onEvent;
        action();
    }
};

class UDPEchoLoopback : public testing::Test {
protected:
    void SetUp() override { echo->setDelegate(&delegate); }

    std::uint16_t startServer() {
        const auto port = freePort();
        echo->startServerOnPort(port);
        EXPECT_EQ(echo->port(), port);
        return port;
    }
    bool runUntil(const std::function<bool()>& condition) { return runLoopUntil(loop, condition); }

    PollRunLoop loop;
    ThreadHostResolver resolver{loop};
    DatagramSystemCalls systemCalls;
    CollectingDelegate delegate;
    std::shared_ptr<UDPEcho> echo = UDPEcho::make(loop, resolver, systemCalls);
    LoopbackSocket peer;
};

} // namespace

TEST_F(UDPEchoLoopback, AServerReportsItsWildcardAddress) {
    const auto port = startServer();
    EXPECT_EQ(delegate.startAddresses, std::vector<Bytes>{dataForAddress(0, port)});
}

TEST_F(UDPEchoLoopback, TheSocketDoesNotBlockAndIsNotInherited) {
    startServer();
    EXPECT_NE(::fcntl(echo->nativeSocket(), F_GETFL) & O_NONBLOCK, 0);
    EXPECT_NE(::fcntl(echo->nativeSocket(), F_GETFD) & FD_CLOEXEC, 0);
}

TEST_F(UDPEchoLoopback, TheOwnerMayAllowBroadcasts) {
    startServer();
    int on = -1;
    socklen_t length = sizeof on;
    ::getsockopt(echo->nativeSocket(), SOL_SOCKET, SO_BROADCAST, &on, &length);
    EXPECT_EQ(on, 0) << "the endpoint itself sets no option";
    EXPECT_EQ(systemCalls.enableBroadcast(echo->nativeSocket()), 0);
    ::getsockopt(echo->nativeSocket(), SOL_SOCKET, SO_BROADCAST, &on, &length);
    EXPECT_NE(on, 0);
}

TEST_F(UDPEchoLoopback, TheOwnerMayAskForTheLinkOfEachDatagram) {
    const auto port = startServer();
    peer.sendTo({1}, port);
    ASSERT_TRUE(runUntil([&] { return delegate.links.size() == 1; }));
    EXPECT_EQ(systemCalls.enablePacketInfo(echo->nativeSocket()), 0);
    peer.sendTo({2}, port);
    ASSERT_TRUE(runUntil([&] { return delegate.links.size() == 2; }));
    EXPECT_EQ(delegate.links, (std::vector<std::uint32_t>{0, ::if_nametoindex("lo")}));
}

TEST_F(UDPEchoLoopback, APortInUseStopsWithAddressInUseAndLeavesPort0) {
    const auto port = startServer();
    CollectingDelegate otherDelegate;
    const auto other = UDPEcho::make(loop, resolver, systemCalls);
    other->setDelegate(&otherDelegate);
    other->startServerOnPort(port);
    EXPECT_EQ(otherDelegate.stopErrors, std::vector<Error>{posixError(EADDRINUSE)});
    EXPECT_TRUE(otherDelegate.startAddresses.empty());
    EXPECT_EQ(other->port(), 0U);
    EXPECT_EQ(other->nativeSocket(), -1);
}

TEST_F(UDPEchoLoopback, AStoppedServersPortIsFreeAtOnce) {
    const auto port = startServer();
    echo->stop();
    echo->startServerOnPort(port);
    EXPECT_EQ(echo->port(), port);
    EXPECT_TRUE(delegate.stopErrors.empty());
}

TEST_F(UDPEchoLoopback, DatagramsGoBothWaysWithTheirAddresses) {
    const auto port = startServer();
    peer.sendTo({1, 2, 3}, port);
    ASSERT_TRUE(runUntil([&] { return !delegate.received.empty(); }));
    EXPECT_EQ(delegate.received, (std::vector<Bytes>{{1, 2, 3}}));
    EXPECT_EQ(delegate.senders, std::vector<Bytes>{peer.address()});

    echo->_sendDataToAddress(Bytes{4, 5}, delegate.senders[0]);
    EXPECT_EQ(delegate.sent, (std::vector<Bytes>{{4, 5}}));
    Bytes sender;
    EXPECT_EQ(peer.receive(sender), (Bytes{4, 5}));
    EXPECT_EQ(sender, dataForAddress(loopback, port));
}

TEST_F(UDPEchoLoopback, ADatagramWithoutBytesIsABrokenPipeInBothDirections) {
    const auto port = startServer();
    peer.sendTo({}, port);
    ASSERT_TRUE(runUntil([&] { return !delegate.receiveErrors.empty(); }));
    EXPECT_EQ(delegate.receiveErrors, std::vector<Error>{posixError(EPIPE)});
    EXPECT_TRUE(delegate.received.empty());

    echo->_sendDataToAddress(Bytes{}, peer.address());
    EXPECT_EQ(delegate.sendErrors, std::vector<Error>{posixError(EPIPE)});
    EXPECT_TRUE(delegate.sent.empty());

    peer.sendTo({1}, port);
    EXPECT_TRUE(runUntil([&] { return !delegate.received.empty(); }));
}

TEST_F(UDPEchoLoopback, TheLongestDatagramIsReceivedWhole) {
    const auto port = startServer();
    const Bytes longest(65507, 0x5A); // the most that an IPv4 packet can carry
    peer.sendTo(longest, port);
    ASSERT_TRUE(runUntil([&] { return !delegate.received.empty(); }));
    EXPECT_EQ(delegate.received[0], longest);
}

TEST_F(UDPEchoLoopback, ADatagramTooLongToSendFailsAndTheServerGoesOn) {
    const auto port = startServer();
    echo->_sendDataToAddress(Bytes(65508), peer.address());
    EXPECT_EQ(delegate.sendErrors, std::vector<Error>{posixError(EMSGSIZE)});
    EXPECT_EQ(echo->port(), port);
}

TEST_F(UDPEchoLoopback, AnAddressOfAnotherFamilyFailsToSend) {
    startServer();
    echo->_sendDataToAddress(Bytes{1}, dataForAddress6({}, 3520));
    echo->_sendDataToAddress(Bytes{1}, Bytes{8, 2, 0, 0, 127, 0, 0, 1});
    echo->_sendDataToAddress(Bytes{1}, Bytes{});
    EXPECT_EQ(delegate.sendErrors, (std::vector<Error>{posixError(EAFNOSUPPORT), posixError(EINVAL),
                                                       posixError(EAFNOSUPPORT)}));
}

TEST_F(UDPEchoLoopback, ABurstIsReadToItsEndAndDelaysNoTimer) {
    const auto port = startServer();
    constexpr std::size_t burst = 200; // fits into the default receive buffer
    for (std::size_t i = 0; i < burst; ++i) {
        peer.sendTo(Bytes(81, static_cast<std::uint8_t>(i)), port);
    }
    std::size_t receivedAtTimer = burst;
    const auto timer = loop.callOnceAfter(std::chrono::milliseconds(0),
                                          [&] { receivedAtTimer = delegate.received.size(); });
    ASSERT_TRUE(runUntil([&] { return delegate.received.size() == burst; }));
    EXPECT_LE(receivedAtTimer, 1U);
    for (std::size_t i = 0; i < burst; ++i) {
        ASSERT_EQ(delegate.received[i], Bytes(81, static_cast<std::uint8_t>(i)));
    }
    EXPECT_TRUE(delegate.receiveErrors.empty());
}

TEST_F(UDPEchoLoopback, AClientTalksToANumericAddress) {
    echo->startConnectedToHostNamePort("127.0.0.1", peer.port());
    ASSERT_TRUE(runUntil([&] { return !delegate.startAddresses.empty(); }));
    EXPECT_EQ(delegate.startAddresses, std::vector<Bytes>{peer.address()});
    EXPECT_EQ(echo->hostAddress(), peer.address());

    echo->sendData(Bytes{7});
    EXPECT_EQ(delegate.sent, std::vector<Bytes>{{7}});
    Bytes sender;
    EXPECT_EQ(peer.receive(sender), Bytes{7});
    peer.sendTo({8}, portOf(sender));
    ASSERT_TRUE(runUntil([&] { return !delegate.received.empty(); }));
    EXPECT_EQ(delegate.received, std::vector<Bytes>{{8}});
    EXPECT_EQ(delegate.senders, std::vector<Bytes>{peer.address()});
}

TEST_F(UDPEchoLoopback, AClientTalksToAHostByName) {
    echo->startConnectedToHostNamePort("localhost", peer.port());
    ASSERT_TRUE(runUntil([&] { return !delegate.startAddresses.empty(); }));
    echo->sendData(Bytes{9});
    Bytes sender;
    EXPECT_EQ(peer.receive(sender), Bytes{9});
}

TEST_F(UDPEchoLoopback, AClientOfAnIPv6AddressFindsNoHost) {
    echo->startConnectedToHostNamePort("::1", 3522);
    ASSERT_TRUE(runUntil([&] { return !delegate.stopErrors.empty(); }));
    EXPECT_EQ(delegate.stopErrors[0], (Error{"kCFErrorDomainCFNetwork", 1, std::nullopt}));
    EXPECT_EQ(echo->port(), 0U);
}

TEST_F(UDPEchoLoopback, AClientOfAnImpossibleNameReportsTheResolversCode) {
    echo->startConnectedToHostNamePort(std::string(300, 'x'), 3522);
    ASSERT_TRUE(runUntil([&] { return !delegate.stopErrors.empty(); }));
    EXPECT_EQ(delegate.stopErrors[0].domain, "kCFErrorDomainCFNetwork");
    EXPECT_EQ(delegate.stopErrors[0].code, 2);
    const auto userInfo = delegate.stopErrors[0].userInfo.value_or(PropertyDictionary{});
    EXPECT_EQ(userInfo.size(), 1U);
    EXPECT_EQ(userInfo.count("kCFGetAddrInfoFailureKey"), 1U);
}

TEST_F(UDPEchoLoopback, AClientHearsThatNobodyListens) {
    echo->startConnectedToHostNamePort("127.0.0.1", freePort());
    ASSERT_TRUE(runUntil([&] { return !delegate.startAddresses.empty(); }));
    echo->sendData(Bytes{1});
    ASSERT_TRUE(runUntil([&] { return !delegate.receiveErrors.empty(); }));
    EXPECT_EQ(delegate.receiveErrors[0], posixError(ECONNREFUSED));
    EXPECT_NE(echo->port(), 0U);
}

TEST_F(UDPEchoLoopback, TheEndpointMayBeReleasedWhileADatagramIsReported) {
    const auto port = startServer();
    const std::weak_ptr<UDPEcho> observed = echo;
    const int descriptor = echo->nativeSocket();
    delegate.onEvent = [&] { echo.reset(); };
    peer.sendTo({1}, port);
    peer.sendTo({2}, port);
    ASSERT_TRUE(runUntil([&] { return !delegate.received.empty(); }));
    runLoopFor(loop, std::chrono::milliseconds(5));
    EXPECT_TRUE(observed.expired());
    EXPECT_EQ(delegate.received.size(), 1U);
    EXPECT_EQ(::fcntl(descriptor, F_GETFD), -1);
}

TEST_F(UDPEchoLoopback, TheEndpointMayBeReleasedWhenAClientStartsOrStops) {
    const std::weak_ptr<UDPEcho> observed = echo;
    delegate.onEvent = [&] { echo.reset(); };
    echo->startConnectedToHostNamePort("127.0.0.1", peer.port());
    ASSERT_TRUE(runUntil([&] { return !delegate.startAddresses.empty(); }));
    EXPECT_TRUE(observed.expired());

    echo = UDPEcho::make(loop, resolver, systemCalls);
    echo->setDelegate(&delegate);
    echo->startConnectedToHostNamePort("::1", 3522);
    ASSERT_TRUE(runUntil([&] { return !delegate.stopErrors.empty(); }));
    EXPECT_EQ(echo, nullptr);
}

TEST_F(UDPEchoLoopback, TheEndpointMayRestartOnTheSamePortWhileADatagramIsReported) {
    const auto port = startServer();
    delegate.onEvent = [&] {
        delegate.onEvent = [] {};
        echo->stop();
        echo->startServerOnPort(port);
    };
    peer.sendTo({1}, port);
    ASSERT_TRUE(runUntil([&] { return delegate.startAddresses.size() == 2; }));
    peer.sendTo({2}, port);
    ASSERT_TRUE(runUntil([&] { return delegate.received.size() == 2; }));
    EXPECT_EQ(delegate.received[1], Bytes{2});
}

} // namespace kx
