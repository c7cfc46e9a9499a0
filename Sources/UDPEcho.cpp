#include "UDPEcho.h"

#include "addresses/SocketAddressRecord.h"
#include "support/Require.h"

#include <fcntl.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>

namespace kx {

namespace {

constexpr std::string_view sourcePath = "Sources/UDPEcho";

// The peer's record with another port. A short record is filled with zeros.
Bytes connectRecord(const Bytes& address, std::size_t port) {
    require(address.size() <= ipv4RecordLength, "NO", sourcePath);
    Bytes record = address;
    record.resize(ipv4RecordLength, 0);
    require(familyOfRecord(record) == addressFamilyIPv4, "addr.sin_family == AF_INET", sourcePath);
    record[2] = static_cast<std::uint8_t>(port >> 8U);
    record[3] = static_cast<std::uint8_t>(port);
    return record;
}

int makeNonBlocking(DatagramSystemCalls& systemCalls, int sock) {
    const int flags = systemCalls.statusFlags(sock);
    const bool done = flags >= 0 && systemCalls.setStatusFlags(sock, flags | O_NONBLOCK) >= 0;
    return done ? 0 : errno;
}

// The first `count` bytes of the buffer; absent when a system claims to have filled more bytes than
// the buffer has.
std::optional<Bytes> copyOfBytes(ByteView buffer, std::size_t count) {
    if (count > buffer.size()) {
        return std::nullopt;
    }
    const auto bytes = buffer.first(count);
    return Bytes(bytes.begin(), bytes.end());
}

} // namespace

// --- The delegate's methods are optional ---

void UDPEchoDelegate::echoDidReceiveDataFromAddress(UDPEcho&, const Bytes&, const Bytes&) {}
void UDPEchoDelegate::echoDidReceiveError(UDPEcho&, const Error&) {}
void UDPEchoDelegate::echoDidSendDataToAddress(UDPEcho&, const Bytes&, const Bytes&) {}
void UDPEchoDelegate::echoDidFailToSendDataToAddressError(UDPEcho&, const Bytes&, const Bytes&,
                                                          const Error&) {}
void UDPEchoDelegate::echoDidStartWithAddress(UDPEcho&, const Bytes&) {}
void UDPEchoDelegate::echoDidStopWithError(UDPEcho&, const Error&) {}

// --- Life and start ---

std::shared_ptr<UDPEcho> UDPEcho::make(RunLoop& runLoop, HostResolver& hostResolver,
                                       DatagramSystemCalls& systemCalls) {
    return std::shared_ptr<UDPEcho>(new UDPEcho(runLoop, hostResolver, systemCalls));
}

UDPEcho::UDPEcho(RunLoop& runLoop, HostResolver& hostResolver, DatagramSystemCalls& systemCalls)
    : _runLoop(runLoop)
    , _hostResolver(hostResolver)
    , _systemCalls(systemCalls) {}

UDPEcho::~UDPEcho() {
    stop();
}

int UDPEcho::nativeSocket() const {
    return _cfSocket != nullptr ? _cfSocket->native() : -1;
}

void UDPEcho::startServerOnPort(std::size_t port) {
    require((port > 0) && (port < 65536), "(port > 0) && (port < 65536)", sourcePath);
    require(_port == 0, "self.port == 0", sourcePath);

    std::optional<Error> error;
    if (!_setupSocketConnectedToAddressPortError(std::nullopt, port, &error)) {
        _stopWithError(error);
        return;
    }
    _port = port;
    if (_delegate != nullptr) {
        const auto localAddress = _systemCalls.localAddress(nativeSocket());
        _delegate->echoDidStartWithAddress(
            *this, requireValue(localAddress, "localAddress != NULL", sourcePath));
    }
}

void UDPEcho::startConnectedToHostNamePort(const std::optional<std::string>& hostName,
                                           std::size_t port) {
    const std::string& name = requireValue(hostName, "hostName != nil", sourcePath);
    require((port > 0) && (port < 65536), "(port > 0) && (port < 65536)", sourcePath);
    require(_port == 0, "self.port == 0", sourcePath);
    require(_cfHost == nullptr, "self->_cfHost == NULL", sourcePath);

    _cfHost = _hostResolver.requestForHostName(name);
    require(_cfHost != nullptr, "self->_cfHost != NULL", sourcePath);

    const auto report = [this, host = _cfHost.get()](const HostResolution& resolution) {
        const auto self = shared_from_this(); // the delegate may release the endpoint
        HostResolveCallback(host, HostInfoType::addresses, resolution, this);
    };
    StreamError streamError;
    if (!_cfHost->startResolution(report, streamError)) {
        _stopWithStreamError(streamError);
        return;
    }
    _hostName = name;
    _port = port;
}

bool UDPEcho::_setupSocketConnectedToAddressPortError(const std::optional<Bytes>& address,
                                                      std::size_t port,
                                                      std::optional<Error>* error) {
    require(!address.has_value() == isServer(), "(address == nil) == self.isServer", sourcePath);
    require(!address.has_value() || address->size() <= longestRecordLength,
            "(address == nil) || ([address length] <= sizeof(struct sockaddr_storage))",
            sourcePath);
    require(port < 65536, "port < 65536", sourcePath);
    require(_cfSocket == nullptr, "self->_cfSocket == NULL", sourcePath);

    int sock = -1;
    const int err = _openSocket(sock, address, port);
    if (err == 0) {
        _scheduleSocket(sock);
    } else if (sock != -1) {
        const int junk = _systemCalls.close(sock);
        require(junk == 0, "junk == 0", sourcePath);
    }
    require((err == 0) == (_cfSocket != nullptr), "(err == 0) == (self->_cfSocket != NULL)",
            sourcePath);
    if (_cfSocket == nullptr && error != nullptr) {
        *error = posixError(err);
    }
    return err == 0;
}

// Creates the socket, binds or connects it, and makes it non-blocking. Returns 0, or the errno
// value of the first step that failed. `sock` is the descriptor, -1 when none was made.
int UDPEcho::_openSocket(int& sock, const std::optional<Bytes>& address, std::size_t port) {
    sock = _systemCalls.socket();
    int err = sock < 0 ? errno : 0;
    if (err == 0 && address.has_value()) {
        err = _systemCalls.connect(sock, connectRecord(*address, port)) < 0 ? errno : 0;
    } else if (err == 0) {
        const auto anyAddress = dataForAddress(0, static_cast<std::uint16_t>(port));
        err = _systemCalls.bind(sock, anyAddress) < 0 ? errno : 0;
    }
    return err != 0 ? err : makeNonBlocking(_systemCalls, sock);
}

void UDPEcho::_scheduleSocket(int sock) {
    _cfSocket = std::make_unique<EndpointSocket>(_systemCalls, sock);
    require((_cfSocket->flags() & kCFSocketCloseOnInvalidate) != 0,
            "CFSocketGetSocketFlags(self->_cfSocket) & kCFSocketCloseOnInvalidate", sourcePath);

    // The delegate may release the endpoint inside the event. Nothing of it is used afterwards, so
    // the callback need not hold it, which would cost two atomic operations for each datagram.
    const bool rls = _cfSocket->watch(_runLoop, SocketReadCallback, *this);
    require(rls, "rls != NULL", sourcePath);
}

// --- Resolution ---

void UDPEcho::_hostResolutionDone(const HostResolution& resolution) {
    require(_port != 0, "self.port != 0", sourcePath);
    require(_cfHost != nullptr, "self->_cfHost != NULL", sourcePath);
    require(_cfSocket == nullptr, "self->_cfSocket == NULL", sourcePath);
    require(!_hostAddress.has_value(), "self.hostAddress == nil", sourcePath);

    std::optional<Error> error;
    if (resolution.addresses.has_value()) {
        error = _connectToFirstOf(*resolution.addresses);
    }
    if (_cfSocket != nullptr) {
        _hostAddress = _systemCalls.peerAddress(nativeSocket());
        require(_hostAddress.has_value(), "hostAddress != NULL", sourcePath);
    }
    const std::optional<Bytes> hostAddress = _hostAddress; // the delegate may stop the endpoint
    if (!hostAddress.has_value()) {
        const Error notFound{std::string(kCFErrorDomainCFNetwork), kCFHostErrorHostNotFound,
                             std::nullopt};
        _stopWithError(error.value_or(notFound));
        return;
    }
    _stopHostResolution();
    if (_delegate != nullptr) {
        _delegate->echoDidStartWithAddress(*this, *hostAddress);
    }
}

// Sets up the socket with the first IPv4 address that accepts. The result is absent when one
// accepted, and when there was none to try; otherwise it is the error of the last one.
std::optional<Error> UDPEcho::_connectToFirstOf(const std::vector<Bytes>& addresses) {
    std::optional<Error> error;
    for (const auto& address : addresses) {
        require(address.size() >= ipv4RecordLength, "addrLen >= sizeof(struct sockaddr)",
                sourcePath);
        if (familyOfRecord(address) != addressFamilyIPv4) {
            continue;
        }
        if (_setupSocketConnectedToAddressPortError(address, _port, &error)) {
            return std::nullopt;
        }
    }
    return error;
}

// --- Datagrams ---

void UDPEcho::sendData(const std::optional<Bytes>& data) {
    require(!isServer() && _hostAddress.has_value(), "NO", sourcePath);
    _sendDataToAddress(data, std::nullopt);
}

void UDPEcho::_sendDataToAddress(const std::optional<Bytes>& data,
                                 const std::optional<Bytes>& address) {
    sendDataToAddressByLink(data, address, 0);
}

void UDPEcho::sendDataToAddressByLink(const std::optional<Bytes>& data,
                                      const std::optional<Bytes>& address, std::uint32_t link) {
    const Bytes& bytes = requireValue(data, "data != nil", sourcePath);
    require(address.has_value() == isServer(), "(addr != nil) == self.isServer", sourcePath);
    require(!address.has_value() || address->size() <= longestRecordLength,
            "(addr == nil) || ([addr length] <= sizeof(struct sockaddr_storage))", sourcePath);
    require(nativeSocket() >= 0, "sock >= 0", sourcePath);

    // A copy, because the delegate may stop the endpoint.
    const std::optional<Bytes> destination = address.has_value() ? address : _hostAddress;
    const Bytes& addr = requireValue(destination, "addr != nil", sourcePath);

    // A connected socket sends without an address.
    const auto addressToSend = address.has_value() ? std::optional<ByteView>(addr) : std::nullopt;
    const ssize_t bytesWritten = _send(bytes, addressToSend, link);
    int err = 0;
    if (bytesWritten < 0) {
        err = errno;
    } else if (bytesWritten == 0) {
        err = EPIPE;
    } else {
        require(static_cast<std::size_t>(bytesWritten) == bytes.size(),
                "(NSUInteger) bytesWritten == [data length]", sourcePath);
    }

    if (_delegate != nullptr && err == 0) {
        _delegate->echoDidSendDataToAddress(*this, bytes, addr);
    } else if (_delegate != nullptr) {
        _delegate->echoDidFailToSendDataToAddressError(*this, bytes, addr, posixError(err));
    }
}

ssize_t UDPEcho::_send(ByteView data, std::optional<ByteView> address, std::uint32_t link) {
    const int sock = nativeSocket();
    return address.has_value() && link != 0 ? _systemCalls.sendToByLink(sock, data, *address, link)
                                            : _systemCalls.sendTo(sock, data, address);
}

void UDPEcho::_readData() {
    const int sock = nativeSocket();
    require(sock >= 0, "sock >= 0", sourcePath);

    std::array<std::uint8_t, receiveBufferLength> buffer; // the system fills as much as it needs
    DatagramOrigin origin;
    const ssize_t bytesRead = _systemCalls.receiveFrom(sock, buffer, origin);
    const int err = bytesRead == 0 ? EPIPE : errno;
    _cfSocket->didRead(static_cast<std::size_t>(std::max<ssize_t>(bytesRead, 0)));
    if (bytesRead > 0) {
        const auto copy = copyOfBytes(buffer, static_cast<std::size_t>(bytesRead));
        const Bytes& dataObj = requireValue(copy, "dataObj != nil", sourcePath);
        require(!origin.sender.empty(), "addrObj != nil", sourcePath);
        _link = origin.link;
        if (_delegate != nullptr) {
            _delegate->echoDidReceiveDataFromAddress(*this, dataObj, origin.sender);
        }
        return;
    }
    if (err != 0 && _delegate != nullptr) {
        _delegate->echoDidReceiveError(*this, posixError(err));
    }
}

// --- Stop ---

void UDPEcho::stop() {
    _hostName.reset();
    _hostAddress.reset();
    _port = 0;
    _stopHostResolution();
    _cfSocket.reset();
}

void UDPEcho::_stopHostResolution() {
    _cfHost.reset();
}

void UDPEcho::_stopWithError(const std::optional<Error>& error) {
    const Error& reason = requireValue(error, "error != nil", sourcePath);
    stop();
    if (_delegate != nullptr) {
        const auto self = shared_from_this(); // the delegate may release the endpoint
        _delegate->echoDidStopWithError(*this, reason);
    }
}

void UDPEcho::_stopWithStreamError(const StreamError& streamError) {
    Error error{std::string(kCFErrorDomainCFNetwork), kCFHostErrorUnknown, std::nullopt};
    if (streamError.domain == kCFStreamErrorDomainNetDB) {
        error.userInfo =
            PropertyDictionary{{std::string(kCFGetAddrInfoFailureKey), streamError.code}};
    }
    _stopWithError(error);
}

// --- Callbacks ---

void SocketReadCallback(const EndpointSocket* socket, SocketCallbackType type, const Bytes* address,
                        const void* data, CallbackInfo* info) {
    auto* const obj = info != nullptr ? info->endpoint() : nullptr;
    require(obj != nullptr, "[obj isKindOfClass:[UDPEcho class]]", sourcePath);
    require(socket == obj->_cfSocket.get(), "s == obj->_cfSocket", sourcePath);
    require(type == SocketCallbackType::read, "type == kCFSocketReadCallBack", sourcePath);
    require(address == nullptr, "address == nil", sourcePath);
    require(data == nullptr, "data == nil", sourcePath);
    obj->_readData();
}

void HostResolveCallback(const HostResolver::Request* host, HostInfoType typeInfo,
                         const HostResolution& resolution, CallbackInfo* info) {
    auto* const obj = info != nullptr ? info->endpoint() : nullptr;
    require(obj != nullptr, "[obj isKindOfClass:[UDPEcho class]]", sourcePath);
    require(host == obj->_cfHost.get(), "theHost == obj->_cfHost", sourcePath);
    require(typeInfo == HostInfoType::addresses, "typeInfo == kCFHostAddresses", sourcePath);
    if (resolution.error.domain == kCFStreamErrorDomainNone) {
        obj->_hostResolutionDone(resolution);
    } else {
        obj->_stopWithStreamError(resolution.error);
    }
}

} // namespace kx
