// Datagram sockets of a system that the test plays. Nothing reaches the network.
//
// Descriptors are numbers from 1000 on, which no real descriptor of a test has. Every call is
// recorded. Without a script each call succeeds as on a real system; failNext() and giveNext()
// prepare the outcome of the next call of an operation, and stand in line when there are several.

#pragma once

#include "DatagramSystemCalls.h"

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
        sendTo,
        receiveFrom,
        localAddress,
        peerAddress,
        close,
    };

    // One recorded call; what an operation does not take stays empty or 0.
    struct Call {
        Operation operation;
        int descriptor = -1;
        Bytes data = {};
        Bytes address = {};
        int flags = 0;
    };

    struct Datagram {
        Bytes data;
        Bytes address; // a record; empty when the datagram named none
    };

    // The next call of `operation` fails with this value of errno (0 is allowed).
    void failNext(Operation operation, int errorNumber) {
        _script[operation].push_back({-1, errorNumber});
    }

    // The next call of `operation` returns this and does nothing else.
    void giveNext(Operation operation, ssize_t result) {
        _script[operation].push_back({result, std::nullopt});
    }

    // Queues a datagram for receiveFrom(), which fails with EAGAIN when there is none.
    void queueDatagram(Bytes data, Bytes sender) {
        _incoming.push_back({std::move(data), std::move(sender)});
    }

    // The flags that new socket wrappers start with.
    void setSocketFlags(std::uint32_t flags) { _socketFlags = flags; }

    // Called at the beginning of each call, to play a system that calls back.
    void setObserver(std::function<void(const Call&)> observer) { _observer = std::move(observer); }

    const std::vector<Call>& calls() const { return _calls; }
    std::size_t count(Operation operation) const {
        return static_cast<std::size_t>(
            std::count_if(_calls.begin(), _calls.end(),
                          [operation](const Call& call) { return call.operation == operation; }));
    }

    // Every datagram handed to sendTo(), also when the send failed.
    std::vector<Datagram> sentDatagrams() const {
        std::vector<Datagram> sent;
        for (const auto& call : _calls) {
            if (call.operation == Operation::sendTo) {
                sent.push_back({call.data, call.address});
            }
        }
        return sent;
    }

    // The descriptors that are open, and how often one was closed.
    const std::set<int>& openDescriptors() const { return _open; }
    std::size_t closeCount(int descriptor) const {
        return static_cast<std::size_t>(
            std::count_if(_calls.begin(), _calls.end(), [descriptor](const Call& call) {
                return call.operation == Operation::close && call.descriptor == descriptor;
            }));
    }

    // The descriptor that socket() gave last, -1 when it gave none.
    int lastDescriptor() const { return _lastDescriptor; }

    // --- The system calls ---

    int socket() override {
        if (const auto outcome = record({Operation::socket})) {
            return static_cast<int>(*outcome);
        }
        _lastDescriptor = _nextDescriptor++;
        _open.insert(_lastDescriptor);
        return _lastDescriptor;
    }

    int bind(int descriptor, ByteView addressRecord) override {
        const Bytes address(addressRecord.begin(), addressRecord.end());
        if (const auto outcome = record({Operation::bind, descriptor, {}, address})) {
            return static_cast<int>(*outcome);
        }
        _localAddresses[descriptor] = address;
        return 0;
    }

    int connect(int descriptor, ByteView addressRecord) override {
        const Bytes address(addressRecord.begin(), addressRecord.end());
        if (const auto outcome = record({Operation::connect, descriptor, {}, address})) {
            return static_cast<int>(*outcome);
        }
        _peerAddresses[descriptor] = address;
        return 0;
    }

    int statusFlags(int descriptor) override {
        const auto outcome = record({Operation::statusFlags, descriptor});
        return outcome ? static_cast<int>(*outcome) : O_RDWR;
    }

    int setStatusFlags(int descriptor, int flags) override {
        return resultOf({Operation::setStatusFlags, descriptor, {}, {}, flags});
    }

    int enableBroadcast(int descriptor) override {
        return resultOf({Operation::enableBroadcast, descriptor});
    }

    ssize_t sendTo(int descriptor, ByteView data, ByteView addressRecord) override {
        const auto outcome = record({Operation::sendTo,
                                     descriptor,
                                     {data.begin(), data.end()},
                                     {addressRecord.begin(), addressRecord.end()}});
        return outcome ? *outcome : static_cast<ssize_t>(data.size());
    }

    ssize_t receiveFrom(int descriptor, std::span<std::uint8_t> buffer, Bytes& sender) override {
        if (const auto outcome = record({Operation::receiveFrom, descriptor})) {
            return *outcome;
        }
        if (_incoming.empty()) {
            errno = EAGAIN;
            return -1;
        }
        const auto datagram = std::move(_incoming.front());
        _incoming.pop_front();
        const auto length = std::min(datagram.data.size(), buffer.size());
        std::copy_n(datagram.data.begin(), length, buffer.begin());
        sender = datagram.address;
        return static_cast<ssize_t>(length);
    }

    std::optional<Bytes> localAddress(int descriptor) override {
        return addressOf({Operation::localAddress, descriptor}, _localAddresses);
    }

    std::optional<Bytes> peerAddress(int descriptor) override {
        return addressOf({Operation::peerAddress, descriptor}, _peerAddresses);
    }

    int close(int descriptor) override {
        _open.erase(descriptor);
        return resultOf({Operation::close, descriptor});
    }

    std::uint32_t socketFlags() override { return _socketFlags; }

private:
    struct Outcome {
        ssize_t result;
        std::optional<int> errorNumber;
    };

    // Records a call; the scripted result when there is one.
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

    int resultOf(const Call& call) { return static_cast<int>(record(call).value_or(0)); }

    std::optional<Bytes> addressOf(const Call& call, const std::map<int, Bytes>& addresses) {
        const auto found = addresses.find(call.descriptor);
        if (record(call) || found == addresses.end()) {
            return std::nullopt;
        }
        return found->second;
    }

    std::map<Operation, std::deque<Outcome>> _script;
    std::vector<Call> _calls;
    std::function<void(const Call&)> _observer;
    std::deque<Datagram> _incoming;
    std::map<int, Bytes> _localAddresses;
    std::map<int, Bytes> _peerAddresses;
    std::set<int> _open;
    std::uint32_t _socketFlags = kCFSocketCloseOnInvalidate;
    int _nextDescriptor = 1000;
    int _lastDescriptor = -1;
};

} // namespace kx
