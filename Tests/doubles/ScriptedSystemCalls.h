// Datagram sockets of a system that the test plays. Nothing reaches the network.
//
// Descriptors are numbers from 1000 on; no real descriptor of a test has such a number. Every call
// is recorded. Without a script each call acts as on a real system, failures included. failNext()
// and giveNext() prepare the outcome of the next call of an operation; several outcomes are used in
// order. Datagrams that are sent arrive nowhere. Sockets do not block.

#pragma once

#include "DatagramSystemCalls.h"
#include "addresses/SocketAddressRecord.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace kx {

class ScriptedSystemCalls final : public DatagramSystemCalls {
public:
    enum class Operation {
        socket,
        bind,
        connect,
        statusFlags,
        setStatusFlags,
        enableBroadcast,
        enablePacketInfo,
        sendTo,
        receiveFrom,
        localAddress,
        peerAddress,
        close,
    };

    // One recorded call. A field that an operation does not use stays empty or 0.
    struct Call {
        Operation operation;
        int descriptor = -1;
        Bytes data = {};
        Bytes address = {};
        int flags = 0;
        std::uint32_t link = 0;
    };

    struct Datagram {
        Bytes data;
        Bytes address;          // a record; empty for a datagram without a destination
        std::uint32_t link = 0; // index of the interface; 0 when the routes decided
    };

    // The next call of `operation` fails with this value of errno (0 is allowed).
    void failNext(Operation operation, int errorNumber) {
        _script[operation].push_back({-1, errorNumber});
    }

    // The next call of `operation` returns this and has no other effect.
    void giveNext(Operation operation, ssize_t result) {
        _script[operation].push_back({result, std::nullopt});
    }

    // Adds an interface, or gives it another index. An interface also exists once a datagram has
    // come by its index.
    void addLink(const std::string& name, std::uint32_t index) { _links[name] = index; }
    void removeLink(const std::string& name) { _links.erase(name); }

    // Sets the value of errno with which linkForName() and nameForLink() fail; 0 ends it.
    void failLinks(int errorNumber) { _linkFailure = errorNumber; }

    // Queues a datagram for receiveFrom(), which fails with EAGAIN when there is none.
    void queueDatagram(Bytes data, Bytes sender, std::uint32_t link = 0,
                       std::uint32_t destination = 0) {
        if (link != 0) {
            addLink("link " + std::to_string(link), link);
        }
        _incoming.push_back(
            {std::move(data),
             {.sender = std::move(sender), .link = link, .destination = destination}});
    }

    // The flags that new socket wrappers start with.
    void setSocketFlags(std::uint32_t flags) { _socketFlags = flags; }

    // Sets a function that runs at the beginning of each call, to play a system that calls back.
    void setObserver(std::function<void(const Call&)> observer) { _observer = std::move(observer); }

    const std::vector<Call>& calls() const { return _calls; }
    std::size_t count(Operation operation) const {
        return static_cast<std::size_t>(
            std::count_if(_calls.begin(), _calls.end(),
                          [operation](const Call& call) { return call.operation == operation; }));
    }

    // Every datagram handed to sendTo() or sendToByLink(), including those of failed sends.
    std::vector<Datagram> sentDatagrams() const {
        std::vector<Datagram> sent;
        for (const auto& call : _calls) {
            if (call.operation == Operation::sendTo) {
                sent.push_back({call.data, call.address, call.link});
            }
        }
        return sent;
    }

    // The open descriptors, and the number of times one was closed.
    std::set<int> openDescriptors() const {
        std::set<int> descriptors;
        for (const auto& [descriptor, socket] : _sockets) {
            descriptors.insert(descriptor);
        }
        return descriptors;
    }
    std::size_t closeCount(int descriptor) const {
        return static_cast<std::size_t>(
            std::count_if(_calls.begin(), _calls.end(), [descriptor](const Call& call) {
                return call.operation == Operation::close && call.descriptor == descriptor;
            }));
    }

    // The descriptor that socket() returned last; -1 when it returned none.
    int lastDescriptor() const { return _lastDescriptor; }

    // --- The system calls ---

    int socket() override {
        if (const auto outcome = record({Operation::socket})) {
            return static_cast<int>(*outcome);
        }
        _lastDescriptor = _nextDescriptor++;
        _sockets.emplace(_lastDescriptor, Socket());
        return _lastDescriptor;
    }

