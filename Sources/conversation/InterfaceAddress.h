// The IPv4 addresses and the masks of this host on its interfaces, and their broadcast addresses.
//
// Main thread only. Numbers are in host byte order.

#pragma once

#include "System Configuration/NetworkInterfaces.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace kx {

struct InterfaceAddress {
    std::uint32_t address = 0; // 0 when none is known
    std::uint32_t mask = 0;

    friend bool operator==(const InterfaceAddress&, const InterfaceAddress&) = default;
};

// The first IPv4 address of the service that covers the interface of this name in the system, and
// its mask. A value that is missing or does not parse is 0.
InterfaceAddress addressOfInterface(NetworkInterfaces& interfaces, std::string_view bsdName);

// All of them, in the order of the service; an address that is missing or does not parse is 0.
std::vector<InterfaceAddress> addressesOfInterface(NetworkInterfaces& interfaces,
                                                   std::string_view bsdName);

// The same of the kernel's interface itself. A service may tell addresses that are saved for it and
// that its interface does not have; from those nothing leaves.
std::vector<InterfaceAddress> presentAddressesOfInterface(NetworkInterfaces& interfaces,
                                                          std::string_view bsdName);

// All hosts of the address's subnet; absent when there is no address, and in a subnet of one or two
// addresses, which has no broadcast address. An address whose mask is missing has 255.255.255.255.
std::optional<std::uint32_t> broadcastAddressOf(const InterfaceAddress& address);

// All addresses of all interfaces of the host, in the order of the pop-up, without those that are
// missing. Empty when the system tells nothing.
std::vector<InterfaceAddress> addressesOfHost(NetworkInterfaces& interfaces);

// The broadcast addresses of these addresses, in their order; one may be there several times.
std::vector<std::uint32_t> broadcastAddressesOf(const std::vector<InterfaceAddress>& addresses);

} // namespace kx
