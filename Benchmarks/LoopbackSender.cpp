#include "LoopbackSender.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace kx {

namespace {

// As many as one system call sends.
class Messages {
public:
    static constexpr std::size_t most = 64;

    explicit Messages(std::span<const LoopbackDatagram> datagrams)
        : _count(std::min(most, datagrams.size())) {
        for (std::size_t place = 0; place < _count; ++place) {
            const LoopbackDatagram& datagram = datagrams[place];
            _parts[place] = {.iov_base = const_cast<std::uint8_t*>(datagram.data.data()),
                             .iov_len = datagram.data.size()};
            msghdr& message = _messages[place].msg_hdr;
            message.msg_name = &_receiver;
            message.msg_namelen = sizeof _receiver;
            message.msg_iov = &_parts[place];
            message.msg_iovlen = 1;
            if (datagram.sender != 0) {
                setSender(message, _controls[place], datagram.sender);
            }
        }
    }

    // How many the system took, or -1.
    int send(int sock) {
        return ::sendmmsg(sock, _messages.data(), static_cast<unsigned>(_count), 0);
    }

private:
    struct alignas(cmsghdr) Control {
        std::array<std::byte, CMSG_SPACE(sizeof(in_pktinfo))> bytes;
    };

    static void setSender(msghdr& message, Control& control, std::uint32_t sender) {
        message.msg_control = control.bytes.data();
        message.msg_controllen = control.bytes.size();
        cmsghdr* const part = CMSG_FIRSTHDR(&message);
        part->cmsg_level = IPPROTO_IP;
        part->cmsg_type = IP_PKTINFO;
        part->cmsg_len = CMSG_LEN(sizeof(in_pktinfo));
        in_pktinfo information{};
        information.ipi_spec_dst.s_addr = htonl(sender);
        std::memcpy(CMSG_DATA(part), &information, sizeof information);
    }

    sockaddr_in _receiver{.sin_family = AF_INET,
                          .sin_port = htons(port),
                          .sin_addr = {htonl(loopbackAddress)},
                          .sin_zero = {}};
    std::size_t _count;
    std::array<iovec, most> _parts{};
    std::array<Control, most> _controls{};
    std::array<mmsghdr, most> _messages{};
};

} // namespace

std::vector<LoopbackDatagram> datagramsOfUnits(std::uint32_t count) {
    std::vector<LoopbackDatagram> datagrams;
    for (Bytes& reply : repliesOfUnits(count)) {
        const std::uint32_t sender = addressToldIn(reply);
        datagrams.push_back({.data = std::move(reply), .sender = sender});
    }
    return datagrams;
}

LoopbackSender::LoopbackSender()
    : _socket(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {}

LoopbackSender::~LoopbackSender() {
    ::close(_socket);
}

void LoopbackSender::send(std::span<const LoopbackDatagram> datagrams) const {
    while (!datagrams.empty()) {
        const int sent = Messages(datagrams).send(_socket);
        if (sent <= 0) {
            return;
        }
        datagrams = datagrams.subspan(static_cast<std::size_t>(sent));
    }
}

} // namespace kx
