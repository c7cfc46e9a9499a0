#include "conversation/RequestTarget.h"

#include "addresses/IPv4Address.h"

#include <algorithm>

namespace kx {

namespace {

// 224.0.0.0 to 239.255.255.255.
bool isMulticast(std::uint32_t address) {
    return address >> 28U == 0xEU;
}

} // namespace

RequestTarget targetOfRequest(const UnitRecord* record,
                              std::span<const std::uint32_t> addressesOfMany) {
    if (record == nullptr) {
        return {.reach = RequestReach::everybodyWithoutUnit};
    }
    const auto text = record->value(UnitParameter::internalIPAddress);
    if (!text.has_value()) {
        return {.reach = RequestReach::everybodyWithoutAddress};
    }
    const std::uint32_t address = ipForString(*text);
    if (address == limitedBroadcastAddress || isMulticast(address) ||
        std::ranges::find(addressesOfMany, address) != addressesOfMany.end()) {
        return {.reach = RequestReach::everybodyAtItsAddress};
    }
    return {.reach = RequestReach::oneUnit, .address = address};
}

} // namespace kx
