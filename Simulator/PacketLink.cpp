#include "Simulator/PacketLink.h"

#include <arpa/inet.h>
#include <linux/if_ether.h>
#include <linux/if_packet.h>
#include <net/if.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <system_error>

namespace kx::simulator {

namespace {

constexpr std::size_t longestFrame = 65'536;

// A burst of commands waits in this buffer while thousands of units answer the first one.
constexpr int receiveBuffer = 4 * 1024 * 1024;

[[noreturn]] void fail(const std::string& what) {
    throw std::system_error(errno, std::generic_category(), what);
}

template<typename Value>
void setOption(int socket, int level, int option, const Value& value, const char* what) {
    if (::setsockopt(socket, level, option, &value, sizeof value) != 0) {
        fail(what);
    }
}

void configure(int socket, int linkIndex) {
    setOption(socket, SOL_PACKET, PACKET_IGNORE_OUTGOING, 1, "leave out own frames");
    setOption(socket, SOL_PACKET, PACKET_AUXDATA, 1, "ask for checksum states");

    packet_mreq promiscuous{};
    promiscuous.mr_ifindex = linkIndex;
    promiscuous.mr_type = PACKET_MR_PROMISC;
    setOption(socket, SOL_PACKET, PACKET_ADD_MEMBERSHIP, promiscuous, "hear every frame");

    // Only the host's administrator may exceed the limit for everybody. Otherwise the size that the
    // system grants is enough.
    if (::setsockopt(socket, SOL_SOCKET, SO_RCVBUFFORCE, &receiveBuffer, sizeof receiveBuffer) !=
        0) {
        setOption(socket, SOL_SOCKET, SO_RCVBUF, receiveBuffer, "ask for a receive buffer");
    }

    sockaddr_ll address{};
    address.sll_family = AF_PACKET;
    address.sll_protocol = htons(ETH_P_ALL);
    address.sll_ifindex = linkIndex;
    // The socket interface takes all kinds of address through this one type.
    if (::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        fail("bind to the link");
    }
}

UdpChecksum checksumState(msghdr& message) {
    for (cmsghdr* control = CMSG_FIRSTHDR(&message); control != nullptr;
         control = CMSG_NXTHDR(&message, control)) {
        if (control->cmsg_level != SOL_PACKET || control->cmsg_type != PACKET_AUXDATA) {
            continue;
        }
        tpacket_auxdata auxiliary{};
        std::memcpy(&auxiliary, CMSG_DATA(control), sizeof auxiliary);
        if ((auxiliary.tp_status & TP_STATUS_CSUMNOTREADY) != 0) {
            return UdpChecksum::pending;
        }
    }
    return UdpChecksum::complete;
}

} // namespace

PacketLink::PacketLink(const std::string& linkName) {
    const unsigned linkIndex = ::if_nametoindex(linkName.c_str());
    if (linkIndex == 0) {
        fail("link " + linkName);
    }
    // With protocol 0 the socket hears nothing until it is bound to this one link.
    _socket = ::socket(AF_PACKET, SOCK_RAW | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (_socket < 0) {
        fail("open a packet socket");
    }
    try {
        configure(_socket, static_cast<int>(linkIndex));
    } catch (...) {
        ::close(_socket);
        throw;
    }
}

PacketLink::~PacketLink() {
    ::close(_socket);
}

std::optional<ReceivedFrame> PacketLink::receive() {
    ReceivedFrame frame;
    frame.bytes.resize(longestFrame);
    iovec part{frame.bytes.data(), frame.bytes.size()};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(tpacket_auxdata))> control{};
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();

    const ssize_t length = ::recvmsg(_socket, &message, 0);
    if (length < 0) {
        return std::nullopt;
    }
    frame.bytes.resize(static_cast<std::size_t>(length));
    frame.checksum = checksumState(message);
    return frame;
}

void PacketLink::send(ByteView frame) {
    while (::send(_socket, frame.data(), frame.size(), 0) < 0 && errno == EINTR) {
        continue;
    }
}

} // namespace kx::simulator
