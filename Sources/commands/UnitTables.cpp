#include "commands/UnitTables.h"

#include "addresses/IPv4Address.h"
#include "commands/TextTable.h"
#include "files/CSV.h"
#include "support/VisibleText.h"
#include "units/ExactEdit.h"
#include "units/IdentityText.h"

#include <algorithm>
#include <array>

namespace kx {

namespace {

constexpr std::array shownParameters{
    UnitParameter::serialNumber,          UnitParameter::unitID,
    UnitParameter::internalIPAddress,     UnitParameter::internalMACAddress,
    UnitParameter::destinationIPAddress,  UnitParameter::destinationMACAddress,
    UnitParameter::destinationPortNumber, UnitParameter::devicePortNumber,
};
static_assert(shownParameters.size() == unitParameterCount);

std::string nameOfInterface(const std::vector<HostInterface>& interfaces, std::uint32_t link) {
    const auto found = std::ranges::find(interfaces, link, &HostInterface::link);
    return link != 0 && found != interfaces.end() ? found->name : std::string();
}

std::string bytesOfUnitID(const HeardUnit& unit) {
    return unit.unitIDBytes.has_value() ? hexStringForData(*unit.unitIDBytes, "") : std::string();
}

bool hasOnlyVisibleCharacters(std::string_view text) {
    return visibleText(text) == text;
}

std::string csvValue(const HeardUnit& unit, UnitParameter parameter) {
    std::string text = shownValue(unit, parameter);
    if (parameter != UnitParameter::unitID) {
        return text;
    }
    const auto edit = exactEdit(parameter, text);
    const auto* const exact = std::get_if<ExactEdit>(&edit);
    const bool isReadBack = exact != nullptr && !exact->isChanged &&
                            exact->unitIDBytes == unit.unitIDBytes &&
                            hasOnlyVisibleCharacters(text);
    return isReadBack ? text : std::string();
}

} // namespace

std::string shownValue(const HeardUnit& unit, UnitParameter parameter) {
    if (parameter != UnitParameter::unitID) {
        return std::string(unit.record.value(parameter).value_or(std::string_view()));
    }
    const auto text = unitIDText(unit.record);
    return text.has_value() ? std::string(*text) : bytesOfUnitID(unit);
}

std::string tableOfUnits(const UnitList& units, const std::vector<HostInterface>& interfaces,
                         bool isBold) {
    constexpr std::array columns{
        UnitParameter::serialNumber,         UnitParameter::unitID,
        UnitParameter::internalIPAddress,    UnitParameter::devicePortNumber,
        UnitParameter::destinationIPAddress, UnitParameter::destinationPortNumber,
    };
    std::vector<std::string> heads;
    heads.reserve(columns.size() + 1);
    for (const UnitParameter column : columns) {
        heads.emplace_back(descriptionOf(column).identifier);
    }
    heads.emplace_back("interface");
    TextTable table(std::move(heads));
    for (const HeardUnit* const unit : units) {
        std::vector<std::string> row;
        row.reserve(columns.size() + 1);
        for (const UnitParameter column : columns) {
            row.push_back(shownValue(*unit, column));
        }
        row.push_back(nameOfInterface(interfaces, unit->link));
        table.addRow(std::move(row));
    }
    return table.text(isBold);
}

std::string parametersOfUnit(const HeardUnit& unit, const std::vector<HostInterface>& interfaces) {
    const auto line = [](std::string_view name, std::string_view value) {
        constexpr std::size_t width = 18;
        std::string text(name);
        text.append(width - std::min(name.size(), width - 1), ' ');
        return text + visibleText(value) + "\n";
    };
    std::string text;
    for (const UnitParameter parameter : shownParameters) {
        text += line(descriptionOf(parameter).identifier, shownValue(unit, parameter));
    }
    text += line("source-ip", stringForIP(unit.sender));
    text += line("interface", nameOfInterface(interfaces, unit.link));
    return text;
}

std::string csvOfUnits(const UnitList& units, const std::vector<HostInterface>& interfaces) {
    std::vector<std::string> fields;
    fields.reserve(shownParameters.size() + 4);
    for (const UnitParameter parameter : shownParameters) {
        fields.emplace_back(descriptionOf(parameter).identifier);
    }
    fields.insert(fields.end(), {"unit_id_bytes", "source_ip", "interface", "answered_ms"});
    std::string text = csvRecord(fields);
    for (const HeardUnit* const unit : units) {
        fields.clear();
        for (const UnitParameter parameter : shownParameters) {
            fields.push_back(csvValue(*unit, parameter));
        }
        fields.push_back(bytesOfUnitID(*unit));
        fields.push_back(stringForIP(unit->sender));
        fields.push_back(nameOfInterface(interfaces, unit->link));
        fields.push_back(std::to_string(unit->answered.count()));
        text += csvRecord(fields);
    }
    return text;
}

} // namespace kx
