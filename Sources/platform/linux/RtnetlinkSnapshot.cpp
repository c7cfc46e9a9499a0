#include "platform/linux/RtnetlinkSnapshot.h"

#include "support/TextEncoding.h"

#include <net/if.h>
#include <net/if_arp.h>
#include <netlink/errno.h>
#include <netlink/msg.h>
#include <netlink/netlink.h>
#include <netlink/object.h>
#include <netlink/route/addr.h>
#include <netlink/route/link.h>
#include <netlink/route/nexthop.h>
#include <netlink/route/route.h>
#include <netlink/socket.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <string_view>
#include <utility>

namespace kx {

namespace {

struct SocketRelease {
    void operator()(nl_sock* socket) const { nl_socket_free(socket); }
};
struct RouteRelease {
    void operator()(rtnl_route* route) const { rtnl_route_put(route); }
};
using NetlinkSocket = std::unique_ptr<nl_sock, SocketRelease>;
using Clock = std::chrono::steady_clock;
using Route = std::unique_ptr<rtnl_route, RouteRelease>;

using LinksByIndex = std::map<int, NetworkLink>;

// Short, because the caller may have waited for the connection profiles before.
constexpr std::chrono::milliseconds patienceForLists{200};
constexpr std::chrono::milliseconds patienceForRoutes{40}; // at least this

// When a list changes while the kernel tells it, it is asked for again, at most so many times in
// all.
constexpr int mostTries = 4;

// The library's codes that matter here, as values of errno.
int errnoOfCode(int code) {
    switch (-code) {
    case NLE_AGAIN:
    case NLE_DUMP_INTR:
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
NetlinkSocket openSocket() {
    NetlinkSocket socket(nl_socket_alloc());
    if (socket == nullptr) {
        errno = ENOMEM;
        return nullptr;
    }
    int code = nl_connect(socket.get(), NETLINK_ROUTE);
    if (code >= 0) {
        code = nl_socket_set_nonblocking(socket.get());
    }
    if (code < 0) {
        errno = errnoOfCode(code);
        return nullptr;
    }
    return socket;
}

// Only the driver distinguishes a wireless link from a wired one.
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

// The kernel tells the addresses of the smallest scope first. The first one decides where
// broadcasts go, and a link-local address beside a real one must not.
void insertByScope(const IPv4InterfaceAddress& address, std::vector<IPv4InterfaceAddress>& all) {
    all.insert(std::ranges::upper_bound(all, address.scope, {}, &IPv4InterfaceAddress::scope),
               address);
}

void addAddress(rtnl_addr* address, NetworkLink& link) {
    const Bytes bytes = bytesOf(rtnl_addr_get_local(address));
    const auto prefixLength = static_cast<unsigned>(rtnl_addr_get_prefixlen(address));
    if (rtnl_addr_get_family(address) == AF_INET && bytes.size() == 4) {
        std::uint32_t value = 0;
        for (const std::uint8_t byte : bytes) {
            value = value << 8U | byte;
        }
        insertByScope({value, prefixLength, rtnl_addr_get_scope(address)}, link.ipv4Addresses);
    }
    IPv6InterfaceAddress ipv6{{}, prefixLength};
    if (rtnl_addr_get_family(address) == AF_INET6 && bytes.size() == ipv6.address.size()) {
        std::copy(bytes.begin(), bytes.end(), ipv6.address.begin());
        link.ipv6Addresses.push_back(ipv6);
    }
}

// A request to the kernel, and the state of its answer.
struct Dump {
    std::function<bool(nl_msg*)> take; // gets each message of the answer; false ends it
    Clock::time_point deadline;        // limits waiting; messages already there are always read
    bool isComplete = false;
    bool isStopped = false;
    bool isInterrupted = false; // the list changed while the kernel told it
};

int entryOfListReceived(nl_msg* message, void* dump) {
    auto& asked = *static_cast<Dump*>(dump);
    asked.isStopped = asked.isStopped || !asked.take(message);
    return asked.isStopped ? NL_STOP : NL_OK;
}

int answerEnded(nl_msg* /*message*/, void* dump) {
    static_cast<Dump*>(dump)->isComplete = true;
    return NL_OK;
}

int answerInterrupted(nl_msg* /*message*/, void* dump) {
    static_cast<Dump*>(dump)->isInterrupted = true;
    return NL_OK;
}

// Waits until there is something to read. False when nothing has come by the deadline.
bool canRead(nl_sock* socket, Clock::time_point deadline) {
    pollfd descriptor{nl_socket_get_fd(socket), POLLIN, 0};
    int ready = 0;
    do {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
        ready = ::poll(&descriptor, 1, std::max(static_cast<int>(left.count()), 0));
    } while (ready < 0 && errno == EINTR);
    return ready > 0;
}

// Asks for a list and reads the answer to its end. Like the functions below, returns a code of the
// library, which is negative for a failure.
template<class Request>
int ask(nl_sock* socket, int type, Request request, Dump dump) {
    nl_socket_modify_cb(socket, NL_CB_VALID, NL_CB_CUSTOM, entryOfListReceived, &dump);
    nl_socket_modify_cb(socket, NL_CB_FINISH, NL_CB_CUSTOM, answerEnded, &dump);
    nl_socket_modify_cb(socket, NL_CB_DUMP_INTR, NL_CB_CUSTOM, answerInterrupted, &dump);
    const int sent = nl_send_simple(socket, type, NLM_F_DUMP, &request, sizeof request);
    if (sent < 0) {
        return sent;
    }
    while (!dump.isComplete) {
        if (dump.isStopped || !canRead(socket, dump.deadline)) {
            return -NLE_AGAIN;
        }
        const int code = nl_recvmsgs_default(socket);
        if (code < 0 && code != -NLE_AGAIN) {
            return code;
        }
    }
    return dump.isInterrupted ? -NLE_DUMP_INTR : 0;
}

void linkReceived(nl_object* object, void* links) {
    // The library itself converts the base to the requested kind in this way.
    auto* const link = reinterpret_cast<rtnl_link*>(object);
    const char* const name = rtnl_link_get_name(link);
    if (name != nullptr && isValidUTF8(bytesOfText(name))) {
        static_cast<LinksByIndex*>(links)->insert_or_assign(rtnl_link_get_ifindex(link),
                                                            networkLink(link));
    }
}

void addressReceived(nl_object* object, void* links) {
    auto* const address = reinterpret_cast<rtnl_addr*>(object);
    auto& known = *static_cast<LinksByIndex*>(links);
    const auto link = known.find(rtnl_addr_get_ifindex(address));
    if (link != known.end()) {
        addAddress(address, link->second);
    }
}

int readLinks(nl_sock* socket, Clock::time_point deadline, LinksByIndex& links) {
    const auto take = [&links](nl_msg* message) {
        nl_msg_parse(message, linkReceived, &links);
        return true;
    };
    return ask(socket, RTM_GETLINK, ifinfomsg{}, {take, deadline});
}

int readAddresses(nl_sock* socket, Clock::time_point deadline, LinksByIndex& links) {
    const auto take = [&links](nl_msg* message) {
        nl_msg_parse(message, addressReceived, &links);
        return true;
    };
    return ask(socket, RTM_GETADDR, ifaddrmsg{}, {take, deadline});
}

int readLinksAndAddresses(nl_sock* socket, Clock::time_point deadline, LinksByIndex& links) {
    int code = 0;
    int tries = 0;
    do {
        links.clear();
        code = readLinks(socket, deadline, links);
        if (code >= 0) {
            code = readAddresses(socket, deadline, links);
        }
        ++tries;
    } while (code == -NLE_DUMP_INTR && tries < mostTries && Clock::now() < deadline);
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

// Takes every route. Most are no default routes, and those are not even taken apart.
void takeRoute(nl_msg* message, LinksByIndex& links) {
    nlmsghdr* const header = nlmsg_hdr(message);
    if (header->nlmsg_type == RTM_NEWROUTE && nlmsg_valid_hdr(header, sizeof(rtmsg)) != 0) {
        rtmsg route;
        std::memcpy(&route, nlmsg_data(header), sizeof route);
        if (route.rtm_dst_len == 0 && route.rtm_table == RT_TABLE_MAIN &&
            route.rtm_type == RTN_UNICAST) {
            addDefaultRoute(header, links);
        }
    }
}

// There may be a million routes. The kernel tells the default ones first.
int readDefaultRoutes(nl_sock* socket, Clock::time_point deadline, LinksByIndex& links) {
    rtmsg request{};
    request.rtm_family = AF_INET;
    const auto take = [&links, deadline](nl_msg* message) {
        takeRoute(message, links);
        return Clock::now() < deadline;
    };
    return ask(socket, RTM_GETROUTE, request, {take, deadline});
}

} // namespace

std::optional<LinkSnapshot> readNetworkLinks() {
    const auto deadline = Clock::now() + patienceForLists;
    const NetlinkSocket socket = openSocket();
    if (socket == nullptr) {
        return std::nullopt;
    }
    LinksByIndex links;
    const int code = readLinksAndAddresses(socket.get(), deadline, links);
    if (code < 0) {
        errno = errnoOfCode(code);
        return std::nullopt;
    }
    LinkSnapshot result;
    result.hasAllRoutes =
        readDefaultRoutes(socket.get(), std::max(deadline, Clock::now() + patienceForRoutes),
                          links) >= 0;
    result.links.reserve(links.size());
    for (auto& [index, link] : links) {
        result.links.push_back(std::move(link));
    }
    return result;
}

} // namespace kx
