// A session with units: one listening endpoint, what is sent through it and what comes back, as
// typed events.
//
// It knows no selection, no control and no words. A front starts it on a port, sends requests and
// commands, and is told of everything that happens, in the order in which it happens. Replies with
// parameters are in the registry before the front hears of them.
//
// Threading: everything, events included, on the thread of the run loop; nothing blocks. Ownership:
// the observer, the services and the registry belong to the front and must outlive the session.
// Errors are values: of the network in words of the system, of a datagram that breaks its own
// format as a line in the system log.

#pragma once

#include "ReceiveBuffers.h"
#include "UDPEcho.h"
#include "support/RunLoop.h"
#include "units/ParameterList.h"
#include "units/UnitRegistry.h"
#include "units/UnitReply.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace kx {

// Why a datagram was not sent: the system's error, or none when the listener does not run.
struct SendFailure {
    std::optional<Error> error;
};

// Receives the events of a session. Every method is optional. Inside each the front may send, and
// may stop the session or start it again.
class UnitSessionObserver {
public:
    virtual ~UnitSessionObserver() = default;

    // The listener runs on this local address, a socket address record; then, whether it may send
    // broadcasts, or the system's reason why it may not. Inside the first nothing is sent yet.
    virtual void sessionDidStart(const Bytes& localAddress);
    virtual void sessionCanBroadcast();
    virtual void sessionCannotBroadcast(const std::string& reason);

    // The listener stopped because of an error. It stays so until the next start().
    virtual void sessionDidStop(const Error& error);

    // A datagram came. What it is follows: no reply at all, parameters, an acknowledgement, or
    // anything else; and nothing when it breaks its own format.
    virtual void sessionDidReceiveDatagram(std::size_t length);
    virtual void sessionDidIgnoreDatagram(PacketKind kind);

    // The record is in the registry already, if it has a serial number.
    virtual void unitDidTellParameters(const Reply& reply, const DecodedUnitParameters& parameters,
                                       const DatagramOrigin& origin);

    // The unit accepted a command; it does not say which.
    virtual void unitDidAccept(const Reply& reply, const DatagramOrigin& origin);

    virtual void unitDidSay(const Reply& reply, const DatagramOrigin& origin);

    // A read failed; the session goes on.
    virtual void sessionDidReceiveError(const Error& error);

    virtual void sessionDidSend();
    virtual void sessionDidFailToSend(const SendFailure& failure);

    // The system dropped so many datagrams since the start before they were read; told when the
    // number changes.
    virtual void sessionDidDrop(std::uint32_t datagrams);
};

class UnitSession final : public UDPEchoDelegate {
public:
    struct Services {
        RunLoop& runLoop;
        HostResolver& hostResolver;
        DatagramSystemCalls& systemCalls;

        // Null: the listener keeps the buffer that it begins with, and nobody hears what is lost.
        ReceiveBuffers* receiveBuffers = nullptr;
    };

    UnitSession(const Services& services, UnitRegistry& registry, UnitSessionObserver& observer);

    // Stops without an event.
    ~UnitSession() override;
    UnitSession(const UnitSession&) = delete;
    UnitSession& operator=(const UnitSession&) = delete;

    // The names in the text of decoded parameters; those of the parameter table until then.
    void setShownNames(ShownParameterNames names) { _shownNames = std::move(names); }

    // Stops the listener and starts a new one on a port in host byte order, 1 to 65535. The events
    // of the start come before this returns.
    void start(std::size_t port);

    // Stops without an event.
    void stop();

    // Null before the first start() and after stop(). A listener that could not start is there,
    // with port 0.
    const UDPEcho* listener() const { return _listener.get(); }
    bool isListening() const { return _listener != nullptr && _listener->port() != 0; }

    // Sends one datagram to an IPv4 address and port in host byte order. Absent when it was sent,
    // and without a listener; a failure is an event, too.
    std::optional<SendFailure> send(std::string_view command, std::uint32_t address,
                                    std::uint16_t port);

    // --- The endpoint's events ---

    void echoDidReceiveDataFromAddress(UDPEcho& echo, const Bytes& data,
                                       const Bytes& address) override;
    void echoDidReceiveError(UDPEcho& echo, const Error& error) override;
    void echoDidSendDataToAddress(UDPEcho& echo, const Bytes& data, const Bytes& address) override;
    void echoDidFailToSendDataToAddressError(UDPEcho& echo, const Bytes& data, const Bytes& address,
                                             const Error& error) override;
    void echoDidStartWithAddress(UDPEcho& echo, const Bytes& address) override;
    void echoDidStopWithError(UDPEcho& echo, const Error& error) override;

private:
    void didReceiveDataFromAddress(ByteView data, const DatagramOrigin& origin);
    void didFailToSend(SendFailure failure);
    void countDropsSoon();
    void countDrops();

    Services _services;
    UnitRegistry& _registry;
    UnitSessionObserver& _observer;
    std::optional<ShownParameterNames> _shownNames;
    std::shared_ptr<UDPEcho> _listener;
    std::optional<SendFailure> _sendFailure; // of the datagram that is being sent
    std::uint32_t _drops = 0;                // as they were told
    RunLoop::Handle _dropCount;              // while they will be counted
};

} // namespace kx
