#include "files/CapturingSystemCalls.h"

#include "addresses/SocketAddressRecord.h"
#include "files/Capture.h"

#include <cerrno>

namespace kx {

namespace {

struct IPv4Endpoint {
    std::uint32_t address = 0;
    std::uint16_t port = 0;
};

IPv4Endpoint endpointOf(ByteView record) {
    IPv4Endpoint endpoint;
    IPv6Octets unused{};
    addressForData(record, endpoint.address, unused, &endpoint.port);
    return endpoint;
}

} // namespace

CapturingSystemCalls::CapturingSystemCalls(DatagramSystemCalls& inner, Services services)
    : _inner(inner)
    , _services(std::move(services)) {}

ssize_t CapturingSystemCalls::sendTo(int descriptor, ByteView data,
                                     std::optional<ByteView> address) {
    const ssize_t sent = _inner.sendTo(descriptor, data, address);
    const int error = errno;
    if (sent >= 0) {
        capture(descriptor, true, address.value_or(ByteView()), 0, data);
    }
    errno = error;
    return sent;
}

ssize_t CapturingSystemCalls::sendToByLink(int descriptor, ByteView data, ByteView address,
                                           std::uint32_t link) {
    const ssize_t sent = _inner.sendToByLink(descriptor, data, address, link);
    const int error = errno;
    if (sent >= 0) {
        capture(descriptor, true, address, link, data);
    }
    errno = error;
    return sent;
}

ssize_t CapturingSystemCalls::receiveFrom(int descriptor, std::span<std::uint8_t> buffer,
                                          DatagramOrigin& origin) {
    const ssize_t received = _inner.receiveFrom(descriptor, buffer, origin);
    const int error = errno;
    if (received >= 0) {
        capture(descriptor, false, origin.sender, origin.link,
                buffer.first(static_cast<std::size_t>(received)));
    }
    errno = error;
    return received;
}

void CapturingSystemCalls::capture(int descriptor, bool isOwn, ByteView other, std::uint32_t link,
                                   ByteView data) {
    if (!std::exchange(_hasHeader, true)) {
        _services.write(captureHeader(_services.application));
    }
    const auto local = _inner.localAddress(descriptor);
    IPv4Endpoint own = endpointOf(local.value_or(Bytes()));
    if (own.address == 0) {
        own.address = _services.ownAddress(link);
    }
    const IPv4Endpoint far = endpointOf(other);
    const IPv4Endpoint& source = isOwn ? own : far;
    const IPv4Endpoint& destination = isOwn ? far : own;
    _services.write(
        capturedDatagram({.time = _services.now(),
                          .isOwn = isOwn,
                          .source = source.address,
                          .sourcePort = source.port,
                          .destination = destination.address,
                          .destinationPort = destination.port,
                          .remark = isOwn ? "sent by " + _services.application : std::string()},
                         data));
}

} // namespace kx
