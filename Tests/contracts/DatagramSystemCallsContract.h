// The contract of DatagramSystemCalls.h: tests that every boundary to datagram sockets must pass.
//
// A test program runs them against its boundary by
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(System, DatagramSystemCallsContract, SystemTrait);
//
// with a trait that is made anew for each test and has
//
//     DatagramSystemCalls& systemCalls();
//     // An address of this host that a socket can be bound to, with a port that nobody has.
//     Bytes freeAddress();
//     // A datagram arrives at the socket, which is bound to an address of freeAddress(). Returns
//     // the sender's record when it can be read.
//     Bytes deliver(int descriptor, const Bytes& data);
//     // The index of the interface by which deliver() delivers, not 0.
//     std::uint32_t link();
//     // The name of that interface.
//     std::string linkName();

#pragma once

#include "DatagramSystemCalls.h"
#include "addresses/SocketAddressRecord.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <vector>

namespace kx {

template<typename Trait>
class DatagramSystemCallsContract : public testing::Test {
public:
    ~DatagramSystemCallsContract() override {
        for (const int descriptor : _opened) {
            calls().close(descriptor);
        }
    }

protected:
    DatagramSystemCalls& calls() { return trait.systemCalls(); }

    // A socket that does not block. It is closed with the test.
    int newSocket() {
        const int descriptor = calls().socket();
        EXPECT_GE(descriptor, 0);
        const int flags = calls().statusFlags(descriptor);
        EXPECT_GE(flags, 0);
        EXPECT_EQ(calls().setStatusFlags(descriptor, flags | O_NONBLOCK), 0);
        _opened.push_back(descriptor);
        return descriptor;
    }
    int newBoundSocket() {
        const int descriptor = newSocket();
        EXPECT_EQ(calls().bind(descriptor, trait.freeAddress()), 0);
        return descriptor;
    }

