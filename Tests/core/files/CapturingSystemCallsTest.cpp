#include "files/CapturingSystemCalls.h"

#include "addresses/SocketAddressRecord.h"
#include "doubles/ScriptedReceiveBufferControl.h"
#include "doubles/ScriptedSystemCalls.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <vector>

namespace kx {

namespace {

constexpr std::uint32_t host = 0xC0000201U;
constexpr std::uint32_t everyUnitThere = 0xC00002FFU;
constexpr std::uint32_t addressOfUnitThere = 0xC000020BU;

class CapturingSystemCallsTest : public testing::Test {
protected:
    static constexpr std::uint32_t link = 3;

    struct Taken {
        CapturedDatagram datagram;
        Bytes data;
    };

    CapturingSystemCallsTest() {
        inner.addLink("kx0", link);
        calls.bind(descriptor, dataForAddress(0, 3520));
    }

    // The latest datagram as "time source:port > destination:port", with "own" in front of those of
    // this host.
    std::string latest() const {
        if (taken.empty()) {
            return "(nothing)";
        }
        const CapturedDatagram& datagram = taken.back().datagram;
        const auto endpoint = [](std::uint32_t address, std::uint16_t port) {
            std::string text;
            for (unsigned shift = 32; shift > 0; shift -= 8) {
                text += std::to_string(address >> (shift - 8) & 0xFFU) + (shift > 8 ? "." : ":");
            }
            return text + std::to_string(port);
        };
        return (datagram.isOwn ? "own " : "") + std::to_string(datagram.time.count()) + ' ' +
               endpoint(datagram.source, datagram.sourcePort) + " > " +
               endpoint(datagram.destination, datagram.destinationPort);
    }

    ssize_t receive() {
        DatagramOrigin origin;
        return calls.receiveFrom(descriptor, buffer, origin);
    }

