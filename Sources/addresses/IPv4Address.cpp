#include "addresses/IPv4Address.h"

#include "addresses/CharacterClass.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cstddef>

namespace kx {

namespace {

constexpr std::size_t longestAddressText = 254;

constexpr std::size_t longestNetNumber = std::string_view("255.255.255.255/32").size();

std::uint32_t readSegment(const char* buffer, std::int32_t& position, std::int32_t& consumed,
                          int mostDecimalDigits) {
    constexpr int mostHexDigits = 2;
    const char* const start = buffer + position;
    const char* next = start;
    std::uint32_t value = 0;
    if (next[0] == '0' && next[1] == 'x') {
        next += 2;
        for (int i = 0; i < mostHexDigits && isHexDigit(*next); ++i) {
            value = value * 16 + hexDigitValue(*next++);
        }
    } else {
        for (int i = 0; i < mostDecimalDigits && isDigit(*next); ++i) {
            value = value * 10 + hexDigitValue(*next++);
        }
    }
    consumed = static_cast<std::int32_t>(next - start);
    position += consumed;
    return value;
}

bool isSkippedInFront(char character) {
    return character == ' ' || character == ',' || character == '-' || character == '\t' ||
           character == '\r';
}

// The lowest set bit alone decides, so a mask with holes still gets a prefix length.
std::int32_t prefixLengthOfMask(std::uint32_t mask) {
    return 32 - std::countr_zero(mask);
}

} // namespace

std::uint32_t ipForString(std::string_view text) {
    // This counts bytes. A text has at least as many bytes as characters, so this covers the limit
    // on characters too.
    if (text.empty() || text.size() > longestAddressText) {
        return 0;
    }
    std::array<char, longestAddressText + 1> buffer{};
    text.copy(buffer.data(), longestAddressText);

    std::int32_t position = 0;
    while (isSkippedInFront(buffer[static_cast<std::size_t>(position)])) {
        ++position;
    }
    std::uint32_t address = 0;
    for (int segment = 1; segment <= 4; ++segment) {
        std::int32_t consumed = 0;
        const std::uint32_t value = ipSegmentFromBuf(buffer.data(), position, consumed);
        address = (address << 8U) | value;
        if (segment < 4 && buffer[static_cast<std::size_t>(position++)] != '.') {
            return 0;
        }
    }
    return address;
}

std::uint32_t ipSegmentFromBuf(const char* buffer, std::int32_t& position, std::int32_t& consumed) {
    return readSegment(buffer, position, consumed, 3);
}

std::uint32_t ipSegment1FromBuf(const char* buffer, std::int32_t& position,
                                std::int32_t& consumed) {
    return readSegment(buffer, position, consumed, 10);
}

std::string stringForIP(std::uint32_t address) {
    return stringForNetNumber(address, 0);
}

std::string stringForNetNumber(std::uint32_t address, std::uint32_t mask) {
    std::array<char, longestNetNumber> room{};
    char* end = writeIP(room.data(), address);
    if (mask != 0) {
        *end++ = '/';
        end = std::to_chars(end, room.data() + room.size(), prefixLengthOfMask(mask)).ptr;
    }
    return {room.data(), end};
}

char* writeIP(char* end, std::uint32_t address) {
    constexpr std::ptrdiff_t longestOctet = 3;
    for (int shift = 24; shift >= 0; shift -= 8) {
        end = std::to_chars(end, end + longestOctet, (address >> shift) & 0xFFU).ptr;
        if (shift != 0) {
            *end++ = '.';
        }
    }
    return end;
}

std::optional<std::string> prefixForMaskStr(const std::optional<std::string>& maskText) {
    const std::uint32_t mask = maskText ? ipForString(*maskText) : 0;
    if (mask == 0) {
        return std::nullopt;
    }
    return std::to_string(prefixLengthOfMask(mask));
}

std::uint8_t FindRightBit(std::uint32_t value, std::uint8_t prefixLength) {
    for (std::uint8_t position = std::min<std::uint8_t>(prefixLength, 32); position > 0;
         --position) {
        if (((value >> (32U - position)) & 1U) != 0) {
            return position;
        }
    }
    return 0;
}

std::uint8_t FindLeftBit(std::uint32_t value, std::uint8_t start) {
    for (std::uint8_t position = start; position <= 32; ++position) {
        if (((value >> ((32U - position) % 32U)) & 1U) != 0) {
            return position;
        }
    }
    return 0;
}

} // namespace kx
