// A session with units: one listening endpoint, the datagrams that it sends, and the datagrams that
// come back, as typed events.
//
// It knows no selection, no control and no words. A front starts it on a port and sends requests
// and commands. The session tells the front every event in the order in which the events happen. It
// stores replies with parameters in the registry before it tells the front.
//
// Threading: everything, events included, on the thread of the run loop; nothing blocks. Ownership:
// the observer, the services and the registry belong to the front and must outlive the session.
// Errors are values. An error of the network has the system's own text. A datagram that breaks its
// own format becomes a line in the system log.

#pragma once

#include "ReceiveBufferControl.h"
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

// The reason why a datagram was not sent. `error` is the system's error; it is absent when the
// listener does not run.
struct SendFailure {
    std::optional<Error> error;
};

// Receives the events of a session. Every method is optional. Inside each event the front may send,
// stop the session or start it again.
class UnitSessionObserver {
public:
    virtual ~UnitSessionObserver() = default;

    // The listener runs on this local address, a socket address record. One of the next two events
    // follows: the listener may send broadcasts, or the system gave a reason why it may not.
    // Nothing is sent yet inside sessionDidStart().
    virtual void sessionDidStart(const Bytes& localAddress);
    virtual void sessionCanBroadcast();
    virtual void sessionCannotBroadcast(const std::string& reason);

    // The listener stopped because of an error. It stays stopped until the next start().
    virtual void sessionDidStop(const Error& error);

    // A datagram came. An event about its contents follows: no reply, parameters, an
    // acknowledgement, or anything else. No event follows when the datagram breaks its own format.
    virtual void sessionDidReceiveDatagram(std::size_t length);
    virtual void sessionDidIgnoreDatagram(PacketKind kind);

    // A unit told its parameters. The record is in the registry already, if it has a serial number.
    virtual void unitDidTellParameters(const Reply& reply, const DecodedUnitParameters& parameters,
                                       const DatagramOrigin& origin);

    // The unit accepted a command; it does not say which.
    virtual void unitDidAccept(const Reply& reply, const DatagramOrigin& origin);

    virtual void unitDidSendOtherReply(const Reply& reply, const DatagramOrigin& origin);

    // A read failed; the session goes on.
    virtual void sessionDidReceiveError(const Error& error);

    virtual void sessionDidSend();
    virtual void sessionDidFailToSend(const SendFailure& failure);

    // The number of datagrams that the system has dropped since the start before they were read.
    // The session calls this when the number changes.
    virtual void sessionDidDrop(std::uint32_t datagrams);
};

class UnitSession final : public UDPEchoDelegate {
public:
    struct Services {
        RunLoop& runLoop;
        HostResolver& hostResolver;
        DatagramSystemCalls& systemCalls;

        // May be null. The listener then keeps the buffer that it begins with, and lost datagrams
        // are not reported.
        ReceiveBufferControl* receiveBuffers = nullptr;
    };

    UnitSession(const Services& services, UnitRegistry& registry, UnitSessionObserver& observer);

    // Stops without an event.
    ~UnitSession() override;
    UnitSession(const UnitSession&) = delete;
    UnitSession& operator=(const UnitSession&) = delete;

    // Sets the parameter names in the text of decoded parameters. Without a call these are the
    // names of the parameter table.
    void setShownNames(ShownParameterNames names) { _shownNames = std::move(names); }

    // Stops the listener and starts a new one on a port in host byte order, 1 to 65535. The events
    // of the start come before start() returns.
    void start(std::size_t port);

    // Stops without an event.
    void stop();

    // Null before the first start() and after stop(). A listener that could not start exists and
    // has port 0.
    const UDPEcho* listener() const { return _listener.get(); }
    bool isListening() const { return _listener != nullptr && _listener->port() != 0; }

    // Sends one datagram to an IPv4 address and port in host byte order, by the interface with the
    // index `link` (DatagramOrigin::link, or linkForName()). With link 0 the routes decide. When
    // the datagram cannot leave by that interface, the send fails; it takes no other way. The
    // result is absent when the datagram was sent, and when there is no listener. The session also
    // reports a failure as an event.
    std::optional<SendFailure> send(std::string_view command, std::uint32_t address,
                                    std::uint16_t port, std::uint32_t link);

    // The index of the interface that has this name now; noSuchLink when none has, so that a send
    // by it fails instead of taking another way.
    std::uint32_t linkForName(const std::string& name) const;

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
    std::optional<SendFailure> _sendFailure; // failure of the datagram that is being sent
    std::uint32_t _drops = 0;                // the number that was told last
    RunLoop::Handle _dropCount;              // runs until the next count of drops
};

} // namespace kx
