// Edits of the sample unit, and the unit's replies.

#pragma once

#include "conversation/EditOutcome.h"

#include <optional>
#include <string>
#include <string_view>

namespace kx {

inline const std::string editedUnit = "01 02 03 04 05 06";
inline const std::string editedUnitsAddress = "00:1A:2B:3C:4D:5E";

inline ParameterEdit editOf(UnitParameter parameter, std::string_view typed) {
    return std::get<ParameterEdit>(editOfParameter(parameter, typed));
}

inline EditOutcome outcomeOf(UnitParameter parameter, std::string_view typed,
                             const std::optional<std::string>& before) {
    return {
        editOf(parameter, typed),
        {.serialNumber = editedUnit, .hardwareAddress = editedUnitsAddress, .valueBefore = before}};
}

// Parameters of the unit, with this value for one of them.
inline UnitRecord recordWith(UnitParameter parameter, std::string_view value) {
    UnitRecord record;
    record.setValue(UnitParameter::internalMACAddress, editedUnitsAddress);
    record.setValue(parameter, value);
    return record;
}

} // namespace kx
