// Hardware addresses as text: groups of hexadecimal digits between ":" or "-".
//
// The parsers are deliberately forgiving: the separators may be mixed, a group may have any number
// of digits, of which the last two count, and a group without digits is 0. Leading blanks are not
// skipped.
//
// All functions are stateless and may be called from any thread, except the two that log: they
// belong to the main thread. No function reads beyond the text that it is given.

#pragma once

#include "support/ByteRange.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace kx {

inline constexpr std::size_t hardwareAddressLength = 6;
inline constexpr std::size_t longestHardwareAddress = 16; // groups that ha16ForString() may store

// A text being parsed, as UTF-8. `length` limits the positions; it is a number of characters, so it
// is at most the number of bytes.
struct ParseCursor {
    std::string_view bytes;
    std::uint32_t length = 0;
};

struct ParsePosition {
    std::uint32_t offset = 0;    // the next byte to read
    std::uint32_t remaining = 0; // how many characters are left
};

// A cursor over a whole text, and the position at its beginning.
ParseCursor cursorForText(std::string_view text);
ParsePosition startOfCursor(const ParseCursor& cursor);

// The value of the hexadecimal digits at the beginning, at most as many as the low 8 bits of
// `maximum` say. A value beyond 32 bits keeps its last 32. Stores the number of digits in `count`
// unless it is null.
std::uint32_t string2HexNum(std::string_view bytes, std::uint32_t maximum, std::uint8_t* count);

// The same at a position, with all that remains as the maximum. Steps past the digits.
std::uint32_t intHexValue(const ParseCursor& cursor, ParsePosition& position);

// Steps past `byte` if it is the next one, and returns whether it was.
bool skipByte(const ParseCursor& cursor, ParsePosition& position, char byte);

// "00:1A:2B:3C:4D:5E".
std::string stringForEA(std::span<const std::uint8_t, hardwareAddressLength> octets);

// The same for `count` octets. The first octet is printed even when `count` is 0. No octet beyond
// `octets` is printed.
std::string stringForHA16(ByteView octets, std::size_t count);

// Reads six groups and returns whether it could. Text behind them is ignored. On failure the octets
// read so far are stored and the others are not written. On failure, unless the text is empty, logs
// "HardwareAddressFormatter: invalid Ethernet address" (localized) and the text.
bool eaForString(std::string_view text, std::span<std::uint8_t, hardwareAddressLength> octets);

// Reads six groups (Ethernet) or eight (a 64-bit identifier), stores their number in `count`, and
// returns whether it could. A separator at the end is tolerated. Text behind six or eight groups is
// tolerated too, unless it begins with a separator. On failure the count is 0 and the octets read
// so far are stored; a wrong character after another number of groups logs "HardwareAddress:
// invalid Ethernet address" (localized) and the text.
bool ha16ForString(std::string_view text, std::span<std::uint8_t, longestHardwareAddress> octets,
                   std::size_t& count);

} // namespace kx
