#include "units/UnitRegistry.h"

#include "support/Require.h"
#include "support/SlowGrowth.h"
#include "units/ParameterNumber.h"

namespace kx {

namespace {

// Makes no text of the key, as erase() does.
template<class Map>
void eraseKey(Map& map, std::string_view key) {
    const auto found = map.find(key);
    if (found != map.end()) {
        map.erase(found);
    }
}

} // namespace

UnitRegistry::UnitRegistry(std::size_t limit)
    : _limit(limit) {
    require(limit >= 2, "limit >= 2", "Sources/units/UnitRegistry");
}

void UnitRegistry::clear() {
    _units = {};
    _places.clear();
    _newest = nobody;
    _serialNumbers.clear();
    _withdrawnAddresses.clear();
    _serialBefore.clear();
    _tally = {};
}

bool UnitRegistry::store(const UnitRecord& record) {
    const auto serial = record.value(UnitParameter::serialNumber);
    if (!serial.has_value()) {
        return false;
    }
    const std::uint32_t known = placeOf(*serial);
    const bool isNew = known == nobody;
    const std::uint32_t place = isNew ? addUnit(*serial) : known;
    Unit& unit = _units[place];
    const bool isKnown = rename(unit, isNew, record) || !isNew;
    countAnswer(unit, !isKnown, record);
    static_cast<UnitRecord&>(unit) = record;
    hear(place);
    eraseKey(_withdrawnAddresses, *serial);
    if (_units.size() > _limit) {
        forgetOldest();
    }
    return true;
}

std::uint32_t UnitRegistry::placeOf(std::string_view serial) const {
    return _places.find(numberOfSixBytes(serial), [this, serial](std::uint32_t place) {
        return _units[place].serial() == serial;
    });
}

std::uint32_t UnitRegistry::addUnit(std::string_view serial) {
    const auto place = static_cast<std::uint32_t>(_units.size());
    makeRoomForOneMore(_units);
    _units.emplace_back().setValue(UnitParameter::serialNumber, serial);
    _places.add(numberOfSixBytes(serial), place);
    _serialNumbers.add(serial);
    return place;
}

// The unit must have left the ring before. The last unit moves to its place.
void UnitRegistry::removeUnit(std::uint32_t place) {
    const std::string_view serial = _units[place].serial();
    _serialNumbers.remove(serial);
    _places.remove(numberOfSixBytes(serial), place);
    const auto last = static_cast<std::uint32_t>(_units.size() - 1);
    if (place != last) {
        const Unit& moved = _units[last];
        _places.renumber(numberOfSixBytes(moved.serial()), last, place);
        _units[moved.older].newer = _units[moved.newer].older = place;
        _newest = _newest == last ? place : _newest;
        _units[place] = moved;
    }
    _units.pop_back();
}

void UnitRegistry::expectSerialNumber(std::string_view before, std::string_view after) {
    _serialBefore = before;
    _serialAfter = after;
}

// The unit goes on as it was before under its other number, and returns true for one that has.
bool UnitRegistry::rename(Unit& unit, bool isNew, const UnitRecord& record) {
    if (_serialBefore.empty() || unit.serial() != _serialAfter) {
        return false;
    }
    const std::uint32_t found = placeOf(_serialBefore);
    if (found == nobody || &_units[found] == &unit || !record.hasHardwareAddressOf(_units[found])) {
        return false;
    }
    Unit& before = _units[found];
    static_cast<UnitRecord&>(unit) = static_cast<const UnitRecord&>(before);
    unit.setValue(UnitParameter::serialNumber, _serialAfter);
    unit.round = std::exchange(before.round, 0);
    _tally.renamed += isNew ? 1 : 0;
    _serialBefore.clear();
    return true;
}

void UnitRegistry::beginRound() {
    ++_round;
    const std::size_t answered = _tally.answered;
    _tally = {};
    _tally.silent = answered;
}

void UnitRegistry::countAnswer(Unit& unit, bool isNew, const UnitRecord& record) {
    const std::uint32_t before = std::exchange(unit.round, _round);
    if (before == _round) {
        return;
    }
    const auto count = [&unit](RoundTally::Units& units) {
        ++units.count;
        units.latest = unit.serial();
    };
    ++_tally.answered;
    if (isNew) {
        count(_tally.added);
        return;
    }
    if (before + 1 == _round) {
        --_tally.silent;
    } else {
        count(_tally.back);
    }
    if (!tellsTheSame(unit, record)) {
        count(_tally.changed);
    }
}

// A unit that has not moved to its new address tells the one that was withdrawn.
bool UnitRegistry::tellsTheSame(const Unit& unit, const UnitRecord& record) const {
    const auto withdrawn = _withdrawnAddresses.find(unit.serial());
    if (withdrawn == _withdrawnAddresses.end()) {
        return unit == record;
    }
    auto told = static_cast<const UnitRecord&>(unit);
    told.setValue(UnitParameter::internalIPAddress, withdrawn->second);
    return told == record;
}

bool UnitRegistry::hasAnswered(std::string_view serial) const {
    const std::uint32_t place = placeOf(serial);
    return place != nobody && _units[place].round == _round;
}

// The ring is in the order in which units were heard, so those of this round are its newest part.
std::optional<std::string> UnitRegistry::silentUnit() const {
    if (_tally.silent == 0) {
        return std::nullopt;
    }
    std::uint32_t place = _units[_newest].newer;
    while (_units[place].round + 1 != _round && place != _newest) {
        place = _units[place].newer;
    }
    return std::string(_units[place].serial());
}

// Never called for the newest unit, which stays where it is.
void UnitRegistry::leaveRing(const Unit& unit) {
    _units[unit.older].newer = unit.newer;
    _units[unit.newer].older = unit.older;
}

// Puts the unit behind the newest one.
void UnitRegistry::hear(std::uint32_t place) {
    if (_newest == place) {
        return;
    }
    Unit& unit = _units[place];
    if (unit.older != nobody) {
        leaveRing(unit);
    }
    if (_newest == nobody) {
        unit.older = unit.newer = place;
    } else {
        unit.older = _newest;
        unit.newer = _units[_newest].newer;
        _units[unit.older].newer = _units[unit.newer].older = place;
    }
    _newest = place;
}

// With the kept unit passed over there is another one, because the limit is at least 2.
void UnitRegistry::forgetOldest() {
    std::uint32_t oldest = _units[_newest].newer;
    if (_kept.has_value() && *_kept == _units[oldest].serial()) {
        oldest = _units[oldest].newer;
    }
    const Unit& unit = _units[oldest];
    leaveRing(unit);
    if (unit.round == _round) {
        --_tally.answered;
    } else if (unit.round + 1 == _round) {
        --_tally.silent;
    }
    eraseKey(_withdrawnAddresses, unit.serial());
    removeUnit(oldest);
    ++_forgotten;
}

const UnitRecord* UnitRegistry::find(std::string_view serial) const {
    const std::uint32_t place = placeOf(serial);
    return place != nobody ? &_units[place] : nullptr;
}

void UnitRegistry::withdrawAddress(std::string_view serial) {
    const std::uint32_t place = placeOf(serial);
    if (place == nobody) {
        return;
    }
    const auto address = _units[place].value(UnitParameter::internalIPAddress);
    if (address.has_value()) {
        _withdrawnAddresses.insert_or_assign(std::string(serial), std::string(*address));
        _units[place].removeValue(UnitParameter::internalIPAddress);
    }
}

void UnitRegistry::setLink(std::string_view serial, std::uint32_t link) {
    const std::uint32_t place = placeOf(serial);
    if (place != nobody && link != 0) {
        _units[place].setLink(link);
    }
}

std::optional<std::string_view> UnitRegistry::lastToldAddress(std::string_view serial) const {
    const auto withdrawn = _withdrawnAddresses.find(serial);
    if (withdrawn != _withdrawnAddresses.end()) {
        return withdrawn->second;
    }
    const UnitRecord* const record = find(serial);
    return record != nullptr ? record->value(UnitParameter::internalIPAddress) : std::nullopt;
}

} // namespace kx
