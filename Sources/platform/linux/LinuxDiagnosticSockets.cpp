#include "platform/linux/LinuxDiagnosticSockets.h"

#include "addresses/SocketAddressRecord.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <linux/errqueue.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/uio.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

namespace kx {

namespace {

// One turn of the run loop reads at most so many datagrams.
constexpr int mostInOneTurn = 64;

class WatchedSocket final : public DiagnosticSocket {
public:
    WatchedSocket(DatagramSystemCalls& calls, DiagnosticSockets::Events events)
        : _calls(calls)
        , _events(std::move(events))
        , _descriptor(calls.socket()) {}
    ~WatchedSocket() override {
        *_isAlive = false;
        _watch.reset();
        if (_descriptor >= 0) {
            _calls.close(_descriptor);
        }
    }
    WatchedSocket(const WatchedSocket&) = delete;
    WatchedSocket& operator=(const WatchedSocket&) = delete;

    bool prepare(const DiagnosticSockets::Wish& wish, RunLoop& runLoop);

    std::uint16_t port() const override { return _port; }
    std::optional<Error> send(std::string_view text, const UnitTarget& target) override;

private:
    bool bindToInterface(const std::string& name) const;
    void receive();
    bool receiveFailure();

    DatagramSystemCalls& _calls;
    DiagnosticSockets::Events _events;
    int _descriptor;
    std::uint16_t _port = 0;
    std::shared_ptr<bool> _isAlive = std::make_shared<bool>(true);
    RunLoop::Handle _watch;
};

bool WatchedSocket::bindToInterface(const std::string& name) const {
    return name.empty() || ::setsockopt(_descriptor, SOL_SOCKET, SO_BINDTODEVICE, name.c_str(),
                                        static_cast<socklen_t>(name.size())) == 0;
}

bool WatchedSocket::prepare(const DiagnosticSockets::Wish& wish, RunLoop& runLoop) {
    const int on = 1;
    if (_descriptor < 0 || !bindToInterface(wish.interface) ||
        ::setsockopt(_descriptor, IPPROTO_IP, IP_RECVERR, &on, sizeof on) != 0 ||
        _calls.bind(_descriptor, dataForAddress(0, wish.port)) != 0 ||
        _calls.enableBroadcast(_descriptor) != 0 ||
        _calls.setStatusFlags(_descriptor, _calls.statusFlags(_descriptor) | O_NONBLOCK) != 0) {
        return false;
    }
    _calls.enablePacketInfo(_descriptor); // a capture has the address to which an answer came
    std::uint32_t address = 0;
    IPv6Octets unused{};
    addressForData(_calls.localAddress(_descriptor).value_or(Bytes()), address, unused, &_port);
    _watch = runLoop.watchForReading(_descriptor, [this] { receive(); });
    return _port != 0 && _watch != nullptr;
}

// An error that came back for an earlier datagram fails the next send, which then has not left.
std::optional<Error> WatchedSocket::send(std::string_view text, const UnitTarget& target) {
    const ByteView bytes(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
    const Bytes record = dataForAddress(target.address, target.port);
    const auto sendOnce = [&] {
        return target.link != 0 ? _calls.sendToByLink(_descriptor, bytes, record, target.link)
                                : _calls.sendTo(_descriptor, bytes, record);
    };
    ssize_t sent = sendOnce();
    int error = errno;
    if (sent < 0 && receiveFailure()) {
        sent = sendOnce();
        error = errno;
    }
    return sent < 0 ? std::optional(posixError(error)) : std::nullopt;
}

// An event may destroy the socket.
void WatchedSocket::receive() {
    const auto isAlive = _isAlive;
    std::array<std::uint8_t, 2048> buffer;
    for (int i = 0; i < mostInOneTurn && *isAlive; ++i) {
        if (receiveFailure()) {
            continue;
        }
        DatagramOrigin origin;
        const ssize_t received = _calls.receiveFrom(_descriptor, buffer, origin);
        if (received < 0) {
            return;
        }
        std::uint32_t sender = 0;
        std::uint16_t port = 0;
        IPv6Octets unused{};
        addressForData(origin.sender, sender, unused, &port);
        _events.received(ByteView(buffer).first(static_cast<std::size_t>(received)), sender, port);
    }
}

// Takes one error from the queue of errors (ip(7), IP_RECVERR). False when there is none.
bool WatchedSocket::receiveFailure() {
    sockaddr_in destination{};
    std::array<std::byte, 64> data{};
    iovec bytes{.iov_base = data.data(), .iov_len = data.size()};
    alignas(cmsghdr) std::array<std::byte, 512> control{};
    msghdr message{};
    message.msg_name = &destination;
    message.msg_namelen = sizeof destination;
    message.msg_iov = &bytes;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    if (::recvmsg(_descriptor, &message, MSG_ERRQUEUE | MSG_DONTWAIT) < 0) {
        return false;
    }
    for (const cmsghdr* part = CMSG_FIRSTHDR(&message); part != nullptr;
         part = CMSG_NXTHDR(&message, const_cast<cmsghdr*>(part))) {
        struct {
            sock_extended_err error;
            sockaddr_in offender;
        } told{};
        if (part->cmsg_level != IPPROTO_IP || part->cmsg_type != IP_RECVERR ||
            part->cmsg_len < CMSG_LEN(sizeof told)) {
            continue;
        }
        std::memcpy(&told, CMSG_DATA(part), sizeof told);
        if (_events.failed) {
            _events.failed({.destination = ntohl(destination.sin_addr.s_addr),
                            .error = static_cast<int>(told.error.ee_errno),
                            .reporter = told.error.ee_origin == SO_EE_ORIGIN_ICMP
                                            ? ntohl(told.offender.sin_addr.s_addr)
                                            : 0});
        }
    }
    return true;
}

} // namespace

std::unique_ptr<DiagnosticSocket> LinuxDiagnosticSockets::open(DatagramSystemCalls& calls,
                                                               const Wish& wish, Events events) {
    auto socket = std::make_unique<WatchedSocket>(calls, std::move(events));
    return socket->prepare(wish, _runLoop) ? std::move(socket) : nullptr;
}

} // namespace kx
