// Datagram sockets with a simulated unit at their other end, without a network between them.
//
// A datagram of the endpoint becomes the unit's command at once, when it goes to an address and a
// port at which the unit can be reached. The unit's reply waits to be received. The link keeps only
// the last datagram and a count, so its size does not grow with the number of datagrams.

#pragma once

#include "DatagramSystemCalls.h"
#include "Simulator/SimulatedUnit.h"
#include "addresses/IPv4Address.h"
#include "addresses/SocketAddressRecord.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <utility>

namespace kx {

class SimulatedLink final : public DatagramSystemCalls {
public:
    explicit SimulatedLink(const simulator::UnitSettings& factory)
        : _unit(factory) {}

    simulator::SimulatedUnit& unit() { return _unit; }

    // Sets whether the host's ARP cache leads to the unit for an address that the unit does not
    // hold.
    void setARPCache(std::function<bool(std::uint32_t address)> leadsToUnit) {
        _leadsToUnit = std::move(leadsToUnit);
    }

    const std::string& lastCommand() const { return _lastCommand; } // reached the unit
    std::size_t commandCount() const { return _commandCount; }
    std::size_t acknowledgementCount() const { return _acknowledgementCount; }
    std::size_t openCount() const { return _openCount; } // number of open sockets
    bool holdsReply() const { return !_replies.empty(); }
    int descriptor() const { return _descriptor; } // the newest socket

    int socket() override {
        ++_openCount;
        return ++_descriptor;
    }
    int bind(int /*descriptor*/, ByteView /*addressRecord*/) override { return 0; }
    int connect(int /*descriptor*/, ByteView /*addressRecord*/) override { return 0; }
    int statusFlags(int /*descriptor*/) override { return 0; }
    int setStatusFlags(int /*descriptor*/, int /*flags*/) override { return 0; }
    int enableBroadcast(int /*descriptor*/) override { return 0; }
    int enablePacketInfo(int /*descriptor*/) override { return 0; }

    ssize_t sendTo(int /*descriptor*/, ByteView data,
                   std::optional<ByteView> addressRecord) override {
        if (data.size() > longestDatagram) {
            errno = EMSGSIZE;
            return -1;
        }
        std::uint32_t address = 0;
        IPv6Octets address6{};
        std::uint16_t port = 0;
        addressForData(addressRecord.value_or(ByteView()), address, address6, &port);
        if (reachesUnit(address) && _unit.listensOnPort(port)) {
            deliver(data);
        }
        return static_cast<ssize_t>(data.size());
    }

    ssize_t sendToByLink(int descriptor, ByteView data, ByteView addressRecord,
                         std::uint32_t /*link*/) override {
        return sendTo(descriptor, data, addressRecord);
    }
    std::uint32_t linkForName(const std::string& /*name*/) override { return 1; }

    ssize_t receiveFrom(int /*descriptor*/, std::span<std::uint8_t> buffer,
                        DatagramOrigin& origin) override {
        if (_replies.empty()) {
            errno = EAGAIN;
            return -1;
        }
        const Bytes reply = std::move(_replies.front());
        _replies.pop_front();
        const std::size_t length = std::min(reply.size(), buffer.size());
        std::copy_n(reply.begin(), length, buffer.begin());
        origin = {.sender = dataForAddress(_unit.settings().address, simulator::commonPort),
                  .link = 1};
        return static_cast<ssize_t>(length);
    }

    std::optional<Bytes> localAddress(int /*descriptor*/) override { return dataForAddress(0, 0); }
    std::optional<Bytes> peerAddress(int /*descriptor*/) override { return std::nullopt; }
    int close(int /*descriptor*/) override {
        --_openCount;
        return 0;
    }

private:
    // The room that an IP packet of 65535 bytes leaves beside its header and the header of UDP.
    static constexpr std::size_t longestDatagram = 65'507;

    bool reachesUnit(std::uint32_t address) const {
        return address == _unit.settings().address || address == 0xFFFF'FFFF ||
               (_leadsToUnit && _leadsToUnit(address));
    }

    void deliver(ByteView data) {
        ++_commandCount;
        _lastCommand.assign(data.begin(), data.end());
        auto reply = _unit.answer(data);
        if (reply.has_value()) {
            const std::string text(reply->begin(), reply->end());
            _acknowledgementCount += text.ends_with("$ok\r") ? 1 : 0;
            _replies.push_back(std::move(*reply));
        }
    }

    simulator::SimulatedUnit _unit;
    std::function<bool(std::uint32_t)> _leadsToUnit;
    std::deque<Bytes> _replies;
    std::string _lastCommand;
    std::size_t _commandCount = 0;
    std::size_t _acknowledgementCount = 0;
    std::size_t _openCount = 0;
    int _descriptor = 1000;
};

} // namespace kx
