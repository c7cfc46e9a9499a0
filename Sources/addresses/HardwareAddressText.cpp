#include "addresses/HardwareAddressText.h"

#include "addresses/CharacterClass.h"
#include "support/LocalizedText.h"
#include "support/SystemLog.h"
#include "support/TextEncoding.h"

#include <algorithm>

namespace kx {

namespace {

constexpr std::string_view upperCaseDigits = "0123456789ABCDEF";

void appendOctet(std::string& text, std::uint8_t octet) {
    text += upperCaseDigits[octet >> 4U];
    text += upperCaseDigits[octet & 0x0FU];
}

bool isAtSeparator(const ParseCursor& cursor, const ParsePosition& position) {
    const char next = cursor.bytes[position.offset];
    return next == ':' || next == '-';
}

void stepForward(ParsePosition& position, std::uint32_t bytes) {
    position.offset += bytes;
    position.remaining -= bytes;
}

std::uint8_t nextOctet(const ParseCursor& cursor, ParsePosition& position) {
    return static_cast<std::uint8_t>(intHexValue(cursor, position) & 0xFFU);
}

void logInvalidAddress(std::string_view message, std::string_view text) {
    logToSystem(message);
    logToSystem(text);
}

} // namespace

ParseCursor cursorForText(std::string_view text) {
    return {text, static_cast<std::uint32_t>(lengthInCharacters(text))};
}

ParsePosition startOfCursor(const ParseCursor& cursor) {
    return {0, cursor.length};
}

std::uint32_t string2HexNum(std::string_view bytes, std::uint32_t maximum, std::uint8_t* count) {
    const std::size_t limit = std::min<std::size_t>(maximum & 0xFFU, bytes.size());
    std::uint32_t value = 0;
    std::size_t read = 0;
    while (read < limit && isHexDigit(bytes[read])) {
        value = value * 16 + hexDigitValue(bytes[read]);
        ++read;
    }
    if (count != nullptr) {
        *count = static_cast<std::uint8_t>(read);
    }
    return value;
}

std::uint32_t intHexValue(const ParseCursor& cursor, ParsePosition& position) {
    std::string_view rest = cursor.bytes;
    rest.remove_prefix(std::min<std::size_t>(position.offset, rest.size()));
    std::uint8_t count = 0;
    const std::uint32_t value = string2HexNum(rest, position.remaining, &count);
    stepForward(position, count);
    return value;
}

bool skipByte(const ParseCursor& cursor, ParsePosition& position, char byte) {
    const std::size_t end = std::min<std::size_t>(cursor.length, cursor.bytes.size());
    if (position.offset >= end || cursor.bytes[position.offset] != byte) {
        return false;
    }
    stepForward(position, 1);
    return true;
}

std::string stringForEA(std::span<const std::uint8_t, hardwareAddressLength> octets) {
    return stringForHA16(octets, octets.size());
}

std::string stringForHA16(ByteView octets, std::size_t count) {
    const auto printed = octets.first(std::min(std::max<std::size_t>(count, 1), octets.size()));
    std::string text;
    for (const std::uint8_t octet : printed) {
        text += text.empty() ? "" : ":";
        appendOctet(text, octet);
    }
    return text;
}

bool eaForString(std::string_view text, std::span<std::uint8_t, hardwareAddressLength> octets) {
    if (text.empty()) {
        return false;
    }
    const ParseCursor cursor = cursorForText(text);
    ParsePosition position = startOfCursor(cursor);
    octets[0] = nextOctet(cursor, position);
    std::size_t count = 1;
    while (position.offset < cursor.length && isAtSeparator(cursor, position)) {
        stepForward(position, 1);
        octets[count++] = nextOctet(cursor, position);
        if (count == octets.size()) {
            return true;
        }
    }
    logInvalidAddress(localizedText("HardwareAddressFormatter: invalid Ethernet address"), text);
    return false;
}

bool ha16ForString(std::string_view text, std::span<std::uint8_t, longestHardwareAddress> octets,
                   std::size_t& count) {
    const auto isComplete = [](std::size_t groups) { return groups == 6 || groups == 8; };
    const ParseCursor cursor = cursorForText(text);
    ParsePosition position = startOfCursor(cursor);
    count = 0;
    octets[0] = nextOctet(cursor, position);
    std::size_t groups = 1;
    while (position.offset < cursor.length) {
        if (!isAtSeparator(cursor, position)) {
            if (!isComplete(groups)) {
                logInvalidAddress(localizedText("HardwareAddress: invalid Ethernet address"), text);
            }
            break;
        }
        if (position.remaining == 1) {
            break;
        }
        stepForward(position, 1);
        octets[groups++] = nextOctet(cursor, position);
        if (groups == octets.size()) {
            return false;
        }
    }
    if (!isComplete(groups)) {
        return false;
    }
    count = groups;
    return true;
}

} // namespace kx
