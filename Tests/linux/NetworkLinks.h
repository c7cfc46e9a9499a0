// Links of a host as the system tells them, for tests that need no network.

#pragma once

#include "platform/linux/NetworkLink.h"

#include <string>
#include <utility>

namespace kx {

// A link that is up and running and can broadcast, without an address.
inline NetworkLink link(int index, std::string name, LinkKind kind = LinkKind::ethernet) {
    NetworkLink result;
    result.index = index;
    result.name = std::move(name);
    result.kind = kind;
    result.isUp = result.isRunning = result.canBroadcast = true;
    return result;
}

// Its address ends with its index: 192.0.2.2/24 for link 2.
inline NetworkLink linkWithAddress(int index, std::string name,
                                   LinkKind kind = LinkKind::ethernet) {
    NetworkLink result = link(index, std::move(name), kind);
    result.ipv4Addresses = {{0xC0000200U + static_cast<unsigned>(index), 24}};
    return result;
}

} // namespace kx
