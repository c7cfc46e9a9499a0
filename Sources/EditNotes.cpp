#include "EditNotes.h"

#include "CommandProtocol.h"
#include "IdentityText.h"
#include "addresses/CharacterClass.h"
#include "addresses/IPv4Address.h"
#include "support/LocalizedText.h"
#include "support/TextEncoding.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace kx {

namespace {

constexpr std::size_t mostShownCharacters = 32;
constexpr std::int32_t highestPort = 65535;
constexpr std::int32_t highestUnitNumber = 255; // greater ones do not show as numbers

bool isContinuationByte(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

bool isControlCharacter(char byte) {
    return static_cast<unsigned char>(byte) < 0x20U || byte == 0x7F;
}

// The number in front, as it was typed: sign and digits, or nothing without a digit.
std::string_view numberInFront(std::string_view typed) {
    typed.remove_prefix(std::min(typed.find_first_not_of(" \t\n\v\f\r"), typed.size()));
    std::size_t end = typed.starts_with('-') || typed.starts_with('+') ? 1 : 0;
    const std::size_t firstDigit = end;
    while (end < typed.size() && isDigit(typed[end])) {
        ++end;
    }
    return end > firstDigit ? typed.substr(0, end) : std::string_view();
}

bool isOnlyHexDigits(std::string_view text) {
    return std::all_of(text.begin(), text.end(), isHexDigit);
}

// "00:1A:2B:3C:4D:5E" from twelve digits.
std::string grouped(std::string_view digits, char separator) {
    std::string result;
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        if (i > 0) {
            result += separator;
        }
        result += digits.substr(i, 2);
    }
    return result;
}

std::string noteOfMACAddress(UnitParameter parameter, std::string_view typed,
                             const std::string& command) {
    const std::string digits = macAddressArgument(typed);
    if (!isOnlyHexDigits(digits)) {
        return localizedText("Apply sends %@, though a MAC address has 12 hexadecimal digits and "
                             "nothing else but colons.",
                             {command});
    }
    if (digits.size() != 2 * identityLength) {
        return localizedText(
            "Apply sends %@, though a MAC address has 12 hexadecimal digits and this "
            "has %d.",
            {command, static_cast<long long>(digits.size())});
    }
    const std::string address = grouped(digits, ':');
    return parameter == UnitParameter::internalMACAddress
               ? localizedText("Apply sends %@: internal MAC address %@.", {command, address})
               : localizedText("Apply sends %@: destination MAC address %@.", {command, address});
}

std::string noteOfSerialNumber(std::string_view typed, const std::string& command) {
    const std::string digits = serialNumberArgument(typed);
    if (!isOnlyHexDigits(digits)) {
        return localizedText("Apply sends %@, though a serial number has 12 hexadecimal digits and "
                             "nothing else but blanks.",
                             {command});
    }
    if (digits.size() != 2 * identityLength) {
        return localizedText("Apply sends %@, though a serial number has 12 hexadecimal digits and "
                             "this has %d.",
                             {command, static_cast<long long>(digits.size())});
    }
    return localizedText("Apply sends %@: serial number %@.", {command, grouped(digits, ' ')});
}

std::string noteOfDestinationIPAddress(std::string_view typed, const std::string& command) {
    const std::string address = stringForIP(ipForString(typed));
    if (address == typed) {
        return localizedText("Apply sends %@: destination IP address %@.", {command, address});
    }
    if (ipForString(typed) == 0) {
        return localizedText(
            "Apply sends %@: destination IP address 0.0.0.0, because “%@” is not an "
            "IPv4 address.",
            {command, shownInNote(typed)});
    }
    return localizedText(
        "Apply sends %@: destination IP address %@, because that is how “%@” is read.",
        {command, address, shownInNote(typed)});
}

// The ARP tool gets the address as it was typed, whatever the command makes of it.
std::string noteOfARPEntry(std::string_view typed, const CommandTarget& target) {
    if (!target.hardwareAddress.has_value()) {
        return localizedText(
            "Apply asks for administrator rights, but no MAC address is known for an "
            "ARP entry.");
    }
    if (!asciiBytes(typed).has_value()) {
        return localizedText("Apply asks for administrator rights, but an ARP entry can hold ASCII "
                             "characters only.");
    }
    if (stringForIP(ipForString(typed)) != typed) {
        return localizedText("Apply hands “%@” and %@ to the ARP tool, which needs administrator "
                             "rights.",
                             {shownInNote(typed), *target.hardwareAddress});
    }
    return localizedText(
        "Apply enters %@ at %@ in the ARP cache, which needs administrator rights.",
        {typed, *target.hardwareAddress});
}

std::string noteOfInternalIPAddress(std::string_view typed, const std::string& command,
                                    const CommandTarget& target) {
    const std::string address = stringForIP(ipForString(typed));
    std::string note = noteOfARPEntry(typed, target) + ' ';
    if (!target.unitIsSelected) {
        note += localizedText("No unit is selected.") + ' ';
    }
    if (address == typed) {
        note += localizedText("It sends %@ to %@.", {command, address});
    } else if (ipForString(typed) == 0) {
        note += localizedText("It sends %@ to 0.0.0.0, because “%@” is not an IPv4 address.",
                              {command, shownInNote(typed)});
    } else {
        note += localizedText("It sends %@ to %@, because that is how “%@” is read.",
                              {command, address, shownInNote(typed)});
    }
    return note;
}

std::string noteOfDestinationPort(std::string_view typed, const std::string& command) {
    const std::int32_t port = integerValue(typed);
    const std::string_view number = numberInFront(typed);
    if (number.empty()) {
        return localizedText(
            "Apply sends %@: destination port 3520, because “%@” does not begin with "
            "a number.",
            {command, shownInNote(typed)});
    }
    if (port < defaultUnitPort || port > lastDestinationPort) {
        return localizedText("Apply sends %@: destination port 3520, because %@ is outside 3520 to "
                             "3523.",
                             {command, shownInNote(number)});
    }
    if (typed != std::to_string(port)) {
        return localizedText(
            "Apply sends %@: destination port %d, because that is how “%@” is read.",
            {command, port, shownInNote(typed)});
    }
    return localizedText("Apply sends %@: destination port %d.", {command, port});
}

std::string noteOfDevicePort(std::string_view typed, const std::string& command) {
    const std::int32_t port = integerValue(typed);
    const std::string_view number = numberInFront(typed);
    if (number.empty()) {
        return localizedText(
            "Apply sends %@: device port 0, because “%@” does not begin with a number.",
            {command, shownInNote(typed)});
    }
    if (port < 0 || port > highestPort) {
        return localizedText("Apply sends %@, more than the four digits of a port, because %@ is "
                             "outside 0 to 65535.",
                             {command, shownInNote(number)});
    }
    if (typed != std::to_string(port)) {
        return localizedText("Apply sends %@: device port %d, because that is how “%@” is read.",
                             {command, port, shownInNote(typed)});
    }
    return localizedText("Apply sends %@: device port %d.", {command, port});
}

std::string noteOfUnitNumber(std::string_view typed, const std::string& command) {
    const std::int32_t number = integerValue(typed);
    if (number > highestUnitNumber) {
        return localizedText(
            "Apply sends %@: the number %d, which does not show as a number because "
            "it is above 255.",
            {command, number});
    }
    if (typed != std::to_string(number)) {
        return localizedText("Apply sends %@: unit ID %d, because that is how “%@” is read.",
                             {command, number, shownInNote(typed)});
    }
    return localizedText("Apply sends %@: unit ID %d.", {command, number});
}

std::string noteOfUnitID(std::string_view typed, const std::string& command) {
    if (isDigit(typed.front())) {
        return noteOfUnitNumber(typed, command);
    }
    if (typed.size() != identityLength) {
        return localizedText(
            "Apply sends %@: the text “%@”, though a unit ID has 6 bytes and this has "
            "%d.",
            {command, shownInNote(typed), static_cast<long long>(typed.size())});
    }
    return localizedText("Apply sends %@: unit ID “%@”.", {command, shownInNote(typed)});
}

std::string noteOfEditThatIsRefused(CommandRefusal refusal) {
    switch (refusal) {
    case CommandRefusal::emptyValue:
        return localizedText("Apply sends nothing: the value is empty.");
    case CommandRefusal::notUTF8:
        return localizedText("Apply sends nothing: the unit ID is not a text in UTF-8.");
    case CommandRefusal::noUnit:
        return localizedText("Apply sends nothing: no unit is selected.");
    case CommandRefusal::notASCII:
        return localizedText("Apply sends nothing: a command can hold ASCII characters only.");
    case CommandRefusal::noAddress:
        break;
    }
    return localizedText("Apply sends nothing: the address of the unit is not known.");
}

} // namespace

