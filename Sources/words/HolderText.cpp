#include "words/HolderText.h"

#include "addresses/IPv4Address.h"
#include "support/LocalizedText.h"

namespace kx {

std::string textOfHolders(const AddressHolders& holders) {
    const std::string address = stringForIP(holders.address);
    if (holders.state == HolderState::free) {
        return localizedText("%@ is free: nobody answers for it.", {address});
    }
    if (holders.state == HolderState::unknown || holders.holders.empty()) {
        return localizedText("Whether somebody holds %@ could not be found out.", {address});
    }
    const auto& holder = holders.holders.front();
    return holder.serialNumber.has_value()
               ? localizedText("%@ is held by %@, unit %@.",
                               {address, holder.hardwareAddress, *holder.serialNumber})
               : localizedText("%@ is held by %@.", {address, holder.hardwareAddress});
}

} // namespace kx
