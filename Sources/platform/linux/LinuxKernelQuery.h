// The kernel's list of interfaces on Linux: the BSD routing messages that describe the links, built
// from what the kernel says of them.
//
// Threading: the main thread only. Ownership: the links must outlive this object.

#pragma once

#include "System Configuration/KernelQuery.h"
#include "platform/linux/KernelLinks.h"
#include "platform/linux/NetworkLink.h"
#include "support/ByteRange.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace kx {

class LinuxKernelQuery final : public KernelQuery {
public:
    explicit LinuxKernelQuery(KernelLinks& links)
        : _links(links) {}

    // Answers the list of interfaces and no other name. Links come in the order of their indexes,
    // each followed by its IPv4 addresses.
    int sysctl(std::span<const int> name, std::uint8_t* buffer, std::size_t& length) override;

    std::string loopbackName() const override { return "lo"; }

private:
    KernelLinks& _links;
};

// The list of interfaces for these links. Pure.
Bytes routingMessagesForLinks(const std::vector<NetworkLink>& links);

} // namespace kx
