// IPv4 addresses, masks and prefix lengths as text and as numbers.
//
// An address or a mask is an unsigned 32-bit integer in host byte order: "a.b.c.d" is
// a*2^24 + b*2^16 + c*2^8 + d. 0 stands for no address, and for text that does not parse. Prefix
// lengths count from the most significant bit, which is bit 1; bit 32 is the least significant.
//
// All functions are pure, allocate nothing but the text that they return, and may be called from
// any thread. They report errors only by their results.

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

// The address that a dotted text names, or 0. Deliberately forgiving: spaces, ",", "-", tabs and
// carriage returns at the beginning are skipped (a line feed is not), and text behind the fourth
// segment is ignored.
//
// A segment is up to 3 decimal digits, or "0x" (lower case) and up to 2 hexadecimal digits; a
// segment without digits is 0. Segments are not range-checked: the bits of a value above its low
// 8 are OR'ed into the segment before it, and those of the first segment are lost.
//
// The result is also 0 for an empty text, for one of more than 254 characters, and for one of more
// than 254 bytes in UTF-8.
std::uint32_t ipForString(std::string_view text);

// Reads one segment as above at `position` of a NUL-terminated buffer, advances `position` by the
// characters read ("0x" included), and stores their number in `consumed`. No digit reads as 0.
std::uint32_t ipSegmentFromBuf(const char* buffer, std::int32_t& position, std::int32_t& consumed);

// The same with up to 10 decimal digits. A value beyond 32 bits wraps.
std::uint32_t ipSegment1FromBuf(const char* buffer, std::int32_t& position, std::int32_t& consumed);

// "a.b.c.d" without zero padding.
std::string stringForIP(std::uint32_t address);

// Writes the same without a terminator, in at most 15 bytes, and returns the end.
char* writeIP(char* text, std::uint32_t address);

// "a.b.c.d/n", with n the position of the mask's least significant set bit; "a.b.c.d" for a mask of
// 0. The lowest set bit alone decides, so a mask with holes still gets a prefix length.
std::string stringForNetNumber(std::uint32_t address, std::uint32_t mask);

// The prefix length of a dotted mask as decimal text, by the same rule. Absent for an absent text
// and for one that is 0 or does not parse.
std::optional<std::string> prefixForMaskStr(const std::optional<std::string>& maskText);

// The position of the rightmost set bit within the first `prefixLength` bits; 0 when there is none.
// Positions above 32 are never set.
std::uint8_t FindRightBit(std::uint32_t value, std::uint8_t prefixLength);

// The position of the first set bit at or to the right of position `start`, up to 32; 0 when there
// is none. A start of 0 tests the least significant bit first, and a hit there returns 0 as well.
std::uint8_t FindLeftBit(std::uint32_t value, std::uint8_t start);

} // namespace kx
