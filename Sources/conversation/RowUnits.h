// The units that the rows of a table mean, among all that have answered.
//
// Pure; any thread. The results refer to the units that have answered, which must outlive them and
// stay as they are.

#pragma once

#include "conversation/HeardUnits.h"
#include "conversation/UnitPlan.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kx {

// The parameters of which no two units of a network may have the same value.
inline constexpr std::array exclusiveParameters{UnitParameter::internalIPAddress,
                                                UnitParameter::internalMACAddress,
                                                UnitParameter::serialNumber};

// Units by the values of their exclusive parameters. A unit is known by its place in `units()`.
class UnitsByValue {
public:
    using Places = std::vector<std::size_t>;

    explicit UnitsByValue(const HeardUnits& heard);

    const std::vector<const HeardUnit*>& units() const { return _units; }

    // The units that tell this value of an exclusive parameter.
    const Places& telling(UnitParameter parameter, std::string_view value) const;

private:
    std::vector<const HeardUnit*> _units;
    std::array<std::unordered_map<std::string_view, Places>, exclusiveParameters.size()> _places;
};

// The places of the units that each row means. None: the unit has not answered. Several: they
// cannot be told apart by what the row says.
//
// A row with identities means the units that have one of them, and those with a former one when
// there are none; never another one. No other row finds these units.
std::vector<UnitsByValue::Places> unitsOfRows(const std::vector<WantedRow>& rows,
                                              const UnitsByValue& units);

} // namespace kx