    int bind(int descriptor, ByteView addressRecord) override {
        if (const auto outcome =
                record({Operation::bind, descriptor, {}, bytesOf(addressRecord)})) {
            return static_cast<int>(*outcome);
        }
        Socket* const socket = isUsable(addressRecord) ? openSocket(descriptor) : nullptr;
        if (socket == nullptr) {
            return -1;
        }
        if (isTaken(ipv4PartOf(addressRecord))) {
            errno = EADDRINUSE;
            return -1;
        }
        socket->localAddress = ipv4PartOf(addressRecord);
        return 0;
    }

    int connect(int descriptor, ByteView addressRecord) override {
        if (const auto outcome =
                record({Operation::connect, descriptor, {}, bytesOf(addressRecord)})) {
            return static_cast<int>(*outcome);
        }
        Socket* const socket = isUsable(addressRecord) ? openSocket(descriptor) : nullptr;
        if (socket == nullptr) {
            return -1;
        }
        socket->peerAddress = ipv4PartOf(addressRecord);
        return 0;
    }

    int statusFlags(int descriptor) override {
        if (const auto outcome = record({Operation::statusFlags, descriptor})) {
            return static_cast<int>(*outcome);
        }
        const Socket* const socket = openSocket(descriptor);
        return socket != nullptr ? socket->statusFlags : -1;
    }

    int setStatusFlags(int descriptor, int flags) override {
        if (const auto outcome = record({Operation::setStatusFlags, descriptor, {}, {}, flags})) {
            return static_cast<int>(*outcome);
        }
        Socket* const socket = openSocket(descriptor);
        if (socket == nullptr) {
            return -1;
        }
        socket->statusFlags = flags;
        return 0;
    }

    int enableBroadcast(int descriptor) override {
        if (const auto outcome = record({Operation::enableBroadcast, descriptor})) {
            return static_cast<int>(*outcome);
        }
        return openSocket(descriptor) != nullptr ? 0 : -1;
    }

    int enablePacketInfo(int descriptor) override {
        if (const auto outcome = record({Operation::enablePacketInfo, descriptor})) {
            return static_cast<int>(*outcome);
        }
        Socket* const socket = openSocket(descriptor);
        if (socket == nullptr) {
            return -1;
        }
        socket->tellsLinks = true;
        return 0;
    }

    ssize_t sendTo(int descriptor, ByteView data, std::optional<ByteView> addressRecord) override {
        const Bytes address = bytesOf(addressRecord.value_or(ByteView()));
        if (const auto outcome = record({Operation::sendTo, descriptor, bytesOf(data), address})) {
            return *outcome;
        }
        const bool isRefused = addressRecord && !isUsable(*addressRecord);
        const Socket* const socket = isRefused ? nullptr : openSocket(descriptor);
        if (socket == nullptr) {
            return -1;
        }
        if (!addressRecord && !socket->peerAddress) {
            errno = EDESTADDRREQ;
            return -1;
        }
        return static_cast<ssize_t>(data.size());
    }

    // A send by an interface is an operation sendTo with a link.
    ssize_t sendToByLink(int descriptor, ByteView data, ByteView addressRecord,
                         std::uint32_t link) override {
        if (const auto outcome = record(
                {Operation::sendTo, descriptor, bytesOf(data), bytesOf(addressRecord), 0, link})) {
            return *outcome;
        }
        if (!isUsable(addressRecord) || openSocket(descriptor) == nullptr) {
            return -1;
        }
        if (link != 0 && std::ranges::none_of(
                             _links, [link](const auto& entry) { return entry.second == link; })) {
            errno = ENODEV;
            return -1;
        }
        return static_cast<ssize_t>(data.size());
    }

    // Not recorded: nothing leaves by it.
    std::uint32_t linkForName(const std::string& name) override {
        const auto found = _links.find(name);
        if (_linkFailure != 0 || found == _links.end()) {
            errno = _linkFailure != 0 ? _linkFailure : ENODEV;
            return 0;
        }
        return found->second;
    }
    std::string nameForLink(std::uint32_t link) override {
        const auto found = std::ranges::find_if(
            _links, [link](const auto& entry) { return entry.second == link; });
        return _linkFailure == 0 && found != _links.end() ? found->first : "";
    }

    ssize_t receiveFrom(int descriptor, std::span<std::uint8_t> buffer,
                        DatagramOrigin& origin) override {
        if (const auto outcome = record({Operation::receiveFrom, descriptor})) {
            return *outcome;
        }
        const Socket* const socket = openSocket(descriptor);
        if (socket == nullptr) {
            return -1;
        }
        if (_incoming.empty()) {
            errno = EAGAIN;
            return -1;
        }
        const auto datagram = std::move(_incoming.front());
        _incoming.pop_front();
        const auto length = std::min(datagram.data.size(), buffer.size());
        std::copy_n(datagram.data.begin(), length, buffer.begin());
        origin = datagram.origin;
        if (!socket->tellsLinks) {
            origin.link = 0;
            origin.destination = 0;
        }
        return static_cast<ssize_t>(length);
    }

