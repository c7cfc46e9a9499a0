// The address and the port at which a unit is reached, as far as it has told them.
//
// Pure; any thread. Addresses and ports are in host byte order.

#pragma once

#include "units/UnitRecord.h"

#include <cstdint>

namespace kx {

struct UnitDestination {
    std::uint32_t address = 0;
    std::uint16_t port = 0;
};

// All hosts of the sender's own link (RFC 919), 255.255.255.255.
inline constexpr std::uint32_t limitedBroadcastAddress = 0xFFFFFFFFU;

// The broadcast address of the subnet of `address`; 255.255.255.255 for the address 0.
std::uint32_t directedBroadcastAddress(std::uint32_t address, std::uint32_t mask);

// The address is that of the record, or `everybody` when there is no record or it has no address.
// The port is the device port in the record, cut to 16 bits, or 3520 when it is absent or empty. An
// address that does not parse is 0.
UnitDestination destinationOfUnit(const UnitRecord* record, std::uint32_t everybody);

} // namespace kx
