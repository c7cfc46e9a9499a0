// All links of this thread's network namespace with their addresses, read from the kernel at once
// (rtnetlink). It keeps nothing open. Any thread.
//
// It waits for the kernel's answers for a quarter of a second at most, all together. A list that
// changes while the kernel tells it is asked for again, a few times in that time. What nobody can
// give up on is a system call in which the kernel waits for itself, as it does while it removes
// many links at once.
//
// Links whose names are not UTF-8 are left out: nobody could be shown them.

#pragma once

#include "platform/linux/NetworkLink.h"

#include <optional>
#include <vector>

namespace kx {

struct LinkSnapshot {
    std::vector<NetworkLink> links; // in the order of their indexes

    // False when the kernel has not told all of its routes in time, or refuses to; some links then
    // lack their defaultRouteMetric.
    bool hasAllRoutes = false;
};

// Absent, with errno set, when the kernel cannot be asked for links or addresses: ETIMEDOUT when it
// has not told them in time.
std::optional<LinkSnapshot> readNetworkLinks();

} // namespace kx
