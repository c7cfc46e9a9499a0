// All links of this thread's network namespace with their addresses, read from the kernel at once
// (rtnetlink). It keeps nothing open. Any thread.
//
// It waits for the kernel's answers for a quarter of a second at most, all together. When a list
// changes while the kernel tells it, it is asked for again, a few times in that time. One wait
// cannot be bounded: a system call that blocks in the kernel, as happens while the kernel removes
// many links at once.
//
// Links whose names are not UTF-8 are left out, because their names cannot be shown.

#pragma once

#include "platform/linux/NetworkLink.h"

#include <optional>
#include <vector>

namespace kx {

struct LinkSnapshot {
    std::vector<NetworkLink> links; // in the order of their indexes

    // False when the kernel has not told all of its routes in time, or refuses to tell them. Some
    // links then lack their defaultRouteMetric.
    bool hasAllRoutes = false;
};

// Absent, with errno set, when the kernel cannot be asked for links or addresses: ETIMEDOUT when it
// has not told them in time.
std::optional<LinkSnapshot> readNetworkLinks();

} // namespace kx
