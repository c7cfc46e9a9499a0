// The command line of kxunits as values. Pure; any thread.

#pragma once

#include "Simulator/FactorySettings.h"
#include "Simulator/FaultInjector.h"

#include <span>
#include <stdexcept>
#include <string>

namespace kx::simulator {

struct CommandLine {
    bool help = false;
    std::string link = "kx1";
    unsigned count = 3;
    unsigned first = 1;
    Network network{.base = 0xC0000200, .prefixLength = 24};
    bool ignoresOtherSubnets = false; // units ignore a broadcast for another subnet
    FaultPlan faults;
    unsigned floodPerSecond = 0;
    std::optional<std::string> recordPath;
};

// Thrown for an option that does not exist, lacks its value or has an impossible one. what() names
// the option.
class UsageFailure : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

// `arguments` must not contain the program's name. Throws UsageFailure.
CommandLine readCommandLine(std::span<const char* const> arguments);

// The text that --help prints: the options with their defaults, the units' factory settings, the
// outputs.
std::string helpText();

} // namespace kx::simulator
