#include "conversation/UnitDestination.h"

#include "addresses/IPv4Address.h"
#include "units/UnitCommand.h"

namespace kx {

std::uint32_t directedBroadcastAddress(std::uint32_t address, std::uint32_t mask) {
    return address != 0 ? address | ~mask : limitedBroadcastAddress;
}

UnitDestination destinationOfUnit(const UnitRecord* record, Everybody everybody) {
    const auto valueOf = [record](UnitParameter parameter) {
        return record != nullptr ? record->value(parameter) : std::nullopt;
    };
    const auto address = valueOf(UnitParameter::internalIPAddress);
    const auto port = unitPortForText(valueOf(UnitParameter::devicePortNumber));
    return address.has_value() ? UnitDestination{ipForString(*address), port, record->link()}
                               : UnitDestination{everybody.address, port, everybody.link};
}

} // namespace kx
