// The ways in which a person names a unit: by its serial number, or by its unit ID.
//
// Everything here is pure and may be called from any thread. Texts are UTF-8.

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace kx {

// The serial number in the form of IdentityText.h, "4B 58 00 00 00 01".
struct SerialNumberOfUnit {
    std::string text;

    friend bool operator==(const SerialNumberOfUnit&, const SerialNumberOfUnit&) = default;
};

// The text of a unit ID, without zero bytes at its end; never empty.
struct UnitIDOfUnit {
    std::string text;

    friend bool operator==(const UnitIDOfUnit&, const UnitIDOfUnit&) = default;
};

using UnitName = std::variant<SerialNumberOfUnit, UnitIDOfUnit>;

// The unit that a typed text names: "id:" and a unit ID, or a serial number of six pairs of
// hexadecimal digits. Absent for any other text.
std::optional<UnitName> unitNameForText(std::string_view typed);

// The twelve digits of six pairs of hexadecimal digits, in the case as typed. Between the pairs
// stands one blank, one colon, one dash or nothing, the same everywhere. Absent for any other text.
std::optional<std::string> digitsOfSixPairs(std::string_view typed);

// Six pairs of digits as a serial number or a hardware address is written, in upper case.
std::string textOfSixPairs(std::string_view digits, char separator);

} // namespace kx
