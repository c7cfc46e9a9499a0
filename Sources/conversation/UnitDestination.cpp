#include "conversation/UnitDestination.h"

#include "addresses/IPv4Address.h"
#include "units/UnitCommand.h"

namespace kx {

std::uint32_t directedBroadcastAddress(std::uint32_t address, std::uint32_t mask) {
    return address != 0 ? address | ~mask : limitedBroadcastAddress;
}

std::uint32_t linkToAddress(std::uint32_t address, Everybody everybody, std::uint32_t heard) {
    const bool isBroadcast = address == limitedBroadcastAddress || address == everybody.address;
    return isBroadcast && everybody.link != 0 ? everybody.link : heard;
}

UnitDestination destinationOfUnit(const UnitRecord* record, Everybody everybody) {
    const auto valueOf = [record](UnitParameter parameter) {
        return record != nullptr ? record->value(parameter) : std::nullopt;
    };
    const auto text = valueOf(UnitParameter::internalIPAddress);
    const auto port = unitPortForText(valueOf(UnitParameter::devicePortNumber));
    if (!text.has_value()) {
        return {everybody.address, port, everybody.link};
    }
    const std::uint32_t address = ipForString(*text);
    return {address, port, linkToAddress(address, everybody, record->link())};
}

} // namespace kx
