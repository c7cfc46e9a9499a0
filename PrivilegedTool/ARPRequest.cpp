#include "PrivilegedTool/ARPRequest.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>

namespace kxarp {

namespace {

constexpr std::size_t hardwareAddressLength = 17; // "02:00:00:00:00:07"
constexpr std::size_t pairAndColon = 3;

// Bits of a line of the table, and of the first octet of a hardware address.
constexpr unsigned fixedEntry = 0x4;
constexpr unsigned groupAddress = 0x1;

// A text that a front may look up in its catalogue.
constexpr const char* localizedKey(const char* key) {
    return key;
}

// The number that fills the whole text, without a sign or a prefix.
std::optional<unsigned> numberIn(std::string_view text, int base) {
    unsigned number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, base);
    return error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

// The text before the separator, which is taken away with it; all of the text without one.
std::string_view takeUntil(std::string_view& text, char separator) {
    const std::string_view front = text.substr(0, text.find(separator));
    text.remove_prefix(std::min(front.size() + 1, text.size()));
    return front;
}

bool isAddress(std::string_view text) {
    constexpr int numbers = 4;
    constexpr unsigned largest = 255;
    if (std::ranges::count(text, '.') != numbers - 1) {
        return false;
    }
    for (int i = 0; i < numbers; ++i) {
        const std::string_view digits = takeUntil(text, '.');
        const bool hasLeadingZero = digits.size() > 1 && digits.front() == '0';
        if (hasLeadingZero || numberIn(digits, 10).value_or(largest + 1) > largest) {
            return false;
        }
    }
    return true;
}

bool isHardwareAddressOfOneHost(std::string_view text) {
    if (text.size() != hardwareAddressLength) {
        return false;
    }
    unsigned all = 0;
    for (std::size_t i = 0; i < hardwareAddressLength; i += pairAndColon) {
        const auto octet = numberIn(text.substr(i, 2), 16);
        const bool isLast = i + 2 == hardwareAddressLength;
        if (!octet.has_value() || (!isLast && text[i + 2] != ':')) {
            return false;
        }
        if (i == 0 && (*octet & groupAddress) != 0) {
            return false;
        }
        all |= *octet;
    }
    return all != 0;
}

bool equalInEitherCase(std::string_view left, std::string_view right) {
    const auto lowerCase = [](char character) {
        return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                    : character;
    };
    return std::ranges::equal(left, right, {}, lowerCase, lowerCase);
}

std::optional<unsigned> flagsIn(std::string_view text) {
    constexpr std::string_view prefix = "0x";
    return text.starts_with(prefix) ? numberIn(text.substr(prefix.size()), 16) : std::nullopt;
}

} // namespace

std::variant<Request, Failure> requestOf(std::span<const std::string_view> words) {
    constexpr std::size_t wordsOfRequest = 3;
    if (words.size() != wordsOfRequest || (words[0] != "-s" && words[0] != "-d")) {
        return Failure::badWords;
    }
    if (!isAddress(words[1])) {
        return Failure::badAddress;
    }
    if (!isHardwareAddressOfOneHost(words[2])) {
        return Failure::badHardwareAddress;
    }
    return Request{words[0] == "-s" ? Verb::enter : Verb::takeOut, words[1], words[2]};
}

const char* sentenceOf(Failure failure) {
    switch (failure) {
    case Failure::badWords:
        return localizedKey("The ARP tool gets one address and one hardware address only.");
    case Failure::badAddress:
        return localizedKey("An address is four decimal numbers without leading zeros, as in "
                            "192.0.2.7.");
    case Failure::badHardwareAddress:
        return localizedKey("A hardware address is six pairs of hexadecimal digits and names one "
                            "host, as in 02:00:00:00:00:07.");
    case Failure::noSuchEntry:
        return localizedKey("The ARP cache has no fixed entry with this address and this hardware "
                            "address.");
    case Failure::noTable:
        return localizedKey("The ARP cache cannot be read.");
    case Failure::noTool:
        break;
    }
    return localizedKey("The ARP tool cannot be run.");
}

std::optional<std::string_view> interfaceOfEntry(std::string_view line, const Request& request) {
    enum Column { address, kind, flags, hardwareAddress, mask, interface, columnCount };
    std::array<std::string_view, columnCount> columns;
    std::size_t count = 0;
    while (!line.empty() && count < columns.size()) {
        const std::string_view text = takeUntil(line, ' ');
        if (!text.empty()) {
            columns[count++] = text;
        }
    }
    const bool isWanted = count == columns.size() && line.empty() &&
                          columns[address] == request.address &&
                          equalInEitherCase(columns[hardwareAddress], request.hardwareAddress) &&
                          (flagsIn(columns[flags]).value_or(0) & fixedEntry) != 0;
    return isWanted ? std::optional(columns[interface]) : std::nullopt;
}

} // namespace kxarp
