// The parameters of a unit: one table with a row for each, in the order in which people see them.
//
// Everything that depends on a parameter is made from its row: the decoder of replies, the
// commands, the value that a unit should show after an edit, the names in tables and on the command
// line. A parameter with an incomplete row does not compile. The dissector, the simulated units,
// the help and docs/protocol.md are written separately, and tested against the table.
//
// Everything here is constant and may be used from any thread.

#pragma once

#include "support/LocalizedText.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

// Ordered by name, without regard to case.
enum class UnitParameter : std::uint8_t {
    destinationIPAddress,
    destinationMACAddress,
    destinationPortNumber,
    devicePortNumber,
    internalIPAddress,
    internalMACAddress,
    serialNumber,
    unitID,
    end, // no parameter; equals the number of parameters
};

inline constexpr std::size_t unitParameterCount = static_cast<std::size_t>(UnitParameter::end);

constexpr std::size_t indexOf(UnitParameter parameter) {
    return static_cast<std::size_t>(parameter);
}

// The form of a value: its bytes in a reply, with numbers in network byte order, and its text.
enum class ValueForm : std::uint8_t {
    none,            // not set
    hardwareAddress, // six bytes: "00:1A:2B:3C:4D:5E"
    serialNumber,    // six bytes: "01 02 03 04 05 06"
    ipv4Address,     // four bytes: "192.168.1.10"
    listeningPort,   // two bytes: "3520"; a command gives one of the four that a host listens on
    anyPort,         // two bytes: "10000"; a command gives any number
    unitID,          // six bytes: unitIDforData() has the text
};

// The number of bytes of a value in a reply.
constexpr std::size_t lengthOfValue(ValueForm form) {
    switch (form) {
    case ValueForm::none:
        return 0;
    case ValueForm::ipv4Address:
        return 4;
    case ValueForm::listeningPort:
    case ValueForm::anyPort:
        return 2;
    case ValueForm::hardwareAddress:
    case ValueForm::serialNumber:
    case ValueForm::unitID:
        break;
    }
    return 6;
}

struct ParameterDescription {
    UnitParameter parameter = UnitParameter::end;
    std::string_view name;       // in records and tables; the key of the localized name
    std::string_view phrase;     // name and value within a sentence, also a key: "device port %@"
    std::string_view identifier; // for scripts; never translated
    std::string_view tag;        // stands before the value in a reply: a letter between "<" and ">"
    char commandLetter = 0;      // letter of the command that changes it; 0 when there is none
    ValueForm form = ValueForm::none;

    constexpr bool isEditable() const { return commandLetter != 0; }
};

inline constexpr std::array<ParameterDescription, unitParameterCount> parameterTable{{
    {UnitParameter::destinationIPAddress, localizedKey("destination IP address"),
     localizedKey("destination IP address %@"), "destination-ip", "<D>", 'D',
     ValueForm::ipv4Address},
    {UnitParameter::destinationMACAddress, localizedKey("destination MAC address"),
     localizedKey("destination MAC address %@"), "destination-mac", "<C>", 'C',
     ValueForm::hardwareAddress},
    {UnitParameter::destinationPortNumber, localizedKey("destination Port number"),
     localizedKey("destination port %@"), "destination-port", "<T>", 'T', ValueForm::listeningPort},
    {UnitParameter::devicePortNumber, localizedKey("device Port number"),
     localizedKey("device port %@"), "device-port", "<P>", 'P', ValueForm::anyPort},
    {UnitParameter::internalIPAddress, localizedKey("internal IP address"),
     localizedKey("internal IP address %@"), "internal-ip", "<I>", 'I', ValueForm::ipv4Address},
    {UnitParameter::internalMACAddress, localizedKey("internal MAC address"),
     localizedKey("internal MAC address %@"), "internal-mac", "<M>", 'M',
     ValueForm::hardwareAddress},
    {UnitParameter::serialNumber, localizedKey("serial number"), localizedKey("serial number %@"),
     "serial", "<S>", 'S', ValueForm::serialNumber},
    {UnitParameter::unitID, localizedKey("unit ID"), localizedKey("unit ID %@"), "unit-id", "<U>",
     'U', ValueForm::unitID},
}};

constexpr const ParameterDescription& descriptionOf(UnitParameter parameter) {
    return parameterTable[indexOf(parameter)];
}

constexpr std::string_view nameOfUnitParameter(UnitParameter parameter) {
    return descriptionOf(parameter).name;
}

inline constexpr std::array<UnitParameter, unitParameterCount> allUnitParameters = [] {
    std::array<UnitParameter, unitParameterCount> all{};
    std::ranges::transform(parameterTable, all.begin(), &ParameterDescription::parameter);
    return all;
}();

// The parameter with exactly this name, case included; absent when there is none.
constexpr std::optional<UnitParameter> unitParameterForName(std::string_view name) {
    const auto* const found = std::ranges::find(parameterTable, name, &ParameterDescription::name);
    return found == parameterTable.end() ? std::nullopt : std::optional(found->parameter);
}

// --- Checks of the table ---

namespace detail {

constexpr char lowered(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

constexpr bool comesBefore(std::string_view left, std::string_view right) {
    return std::ranges::lexicographical_compare(left, right, {}, lowered, lowered);
}

constexpr bool isWhole(const ParameterDescription& row) {
    return !row.name.empty() && row.phrase.ends_with("%@") && !row.identifier.empty() &&
           row.form != ValueForm::none && row.tag.size() == 3 && row.tag.front() == '<' &&
           row.tag.back() == '>';
}

constexpr bool everyRowIsWholeAndInPlace() {
    for (std::size_t i = 0; i < parameterTable.size(); ++i) {
        if (!isWhole(parameterTable[i]) || indexOf(parameterTable[i].parameter) != i) {
            return false;
        }
    }
    return true;
}

constexpr bool rowsAreInTheOrderThatPeopleSee() {
    return std::ranges::is_sorted(parameterTable, comesBefore, &ParameterDescription::name);
}

// No two parameters can be mistaken for each other.
constexpr bool rowsDiffer() {
    for (const auto& row : parameterTable) {
        const auto isAlike = [&row](const ParameterDescription& other) {
            return row.name == other.name || row.identifier == other.identifier ||
                   row.tag == other.tag ||
                   (row.isEditable() && row.commandLetter == other.commandLetter);
        };
        if (std::ranges::count_if(parameterTable, isAlike) != 1) {
            return false;
        }
    }
    return true;
}

static_assert(everyRowIsWholeAndInPlace());
static_assert(rowsAreInTheOrderThatPeopleSee());
static_assert(rowsDiffer());

} // namespace detail

} // namespace kx
