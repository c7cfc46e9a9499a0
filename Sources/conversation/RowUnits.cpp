#include "conversation/RowUnits.h"

#include <algorithm>

namespace kx {

namespace {

std::size_t numberOf(UnitParameter parameter) {
    const auto* const found = std::ranges::find(exclusiveParameters, parameter);
    return static_cast<std::size_t>(found - exclusiveParameters.begin());
}

bool hasHardwareAddress(const HeardUnit& unit, const std::string& address) {
    return address.empty() || unit.hardwareAddress().empty() || unit.hardwareAddress() == address;
}

UnitsByValue::Places unitsWithIdentities(const std::vector<UnitIdentity>& identities,
                                         const UnitsByValue& units) {
    UnitsByValue::Places found;
    for (const UnitIdentity& identity : identities) {
        for (const std::size_t place :
             units.telling(UnitParameter::serialNumber, identity.serialNumber)) {
            if (hasHardwareAddress(*units.units()[place], identity.hardwareAddress) &&
                std::ranges::find(found, place) == found.end()) {
                found.push_back(place);
            }
        }
    }
    return found;
}

} // namespace

UnitsByValue::UnitsByValue(const HeardUnits& heard)
    : _units(heard.all()) {
    for (std::size_t place = 0; place < _units.size(); ++place) {
        for (const UnitParameter parameter : exclusiveParameters) {
            if (const auto value = _units[place]->record.value(parameter)) {
                _places.at(numberOf(parameter))[*value].push_back(place);
            }
        }
    }
}

const UnitsByValue::Places& UnitsByValue::telling(UnitParameter parameter,
                                                  std::string_view value) const {
    static const Places none;
    const auto& places = _places.at(numberOf(parameter));
    const auto found = places.find(value);
    return found != places.end() ? found->second : none;
}

std::vector<UnitsByValue::Places> unitsOfRows(const std::vector<WantedRow>& rows,
                                              const UnitsByValue& units) {
    std::vector<UnitsByValue::Places> found(rows.size());
    std::vector<bool> isIdentified(units.units().size(), false);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        found[i] = unitsWithIdentities(rows[i].identities, units);
        for (const std::size_t place : found[i]) {
            isIdentified[place] = true;
        }
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].identities.empty()) {
            found[i] = units.telling(UnitParameter::serialNumber, rows[i].serialNumber);
            std::erase_if(found[i], [&](std::size_t place) { return isIdentified[place]; });
        }
    }
    return found;
}

} // namespace kx
