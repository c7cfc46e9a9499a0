// Many units on one link: a frame in, frames out with their delays.
//
// Pure: no socket and no clock; the caller sends each frame when its delay has passed. Any thread,
// one at a time.
//
// A unit takes a datagram that was sent to its hardware address or to all, with any destination IP
// address. It answers ARP requests for the IP address that it holds. Units are found by address;
// only a frame for all of them costs work for each unit. A unit whose hardware or IP address
// changes announces itself, as hosts do.

#pragma once

#include "Simulator/FaultInjector.h"
#include "Simulator/Frame.h"
#include "Simulator/SimulatedUnit.h"

#include <functional>
#include <set>
#include <utility>

namespace kx::simulator {

struct OutgoingFrame {
    std::chrono::milliseconds delay{0};
    Bytes bytes;
};

class UnitNetwork {
public:
    // Called for every datagram that a unit takes, malformed ones included, before the unit
    // answers. It must not call back into the network.
    using Observer = std::function<void(const SimulatedUnit&, const Datagram&)>;

    UnitNetwork(std::vector<SimulatedUnit> units, const FaultPlan& plan, Observer observer);

    // From now on a unit ignores a broadcast for another subnet than that of its own address, as
    // many hosts do. It still takes one to 255.255.255.255.
    void ignoreOtherSubnets(unsigned prefixLength) { _subnetPrefixLength = prefixLength; }

    // The frames that the units send in answer to `frame`, in the order in which they leave.
    std::vector<OutgoingFrame> receive(ByteView frame, UdpChecksum checksum);

    // `count` unsolicited parameter replies, from one unit after the other. They go to the sender
    // of the last command, from the port that the command used. None before the first command.
    std::vector<OutgoingFrame> unsolicitedReplies(std::size_t count);

    // Ends all faults of replies.
    void endFaults() { _faults = FaultInjector({}); }

    const std::vector<SimulatedUnit>& units() const { return _units; }

private:
    using Frames = std::vector<OutgoingFrame>;

    bool takesBroadcast(const SimulatedUnit& unit, IPv4 destination) const;
    void answerRequest(const ArpRequest& request, Frames& frames) const;
    void deliver(const Datagram& datagram, Frames& frames);
    void deliverToUnit(std::size_t unit, const Datagram& datagram, Frames& frames);
    void addReply(std::size_t unit, const Datagram& command, Bytes reply, Frames& frames);
    void moveUnit(std::size_t unit, const UnitSettings& before, Frames& frames);

    std::vector<SimulatedUnit> _units;
    FaultInjector _faults;
    std::optional<unsigned> _subnetPrefixLength; // absent while units take every broadcast
    Observer _observer;

    // Several units may hold the same address, as in a misconfigured network.
    std::set<std::pair<HardwareAddress, std::size_t>> _byHardware;
    std::set<std::pair<IPv4, std::size_t>> _byAddress;

    std::optional<Datagram> _lastCommand;
    std::size_t _nextUnsolicited = 0;
};

} // namespace kx::simulator