    std::optional<Bytes> localAddress(int descriptor) override {
        const bool isScripted = record({Operation::localAddress, descriptor}).has_value();
        const Socket* const socket = isScripted ? nullptr : openSocket(descriptor);
        return socket != nullptr ? std::optional(socket->localAddress) : std::nullopt;
    }

    std::optional<Bytes> peerAddress(int descriptor) override {
        const bool isScripted = record({Operation::peerAddress, descriptor}).has_value();
        const Socket* const socket = isScripted ? nullptr : openSocket(descriptor);
        return socket != nullptr ? socket->peerAddress : std::nullopt;
    }

    // The descriptor is closed even when the script makes the call fail.
    int close(int descriptor) override {
        const bool wasOpen = openSocket(descriptor) != nullptr;
        _sockets.erase(descriptor);
        if (const auto outcome = record({Operation::close, descriptor})) {
            return static_cast<int>(*outcome);
        }
        return wasOpen ? 0 : -1;
    }

    std::uint32_t socketFlags() override { return _socketFlags; }

private:
    struct Socket {
        Bytes localAddress = dataForAddress(0, 0);
        std::optional<Bytes> peerAddress = std::nullopt;
        int statusFlags = O_RDWR;
        bool tellsLinks = false;
    };

    struct Incoming {
        Bytes data;
        DatagramOrigin origin;
    };

    struct Outcome {
        ssize_t result;
        std::optional<int> errorNumber;
    };

    // Records a call. Returns the scripted result when there is one.
    std::optional<ssize_t> record(const Call& call) {
        _calls.push_back(call);
        if (_observer) {
            _observer(call);
        }
        auto& outcomes = _script[call.operation];
        if (outcomes.empty()) {
            return std::nullopt;
        }
        const auto outcome = outcomes.front();
        outcomes.pop_front();
        if (outcome.errorNumber) {
            errno = *outcome.errorNumber;
        }
        return outcome.result;
    }

    // Null, with errno set, for a descriptor that is not open.
    Socket* openSocket(int descriptor) {
        const auto found = _sockets.find(descriptor);
        if (found == _sockets.end()) {
            errno = EBADF;
            return nullptr;
        }
        return &found->second;
    }

    // Checks a record as the boundary does before it calls the system. Sets errno when the record
    // is not usable.
    static bool isUsable(ByteView record) {
        if (familyOfRecord(record) != addressFamilyIPv4) {
            errno = EAFNOSUPPORT;
            return false;
        }
        if (record.size() < ipv4RecordLength) {
            errno = EINVAL;
            return false;
        }
        return true;
    }

    // Whether an open socket has this port at this address, or one of the two is bound to every
    // address. With port 0 the system chooses a port.
    bool isTaken(const Bytes& address) const {
        const auto portOf = [](const Bytes& record) { return Bytes{record[2], record[3]}; };
        const auto everywhere = [](const Bytes& record) {
            return std::all_of(record.begin() + 4, record.begin() + 8,
                               [](std::uint8_t octet) { return octet == 0; });
        };
        return portOf(address) != Bytes{0, 0} &&
               std::any_of(_sockets.begin(), _sockets.end(), [&](const auto& entry) {
                   const Bytes& other = entry.second.localAddress;
                   return portOf(other) == portOf(address) &&
                          (other == address || everywhere(other) || everywhere(address));
               });
    }

    static Bytes ipv4PartOf(ByteView record) { return bytesOf(record.first(ipv4RecordLength)); }
    static Bytes bytesOf(ByteView view) { return {view.begin(), view.end()}; }

    std::map<Operation, std::deque<Outcome>> _script;
    std::vector<Call> _calls;
    std::function<void(const Call&)> _observer;
    std::deque<Incoming> _incoming;
    int _linkFailure = 0;
    std::map<std::string, std::uint32_t> _links; // indexes of the interfaces by name
    std::map<int, Socket> _sockets;              // open sockets by descriptor
    std::uint32_t _socketFlags = kCFSocketCloseOnInvalidate;
    int _nextDescriptor = 1000;
    int _lastDescriptor = -1;
};

} // namespace kx
