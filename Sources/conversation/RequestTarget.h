// Whom a request reaches that goes to the selected unit, or to everybody when its address is not
// known: the requests of Reload and Restore Defaults.
//
// Pure; any thread. Addresses are in host byte order.

#pragma once

#include "conversation/UnitDestination.h"
#include "units/UnitRecord.h"

#include <cstdint>
#include <span>

namespace kx {

enum class RequestReach {
    oneUnit,
    everybodyWithoutUnit,    // no unit is selected
    everybodyWithoutAddress, // the address of the selected unit is not known
    everybodyAtItsAddress,   // the selected unit tells a broadcast or multicast address as its own
};

struct RequestTarget {
    RequestReach reach = RequestReach::everybodyWithoutUnit;
    std::uint32_t address = 0; // the unit's address; 0 when everybody is reached

    friend bool operator==(const RequestTarget&, const RequestTarget&) = default;
};

// `record` is that of the selected unit, or null. `addressesOfMany` are the addresses, as far as
// they are known, that more than one host hears; 255.255.255.255 and multicast addresses always do.
RequestTarget targetOfRequest(const UnitRecord* record,
                              std::span<const std::uint32_t> addressesOfMany);

} // namespace kx
