// Units as tables for a person. files/UnitCSV.h writes them as comma-separated values.
//
// Pure; any thread. Texts are UTF-8.

#pragma once

#include "conversation/HeardUnits.h"
#include "conversation/HostInterface.h"
#include "files/UnitCSV.h"

#include <string>
#include <vector>

namespace kx {

// One line for each unit.
std::string tableOfUnits(const UnitList& units, const std::vector<HostInterface>& interfaces,
                         bool isBold);

// Every parameter of one unit, one on each line.
std::string parametersOfUnit(const HeardUnit& unit, const std::vector<HostInterface>& interfaces);

} // namespace kx
