// What a unit is told: a command is ASCII text, "^^Id", one letter, an argument, without a length and
// without a checksum.
//
// Everything here is pure: texts in, texts out, no state, any thread. Texts are UTF-8.

#pragma once

#include "units/UnitParameter.h"

#include <cstdint>
#include <ctime>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

inline constexpr std::uint16_t defaultUnitPort = 3520;
inline constexpr std::uint16_t lastDestinationPort = 3523;
inline constexpr std::string_view allOnesBroadcastAddress = "255.255.255.255";

inline constexpr std::string_view commandPrefix = "^^Id";

// Commands without an argument.
inline constexpr std::string_view parameterRequestCommand = "^^IdX";
inline constexpr std::string_view restoreCommand = "^^IdZ";

// --- The arguments of the edit commands, made from what a person typed ---
//
// The conversions are loose on purpose: separators are removed wherever they stand, and nothing is
// checked for its length or for being hexadecimal. Numbers are read as integerValue() reads them.

// The typed text without its colons, for MAC addresses.
std::string macAddressArgument(std::string_view typed);

// Eight hexadecimal digits, first octet first; "00000000" for what does not parse.
std::string ipAddressArgument(std::string_view typed);

// The port that the text names when that lies in 3520 to 3523, otherwise 3520.
std::uint16_t destinationPortForText(std::string_view typed);

// The same as four hexadecimal digits, "0DC0" to "0DC3".
std::string destinationPortArgument(std::string_view typed);

// At least four hexadecimal digits, with no check of the range, unlike the destination port: more
// above 65535, eight for a negative number.
std::string devicePortArgument(std::string_view typed);

// For a text that begins with a digit, its number as twelve hexadecimal digits; for any other the
// two hexadecimal digits of each byte, however many there are. Absent when the text is not UTF-8.
std::optional<std::string> unitIDArgument(std::string_view typed);

// The typed text without its blanks.
std::string serialNumberArgument(std::string_view typed);

// --- Command texts ---

// The command that gives a parameter the value that a person typed. Absent when there is none: for
// a unit ID that is not UTF-8. Whether an empty text is worth a command is the caller's business.
std::optional<std::string> editCommand(UnitParameter parameter, std::string_view typed);

// The free-form command: the whole text as it stands, and a carriage return.
std::string optionCommand(std::string_view text);

// The text that the title of an option stands for: what comes before its first two blanks in a row;
// for a title that begins with "-Z", "-Z" and month, day, hour and minute of `now`, two digits
// each.
std::string optionTextForTitle(std::string_view title, const std::tm& now);

// The port to which a unit's commands go, by its "device Port number" text: the low 16 bits of the
// number, or 3520 for an absent or an empty text.
std::uint16_t unitPortForText(std::optional<std::string_view> devicePort);

} // namespace kx
