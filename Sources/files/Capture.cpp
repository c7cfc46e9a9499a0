#include "files/Capture.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <string>

namespace kx {

namespace {

constexpr std::uint32_t sectionHeaderBlock = 0x0A0D0D0A;
constexpr std::uint32_t interfaceBlock = 1;
constexpr std::uint32_t interfaceStatisticsBlock = 5;
constexpr std::uint32_t enhancedPacketBlock = 6;
constexpr std::uint32_t byteOrderMagic = 0x1A2B3C4D;
constexpr std::uint16_t linkTypeIPv4 = 228;

constexpr std::uint16_t endOfOptions = 0;
constexpr std::uint16_t commentOption = 1;
constexpr std::uint16_t packetFlagsOption = 2;
constexpr std::uint16_t userApplicationOption = 4;
constexpr std::uint16_t receivedOption = 4;
// Of the format's counts of losses this is the one that readers show.
constexpr std::uint16_t droppedOption = 5;
constexpr std::size_t longestOption = 65'535;
constexpr std::uint32_t inbound = 1;
constexpr std::uint32_t outbound = 2;

constexpr std::size_t ipHeaderLength = 20;
constexpr std::size_t udpHeaderLength = 8;
constexpr std::size_t longestPacket = 65'535;
constexpr std::uint8_t protocolUDP = 17;
constexpr std::uint8_t usualTimeToLive = 64;

// For whoever reads the capture, who need not have this program or its language.
constexpr std::string_view sectionComment =
    "The headers of IPv4 and UDP are made up: only addresses, ports and contents of the datagrams "
    "are known to the program that wrote them down. 0.0.0.0 stands for an address that is not "
    "known. The time is that of sending and of reading.";

template<class Number>
void append(Bytes& bytes, Number number) {
    const auto parts = std::bit_cast<std::array<std::uint8_t, sizeof number>>(number);
    bytes.insert(bytes.end(), parts.begin(), parts.end());
}

void append(Bytes& bytes, ByteView data) {
    bytes.insert(bytes.end(), data.begin(), data.end());
    bytes.resize((bytes.size() + 3) / 4 * 4);
}

void appendOption(Bytes& bytes, std::uint16_t code, ByteView value) {
    append(bytes, code);
    append(bytes, static_cast<std::uint16_t>(value.size()));
    append(bytes, value);
}

void appendOption(Bytes& bytes, std::uint16_t code, std::string_view text) {
    const auto* const first = reinterpret_cast<const std::uint8_t*>(text.data());
    appendOption(bytes, code, ByteView(first, std::min(text.size(), longestOption)));
}

template<class Number>
void appendNumberOption(Bytes& bytes, std::uint16_t code, Number number) {
    appendOption(bytes, code,
                 ByteView(std::bit_cast<std::array<std::uint8_t, sizeof number>>(number)));
}

// The format has the high word first, in either byte order.
void appendTime(Bytes& bytes, CaptureTime time) {
    const auto microseconds = static_cast<std::uint64_t>(time.count());
    append(bytes, static_cast<std::uint32_t>(microseconds >> 32U));
    append(bytes, static_cast<std::uint32_t>(microseconds));
}

Bytes block(std::uint32_t type, const Bytes& body) {
    const auto length = static_cast<std::uint32_t>(body.size() + 12);
    Bytes bytes;
    append(bytes, type);
    append(bytes, length);
    append(bytes, ByteView(body));
    append(bytes, length);
    return bytes;
}

void appendBigEndian(Bytes& bytes, std::uint32_t number, int octets) {
    for (int shift = (octets - 1) * 8; shift >= 0; shift -= 8) {
        bytes.push_back(static_cast<std::uint8_t>(number >> static_cast<unsigned>(shift)));
    }
}

// The checksum of an IPv4 header (RFC 1071).
std::uint16_t checksumOf(ByteView header) {
    std::uint32_t sum = 0;
    for (std::size_t i = 0; i + 1 < header.size(); i += 2) {
        sum += static_cast<std::uint32_t>(header[i]) << 8U | header[i + 1];
    }
    while (sum > 0xFFFFU) {
        sum = (sum & 0xFFFFU) + (sum >> 16U);
    }
    return static_cast<std::uint16_t>(~sum);
}

// A checksum of 0 in the header of UDP means that there is none (RFC 768).
Bytes packetOf(const CapturedDatagram& datagram, ByteView data) {
    const auto room = longestPacket - ipHeaderLength - udpHeaderLength;
    data = data.first(std::min(data.size(), room));
    const auto udpLength = static_cast<std::uint32_t>(udpHeaderLength + data.size());
    Bytes packet{0x45, 0}; // version 4, a header of five words
    appendBigEndian(packet, static_cast<std::uint32_t>(ipHeaderLength) + udpLength, 2);
    appendBigEndian(packet, 0, 4); // identification, flags, offset
    packet.push_back(usualTimeToLive);
    packet.push_back(protocolUDP);
    appendBigEndian(packet, 0, 2); // room for the checksum
    appendBigEndian(packet, datagram.source, 4);
    appendBigEndian(packet, datagram.destination, 4);
    const std::uint16_t checksum = checksumOf(packet);
    packet[10] = static_cast<std::uint8_t>(checksum >> 8U);
    packet[11] = static_cast<std::uint8_t>(checksum);
    appendBigEndian(packet, datagram.sourcePort, 2);
    appendBigEndian(packet, datagram.destinationPort, 2);
    appendBigEndian(packet, udpLength, 2);
    appendBigEndian(packet, 0, 2);
    packet.insert(packet.end(), data.begin(), data.end());
    return packet;
}

} // namespace

Bytes captureHeader(std::string_view application, std::uint64_t forgotten) {
    std::string comment(sectionComment);
    if (forgotten > 0) {
        comment += " Datagrams from before the first one of this file, which are not in it: " +
                   std::to_string(forgotten) + '.';
    }
    Bytes section;
    append(section, byteOrderMagic);
    append(section, std::uint16_t{1}); // version 1.0
    append(section, std::uint16_t{0});
    append(section, ~std::uint64_t{0}); // the length of the section is not known
    appendOption(section, commentOption, std::string_view(comment));
    appendOption(section, userApplicationOption, application);
    appendOption(section, endOfOptions, ByteView());
    Bytes interface;
    append(interface, linkTypeIPv4);
    append(interface, std::uint16_t{0});
    append(interface, std::uint32_t{0}); // packets of any length
    Bytes header = block(sectionHeaderBlock, section);
    const Bytes second = block(interfaceBlock, interface);
    header.insert(header.end(), second.begin(), second.end());
    return header;
}

Bytes capturedDatagram(const CapturedDatagram& datagram, ByteView data) {
    const Bytes packet = packetOf(datagram, data);
    Bytes body;
    append(body, std::uint32_t{0}); // the one interface
    appendTime(body, datagram.time);
    append(body, static_cast<std::uint32_t>(packet.size()));
    append(body, static_cast<std::uint32_t>(packet.size()));
    append(body, ByteView(packet));
    appendNumberOption(body, packetFlagsOption, datagram.isOwn ? outbound : inbound);
    if (!datagram.comment.empty()) {
        appendOption(body, commentOption, datagram.comment);
    }
    appendOption(body, endOfOptions, ByteView());
    return block(enhancedPacketBlock, body);
}

Bytes captureStatistics(CaptureTime time, const CaptureCounts& counts) {
    Bytes body;
    append(body, std::uint32_t{0}); // the one interface
    appendTime(body, time);
    appendNumberOption(body, receivedOption, counts.received + counts.dropped);
    appendNumberOption(body, droppedOption, counts.dropped);
    appendOption(body, endOfOptions, ByteView());
    return block(interfaceStatisticsBlock, body);
}

} // namespace kx
