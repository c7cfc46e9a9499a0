// The contract of ReceiveBufferControl.h: tests that every adapter to receive buffers must pass.
//
// A test program runs them against its adapter by
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(System, ReceiveBufferControlContract, SystemTrait);
//
// with a trait that is made anew for each test and has
//
//     ReceiveBufferControl& buffers();
//     // A datagram socket, open as long as the trait lives.
//     int newSocket();
//     // A number that is no open descriptor.
//     int closedDescriptor();
//     // Sends the socket more datagrams than its buffer holds. Returns how many got lost.
//     std::uint32_t overflow(int descriptor);

#pragma once

#include "ReceiveBufferControl.h"

#include <gtest/gtest.h>

namespace kx {

template<typename Trait>
class ReceiveBufferControlContract : public testing::Test {
protected:
    std::optional<std::uint32_t> dropped(int descriptor) {
        return trait.buffers().droppedDatagrams(descriptor);
    }

    Trait trait;
};

TYPED_TEST_SUITE_P(ReceiveBufferControlContract);

TYPED_TEST_P(ReceiveBufferControlContract, ANewSocketHasDroppedNothing) {
    EXPECT_EQ(this->dropped(this->trait.newSocket()), 0U);
}

TYPED_TEST_P(ReceiveBufferControlContract, WhatFindsNoRoomIsCountedFromTheBeginning) {
    const int descriptor = this->trait.newSocket();
    const std::uint32_t first = this->trait.overflow(descriptor);
    EXPECT_GT(first, 0U);
    EXPECT_EQ(this->dropped(descriptor), first);
    const std::uint32_t second = this->trait.overflow(descriptor);
    EXPECT_GT(second, 0U);
    EXPECT_EQ(this->dropped(descriptor), first + second);
    EXPECT_EQ(this->dropped(descriptor), first + second) << "asking forgets nothing";
}

TYPED_TEST_P(ReceiveBufferControlContract, EverySocketHasItsOwnCount) {
    const int overflown = this->trait.newSocket();
    const int other = this->trait.newSocket();
    this->trait.overflow(overflown);
    EXPECT_EQ(this->dropped(other), 0U);
}

TYPED_TEST_P(ReceiveBufferControlContract, ALargerBufferKeepsTheCount) {
    const int descriptor = this->trait.newSocket();
    const std::uint32_t lost = this->trait.overflow(descriptor);
    this->trait.buffers().enlarge(descriptor, 1 << 20);
    EXPECT_EQ(this->dropped(descriptor), lost);
}

TYPED_TEST_P(ReceiveBufferControlContract, AClosedDescriptorHasNoCountAndTakesNoWish) {
    for (const int descriptor : {this->trait.closedDescriptor(), -1}) {
        this->trait.buffers().enlarge(descriptor, 1 << 20);
        EXPECT_EQ(this->dropped(descriptor), std::nullopt);
    }
}

REGISTER_TYPED_TEST_SUITE_P(ReceiveBufferControlContract, ANewSocketHasDroppedNothing,
                            WhatFindsNoRoomIsCountedFromTheBeginning, EverySocketHasItsOwnCount,
                            ALargerBufferKeepsTheCount, AClosedDescriptorHasNoCountAndTakesNoWish);

} // namespace kx
