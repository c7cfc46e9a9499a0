// Ethernet frames as far as a unit understands them: ARP requests, and UDP datagrams over IPv4.
//
// Pure functions, bytes in and values out; any thread. A frame that is not whole and correct (cut
// short, a wrong checksum, a fragment, another protocol) gives no value, because a unit ignores it
// too.

#pragma once

#include "Simulator/Wire.h"

#include <optional>

namespace kx::simulator {

// Asks which host holds `target`. The frame was sent to the hardware address `destination`: hosts
// first ask everybody, and later only the holder that they remember.
struct ArpRequest {
    HardwareAddress destination{};
    HardwareAddress senderHardware{};
    IPv4 sender = 0;
    IPv4 target = 0;
};

// One end of a datagram.
struct Endpoint {
    HardwareAddress hardware{};
    IPv4 address = 0;
    std::uint16_t port = 0;
};

struct Datagram {
    Endpoint source;
    Endpoint destination;
    Bytes payload;
};

// On a virtual link the sending host leaves the UDP checksum to a network card that does not exist.
// Such a frame arrives with its checksum still pending, so there is no checksum to verify.
enum class UdpChecksum { complete, pending };

// The Internet checksum: the ones' complement of the ones' complement sum of 16-bit words; an odd
// last byte counts as the upper half of a word.
std::uint16_t internetChecksum(ByteView bytes);

std::optional<ArpRequest> readArpRequest(ByteView frame);
std::optional<Datagram> readDatagram(ByteView frame, UdpChecksum checksum);

// The answer to `request` by the holder of its target.
Bytes arpReplyFrame(const ArpRequest& request, const HardwareAddress& holder);

// Tells every host on the link that `holder` now holds `address`.
Bytes arpAnnouncementFrame(const HardwareAddress& holder, IPv4 address);

// The whole frame of a datagram, with checksums, padded to the shortest frame that Ethernet allows.
// The payload is at most 65,507 bytes.
Bytes datagramFrame(const Datagram& datagram);

} // namespace kx::simulator
