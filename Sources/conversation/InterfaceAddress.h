// The address by which this host is in the network of an interface.
//
// Main thread only. Numbers are in host byte order.

#pragma once

#include "System Configuration/NetworkInterfaces.h"

#include <cstdint>
#include <string_view>

namespace kx {

struct InterfaceAddress {
    std::uint32_t address = 0; // 0: none is known
    std::uint32_t mask = 0;
};

// The first IPv4 address of the service that covers the interface of this name in the system, and
// its mask; 0 for whatever is missing or does not parse.
InterfaceAddress addressOfInterface(NetworkInterfaces& interfaces, std::string_view bsdName);

} // namespace kx
