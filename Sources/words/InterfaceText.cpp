#include "words/InterfaceText.h"

#include "addresses/IPv4Address.h"
#include "support/LocalizedText.h"

namespace kx {

namespace {

std::string textOfAddress(const InterfaceAddress& address, std::uint32_t broadcastAddress) {
    const std::string broadcast = stringForIP(broadcastAddress);
    return address.address != 0
               ? localizedText("Address %@, mask %@, broadcast address %@.",
                               {stringForIP(address.address), stringForIP(address.mask), broadcast})
               : localizedText("The interface has no IPv4 address, so Discover asks %@.",
                               {broadcast});
}

} // namespace

std::string descriptionOfInterface(const std::optional<ChosenInterface>& chosen,
                                   const std::optional<InterfaceState>& state,
                                   std::uint32_t broadcastAddress) {
    if (!chosen.has_value()) {
        return localizedText("No interface is chosen, so Discover asks %@.",
                             {stringForIP(broadcastAddress)});
    }
    std::string address = textOfAddress(chosen->address, broadcastAddress);
    if (!state.has_value()) {
        return address;
    }
    return address + ' ' +
           (state->isRunning ? localizedText("The link is up.")
                             : localizedText("The link is down."));
}

} // namespace kx
