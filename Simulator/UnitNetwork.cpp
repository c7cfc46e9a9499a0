#include "Simulator/UnitNetwork.h"

namespace kx::simulator {

namespace {

// The units indexed under `address`. A copy, because an answer may move units in the index.
template<typename Address>
std::vector<std::size_t> unitsAt(const std::set<std::pair<Address, std::size_t>>& index,
                                 const Address& address) {
    std::vector<std::size_t> units;
    for (auto entry = index.lower_bound({address, 0});
         entry != index.end() && entry->first == address; ++entry) {
        units.push_back(entry->second);
    }
    return units;
}

} // namespace

UnitNetwork::UnitNetwork(std::vector<SimulatedUnit> units, const FaultPlan& plan, Observer observer)
    : _units(std::move(units))
    , _faults(plan)
    , _observer(std::move(observer)) {
    for (std::size_t unit = 0; unit < _units.size(); ++unit) {
        _byHardware.emplace(_units[unit].settings().hardwareAddress, unit);
        _byAddress.emplace(_units[unit].settings().address, unit);
    }
}

std::vector<OutgoingFrame> UnitNetwork::receive(ByteView frame, UdpChecksum checksum) {
    Frames frames;
    if (const auto request = readArpRequest(frame)) {
        answerRequest(*request, frames);
    } else if (const auto datagram = readDatagram(frame, checksum)) {
        deliver(*datagram, frames);
    }
    return frames;
}

std::vector<OutgoingFrame> UnitNetwork::unsolicitedReplies(std::size_t count) {
    Frames frames;
    if (!_lastCommand || _units.empty()) {
        return frames;
    }
    for (; count != 0; --count) {
        addReply(_nextUnsolicited, *_lastCommand, _units[_nextUnsolicited].parameterReply(),
                 frames);
        _nextUnsolicited = (_nextUnsolicited + 1) % _units.size();
    }
    return frames;
}

void UnitNetwork::answerRequest(const ArpRequest& request, Frames& frames) const {
    for (const std::size_t unit : unitsAt(_byAddress, request.target)) {
        const HardwareAddress& hardware = _units[unit].settings().hardwareAddress;
        if (request.destination == broadcastHardware || request.destination == hardware) {
            frames.push_back({{}, arpReplyFrame(request, hardware)});
        }
    }
}

bool UnitNetwork::takesBroadcast(const SimulatedUnit& unit, IPv4 destination) const {
    constexpr IPv4 everywhere = 0xFFFFFFFF;
    if (!_subnetPrefixLength || destination == everywhere) {
        return true;
    }
    const IPv4 hostBits = *_subnetPrefixLength >= 32 ? 0 : everywhere >> *_subnetPrefixLength;
    return destination == (unit.settings().address | hostBits) ||
           destination == unit.settings().address;
}

void UnitNetwork::deliver(const Datagram& datagram, Frames& frames) {
    if (datagram.destination.hardware == broadcastHardware) {
        for (std::size_t unit = 0; unit < _units.size(); ++unit) {
            if (takesBroadcast(_units[unit], datagram.destination.address)) {
                deliverToUnit(unit, datagram, frames);
            }
        }
        return;
    }
    for (const std::size_t unit : unitsAt(_byHardware, datagram.destination.hardware)) {
        deliverToUnit(unit, datagram, frames);
    }
}

void UnitNetwork::deliverToUnit(std::size_t unit, const Datagram& datagram, Frames& frames) {
    if (!_units[unit].listensOnPort(datagram.destination.port)) {
        return;
    }
    if (_observer) {
        _observer(_units[unit], datagram);
    }

    const UnitSettings before = _units[unit].settings();
    std::optional<Bytes> reply = _units[unit].answer(datagram.payload);
    if (!reply) {
        return;
    }
    moveUnit(unit, before, frames);
    addReply(unit, datagram, std::move(*reply), frames);
    _lastCommand = datagram;
}

void UnitNetwork::addReply(std::size_t unit, const Datagram& command, Bytes reply, Frames& frames) {
    const UnitSettings& settings = _units[unit].settings();
    for (Delivery& delivery : _faults.deliveriesOf(std::move(reply))) {
        const Datagram answer{
            .source = {settings.hardwareAddress, settings.address, command.destination.port},
            .destination = command.source,
            .payload = std::move(delivery.payload)};
        frames.push_back({delivery.delay, datagramFrame(answer)});
    }
}

void UnitNetwork::moveUnit(std::size_t unit, const UnitSettings& before, Frames& frames) {
    const UnitSettings& now = _units[unit].settings();
    if (now.hardwareAddress == before.hardwareAddress && now.address == before.address) {
        return;
    }
    _byHardware.erase({before.hardwareAddress, unit});
    _byHardware.emplace(now.hardwareAddress, unit);
    _byAddress.erase({before.address, unit});
    _byAddress.emplace(now.address, unit);
    frames.push_back({{}, arpAnnouncementFrame(now.hardwareAddress, now.address)});
}

} // namespace kx::simulator
