#include "files/UnitCSV.h"

#include "addresses/IPv4Address.h"
#include "files/CSV.h"
#include "files/SpreadsheetText.h"
#include "files/UnitTableReader.h"
#include "units/IdentityText.h"

#include <algorithm>

namespace kx {

namespace {

static_assert(exportedParameters.size() == unitParameterCount);

std::string bytesOfUnitID(const HeardUnit& unit) {
    return unit.unitIDBytes.has_value() ? hexStringForData(*unit.unitIDBytes, "") : std::string();
}

std::string csvValue(const HeardUnit& unit, UnitParameter parameter) {
    std::string text = shownValue(unit, parameter);
    if (parameter != UnitParameter::unitID) {
        return text;
    }
    const auto edit = editOfCell(parameter, text);
    const auto* const exact = std::get_if<ExactEdit>(&edit);
    const bool isReadBack =
        exact != nullptr && exact->unitIDBytes == unit.unitIDBytes && isKeptBySpreadsheets(text);
    return isReadBack ? text : std::string();
}

} // namespace

std::string shownValue(const HeardUnit& unit, UnitParameter parameter) {
    return shownText(unit.record, unit.unitIDBytes, parameter).value_or("");
}

std::string nameOfInterface(const std::vector<HostInterface>& interfaces, std::uint32_t link) {
    const auto found = std::ranges::find(interfaces, link, &HostInterface::link);
    return link != 0 && found != interfaces.end() ? found->name : std::string();
}

std::string csvOfUnits(const UnitList& units, const std::vector<HostInterface>& interfaces) {
    std::vector<std::string> fields;
    fields.reserve(exportedParameters.size() + exportedFacts.size());
    for (const UnitParameter parameter : exportedParameters) {
        fields.emplace_back(descriptionOf(parameter).identifier);
    }
    fields.insert(fields.end(), exportedFacts.begin(), exportedFacts.end());
    std::string text = csvRecord(fields);
    for (const HeardUnit* const unit : units) {
        fields.clear();
        for (const UnitParameter parameter : exportedParameters) {
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
