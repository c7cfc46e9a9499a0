// Sends datagrams over loopback to the port of the benchmarks, and nowhere else.

#pragma once

#include "UnitDatagrams.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace kx {

inline constexpr std::uint16_t port = 35200;
inline constexpr std::uint32_t loopbackAddress = 0x7F000001;

struct LoopbackDatagram {
    Bytes data;

    // Address of loopback from which it comes, in host byte order; 0 for the system's choice.
    std::uint32_t sender = 0;
};

// The replies of so many units, each from the address that it tells.
std::vector<LoopbackDatagram> datagramsOfUnits(std::uint32_t count);

class LoopbackSender {
public:
    LoopbackSender();
    ~LoopbackSender();
    LoopbackSender(const LoopbackSender&) = delete;
    LoopbackSender& operator=(const LoopbackSender&) = delete;

    // Sends them in order, until the system refuses one.
    void send(std::span<const LoopbackDatagram> datagrams) const;

private:
    int _socket;
};

} // namespace kx
