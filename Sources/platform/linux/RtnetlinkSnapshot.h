// All links of this process's network namespace with their addresses, read from the kernel at once
// (rtnetlink). It keeps nothing open. Any thread.
//
// The kernel answers at once, unless it is busy changing links; an answer that has not come within
// half a second counts as a failure.

#pragma once

#include "platform/linux/NetworkLink.h"

#include <optional>
#include <vector>

namespace kx {

// The links in the order of their indexes. Absent, with errno set, when the kernel cannot be asked.
std::optional<std::vector<NetworkLink>> readNetworkLinks();

} // namespace kx
