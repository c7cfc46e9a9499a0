#include "conversation/UnitDestination.h"

#include "addresses/IPv4Address.h"
#include "units/UnitCommand.h"

namespace kx {

std::uint32_t directedBroadcastAddress(std::uint32_t address, std::uint32_t mask) {
    return address != 0 ? address | ~mask : limitedBroadcastAddress;
}

UnitDestination destinationOfUnit(const UnitRecord* record, std::uint32_t everybody) {
    const auto valueOf = [record](UnitParameter parameter) {
        return record != nullptr ? record->value(parameter) : std::nullopt;
    };
    const auto address = valueOf(UnitParameter::internalIPAddress);
    return {.address = address.has_value() ? ipForString(*address) : everybody,
            .port = unitPortForText(valueOf(UnitParameter::devicePortNumber))};
}

} // namespace kx
