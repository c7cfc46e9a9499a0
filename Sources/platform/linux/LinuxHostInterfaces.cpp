#include "platform/linux/LinuxHostInterfaces.h"

#include "System Configuration/InterfaceTitles.h"

#include <algorithm>

namespace kx {

namespace {

const char* nameOfKind(const NetworkLink& link) {
    if (link.isLoopback) {
        return "loopback";
    }
    switch (link.kind) {
    case LinkKind::ethernet:
        return "ethernet";
    case LinkKind::wiFi:
        return "wi-fi";
    case LinkKind::bridge:
        return "bridge";
    case LinkKind::vlan:
        return "vlan";
    case LinkKind::bond:
        return "bond";
    case LinkKind::pointToPoint:
        return "point-to-point";
    case LinkKind::other:
        break;
    }
    return "other";
}

// Services that no person has named have identifiers of our own.
bool isProfile(const std::string& serviceID) {
    return !serviceID.starts_with("=") && !serviceID.starts_with("link-");
}

void takeLink(const NetworkLink& link, HostInterface& interface) {
    interface.kind = nameOfKind(link);
    interface.link = static_cast<std::uint32_t>(link.index);
    interface.hardwareAddress = link.hardwareAddress;
    for (const IPv4InterfaceAddress& each : link.ipv4Addresses) {
        interface.networks.push_back({each.address, maskOfPrefixLength(each.prefixLength)});
    }
    interface.canBroadcast = link.canBroadcast;
    interface.isRunning = link.isRunning;
    interface.canAsk =
        link.isRunning && link.canBroadcast && !link.isLoopback && !interface.networks.empty();
}

} // namespace

std::vector<HostInterface> hostInterfaces(const std::vector<std::string>& titles,
                                          const std::vector<std::string>& serviceIDs,
                                          const std::vector<NetworkLink>& links) {
    std::vector<HostInterface> interfaces;
    for (std::size_t i = 0; i < titles.size(); ++i) {
        HostInterface interface;
        interface.title = titles[i];
        interface.name = bsdNameForTitle(titles[i]);
        interface.userName = userNameForTitle(titles[i]);
        interface.hasProfile = i < serviceIDs.size() && isProfile(serviceIDs[i]);
        interface.kind = "other";
        const auto link = std::ranges::find(links, interface.name, &NetworkLink::name);
        if (link != links.end()) {
            takeLink(*link, interface);
        }
        interfaces.push_back(std::move(interface));
    }
    return interfaces;
}

std::vector<HostInterface> LinuxHostInterfaces::list() {
    std::vector<std::string> serviceIDs;
    const auto titles = _titles.bsdTitlesAndServiceIDs(&serviceIDs);
    const auto* const links = _links.links();
    if (!titles.has_value() || links == nullptr) {
        return {};
    }
    return hostInterfaces(*titles, serviceIDs, *links);
}

} // namespace kx
