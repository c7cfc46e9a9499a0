// Edits from texts that must mean exactly what they say.
//
// The conversions of an edit are loose (ParameterEdit.h): they turn a text that they cannot read
// into something else. An exact edit knows whether that happened, so that its user can refuse it.
//
// Everything here is pure and may be called from any thread. Texts are UTF-8.

#pragma once

#include "units/ParameterEdit.h"
#include "units/ParameterList.h"

#include <optional>
#include <string_view>
#include <variant>

namespace kx {

struct ExactEdit {
    ParameterEdit edit;

    // For a unit ID, the six bytes that the unit holds after it has taken the value: those of the
    // command, filled up with zero bytes. Absent for other parameters, and when the command carries
    // more than six bytes.
    std::optional<UnitIDBytes> unitIDBytes = {};

    // The conversion has turned the text into another value, or into one that units do not take.
    bool isChanged = false;

    // Whether a unit with this record and these bytes shows the value. A unit ID is compared by its
    // bytes, every other parameter by its text.
    bool isShownBy(const UnitRecord& record, const std::optional<UnitIDBytes>& idBytes) const;
};

// The edit for a typed value. Serial numbers and hardware addresses may be written as in
// digitsOfSixPairs(). A name of fewer than six bytes is not changed: units fill it up.
std::variant<ExactEdit, EditRefusal> exactEdit(UnitParameter parameter, std::string_view typed);

// The edit that gives a unit exactly these six bytes as its unit ID, also when they are no text.
ExactEdit exactEditOfUnitID(const UnitIDBytes& bytes);

// The parameter with this identifier ("device-port") or with this name ("device Port number"), in
// letters of either case; absent when there is none.
std::optional<UnitParameter> unitParameterForTypedName(std::string_view typed);

} // namespace kx
