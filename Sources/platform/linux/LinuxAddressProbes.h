// ARP probes (RFC 5227) through a packet socket, which needs the capability CAP_NET_RAW.
//
// Threading: the main thread only. Ownership: the run loop must outlive this object and its probes.

#pragma once

#include "conversation/AddressHolders.h"
#include "support/RunLoop.h"

#include <memory>

namespace kx {

class LinuxAddressProbes final : public AddressProbes {
public:
    explicit LinuxAddressProbes(RunLoop& runLoop)
        : _runLoop(runLoop) {}

    std::unique_ptr<AddressProbe> open(std::uint32_t link, Heard heard) override;

private:
    RunLoop& _runLoop;
};

} // namespace kx
