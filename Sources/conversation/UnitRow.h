// What a unit told, kept small: each value as a number, so that a hundred thousand units are put in
// order and searched in a moment.
//
// A plain value; any thread, one at a time. Addresses are in host byte order.

#pragma once

#include "conversation/HeardUnits.h"
#include "units/PackedValues.h"
#include "units/UnitParameter.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace kx {

class UnitRow {
public:
    UnitRow() = default;
    explicit UnitRow(const HeardUnit& unit);

    bool tells(UnitParameter parameter) const { return _values.has(parameter); }

    // The value as units/ParameterNumber.h has it, for the unit ID that of its six bytes. 0 when
    // the unit does not tell it.
    std::uint64_t number(UnitParameter parameter) const { return _values.number(parameter); }

    // The text that a record has: absent when the unit does not tell the value, and for a unit ID
    // that is not UTF-8.
    std::optional<std::string> text(UnitParameter parameter) const;

    // All of it in the form that the writers of files take.
    HeardUnit heardUnit() const;

    std::uint32_t sender = 0; // address from which the latest answer came
    std::uint32_t link = 0;   // index of the interface by which it came; 0 when it is not known
    std::chrono::milliseconds answered{0}; // time from the latest request to that answer
    std::chrono::system_clock::time_point heard;

private:
    PackedValues _values;
};

} // namespace kx
