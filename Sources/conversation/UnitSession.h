// A session with units: one listening endpoint, the datagrams that it sends, and the datagrams that
// come back, as typed events.
//
// It knows no selection, no control and no words. A front starts it on a port and sends requests
// and commands. The session tells the front every event in the order in which the events happen. It
// stores replies with parameters in the registry before it tells the front.
//
// Threading: everything, events included, on the thread of the run loop; nothing blocks. Ownership:
// the observer, the delegate, the services and the registry belong to the front and must outlive
// the session. Errors are values. An error of the network has the system's own text. A datagram
// that breaks its own format becomes a line in the system log, and so does a PlatformException
// that the front throws inside an event of the start or of a datagram's contents.

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

    // A datagram of `length` bytes came. An event about its contents follows: no reply, parameters,
    // an acknowledgement, anything else, or contents that were abandoned, because they break their
    // own format or the front threw an exception.
    virtual void sessionDidReceiveDatagram(std::size_t length, const DatagramOrigin& origin);
    virtual void sessionDidIgnoreDatagram(PacketKind kind, const DatagramOrigin& origin);
    virtual void sessionDidAbandonDatagram(const DatagramOrigin& origin);

    // A unit told its parameters. The record is in the registry already, if it has a serial number.
    virtual void unitDidTellParameters(const Reply& reply, const DecodedUnitParameters& parameters,
                                       const DatagramOrigin& origin);

    // The unit accepted a command; it does not say which.
    virtual void unitDidAccept(const Reply& reply, const DatagramOrigin& origin);

    virtual void unitDidSendOtherReply(const Reply& reply, const DatagramOrigin& origin);

    // A read failed; the session goes on.
    virtual void sessionDidReceiveError(const Error& error);

    // A datagram was sent whole, or not at all for this reason.
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

    // The listener tells its events to `delegate`, which must pass each of them on to the session;
    // when it is null, to the session itself.
    UnitSession(const Services& services, UnitRegistry& registry, UnitSessionObserver& observer,
                UDPEchoDelegate* delegate = nullptr);

    // Stops without an event.
    ~UnitSession() override;
    UnitSession(const UnitSession&) = delete;
    UnitSession& operator=(const UnitSession&) = delete;

    // Stops the listener and starts a new one on a port in host byte order. The events of the start
    // come before start() returns. A port that is not 1 to 65535 breaks a contract of the endpoint
    // and ends the process.
    void start(std::size_t port);

    // Stops without an event.
    void stop();

    // Null before the first start() and after stop(). A listener that could not start exists and
    // has port 0.
    const std::shared_ptr<UDPEcho>& listener() const { return _listener; }
    bool isListening() const { return _listener != nullptr && _listener->port() != 0; }

    // Sends the bytes of `command` as one datagram to an IPv4 address and port in host byte order,
    // by the interface with the index `link` (DatagramOrigin::link, or linkForName()). With link 0
    // the routes decide. When the datagram cannot leave by that interface, the send fails; it takes
    // no other way. The bytes are sent as they are; units understand ASCII only. An empty command
    // fails with EPIPE. The result is absent when the datagram was sent. The session also reports
    // a failure as an event, but not that there is no listener.
    std::optional<SendFailure> send(std::string_view command, std::uint32_t address,
                                    std::uint16_t port, std::uint32_t link);

    // Reports a datagram that cannot leave as a send that failed for this reason. The result and
    // the event are those of send().
    std::optional<SendFailure> failToSend(const Error& error);

    // The index of the interface that has this name now; noSuchLink when none has, so that a send
    // by it fails instead of taking another way. While the system cannot be asked, the index of the
    // call before, if it was for the same name.
    std::uint32_t linkForName(const std::string& name);

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
    void tellParameters(const Reply& reply, DecodedUnitParameters parameters,
                        const DatagramOrigin& origin);
    void rememberLink(const Reply& reply, const DatagramOrigin& origin);
    void didFailToSend(SendFailure failure);
    void countDropsSoon();
    void countDrops();

    Services _services;
    UnitRegistry& _registry;
    UnitSessionObserver& _observer;
    UDPEchoDelegate* _delegate;
    std::shared_ptr<UDPEcho> _listener;
    std::optional<SendFailure> _sendFailure; // failure of the datagram that is being sent
    struct {
        std::string name;
        std::uint32_t index = 0;
    } _lastLink;                // the interface that was found last
    std::uint32_t _drops = 0;   // the number that was told last
    RunLoop::Handle _dropCount; // runs until the next count of drops
};

} // namespace kx
