// The interfaces of a Linux host as places where units may be asked: the titles of the pop-up, and
// the kernel's links behind them.
//
// Threading: the main thread only. Ownership: the sources must outlive this object.

#pragma once

#include "System Configuration/NetworkInterfaces.h"
#include "conversation/HostInterface.h"
#include "platform/linux/KernelLinks.h"
#include "platform/linux/NetworkLink.h"

#include <string>
#include <vector>

namespace kx {

class LinuxHostInterfaces final : public HostInterfaces {
public:
    LinuxHostInterfaces(NetworkInterfaces& titles, KernelLinks& links)
        : _titles(titles)
        , _links(links) {}

    std::vector<HostInterface> list() override;

private:
    NetworkInterfaces& _titles;
    KernelLinks& _links;
};

// The interfaces for these titles, with the service identifiers that belong to them. A title whose
// link the kernel does not know has neither kind nor address. Pure.
std::vector<HostInterface> hostInterfaces(const std::vector<std::string>& titles,
                                          const std::vector<std::string>& serviceIDs,
                                          const std::vector<NetworkLink>& links);

} // namespace kx
