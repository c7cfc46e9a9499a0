#include "platform/linux/RtnetlinkSnapshot.h"

#include <net/if.h>
#include <net/if_arp.h>
#include <netlink/cache.h>
#include <netlink/errno.h>
#include <netlink/msg.h>
#include <netlink/netlink.h>
#include <netlink/route/addr.h>
#include <netlink/route/link.h>
#include <netlink/route/nexthop.h>
#include <netlink/route/route.h>
#include <netlink/socket.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <map>
#include <memory>
#include <string_view>
#include <utility>

namespace kx {

namespace {

struct SocketRelease {
    void operator()(nl_sock* socket) const { nl_socket_free(socket); }
};
struct CacheRelease {
    void operator()(nl_cache* cache) const { nl_cache_free(cache); }
};
struct RouteRelease {
    void operator()(rtnl_route* route) const { rtnl_route_put(route); }
};
using Socket = std::unique_ptr<nl_sock, SocketRelease>;
using Cache = std::unique_ptr<nl_cache, CacheRelease>;
using Route = std::unique_ptr<rtnl_route, RouteRelease>;

using LinksByIndex = std::map<int, NetworkLink>;

constexpr timeval longestWait{0, 500'000};

// The library's codes that matter here, as values of errno.
int errnoOfCode(int code) {
    switch (-code) {
    case NLE_AGAIN:
        return ETIMEDOUT;
    case NLE_NOMEM:
        return ENOMEM;
    case NLE_PERM:
        return EPERM;
    case NLE_NOACCESS:
        return EACCES;
    case NLE_AF_NOSUPPORT:
        return EAFNOSUPPORT;
    default:
        return EIO;
    }
}

// Null, with errno set, when the system refuses.
Socket openSocket() {
    Socket socket(nl_socket_alloc());
    if (socket == nullptr) {
        errno = ENOMEM;
        return nullptr;
    }
    const int code = nl_connect(socket.get(), NETLINK_ROUTE);
    if (code < 0) {
        errno = errnoOfCode(code);
        return nullptr;
    }
    if (::setsockopt(nl_socket_get_fd(socket.get()), SOL_SOCKET, SO_RCVTIMEO, &longestWait,
                     sizeof longestWait) != 0) {
        return nullptr;
    }
    return socket;
}

// Only the driver tells a wireless link from a wired one.
bool isWireless(const std::string& name) {
    return ::access(("/sys/class/net/" + name + "/phy80211").c_str(), F_OK) == 0;
}

LinkKind kindOfLink(rtnl_link* link, const std::string& name) {
    const char* const type = rtnl_link_get_type(link);
    const std::string_view kind = type != nullptr ? type : "";
    if (kind == "bridge") {
        return LinkKind::bridge;
    }
    if (kind == "vlan") {
        return LinkKind::vlan;
    }
    if (kind == "bond" || kind == "team") {
        return LinkKind::bond;
    }
    switch (rtnl_link_get_arptype(link)) {
    case ARPHRD_ETHER:
        return isWireless(name) ? LinkKind::wiFi : LinkKind::ethernet;
    case ARPHRD_PPP:
        return LinkKind::pointToPoint;
    default:
        return LinkKind::other;
    }
}

Bytes bytesOf(nl_addr* address) {
    if (address == nullptr) {
        return {};
    }
    const auto* const bytes = static_cast<const std::uint8_t*>(nl_addr_get_binary_addr(address));
    return {bytes, bytes + nl_addr_get_len(address)};
}

NetworkLink networkLink(rtnl_link* link) {
    const unsigned flags = rtnl_link_get_flags(link);
    NetworkLink result;
    result.index = rtnl_link_get_ifindex(link);
    result.name = rtnl_link_get_name(link);
    result.kind = kindOfLink(link, result.name);
    result.isUp = (flags & IFF_UP) != 0;
    result.isRunning = (flags & IFF_RUNNING) != 0;
    result.isLoopback = (flags & IFF_LOOPBACK) != 0;
    result.canBroadcast = (flags & IFF_BROADCAST) != 0;
    result.isPointToPoint = (flags & IFF_POINTOPOINT) != 0;
    result.canMulticast = (flags & IFF_MULTICAST) != 0;
    result.hardwareAddress = bytesOf(rtnl_link_get_addr(link));
    return result;
}

void addAddress(rtnl_addr* address, NetworkLink& link) {
    const Bytes bytes = bytesOf(rtnl_addr_get_local(address));
    const auto prefixLength = static_cast<unsigned>(rtnl_addr_get_prefixlen(address));
    if (rtnl_addr_get_family(address) == AF_INET && bytes.size() == 4) {
        std::uint32_t value = 0;
        for (const std::uint8_t byte : bytes) {
            value = value << 8U | byte;
        }
        link.ipv4Addresses.push_back({value, prefixLength});
    }
    IPv6InterfaceAddress ipv6{{}, prefixLength};
    if (rtnl_addr_get_family(address) == AF_INET6 && bytes.size() == ipv6.address.size()) {
        std::copy(bytes.begin(), bytes.end(), ipv6.address.begin());
        link.ipv6Addresses.push_back(ipv6);
    }
}

// Calls `visit` with each object of a cache as what it is.
template<class Object, class Visit>
void forEach(const Cache& cache, Visit visit) {
    for (nl_object* object = nl_cache_get_first(cache.get()); object != nullptr;
         object = nl_cache_get_next(object)) {
        // The library's own way from the base to the kind that the cache holds.
        visit(reinterpret_cast<Object*>(object));
    }
}

// Each returns a code of the library, negative for a failure.
int readLinks(nl_sock* socket, LinksByIndex& links) {
    nl_cache* read = nullptr;
    const int code = rtnl_link_alloc_cache(socket, AF_UNSPEC, &read);
    const Cache cache(code < 0 ? nullptr : read);
    if (cache != nullptr) {
        forEach<rtnl_link>(cache, [&links](rtnl_link* link) {
            links.insert_or_assign(rtnl_link_get_ifindex(link), networkLink(link));
        });
    }
    return code;
}

int readAddresses(nl_sock* socket, LinksByIndex& links) {
    nl_cache* read = nullptr;
    const int code = rtnl_addr_alloc_cache(socket, &read);
    const Cache cache(code < 0 ? nullptr : read);
    if (cache != nullptr) {
        forEach<rtnl_addr>(cache, [&links](rtnl_addr* address) {
            const auto link = links.find(rtnl_addr_get_ifindex(address));
            if (link != links.end()) {
                addAddress(address, link->second);
            }
        });
    }
    return code;
}

void addDefaultRoute(nlmsghdr* header, LinksByIndex& links) {
    rtnl_route* parsed = nullptr;
    if (rtnl_route_parse(header, &parsed) < 0) {
        return;
    }
    const Route route(parsed);
    const std::uint32_t metric = rtnl_route_get_priority(route.get());
    for (int i = 0; i < rtnl_route_get_nnexthops(route.get()); ++i) {
        const auto link =
            links.find(rtnl_route_nh_get_ifindex(rtnl_route_nexthop_n(route.get(), i)));
        if (link != links.end()) {
            auto& lowest = link->second.defaultRouteMetric;
            lowest = std::min(lowest.value_or(metric), metric);
        }
    }
}

// Called with every route; the many that are no default route are not even taken apart.
int routeReceived(nl_msg* message, void* links) {
    nlmsghdr* const header = nlmsg_hdr(message);
    if (header->nlmsg_type == RTM_NEWROUTE && nlmsg_valid_hdr(header, sizeof(rtmsg)) != 0) {
        rtmsg route;
        std::memcpy(&route, nlmsg_data(header), sizeof route);
        if (route.rtm_dst_len == 0 && route.rtm_table == RT_TABLE_MAIN &&
            route.rtm_type == RTN_UNICAST) {
            addDefaultRoute(header, *static_cast<LinksByIndex*>(links));
        }
    }
    return NL_OK;
}

int readDefaultRoutes(nl_sock* socket, LinksByIndex& links) {
    rtmsg request{};
    request.rtm_family = AF_INET;
    nl_socket_modify_cb(socket, NL_CB_VALID, NL_CB_CUSTOM, routeReceived, &links);
    const int code = nl_send_simple(socket, RTM_GETROUTE, NLM_F_DUMP, &request, sizeof request);
    return code < 0 ? code : nl_recvmsgs_default(socket);
}

} // namespace

std::optional<std::vector<NetworkLink>> readNetworkLinks() {
    const Socket socket = openSocket();
    if (socket == nullptr) {
        return std::nullopt;
    }
    LinksByIndex links;
    for (const auto read : {readLinks, readAddresses, readDefaultRoutes}) {
        const int code = read(socket.get(), links);
        if (code < 0) {
            errno = errnoOfCode(code);
            return std::nullopt;
        }
    }
    std::vector<NetworkLink> result;
    result.reserve(links.size());
    for (auto& [index, link] : links) {
        result.push_back(std::move(link));
    }
    return result;
}

} // namespace kx
