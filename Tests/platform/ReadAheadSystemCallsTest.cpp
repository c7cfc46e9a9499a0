// Reading ahead from the host's own sockets. All traffic stays on the loopback interface.

#include "ReadAheadSystemCalls.h"

#include "addresses/SocketAddressRecord.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <net/if.h>
#include <poll.h>

#include <cerrno>
#include <vector>

namespace kx {

namespace {

class ReadAhead : public testing::Test {
protected:
    static constexpr std::uint32_t ipv4Loopback = 0x7F000001U;

    ~ReadAhead() override {
        for (const int descriptor : {first, second, sender}) {
            calls.close(descriptor);
        }
    }

    int newSocket() {
        const int descriptor = calls.socket();
        EXPECT_EQ(calls.bind(descriptor, dataForAddress(ipv4Loopback, 0)), 0);
        EXPECT_EQ(calls.setStatusFlags(descriptor, O_NONBLOCK), 0);
        EXPECT_EQ(calls.enablePacketInfo(descriptor), 0);
        calls.allowReadingAhead(descriptor);
        return descriptor;
    }

    // A datagram over loopback waits in the buffer as soon as its send has returned.
    void send(int descriptor, const Bytes& data) {
        const Bytes destination = calls.localAddress(descriptor).value_or(Bytes());
        ASSERT_EQ(calls.sendTo(sender, data, ByteView(destination)),
                  static_cast<ssize_t>(data.size()));
    }
    Bytes receive(int descriptor) {
        Bytes buffer(65536);
        const ssize_t length = calls.receiveFrom(descriptor, buffer, origin);
        buffer.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
        return buffer;
    }
    static bool waitsInTheSystem(int descriptor) {
        pollfd readable{descriptor, POLLIN, 0};
        return ::poll(&readable, 1, 0) == 1;
    }
    void expectNothingWaits(int descriptor) {
        Bytes buffer(1);
        EXPECT_FALSE(calls.hasReadAhead(descriptor));
        EXPECT_EQ(calls.receiveFrom(descriptor, buffer, origin), -1);
        EXPECT_EQ(errno, EAGAIN);
    }

    ReadAheadSystemCalls calls;
    DatagramOrigin origin;
    int sender = newSocket();
    int first = newSocket();
    int second = newSocket();
};

} // namespace

TEST_F(ReadAhead, TheFirstReadTakesWhatWaitsAndTheOthersNeedNoSystem) {
    send(first, {1});
    send(first, {2});
    EXPECT_FALSE(calls.hasReadAhead(first));
    EXPECT_EQ(receive(first), Bytes{1});
    EXPECT_FALSE(waitsInTheSystem(first));
    EXPECT_TRUE(calls.hasReadAhead(first));
    EXPECT_EQ(receive(first), Bytes{2});
    expectNothingWaits(first);
}

TEST_F(ReadAhead, MoreThanOneReadTakesComeInOrder) {
    for (std::uint8_t number = 0; number < 70; ++number) {
        send(first, Bytes(1 + number, number));
    }
    for (std::uint8_t number = 0; number < 70; ++number) {
        EXPECT_EQ(receive(first), Bytes(1 + number, number));
        EXPECT_EQ(calls.hasReadAhead(first), number % 32 != 31 && number != 69) << int{number};
    }
    expectNothingWaits(first);
}

TEST_F(ReadAhead, EachDatagramKeepsItsSenderAndItsLink) {
    const Bytes senderRecord = calls.localAddress(sender).value_or(Bytes());
    const Bytes secondRecord = calls.localAddress(second).value_or(Bytes());
    const Bytes destination = calls.localAddress(first).value_or(Bytes());
    send(first, {1});
    ASSERT_EQ(calls.sendTo(second, Bytes{2}, ByteView(destination)), 1);
    for (const Bytes& expected : {senderRecord, secondRecord}) {
        origin = {};
        EXPECT_EQ(receive(first).size(), 1U);
        EXPECT_EQ(origin.sender, expected);
        EXPECT_EQ(origin.link, ::if_nametoindex("lo"));
        EXPECT_EQ(origin.destination, ipv4Loopback);
    }
}

TEST_F(ReadAhead, ALongestAndAnEmptyDatagramKeepTheirPlaces) {
    const Bytes longest(65507, 7);
    send(first, longest);
    send(first, {});
    send(first, {3});
    EXPECT_EQ(receive(first), longest);
    EXPECT_EQ(receive(first), Bytes());
    EXPECT_EQ(receive(first), Bytes{3});
    expectNothingWaits(first);
}

TEST_F(ReadAhead, WhatDoesNotFitOfADatagramThatIsAheadIsCut) {
    send(first, {1});
    send(first, {2, 3});
    send(first, {4});
    EXPECT_EQ(receive(first), Bytes{1});
    Bytes buffer(1);
    EXPECT_EQ(calls.receiveFrom(first, buffer, origin), 1);
    EXPECT_EQ(buffer, Bytes{2});
    EXPECT_EQ(receive(first), Bytes{4});
}

TEST_F(ReadAhead, AnotherSocketIsReadMeanwhile) {
    send(first, {1});
    send(first, {2});
    send(second, {3});
    send(second, {4});
    EXPECT_EQ(receive(first), Bytes{1});
    EXPECT_EQ(receive(second), Bytes{3});
    EXPECT_FALSE(calls.hasReadAhead(second));
    EXPECT_EQ(receive(first), Bytes{2});
    EXPECT_EQ(receive(second), Bytes{4});
    expectNothingWaits(second);
}

TEST_F(ReadAhead, WhatIsAheadIsLostWithItsSocket) {
    send(first, {1});
    send(first, {2});
    EXPECT_EQ(receive(first), Bytes{1});
    const int closed = first;
    calls.close(first);
    EXPECT_FALSE(calls.hasReadAhead(closed));
    first = newSocket();
    EXPECT_EQ(first, closed) << "the system gives the lowest free number";
    expectNothingWaits(first);
}

TEST_F(ReadAhead, NothingIsReadAheadWhereThatIsNotAllowed) {
    const int descriptor = calls.socket();
    EXPECT_EQ(calls.bind(descriptor, dataForAddress(ipv4Loopback, 0)), 0);
    send(descriptor, {1});
    send(descriptor, {2});
    EXPECT_EQ(receive(descriptor), Bytes{1});
    EXPECT_FALSE(calls.hasReadAhead(descriptor));
    EXPECT_TRUE(waitsInTheSystem(descriptor));
    calls.close(descriptor);
}

TEST_F(ReadAhead, ThePermissionEndsWithTheSocket) {
    calls.close(first);
    const int closed = first;
    first = calls.socket();
    EXPECT_EQ(first, closed) << "the system gives the lowest free number";
    EXPECT_EQ(calls.bind(first, dataForAddress(ipv4Loopback, 0)), 0);
    send(first, {1});
    send(first, {2});
    EXPECT_EQ(receive(first), Bytes{1});
    EXPECT_TRUE(waitsInTheSystem(first));
}

TEST_F(ReadAhead, TheEndOfAnotherSocketLosesNothing) {
    send(first, {1});
    send(first, {2});
    EXPECT_EQ(receive(first), Bytes{1});
    calls.close(second);
    EXPECT_TRUE(calls.hasReadAhead(first));
    second = newSocket();
    EXPECT_EQ(receive(first), Bytes{2});
}

} // namespace kx
