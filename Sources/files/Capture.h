// Captures of datagrams in the format pcapng (draft-ietf-opsawg-pcapng), for tools that show
// network traffic.
//
// A capture holds IPv4 packets (link type 228) with the time, the direction, and a comment, and
// ends with the number of datagrams that the system dropped. The headers of IPv4 and UDP are made
// up here, because the program only sees what is in the datagrams and where they come from and go;
// a comment at the beginning says so.
//
// A file is captureHeader(), then capturedDatagram() any number of times, then captureStatistics().
//
// Pure; any thread. Numbers of packets are in network byte order, those of blocks in that of this
// host, as the format allows. Addresses and ports of this interface are in host byte order, and
// texts are in UTF-8.

#pragma once

#include "support/ByteRange.h"

#include <chrono>
#include <cstdint>
#include <string_view>

namespace kx {

// Time since the beginning of 1970, UTC.
using CaptureTime = std::chrono::microseconds;

struct CapturedDatagram {
    CaptureTime time{0};
    bool isOwn = false; // sent by this host

    // An address is 0 when it is not known.
    std::uint32_t source = 0;
    std::uint32_t destination = 0;
    std::uint16_t sourcePort = 0;
    std::uint16_t destinationPort = 0;

    // Empty for none. At most 65,535 bytes, the rest is cut off.
    std::string_view comment;
};

struct CaptureCounts {
    std::uint64_t received = 0; // datagrams that were read
    std::uint64_t dropped = 0;  // datagrams for which the system had no room
};

// The beginning of a capture: what made it, what is to be known about it, and its one interface.
// `forgotten` is how many datagrams came and went before the first one of the capture.
Bytes captureHeader(std::string_view application, std::uint64_t forgotten = 0);

// One datagram. Data that do not fit into an IPv4 packet are cut.
Bytes capturedDatagram(const CapturedDatagram& datagram, ByteView data);

// The counts up to this time.
Bytes captureStatistics(CaptureTime time, const CaptureCounts& counts);

} // namespace kx
