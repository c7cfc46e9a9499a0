#include "System Configuration/RoutingMessages.h"

#include "doubles/GuardedBytes.h"
#include "doubles/RoutingMessageBuilder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <random>

namespace kx {

namespace {

using Builder = RoutingMessageBuilder;

std::vector<int> typesIn(ByteView list) {
    std::vector<int> types;
    for (const ByteView message : routingMessages(list)) {
        types.push_back(routingMessageType(message));
    }
    return types;
}

ByteView firstMessage(const Builder& builder) {
    return routingMessages(builder.bytes()).at(0);
}

// Reads everything that can be read from a list. The guard behind the bytes catches every read
// beyond them.
std::size_t readAll(ByteView bytes) {
    const GuardedBytes guarded(bytes);
    std::size_t messages = 0;
    std::size_t octets = 0;
    for (const ByteView message : routingMessages(guarded.view())) {
        ++messages;
        if (const auto interface = interfaceMessage(message)) {
            const auto& hardware = interface->hardwareAddress;
            octets += std::count(hardware.begin(), hardware.end(), 0) >= 0 ? hardware.size() : 0;
        }
        octets += addressMessage(message).has_value() ? 8 : 0;
        RoutingAddresses slots;
        get_rtaddrs(0xFFFFFFFFU, message, slots);
        for (const auto& slot : slots) {
            octets += slot->empty() ? 0 : slot->front() + slot->back();
        }
    }
    EXPECT_LT(octets, messages * 65536 * 2 + 1);
    return messages;
}

Builder severalMessages() {
    Builder builder;
    builder.interface("lo0", true, {}).address(0x7F000001U, 0xFF000000U);
    builder.message(99, {1, 2, 3});
    builder.interface("en0", true).address(0x0A000005U, 0xFFFFFF00U);
    builder.addressWith({{0, {1, 2}}, {2, {7, 0, 0, 0, 255, 255, 255}}, {5, {0}}, {7, {40}}});
    return builder;
}

} // namespace

// --- The walk ---

TEST(NextRoutingMessage, TakesOneMessageAfterTheOther) {
    const auto builder = severalMessages();
    EXPECT_EQ(typesIn(builder.bytes()), (std::vector<int>{14, 12, 99, 14, 12, 12}));
}

TEST(NextRoutingMessage, AnEmptyListHasNone) {
    EXPECT_EQ(typesIn({}), std::vector<int>{});
}

TEST(NextRoutingMessage, AMessageThatIsCutShortEndsTheWalk) {
    Builder builder;
    builder.message(1, {}).message(2, {9, 9});
    const ByteView list = builder.bytes();
    for (std::size_t length = 4; length < list.size(); ++length) {
        EXPECT_EQ(typesIn(list.first(length)), std::vector<int>{1}) << length;
    }
}

TEST(NextRoutingMessage, ALengthThatDoesNotCoverTheTypeEndsTheWalk) {
    for (std::uint8_t length = 0; length < 4; ++length) {
        const auto little = std::endian::native == std::endian::little;
        Builder builder;
        builder.message(1, {}).raw(
            {little ? length : std::uint8_t{0}, little ? std::uint8_t{0} : length, 5, 14});
        builder.message(3, {});
        EXPECT_EQ(typesIn(builder.bytes()), std::vector<int>{1}) << int{length};
    }
}

TEST(NextRoutingMessage, ALengthBeyondTheBufferEndsTheWalk) {
    Builder builder;
    builder.message(1, {}).raw({0xFF, 0xFF, 5, 14, 0, 0, 0, 0});
    EXPECT_EQ(typesIn(builder.bytes()), std::vector<int>{1});
}

// --- Interface messages ---

TEST(InterfaceMessage, HasNameFlagAndHardwareAddress) {
    const Builder builder = Builder().interface("en0", true);
    const auto interface = interfaceMessage(firstMessage(builder));
    ASSERT_TRUE(interface.has_value());
    EXPECT_EQ(interface->name, "en0");
    EXPECT_TRUE(interface->isUp);
    EXPECT_EQ(Bytes(interface->hardwareAddress.begin(), interface->hardwareAddress.end()),
              (Bytes{0, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E}));
}

TEST(InterfaceMessage, OnlyTheLowestFlagSaysThatItIsUp) {
    const Builder builder = Builder().interface("en0", false);
    EXPECT_FALSE(interfaceMessage(firstMessage(builder))->isUp);
}

TEST(InterfaceMessage, MayHaveNoHardwareAddress) {
    const Builder builder = Builder().interface("lo0", true, {});
    EXPECT_TRUE(interfaceMessage(firstMessage(builder))->hardwareAddress.empty());
}

TEST(InterfaceMessage, IsNoneWithoutALinkLevelAddressThatHasAName) {
    const Builder::Buffer name = {0, 18, 0, 0, 6, 3, 0, 0, 'e', 'n', '0', 0, 0, 0, 0, 0};
    auto otherFamily = name;
    otherFamily[1] = 2;
    auto noName = name;
    noName[5] = 0;
    auto nameBeyondTheMessage = name;
    nameBeyondTheMessage[5] = 9;
    EXPECT_TRUE(interfaceMessage(firstMessage(Builder().interfaceWith(1, name))).has_value());
    for (const auto& link : {otherFamily, noName, nameBeyondTheMessage, Builder::Buffer{},
                             Builder::Buffer{0, 18, 0, 0, 6, 3, 0}}) {
        const Builder builder = Builder().interfaceWith(1, link);
        EXPECT_FALSE(interfaceMessage(firstMessage(builder)).has_value());
    }
}

TEST(InterfaceMessage, IsNoneOfAnotherTypeOrWithoutAWholeHeader) {
    EXPECT_FALSE(interfaceMessage(firstMessage(Builder().message(12, Builder::Buffer(140, 18))))
                     .has_value());
    EXPECT_FALSE(
        interfaceMessage(firstMessage(Builder().message(14, Builder::Buffer(90, 18)))).has_value());
    EXPECT_FALSE(interfaceMessage(firstMessage(Builder().message(14, {}))).has_value());
}

TEST(InterfaceMessage, ANameThatIsNotUTF8IsAbsent) {
    const Builder builder = Builder().interface("en\xFF", true);
    const auto interface = interfaceMessage(firstMessage(builder));
    ASSERT_TRUE(interface.has_value());
    EXPECT_EQ(interface->name, std::nullopt);
}

TEST(InterfaceMessage, AHardwareAddressBeyondTheMessageIsMissing) {
    const Builder builder =
        Builder().interfaceWith(1, {0, 18, 0, 0, 6, 3, 6, 0, 'e', 'n', '0', 1, 2, 3, 4, 5});
    const auto interface = interfaceMessage(firstMessage(builder));
    ASSERT_TRUE(interface.has_value());
    EXPECT_TRUE(interface->hardwareAddress.empty());
}

// --- Socket addresses by slot ---

TEST(GetRtaddrs, GivesEachSetBitTheNextSocketAddress) {
    Bytes bytes(48, 0);
    bytes[0] = bytes[16] = bytes[32] = 16;
    RoutingAddresses slots;
    get_rtaddrs(0b10100100U, bytes, slots);
    for (const std::size_t absent : {0U, 1U, 3U, 4U, 6U}) {
        EXPECT_FALSE(slots.at(absent).has_value()) << absent;
    }
    EXPECT_EQ(slots[2]->data(), bytes.data());
    EXPECT_EQ(slots[5]->data(), bytes.data() + 16);
    EXPECT_EQ(slots[7]->data(), bytes.data() + 32);
}

TEST(GetRtaddrs, LengthsAreRoundedUpToALongInteger) {
    constexpr std::size_t unit = sizeof(long);
    Bytes bytes(8 * unit, 0);
    bytes[0] = 0;                                          // counts as one unit
    bytes[unit] = 1;                                       // one unit
    bytes[2 * unit] = static_cast<std::uint8_t>(unit);     // one unit
    bytes[3 * unit] = static_cast<std::uint8_t>(unit + 1); // two units
    RoutingAddresses slots;
    get_rtaddrs(0b11111U, bytes, slots);
    EXPECT_EQ(slots[1]->data(), bytes.data() + unit);
    EXPECT_EQ(slots[2]->data(), bytes.data() + 2 * unit);
    EXPECT_EQ(slots[3]->data(), bytes.data() + 3 * unit);
    EXPECT_EQ(slots[4]->data(), bytes.data() + 5 * unit);
}

TEST(GetRtaddrs, BitsAboveTheSlotsAreIgnoredAndOldSlotsForgotten) {
    RoutingAddresses slots;
    slots.fill(ByteView());
    get_rtaddrs(0xFFFFFF00U, Bytes(16, 0), slots);
    for (const auto& slot : slots) {
        EXPECT_FALSE(slot.has_value());
    }
}

TEST(GetRtaddrs, ASlotBehindTheEndIsPresentWithoutBytes) {
    const Bytes bytes = {200, 2, 0};
    RoutingAddresses slots;
    get_rtaddrs(0b111U, bytes, slots);
    EXPECT_EQ(slots[0]->size(), 3U);
    EXPECT_TRUE(slots[1].has_value());
    EXPECT_TRUE(slots[1]->empty());
    EXPECT_TRUE(slots[2]->empty());
}

// --- Address messages ---

TEST(AddressMessage, HasAddressAndMaskInHostByteOrder) {
    const Builder builder = Builder().address(0x0A000005U, 0xFFFFFF00U);
    const auto message = addressMessage(firstMessage(builder));
    ASSERT_TRUE(message.has_value());
    EXPECT_EQ(message->address, 0x0A000005U);
    EXPECT_EQ(message->mask, 0xFFFFFF00U);
}

TEST(AddressMessage, WhatIsAbsentIsZero) {
    const Builder addressOnly =
        Builder().addressWith({{5, Builder::socketAddress(2, 0x0A000005U)}});
    EXPECT_EQ(addressMessage(firstMessage(addressOnly))->address, 0x0A000005U);
    EXPECT_EQ(addressMessage(firstMessage(addressOnly))->mask, 0U);
    const Builder maskOnly = Builder().addressWith({{2, Builder::socketAddress(0, 0xFF000000U)}});
    EXPECT_EQ(addressMessage(firstMessage(maskOnly))->address, 0U);
    EXPECT_EQ(addressMessage(firstMessage(maskOnly))->mask, 0xFF000000U);
}

TEST(AddressMessage, AMasksFamilyAndLengthDoNotMatter) {
    const Builder builder = Builder().addressWith(
        {{2, {7, 255, 0, 0, 255, 255, 240}}, {5, Builder::socketAddress(2, 0x0A000005U)}});
    const auto message = addressMessage(firstMessage(builder));
    ASSERT_TRUE(message.has_value());
    EXPECT_EQ(message->mask, 0xFFFFF000U);
    EXPECT_EQ(message->address, 0x0A000005U);
}

TEST(AddressMessage, AnInterfaceAddressOfAnotherFamilyIsNone) {
    const Builder builder = Builder().addressWith({{2, Builder::socketAddress(2, 0xFF000000U)},
                                                   {5, Builder::socketAddress(30, 0x0A000005U)}});
    EXPECT_FALSE(addressMessage(firstMessage(builder)).has_value());
}

TEST(AddressMessage, OtherTypesAndTruncatedMessagesAreNone) {
    const Builder whole = Builder().address(0x0A000005U, 0xFFFFFF00U);
    const Builder::Buffer body(whole.bytes().begin() + 4, whole.bytes().end());
    EXPECT_FALSE(addressMessage(firstMessage(Builder().message(13, body))).has_value());
    // The last eight bytes of a socket address are ignored.
    for (std::size_t length = 0; length + 8 < body.size(); ++length) {
        const Builder::Buffer cut(body.begin(), body.begin() + static_cast<long>(length));
        EXPECT_FALSE(addressMessage(firstMessage(Builder().message(12, cut))).has_value())
            << length;
    }
}

// --- Foreign bytes ---

TEST(RoutingMessages, NoTruncationOfAListIsReadBeyondItsEnd) {
    const auto builder = severalMessages();
    const ByteView list = builder.bytes();
    std::size_t messages = 0;
    for (std::size_t length = 0; length <= list.size(); ++length) {
        messages = readAll(list.first(length));
    }
    EXPECT_EQ(messages, 6U);
}

TEST(RoutingMessages, NoChangedByteOfAListIsReadBeyondItsEnd) {
    const auto builder = severalMessages();
    for (std::size_t i = 0; i < builder.bytes().size(); ++i) {
        for (const std::uint8_t value : Bytes{0, 1, 4, 14, 18, 127, 255}) {
            auto bytes = builder.bytes();
            bytes[i] = value;
            readAll(bytes);
        }
    }
}

TEST(RoutingMessages, RandomBytesAreReadToTheirEndOnly) {
    std::mt19937 random(20240229);
    for (int round = 0; round < 2000; ++round) {
        Bytes bytes(random() % 400);
        for (auto& byte : bytes) {
            byte = static_cast<std::uint8_t>(random());
        }
        // Whole messages of both types, so that the rounds do not all end at the first length.
        Builder builder;
        builder.message(14, bytes).message(12, bytes).raw(bytes);
        EXPECT_GE(readAll(builder.bytes()), 2U);
    }
}

} // namespace kx
