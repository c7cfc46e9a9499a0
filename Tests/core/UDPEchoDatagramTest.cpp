#include "UDPEchoFixture.h"

#include <cerrno>

namespace kx {

namespace {

class UDPEchoDatagram : public UDPEchoTest {
protected:
    inline static const Bytes broadcastAddress = dataForAddress(0x0A0000FFU, 3520);

    void startServerQuietly() {
        startServer();
        delegate.events.clear();
    }
    void startClientQuietly() {
        startClient();
        delegate.events.clear();
    }
    void expectFailedSend(int code, const Bytes& data, const Bytes& address) {
        const auto event = onlyEvent();
        EXPECT_EQ(event.kind, EchoEvent::failedToSend);
        EXPECT_EQ(event.data, data);
        EXPECT_EQ(event.address, address);
        EXPECT_EQ(event.error, (Error{"NSPOSIXErrorDomain", code, std::nullopt}));
    }
    void expectReceivedError(int code) {
        const auto event = onlyEvent();
        EXPECT_EQ(event.kind, EchoEvent::receivedError);
        EXPECT_EQ(event.echo, echo.get());
        EXPECT_EQ(event.error, (Error{"NSPOSIXErrorDomain", code, std::nullopt}));
    }
};

} // namespace

// --- Sending ---

TEST_F(UDPEchoDatagram, AServerSendsToTheGivenAddress) {
    startServerQuietly();
    echo->_sendDataToAddress(hello, broadcastAddress);
    const auto sent = systemCalls.sentDatagrams();
    ASSERT_EQ(sent.size(), 1U);
    EXPECT_EQ(sent[0].data, hello);
    EXPECT_EQ(sent[0].address, broadcastAddress);
    EXPECT_EQ(systemCalls.calls().back().descriptor, echo->nativeSocket());

    const auto event = onlyEvent();
    EXPECT_EQ(event.kind, EchoEvent::sentData);
    EXPECT_EQ(event.echo, echo.get());
    EXPECT_EQ(event.data, hello);
    EXPECT_EQ(event.address, broadcastAddress);
}

TEST_F(UDPEchoDatagram, AServerSendsByTheGivenLinkAndReportsAsUsual) {
    startServerQuietly();
    systemCalls.addLink("kx0", 4);
    echo->sendDataToAddressByLink(hello, broadcastAddress, 4);
    EXPECT_EQ(systemCalls.sentDatagrams().back().link, 4U);
    EXPECT_EQ(systemCalls.sentDatagrams().back().data, hello);
    const auto event = onlyEvent();
    EXPECT_EQ(event.kind, EchoEvent::sentData);
    EXPECT_EQ(event.address, broadcastAddress);

    echo->sendDataToAddressByLink(hello, broadcastAddress, noSuchLink);
    expectFailedSend(ENODEV, hello, broadcastAddress);
    EXPECT_EQ(systemCalls.sentDatagrams().size(), 2U) << "it takes no other way";
}

TEST_F(UDPEchoDatagram, AClientIsConnectedSoTheRoutesDecide) {
    startClientQuietly();
    echo->sendDataToAddressByLink(hello, std::nullopt, noSuchLink);
    EXPECT_EQ(systemCalls.sentDatagrams().back().link, 0U);
    EXPECT_EQ(onlyEvent().kind, EchoEvent::sentData);
}

TEST_F(UDPEchoDatagram, AClientSendsWithoutAnAddressAndReportsThePeer) {
    startClientQuietly();
    echo->sendData(hello);
    const auto sent = systemCalls.sentDatagrams();
    ASSERT_EQ(sent.size(), 1U);
    EXPECT_EQ(sent[0].data, hello);
    EXPECT_TRUE(sent[0].address.empty());
    const auto event = onlyEvent();
    EXPECT_EQ(event.kind, EchoEvent::sentData);
    EXPECT_EQ(event.address, peerAddress);
}

TEST_F(UDPEchoDatagram, AClientMaySendThroughTheInnerOperationToo) {
    startClientQuietly();
    echo->_sendDataToAddress(hello, std::nullopt);
    EXPECT_EQ(onlyEvent().address, peerAddress);
}

TEST_F(UDPEchoDatagram, AnAddressOf128BytesIsHandedOnWhole) {
    startServerQuietly();
    Bytes longAddress = broadcastAddress;
    longAddress.resize(128);
    echo->_sendDataToAddress(hello, longAddress);
    EXPECT_EQ(systemCalls.sentDatagrams().at(0).address, longAddress);
    EXPECT_EQ(onlyEvent().address, longAddress);
}

TEST_F(UDPEchoDatagram, AServersSendToAnAddressThatIsNoneFailsLikeAnyOther) {
    startServerQuietly();
    echo->_sendDataToAddress(hello, Bytes{});
    expectFailedSend(EAFNOSUPPORT, hello, {});
    echo->_sendDataToAddress(hello, Bytes{16, 2, 0x0D, 0xC0});
    expectFailedSend(EINVAL, hello, {16, 2, 0x0D, 0xC0});
}

TEST_F(UDPEchoDatagram, AFailedSendIsReportedAndTheServerGoesOn) {
    startServerQuietly();
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    echo->_sendDataToAddress(hello, broadcastAddress);
    expectFailedSend(ENETUNREACH, hello, broadcastAddress);
    EXPECT_EQ(echo->port(), 3521U);
    echo->_sendDataToAddress(hello, broadcastAddress);
    EXPECT_EQ(onlyEvent().kind, EchoEvent::sentData);
}

TEST_F(UDPEchoDatagram, AFailedSendIsReportedAndTheClientGoesOn) {
    startClientQuietly();
    systemCalls.failNext(Operation::sendTo, ECONNREFUSED);
    echo->sendData(hello);
    expectFailedSend(ECONNREFUSED, hello, peerAddress);
    EXPECT_EQ(echo->hostAddress(), peerAddress);
}

TEST_F(UDPEchoDatagram, ASendOfNothingIsABrokenPipe) {
    startServerQuietly();
    echo->_sendDataToAddress(Bytes{}, broadcastAddress);
    EXPECT_EQ(systemCalls.sentDatagrams().size(), 1U);
    expectFailedSend(32, {}, broadcastAddress);
    EXPECT_EQ(EPIPE, 32);
}

TEST_F(UDPEchoDatagram, ASystemThatSendsNothingOfSomethingIsABrokenPipeToo) {
    startServerQuietly();
    systemCalls.giveNext(Operation::sendTo, 0);
    echo->_sendDataToAddress(hello, broadcastAddress);
    expectFailedSend(EPIPE, hello, broadcastAddress);
}

// --- Receiving ---

TEST_F(UDPEchoDatagram, AReceivedDatagramIsReportedWithItsSender) {
    startServerQuietly();
    receive(hello);
    const auto event = onlyEvent();
    EXPECT_EQ(event.kind, EchoEvent::receivedData);
    EXPECT_EQ(event.echo, echo.get());
    EXPECT_EQ(event.data, hello);
    EXPECT_EQ(event.address, senderAddress);
}

TEST_F(UDPEchoDatagram, AClientReceivesToo) {
    startClientQuietly();
    receive(hello);
    EXPECT_EQ(onlyEvent().data, hello);
}

TEST_F(UDPEchoDatagram, OneByteIsADatagram) {
    startServerQuietly();
    receive({0});
    EXPECT_EQ(onlyEvent().data, Bytes{0});
}

TEST_F(UDPEchoDatagram, OneDatagramIsReadForEachReadableEvent) {
    startServerQuietly();
    systemCalls.queueDatagram({1}, senderAddress);
    systemCalls.queueDatagram({2}, senderAddress);
    loop.makeReadable(echo->nativeSocket());
    EXPECT_EQ(systemCalls.count(Operation::receiveFrom), 1U);
    EXPECT_EQ(onlyEvent().data, Bytes{1});
    loop.makeReadable(echo->nativeSocket());
    EXPECT_EQ(onlyEvent().data, Bytes{2});
}

TEST_F(UDPEchoDatagram, ADatagramOf65536BytesFitsAndALongerOneIsCut) {
    startServerQuietly();
    Bytes longest(65536, 0xAB);
    receive(longest);
    EXPECT_EQ(onlyEvent().data, longest);
    Bytes longer = longest;
    longer.push_back(0xCD);
    receive(longer);
    EXPECT_EQ(onlyEvent().data, longest);
}

TEST_F(UDPEchoDatagram, ADatagramWithoutBytesIsABrokenPipeAndNoData) {
    startServerQuietly();
    receive({});
    expectReceivedError(32);
    EXPECT_EQ(echo->port(), 3521U);
}

TEST_F(UDPEchoDatagram, AFailedReadIsReportedAndTheEndpointGoesOn) {
    startServerQuietly();
    systemCalls.failNext(Operation::receiveFrom, ECONNREFUSED);
    loop.makeReadable(echo->nativeSocket());
    expectReceivedError(ECONNREFUSED);
    receive(hello);
    EXPECT_EQ(onlyEvent().data, hello);
}

TEST_F(UDPEchoDatagram, AReadThatWouldBlockIsReportedLikeAnyOtherFailure) {
    startServerQuietly();
    loop.makeReadable(echo->nativeSocket());
    expectReceivedError(EAGAIN);
}

TEST_F(UDPEchoDatagram, AFailedReadWithoutAnErrorNumberIsIgnored) {
    startServerQuietly();
    systemCalls.failNext(Operation::receiveFrom, 0);
    loop.makeReadable(echo->nativeSocket());
    EXPECT_TRUE(delegate.events.empty());
    EXPECT_TRUE(loop.isWatching(echo->nativeSocket()));
}

// --- Delegates that do not listen ---

TEST_F(UDPEchoDatagram, WithoutADelegateEverythingGoesOnInSilence) {
    startServerQuietly();
    echo->setDelegate(nullptr);
    receive(hello);
    receive({});
    echo->_sendDataToAddress(hello, broadcastAddress);
    echo->_sendDataToAddress(Bytes{}, broadcastAddress);
    EXPECT_EQ(systemCalls.sentDatagrams().size(), 2U);
    EXPECT_EQ(systemCalls.count(Operation::receiveFrom), 2U);
    EXPECT_TRUE(delegate.events.empty());
}

TEST_F(UDPEchoDatagram, EveryDelegateMethodIsOptional) {
    class SilentDelegate final : public UDPEchoDelegate {};
    SilentDelegate silent;
    echo->setDelegate(&silent);
    startServer();
    receive(hello);
    receive({});
    echo->_sendDataToAddress(hello, broadcastAddress);
    echo->_sendDataToAddress(Bytes{}, broadcastAddress);
    echo->stop();
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    startServer();
    expectStopped();
}

} // namespace kx
