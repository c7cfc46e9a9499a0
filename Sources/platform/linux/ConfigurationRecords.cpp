#include "platform/linux/ConfigurationRecords.h"

#include "System Configuration/ConfigurationKeys.h"
#include "addresses/IPv4Address.h"
#include "support/LocalizedText.h"
#include "support/TextFormat.h"

#include <arpa/inet.h>

#include <algorithm>
#include <array>
#include <limits>
#include <set>
#include <tuple>
#include <utility>

namespace kx {

namespace {

constexpr std::string_view linkServicePrefix = "link-";
constexpr std::string_view locationSet = "automatic";
constexpr std::string_view locationSetName = "Automatic";

struct Service {
    std::string identifier;
    std::string name;
    const NetworkLink* link = nullptr; // never null
    std::vector<IPv4InterfaceAddress> savedAddresses;
};

struct KindNames {
    std::string_view userDefinedName; // the key of the localized name
    std::string_view type;
};

KindNames namesOfKind(LinkKind kind) {
    switch (kind) {
    case LinkKind::ethernet:
        return {localizedKey("Ethernet"), "Ethernet"};
    case LinkKind::wiFi:
        return {localizedKey("Wi-Fi"), "IEEE80211"};
    case LinkKind::bridge:
        return {localizedKey("Bridge"), "Bridge"};
    case LinkKind::vlan:
        return {localizedKey("VLAN"), "VLAN"};
    case LinkKind::bond:
        return {localizedKey("Bond"), "Bond"};
    case LinkKind::pointToPoint:
        return {localizedKey("PPP"), kSCValNetInterfaceTypePPP};
    case LinkKind::other:
        break;
    }
    return {localizedKey("Network"), "Network"};
}

// The service with the lower value comes first.
auto preference(const Service& service) {
    constexpr auto last = std::numeric_limits<std::uint64_t>::max();
    const auto metric = service.link->defaultRouteMetric;
    return std::tuple(metric.has_value() ? std::uint64_t{*metric} : last, service.link->index);
}

// A tunnel leads to one other host. A link over a telephone line does so too, but is a service of a
// kind of its own.
bool isTunnel(const NetworkLink& link) {
    return !link.canBroadcast && link.kind != LinkKind::pointToPoint;
}

// A profile may be active on several links at a time. All of them but the first then need an
// identifier of their own.
std::vector<Service> servicesOf(const std::vector<NetworkLink>& links,
                                const std::vector<ConnectionProfile>& profiles) {
    std::map<std::string_view, const NetworkLink*> linksByName;
    for (const auto& link : links) {
        linksByName.emplace(link.name, &link);
    }
    std::vector<Service> services;
    std::set<std::string_view> covered;
    std::set<std::string_view> identifiers;
    for (const auto& profile : profiles) {
        const auto found = linksByName.find(profile.interfaceName);
        if (found == linksByName.end() || found->second->isLoopback || isTunnel(*found->second)) {
            continue;
        }
        const bool isFirst = identifiers.insert(profile.identifier).second;
        services.push_back({isFirst
                                ? profile.identifier
                                : filledText("%@-%@", {profile.identifier, profile.interfaceName}),
                            profile.name, found->second, profile.addresses});
        covered.insert(profile.interfaceName);
    }
    for (const auto& link : links) {
        if (link.canBroadcast && !link.isLoopback && !link.ipv4Addresses.empty() &&
            !covered.contains(link.name)) {
            services.push_back({std::string(linkServicePrefix) + link.name,
                                localizedText(namesOfKind(link.kind).userDefinedName),
                                &link,
                                {}});
        }
    }
    std::ranges::stable_sort(services, {}, preference);
    return services;
}

std::optional<PropertyDictionary>
ipv4Record(const std::vector<IPv4InterfaceAddress>& interfaceAddresses) {
    if (interfaceAddresses.empty()) {
        return std::nullopt;
    }
    PropertyList addresses;
    PropertyList masks;
    for (const auto& address : interfaceAddresses) {
        addresses.emplace_back(stringForIP(address.address));
        masks.emplace_back(stringForIP(maskOfPrefixLength(address.prefixLength)));
    }
    return PropertyDictionary{
        {std::string(ipv4AddressesEntry), std::move(addresses)},
        {std::string(ipv4SubnetMasksEntry), std::move(masks)},
    };
}

std::optional<PropertyDictionary>
ipv6Record(const std::vector<IPv6InterfaceAddress>& interfaceAddresses) {
    if (interfaceAddresses.empty()) {
        return std::nullopt;
    }
    PropertyList addresses;
    PropertyList prefixLengths;
    for (const auto& address : interfaceAddresses) {
        std::array<char, INET6_ADDRSTRLEN> text{};
        ::inet_ntop(AF_INET6, address.address.data(), text.data(), text.size());
        addresses.emplace_back(text.data());
        prefixLengths.emplace_back(std::int64_t{address.prefixLength});
    }
    return PropertyDictionary{
        {std::string(ipv6AddressesEntry), std::move(addresses)},
        {std::string(ipv6PrefixLengthEntry), std::move(prefixLengths)},
    };
}

PropertyDictionary interfaceRecord(const Service& service) {
    return {
        {std::string(kSCPropNetInterfaceDeviceName), service.link->name},
        {std::string(kSCPropNetInterfaceType), namesOfKind(service.link->kind).type},
        {std::string(kSCPropUserDefinedName), service.name},
    };
}

void addLink(const NetworkLink& link, ConfigurationRecords& records) {
    const auto add = [&](std::string_view entity, std::optional<PropertyDictionary> record) {
        if (record.has_value()) {
            records.dynamicStore.emplace(filledText(stateInterfaceEntityKey, {link.name, entity}),
                                         std::move(*record));
        }
    };
    add(kSCEntNetIPv4, ipv4Record(link.ipv4Addresses));
    add(ipv6Entity, ipv6Record(link.ipv6Addresses));
    add(linkEntity, PropertyDictionary{{std::string(linkActiveEntry), link.isRunning ? 1 : 0}});
}

void addService(const Service& service, ConfigurationRecords& records,
                PropertyDictionary& savedServices) {
    records.dynamicStore.insert_or_assign(
        filledText(setupServiceInterfaceKey, {service.identifier}), interfaceRecord(service));
    const auto state = ipv4Record(service.link->ipv4Addresses);
    if (state.has_value()) {
        records.dynamicStore.insert_or_assign(
            filledText(stateServiceEntityKey, {service.identifier, kSCEntNetIPv4}), *state);
    }
    PropertyDictionary saved{{std::string(interfaceEntity), interfaceRecord(service)}};
    if (auto ipv4 = ipv4Record(service.savedAddresses)) {
        saved.emplace(kSCEntNetIPv4, std::move(*ipv4));
    }
    savedServices.insert_or_assign(service.identifier, std::move(saved));
}

PropertyDictionary nested(std::string_view key, PropertyDictionary dictionary) {
    return {{std::string(key), std::move(dictionary)}};
}

PropertyDictionary locationSets(const std::optional<PropertyDictionary>& global) {
    PropertyDictionary set{{std::string(kSCPropUserDefinedName), locationSetName}};
    if (global.has_value()) {
        set.emplace("Network", nested("Global", nested(kSCEntNetIPv4, *global)));
    }
    return nested(locationSet, std::move(set));
}

} // namespace

ConfigurationRecords configurationRecords(const std::vector<NetworkLink>& links,
                                          const std::vector<ConnectionProfile>& profiles) {
    ConfigurationRecords records;
    for (const auto& link : links) {
        addLink(link, records);
    }
    PropertyList order;
    PropertyDictionary savedServices;
    for (const auto& service : servicesOf(links, profiles)) {
        order.emplace_back(service.identifier);
        addService(service, records, savedServices);
    }
    std::optional<PropertyDictionary> global;
    if (!order.empty()) {
        global = {{std::string(serviceOrderEntry), std::move(order)}};
        records.dynamicStore.emplace(setupGlobalIPv4Key, *global);
        records.preferences.emplace("NetworkServices", std::move(savedServices));
    }
    records.preferences.emplace(kSCPrefCurrentSet, std::string(setsPrefix) += locationSet);
    records.preferences.emplace(kSCPrefSets, locationSets(global));
    return records;
}

const PropertyDictionary* dictionaryAtPath(const PropertyDictionary& root, std::string_view path) {
    const PropertyDictionary* dictionary = &root;
    if (path.empty()) {
        return nullptr;
    }
    while (dictionary != nullptr && !path.empty()) {
        if (!path.starts_with('/')) {
            return nullptr;
        }
        path.remove_prefix(1);
        const std::string_view component = path.substr(0, path.find('/'));
        path.remove_prefix(component.size());
        const auto* const value = valueForKey(*dictionary, component);
        dictionary = value != nullptr ? value->dictionary() : nullptr;
    }
    return dictionary;
}

std::vector<std::string> changedKeys(const ConfigurationRecords& before,
                                     const ConfigurationRecords& after) {
    std::vector<std::string> keys;
    for (const auto& [key, record] : before.dynamicStore) {
        const auto found = after.dynamicStore.find(key);
        if (found == after.dynamicStore.end() || found->second != record) {
            keys.push_back(key);
        }
    }
    for (const auto& [key, record] : after.dynamicStore) {
        if (!before.dynamicStore.contains(key)) {
            keys.push_back(key);
        }
    }
    std::ranges::sort(keys);
    return keys;
}

} // namespace kx
