// An IPv4 UDP endpoint driven by the run loop.
//
// It owns one datagram socket and tells a delegate everything that happens on it. Two modes:
//
//   server   startServerOnPort(): bound to 0.0.0.0 and the port; every datagram that is sent names
//            its destination (_sendDataToAddress()).
//   client   startConnectedToHostNamePort(): resolves a host name, connects to the first IPv4
//            address that accepts, and sends to that peer (sendData()).
//
// The endpoint has no protocol: a datagram is one buffer of bytes and a socket address. It sets no
// socket option; its owner may do so through nativeSocket().
//
// Threading: everything, callbacks included, on the thread of the run loop. Sends and reads never
// block. One datagram is read for each call of the run loop, and besides those that the system
// calls have read ahead, up to a few kilobytes. So a flood on this socket cannot keep other events
// waiting.
//
// Ownership: endpoints are held by std::shared_ptr, and made by make() only. The delegate is not
// owned; it must outlive the endpoint or be cleared before it ends. Run loop, resolver and system
// calls must outlive the endpoint too.
//
// Errors: a failure of the network reaches the delegate as an Error; sends and reads that fail do
// not stop the endpoint. A mistake of the caller, and a result that no system may give, break a
// contract and end the process (support/Require.h, source path "Sources/UDPEcho"). The comments at
// the operations name the contracts. When one operation calls another, the contracts of both hold.

#pragma once

#include "DatagramSystemCalls.h"
#include "EndpointSocket.h"
#include "support/ByteRange.h"
#include "support/Error.h"
#include "support/HostResolver.h"
#include "support/RunLoop.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kx {

class UDPEcho;

// Receives the events of an endpoint. Every method is optional. All calls are synchronous; the
// endpoint makes them from inside its own operation or run-loop callback. Addresses are socket
// address records in the BSD layout (addresses/SocketAddressRecord.h).
//
// Inside every event the delegate may stop the endpoint, start it again after that in either mode,
// give up the last reference to it, clear or change its delegate, and send, as long as the endpoint
// runs. The endpoint touches nothing of itself after the event. The arguments of a method do not
// change until the method returns.
class UDPEchoDelegate {
public:
    virtual ~UDPEchoDelegate() = default;

    // A datagram of at least one byte was read.
    virtual void echoDidReceiveDataFromAddress(UDPEcho& echo, const Bytes& data,
                                               const Bytes& address);

    // A read failed; the endpoint goes on. A datagram without bytes counts as EPIPE.
    virtual void echoDidReceiveError(UDPEcho& echo, const Error& error);

    // A datagram was sent whole. A send from inside this event is reported inside it.
    virtual void echoDidSendDataToAddress(UDPEcho& echo, const Bytes& data, const Bytes& address);

    // A send failed; the endpoint goes on. A send of nothing counts as EPIPE. An address that is no
    // IPv4 record counts as EAFNOSUPPORT, or as EINVAL when it is cut short.
    virtual void echoDidFailToSendDataToAddressError(UDPEcho& echo, const Bytes& data,
                                                     const Bytes& address, const Error& error);

    // The endpoint started. `address` is its local address as a server, and the peer's address as a
    // client.
    virtual void echoDidStartWithAddress(UDPEcho& echo, const Bytes& address);

    // The endpoint stopped because of an error. stop() does not report this event. The endpoint is
    // stopped already, so it may be started again here, but cannot send.
    virtual void echoDidStopWithError(UDPEcho& echo, const Error& error);
};

enum class HostInfoType { addresses = 0, names = 1, reachability = 2 };

class UDPEcho : public CallbackInfo, public std::enable_shared_from_this<UDPEcho> {
public:
    // A stopped endpoint without a delegate.
    static std::shared_ptr<UDPEcho> make(RunLoop& runLoop, HostResolver& hostResolver,
                                         DatagramSystemCalls& systemCalls);

    // Stops without a report to the delegate.
    ~UDPEcho() override;
    UDPEcho* endpoint() final { return this; }
    UDPEcho(const UDPEcho&) = delete;
    UDPEcho& operator=(const UDPEcho&) = delete;

