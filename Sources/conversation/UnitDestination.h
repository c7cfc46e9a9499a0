// The address, the port and the link by which a unit is reached, as far as they are known.
//
// Pure; any thread. Addresses and ports are in host byte order. Links are indexes of interfaces.

#pragma once

#include "units/UnitRecord.h"

#include <cstdint>

namespace kx {

struct UnitDestination {
    std::uint32_t address = 0;
    std::uint16_t port = 0;
    std::uint32_t link = 0; // 0 when the routes decide
};

// All hosts of the sender's own link (RFC 919), 255.255.255.255.
inline constexpr std::uint32_t limitedBroadcastAddress = 0xFFFFFFFFU;

// The broadcast address of the subnet of `address`; 255.255.255.255 for the address 0.
std::uint32_t directedBroadcastAddress(std::uint32_t address, std::uint32_t mask);

// Every unit that hears a broadcast.
struct Everybody {
    std::uint32_t address = limitedBroadcastAddress;
    std::uint32_t link = 0; // 0 when the routes decide
};

// The link by which a datagram to the address leaves: `heard`, the one on which the unit of this
// address was heard. A broadcast leaves by the link of `everybody`, where there is one, whichever
// unit told its address: that is 255.255.255.255, and the address of `everybody`.
std::uint32_t linkToAddress(std::uint32_t address, Everybody everybody, std::uint32_t heard);

// The address is that of the record, and the link is linkToAddress() of the one on which the unit
// was heard last. When there is no record, or it has no address, both are those of `everybody`. The
// port is the device port in the record, cut to 16 bits, or 3520 when it is absent or empty. An
// address that does not parse is 0.
UnitDestination destinationOfUnit(const UnitRecord* record, Everybody everybody);

} // namespace kx
