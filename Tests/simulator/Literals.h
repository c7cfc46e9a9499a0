// Bytes in the notation of the tests.

#pragma once

#include "Simulator/Wire.h"

#include <stdexcept>
#include <string>
#include <string_view>

namespace kx::simulator {

// The bytes of pairs of hexadecimal digits; blanks and line ends are left out.
inline Bytes bytesOfHex(std::string_view text) {
    std::string digits;
    for (const char character : text) {
        if (character != ' ' && character != '\n') {
            digits += character;
        }
    }
    if (digits.size() % 2 != 0) {
        throw std::invalid_argument("an odd number of digits");
    }
    Bytes bytes;
    for (std::size_t index = 0; index < digits.size(); index += 2) {
        bytes.push_back(
            static_cast<std::uint8_t>(std::stoul(digits.substr(index, 2), nullptr, 16)));
    }
    return bytes;
}

inline Bytes bytesOfText(std::string_view text) {
    return {text.begin(), text.end()};
}

} // namespace kx::simulator
