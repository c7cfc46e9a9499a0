#include "ReadAheadSystemCalls.h"

#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/uio.h>

#include <algorithm>
#include <array>

namespace kx {

// Up to thirty-two datagrams of one descriptor, of which some have been handed out.
class ReadAheadSystemCalls::Batch {
public:
    Batch();

    // Whether datagrams of this descriptor are left.
    bool holds(int descriptor) const { return !isEmpty() && _descriptor == descriptor; }

    // Whether none of any descriptor is left.
    bool isEmpty() const { return _next == _count; }
    void clear() { _next = _count = 0; }

    // Reads anew. The number of datagrams, or -1.
    int fill(int descriptor);
    ssize_t take(std::span<std::uint8_t> buffer, DatagramOrigin& origin);

private:
    static constexpr std::size_t most = 32;

    using Control = std::array<std::byte, CMSG_SPACE(sizeof(in_pktinfo))>;

    std::unique_ptr<std::uint8_t[]> _bytes; // not filled, so that no page is touched
    std::array<iovec, most> _parts{};
    std::array<sockaddr_in, most> _senders{};
    alignas(cmsghdr) std::array<Control, most> _controls{};
    std::array<mmsghdr, most> _messages{};
    int _descriptor = -1;
    std::size_t _next = 0;
    std::size_t _count = 0;
};

ReadAheadSystemCalls::Batch::Batch()
    : _bytes(new std::uint8_t[most * receiveBufferLength]) {
    for (std::size_t place = 0; place < most; ++place) {
        _parts[place] = {.iov_base = &_bytes[place * receiveBufferLength],
                         .iov_len = receiveBufferLength};
        msghdr& message = _messages[place].msg_hdr;
        message.msg_name = &_senders[place];
        message.msg_iov = &_parts[place];
        message.msg_iovlen = 1;
        message.msg_control = _controls[place].data();
    }
}

int ReadAheadSystemCalls::Batch::fill(int descriptor) {
    for (mmsghdr& message : _messages) {
        message.msg_hdr.msg_namelen = sizeof(sockaddr_in);
        message.msg_hdr.msg_controllen = sizeof(Control);
    }
    const int received = ::recvmmsg(descriptor, _messages.data(), most, MSG_WAITFORONE, nullptr);
    _descriptor = descriptor;
    _next = 0;
    _count = received > 0 ? static_cast<std::size_t>(received) : 0;
    return received;
}

ssize_t ReadAheadSystemCalls::Batch::take(std::span<std::uint8_t> buffer, DatagramOrigin& origin) {
    const mmsghdr& message = _messages[_next];
    const std::size_t length = std::min<std::size_t>(message.msg_len, buffer.size());
    std::copy_n(&_bytes[_next * receiveBufferLength], length, buffer.begin());
    setOrigin(message.msg_hdr, origin);
    ++_next;
    return static_cast<ssize_t>(length);
}

ReadAheadSystemCalls::ReadAheadSystemCalls()
    : _batch(std::make_unique<Batch>()) {}

ReadAheadSystemCalls::~ReadAheadSystemCalls() = default;

ssize_t ReadAheadSystemCalls::receiveFrom(int descriptor, std::span<std::uint8_t> buffer,
                                          DatagramOrigin& origin) {
    if (!_batch->holds(descriptor)) {
        if (!_batch->isEmpty() || !_allowed.contains(descriptor)) {
            return DatagramSystemCalls::receiveFrom(descriptor, buffer, origin);
        }
        if (_batch->fill(descriptor) < 0) {
            return -1;
        }
    }
    return _batch->take(buffer, origin);
}

bool ReadAheadSystemCalls::hasReadAhead(int descriptor) const {
    return _batch->holds(descriptor);
}

int ReadAheadSystemCalls::close(int descriptor) {
    if (_batch->holds(descriptor)) {
        _batch->clear();
    }
    _allowed.erase(descriptor);
    return DatagramSystemCalls::close(descriptor);
}

} // namespace kx
