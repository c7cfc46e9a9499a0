#include "commands/UnitTables.h"

#include "addresses/IPv4Address.h"
#include "commands/TextTable.h"
#include "support/VisibleText.h"

#include <array>

namespace kx {

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
    for (const UnitParameter parameter : exportedParameters) {
        text += line(descriptionOf(parameter).identifier, shownValue(unit, parameter));
    }
    text += line("source-ip", stringForIP(unit.sender));
    text += line("interface", nameOfInterface(interfaces, unit.link));
    return text;
}

} // namespace kx
