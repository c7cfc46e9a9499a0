// Conversions of the plain models, in the plainest form that does the work.
//
// A plain model is a second reading of the requirements. It is written from them alone, shares no
// code with Sources/, stores as little as it can, and works everything out anew, however slow that
// is. Tests perform the same random operations on a model and on the program and compare both after
// each. Where they differ, the requirements decide which of them is wrong.
//
// All functions are pure. Texts are UTF-8, IPv4 addresses are in host byte order.

#pragma once

#include <algorithm>
#include <array>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace kx::model {

using Octets = std::vector<std::uint8_t>;

inline Octets octetsOf(const std::string& text) {
    return {text.begin(), text.end()};
}

// The range, or absent when some of it lies beyond the end.
inline std::optional<Octets> part(const Octets& octets, std::size_t from, std::size_t count) {
    if (from + count > octets.size()) {
        return std::nullopt;
    }
    const auto first = octets.begin() + static_cast<std::ptrdiff_t>(from);
    return Octets(first, first + static_cast<std::ptrdiff_t>(count));
}

inline std::string upperHex(std::uint64_t number, std::size_t leastDigits) {
    std::string digits;
    for (; number > 0; number /= 16) {
        digits.insert(digits.begin(), "0123456789ABCDEF"[number % 16]);
    }
    while (digits.size() < leastDigits) {
        digits.insert(digits.begin(), '0');
    }
    return digits;
}

inline std::string joinedTexts(const std::vector<std::string>& texts, const std::string& between) {
    std::string all;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        all += (i == 0 ? "" : between) + texts[i];
    }
    return all;
}

inline std::string hexPairs(const Octets& octets, const std::string& between) {
    std::vector<std::string> pairs;
    for (const std::uint8_t octet : octets) {
        pairs.push_back(upperHex(octet, 2));
    }
    return joinedTexts(pairs, between);
}

// The code of the character of `length` octets at a place; absent when they are none.
inline std::optional<std::uint32_t> codeAt(const Octets& octets, std::size_t at,
                                           std::size_t length) {
    if (octets.size() - at < length) {
        return std::nullopt;
    }
    std::uint32_t code = length == 1 ? octets[at] : octets[at] & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        if (octets[at + i] / 64 != 2) {
            return std::nullopt;
        }
        code = code * 64 + octets[at + i] % 64;
    }
    return code;
}

// The text that the octets encode, or absent when they are not UTF-8.
inline std::optional<std::string> textOf(const Octets& octets) {
    constexpr std::array<std::uint32_t, 5> leastCode{0, 0, 0x80, 0x800, 0x10000};
    for (std::size_t at = 0; at < octets.size();) {
        const unsigned first = octets[at];
        const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
        if ((first >= 0x80 && first < 0xC0) || first >= 0xF8) {
            return std::nullopt;
        }
        const auto code = codeAt(octets, at, length);
        if (!code.has_value() || *code < leastCode.at(length) || *code > 0x10FFFF ||
            (*code >= 0xD800 && *code <= 0xDFFF)) {
            return std::nullopt;
        }
        at += length;
    }
    return std::string(octets.begin(), octets.end());
}

inline bool isASCII(const std::string& text) {
    return std::all_of(text.begin(), text.end(),
                       [](char each) { return static_cast<unsigned char>(each) < 128; });
}

inline std::string without(const std::string& text, char unwanted) {
    std::string rest;
    for (const char each : text) {
        rest += each == unwanted ? std::string() : std::string(1, each);
    }
    return rest;
}

// The number at the beginning of a text; 0 without one, and the nearest of 32 bits.
inline std::int32_t integerOf(const std::string& text) {
    const long long number = std::strtoll(text.c_str(), nullptr, 10);
    return static_cast<std::int32_t>(
        std::clamp<long long>(number, std::numeric_limits<std::int32_t>::min(),
                              std::numeric_limits<std::int32_t>::max()));
}

// The next segment of an address: "0x" and at most two hexadecimal digits, or at most three decimal
// ones. Moves the place behind it.
inline std::uint32_t segmentOf(const std::string& text, std::size_t& at) {
    const bool isHex = text.compare(at, 2, "0x") == 0;
    at += isHex ? 2 : 0;
    std::string digits;
    while (at < text.size() && digits.size() < (isHex ? 2U : 3U) &&
           (isHex ? std::isxdigit(static_cast<unsigned char>(text[at])) != 0
                  : text[at] >= '0' && text[at] <= '9')) {
        digits += text[at++];
    }
    return digits.empty()
               ? 0
               : static_cast<std::uint32_t>(std::stoul(digits, nullptr, isHex ? 16 : 10));
}

// 0 for a text that is no address.
inline std::uint32_t addressOf(const std::string& text) {
    if (text.empty() || text.size() > 254) {
        return 0;
    }
    std::size_t at = 0;
    while (at < text.size() && std::string(" ,-\t\r").find(text[at]) != std::string::npos) {
        ++at;
    }
    std::uint32_t address = 0;
    for (const unsigned shift : {24U, 16U, 8U, 0U}) {
        address |= segmentOf(text, at) << shift;
        if (shift > 0 && (at >= text.size() || text[at++] != '.')) {
            return 0;
        }
    }
    return address;
}

inline std::string dotted(std::uint32_t address) {
    return std::to_string(address >> 24U) + '.' + std::to_string(address >> 16U & 0xFFU) + '.' +
           std::to_string(address >> 8U & 0xFFU) + '.' + std::to_string(address & 0xFFU);
}

} // namespace kx::model
