// Universally unique identifiers in their standard text form (RFC 4122): five groups of 8, 4, 4, 4
// and 12 upper-case hexadecimal digits.

#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace kx {

// The text form of sixteen bytes, first byte first. Pure, any thread.
std::string uuidText(const std::array<std::uint8_t, 16>& bytes);

// A new identifier: version 4, whose 122 free bits come from the system's source of randomness. Any
// thread. When the system has no such source, throws the exception of std::random_device.
std::string stringWithUUID();

} // namespace kx