    // True in server mode and when stopped, because there is no host name then.
    bool isServer() const { return !_hostName.has_value(); }

    // The port in host byte order; 0 when stopped.
    std::size_t port() const { return _port; }
    void setPort(std::size_t port) { _port = port; }

    // Client mode: the name being resolved or connected to. Otherwise absent.
    const std::optional<std::string>& hostName() const { return _hostName; }
    void setHostName(std::optional<std::string> hostName) { _hostName = std::move(hostName); }

    // Client mode, connected: the peer's record. Otherwise absent.
    const std::optional<Bytes>& hostAddress() const { return _hostAddress; }
    void setHostAddress(std::optional<Bytes> address) { _hostAddress = std::move(address); }

    UDPEchoDelegate* delegate() const { return _delegate; }
    void setDelegate(UDPEchoDelegate* delegate) { _delegate = delegate; }

    // The socket's descriptor, for socket options; -1 while there is no socket.
    int nativeSocket() const;

    // Inside echoDidReceiveDataFromAddress(): the index of the interface by which the datagram came
    // (see if_nametoindex(3)); 0 when the system does not tell.
    std::uint32_t link() const { return _link; }

    // Starts as a server on a port in host byte order and reports echoDidStartWithAddress() before
    // it returns. When the socket cannot be set up, reports echoDidStopWithError() instead and
    // stays stopped. The local address is read whenever there is a delegate, even one that does not
    // implement the event.
    // Contracts: "(port > 0) && (port < 65536)", "self.port == 0", those of
    // _setupSocketConnectedToAddressPortError(), "localAddress != NULL".
    void startServerOnPort(std::size_t port);

    // Starts as a client: resolves, then connects, then reports echoDidStartWithAddress(). The peer
    // is the first IPv4 address that accepts; refusals of earlier addresses are not reported. Every
    // failure reports echoDidStopWithError(), from inside this call when the resolution cannot
    // start.
    // Contracts: "hostName != nil", "(port > 0) && (port < 65536)", "self.port == 0",
    // "self->_cfHost == NULL", "self->_cfHost != NULL"; at the end of the resolution those of
    // HostResolveCallback().
    void startConnectedToHostNamePort(const std::optional<std::string>& hostName, std::size_t port);

    // Client mode: sends one datagram to the peer. Contracts: "NO" unless connected, and those of
    // _sendDataToAddress().
    void sendData(const std::optional<Bytes>& data);

    // Sends one datagram. In server mode it goes to `address`. In client mode it goes to the peer,
    // and `address` is absent. Reports echoDidSendDataToAddress() or
    // echoDidFailToSendDataToAddressError() before it returns. An address that is present but empty
    // counts as present, and fails to send.
    // Contracts: "data != nil", "(addr != nil) == self.isServer",
    // "(addr == nil) || ([addr length] <= sizeof(struct sockaddr_storage))", "sock >= 0",
    // "addr != nil" (a client without a peer), "(NSUInteger) bytesWritten == [data length]".
    void _sendDataToAddress(const std::optional<Bytes>& data, const std::optional<Bytes>& address);

    // Server mode: sends one datagram to `address` by the interface with this index, whatever the
    // routes say (DatagramSystemCalls::sendToByLink()); index 0 leaves the choice to the routes.
    // Reports as _sendDataToAddress() does, whose contracts hold too. A client ignores the link.
    void sendDataToAddressByLink(const std::optional<Bytes>& data,
                                 const std::optional<Bytes>& address, std::uint32_t link);

    // Stops and releases everything, silently. Does nothing when stopped.
    void stop();

    // The plain functions registered with the socket's watch and with the resolver; each checks
    // that it is called for the endpoint's own socket or resolution, then acts.

