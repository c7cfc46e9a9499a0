#include "addresses/AppendBuffer.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace kx {

std::int32_t appendInt(AppendBuffer& buffer, std::int32_t value) {
    std::array<char, 32> digits{};
    const char* end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    const auto count = static_cast<std::uint32_t>(end - digits.data());
    if (std::uint64_t{buffer.offset} + count > buffer.capacity) {
        return -1;
    }
    std::copy_n(digits.data(), count, buffer.bytes + buffer.offset);
    buffer.offset += count;
    buffer.length = std::max(buffer.length, buffer.offset);
    return 0;
}

} // namespace kx
