#include "conversation/UnitSession.h"

#include "addresses/SocketAddressRecord.h"
#include "support/SystemLog.h"

#include <cerrno>
#include <chrono>

namespace kx {

using namespace std::chrono_literals;

namespace {

// Room for the replies of ten thousand units in the same instant.
constexpr int wantedReceiveBuffer = 4 * 1024 * 1024;

// Short enough for a person, and long enough that a burst is counted only a few times and that no
// number runs before the reader's eyes.
constexpr auto timeBetweenCounts = 250ms;

} // namespace

void UnitSessionObserver::sessionDidStart(const Bytes& /*localAddress*/) {}
void UnitSessionObserver::sessionCanBroadcast() {}
void UnitSessionObserver::sessionCannotBroadcast(const std::string& /*reason*/) {}
void UnitSessionObserver::sessionDidStop(const Error& /*error*/) {}
void UnitSessionObserver::sessionDidReceiveDatagram(std::size_t /*length*/,
                                                    const DatagramOrigin& /*origin*/) {}
void UnitSessionObserver::sessionDidIgnoreDatagram(PacketKind /*kind*/,
                                                   const DatagramOrigin& /*origin*/) {}
void UnitSessionObserver::sessionDidAbandonDatagram(const DatagramOrigin& /*origin*/) {}
void UnitSessionObserver::unitDidTellParameters(const Reply& /*reply*/,
                                                const DecodedUnitParameters& /*parameters*/,
                                                const DatagramOrigin& /*origin*/) {}
void UnitSessionObserver::unitDidAccept(const Reply& /*reply*/, const DatagramOrigin& /*origin*/) {}
void UnitSessionObserver::unitDidSendOtherReply(const Reply& /*reply*/,
                                                const DatagramOrigin& /*origin*/) {}
void UnitSessionObserver::sessionDidReceiveError(const Error& /*error*/) {}
void UnitSessionObserver::sessionDidSend() {}
void UnitSessionObserver::sessionDidFailToSend(const SendFailure& /*failure*/) {}
void UnitSessionObserver::sessionDidDrop(std::uint32_t /*datagrams*/) {}

UnitSession::UnitSession(const Services& services, UnitRegistry& registry,
                         UnitSessionObserver& observer, UDPEchoDelegate* delegate)
    : _services(services)
    , _registry(registry)
    , _observer(observer)
    , _delegate(delegate != nullptr ? delegate : this) {}

UnitSession::~UnitSession() {
    stop();
}

void UnitSession::start(std::size_t port) {
    stop();
    const auto starting =
        UDPEcho::make(_services.runLoop, _services.hostResolver, _services.systemCalls);
    starting->setDelegate(_delegate);
    _listener = starting;
    if (_drops != 0) {
        _drops = 0;
        _observer.sessionDidDrop(0);
    }
    if (_listener == starting) { // the front may have stopped it, or started another
        starting->startServerOnPort(port);
    }
}

void UnitSession::stop() {
    if (_listener != nullptr) {
        _listener->setDelegate(nullptr);
        _listener->stop();
        _listener.reset();
    }
    _dropCount.reset();
}

// A listener that failed to start stays until the next start. A person who presses a button breaks
// no contract, so sending through this listener fails like any other send.
std::optional<SendFailure> UnitSession::send(std::string_view command, std::uint32_t address,
                                             std::uint16_t port, std::uint32_t link) {
    _sendFailure.reset();
    if (_listener == nullptr) {
        return SendFailure();
    }
    if (isListening()) {
        _listener->sendDataToAddressByLink(Bytes(command.begin(), command.end()),
                                           dataForAddress(address, port), link);
    } else {
        didFailToSend({});
    }
    return std::exchange(_sendFailure, std::nullopt);
}

std::optional<SendFailure> UnitSession::failToSend(const Error& error) {
    _sendFailure.reset();
    if (_listener == nullptr) {
        return SendFailure();
    }
    didFailToSend(isListening() ? SendFailure{error} : SendFailure());
    return std::exchange(_sendFailure, std::nullopt);
}

// A system that has no descriptor left cannot be asked. The interface is most likely still there.
std::uint32_t UnitSession::linkForName(const std::string& name) {
    const std::uint32_t link = _services.systemCalls.linkForName(name);
    if (link != 0) {
        _lastLink = {name, link};
        return link;
    }
    return errno != ENODEV && _lastLink.name == name ? _lastLink.index : noSuchLink;
}

// Told first: what the front sends inside the event has a result of its own.
void UnitSession::didFailToSend(SendFailure failure) {
    _observer.sessionDidFailToSend(failure);
    _sendFailure = std::move(failure);
}

// --- The endpoint's events ---

void UnitSession::echoDidStartWithAddress(UDPEcho& echo, const Bytes& address) {
    if (&echo != _listener.get()) {
        return;
    }
    const auto started = _listener; // the front may stop it, or start another
    try {
        _observer.sessionDidStart(address);
        if (started != _listener) {
            return;
        }
        const int descriptor = echo.nativeSocket();
        if (_services.receiveBuffers != nullptr) {
            _services.receiveBuffers->enlarge(descriptor, wantedReceiveBuffer);
        }
        // When the system refuses, events come without the link.
        _services.systemCalls.enablePacketInfo(descriptor);
        if (_services.systemCalls.enableBroadcast(descriptor) == 0) {
            _observer.sessionCanBroadcast();
        } else {
            _observer.sessionCannotBroadcast(posixErrorText(errno));
        }
    } catch (const PlatformException& exception) {
        logToSystem(
            filledText("Exception during echo:didStartWithAddress: %@", {exception.reason()}));
    }
}

void UnitSession::echoDidReceiveDataFromAddress(UDPEcho& echo, const Bytes& data,
                                                const Bytes& address) {
    if (&echo != _listener.get()) {
        return; // it is an endpoint from before a restart
    }
    const auto receiving = _listener; // the front may stop it, or start another
    const DatagramOrigin origin{.sender = address, .link = echo.link()};
    countDropsSoon();
    _observer.sessionDidReceiveDatagram(data.size(), origin);
    if (receiving != _listener) {
        return;
    }
    try {
        didReceiveDataFromAddress(data, origin);
    } catch (const PlatformException& exception) {
        logToSystem(filledText("Exception during echo:didReceiveData:fromAddress: %@",
                               {exception.reason()}));
        if (receiving == _listener) {
            _observer.sessionDidAbandonDatagram(origin);
        }
    }
}

void UnitSession::didReceiveDataFromAddress(ByteView data, const DatagramOrigin& origin) {
    const PacketKind kind = packetKindOfDatagram(data);
    if (kind != PacketKind::reply) {
        _observer.sessionDidIgnoreDatagram(kind, origin);
        return;
    }
    const Reply reply = replyFromDatagram(data);
    if (reply.payloadKind == PayloadKind::parameterList) {
        tellParameters(reply, decodeUnitParameters(reply.payload), origin);
        return;
    }
    rememberLink(reply, origin);
    if (reply.payloadKind == PayloadKind::acknowledgement) {
        _observer.unitDidAccept(reply, origin);
    } else {
        _observer.unitDidSendOtherReply(reply, origin);
    }
}

void UnitSession::tellParameters(const Reply& reply, DecodedUnitParameters parameters,
                                 const DatagramOrigin& origin) {
    rememberLink(reply, origin);
    parameters.record.setLink(origin.link);
    _registry.store(parameters.record);
    _observer.unitDidTellParameters(reply, parameters, origin);
}

// Called for a reply that is told. One that breaks its own format moves no unit to another link.
void UnitSession::rememberLink(const Reply& reply, const DatagramOrigin& origin) {
    if (reply.serialNumber.has_value()) {
        _registry.setLink(*reply.serialNumber, origin.link);
    }
}

void UnitSession::echoDidReceiveError(UDPEcho& /*echo*/, const Error& error) {
    countDropsSoon();
    _observer.sessionDidReceiveError(error);
}

void UnitSession::echoDidSendDataToAddress(UDPEcho& echo, const Bytes& /*data*/,
                                           const Bytes& /*address*/) {
    if (&echo == _listener.get()) {
        _observer.sessionDidSend();
    }
}

void UnitSession::echoDidFailToSendDataToAddressError(UDPEcho& /*echo*/, const Bytes& /*data*/,
                                                      const Bytes& /*address*/,
                                                      const Error& error) {
    didFailToSend({.error = error});
}

void UnitSession::echoDidStopWithError(UDPEcho& /*echo*/, const Error& error) {
    _observer.sessionDidStop(error);
}

// --- Datagrams that the system dropped ---

// Called for every read, a failed one included. A buffer that overflows is full of datagrams, so a
// read, and with it a count, follows the last loss.
void UnitSession::countDropsSoon() {
    if (_services.receiveBuffers != nullptr && _listener != nullptr && _dropCount == nullptr) {
        _dropCount = _services.runLoop.callOnceAfter(timeBetweenCounts, [this] { countDrops(); });
    }
}

void UnitSession::countDrops() {
    _dropCount.reset();
    const auto drops = _services.receiveBuffers->droppedDatagrams(_listener->nativeSocket());
    if (drops.has_value() && *drops != _drops) {
        _drops = *drops;
        _observer.sessionDidDrop(_drops);
    }
}

} // namespace kx
