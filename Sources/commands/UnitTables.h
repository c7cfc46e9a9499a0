// Units as tables: for a person, and as comma-separated values.
//
// Pure; any thread. Texts are UTF-8.

#pragma once

#include "conversation/HeardUnits.h"
#include "conversation/HostInterface.h"

#include <string>
#include <vector>

namespace kx {

using UnitList = std::vector<const HeardUnit*>;

// What a unit tells, as a text; empty when it does not tell it. A unit ID that is no text is shown
// by its bytes.
std::string shownValue(const HeardUnit& unit, UnitParameter parameter);

// One line for each unit.
std::string tableOfUnits(const UnitList& units, const std::vector<HostInterface>& interfaces,
                         bool isBold);

// Every parameter of one unit, one on each line.
std::string parametersOfUnit(const HeardUnit& unit, const std::vector<HostInterface>& interfaces);

// The table that can be read back: a header, and a record for each unit. The unit ID stands as a
// text only where that text gives the same unit ID; `unit_id_bytes` has it in every case.
std::string csvOfUnits(const UnitList& units, const std::vector<HostInterface>& interfaces);

} // namespace kx
