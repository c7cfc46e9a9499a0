// The receive buffers of Linux.
//
// Any process may ask for as much as net.core.rmem_max allows; a process that may administer the
// network may exceed that limit. The kernel keeps the count of drops for the socket, even when no
// later datagram could carry it. Linux tells the count since version 4.12.

#pragma once

#include "ReceiveBufferControl.h"

namespace kx {

class LinuxReceiveBufferControl final : public ReceiveBufferControl {
public:
    void enlarge(int descriptor, int bytes) override;
    std::optional<std::uint32_t> droppedDatagrams(int descriptor) override;
};

} // namespace kx
