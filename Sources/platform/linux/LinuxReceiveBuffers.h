// The receive buffers of Linux.
//
// Anybody may ask for as much as net.core.rmem_max allows; whoever administers the network may pass
// that limit. The count is the socket's own, which the kernel keeps whether or not a datagram
// follows that could carry it. Linux tells it from version 4.12 on.

#pragma once

#include "ReceiveBuffers.h"

namespace kx {

class LinuxReceiveBuffers final : public ReceiveBuffers {
public:
    void enlarge(int descriptor, int bytes) override;
    std::optional<std::uint32_t> droppedDatagrams(int descriptor) override;
};

} // namespace kx
