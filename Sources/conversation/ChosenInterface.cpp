#include "conversation/ChosenInterface.h"

namespace kx {

namespace {

// In a subnet of one or two addresses, the broadcast address is that of a host.
constexpr std::uint32_t longestMaskWithBroadcast = 0xFFFFFFFCU;

bool hasBroadcastAddress(const InterfaceAddress& address) {
    return address.address == 0 || address.mask <= longestMaskWithBroadcast;
}

} // namespace

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
    if (!state->canBroadcast || !hasBroadcastAddress(now)) {
        return found(InterfaceFault::withoutBroadcast);
    }
    if (now == chosen.address) {
        return std::nullopt;
    }
    return found(now.address == 0 ? InterfaceFault::lostAddress : InterfaceFault::outOfDate);
}

} // namespace kx
