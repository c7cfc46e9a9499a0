#include "CommandProtocol.h"

#include "IdentityText.h"
#include "addresses/CharacterClass.h"
#include "addresses/IPv4Address.h"
#include "support/TextEncoding.h"

#include <array>
#include <cstddef>
#include <cstdio>

namespace kx {

namespace {

static_assert(parameterRequestCommand.starts_with(commandPrefix));
static_assert(restoreCommand.starts_with(commandPrefix));

constexpr std::string_view clockOption = "-Z";

std::string withoutCharacter(std::string_view text, char unwanted) {
    std::string result(text);
    std::erase(result, unwanted);
    return result;
}

// A negative number shows as the 32 bits that hold it.
std::string hexNumber(std::int32_t number, int leastDigits) {
    std::array<char, 16> digits{};
    const int length = std::snprintf(digits.data(), digits.size(), "%0*X", leastDigits,
                                     static_cast<unsigned>(number));
    return {digits.data(), static_cast<std::size_t>(length)};
}

std::string commandText(char letter, std::string_view argument) {
    std::string result(commandPrefix);
    result += letter;
    result += argument;
    return result;
}

} // namespace

std::string macAddressArgument(std::string_view typed) {
    return withoutCharacter(typed, ':');
}

std::string ipAddressArgument(std::string_view typed) {
    return hexNumber(static_cast<std::int32_t>(ipForString(typed)), 8);
}

std::uint16_t destinationPortForText(std::string_view typed) {
    const std::int32_t port = integerValue(typed);
    const bool isAllowed = port >= defaultUnitPort && port <= lastDestinationPort;
    return isAllowed ? static_cast<std::uint16_t>(port) : defaultUnitPort;
}

std::string destinationPortArgument(std::string_view typed) {
    return hexNumber(destinationPortForText(typed), 4);
}

std::string devicePortArgument(std::string_view typed) {
    return hexNumber(integerValue(typed), 4);
}

std::optional<std::string> unitIDArgument(std::string_view typed) {
    const ByteView bytes = bytesOfText(typed);
    if (!isValidUTF8(bytes)) {
        return std::nullopt;
    }
    if (!typed.empty() && isDigit(typed.front())) {
        return hexNumber(integerValue(typed), 12);
    }
    return hexStringForData(bytes, "");
}

std::string serialNumberArgument(std::string_view typed) {
    return withoutCharacter(typed, ' ');
}

std::optional<std::string> editCommand(UnitParameter parameter, std::string_view typed) {
    switch (parameter) {
    case UnitParameter::internalMACAddress:
        return commandText('M', macAddressArgument(typed));
    case UnitParameter::internalIPAddress:
        return commandText('I', ipAddressArgument(typed));
    case UnitParameter::destinationIPAddress:
        return commandText('D', ipAddressArgument(typed));
    case UnitParameter::destinationPortNumber:
        return commandText('T', destinationPortArgument(typed));
    case UnitParameter::devicePortNumber:
        return commandText('P', devicePortArgument(typed));
    case UnitParameter::destinationMACAddress:
        return commandText('C', macAddressArgument(typed));
    case UnitParameter::serialNumber:
        return commandText('S', serialNumberArgument(typed));
    case UnitParameter::unitID:
        break;
    }
    const auto argument = unitIDArgument(typed);
    return argument.has_value() ? std::optional(commandText('U', *argument)) : std::nullopt;
}

std::string optionCommand(std::string_view text) {
    std::string result(commandPrefix);
    result += text;
    result += '\r';
    return result;
}

std::string optionTextForTitle(std::string_view title, const std::tm& now) {
    const std::string_view text = title.substr(0, title.find("  "));
    if (!text.starts_with(clockOption)) {
        return std::string(text);
    }
    std::array<char, 16> date{};
    const std::size_t length = std::strftime(date.data(), date.size(), "%m%d%H%M", &now);
    return std::string(clockOption).append(date.data(), length);
}

std::uint16_t unitPortForText(std::optional<std::string_view> devicePort) {
    if (!devicePort.has_value() || devicePort->empty()) {
        return defaultUnitPort;
    }
    return static_cast<std::uint16_t>(integerValue(*devicePort));
}

} // namespace kx
