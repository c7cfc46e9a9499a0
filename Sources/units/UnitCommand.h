// The commands to a unit. A command is ASCII text, "^^Id", one letter, an argument, without a
// length and without a checksum.
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

// Units are asked on the first port until they have told their own. They answer to one of the ports
// from the first to the last.
inline constexpr std::uint16_t defaultUnitPort = 3520;
inline constexpr std::uint16_t lastListeningPort = 3523;

inline constexpr std::string_view commandPrefix = "^^Id";

// Commands without an argument.
inline constexpr std::string_view parameterRequestCommand = "^^IdX";
inline constexpr std::string_view restoreCommand = "^^IdZ";

// The port that the text names when it lies in 3520 to 3523, otherwise 3520.
std::uint16_t listeningPortForText(std::string_view typed);

// Whether the text of a unit ID stands for a number. It does when it begins with a digit.
bool isUnitNumber(std::string_view typed);

// The argument of a command, made from what a person typed. The conversions are loose on purpose:
// separators are removed wherever they stand, nothing is checked for its length or for being
// hexadecimal, and numbers are read as integerValue() reads them.
//
//   hardwareAddress   the text without its colons
//   serialNumber      the text without its blanks
//   ipv4Address       eight hexadecimal digits, first octet first; "00000000" for no address
//   listeningPort     "0DC0" to "0DC3", by listeningPortForText()
//   anyPort           at least four hexadecimal digits, with no check of the range: more above
//                     65535, eight for a negative number
//   unitID            for a number twelve hexadecimal digits; for any other text the two digits of
//                     each byte, however many there are
//
// Absent for a unit ID that is not UTF-8, and for `none`.
std::optional<std::string> argumentForText(ValueForm form, std::string_view typed);

// The command that gives a parameter the value that a person typed. Absent where there is no
// argument, and for a parameter that no command changes. The caller decides whether an empty text
// is worth a command.
std::optional<std::string> editCommand(UnitParameter parameter, std::string_view typed);

// The free-form command: the whole text unchanged, and a carriage return.
std::string optionCommand(std::string_view text);

// The text that the title of an option stands for: the part before its first two blanks in a row.
// For a title that begins with "-Z" it is "-Z" and month, day, hour and minute of `now`, two digits
// each.
std::string optionTextForTitle(std::string_view title, const std::tm& now);

// The port to which a unit's commands go, from its "device Port number" text: the low 16 bits of
// the number, or 3520 for an absent or an empty text.
std::uint16_t unitPortForText(std::optional<std::string_view> devicePort);

} // namespace kx
