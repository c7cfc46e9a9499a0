// Finds the units of a plan (conversation/RowSearch.h), and who holds the addresses that they take.
//
// Main thread only.

#pragma once

#include "commands/CommandRun.h"
#include "conversation/UnitPlan.h"

#include <span>

namespace kx {

// `heard` gets every unit that has answered, also those of no row. The refusal says why nobody
// could be asked.
CommandRun::Refusal findUnitsOfRows(CommandRun& run, std::span<const WantedRow> rows,
                                    HeardUnits& heard);

// Refuses the planned rows whose new addresses somebody holds. Without `probes` only parameter
// requests leave. Takes some three seconds where an address is free.
void findHolders(CommandRun& run, UnitPlan& plan, AddressProbes* probes);

} // namespace kx
