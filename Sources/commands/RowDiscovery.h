// Finds the units of a plan, and who holds the addresses that they take: everybody is asked, and a
// unit that has not answered then is asked at the last address that is known of it.
//
// Main thread only.

#pragma once

#include "commands/CommandRun.h"
#include "conversation/UnitPlan.h"

#include <span>

namespace kx {

// `heard` gets every unit that has answered, also those of no row. Where rows change what units are
// known by, the units of no row have their whole time to answer, because they may hold what a row
// takes. The refusal says why nobody could be asked, or that a signal came.
CommandRun::Refusal findUnitsOfRows(CommandRun& run, std::span<const WantedRow> rows,
                                    HeardUnits& heard);

// Refuses the planned rows whose new addresses somebody holds. Without `probes` only parameter
// requests leave. Takes some three seconds where an address is free.
void findHolders(CommandRun& run, UnitPlan& plan, AddressProbes* probes);

} // namespace kx
