// Contract checks. They stay in release builds, because a tool that goes on after a broken contract
// shows its user wrong facts.

#pragma once

#include <optional>
#include <source_location>
#include <string_view>

namespace kx {

// Ends the process as require() does.
[[noreturn]] void endBrokenContract(std::string_view expression, std::string_view sourcePath,
                                    const std::source_location& location);

// Ends the process with abort(3) when `condition` is false, after one line in the system log:
//
//     Assertion failed: (EXPRESSION), function FUNCTION, SOURCE PATH
//
// `expression` is the text of the contract, which is not always the text of the C++ condition;
// `sourcePath` names the module, for example "Sources/UDPEcho". May be called from any thread.
inline void require(bool condition, std::string_view expression, std::string_view sourcePath,
                    std::source_location location = std::source_location::current()) {
    if (!condition) {
        endBrokenContract(expression, sourcePath, location);
    }
}

// The value of an optional that must have one, under the same conditions. The result lives as long
// as `optional` does.
template<typename Value>
const Value& requireValue(const std::optional<Value>& optional, std::string_view expression,
                          std::string_view sourcePath,
                          std::source_location location = std::source_location::current()) {
    require(optional.has_value(), expression, sourcePath, location);
    return *optional; // NOLINT(bugprone-unchecked-optional-access): checked in the line above
}

} // namespace kx
