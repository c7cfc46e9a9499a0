// The value of a parameter as a number, so that values are compared and put in order as what they
// are: an address by its bytes, a port by its value.
//
// Pure; any thread. Texts have the form that records have (ValueForm).

#pragma once

#include "units/ParameterList.h"
#include "units/UnitParameter.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

// Six bytes as a number, the first byte most significant, from their text: two hexadecimal digits
// and one separator each. 0 for an absent text.
std::uint64_t numberOfSixBytes(std::optional<std::string_view> text);

// The way back, with two upper-case digits for each byte.
std::string textOfSixBytes(std::uint64_t number, std::string_view separator);

// The same number for the bytes of a unit ID, and the way back.
std::uint64_t numberOfUnitID(const UnitIDBytes& bytes);
UnitIDBytes unitIDOfNumber(std::uint64_t number);

// The number of a value. An address is in host byte order. `parameter` is not the unit ID, whose
// text does not tell its bytes.
std::uint64_t numberOfParameter(UnitParameter parameter, std::string_view text);

// The way back: the text that a record has.
std::string textOfParameter(UnitParameter parameter, std::uint64_t number);

} // namespace kx
