#include "conversation/HostInterface.h"

#include "conversation/UnitDestination.h"

#include <algorithm>
#include <iterator>

namespace kx {

std::uint32_t HostInterface::broadcast() const {
    return networks.empty() ? limitedBroadcastAddress : networks.front().broadcast();
}

const NetworkOfInterface* HostInterface::networkOf(std::uint32_t address) const {
    const auto found = std::ranges::find_if(
        networks, [address](const auto& network) { return network.contains(address); });
    return found != networks.end() ? &*found : nullptr;
}

namespace {

// An interface with several services has a title for each.
template<class Rule>
std::vector<HostInterface> oneOfEachLink(const std::vector<HostInterface>& interfaces,
                                         const Rule& rule) {
    std::vector<HostInterface> chosen;
    std::ranges::copy_if(interfaces, std::back_inserter(chosen), [&](const auto& interface) {
        return rule(interface) &&
               std::ranges::find(chosen, interface.name, &HostInterface::name) == chosen.end();
    });
    return chosen;
}

} // namespace

std::vector<HostInterface> interfacesNamed(const std::vector<HostInterface>& interfaces,
                                           std::string_view typed) {
    return oneOfEachLink(interfaces, [typed](const HostInterface& interface) {
        return interface.name == typed || interface.title == typed ||
               (interface.hasProfile && interface.userName == typed);
    });
}

std::vector<HostInterface> askableInterfaces(const std::vector<HostInterface>& interfaces) {
    return oneOfEachLink(interfaces,
                         [](const HostInterface& interface) { return interface.canAsk; });
}

std::vector<std::uint32_t> addressesOfMany(const std::vector<HostInterface>& interfaces) {
    std::vector<std::uint32_t> addresses{0};
    for (const HostInterface& interface : interfaces) {
        for (const NetworkOfInterface& network : interface.networks) {
            for (const std::uint32_t address :
                 {network.address & network.mask, network.broadcast()}) {
                if (network.isOfNetwork(address)) {
                    addresses.push_back(address);
                }
            }
        }
    }
    return addresses;
}

AddressObjection objectionToAddress(std::uint32_t address,
                                    const std::vector<HostInterface>& interfaces,
                                    const std::vector<HostInterface>& asked) {
    const auto isAny = [](const std::vector<HostInterface>& some, const auto& rule) {
        return std::ranges::any_of(some, [&rule](const HostInterface& interface) {
            return std::ranges::any_of(interface.networks, rule);
        });
    };
    if (isAny(interfaces, [address](const auto& network) { return network.address == address; })) {
        return AddressObjection::isOwn;
    }
    if (isAny(interfaces,
              [address](const auto& network) { return network.isOfNetwork(address); })) {
        return AddressObjection::isOfNetwork;
    }
    return isAny(asked, [address](const auto& network) { return network.contains(address); })
               ? AddressObjection::none
               : AddressObjection::isOutside;
}

} // namespace kx
