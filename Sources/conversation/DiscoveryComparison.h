// Two discoveries, one after the other: which units are new, which are missing, and what has
// changed, parameter by parameter.
//
// Pure; any thread. The results refer to units of the two discoveries, which must outlive them and
// stay as they are.

#pragma once

#include "conversation/HeardUnits.h"
#include "units/UnitParameter.h"

#include <cstddef>
#include <vector>

namespace kx {

// A unit tells another value than before, or tells a value in only one of the two.
struct ParameterDifference {
    const HeardUnit* before = nullptr;
    const HeardUnit* now = nullptr;
    UnitParameter parameter = UnitParameter::end;
};

// All lists are in the order of serial numbers, and within a unit in that of the parameter table.
struct DiscoveryComparison {
    std::vector<const HeardUnit*> added;   // of the later discovery
    std::vector<const HeardUnit*> missing; // of the earlier one: they are not in the later one
    std::vector<ParameterDifference> differences;
    std::size_t changed = 0; // the number of units with a difference
    std::size_t same = 0;    // the number of units without one

    bool areEqual() const { return added.empty() && missing.empty() && differences.empty(); }
};

// A unit is the same one under the same serial number. Where several units have one serial number,
// those with equal hardware addresses belong together first. Unit IDs are compared by their six
// bytes where both are known. The time, the sender and the interface of an answer do not count.
DiscoveryComparison compareDiscoveries(const HeardUnits& before, const HeardUnits& now);

} // namespace kx