    Trait trait;
    const Bytes data = {1, 2, 3};

private:
    std::vector<int> _opened;
};

// Expects that `call` returns -1 with this value of errno.
#define EXPECT_FAILURE(call, errorNumber)                                                          \
    do {                                                                                           \
        errno = 0;                                                                                 \
        EXPECT_EQ(call, -1);                                                                       \
        EXPECT_EQ(errno, errorNumber);                                                             \
    } while (false)

TYPED_TEST_SUITE_P(DatagramSystemCallsContract);

TYPED_TEST_P(DatagramSystemCallsContract, StatusFlagsAreKept) {
    const int descriptor = this->newSocket();
    EXPECT_NE(this->calls().statusFlags(descriptor) & O_NONBLOCK, 0);
    EXPECT_EQ(this->calls().setStatusFlags(descriptor, 0), 0);
    EXPECT_EQ(this->calls().statusFlags(descriptor) & O_NONBLOCK, 0);
}

TYPED_TEST_P(DatagramSystemCallsContract, ANewSocketHasNeitherAddressNorPeer) {
    const int descriptor = this->newSocket();
    EXPECT_EQ(this->calls().localAddress(descriptor), dataForAddress(0, 0));
    EXPECT_EQ(this->calls().peerAddress(descriptor), std::nullopt);
}

TYPED_TEST_P(DatagramSystemCallsContract, ABoundSocketHasItsAddress) {
    const int descriptor = this->newSocket();
    const Bytes address = this->trait.freeAddress();
    EXPECT_EQ(this->calls().bind(descriptor, address), 0);
    EXPECT_EQ(this->calls().localAddress(descriptor), address);
    EXPECT_EQ(this->calls().peerAddress(descriptor), std::nullopt);
}

TYPED_TEST_P(DatagramSystemCallsContract, APortIsRefusedToASecondSocketUntilTheFirstIsClosed) {
    const Bytes address = this->trait.freeAddress();
    Bytes everyAddress = address;
    std::fill(everyAddress.begin() + 4, everyAddress.begin() + 8, std::uint8_t{0});
    const int first = this->calls().socket();
    ASSERT_EQ(this->calls().bind(first, address), 0);
    const int second = this->newSocket();
    EXPECT_FAILURE(this->calls().bind(second, address), EADDRINUSE);
    EXPECT_FAILURE(this->calls().bind(second, everyAddress), EADDRINUSE);
    EXPECT_EQ(this->calls().close(first), 0);
    EXPECT_EQ(this->calls().bind(second, everyAddress), 0);
    EXPECT_FAILURE(this->calls().bind(this->newSocket(), address), EADDRINUSE);
}

TYPED_TEST_P(DatagramSystemCallsContract, AConnectedSocketHasItsPeer) {
    const int descriptor = this->newSocket();
    const Bytes address = this->trait.freeAddress();
    EXPECT_EQ(this->calls().connect(descriptor, address), 0);
    EXPECT_EQ(this->calls().peerAddress(descriptor), address);
}

TYPED_TEST_P(DatagramSystemCallsContract, WhatFollowsTheAddressInALongerRecordIsNotLookedAt) {
    const int descriptor = this->newSocket();
    const Bytes address = this->trait.freeAddress();
    for (const std::size_t length : {17U, 128U}) {
        Bytes longer = address;
        longer.resize(length, 0xAB);
        EXPECT_EQ(this->calls().connect(descriptor, longer), 0) << length;
        EXPECT_EQ(this->calls().peerAddress(descriptor), address) << length;
    }
}

TYPED_TEST_P(DatagramSystemCallsContract, ADatagramArrivesWholeAndWithItsSender) {
    const int descriptor = this->newBoundSocket();
    const Bytes expectedSender = this->trait.deliver(descriptor, this->data);
    Bytes buffer(100);
    DatagramOrigin origin;
    ASSERT_EQ(this->calls().receiveFrom(descriptor, buffer, origin), 3);
    buffer.resize(3);
    EXPECT_EQ(buffer, this->data);
    EXPECT_EQ(origin.sender, expectedSender);
}

TYPED_TEST_P(DatagramSystemCallsContract, WhatDoesNotFitOfADatagramIsCut) {
    const int descriptor = this->newBoundSocket();
    this->trait.deliver(descriptor, this->data);
    Bytes buffer(2);
    DatagramOrigin origin;
    EXPECT_EQ(this->calls().receiveFrom(descriptor, buffer, origin), 2);
    EXPECT_EQ(buffer, (Bytes{1, 2}));
    EXPECT_FAILURE(this->calls().receiveFrom(descriptor, buffer, origin), EAGAIN);
}

TYPED_TEST_P(DatagramSystemCallsContract, ADatagramWithoutBytesIsReadAsNone) {
    const int descriptor = this->newBoundSocket();
    const Bytes expectedSender = this->trait.deliver(descriptor, {});
    Bytes buffer(100);
    DatagramOrigin origin;
    EXPECT_EQ(this->calls().receiveFrom(descriptor, buffer, origin), 0);
    EXPECT_EQ(origin.sender, expectedSender);
}

TYPED_TEST_P(DatagramSystemCallsContract, AReadThatFailsLeavesTheSenderAlone) {
    const int descriptor = this->newBoundSocket();
    Bytes buffer(100);
    DatagramOrigin origin{.sender = {7}, .link = 7};
    EXPECT_FAILURE(this->calls().receiveFrom(descriptor, buffer, origin), EAGAIN);
    EXPECT_EQ(origin.sender, Bytes{7});
    EXPECT_EQ(origin.link, 7U);
}

TYPED_TEST_P(DatagramSystemCallsContract, TheLinkOfADatagramIsToldFromTheMomentItIsAskedFor) {
    const int descriptor = this->newBoundSocket();
    const auto linkOfNext = [&] {
        const Bytes sender = this->trait.deliver(descriptor, this->data);
        Bytes buffer(100);
        DatagramOrigin origin{.sender = {7}, .link = 7};
        EXPECT_EQ(this->calls().receiveFrom(descriptor, buffer, origin), 3);
        EXPECT_EQ(origin.sender, sender);
        return origin.link;
    };
    EXPECT_EQ(linkOfNext(), 0U);
    EXPECT_EQ(this->calls().enablePacketInfo(descriptor), 0);
    ASSERT_NE(this->trait.link(), 0U);
    EXPECT_EQ(linkOfNext(), this->trait.link());
    EXPECT_EQ(linkOfNext(), this->trait.link());
}

TYPED_TEST_P(DatagramSystemCallsContract, TheDestinationOfADatagramIsToldWithItsLink) {
    const int descriptor = this->newBoundSocket();
    const auto destinationOfNext = [&] {
        this->trait.deliver(descriptor, this->data);
        Bytes buffer(100);
        DatagramOrigin origin{.sender = {}, .link = 7, .destination = 7};
        EXPECT_EQ(this->calls().receiveFrom(descriptor, buffer, origin), 3);
        return origin.destination;
    };
    EXPECT_EQ(destinationOfNext(), 0U);
    EXPECT_EQ(this->calls().enablePacketInfo(descriptor), 0);
    const Bytes local = this->calls().localAddress(descriptor).value_or(Bytes());
    std::uint32_t address = 0;
    IPv6Octets unused{};
    addressForData(local, address, unused, nullptr);
    ASSERT_NE(address, 0U);
    EXPECT_EQ(destinationOfNext(), address);
}

TYPED_TEST_P(DatagramSystemCallsContract, OneSocketTellsTheLinkAndAnotherDoesNot) {
    EXPECT_EQ(this->calls().enablePacketInfo(this->newBoundSocket()), 0);
    const int other = this->newBoundSocket();
    this->trait.deliver(other, this->data);
    Bytes buffer(100);
    DatagramOrigin origin{.sender = {}, .link = 7};
    EXPECT_EQ(this->calls().receiveFrom(other, buffer, origin), 3);
    EXPECT_EQ(origin.link, 0U);
}

TYPED_TEST_P(DatagramSystemCallsContract, ASendTellsHowManyBytesItSent) {
    const int descriptor = this->newBoundSocket();
    const Bytes address = this->calls().localAddress(descriptor).value_or(Bytes{});
    EXPECT_EQ(this->calls().sendTo(descriptor, this->data, ByteView(address)), 3);
    EXPECT_EQ(this->calls().sendTo(descriptor, {}, ByteView(address)), 0);
}

TYPED_TEST_P(DatagramSystemCallsContract, ASendByALinkTellsHowManyBytesItSent) {
    const int descriptor = this->newBoundSocket();
    const Bytes address = this->calls().localAddress(descriptor).value_or(Bytes{});
    for (const std::uint32_t link : {this->trait.link(), std::uint32_t{0}}) {
        EXPECT_EQ(this->calls().sendToByLink(descriptor, this->data, address, link), 3) << link;
    }
    EXPECT_EQ(this->calls().sendToByLink(descriptor, {}, address, this->trait.link()), 0);
}

TYPED_TEST_P(DatagramSystemCallsContract, ASendByALinkThatDoesNotExistFails) {
    const int descriptor = this->newBoundSocket();
    const Bytes address = this->calls().localAddress(descriptor).value_or(Bytes{});
    EXPECT_FAILURE(this->calls().sendToByLink(descriptor, this->data, address, noSuchLink), ENODEV);
}

TYPED_TEST_P(DatagramSystemCallsContract, ALinkIsFoundByItsName) {
    EXPECT_EQ(this->calls().linkForName(this->trait.linkName()), this->trait.link());
    for (const char* const name : {"", "no-such-link", "a name that is too long for a link"}) {
        errno = 0;
        EXPECT_EQ(this->calls().linkForName(name), 0U) << name;
        EXPECT_EQ(errno, ENODEV) << name;
    }
}

TYPED_TEST_P(DatagramSystemCallsContract, ALinkHasItsName) {
    EXPECT_EQ(this->calls().nameForLink(this->trait.link()), this->trait.linkName());
    EXPECT_EQ(this->calls().nameForLink(0), "");
    EXPECT_EQ(this->calls().nameForLink(noSuchLink), "");
}

TYPED_TEST_P(DatagramSystemCallsContract, OnlyAConnectedSocketSendsWithoutAnAddress) {
    const int descriptor = this->newBoundSocket();
    EXPECT_FAILURE(this->calls().sendTo(descriptor, this->data, std::nullopt), EDESTADDRREQ);
    const Bytes address = this->calls().localAddress(descriptor).value_or(Bytes{});
    EXPECT_EQ(this->calls().connect(descriptor, address), 0);
    EXPECT_EQ(this->calls().sendTo(descriptor, this->data, std::nullopt), 3);
}

TYPED_TEST_P(DatagramSystemCallsContract, ARecordOfAnotherFamilyIsRefused) {
    const int descriptor = this->newSocket();
    const Bytes empty;
    const Bytes ipv6 = dataForAddress6({}, 3520);
    for (const ByteView record : {ByteView(empty), ByteView(ipv6)}) {
        EXPECT_FAILURE(this->calls().bind(descriptor, record), EAFNOSUPPORT);
        EXPECT_FAILURE(this->calls().connect(descriptor, record), EAFNOSUPPORT);
        EXPECT_FAILURE(this->calls().sendTo(descriptor, this->data, record), EAFNOSUPPORT);
        EXPECT_FAILURE(
            this->calls().sendToByLink(descriptor, this->data, record, this->trait.link()),
            EAFNOSUPPORT);
    }
}

TYPED_TEST_P(DatagramSystemCallsContract, ARecordThatIsTooShortIsRefused) {
    const int descriptor = this->newSocket();
    Bytes record = this->trait.freeAddress();
    record.resize(15);
    EXPECT_FAILURE(this->calls().bind(descriptor, record), EINVAL);
    EXPECT_FAILURE(this->calls().connect(descriptor, record), EINVAL);
    EXPECT_FAILURE(this->calls().sendTo(descriptor, this->data, record), EINVAL);
    EXPECT_FAILURE(this->calls().sendToByLink(descriptor, this->data, record, this->trait.link()),
                   EINVAL);
}

// Otherwise a datagram whose destination got lost would go to the peer.
TYPED_TEST_P(DatagramSystemCallsContract, AnEmptyRecordIsNoAbsentOne) {
    const int descriptor = this->newSocket();
    EXPECT_EQ(this->calls().connect(descriptor, this->trait.freeAddress()), 0);
    EXPECT_FAILURE(this->calls().sendTo(descriptor, this->data, ByteView()), EAFNOSUPPORT);
}

TYPED_TEST_P(DatagramSystemCallsContract, AClosedDescriptorFailsEveryCall) {
    const int descriptor = this->calls().socket();
    const Bytes address = this->trait.freeAddress();
    EXPECT_EQ(this->calls().close(descriptor), 0);
    Bytes buffer(100);
    DatagramOrigin origin{.sender = {7}, .link = 7};
    EXPECT_FAILURE(this->calls().close(descriptor), EBADF);
    EXPECT_FAILURE(this->calls().bind(descriptor, address), EBADF);
    EXPECT_FAILURE(this->calls().connect(descriptor, address), EBADF);
    EXPECT_FAILURE(this->calls().statusFlags(descriptor), EBADF);
    EXPECT_FAILURE(this->calls().setStatusFlags(descriptor, 0), EBADF);
    EXPECT_FAILURE(this->calls().enableBroadcast(descriptor), EBADF);
    EXPECT_FAILURE(this->calls().enablePacketInfo(descriptor), EBADF);
    EXPECT_FAILURE(this->calls().sendTo(descriptor, this->data, ByteView(address)), EBADF);
    EXPECT_FAILURE(this->calls().sendTo(descriptor, this->data, std::nullopt), EBADF);
    EXPECT_FAILURE(this->calls().sendToByLink(descriptor, this->data, address, this->trait.link()),
                   EBADF);
    EXPECT_FAILURE(this->calls().receiveFrom(descriptor, buffer, origin), EBADF);
    EXPECT_EQ(origin.sender, Bytes{7});
    EXPECT_EQ(origin.link, 7U);
    EXPECT_EQ(this->calls().localAddress(descriptor), std::nullopt);
    EXPECT_EQ(this->calls().peerAddress(descriptor), std::nullopt);
}

TYPED_TEST_P(DatagramSystemCallsContract, BroadcastsCanBeAllowed) {
    EXPECT_EQ(this->calls().enableBroadcast(this->newSocket()), 0);
}

TYPED_TEST_P(DatagramSystemCallsContract, ASocketWrapperClosesItsDescriptorAtFirst) {
    EXPECT_NE(this->calls().socketFlags() & kCFSocketCloseOnInvalidate, 0U);
}

#undef EXPECT_FAILURE

REGISTER_TYPED_TEST_SUITE_P(
    DatagramSystemCallsContract, StatusFlagsAreKept, ANewSocketHasNeitherAddressNorPeer,
    ABoundSocketHasItsAddress, APortIsRefusedToASecondSocketUntilTheFirstIsClosed,
    AConnectedSocketHasItsPeer, WhatFollowsTheAddressInALongerRecordIsNotLookedAt,
    ADatagramArrivesWholeAndWithItsSender, WhatDoesNotFitOfADatagramIsCut,
    ADatagramWithoutBytesIsReadAsNone, AReadThatFailsLeavesTheSenderAlone,
    TheLinkOfADatagramIsToldFromTheMomentItIsAskedFor, TheDestinationOfADatagramIsToldWithItsLink,
    OneSocketTellsTheLinkAndAnotherDoesNot, ASendTellsHowManyBytesItSent,
    ASendByALinkTellsHowManyBytesItSent, ASendByALinkThatDoesNotExistFails, ALinkIsFoundByItsName,
    ALinkHasItsName, OnlyAConnectedSocketSendsWithoutAnAddress, ARecordOfAnotherFamilyIsRefused,
    ARecordThatIsTooShortIsRefused, AnEmptyRecordIsNoAbsentOne, AClosedDescriptorFailsEveryCall,
    BroadcastsCanBeAllowed, ASocketWrapperClosesItsDescriptorAtFirst);

} // namespace kx
