#include "units/IdentityText.h"

#include "support/TextEncoding.h"

#include <array>

namespace kx {

std::optional<std::string> unitIDforData(ByteView data) {
    const ByteView bytes = subrange(data, 0, identityLength);
    for (const std::uint8_t byte : bytes.first(identityLength - 1)) {
        if (byte != 0) {
            return textFromUTF8(bytes);
        }
    }
    return std::to_string(bytes.back());
}

std::string hexStringForData(ByteView data, std::string_view separator) {
    std::string result;
    result.reserve(data.size() * (2 + separator.size()));
    std::array<char, 2> digits{};
    for (const std::uint8_t byte : data) {
        if (!result.empty()) {
            result += separator;
        }
        writeHexDigits(digits.data(), byte);
        result.append(digits.data(), digits.size());
    }
    return result;
}

std::string serialNumberText(ByteView data) {
    return hexStringForData(data, " ");
}

char* writeHexDigits(char* digits, std::uint8_t byte) {
    constexpr std::string_view upperHexDigits = "0123456789ABCDEF";
    digits[0] = upperHexDigits[byte >> 4U];
    digits[1] = upperHexDigits[byte & 0xFU];
    return digits + 2;
}

} // namespace kx
