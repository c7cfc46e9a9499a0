// The parameters that a unit told, as lines of the event log.
//
// Main thread only, because the names are looked up (support/LocalizedText.h). Texts are UTF-8.

#pragma once

#include "units/ParameterList.h"

#include <array>
#include <string>
#include <vector>

namespace kx {

// The beginning of each parameter's line, "\n\tNAME: " with the name that people see, by indexOf().
using ParameterLineStarts = std::array<std::string, unitParameterCount>;

// Those in the present language. Looking them up takes longer than decoding a reply, so keep them
// while the language does not change.
ParameterLineStarts parameterLineStarts();

// One line for each item, "\n\tNAME: TEXT", in the order of the list. An item without a parameter
// has its tag as its name, and one without a text has "(null)". Line feeds of a unit ID are quoted
// (support/QuotedLines.h).
std::string linesOfParameters(const std::vector<ToldParameter>& items,
                              const ParameterLineStarts& starts);

} // namespace kx
