// The IPv4 address and the mask of this host on an interface.
//
// Main thread only. Numbers are in host byte order.

#pragma once

#include "System Configuration/NetworkInterfaces.h"

#include <cstdint>
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

} // namespace kx
