// The address of the host from which a datagram came.
//
// Pure; any thread.

#pragma once

#include "DatagramSystemCalls.h"

#include <cstdint>

namespace kx {

// In host byte order; 0 when the sender has no IPv4 address.
std::uint32_t addressOfSender(const DatagramOrigin& origin);

} // namespace kx
