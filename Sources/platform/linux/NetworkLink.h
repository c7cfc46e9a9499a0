// A network link of the host as the kernel describes it, with its addresses. A value type.

#pragma once

#include "addresses/SocketAddressRecord.h"
#include "support/ByteRange.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kx {

// The kind of a link, for a person who looks for it. `other` stands for every kind without a name
// of its own.
enum class LinkKind { ethernet, wiFi, bridge, vlan, bond, pointToPoint, other };

struct IPv4InterfaceAddress {
    std::uint32_t address = 0; // in host byte order
    unsigned prefixLength = 0; // 0 to 32
    int scope = 0;             // RT_SCOPE_UNIVERSE and so on (rtnetlink(7)); 0 reaches farthest

    friend bool operator==(const IPv4InterfaceAddress&, const IPv4InterfaceAddress&) = default;
};

struct IPv6InterfaceAddress {
    IPv6Octets address{};
    unsigned prefixLength = 0; // 0 to 128

    friend bool operator==(const IPv6InterfaceAddress&, const IPv6InterfaceAddress&) = default;
};

struct NetworkLink {
    int index = 0;    // the kernel's number; no two links share one
    std::string name; // UTF-8
    LinkKind kind = LinkKind::other;
    bool isUp = false;      // the administrator has set it up
    bool isRunning = false; // up and with a carrier: it carries datagrams
    bool isLoopback = false;
    bool canBroadcast = false;
    bool isPointToPoint = false;
    bool canMulticast = false;
    Bytes hardwareAddress; // empty when the link has none
    // By scope: global before link before host. In the kernel's order within one scope, the primary
    // ones first.
    std::vector<IPv4InterfaceAddress> ipv4Addresses;
    std::vector<IPv6InterfaceAddress> ipv6Addresses;

    // The metric of the default route out of this link; the lowest one when there are several. The
    // host prefers the link with the lowest metric. Absent without a default route.
    std::optional<std::uint32_t> defaultRouteMetric;
};

// The mask of a prefix length. Its bits are set from the most significant bit on.
constexpr std::uint32_t maskOfPrefixLength(unsigned prefixLength) {
    return prefixLength == 0
               ? 0
               : ~std::uint32_t{0} << (32U - (prefixLength < 32 ? prefixLength : 32U));
}

static_assert(maskOfPrefixLength(0) == 0);
static_assert(maskOfPrefixLength(24) == 0xFFFFFF00U);
static_assert(maskOfPrefixLength(32) == 0xFFFFFFFFU);

} // namespace kx