    ScriptedSystemCalls inner;
    ScriptedReceiveBufferControl receiveBuffers;
    std::vector<Taken> taken;
    CapturingSystemCalls calls{
        inner,
        {.take =
             [this](const CapturedDatagram& datagram, ByteView data) {
                 taken.push_back({datagram, Bytes(data.begin(), data.end())});
             },
         .now = [] { return CaptureTime(5); },
         .ownAddress = [](std::uint32_t by) { return by == link ? host : 0U; },
         .receiveBuffers = &receiveBuffers}};
    int descriptor = calls.socket();
    const Bytes threeBytes{1, 2, 3};
    std::array<std::uint8_t, 16> buffer{};
};

} // namespace

TEST_F(CapturingSystemCallsTest, ADatagramThatIsSentHasTheAddressOfItsLink) {
    EXPECT_EQ(
        calls.sendToByLink(descriptor, threeBytes, dataForAddress(everyUnitThere, 3521), link), 3);
    EXPECT_EQ(latest(), "own 5 192.0.2.1:3520 > 192.0.2.255:3521");
    EXPECT_EQ(taken.back().data, threeBytes);
}

TEST_F(CapturingSystemCallsTest, WhereTheRoutesChoseTheLinkTheOwnAddressIsNotKnown) {
    const Bytes address = dataForAddress(everyUnitThere, 3521);
    EXPECT_EQ(calls.sendTo(descriptor, threeBytes, ByteView(address)), 3);
    EXPECT_EQ(latest(), "own 5 0.0.0.0:3520 > 192.0.2.255:3521");
}

TEST_F(CapturingSystemCallsTest, ASocketThatIsNotBoundIsAskedForItsAddress) {
    const int other = calls.socket();
    inner.bind(other, dataForAddress(0xC0000202U, 4000)); // the system chose it
    EXPECT_EQ(calls.sendToByLink(other, {}, dataForAddress(addressOfUnitThere, 9), link), 0);
    EXPECT_EQ(latest(), "own 5 192.0.2.2:4000 > 192.0.2.11:9");
    EXPECT_TRUE(taken.back().data.empty());
}

TEST_F(CapturingSystemCallsTest, AConnectedSocketSendsToItsPeer) {
    const int other = calls.socket();
    calls.connect(other, dataForAddress(addressOfUnitThere, 10000));
    EXPECT_EQ(calls.sendTo(other, threeBytes, std::nullopt), 3);
    EXPECT_EQ(latest(), "own 5 0.0.0.0:0 > 192.0.2.11:10000");
}

TEST_F(CapturingSystemCallsTest, ADatagramThatComesHasTheAddressToWhichItWasSent) {
    calls.enablePacketInfo(descriptor);
    inner.queueDatagram(threeBytes, dataForAddress(addressOfUnitThere, 10000), link,
                        everyUnitThere);
    EXPECT_EQ(receive(), 3);
    EXPECT_EQ(latest(), "5 192.0.2.11:10000 > 192.0.2.255:3520");
    EXPECT_EQ(taken.back().data, threeBytes);
}

TEST_F(CapturingSystemCallsTest, WithoutItsDestinationItCameToTheAddressOfTheSocket) {
    inner.queueDatagram(threeBytes, dataForAddress(addressOfUnitThere, 10000), link,
                        everyUnitThere);
    EXPECT_EQ(receive(), 3);
    EXPECT_EQ(latest(), "5 192.0.2.11:10000 > 0.0.0.0:3520");
}

TEST_F(CapturingSystemCallsTest, ReadingADatagramAsksTheSystemForNothingElse) {
    inner.queueDatagram(threeBytes, dataForAddress(addressOfUnitThere, 10000));
    const std::size_t before = inner.calls().size();
    receive();
    EXPECT_EQ(inner.calls().size(), before + 1);
}

TEST_F(CapturingSystemCallsTest, NothingIsTakenOfACallThatFailsAndItsErrorStays) {
    inner.failNext(ScriptedSystemCalls::Operation::sendTo, ENETUNREACH);
    EXPECT_EQ(calls.sendToByLink(descriptor, threeBytes, dataForAddress(1, 2), link), -1);
    EXPECT_EQ(errno, ENETUNREACH);
    inner.failNext(ScriptedSystemCalls::Operation::sendTo, EPERM);
    const Bytes address = dataForAddress(1, 2);
    EXPECT_EQ(calls.sendTo(descriptor, threeBytes, ByteView(address)), -1);
    EXPECT_EQ(errno, EPERM);
    EXPECT_EQ(receive(), -1);
    EXPECT_EQ(errno, EAGAIN);
    EXPECT_TRUE(taken.empty());
    EXPECT_EQ(calls.counts().received, 0U);
}

TEST_F(CapturingSystemCallsTest, ABindThatFailsChangesNothing) {
    const int other = calls.socket();
    EXPECT_EQ(calls.bind(other, dataForAddress(0, 3520)), -1);
    EXPECT_EQ(errno, EADDRINUSE);
    inner.queueDatagram(threeBytes, dataForAddress(addressOfUnitThere, 10000));
    receive();
    EXPECT_EQ(latest(), "5 192.0.2.11:10000 > 0.0.0.0:3520");
}

TEST_F(CapturingSystemCallsTest, CountsWhatCameAndWhatTheSystemDroppedFromEverySocket) {
    inner.queueDatagram(threeBytes, dataForAddress(addressOfUnitThere, 10000));
    receive();
    receiveBuffers.drop(descriptor, 4);
    EXPECT_EQ(calls.counts().received, 1U);
    EXPECT_EQ(calls.counts().dropped, 4U);
    calls.close(descriptor);
    EXPECT_EQ(calls.counts().dropped, 4U) << "the count of the socket is gone with it";
    const int next = calls.socket();
    calls.bind(next, dataForAddress(0, 3521));
    receiveBuffers.drop(next, 2);
    EXPECT_EQ(calls.counts().dropped, 6U);
}

TEST_F(CapturingSystemCallsTest, CountsWhatTheSystemDropsFromSeveralSocketsAtTheSameTime) {
    const int second = calls.socket();
    calls.bind(second, dataForAddress(0, 3521));
    receiveBuffers.drop(descriptor, 4);
    receiveBuffers.drop(second, 2);
    EXPECT_EQ(calls.counts().dropped, 6U);
    calls.close(descriptor);
    EXPECT_EQ(calls.counts().dropped, 6U);
    calls.close(second);
    EXPECT_EQ(calls.counts().dropped, 6U);
}

TEST_F(CapturingSystemCallsTest, EachOfSeveralSocketsIsReadWithoutAskingTheSystemForAnythingElse) {
    const int second = calls.socket();
    calls.bind(second, dataForAddress(0, 3521));
    inner.queueDatagram(threeBytes, dataForAddress(addressOfUnitThere, 10000));
    const std::size_t before = inner.calls().size();
    EXPECT_EQ(receive(), 3);
    EXPECT_EQ(inner.calls().size(), before + 1);
    EXPECT_EQ(latest(), "5 192.0.2.11:10000 > 0.0.0.0:3520");
}

} // namespace kx
