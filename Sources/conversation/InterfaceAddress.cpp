#include "conversation/InterfaceAddress.h"

#include "addresses/IPv4Address.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace kx {

namespace {

PropertyList addressesOfService(NetworkInterfaces& interfaces, std::string_view serviceID,
                                std::string_view key) {
    const auto value = interfaces.serviceDataForDictionaryNameKey(serviceID, "IPv4", key);
    const PropertyList* const addresses = value.has_value() ? value->list() : nullptr;
    return addresses != nullptr ? *addresses : PropertyList();
}

std::uint32_t addressAt(const PropertyList& addresses, std::size_t index) {
    const std::string* const text = index < addresses.size() ? addresses[index].text() : nullptr;
    return text != nullptr ? ipForString(*text) : 0;
}

} // namespace

InterfaceAddress addressOfInterface(NetworkInterfaces& interfaces, std::string_view bsdName) {
    const auto all = addressesOfInterface(interfaces, bsdName);
    return all.empty() ? InterfaceAddress() : all.front();
}

std::vector<InterfaceAddress> addressesOfInterface(NetworkInterfaces& interfaces,
                                                   std::string_view bsdName) {
    const auto serviceID = interfaces.serviceIDForInterface(bsdName);
    if (!serviceID.has_value()) {
        return {};
    }
    const PropertyList addresses = addressesOfService(interfaces, *serviceID, "Addresses");
    const PropertyList masks = addressesOfService(interfaces, *serviceID, "SubnetMasks");
    std::vector<InterfaceAddress> all(std::max(addresses.size(), masks.size()));
    for (std::size_t i = 0; i < all.size(); ++i) {
        all[i] = {.address = addressAt(addresses, i), .mask = addressAt(masks, i)};
    }
    return all;
}

} // namespace kx
