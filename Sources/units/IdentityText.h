// Identities and bytes as text: the text forms of units, their serial numbers and their hardware
// addresses.
//
// Everything here is pure and may be called from any thread. Texts are UTF-8.

#pragma once

#include "support/ByteRange.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

// The number of bytes of a unit ID, of a serial number and of a hardware address.
inline constexpr std::size_t identityLength = 6;

// A unit ID of six bytes: the decimal value of the last byte when the five before it are zero,
// otherwise the six bytes as UTF-8, zero bytes included. Absent when they are not UTF-8. Throws
// RangeFailure for fewer than six bytes; further bytes are ignored.
std::optional<std::string> unitIDforData(ByteView data);

// Two upper-case hexadecimal digits for each byte, joined by `separator`; empty for no bytes.
std::string hexStringForData(ByteView data, std::string_view separator);

// The text form of a serial number, which identifies a unit: hexStringForData() with a blank.
std::string serialNumberText(ByteView data);

// Writes the two upper-case hexadecimal digits of `byte` at `digits` and returns the place behind
// them.
char* writeHexDigits(char* digits, std::uint8_t byte);

} // namespace kx
