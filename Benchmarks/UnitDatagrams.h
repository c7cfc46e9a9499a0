// Replies of 81 bytes, each from a unit of its own, told apart by a number.

#pragma once

#include "core/UnitReplies.h"

#include <cstdint>
#include <vector>

namespace kx {

// The reply of a unit whose serial number, hardware address and IP address no other number has.
// Numbers up to 16,777,215. The IP address is one of loopback, so that the reply can come from it.
inline Bytes replyOfUnit(std::uint32_t number) {
    const Bytes low{static_cast<std::uint8_t>(number >> 16U),
                    static_cast<std::uint8_t>(number >> 8U), static_cast<std::uint8_t>(number)};
    SampleUnit unit;
    unit.serial = joined({{0x4B, 0x58, 0x00}, low});
    unit.internalMAC = joined({{0x02, 0x4B, 0x58}, low});
    unit.internalIP = joined({{127}, low});
    return unit.reply();
}

inline std::vector<Bytes> repliesOfUnits(std::uint32_t count) {
    std::vector<Bytes> replies;
    for (std::uint32_t number = 1; number <= count; ++number) {
        replies.push_back(replyOfUnit(number));
    }
    return replies;
}

} // namespace kx
