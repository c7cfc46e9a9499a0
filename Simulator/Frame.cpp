#include "Simulator/Frame.h"

#include <algorithm>

namespace kx::simulator {

namespace {

constexpr std::size_t ethernetHeaderLength = 14;
constexpr std::size_t shortestFrame = 60;
constexpr std::size_t arpLength = 28;
constexpr std::size_t shortestIPv4Header = 20;
constexpr std::size_t udpHeaderLength = 8;

constexpr std::uint16_t typeIPv4 = 0x0800;
constexpr std::uint16_t typeArp = 0x0806;
constexpr std::uint8_t protocolUdp = 17;

// Ethernet as the link, six bytes of hardware address; IPv4 above it, four bytes of address.
constexpr std::uint64_t arpEthernetIPv4 = 0x0001'0800'06'04;
constexpr std::uint16_t arpOperationRequest = 1;
constexpr std::uint16_t arpOperationReply = 2;

HardwareAddress hardwareAt(ByteView bytes, std::size_t offset) {
    HardwareAddress address{};
    std::ranges::copy(bytes.subspan(offset, address.size()), address.begin());
    return address;
}

IPv4 addressAt(ByteView bytes, std::size_t offset) {
    return static_cast<IPv4>(numberAt(bytes, offset, 4));
}

Bytes ethernetHeader(const HardwareAddress& destination, const HardwareAddress& source,
                     std::uint16_t type) {
    Bytes frame;
    frame.reserve(160);
    appendBytes(frame, destination);
    appendBytes(frame, source);
    appendNumber(frame, type, 2);
    return frame;
}

Bytes arpFrame(const HardwareAddress& destination, std::uint16_t operation,
               const HardwareAddress& senderHardware, IPv4 sender,
               const HardwareAddress& targetHardware, IPv4 target) {
    Bytes frame = ethernetHeader(destination, senderHardware, typeArp);
    appendNumber(frame, arpEthernetIPv4, 6);
    appendNumber(frame, operation, 2);
    appendBytes(frame, senderHardware);
    appendNumber(frame, sender, 4);
    appendBytes(frame, targetHardware);
    appendNumber(frame, target, 4);
    frame.resize(shortestFrame);
    return frame;
}

// The checksum over a UDP packet and the addresses that it travels between. A packet whose own
// checksum field is filled in correctly gives 0.
std::uint16_t udpChecksum(IPv4 source, IPv4 destination, ByteView packet) {
    Bytes covered;
    covered.reserve(packet.size() + 12);
    appendNumber(covered, source, 4);
    appendNumber(covered, destination, 4);
    appendNumber(covered, protocolUdp, 2);
    appendNumber(covered, packet.size(), 2);
    appendBytes(covered, packet);
    return internetChecksum(covered);
}

Bytes udpPacket(const Datagram& datagram) {
    Bytes packet;
    packet.reserve(udpHeaderLength + datagram.payload.size());
    appendNumber(packet, datagram.source.port, 2);
    appendNumber(packet, datagram.destination.port, 2);
    appendNumber(packet, udpHeaderLength + datagram.payload.size(), 2);
    appendNumber(packet, 0, 2);
    appendBytes(packet, datagram.payload);

    std::uint16_t checksum =
        udpChecksum(datagram.source.address, datagram.destination.address, packet);
    // 0 would mean that there is no checksum. Its other form in ones' complement stands for it.
    if (checksum == 0) {
        checksum = 0xFFFF;
    }
    packet[6] = static_cast<std::uint8_t>(checksum >> 8);
    packet[7] = static_cast<std::uint8_t>(checksum);
    return packet;
}

Bytes ipv4Header(IPv4 source, IPv4 destination, std::size_t payloadLength) {
    Bytes header;
    header.reserve(shortestIPv4Header);
    appendNumber(header, 0x4500, 2);
    appendNumber(header, shortestIPv4Header + payloadLength, 2);
    appendNumber(header, 0x0000'4000, 4); // no identification; must not be fragmented
    appendNumber(header, 64, 1);
    appendNumber(header, protocolUdp, 1);
    appendNumber(header, 0, 2);
    appendNumber(header, source, 4);
    appendNumber(header, destination, 4);
    const std::uint16_t checksum = internetChecksum(header);
    header[10] = static_cast<std::uint8_t>(checksum >> 8);
    header[11] = static_cast<std::uint8_t>(checksum);
    return header;
}

// The UDP packet inside an IPv4 packet; absent when there is none.
std::optional<ByteView> udpInside(ByteView packet) {
    if (packet.size() < shortestIPv4Header || packet[0] >> 4 != 4) {
        return std::nullopt;
    }
    const std::size_t headerLength = static_cast<std::size_t>(packet[0] & 0x0F) * 4;
    const std::size_t totalLength = shortAt(packet, 2);
    if (headerLength < shortestIPv4Header || totalLength < headerLength ||
        totalLength > packet.size()) {
        return std::nullopt;
    }
    const bool isFragment = (shortAt(packet, 6) & 0x3FFF) != 0;
    if (isFragment || packet[9] != protocolUdp ||
        internetChecksum(packet.first(headerLength)) != 0) {
        return std::nullopt;
    }

    const ByteView udp = packet.subspan(headerLength, totalLength - headerLength);
    if (udp.size() < udpHeaderLength) {
        return std::nullopt;
    }
    const std::size_t udpLength = shortAt(udp, 4);
    if (udpLength < udpHeaderLength || udpLength > udp.size()) {
        return std::nullopt;
    }
    return udp.first(udpLength);
}

} // namespace

std::uint16_t internetChecksum(ByteView bytes) {
    std::uint64_t sum = 0;
    for (std::size_t offset = 0; offset + 1 < bytes.size(); offset += 2) {
        sum += shortAt(bytes, offset);
    }
    if (bytes.size() % 2 != 0) {
        sum += static_cast<std::uint64_t>(bytes.back()) << 8;
    }
    while (sum > 0xFFFF) {
        sum = (sum & 0xFFFF) + (sum >> 16);
    }
    return static_cast<std::uint16_t>(~sum);
}

std::optional<ArpRequest> readArpRequest(ByteView frame) {
    if (frame.size() < ethernetHeaderLength + arpLength || shortAt(frame, 12) != typeArp) {
        return std::nullopt;
    }
    const ByteView arp = frame.subspan(ethernetHeaderLength);
    if (numberAt(arp, 0, 6) != arpEthernetIPv4 || shortAt(arp, 6) != arpOperationRequest) {
        return std::nullopt;
    }
    return ArpRequest{.destination = hardwareAt(frame, 0),
                      .senderHardware = hardwareAt(arp, 8),
                      .sender = addressAt(arp, 14),
                      .target = addressAt(arp, 24)};
}

std::optional<Datagram> readDatagram(ByteView frame, UdpChecksum checksum) {
    if (frame.size() < ethernetHeaderLength || shortAt(frame, 12) != typeIPv4) {
        return std::nullopt;
    }
    const ByteView packet = frame.subspan(ethernetHeaderLength);
    const std::optional<ByteView> udp = udpInside(packet);
    if (!udp) {
        return std::nullopt;
    }

    const IPv4 source = addressAt(packet, 12);
    const IPv4 destination = addressAt(packet, 16);
    const bool hasChecksum = checksum == UdpChecksum::complete && shortAt(*udp, 6) != 0;
    if (hasChecksum && udpChecksum(source, destination, *udp) != 0) {
        return std::nullopt;
    }

    const ByteView payload = udp->subspan(udpHeaderLength);
    return Datagram{.source = {hardwareAt(frame, 6), source, shortAt(*udp, 0)},
                    .destination = {hardwareAt(frame, 0), destination, shortAt(*udp, 2)},
                    .payload = Bytes(payload.begin(), payload.end())};
}

Bytes arpReplyFrame(const ArpRequest& request, const HardwareAddress& holder) {
    return arpFrame(request.senderHardware, arpOperationReply, holder, request.target,
                    request.senderHardware, request.sender);
}

Bytes arpAnnouncementFrame(const HardwareAddress& holder, IPv4 address) {
    return arpFrame(broadcastHardware, arpOperationRequest, holder, address, HardwareAddress{},
                    address);
}

Bytes datagramFrame(const Datagram& datagram) {
    Bytes frame = ethernetHeader(datagram.destination.hardware, datagram.source.hardware, typeIPv4);
    const Bytes packet = udpPacket(datagram);
    appendBytes(frame,
                ipv4Header(datagram.source.address, datagram.destination.address, packet.size()));
    appendBytes(frame, packet);
    frame.resize(std::max(frame.size(), shortestFrame));
    return frame;
}

} // namespace kx::simulator
