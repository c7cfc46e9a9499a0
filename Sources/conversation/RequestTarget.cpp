#include "conversation/RequestTarget.h"

#include "addresses/IPv4Address.h"
#include "conversation/UnitDestination.h"

#include <algorithm>

namespace kx {

namespace {

// 224.0.0.0 to 239.255.255.255.
bool isMulticast(std::uint32_t address) {
    return address >> 28U == 0xEU;
}

} // namespace

bool isAddressOfMany(std::uint32_t address, std::span<const std::uint32_t> broadcastAddresses) {
    return address == 0 || address == limitedBroadcastAddress || isMulticast(address) ||
           std::ranges::find(broadcastAddresses, address) != broadcastAddresses.end();
}

RequestTarget targetOfRequest(bool unitIsSelected, const UnitRecord* record,
                              std::span<const std::uint32_t> broadcastAddresses) {
    if (!unitIsSelected) {
        return {.reach = RequestReach::everybodyWithoutUnit};
    }
    const auto text =
        record != nullptr ? record->value(UnitParameter::internalIPAddress) : std::nullopt;
    if (!text.has_value()) {
        return {.reach = RequestReach::everybodyWithoutAddress};
    }
    const std::uint32_t address = ipForString(*text);
    if (isAddressOfMany(address, broadcastAddresses)) {
        return {.reach = RequestReach::everybodyAtItsAddress};
    }
    return {.reach = RequestReach::oneUnit, .address = address};
}

} // namespace kx
