#include "platform/linux/LinuxKernelQuery.h"

#include "System Configuration/RoutingMessages.h"
#include "addresses/SocketAddressRecord.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace kx {

namespace {

constexpr std::uint8_t messageVersion = 5;
constexpr std::uint8_t linkLevelFamily = 18;
constexpr std::uint8_t ethernetType = 6;
constexpr unsigned linkLevelAddressSlot = 4;
constexpr unsigned broadcastAddressSlot = 7;

constexpr std::size_t typeOffset = 3;
constexpr std::size_t versionOffset = 2;
constexpr std::size_t presenceMaskOffset = 4;
constexpr std::size_t flagsOffset = 8;
constexpr std::size_t indexOffset = 12;

// The flags of the messages. Their values are not those of this kernel.
constexpr std::uint32_t flagUp = 0x1;
constexpr std::uint32_t flagBroadcast = 0x2;
constexpr std::uint32_t flagLoopback = 0x8;
constexpr std::uint32_t flagPointToPoint = 0x10;
constexpr std::uint32_t flagRunning = 0x40;
constexpr std::uint32_t flagMulticast = 0x8000;

// Numbers are in host byte order.
template<class Number>
void put(Bytes& bytes, std::size_t offset, Number number) {
    std::memcpy(bytes.data() + offset, &number, sizeof number);
}

std::uint32_t flagsOfLink(const NetworkLink& link) {
    return (link.isUp ? flagUp : 0U) | (link.canBroadcast ? flagBroadcast : 0U) |
           (link.isLoopback ? flagLoopback : 0U) | (link.isPointToPoint ? flagPointToPoint : 0U) |
           (link.isRunning ? flagRunning : 0U) | (link.canMulticast ? flagMulticast : 0U);
}

// The name and the hardware address are far shorter than the largest length in their length bytes.
Bytes linkLevelAddress(const NetworkLink& link) {
    Bytes result = {0,
                    linkLevelFamily,
                    0,
                    0,
                    ethernetType,
                    static_cast<std::uint8_t>(link.name.size()),
                    static_cast<std::uint8_t>(link.hardwareAddress.size()),
                    0};
    put(result, 2, static_cast<std::uint16_t>(link.index));
    result.insert(result.end(), link.name.begin(), link.name.end());
    result.insert(result.end(), link.hardwareAddress.begin(), link.hardwareAddress.end());
    result[0] = static_cast<std::uint8_t>(result.size());
    return result;
}

void appendSocketAddress(Bytes& message, const Bytes& socketAddress) {
    constexpr std::size_t unit = sizeof(long);
    message.insert(message.end(), socketAddress.begin(), socketAddress.end());
    message.resize((message.size() + unit - 1) / unit * unit);
}

// A message header with everything but the length.
Bytes messageHeader(std::size_t headerLength, std::uint8_t type, std::uint32_t presenceMask,
                    const NetworkLink& link) {
    Bytes message(headerLength);
    message[versionOffset] = messageVersion;
    message[typeOffset] = type;
    put(message, presenceMaskOffset, presenceMask);
    put(message, flagsOffset, flagsOfLink(link));
    put(message, indexOffset, static_cast<std::uint16_t>(link.index));
    return message;
}

void appendMessage(Bytes& list, Bytes message) {
    put(message, 0, static_cast<std::uint16_t>(message.size()));
    list.insert(list.end(), message.begin(), message.end());
}

Bytes messageForLink(const NetworkLink& link) {
    Bytes message = messageHeader(interfaceMessageHeaderLength, interfaceMessageType,
                                  1U << linkLevelAddressSlot, link);
    appendSocketAddress(message, linkLevelAddress(link));
    return message;
}

// The header's length is not a multiple of the length of a long integer. The addresses behind it
// are padded from their own beginning.
Bytes messageForAddress(const NetworkLink& link, const IPv4InterfaceAddress& address) {
    const std::uint32_t mask = maskOfPrefixLength(address.prefixLength);
    std::uint32_t presenceMask = 1U << netmaskSlot | 1U << interfaceAddressSlot;
    Bytes addresses;
    appendSocketAddress(addresses, dataForAddress(mask, 0));
    appendSocketAddress(addresses, dataForAddress(address.address, 0));
    if (link.canBroadcast) {
        presenceMask |= 1U << broadcastAddressSlot;
        appendSocketAddress(addresses, dataForAddress(address.address | ~mask, 0));
    }
    Bytes message =
        messageHeader(addressMessageHeaderLength, addressMessageType, presenceMask, link);
    message.insert(message.end(), addresses.begin(), addresses.end());
    return message;
}

} // namespace

int LinuxKernelQuery::sysctl(std::span<const int> name, std::uint8_t* buffer, std::size_t& length) {
    const auto* const links =
        std::ranges::equal(name, interfaceListName) ? _links.links() : nullptr;
    if (links == nullptr) {
        return -1;
    }
    const Bytes list = routingMessagesForLinks(*links);
    if (buffer != nullptr && length < list.size()) {
        return -1;
    }
    length = list.size();
    if (buffer != nullptr) {
        std::copy(list.begin(), list.end(), buffer);
    }
    return 0;
}

Bytes routingMessagesForLinks(const std::vector<NetworkLink>& links) {
    Bytes list;
    for (const auto& link : links) {
        appendMessage(list, messageForLink(link));
        for (const auto& address : link.ipv4Addresses) {
            appendMessage(list, messageForAddress(link, address));
        }
    }
    return list;
}

} // namespace kx
