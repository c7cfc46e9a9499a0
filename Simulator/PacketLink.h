// The frames of a network link, through a raw packet socket. Needs the right to open one
// (CAP_NET_RAW in the network namespace of the link).
//
// Ownership: owns its socket. Threading: one thread.

#pragma once

#include "Simulator/Frame.h"

#include <optional>
#include <string>

namespace kx::simulator {

struct ReceivedFrame {
    Bytes bytes;
    UdpChecksum checksum = UdpChecksum::complete;
};

class PacketLink {
public:
    // Starts to hear every frame that arrives over the link, for any receiver. Throws
    // std::system_error when there is no such link or no right to listen to it.
    explicit PacketLink(const std::string& linkName);
    ~PacketLink();
    PacketLink(const PacketLink&) = delete;
    PacketLink& operator=(const PacketLink&) = delete;

    // The descriptor is readable when a frame waits.
    int descriptor() const { return _socket; }

    // The next frame; absent when none waits.
    std::optional<ReceivedFrame> receive();

    // Puts a frame on the link. A frame that the link does not take is lost without a report, as on
    // a cable.
    void send(ByteView frame);

private:
    int _socket;
};

} // namespace kx::simulator
