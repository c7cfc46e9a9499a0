// An edit of one parameter, as a value: the text that a person typed, the command that is made of
// it, and the value that the unit should show afterwards.
//
// The conversions of UnitCommand.h are loose: they refuse nothing, and turn a text that they cannot
// read into something else. An edit says how the value was changed by the conversion. Its user
// decides whether to send it all the same.
//
// Everything here is pure and may be called from any thread. Texts are UTF-8.

#pragma once

#include "units/UnitParameter.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace kx {

// The most bytes in a datagram: the room that an IPv4 packet (RFC 791) leaves beside its own header
// and the header of UDP (RFC 768). The network refuses more.
inline constexpr std::size_t longestCommand = 65'507;

// Unit numbers above this do not show as numbers.
inline constexpr std::int32_t highestUnitNumber = 255;

// Why no command is made of a typed text.
enum class EditRefusal {
    notEditable, // no command changes this parameter
    emptyValue,
    notUTF8, // a unit ID that is not valid UTF-8
};

// How the value that a command carries differs from the typed text. Separators and the case of
// hexadecimal digits are no difference.
enum class ValueChange {
    none,
    readAs,         // the text is read as another value: "3521x" as 3521
    notANumber,     // the text does not begin with a number; 3520 or 0 is sent
    notAnAddress,   // the text is no IPv4 address; 0.0.0.0 is sent
    outOfRange,     // no number for this port; 3520 or too many digits are sent
    notHexadecimal, // sent as it stands, though some characters are no hexadecimal digits
    wrongLength,    // sent as it stands, though units take another number of digits or bytes
    notShown,       // the unit number is too large to show as a number
};

struct ParameterEdit {
    UnitParameter parameter = UnitParameter::end;
    std::string typed;
    std::string command;

    // The value that the command carries, in the form in which units show it, but with hexadecimal
    // digits in the case as typed. For a value without such a form these are the digits or the text
    // that are sent. For a unit number these are its decimal digits.
    std::string value;

    // The text that a unit shows after it has taken the value; absent when it cannot show the
    // value. Zero bytes at the end of a unit ID are removed.
    std::optional<std::string> expectedText;

    ValueChange change = ValueChange::none;

    bool isTooLong() const { return command.size() > longestCommand; }
};

std::variant<ParameterEdit, EditRefusal> editOfParameter(UnitParameter parameter,
                                                         std::string_view typed);

// The number at the beginning of a text, as it was typed: sign and digits; empty without a digit.
std::string_view leadingNumber(std::string_view typed);

// The text without zero bytes at its end. Units fill a short unit ID up with them.
std::string_view withoutTrailingZeroBytes(std::string_view text);

} // namespace kx
