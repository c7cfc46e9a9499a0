// Helpers of the fuzzers: the input as text, and a check that ends the run as a finding.

#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace kx {

inline std::string_view textOfInput(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

// Ends the process when `holds` is false. The fuzzer reports this as a finding.
inline void requireInvariant(bool holds, const char* text) {
    if (!holds) {
        std::fprintf(stderr, "Invariant broken: %s\n", text);
        std::abort();
    }
}

} // namespace kx
