// Whom a request reaches that goes to the selected unit, or to everybody when its address is not
// known: the requests of Reload and Restore Defaults.
//
// Pure; any thread. Addresses are in host byte order.

#pragma once

#include "units/UnitRecord.h"

#include <cstdint>
#include <span>

namespace kx {

enum class RequestReach {
    oneUnit,
    everybodyWithoutUnit,    // no unit is selected
    everybodyWithoutAddress, // the address of the selected unit is not known
    everybodyAtItsAddress,   // the selected unit tells an address of many as its own
};

struct RequestTarget {
    RequestReach reach = RequestReach::everybodyWithoutUnit;
    std::uint32_t address = 0; // the unit's address; 0 when everybody is reached

    friend bool operator==(const RequestTarget&, const RequestTarget&) = default;
};

// Whether a datagram to this address reaches every unit that hears it: 255.255.255.255, a multicast
// address, one of `broadcastAddresses`, which are those of this host (broadcastAddressesOf()),
// and 0.0.0.0, which also stands for a text that is no address.
bool isAddressOfMany(std::uint32_t address, std::span<const std::uint32_t> broadcastAddresses);

// `record` is that of the selected unit; null when no unit is selected, and when nothing is known
// of the selected one any more.
RequestTarget targetOfRequest(bool unitIsSelected, const UnitRecord* record,
                              std::span<const std::uint32_t> broadcastAddresses);

} // namespace kx
