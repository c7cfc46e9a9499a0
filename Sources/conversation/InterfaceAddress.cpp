#include "conversation/InterfaceAddress.h"

#include "addresses/IPv4Address.h"
#include "conversation/UnitDestination.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace kx {

namespace {

PropertyList listIn(const std::optional<PropertyListValue>& value) {
    const PropertyList* const list = value.has_value() ? value->list() : nullptr;
    return list != nullptr ? *list : PropertyList();
}

// In a subnet of one or two addresses, the broadcast address is that of a host.
constexpr std::uint32_t longestMaskWithBroadcast = 0xFFFFFFFCU;

std::uint32_t addressAt(const PropertyList& addresses, std::size_t index) {
    const std::string* const text = index < addresses.size() ? addresses[index].text() : nullptr;
    return text != nullptr ? ipForString(*text) : 0;
}

// `dataForKey` gives one entry of the IPv4 dictionary.
template<class DataForKey>
std::vector<InterfaceAddress> addressesIn(const DataForKey& dataForKey) {
    const PropertyList addresses = listIn(dataForKey("Addresses"));
    const PropertyList masks = listIn(dataForKey("SubnetMasks"));
    std::vector<InterfaceAddress> all(std::max(addresses.size(), masks.size()));
    for (std::size_t i = 0; i < all.size(); ++i) {
        all[i] = {.address = addressAt(addresses, i), .mask = addressAt(masks, i)};
    }
    return all;
}

std::vector<InterfaceAddress> addressesOfService(NetworkInterfaces& interfaces,
                                                 std::string_view serviceID) {
    return addressesIn([&](std::string_view key) {
        return interfaces.serviceDataForDictionaryNameKey(serviceID, "IPv4", key);
    });
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

std::vector<InterfaceAddress> presentAddressesOfInterface(NetworkInterfaces& interfaces,
                                                          std::string_view bsdName) {
    return addressesIn([&](std::string_view key) {
        return interfaces.interfaceDataForDictionaryNameKey(bsdName, "IPv4", key);
    });
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
        for (const InterfaceAddress& each : addressesOfService(interfaces, serviceID)) {
            if (each.address != 0) {
                all.push_back(each);
            }
        }
    }
    return all;
}

std::vector<std::uint32_t> broadcastAddressesOf(const std::vector<InterfaceAddress>& addresses) {
    std::vector<std::uint32_t> broadcasts;
    for (const InterfaceAddress& each : addresses) {
        if (const auto broadcast = broadcastAddressOf(each)) {
            broadcasts.push_back(*broadcast);
        }
    }
    return broadcasts;
}

} // namespace kx
