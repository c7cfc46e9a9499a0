#include "units/ParameterEdit.h"

#include "addresses/CharacterClass.h"
#include "addresses/IPv4Address.h"
#include "support/TextEncoding.h"
#include "units/IdentityText.h"
#include "units/UnitCommand.h"

#include <algorithm>
#include <cstdint>

namespace kx {

namespace {

constexpr std::int32_t highestPort = 65535;

std::string argumentOf(const ParameterEdit& edit) {
    return edit.command.substr(commandPrefix.size() + 1);
}

bool isOnlyHexDigits(std::string_view text) {
    return std::ranges::all_of(text, isHexDigit);
}

// The six bytes of twelve hexadecimal digits.
Bytes sixBytesOfDigits(std::string_view digits) {
    Bytes bytes;
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        bytes.push_back(static_cast<std::uint8_t>(hexDigitValue(digits[i]) << 4U |
                                                  hexDigitValue(digits[i + 1])));
    }
    return bytes;
}

// For example "00:1a:2B:3C:4D:5E" from twelve digits.
std::string grouped(std::string_view digits, std::string_view separator) {
    std::string result;
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        result += i > 0 ? separator : std::string_view();
        result += digits.substr(i, 2);
    }
    return result;
}

// Takes six octets that were typed as twelve hexadecimal digits.
void takeOctets(ParameterEdit& edit, std::string_view separator) {
    edit.value = argumentOf(edit);
    if (!isOnlyHexDigits(edit.value)) {
        edit.change = ValueChange::notHexadecimal;
    } else if (edit.value.size() != 2 * identityLength) {
        edit.change = ValueChange::wrongLength;
    } else {
        edit.expectedText = hexStringForData(sixBytesOfDigits(edit.value), separator);
        edit.value = grouped(edit.value, separator);
    }
}

// Whether a text that is read as 0 really names this address, as "000.0.0.0" does. The other reason
// for 0 is a text that cannot be read. With another digit a readable text gives another address.
bool isReadAsZero(std::string_view typed) {
    std::string changed(typed);
    const std::size_t digit = changed.find('0');
    if (digit == std::string::npos) {
        return false;
    }
    changed[digit] = '1';
    return ipForString(changed) != 0;
}

void takeAddress(ParameterEdit& edit) {
    const std::uint32_t address = ipForString(edit.typed);
    edit.value = stringForIP(address);
    edit.expectedText = edit.value;
    if (edit.value == edit.typed) {
        return;
    }
    const bool isNone = address == 0 && !isReadAsZero(edit.typed);
    edit.change = isNone ? ValueChange::notAnAddress : ValueChange::readAs;
}

// Takes a port. The command carries `sent` for the number that was typed.
void takePort(ParameterEdit& edit, std::int32_t sent, bool isInRange) {
    edit.value = std::to_string(sent);
    if (leadingNumber(edit.typed).empty()) {
        edit.change = ValueChange::notANumber;
    } else if (!isInRange) {
        edit.change = ValueChange::outOfRange;
    } else if (edit.typed != edit.value) {
        edit.change = ValueChange::readAs;
    }
}

void takeListeningPort(ParameterEdit& edit) {
    const std::int32_t sent = listeningPortForText(edit.typed);
    takePort(edit, sent, sent == integerValue(edit.typed));
    edit.expectedText = edit.value;
}

void takeAnyPort(ParameterEdit& edit) {
    const std::int32_t sent = integerValue(edit.typed);
    const bool isPort = sent >= 0 && sent <= highestPort;
    takePort(edit, sent, isPort);
    if (isPort) {
        edit.expectedText = edit.value;
    }
}

void takeUnitNumber(ParameterEdit& edit) {
    const std::int32_t number = integerValue(edit.typed);
    edit.value = std::to_string(number);
    if (const auto text = unitIDforData(sixBytesOfDigits(argumentOf(edit)))) {
        edit.expectedText = withoutTrailingZeroBytes(*text);
    }
    if (number > highestUnitNumber) {
        edit.change = ValueChange::notShown;
    } else if (edit.typed != edit.value) {
        edit.change = ValueChange::readAs;
    }
}

void takeUnitID(ParameterEdit& edit) {
    if (isUnitNumber(edit.typed)) {
        takeUnitNumber(edit);
        return;
    }
    edit.value = edit.typed;
    edit.expectedText = withoutTrailingZeroBytes(edit.typed);
    if (edit.typed.size() != identityLength) {
        edit.change = ValueChange::wrongLength;
    }
}

void takeValue(ParameterEdit& edit) {
    switch (descriptionOf(edit.parameter).form) {
    case ValueForm::hardwareAddress:
        return takeOctets(edit, ":");
    case ValueForm::serialNumber:
        return takeOctets(edit, " ");
    case ValueForm::ipv4Address:
        return takeAddress(edit);
    case ValueForm::listeningPort:
        return takeListeningPort(edit);
    case ValueForm::anyPort:
        return takeAnyPort(edit);
    case ValueForm::unitID:
    case ValueForm::none:
        break;
    }
    takeUnitID(edit);
}

} // namespace

std::variant<ParameterEdit, EditRefusal> editOfParameter(UnitParameter parameter,
                                                         std::string_view typed) {
    if (typed.empty()) {
        return EditRefusal::emptyValue;
    }
    auto command = editCommand(parameter, typed);
    if (!command.has_value()) {
        return descriptionOf(parameter).isEditable() ? EditRefusal::notUTF8
                                                     : EditRefusal::notEditable;
    }
    ParameterEdit edit;
    edit.parameter = parameter;
    edit.typed = typed;
    edit.command = std::move(*command);
    takeValue(edit);
    return edit;
}

std::string_view leadingNumber(std::string_view typed) {
    typed.remove_prefix(std::min(typed.find_first_not_of(" \t\n\v\f\r"), typed.size()));
    std::size_t end = typed.starts_with('-') || typed.starts_with('+') ? 1 : 0;
    const std::size_t firstDigit = end;
    while (end < typed.size() && isDigit(typed[end])) {
        ++end;
    }
    return end > firstDigit ? typed.substr(0, end) : std::string_view();
}

std::string_view withoutTrailingZeroBytes(std::string_view text) {
    const std::size_t last = text.find_last_not_of('\0');
    return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

} // namespace kx
