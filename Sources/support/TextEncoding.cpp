#include "support/TextEncoding.h"

#include <algorithm>
#include <array>
#include <limits>

namespace kx {

namespace {

bool isContinuation(std::uint8_t byte) {
    return (byte & 0xC0U) == 0x80U;
}

// The length of the sequences that `first` begins; 1 when no well-formed sequence begins with it.
std::size_t lengthAnnouncedBy(std::uint8_t first) {
    if (first < 0xC2U || first > 0xF4U) {
        return 1;
    }
    return first < 0xE0U ? 2 : first < 0xF0U ? 3 : 4;
}

// The length of the well-formed sequence at the front of `bytes` (RFC 3629, section 4), or 0.
std::size_t sequenceLength(ByteView bytes) {
    const std::uint8_t first = bytes[0];
    if (first < 0x80U) {
        return 1;
    }
    const std::size_t length = lengthAnnouncedBy(first);
    if (length == 1 || bytes.size() < length) {
        return 0;
    }
    const std::uint8_t second = bytes[1];
    const bool isOverlong =
        (first == 0xE0U && second < 0xA0U) || (first == 0xF0U && second < 0x90U);
    const bool isSurrogate = first == 0xEDU && second > 0x9FU;
    const bool isAboveUnicode = first == 0xF4U && second > 0x8FU;
    if (isOverlong || isSurrogate || isAboveUnicode) {
        return 0;
    }
    const ByteView rest = bytes.subspan(1, length - 1);
    return std::all_of(rest.begin(), rest.end(), isContinuation) ? length : 0;
}

} // namespace

bool isValidUTF8(ByteView bytes) {
    while (!bytes.empty()) {
        const std::size_t length = sequenceLength(bytes);
        if (length == 0) {
            return false;
        }
        bytes = bytes.subspan(length);
    }
    return true;
}

std::optional<std::string> textFromUTF8(ByteView bytes) {
    if (!isValidUTF8(bytes)) {
        return std::nullopt;
    }
    return std::string(bytes.begin(), bytes.end());
}

std::size_t lengthOfWholeCharacters(ByteView bytes) {
    constexpr std::size_t longestFront = 3;
    for (std::size_t back = 1; back <= std::min(longestFront, bytes.size()); ++back) {
        const std::uint8_t byte = bytes[bytes.size() - back];
        if (!isContinuation(byte)) {
            return back < lengthAnnouncedBy(byte) ? bytes.size() - back : bytes.size();
        }
    }
    return bytes.size();
}

ByteView bytesOfText(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

std::optional<Bytes> asciiBytes(std::string_view text) {
    const ByteView bytes = bytesOfText(text);
    if (std::any_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte > 0x7FU; })) {
        return std::nullopt;
    }
    return Bytes(bytes.begin(), bytes.end());
}

std::size_t lengthInCharacters(std::string_view text) {
    ByteView bytes = bytesOfText(text);
    std::size_t units = 0;
    while (!bytes.empty()) {
        const std::size_t length = std::max<std::size_t>(sequenceLength(bytes), 1);
        units += length == 4 ? 2 : 1; // a surrogate pair, beyond the basic plane
        bytes = bytes.subspan(length);
    }
    return units;
}

FrontCharacter characterAtFrontOf(ByteView bytes) {
    constexpr char32_t beyondUnicode = 0x110000;
    constexpr auto valueBitsOfFirstByte = std::to_array<std::uint8_t>({0, 0x7F, 0x1F, 0x0F, 0x07});
    const std::size_t length = sequenceLength(bytes);
    if (length == 0) {
        return {beyondUnicode + bytes[0], 1};
    }
    char32_t code = bytes[0] & valueBitsOfFirstByte[length];
    for (const std::uint8_t byte : bytes.subspan(1, length - 1)) {
        code = code << 6U | (byte & 0x3FU);
    }
    return {code, length};
}

std::u32string charactersOfText(std::string_view text) {
    std::u32string characters;
    characters.reserve(text.size());
    ByteView bytes = bytesOfText(text);
    while (!bytes.empty()) {
        const FrontCharacter front = characterAtFrontOf(bytes);
        characters.push_back(front.code);
        bytes = bytes.subspan(front.length);
    }
    return characters;
}

std::int32_t integerValue(std::string_view text) {
    constexpr std::string_view whiteSpace = " \t\n\v\f\r";
    text.remove_prefix(std::min(text.find_first_not_of(whiteSpace), text.size()));
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    constexpr std::int64_t highest = std::numeric_limits<std::int32_t>::max();
    const std::int64_t limit = isNegative ? highest + 1 : highest;
    std::int64_t value = 0;
    for (const char character : text) {
        if (character < '0' || character > '9') {
            break;
        }
        value = std::min(value * 10 + (character - '0'), limit);
    }
    return static_cast<std::int32_t>(isNegative ? -value : value);
}

} // namespace kx
