#include "conversation/ChosenInterface.h"

#include "conversation/UnitDestination.h"

#include <algorithm>

namespace kx {

std::optional<InterfaceFinding> faultOfInterface(NetworkInterfaces& interfaces,
                                                 const ChosenInterface& chosen, bool exists) {
    const auto found = [&chosen](InterfaceFault fault) {
        return InterfaceFinding{.fault = fault, .interface = chosen.name};
    };
    if (!exists) {
        return found(InterfaceFault::gone);
    }
    const auto state = interfaces.interfaceState(chosen.name);
    if (!state.has_value()) {
        return std::nullopt;
    }
    if (!state->isRunning) {
        return found(InterfaceFault::withoutLink);
    }
    const InterfaceAddress now = addressOfInterface(interfaces, chosen.name);
    const bool isSmallSubnet = now.address != 0 && !broadcastAddressOf(now).has_value();
    if (!state->canBroadcast || isSmallSubnet) {
        return found(InterfaceFault::withoutBroadcast);
    }
    const bool hasLostAll =
        chosen.address.address != 0 && presentAddressesOfInterface(interfaces, chosen.name).empty();
    if (hasLostAll) {
        return found(InterfaceFault::lostAddress);
    }
    return now == chosen.address ? std::nullopt : std::optional(found(InterfaceFault::outOfDate));
}

bool broadcastCanLeave(NetworkInterfaces& interfaces, std::string_view bsdName,
                       std::uint32_t address) {
    if (address == limitedBroadcastAddress || !interfaces.interfaceState(bsdName).has_value()) {
        return true;
    }
    const auto all = presentAddressesOfInterface(interfaces, bsdName);
    return std::ranges::any_of(all, [address](const InterfaceAddress& each) {
        return directedBroadcastAddress(each.address, each.mask) == address;
    });
}

} // namespace kx
