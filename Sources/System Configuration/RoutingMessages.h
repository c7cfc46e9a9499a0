// The kernel's interface list in the BSD routing-message layout, taken apart.
//
// A list is a sequence of messages. Each begins with its total length (16 bits) and carries its
// type in byte 3. Two types matter:
//
//   14, an interface: a header of 112 bytes (flags: 32 bits at byte 8), then the link-level address
//       (family 18 at byte 1, name length at byte 5, address length at byte 6, then the name from
//       byte 8 on, and the hardware address right behind the name)
//   12, an address of the interface before it: a header of 20 bytes (presence mask: 32 bits at byte
//       4), then one socket address for each bit of the mask, lowest bit first
//
// Numbers in the headers are in host byte order; addresses are in network byte order. Socket
// addresses take their length byte rounded up to a multiple of the size of a long integer.
//
// The bytes are foreign: nothing here reads beyond a message, and a part that is cut short counts
// as missing. All functions are pure. Their results look into the argument and live as long as it
// does. They may be called from any thread.

#pragma once

#include "support/ByteRange.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kx {

inline constexpr std::uint8_t addressMessageType = 12;
inline constexpr std::uint8_t interfaceMessageType = 14;
inline constexpr std::size_t interfaceMessageHeaderLength = 112;
inline constexpr std::size_t addressMessageHeaderLength = 20;

// Slots of an address message. They are the bits of its presence mask.
inline constexpr std::size_t netmaskSlot = 2;
inline constexpr std::size_t interfaceAddressSlot = 5;
inline constexpr std::size_t addressSlotCount = 8;

// All messages up to the end of the list, or up to the first length that is too small to cover the
// message's type or that reaches beyond the list. Without a right length the next message cannot be
// found.
std::vector<ByteView> routingMessages(ByteView list);

// The type of one of these messages.
std::uint8_t routingMessageType(ByteView message);

// The contents of an interface message.
struct InterfaceMessage {
    std::optional<std::string> name; // absent when its bytes are not UTF-8
    bool isUp = false;
    bool isRunning = false; // it has a carrier
    bool canBroadcast = false;
    bool isPointToPoint = false;
    ByteView hardwareAddress; // empty when there is none, or the message ends before it
};

// Reads a message of type 14. Absent for another type, and when the message has no link-level
// address with a name.
std::optional<InterfaceMessage> interfaceMessage(ByteView message);

// The socket addresses of a message by slot. A slot is absent when its bit is not set. Otherwise it
// holds all bytes from the socket address to the end of the message, or no bytes when the message
// ends before the address.
using RoutingAddresses = std::array<std::optional<ByteView>, addressSlotCount>;

// Fills the slots from the presence mask and the bytes behind the message's header. A socket
// address of length 0 takes the space of one long integer.
void get_rtaddrs(std::uint32_t presenceMask, ByteView socketAddresses, RoutingAddresses& slots);

// The contents of an address message. 0 stands for an address that the message does not have.
struct AddressMessage {
    std::uint32_t address = 0; // in host byte order, as is the mask
    std::uint32_t mask = 0;
};

// Reads a message of type 12. Absent for another type, for an interface address that is not IPv4,
// and when the message ends before its header or inside one of the two addresses.
std::optional<AddressMessage> addressMessage(ByteView message);

} // namespace kx
