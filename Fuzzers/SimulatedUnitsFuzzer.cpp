// Frames from the link to the simulated units. The input is used in three ways: as a whole frame,
// as the IPv4 packet of a frame, with a right checksum in its header, and as a command to all
// units.

#include "FuzzInput.h"
#include "Simulator/FactorySettings.h"
#include "Simulator/Frame.h"
#include "Simulator/UnitNetwork.h"

#include <algorithm>

using namespace kx;
using namespace kx::simulator;

namespace {

constexpr HardwareAddress host{0x02, 0, 0, 0, 0, 0x01};
constexpr Network link{.base = 0x0A000000, .prefixLength = 24};

std::vector<SimulatedUnit> someUnits() {
    std::vector<SimulatedUnit> units;
    for (unsigned number = 1; number <= 3; ++number) {
        units.emplace_back(factorySettings(number, link));
    }
    return units;
}

Bytes frameOfPacket(ByteView packet) {
    constexpr std::size_t shortestHeader = 20;
    Bytes frame;
    appendBytes(frame, broadcastHardware);
    appendBytes(frame, host);
    appendNumber(frame, 0x0800, 2);
    const std::size_t start = frame.size();
    appendBytes(frame, packet);
    if (packet.size() >= shortestHeader) {
        const std::size_t claimed = static_cast<std::size_t>(packet[0] & 0x0FU) * 4;
        frame[start + 10] = frame[start + 11] = 0;
        const std::uint16_t checksum =
            internetChecksum(ByteView(frame).subspan(start, std::min(claimed, packet.size())));
        frame[start + 10] = static_cast<std::uint8_t>(checksum >> 8);
        frame[start + 11] = static_cast<std::uint8_t>(checksum);
    }
    return frame;
}

bool isSame(const Endpoint& one, const Endpoint& other) {
    return one.hardware == other.hardware && one.address == other.address && one.port == other.port;
}

void send(UnitNetwork& network, ByteView frame, UdpChecksum checksum) {
    if (const auto read = readDatagram(frame, checksum)) {
        const auto again = readDatagram(datagramFrame(*read), UdpChecksum::complete);
        requireInvariant(again && isSame(again->source, read->source) &&
                             isSame(again->destination, read->destination) &&
                             again->payload == read->payload,
                         "a datagram is the same in a frame of our own");
    }
    for (const OutgoingFrame& answer : network.receive(frame, checksum)) {
        requireInvariant(readDatagram(answer.bytes, UdpChecksum::complete).has_value() ||
                             shortAt(answer.bytes, 12) == 0x0806,
                         "a unit sends whole datagrams, and ARP");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ByteView input(data, size);
    std::size_t heard = 0;
    UnitNetwork network(someUnits(), {},
                        [&heard](const SimulatedUnit&, const Datagram&) { ++heard; });

    send(network, input, UdpChecksum::complete);
    send(network, frameOfPacket(input), UdpChecksum::pending);
    heard = 0;
    send(network,
         datagramFrame({.source = {host, 0x0A000001, 3521},
                        .destination = {broadcastHardware, 0xFFFFFFFF, commonPort},
                        .payload = Bytes(input.begin(), input.end())}),
         UdpChecksum::complete);
    requireInvariant(heard == network.units().size(), "every unit hears what is sent to all");
    for (const SimulatedUnit& unit : network.units()) {
        requireInvariant(unit.parameterReply().size() == 81, "a parameter reply has 81 bytes");
    }
    return 0;
}
