// The loop of kxunits: it passes frames from the link to the units, and their frames back when they
// are due.

#pragma once

#include "Simulator/CommandLine.h"

namespace kx::simulator {

// Plays the units that `line` describes until SIGINT or SIGTERM, then writes their final states.
// On SIGUSR1 the faults and the flood end, on SIGUSR2 the units' states are recorded. Blocks these
// signals for the process. Throws std::system_error when the link or the record cannot be used.
void playUnits(const CommandLine& line);

} // namespace kx::simulator
