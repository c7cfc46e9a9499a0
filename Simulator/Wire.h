// The plain values that travel between simulated units and the link, and the conversion of numbers
// to bytes. Every number on the wire is big-endian.

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace kx::simulator {

using Bytes = std::vector<std::uint8_t>;
using ByteView = std::span<const std::uint8_t>;

using SixBytes = std::array<std::uint8_t, 6>;
using HardwareAddress = SixBytes;

// The first dotted segment is the most significant byte.
using IPv4 = std::uint32_t;

inline constexpr HardwareAddress broadcastHardware{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};

inline void appendBytes(Bytes& bytes, ByteView more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
}

// Appends the lowest `width` bytes of `value` to `bytes`, most significant first.
inline void appendNumber(Bytes& bytes, std::uint64_t value, std::size_t width) {
    std::array<std::uint8_t, sizeof value> digits{};
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, value >>= 8) {
        *digit = static_cast<std::uint8_t>(value);
    }
    appendBytes(bytes, ByteView(digits).last(width));
}

// The number in `width` bytes at `offset`. The caller must make sure that they are there.
inline std::uint64_t numberAt(ByteView bytes, std::size_t offset, std::size_t width) {
    std::uint64_t value = 0;
    for (const std::uint8_t byte : bytes.subspan(offset, width)) {
        value = value << 8 | byte;
    }
    return value;
}

inline std::uint16_t shortAt(ByteView bytes, std::size_t offset) {
    return static_cast<std::uint16_t>(numberAt(bytes, offset, 2));
}

inline SixBytes sixBytesOf(std::uint64_t value) {
    SixBytes result{};
    for (auto byte = result.rbegin(); byte != result.rend(); ++byte, value >>= 8) {
        *byte = static_cast<std::uint8_t>(value);
    }
    return result;
}

} // namespace kx::simulator
