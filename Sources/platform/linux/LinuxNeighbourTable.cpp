#include "platform/linux/LinuxNeighbourTable.h"

#include "support/ByteRange.h"
#include "units/IdentityText.h"

#include <arpa/inet.h>
#include <linux/neighbour.h>
#include <netlink/msg.h>
#include <netlink/netlink.h>
#include <netlink/route/neighbour.h>
#include <netlink/socket.h>
#include <sys/socket.h>

#include <algorithm>
#include <cstring>

namespace kx {

namespace {

struct NeighbourRelease {
    void operator()(rtnl_neigh* neighbour) const { rtnl_neigh_put(neighbour); }
};
struct MessageRelease {
    void operator()(nl_msg* message) const { nlmsg_free(message); }
};

NeighbourState stateOf(int state) {
    if ((state & NUD_PERMANENT) != 0 || (state & NUD_NOARP) != 0) {
        return NeighbourState::permanent;
    }
    if ((state & NUD_REACHABLE) != 0) {
        return NeighbourState::reachable;
    }
    if ((state & NUD_FAILED) != 0) {
        return NeighbourState::failed;
    }
    return (state & NUD_INCOMPLETE) != 0 ? NeighbourState::asking : NeighbourState::stale;
}

std::string textOf(nl_addr* address) {
    if (address == nullptr || nl_addr_get_len(address) == 0) {
        return {};
    }
    const auto* const bytes = static_cast<const std::uint8_t*>(nl_addr_get_binary_addr(address));
    return hexStringForData(ByteView(bytes, nl_addr_get_len(address)), ":");
}

int neighbourReceived(nl_msg* message, void* found) {
    rtnl_neigh* parsed = nullptr;
    if (rtnl_neigh_parse(nlmsg_hdr(message), &parsed) >= 0) {
        const std::unique_ptr<rtnl_neigh, NeighbourRelease> neighbour(parsed);
        *static_cast<std::optional<Neighbour>*>(found) = {
            .state = stateOf(rtnl_neigh_get_state(parsed)),
            .hardwareAddress = textOf(rtnl_neigh_get_lladdr(parsed))};
    }
    return NL_OK;
}

struct KnownAddresses {
    std::uint32_t link = 0;
    std::vector<std::uint32_t> found;
};

// An entry of a dump of the whole table.
int entryReceived(nl_msg* message, void* collected) {
    auto& known = *static_cast<KnownAddresses*>(collected);
    rtnl_neigh* parsed = nullptr;
    if (rtnl_neigh_parse(nlmsg_hdr(message), &parsed) < 0) {
        return NL_OK;
    }
    const std::unique_ptr<rtnl_neigh, NeighbourRelease> neighbour(parsed);
    nl_addr* const address = rtnl_neigh_get_dst(parsed);
    if (rtnl_neigh_get_ifindex(parsed) == static_cast<int>(known.link) && address != nullptr &&
        nl_addr_get_len(address) == sizeof(std::uint32_t) &&
        (rtnl_neigh_get_state(parsed) & NUD_NOARP) == 0 &&
        !textOf(rtnl_neigh_get_lladdr(parsed)).empty()) {
        std::uint32_t inNetworkOrder = 0;
        std::memcpy(&inNetworkOrder, nl_addr_get_binary_addr(address), sizeof inNetworkOrder);
        known.found.push_back(ntohl(inNetworkOrder));
    }
    return NL_OK;
}

// The states that a timer of the kernel watches, and those without an end: it gives up none of
// them, however full the table is.
constexpr int statesInUse = NUD_INCOMPLETE | NUD_REACHABLE | NUD_DELAY | NUD_PROBE | NUD_PERMANENT;

int entryCounted(nl_msg* message, void* count) {
    rtnl_neigh* parsed = nullptr;
    if (rtnl_neigh_parse(nlmsg_hdr(message), &parsed) >= 0) {
        const std::unique_ptr<rtnl_neigh, NeighbourRelease> neighbour(parsed);
        if ((rtnl_neigh_get_state(parsed) & statesInUse) != 0) {
            ++*static_cast<std::size_t*>(count);
        }
    }
    return NL_OK;
}

// Sends a request about one entry.
bool sendAbout(nl_sock* socket, int request, std::uint32_t address, std::uint32_t link) {
    const std::unique_ptr<nl_msg, MessageRelease> message(
        nlmsg_alloc_simple(request, NLM_F_REQUEST));
    ndmsg header{};
    header.ndm_family = AF_INET;
    header.ndm_ifindex = static_cast<int>(link);
    const std::uint32_t destination = htonl(address);
    return socket != nullptr && message != nullptr &&
           nlmsg_append(message.get(), &header, sizeof header, NLMSG_ALIGNTO) >= 0 &&
           nla_put(message.get(), NDA_DST, sizeof destination, &destination) >= 0 &&
           nl_send_auto(socket, message.get()) >= 0;
}

// Asks for every entry of the table on a link, 0 for all links.
bool dump(nl_sock* socket, std::uint32_t link, nl_recvmsg_msg_cb_t received, void* collected) {
    ndmsg header{};
    header.ndm_family = AF_INET;
    header.ndm_ifindex = static_cast<int>(link);
    if (socket == nullptr || nl_send_simple(socket, RTM_GETNEIGH, NLM_F_REQUEST | NLM_F_DUMP,
                                            &header, sizeof header) < 0) {
        return false;
    }
    nl_socket_modify_cb(socket, NL_CB_VALID, NL_CB_CUSTOM, received, collected);
    return nl_recvmsgs_default(socket) >= 0;
}

} // namespace

void LinuxNeighbourTable::SocketRelease::operator()(nl_sock* socket) const {
    nl_socket_free(socket);
}

LinuxNeighbourTable::LinuxNeighbourTable()
    : _socket(nl_socket_alloc()) {
    if (_socket != nullptr && nl_connect(_socket.get(), NETLINK_ROUTE) < 0) {
        _socket.reset();
    }
}

LinuxNeighbourTable::~LinuxNeighbourTable() = default;

std::optional<Neighbour> LinuxNeighbourTable::entry(std::uint32_t address, std::uint32_t link) {
    if (!sendAbout(_socket.get(), RTM_GETNEIGH, address, link)) {
        return std::nullopt;
    }
    std::optional<Neighbour> found;
    nl_socket_modify_cb(_socket.get(), NL_CB_VALID, NL_CB_CUSTOM, neighbourReceived, &found);
    nl_recvmsgs_default(_socket.get()); // an error means that there is no entry
    // The acknowledgement that follows the entry.
    if (found.has_value()) {
        nl_wait_for_ack(_socket.get());
    }
    return found;
}

std::vector<std::uint32_t> LinuxNeighbourTable::knownAddresses(std::uint32_t link) {
    KnownAddresses known{.link = link, .found = {}};
    dump(_socket.get(), link, entryReceived, &known);
    std::ranges::sort(known.found);
    return std::move(known.found);
}

std::size_t LinuxNeighbourTable::entriesInUse() {
    std::size_t count = 0;
    return dump(_socket.get(), 0, entryCounted, &count) ? count : 0;
}

void LinuxNeighbourTable::forget(std::uint32_t address, std::uint32_t link) {
    const auto known = entry(address, link);
    if (known.has_value() && known->state != NeighbourState::permanent &&
        sendAbout(_socket.get(), RTM_DELNEIGH, address, link)) {
        nl_wait_for_ack(_socket.get()); // an error means that there are no rights for it
    }
}

} // namespace kx
