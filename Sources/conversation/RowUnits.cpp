#include "conversation/RowUnits.h"

#include <algorithm>

namespace kx {

namespace {

std::size_t numberOf(UnitParameter parameter) {
    const auto* const found = std::ranges::find(exclusiveParameters, parameter);
    return static_cast<std::size_t>(found - exclusiveParameters.begin());
}

using Places = UnitsByValue::Places;
using IsUnit = bool (*)(const HeardUnit& unit, const UnitIdentity& identity);

// An unknown hardware address may be any.
bool mayBe(const HeardUnit& unit, const UnitIdentity& identity) {
    return identity.hardwareAddress.empty() || unit.hardwareAddress().empty() ||
           unit.hardwareAddress() == identity.hardwareAddress;
}

bool isSurely(const HeardUnit& unit, const UnitIdentity& identity) {
    return unit.hardwareAddress() == identity.hardwareAddress;
}

Places unitsWithIdentities(const std::vector<UnitIdentity>& identities, const UnitsByValue& units,
                           IsUnit isUnit) {
    Places found;
    for (const UnitIdentity& identity : identities) {
        for (const std::size_t place :
             units.telling(UnitParameter::serialNumber, identity.serialNumber)) {
            if (isUnit(*units.units()[place], identity) &&
                std::ranges::find(found, place) == found.end()) {
                found.push_back(place);
            }
        }
    }
    return found;
}

Places byIdentities(const WantedRow& row, const UnitsByValue& units) {
    return unitsWithIdentities(row.identities, units, mayBe);
}

Places byFormerIdentities(const WantedRow& row, const UnitsByValue& units) {
    return unitsWithIdentities(row.formerIdentities, units, isSurely);
}

Places bySerialNumber(const WantedRow& row, const UnitsByValue& units) {
    return row.identities.empty() ? units.telling(UnitParameter::serialNumber, row.serialNumber)
                                  : Places();
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

const Places& UnitsByValue::telling(UnitParameter parameter, std::string_view value) const {
    static const Places none;
    const auto& places = _places.at(numberOf(parameter));
    const auto found = places.find(value);
    return found != places.end() ? found->second : none;
}

std::vector<Places> unitsOfRows(const std::vector<WantedRow>& rows, const UnitsByValue& units) {
    std::vector<Places> found(rows.size());
    std::vector<bool> isFound(units.units().size(), false);
    // Each way leaves out the units that the ways before it have found.
    for (const auto way : {byIdentities, byFormerIdentities, bySerialNumber}) {
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (found[i].empty()) {
                found[i] = way(rows[i], units);
                std::erase_if(found[i], [&isFound](std::size_t place) { return isFound[place]; });
            }
        }
        for (const Places& places : found) {
            for (const std::size_t place : places) {
                isFound[place] = true;
            }
        }
    }
    return found;
}

} // namespace kx
