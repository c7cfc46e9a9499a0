// Contract checks. They stay in release builds: a tool that goes on after a broken contract shows
// its user things that are not so.

#pragma once

#include <source_location>
#include <string_view>

namespace kx {

// Ends the process with abort(3) when `condition` is false, after one line in the system log:
//
//     Assertion failed: (EXPRESSION), function FUNCTION, SOURCE PATH
//
// `expression` is the text of the contract, which is not always the text of the C++ condition;
// `sourcePath` names the module, for example "Sources/UDPEcho". May be called from any thread.
void require(bool condition, std::string_view expression, std::string_view sourcePath,
             std::source_location location = std::source_location::current());

} // namespace kx
