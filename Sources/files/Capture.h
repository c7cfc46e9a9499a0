// Captures of datagrams in the format pcapng (draft-ietf-opsawg-pcapng), for tools that show
// network traffic.
//
// A capture holds IPv4 packets (link type 228) with the time, the direction and, for a packet of
// our own, a remark. The headers of IPv4 and UDP are made up here, because the program only sees
// what is in the datagrams.
//
// Pure; any thread. Numbers of packets are in network byte order, those of blocks in that of this
// host, as the format allows.

#pragma once

#include "support/ByteRange.h"

#include <chrono>
#include <cstdint>
#include <string_view>

namespace kx {

struct CapturedDatagram {
    std::chrono::microseconds time{0}; // since the beginning of 1970, UTC
    bool isOwn = false;                // sent by this host
    std::uint32_t source = 0;
    std::uint16_t sourcePort = 0;
    std::uint32_t destination = 0;
    std::uint16_t destinationPort = 0;
    std::string_view remark; // empty for none
};

// The beginning of a capture: what made it, and its one interface.
Bytes captureHeader(std::string_view application);

// One datagram. Data that do not fit into an IPv4 packet are cut.
Bytes capturedDatagram(const CapturedDatagram& datagram, ByteView data);

} // namespace kx