    // Reads one datagram. Contracts: "[obj isKindOfClass:[UDPEcho class]]", "s == obj->_cfSocket",
    // "type == kCFSocketReadCallBack", "address == nil", "data == nil", those of _readData().
    friend void SocketReadCallback(const EndpointSocket* socket, SocketCallbackType type,
                                   const Bytes* address, const void* data, CallbackInfo* info);

    // Ends the start of a client, or stops it with the resolution's error.
    // Contracts: "[obj isKindOfClass:[UDPEcho class]]", "theHost == obj->_cfHost",
    // "typeInfo == kCFHostAddresses", those of _hostResolutionDone().
    friend void HostResolveCallback(const HostResolver::Request* host, HostInfoType typeInfo,
                                    const HostResolution& resolution, CallbackInfo* info);

protected:
    // Objects of a derived class must be held by std::shared_ptr too.
    UDPEcho(RunLoop& runLoop, HostResolver& hostResolver, DatagramSystemCalls& systemCalls);

    // The steps of the operations above. Owners do not call them; derived classes may call them one
    // by one.

    // Creates the socket, binds it to `port` (no address) or connects it to `address` at `port`,
    // and watches it. On failure returns false and stores the reason in `error`, unless that is
    // null.
    // Contracts: "(address == nil) == self.isServer",
    // "(address == nil) || ([address length] <= sizeof(struct sockaddr_storage))", "port < 65536",
    // "self->_cfSocket == NULL", "NO" (an address of more than 16 bytes),
    // "addr.sin_family == AF_INET",
    // "CFSocketGetSocketFlags(self->_cfSocket) & kCFSocketCloseOnInvalidate", "rls != NULL",
    // "junk == 0", "(err == 0) == (self->_cfSocket != NULL)".
    bool _setupSocketConnectedToAddressPortError(const std::optional<Bytes>& address,
                                                 std::size_t port, std::optional<Error>* error);

    // Connects to the first IPv4 address that accepts, and reports the start. Reports the stop when
    // none accepted, with the last address's error, and when there was none, with
    // kCFHostErrorHostNotFound.
    // Contracts: "self.port != 0", "self->_cfHost != NULL", "self->_cfSocket == NULL",
    // "self.hostAddress == nil", "addrLen >= sizeof(struct sockaddr)", those of
    // _setupSocketConnectedToAddressPortError(), "hostAddress != NULL".
    void _hostResolutionDone(const HostResolution& resolution);

    // Ends the resolution, if one is in progress, without a report.
    void _stopHostResolution();

    // Reads one datagram and reports it. Contracts: "sock >= 0", "dataObj != nil",
    // "addrObj != nil".
    void _readData();

    // Stops, then reports the error. Contract: "error != nil".
    void _stopWithError(const std::optional<Error>& error);

    // Stops, then reports kCFHostErrorUnknown. An error of the resolver itself
    // (kCFStreamErrorDomainNetDB) has its code as user info, under kCFGetAddrInfoFailureKey. An
    // error of another domain has no user info.
    void _stopWithStreamError(const StreamError& streamError);

private:
    int _openSocket(int& sock, const std::optional<Bytes>& address, std::size_t port);
    void _scheduleSocket(int sock);
    ssize_t _send(ByteView data, std::optional<ByteView> address, std::uint32_t link);
    std::optional<Error> _connectToFirstOf(const std::vector<Bytes>& addresses);

    RunLoop& _runLoop;
    HostResolver& _hostResolver;
    DatagramSystemCalls& _systemCalls;

    UDPEchoDelegate* _delegate = nullptr;
    std::optional<std::string> _hostName;
    std::optional<Bytes> _hostAddress;
    std::size_t _port = 0;
    std::uint32_t _link = 0;
    std::unique_ptr<HostResolver::Request> _cfHost;
    std::unique_ptr<EndpointSocket> _cfSocket;
};

void SocketReadCallback(const EndpointSocket* socket, SocketCallbackType type, const Bytes* address,
                        const void* data, CallbackInfo* info);
void HostResolveCallback(const HostResolver::Request* host, HostInfoType typeInfo,
                         const HostResolution& resolution, CallbackInfo* info);

} // namespace kx
