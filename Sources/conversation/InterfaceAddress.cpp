#include "conversation/InterfaceAddress.h"

#include "addresses/IPv4Address.h"

#include <string>

namespace kx {

namespace {

std::uint32_t firstAddressOfService(NetworkInterfaces& interfaces, std::string_view serviceID,
                                    std::string_view key) {
    const auto value = interfaces.serviceDataForDictionaryNameKey(serviceID, "IPv4", key);
    const PropertyList* const addresses = value.has_value() ? value->list() : nullptr;
    const std::string* const first =
        addresses != nullptr && !addresses->empty() ? addresses->front().text() : nullptr;
    return first != nullptr ? ipForString(*first) : 0;
}

} // namespace

InterfaceAddress addressOfInterface(NetworkInterfaces& interfaces, std::string_view bsdName) {
    const auto serviceID = interfaces.serviceIDForInterface(bsdName);
    if (!serviceID.has_value()) {
        return {};
    }
    return {.address = firstAddressOfService(interfaces, *serviceID, "Addresses"),
            .mask = firstAddressOfService(interfaces, *serviceID, "SubnetMasks")};
}

} // namespace kx
