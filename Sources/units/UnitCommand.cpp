#include "units/UnitCommand.h"

#include "addresses/CharacterClass.h"
#include "addresses/IPv4Address.h"
#include "support/TextEncoding.h"
#include "units/IdentityText.h"

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

// A negative number is written as the 32 bits that hold it.
std::string hexNumber(std::int32_t number, int leastDigits) {
    std::array<char, 16> digits{};
    const int length = std::snprintf(digits.data(), digits.size(), "%0*X", leastDigits,
                                     static_cast<unsigned>(number));
    return {digits.data(), static_cast<std::size_t>(length)};
}

std::optional<std::string> unitIDArgument(std::string_view typed) {
    const ByteView bytes = bytesOfText(typed);
    if (!isValidUTF8(bytes)) {
        return std::nullopt;
    }
    if (isUnitNumber(typed)) {
        return hexNumber(integerValue(typed), 12);
    }
    return hexStringForData(bytes, "");
}

} // namespace

std::uint16_t listeningPortForText(std::string_view typed) {
    const std::int32_t port = integerValue(typed);
    const bool isAllowed = port >= defaultUnitPort && port <= lastListeningPort;
    return isAllowed ? static_cast<std::uint16_t>(port) : defaultUnitPort;
}

bool isUnitNumber(std::string_view typed) {
    return !typed.empty() && isDigit(typed.front());
}

std::optional<std::string> argumentForText(ValueForm form, std::string_view typed) {
    switch (form) {
    case ValueForm::hardwareAddress:
        return withoutCharacter(typed, ':');
    case ValueForm::serialNumber:
        return withoutCharacter(typed, ' ');
    case ValueForm::ipv4Address:
        return hexNumber(static_cast<std::int32_t>(ipForString(typed)), 8);
    case ValueForm::listeningPort:
        return hexNumber(listeningPortForText(typed), 4);
    case ValueForm::anyPort:
        return hexNumber(integerValue(typed), 4);
    case ValueForm::unitID:
        return unitIDArgument(typed);
    case ValueForm::none:
        break;
    }
    return std::nullopt;
}

std::optional<std::string> editCommand(UnitParameter parameter, std::string_view typed) {
    const ParameterDescription& description = descriptionOf(parameter);
    const auto argument = argumentForText(description.form, typed);
    if (!description.isEditable() || !argument.has_value()) {
        return std::nullopt;
    }
    std::string command(commandPrefix);
    command += description.commandLetter;
    return command += *argument;
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
