// Sub-ranges of byte buffers: the checked view, and the text of a range.
//
// Nothing here copies, except the text that is returned. All functions are pure and may be called
// from any thread.

#pragma once

#include "support/PlatformException.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kx {

using Bytes = std::vector<std::uint8_t>;
using ByteView = std::span<const std::uint8_t>;

// A range that lies partly or wholly beyond the end of its buffer. The reason names the range and
// the length of the buffer.
class RangeFailure final : public PlatformException {
public:
    RangeFailure(std::size_t location, std::size_t length, std::size_t available);
};

// The `length` bytes of `data` from offset `location` on. The result is a view of `data` and lives
// as long as `data`. Throws RangeFailure when location + length exceeds the size of `data`.
ByteView subrange(ByteView data, std::size_t location, std::size_t length);

// The same range decoded as UTF-8, zero bytes included. Absent when location + length exceeds the
// size of `data`, or when the bytes are not valid UTF-8.
std::optional<std::string> stringForDataSubrange(ByteView data, std::size_t location,
                                                 std::size_t length);

} // namespace kx