std::optional<CommandRefusal> refusalOfCommand(std::string_view command,
                                               const CommandTarget& target) {
    if (!target.unitIsSelected) {
        return CommandRefusal::noUnit;
    }
    if (!asciiBytes(command).has_value()) {
        return CommandRefusal::notASCII;
    }
    return target.address.has_value() ? std::nullopt : std::optional(CommandRefusal::noAddress);
}

std::optional<CommandRefusal> refusalOfEdit(UnitParameter parameter, std::string_view typed,
                                            const CommandTarget& target) {
    if (typed.empty()) {
        return CommandRefusal::emptyValue;
    }
    if (parameter == UnitParameter::internalIPAddress) {
        return std::nullopt;
    }
    const auto command = editCommand(parameter, typed);
    return command.has_value() ? refusalOfCommand(*command, target)
                               : std::optional(CommandRefusal::notUTF8);
}

std::string noteOfRefusal(CommandRefusal refusal) {
    switch (refusal) {
    case CommandRefusal::emptyValue:
        return localizedText("Not sent: the value is empty.");
    case CommandRefusal::notUTF8:
        return localizedText("Not sent: the unit ID is not a text in UTF-8.");
    case CommandRefusal::noUnit:
        return localizedText("Not sent: no unit is selected.");
    case CommandRefusal::notASCII:
        return localizedText("Not sent: a command can hold ASCII characters only.");
    case CommandRefusal::noAddress:
        break;
    }
    return localizedText("Not sent: the address of the unit is not known.");
}

