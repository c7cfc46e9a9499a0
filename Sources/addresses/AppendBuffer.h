// A cursor for building short texts in storage that the caller owns, without allocating.

#pragma once

#include <cstdint>

namespace kx {

struct AppendBuffer {
    char* bytes = nullptr;      // the caller's storage
    std::uint32_t length = 0;   // high-water mark: the end of everything appended
    std::uint32_t capacity = 0; // the most bytes that appends may occupy
    std::uint32_t offset = 0;   // where the next append writes
};

// Appends the decimal text of `value`, with "-" when negative. Returns 0, or -1 when it does not
// fit into the capacity; nothing is changed then. Writes no terminator.
std::int32_t appendInt(AppendBuffer& buffer, std::int32_t value);

} // namespace kx
