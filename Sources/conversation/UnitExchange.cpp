#include "conversation/UnitExchange.h"

#include "addresses/SocketAddressRecord.h"
#include "units/UnitCommand.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace kx {

namespace {

struct Sender {
    std::uint32_t address = 0;
    std::uint16_t port = 0;
};

Sender senderOf(const DatagramOrigin& origin) {
    Sender sender;
    IPv6Octets unused{};
    addressForData(origin.sender, sender.address, unused, &sender.port);
    return sender;
}

} // namespace

UnitExchange::Listener::Listener(UnitExchange& exchange)
    : _exchange(exchange) {
    _exchange._listeners.push_back(this);
}

UnitExchange::Listener::~Listener() {
    std::erase(_exchange._listeners, this);
}

void UnitExchange::Listener::unitDidTell(const HeardUnit& /*unit*/) {}
void UnitExchange::Listener::unitDidAnswer(const UnitAnswer& /*answer*/) {}

UnitExchange::UnitExchange(const Services& services)
    : _services(services)
    , _session(services.session, _registry, *this) {}

UnitExchange::~UnitExchange() = default;

void UnitExchange::setOwnAddresses(std::vector<std::uint32_t> addresses) {
    _ownAddresses = std::move(addresses);
}

std::optional<OpenFailure> UnitExchange::open(std::span<const std::uint16_t> ports) {
    for (const std::uint16_t port : ports) {
        _stopError.reset();
        _session.start(port);
        if (_session.isListening()) {
            _port = port;
            return std::nullopt;
        }
        if (_stopError.has_value() && _stopError->code != EADDRINUSE) {
            return OpenFailure{.error = *_stopError};
        }
    }
    return OpenFailure{.arePortsTaken = true, .error = _stopError.value_or(posixError(EADDRINUSE))};
}

std::optional<SendFailure> UnitExchange::send(std::string_view command, const UnitTarget& target) {
    if (command == parameterRequestCommand) {
        _latestRequest = now();
    }
    return _session.send(command, target.address, target.port, target.link);
}

std::uint32_t UnitExchange::dropped() {
    if (_services.session.receiveBuffers == nullptr || !_session.isListening()) {
        return 0;
    }
    return _services.session.receiveBuffers->droppedDatagrams(_session.listener()->nativeSocket())
        .value_or(0);
}

void UnitExchange::sessionDidStop(const Error& error) {
    _stopError = error;
}

void UnitExchange::sessionDidReceiveDatagram(std::size_t /*length*/,
                                             const DatagramOrigin& /*origin*/) {
    ++_received;
}

// A list without a serial number names no unit, so it counts as rejected.
void UnitExchange::unitDidTellParameters(const Reply& /*reply*/,
                                         const DecodedUnitParameters& parameters,
                                         const DatagramOrigin& origin) {
    if (!parameters.record.value(UnitParameter::serialNumber).has_value()) {
        return;
    }
    ++_understood;
    const HeardUnit unit{.record = parameters.record,
                         .unitIDBytes = parameters.unitIDBytes,
                         .sender = senderOf(origin).address,
                         .link = origin.link,
                         .answered = now() - _latestRequest};
    tellListeners([&unit](Listener& listener) { listener.unitDidTell(unit); });
}

void UnitExchange::unitDidAccept(const Reply& reply, const DatagramOrigin& origin) {
    ++_understood;
    tellAnswer(reply, true, origin);
}

void UnitExchange::unitDidSendOtherReply(const Reply& reply, const DatagramOrigin& origin) {
    if (isOwnRequest(reply, origin)) {
        ++_understood;
    } else if (reply.payloadKind == PayloadKind::other) {
        tellAnswer(reply, false, origin);
    }
}

void UnitExchange::tellAnswer(const Reply& reply, bool isAcknowledgement,
                              const DatagramOrigin& origin) {
    const UnitAnswer answer{.serialNumber = reply.serialNumber,
                            .isAcknowledgement = isAcknowledgement,
                            .bytes = {reply.payload.begin(), reply.payload.end()},
                            .sender = senderOf(origin).address};
    tellListeners([&answer](Listener& listener) { listener.unitDidAnswer(answer); });
}

// The system delivers a broadcast to its sender too. Its command stands where an answer has its
// tag.
bool UnitExchange::isOwnRequest(const Reply& reply, const DatagramOrigin& origin) const {
    const Sender sender = senderOf(origin);
    return reply.payloadKind == PayloadKind::none && sender.port == _port &&
           reply.tag.has_value() && reply.tag->starts_with("Id") &&
           std::ranges::find(_ownAddresses, sender.address) != _ownAddresses.end();
}

// A listener may come or go inside the action.
template<class Action>
void UnitExchange::tellListeners(const Action& action) {
    const std::vector<Listener*> listeners = _listeners;
    for (Listener* const listener : listeners) {
        if (std::ranges::find(_listeners, listener) != _listeners.end()) {
            action(*listener);
        }
    }
}

} // namespace kx