std::string noteOfEdit(UnitParameter parameter, std::string_view typed,
                       const CommandTarget& target) {
    if (const auto refusal = refusalOfEdit(parameter, typed, target)) {
        return noteOfEditThatIsRefused(*refusal);
    }
    const std::string command = shownInNote(editCommand(parameter, typed).value_or(""));
    switch (parameter) {
    case UnitParameter::internalMACAddress:
    case UnitParameter::destinationMACAddress:
        return noteOfMACAddress(parameter, typed, command);
    case UnitParameter::internalIPAddress:
        return noteOfInternalIPAddress(typed, command, target);
    case UnitParameter::destinationIPAddress:
        return noteOfDestinationIPAddress(typed, command);
    case UnitParameter::destinationPortNumber:
        return noteOfDestinationPort(typed, command);
    case UnitParameter::devicePortNumber:
        return noteOfDevicePort(typed, command);
    case UnitParameter::serialNumber:
        return noteOfSerialNumber(typed, command);
    case UnitParameter::unitID:
        break;
    }
    return noteOfUnitID(typed, command);
}

std::string shownInNote(std::string_view text) {
    const bool isText = isValidUTF8(bytesOfText(text)); // otherwise each byte counts
    std::string shown;
    std::size_t characters = 0;
    for (const char byte : text) {
        const bool isCounted = !isText || !isContinuationByte(byte);
        if (isCounted && ++characters > mostShownCharacters) {
            return shown + "…";
        }
        if (isControlCharacter(byte)) {
            shown += "\uFFFD";
        } else {
            shown += byte;
        }
    }
    return shown;
}

} // namespace kx
