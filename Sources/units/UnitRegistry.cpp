#include "units/UnitRegistry.h"

namespace kx {

void UnitRegistry::clear() {
    _records.clear();
    _newest = nullptr;
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
    const auto [unit, isNew] = _records.try_emplace(std::string(*serial));
    if (isNew) {
        unit->second.serial = &unit->first;
        _serialNumbers.add(unit->first);
    }
    const bool isKnown = rename(unit->second, isNew, record) || !isNew;
    countAnswer(unit->second, !isKnown, record);
    static_cast<UnitRecord&>(unit->second) = record;
    hear(unit->second);
    if (!_withdrawnAddresses.empty()) {
        _withdrawnAddresses.erase(unit->first);
    }
    if (_records.size() > _limit) {
        forgetOldest();
    }
    return true;
}

void UnitRegistry::expectSerialNumber(std::string_view before, std::string_view after) {
    _serialBefore = before;
    _serialAfter = after;
}

// The unit goes on as it was before under its other number, and returns true for one that has.
bool UnitRegistry::rename(Unit& unit, bool isNew, const UnitRecord& record) {
    if (_serialBefore.empty() || *unit.serial != _serialAfter) {
        return false;
    }
    const auto found = _records.find(_serialBefore);
    if (found == _records.end() || &found->second == &unit ||
        !record.hasHardwareAddressOf(found->second)) {
        return false;
    }
    const UnitRecord& before = found->second;
    static_cast<UnitRecord&>(unit) = before;
    unit.setValue(UnitParameter::serialNumber, _serialAfter);
    unit.round = std::exchange(found->second.round, 0);
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
        units.latest = *unit.serial;
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
    const auto withdrawn = _withdrawnAddresses.find(*unit.serial);
    if (withdrawn == _withdrawnAddresses.end()) {
        return unit == record;
    }
    auto told = static_cast<const UnitRecord&>(unit);
    told.setValue(UnitParameter::internalIPAddress, withdrawn->second);
    return told == record;
}

bool UnitRegistry::hasAnswered(std::string_view serial) const {
    const auto found = _records.find(serial);
    return found != _records.end() && found->second.round == _round;
}

// The ring is in the order in which units were heard, so those of this round are its newest part.
std::optional<std::string> UnitRegistry::silentUnit() const {
    if (_tally.silent == 0) {
        return std::nullopt;
    }
    const Unit* unit = _newest->newer;
    while (unit->round + 1 != _round && unit != _newest) {
        unit = unit->newer;
    }
    return *unit->serial;
}

// Never called for the newest unit, which stays where it is.
void UnitRegistry::leaveRing(Unit& unit) {
    unit.older->newer = unit.newer;
    unit.newer->older = unit.older;
}

// Puts the unit behind the newest one.
void UnitRegistry::hear(Unit& unit) {
    if (_newest == &unit) {
        return;
    }
    if (unit.older != nullptr) {
        leaveRing(unit);
    }
    if (_newest == nullptr) {
        unit.older = unit.newer = &unit;
    } else {
        unit.older = _newest;
        unit.newer = _newest->newer;
        unit.older->newer = unit.newer->older = &unit;
    }
    _newest = &unit;
}

// With the kept unit passed over there is another one, because the limit is at least 2.
void UnitRegistry::forgetOldest() {
    Unit* oldest = _newest->newer;
    if (_kept.has_value() && *_kept == *oldest->serial) {
        oldest = oldest->newer;
    }
    leaveRing(*oldest);
    if (oldest->round == _round) {
        --_tally.answered;
    } else if (oldest->round + 1 == _round) {
        --_tally.silent;
    }
    const auto forgotten = _records.find(*oldest->serial);
    _serialNumbers.remove(forgotten->first);
    _withdrawnAddresses.erase(forgotten->first);
    _records.erase(forgotten);
    ++_forgotten;
}

const UnitRecord* UnitRegistry::find(std::string_view serial) const {
    const auto found = _records.find(serial);
    return found != _records.end() ? &found->second : nullptr;
}

void UnitRegistry::withdrawAddress(std::string_view serial) {
    const auto found = _records.find(serial);
    if (found == _records.end()) {
        return;
    }
    const auto address = found->second.value(UnitParameter::internalIPAddress);
    if (address.has_value()) {
        _withdrawnAddresses.insert_or_assign(found->first, std::string(*address));
        found->second.removeValue(UnitParameter::internalIPAddress);
    }
}

void UnitRegistry::setLink(std::string_view serial, std::uint32_t link) {
    const auto found = _records.find(serial);
    if (found != _records.end() && link != 0) {
        found->second.setLink(link);
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
