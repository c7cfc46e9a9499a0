// An edit of one parameter, as a value: what a person typed, the command that comes of it, and what
// the unit should show afterwards.
//
// The conversions of UnitCommand.h are loose: they refuse nothing, and turn what they cannot read
// into something else. An edit says how the value was changed on the way; whether to send it all
// the same is for its user to decide.
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

// Bytes in a datagram: what an IPv4 packet (RFC 791) leaves beside its own header and that of UDP
// (RFC 768). The network refuses more.
inline constexpr std::size_t longestCommand = 65'507;

// Unit numbers above this do not show as numbers.
inline constexpr std::int32_t highestUnitNumber = 255;

// Why no command comes of a typed text.
enum class EditRefusal {
    notEditable, // no command changes this parameter
    emptyValue,
    notUTF8, // a unit ID that is no text
};

// How the value that a command carries differs from what was typed. Separators and the case of
// hexadecimal digits are no difference.
enum class ValueChange {
    none,
    readAs,         // it is another one: "3521x" is read as 3521
    notANumber,     // the text does not begin with a number: 3520, or 0
    notAnAddress,   // the text is no IPv4 address: 0.0.0.0
    outOfRange,     // a number that this port cannot be: 3520, or more digits than a port has
    notHexadecimal, // sent as it stands, though it has something else than hexadecimal digits
    wrongLength,    // sent as it stands, though a unit takes another number of digits or bytes
    notShown,       // a unit number that is too large to show as a number
};

struct ParameterEdit {
    UnitParameter parameter = UnitParameter::end;
    std::string typed;
    std::string command;

    // The value that the command carries, in the form in which units show such values, though the
    // case of hexadecimal digits is as typed; for a value without such a form the digits or the
    // text that are sent, for a unit number its decimal digits.
    std::string value;

    // How a unit that has taken the value shows it; absent when it cannot. A unit ID comes without
    // zero bytes at its end.
    std::optional<std::string> shown;

    ValueChange change = ValueChange::none;

    bool isTooLong() const { return command.size() > longestCommand; }
};

std::variant<ParameterEdit, EditRefusal> editOfParameter(UnitParameter parameter,
                                                         std::string_view typed);

// The number in front of a text, as it was typed: sign and digits; empty without a digit.
std::string_view numberInFront(std::string_view typed);

// Units fill a short unit ID up with zero bytes.
std::string_view withoutZeroBytesAtTheEnd(std::string_view text);

} // namespace kx
