#include "conversation/ListenerWitness.h"

#include "addresses/SocketAddressRecord.h"
#include "units/ParameterList.h"
#include "units/UnitCommand.h"
#include "units/UnitReply.h"

#include <algorithm>
#include <cerrno>
#include <string_view>

namespace kx {

namespace {

constexpr std::size_t mostRequestSenders = 64; // those that are kept

std::string_view textOf(ByteView datagram) {
    return {reinterpret_cast<const char*>(datagram.data()), datagram.size()};
}

} // namespace

std::optional<HeardUnit> unitInDatagram(ByteView datagram, std::uint32_t sender,
                                        std::uint32_t link) {
    if (packetKindOfDatagram(datagram) != PacketKind::reply) {
        return std::nullopt;
    }
    try {
        const Reply reply = replyFromDatagram(datagram);
        if (reply.payloadKind != PayloadKind::parameterList) {
            return std::nullopt;
        }
        const DecodedUnitParameters told = decodeUnitParameters(reply.payload);
        if (!told.record.value(UnitParameter::serialNumber).has_value()) {
            return std::nullopt;
        }
        return HeardUnit{
            .record = told.record, .unitIDBytes = told.unitIDBytes, .sender = sender, .link = link};
    } catch (const RangeFailure&) {
        return std::nullopt; // an item is cut short
    }
}

bool looksLikeAnswer(ByteView datagram) {
    return packetKindOfDatagram(datagram) == PacketKind::reply &&
           !textOf(datagram).starts_with(commandPrefix);
}

ListenerWitness::Sender ListenerWitness::senderOf(ByteView record) {
    Sender sender;
    IPv6Octets unused{};
    addressForData(record, sender.address, unused, &sender.port);
    return sender;
}

ListenerEvidence ListenerWitness::evidence(std::span<const std::uint32_t> ownAddresses) {
    ListenerEvidence found = _evidence;
    found.isListening = _descriptor >= 0 && !found.startError.has_value();
    if (_buffers != nullptr && found.isListening) {
        found.dropped = _buffers->droppedDatagrams(_descriptor).value_or(0);
    }
    const bool isOwnHeard = std::ranges::any_of(_requests, [&](const Sender& sender) {
        return sender.port == found.port &&
               std::ranges::find(ownAddresses, sender.address) != ownAddresses.end();
    });
    if (_hasHeardProbe || isOwnHeard) {
        found.ownBroadcast = OwnBroadcast::heard;
    } else if (found.isListening && found.hasAsked && found.port == defaultUnitPort) {
        found.ownBroadcast = OwnBroadcast::notHeard;
    }
    return found;
}

void ListenerWitness::expectProbes(std::vector<std::uint16_t> ports,
                                   std::vector<std::uint32_t> ownAddresses) {
    _probePorts = std::move(ports);
    _probeAddresses = std::move(ownAddresses);
    if (!_probePorts.empty()) {
        _hasHeardProbe = false;
    }
}

void ListenerWitness::passOverRequestsFrom(std::uint16_t port,
                                           std::vector<std::uint32_t> ownAddresses) {
    _otherPort = port;
    _otherAddresses = std::move(ownAddresses);
}

int ListenerWitness::bind(int descriptor, ByteView address) {
    const int result = inner().bind(descriptor, address);
    const int error = errno;
    _evidence = {};
    _evidence.port = senderOf(address).port;
    _decoded = 0;
    _requests.clear();
    _hasHeardProbe = false;
    _descriptor = result == 0 ? descriptor : -1;
    if (result != 0) {
        _evidence.startError = posixError(error);
    }
    errno = error;
    return result;
}

int ListenerWitness::close(int descriptor) {
    if (descriptor == _descriptor) {
        _descriptor = -1;
    }
    return inner().close(descriptor);
}

ssize_t ListenerWitness::sendTo(int descriptor, ByteView data, std::optional<ByteView> address) {
    const ssize_t sent = inner().sendTo(descriptor, data, address);
    noteSend(data, address.value_or(ByteView()), sent);
    return sent;
}

ssize_t ListenerWitness::sendToByLink(int descriptor, ByteView data, ByteView address,
                                      std::uint32_t link) {
    const ssize_t sent = inner().sendToByLink(descriptor, data, address, link);
    noteSend(data, address, sent);
    return sent;
}

// A request to everybody goes to the units' first port; one to a unit goes to the unit's own.
void ListenerWitness::noteSend(ByteView data, ByteView address, ssize_t sent) {
    const int error = errno;
    if (textOf(data) == parameterRequestCommand && senderOf(address).port == defaultUnitPort) {
        _evidence.hasAsked = _evidence.hasAsked || sent >= 0;
        _evidence.sendError = sent < 0 ? std::optional(posixError(error)) : std::nullopt;
    }
    errno = error;
}

ssize_t ListenerWitness::receiveFrom(int descriptor, std::span<std::uint8_t> buffer,
                                     DatagramOrigin& origin) {
    const ssize_t received = inner().receiveFrom(descriptor, buffer, origin);
    if (received <= 0 || descriptor != _descriptor) {
        return received;
    }
    const auto datagram = buffer.first(static_cast<std::size_t>(received));
    if (isProbe(datagram, senderOf(origin.sender))) {
        _hasHeardProbe = true;
        errno = 0; // the endpoint passes over a failure without an error
        return -1;
    }
    if (isOfOtherListener(datagram, senderOf(origin.sender))) {
        errno = 0;
        return -1;
    }
    noteDatagram(datagram, origin);
    return received;
}

bool ListenerWitness::isProbe(ByteView datagram, const Sender& sender) const {
    return textOf(datagram) == parameterRequestCommand &&
           std::ranges::find(_probePorts, sender.port) != _probePorts.end() &&
           std::ranges::find(_probeAddresses, sender.address) != _probeAddresses.end();
}

bool ListenerWitness::isOfOtherListener(ByteView datagram, const Sender& sender) const {
    return _otherPort != 0 && sender.port == _otherPort &&
           textOf(datagram) == parameterRequestCommand &&
           std::ranges::find(_otherAddresses, sender.address) != _otherAddresses.end();
}

void ListenerWitness::noteDatagram(ByteView datagram, const DatagramOrigin& origin) {
    const Sender sender = senderOf(origin.sender);
    if (textOf(datagram) == parameterRequestCommand) {
        if (_requests.size() < mostRequestSenders) {
            _requests.insert(sender);
        }
    } else if (!looksLikeAnswer(datagram)) {
        ++_evidence.foreign;
    } else if (_decoded < mostDecoded) {
        ++_decoded;
        decode(datagram, sender, origin.link);
    } else {
        _evidence.isWhole = false;
    }
}

void ListenerWitness::decode(ByteView datagram, const Sender& sender, std::uint32_t link) {
    if (const auto unit = unitInDatagram(datagram, sender.address, link)) {
        _evidence.units.add(*unit);
        return;
    }
    try {
        const Reply reply = replyFromDatagram(datagram);
        const bool isOther = reply.payloadKind == PayloadKind::acknowledgement ||
                             reply.payloadKind == PayloadKind::other;
        if (!isOther || !reply.serialNumber.has_value()) {
            ++_evidence.notUnderstood;
        }
    } catch (const RangeFailure&) {
        ++_evidence.notUnderstood;
    }
}

} // namespace kx
