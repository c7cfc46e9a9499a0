#include "files/CapturingSystemCalls.h"

#include "addresses/SocketAddressRecord.h"

#include <cerrno>
#include <utility>

namespace kx {

CapturingSystemCalls::CapturingSystemCalls(DatagramSystemCalls& inner, Services services)
    : ForwardingSystemCalls(inner)
    , _services(std::move(services)) {}

CaptureCounts CapturingSystemCalls::counts() const {
    CaptureCounts counts = _counts;
    for (const auto& [descriptor, endpoint] : _bound) {
        counts.dropped += droppedOf(descriptor);
    }
    return counts;
}

int CapturingSystemCalls::bind(int descriptor, ByteView address) {
    const int result = inner().bind(descriptor, address);
    if (result == 0) {
        _bound[descriptor] = endpointOf(inner().localAddress(descriptor).value_or(Bytes()));
    }
    return result;
}

int CapturingSystemCalls::close(int descriptor) {
    if (_bound.erase(descriptor) > 0) {
        _counts.dropped += droppedOf(descriptor);
    }
    return inner().close(descriptor);
}

ssize_t CapturingSystemCalls::sendTo(int descriptor, ByteView data,
                                     std::optional<ByteView> address) {
    const ssize_t sent = inner().sendTo(descriptor, data, address);
    if (sent >= 0) {
        takeSent(descriptor, data,
                 address.has_value() ? *address : peerAddress(descriptor).value_or(Bytes()), 0);
    }
    return sent;
}

ssize_t CapturingSystemCalls::sendToByLink(int descriptor, ByteView data, ByteView address,
                                           std::uint32_t link) {
    const ssize_t sent = inner().sendToByLink(descriptor, data, address, link);
    if (sent >= 0) {
        takeSent(descriptor, data, address, link);
    }
    return sent;
}

ssize_t CapturingSystemCalls::receiveFrom(int descriptor, std::span<std::uint8_t> buffer,
                                          DatagramOrigin& origin) {
    const ssize_t received = inner().receiveFrom(descriptor, buffer, origin);
    if (received >= 0) {
        takeReceived(descriptor, buffer.first(static_cast<std::size_t>(received)), origin);
    }
    return received;
}

CapturingSystemCalls::Endpoint CapturingSystemCalls::endpointOf(ByteView record) {
    Endpoint endpoint;
    IPv6Octets unused{};
    addressForData(record, endpoint.address, unused, &endpoint.port);
    return endpoint;
}

CapturingSystemCalls::Endpoint CapturingSystemCalls::localEndpoint(int descriptor) const {
    const auto bound = _bound.find(descriptor);
    return bound != _bound.end() ? bound->second
                                 : endpointOf(inner().localAddress(descriptor).value_or(Bytes()));
}

std::uint32_t CapturingSystemCalls::droppedOf(int descriptor) const {
    return _services.receiveBuffers != nullptr
               ? _services.receiveBuffers->droppedDatagrams(descriptor).value_or(0)
               : 0;
}

void CapturingSystemCalls::takeSent(int descriptor, ByteView data, ByteView address,
                                    std::uint32_t link) {
    Endpoint own = localEndpoint(descriptor);
    if (own.address == 0) {
        own.address = _services.ownAddress(link);
    }
    const Endpoint far = endpointOf(address);
    _services.take({.time = _services.now(),
                    .isOwn = true,
                    .source = own.address,
                    .destination = far.address,
                    .sourcePort = own.port,
                    .destinationPort = far.port,
                    .comment = {}},
                   data);
}

void CapturingSystemCalls::takeReceived(int descriptor, ByteView data,
                                        const DatagramOrigin& origin) {
    ++_counts.received;
    const Endpoint own = localEndpoint(descriptor);
    const Endpoint far = endpointOf(origin.sender);
    _services.take({.time = _services.now(),
                    .isOwn = false,
                    .source = far.address,
                    .destination = origin.destination != 0 ? origin.destination : own.address,
                    .sourcePort = far.port,
                    .destinationPort = own.port,
                    .comment = {}},
                   data);
}

} // namespace kx
