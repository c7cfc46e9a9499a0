#include "conversation/InterfaceAddress.h"

#include "addresses/IPv4Address.h"
#include "conversation/UnitDestination.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace kx {

namespace {

PropertyList listOfService(NetworkInterfaces& interfaces, std::string_view serviceID,
                           std::string_view key) {
    const auto value = interfaces.serviceDataForDictionaryNameKey(serviceID, "IPv4", key);
    const PropertyList* const addresses = value.has_value() ? value->list() : nullptr;
    return addresses != nullptr ? *addresses : PropertyList();
}

// In a subnet of one or two addresses, the broadcast address is that of a host.
constexpr std::uint32_t longestMaskWithBroadcast = 0xFFFFFFFCU;

std::uint32_t addressAt(const PropertyList& addresses, std::size_t index) {
    const std::string* const text = index < addresses.size() ? addresses[index].text() : nullptr;
    return text != nullptr ? ipForString(*text) : 0;
}

std::vector<InterfaceAddress> addressesOfService(NetworkInterfaces& interfaces,
                                                 std::string_view serviceID) {
    const PropertyList addresses = listOfService(interfaces, serviceID, "Addresses");
    const PropertyList masks = listOfService(interfaces, serviceID, "SubnetMasks");
    std::vector<InterfaceAddress> all(std::max(addresses.size(), masks.size()));
    for (std::size_t i = 0; i < all.size(); ++i) {
        all[i] = {.address = addressAt(addresses, i), .mask = addressAt(masks, i)};
    }
    return all;
}

} // namespace

InterfaceAddress addressOfInterface(NetworkInterfaces& interfaces, std::string_view bsdName) {
    const auto all = addressesOfInterface(interfaces, bsdName);
    return all.empty() ? InterfaceAddress() : all.front();
}

std::vector<InterfaceAddress> addressesOfInterface(NetworkInterfaces& interfaces,
                                                   std::string_view bsdName) {
    const auto serviceID = interfaces.serviceIDForInterface(bsdName);
    return serviceID.has_value() ? addressesOfService(interfaces, *serviceID)
                                 : std::vector<InterfaceAddress>();
}

std::optional<std::uint32_t> broadcastAddressOf(const InterfaceAddress& address) {
    return address.address != 0 && address.mask <= longestMaskWithBroadcast
               ? std::optional(directedBroadcastAddress(address.address, address.mask))
               : std::nullopt;
}

std::vector<InterfaceAddress> addressesOfHost(NetworkInterfaces& interfaces) {
    std::vector<std::string> serviceIDs;
    interfaces.bsdTitlesAndServiceIDs(&serviceIDs);
    std::vector<InterfaceAddress> all;
    for (const std::string& serviceID : serviceIDs) {
        const auto ofService = addressesOfService(interfaces, serviceID);
        all.insert(all.end(), ofService.begin(), ofService.end());
    }
    return all;
}

std::vector<std::uint32_t> broadcastAddressesOfHost(NetworkInterfaces& interfaces) {
    std::vector<std::uint32_t> broadcasts;
    for (const InterfaceAddress& each : addressesOfHost(interfaces)) {
        if (const auto broadcast = broadcastAddressOf(each)) {
            broadcasts.push_back(*broadcast);
        }
    }
    return broadcasts;
}

} // namespace kx
