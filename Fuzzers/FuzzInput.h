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

// Ends the process when a requireInvariant does not hold. The fuzzer reports this as a finding.
inline void requireInvariant(bool holds, const char* text) {
    if (!holds) {
        std::fprintf(stderr, "Promise not kept: %s\n", text);
        std::abort();
    }
}

} // namespace kx
