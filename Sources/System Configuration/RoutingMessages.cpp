#include "System Configuration/RoutingMessages.h"

#include "support/TextEncoding.h"

#include <algorithm>
#include <cstring>

namespace kx {

namespace {

constexpr std::size_t shortestMessage = 4; // up to and including the type byte
constexpr std::size_t typeOffset = 3;
constexpr std::size_t presenceMaskOffset = 4;
constexpr std::size_t flagsOffset = 8;
constexpr std::uint32_t interfaceIsUp = 0x1;
constexpr std::uint32_t interfaceCanBroadcast = 0x2;
constexpr std::uint32_t interfaceIsPointToPoint = 0x10;
constexpr std::uint32_t interfaceIsRunning = 0x40;

constexpr std::size_t familyOffset = 1;
constexpr std::size_t nameLengthOffset = 5;
constexpr std::size_t addressLengthOffset = 6;
constexpr std::size_t nameOffset = 8;
constexpr std::uint8_t linkLevelFamily = 18;

constexpr std::uint8_t ipv4Family = 2;
constexpr std::size_t ipv4AddressOffset = 4;
constexpr std::size_t ipv4AddressEnd = 8;

// The bytes must be there.
template<class Number>
Number hostNumberAt(ByteView bytes, std::size_t offset) {
    Number number{};
    std::memcpy(&number, bytes.data() + offset, sizeof number);
    return number;
}

// All of the `length` bytes from `offset` on, or no bytes when some of them are missing.
ByteView wholeRange(ByteView bytes, std::size_t offset, std::size_t length) {
    if (bytes.size() < offset || bytes.size() - offset < length) {
        return {};
    }
    return bytes.subspan(offset, length);
}

ByteView behind(ByteView bytes, std::size_t offset) {
    return bytes.subspan(std::min(offset, bytes.size()));
}

// 0 for a slot that is absent; absent for an address that is cut short.
std::optional<std::uint32_t> addressInSlot(const std::optional<ByteView>& slot) {
    if (!slot.has_value()) {
        return 0;
    }
    if (slot->size() < ipv4AddressEnd) {
        return std::nullopt;
    }
    std::uint32_t address = 0;
    for (std::size_t i = ipv4AddressOffset; i < ipv4AddressEnd; ++i) {
        address = address << 8U | (*slot)[i];
    }
    return address;
}

// The length of the whole message at the front, or 0 when there is none.
std::size_t firstMessageLength(ByteView list) {
    if (list.size() < shortestMessage) {
        return 0;
    }
    const std::size_t length = hostNumberAt<std::uint16_t>(list, 0);
    return length >= shortestMessage && length <= list.size() ? length : 0;
}

} // namespace

std::vector<ByteView> routingMessages(ByteView list) {
    std::vector<ByteView> messages;
    for (auto length = firstMessageLength(list); length > 0; length = firstMessageLength(list)) {
        messages.push_back(list.first(length));
        list = list.subspan(length);
    }
    return messages;
}

std::uint8_t routingMessageType(ByteView message) {
    return message[typeOffset];
}

std::optional<InterfaceMessage> interfaceMessage(ByteView message) {
    const ByteView link = behind(message, interfaceMessageHeaderLength);
    if (routingMessageType(message) != interfaceMessageType || link.size() < nameOffset ||
        link[familyOffset] != linkLevelFamily) {
        return std::nullopt;
    }
    const ByteView name = wholeRange(link, nameOffset, link[nameLengthOffset]);
    if (name.empty()) {
        return std::nullopt;
    }
    InterfaceMessage result;
    result.name = textFromUTF8(name);
    const auto flags = hostNumberAt<std::uint32_t>(message, flagsOffset);
    result.isUp = (flags & interfaceIsUp) != 0;
    result.isRunning = (flags & interfaceIsRunning) != 0;
    result.canBroadcast = (flags & interfaceCanBroadcast) != 0;
    result.isPointToPoint = (flags & interfaceIsPointToPoint) != 0;
    result.hardwareAddress = wholeRange(link, nameOffset + name.size(), link[addressLengthOffset]);
    return result;
}

void get_rtaddrs(std::uint32_t presenceMask, ByteView socketAddresses, RoutingAddresses& slots) {
    constexpr std::size_t unit = sizeof(long);
    for (std::size_t i = 0; i < slots.size(); ++i) {
        slots[i].reset();
        if ((presenceMask >> i & 1U) == 0) {
            continue;
        }
        slots[i] = socketAddresses;
        const std::size_t length = socketAddresses.empty() ? 0 : socketAddresses[0];
        const std::size_t units = std::max<std::size_t>((length + unit - 1) / unit, 1);
        socketAddresses = behind(socketAddresses, units * unit);
    }
}

std::optional<AddressMessage> addressMessage(ByteView message) {
    if (routingMessageType(message) != addressMessageType ||
        message.size() < addressMessageHeaderLength) {
        return std::nullopt;
    }
    RoutingAddresses slots;
    get_rtaddrs(hostNumberAt<std::uint32_t>(message, presenceMaskOffset),
                behind(message, addressMessageHeaderLength), slots);
    const auto address = addressInSlot(slots[interfaceAddressSlot]);
    const auto mask = addressInSlot(slots[netmaskSlot]);
    if (!address.has_value() || !mask.has_value()) {
        return std::nullopt;
    }
    const auto& interfaceAddress = slots[interfaceAddressSlot];
    if (interfaceAddress.has_value() && (*interfaceAddress)[familyOffset] != ipv4Family) {
        return std::nullopt;
    }
    return AddressMessage{*address, *mask};
}

} // namespace kx
