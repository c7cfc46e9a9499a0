#include "Simulator/SimulatedUnit.h"

#include <algorithm>
#include <charconv>

namespace kx::simulator {

namespace {

constexpr std::string_view commandPrefix = "^^Id";
constexpr std::string_view versionText = "simulated unit 1.0\r";
constexpr std::size_t parameterReplyLength = 81;

void appendText(Bytes& bytes, std::string_view text) {
    bytes.insert(bytes.end(), text.begin(), text.end());
}

// The number that `text` stands for, with exactly `digits` digits.
std::optional<std::uint64_t> numberOf(std::string_view text, std::size_t digits, int base) {
    std::uint64_t value = 0;
    const char* const end = text.data() + text.size();
    if (digits == 0 || text.size() != digits) {
        return std::nullopt;
    }
    const std::from_chars_result result = std::from_chars(text.data(), end, value, base);
    if (result.ec != std::errc() || result.ptr != end) {
        return std::nullopt;
    }
    return value;
}

template<typename Number>
bool setNumber(Number& setting, std::string_view argument) {
    const auto value = numberOf(argument, sizeof(Number) * 2, 16);
    if (value) {
        setting = static_cast<Number>(*value);
    }
    return value.has_value();
}

bool setBytes(SixBytes& setting, std::string_view argument) {
    const auto value = numberOf(argument, setting.size() * 2, 16);
    if (value) {
        setting = sixBytesOf(*value);
    }
    return value.has_value();
}

// A text that is shorter than six bytes is written at the left, as it was typed.
bool setUnitID(SixBytes& setting, std::string_view argument) {
    if (argument.size() % 2 != 0 || argument.size() > setting.size() * 2) {
        return false;
    }
    std::string padded(argument);
    if (!padded.empty()) {
        padded.resize(setting.size() * 2, '0');
    }
    return setBytes(setting, padded);
}

bool isBetween(std::optional<std::uint64_t> value, std::uint64_t low, std::uint64_t high) {
    return value && *value >= low && *value <= high;
}

// The command does not tell the year, so February may have 29 days.
std::uint64_t longestMonth(std::optional<std::uint64_t> month) {
    if (month == 2) {
        return 29;
    }
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

} // namespace

SimulatedUnit::SimulatedUnit(const UnitSettings& factory)
    : _factory(factory)
    , _settings(factory) {}

std::optional<Bytes> SimulatedUnit::answer(ByteView command) {
    // A separate text, because the argument is compared and parsed as characters below.
    const std::string text(command.begin(), command.end());
    std::string_view rest = text;
    if (!rest.starts_with(commandPrefix) || rest.size() == commandPrefix.size()) {
        return std::nullopt;
    }
    rest.remove_prefix(commandPrefix.size());

    if (rest == "V\r") {
        return textReply(versionText);
    }
    if (rest.starts_with("-Z")) {
        return setClock(rest) ? std::optional(textReply("ok\r")) : std::nullopt;
    }

    if (rest.ends_with('\r')) {
        rest.remove_suffix(1);
    }
    if (rest == "X") {
        return parameterReply();
    }
    if (rest.empty() || !apply(rest.front(), rest.substr(1))) {
        return std::nullopt;
    }
    return textReply("ok\r");
}

bool SimulatedUnit::apply(char letter, std::string_view argument) {
    switch (letter) {
    case 'U':
        return setUnitID(_settings.unitID, argument);
    case 'M':
        return setBytes(_settings.hardwareAddress, argument);
    case 'I':
        return setNumber(_settings.address, argument);
    case 'D':
        return setNumber(_settings.destinationAddress, argument);
    case 'T':
        return setNumber(_settings.destinationPort, argument);
    case 'P':
        return setNumber(_settings.devicePort, argument);
    case 'C':
        return setBytes(_settings.destinationHardwareAddress, argument);
    case 'S':
        return setBytes(_settings.serial, argument);
    case 'Z':
        if (argument.empty()) {
            _settings = _factory;
        }
        return argument.empty();
    default:
        return false;
    }
}

bool SimulatedUnit::setClock(std::string_view option) {
    constexpr std::size_t clockOptionLength = 11; // -Z, eight digits, the carriage return
    if (option.size() != clockOptionLength || option.back() != '\r') {
        return false;
    }
    const std::string_view digits = option.substr(2, 8);
    const auto pair = [&](std::size_t offset) { return numberOf(digits.substr(offset, 2), 2, 10); };
    const bool isTime = isBetween(pair(0), 1, 12) && isBetween(pair(2), 1, longestMonth(pair(0))) &&
                        isBetween(pair(4), 0, 23) && isBetween(pair(6), 0, 59);
    if (isTime) {
        _clock = digits;
    }
    return isTime;
}

Bytes SimulatedUnit::replyHeader() const {
    Bytes reply;
    reply.reserve(parameterReplyLength);
    appendText(reply, "^^<U>");
    appendBytes(reply, _settings.unitID);
    appendText(reply, "<S>");
    appendBytes(reply, _settings.serial);
    appendText(reply, "$");
    return reply;
}

Bytes SimulatedUnit::textReply(std::string_view text) const {
    Bytes reply = replyHeader();
    appendText(reply, text);
    return reply;
}

Bytes SimulatedUnit::parameterReply() const {
    Bytes reply = replyHeader();
    appendText(reply, "<M>");
    appendBytes(reply, _settings.hardwareAddress);
    appendText(reply, "<I>");
    appendNumber(reply, _settings.address, 4);
    appendText(reply, "<D>");
    appendNumber(reply, _settings.destinationAddress, 4);
    appendText(reply, "<T>");
    appendNumber(reply, _settings.destinationPort, 2);
    appendText(reply, "<P>");
    appendNumber(reply, _settings.devicePort, 2);
    appendText(reply, "<U>");
    appendBytes(reply, _settings.unitID);
    appendText(reply, "<C>");
    appendBytes(reply, _settings.destinationHardwareAddress);
    appendText(reply, "<S>");
    appendBytes(reply, _settings.serial);
    return reply;
}

} // namespace kx::simulator
