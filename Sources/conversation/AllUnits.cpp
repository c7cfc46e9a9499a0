#include "conversation/AllUnits.h"

#include "support/SlowGrowth.h"
#include "units/ParameterNumber.h"

#include <algorithm>

namespace kx {

namespace {

// The units that share a value are walked no further than this. Those heard last come first, so the
// ones that answer are found.
constexpr int longestWalk = 16;

// Bounds what is remembered when discoveries begin and none ends.
constexpr std::size_t mostDiscoveries = 64;

// The first unit that shares the value of `unit` and that `counts`; `nobody` without one.
template<class Counts>
std::uint32_t sharerOf(const UnitsOfValue& units, std::uint64_t value, std::uint32_t unit,
                       const Counts& counts) {
    std::uint32_t other = units.isShared(unit) ? units.first(value) : UnitsOfValue::nobody;
    for (int steps = 0; other != UnitsOfValue::nobody && steps < longestWalk; ++steps) {
        if (other != unit && counts(other)) {
            return other;
        }
        other = units.next(other);
    }
    return UnitsOfValue::nobody;
}

} // namespace

AllUnits::Clock AllUnits::clockOfHost() {
    return {.steady =
                [] {
                    return std::chrono::duration_cast<std::chrono::milliseconds>(
                        std::chrono::steady_clock::now().time_since_epoch());
                },
            .calendar = &std::chrono::system_clock::now};
}

AllUnits::AllUnits(NameOfLink nameOfLink, std::size_t limit, Clock clock)
    : _nameOfLink(std::move(nameOfLink))
    , _limit(limit)
    , _clock(std::move(clock))
    , _ofSerialNumber(valueOf(UnitParameter::serialNumber))
    , _ofAddress(valueOf(UnitParameter::internalIPAddress))
    , _latestRequest(_clock.steady()) {}

void AllUnits::clear() {
    _units.clear();
    _numbers.clear();
    _ofSerialNumber.clear();
    _ofAddress.clear();
    _oldest = _newest = nobody;
    _links.clear();
    _discoveries.clear();
    _silentUpTo.clear();
    _isIncomplete = false;
    ++_clearings;
    changed();
}

// --- Discoveries ---

void AllUnits::discoveryDidBegin() {
    _discoveries.push_back({.hearings = _hearings, .link = {}});
    if (_discoveries.size() > mostDiscoveries) {
        _discoveries.pop_front();
    }
}

void AllUnits::everybodyWasAsked(std::uint32_t link) {
    if (!_discoveries.empty()) {
        _discoveries.back().link = link;
    }
}

void AllUnits::discoveryDidEnd() {
    if (_discoveries.empty()) {
        return;
    }
    const UnderWay ended = _discoveries.front();
    _discoveries.pop_front();
    if (ended.link.has_value()) {
        _silentUpTo[*ended.link] = ended.hearings;
        ++_changesOfOthers;
        changed();
    }
}

void AllUnits::requestDidLeave() {
    _latestRequest = _clock.steady();
}

// A request that the routes sent may have reached any link, and a unit whose link is not known may
// have been asked by any request.
bool AllUnits::isSilent(const Unit& unit) const {
    return std::ranges::any_of(_silentUpTo, [&unit](const auto& asked) {
        const auto& [link, hearing] = asked;
        return unit.hearing <= hearing &&
               (link == 0 || unit.row.link == 0 || unit.row.link == link);
    });
}

// --- Answers ---

AllUnits::Identity AllUnits::identityOf(const UnitRow& row) {
    return {.serial = row.number(UnitParameter::serialNumber),
            .hardwareAddress = row.number(UnitParameter::internalMACAddress)};
}

std::uint64_t AllUnits::keyOf(const Identity& identity) {
    return NumberIndex::keyOf(identity.serial, identity.hardwareAddress);
}

UnitsOfValue::ValueOf AllUnits::valueOf(UnitParameter parameter) const {
    return [this, parameter](std::uint32_t unit) { return row(unit).number(parameter); };
}

void AllUnits::unitDidTell(const HeardUnit& unit) {
    UnitRow row(unit);
    if (!row.tells(UnitParameter::serialNumber)) {
        return;
    }
    row.heard = _clock.calendar();
    row.answered = _clock.steady() - _latestRequest;
    nameLink(row.link);
    const std::uint32_t number = numberFor(identityOf(row));
    _units[number].row = row;
    enter(number);
    hear(number);
    changed();
}

// The number that the unit has or gets. It is in no list of values and ready for another row.
std::uint32_t AllUnits::numberFor(const Identity& identity) {
    const std::uint32_t known = _numbers.find(
        keyOf(identity), [&](std::uint32_t unit) { return identityOf(row(unit)) == identity; });
    std::uint32_t number = known != nobody ? known : unitThatMayBecome(identity);
    if (known == nobody) {
        if (number == nobody && _units.size() < _limit) {
            number = static_cast<std::uint32_t>(_units.size());
            makeRoomForOneMore(_units);
            _units.emplace_back();
            _numbers.add(keyOf(identity), number);
            return number;
        }
        if (number == nobody) {
            number = _oldest;
            _isIncomplete = true;
        }
        _numbers.remove(keyOf(identityOf(row(number))), number);
        _numbers.add(keyOf(identity), number);
        _units[number].mayChange = false;
    }
    leave(number);
    return number;
}

// The unit of the same serial number that was told to change; `nobody` when none was.
std::uint32_t AllUnits::unitThatMayBecome(const Identity& identity) const {
    std::uint32_t unit = _ofSerialNumber.first(identity.serial);
    for (int steps = 0; unit != nobody && steps < longestWalk; ++steps) {
        if (_units[unit].mayChange || _units[unit].hearing <= _changeExpectedUpTo) {
            return unit;
        }
        unit = _ofSerialNumber.next(unit);
    }
    return nobody;
}

void AllUnits::enter(std::uint32_t unit) {
    const UnitRow& row = _units[unit].row;
    _ofSerialNumber.add(unit);
    bool isShared = _ofSerialNumber.isShared(unit);
    if (row.tells(UnitParameter::internalIPAddress)) {
        _ofAddress.add(unit);
        isShared = isShared || _ofAddress.isShared(unit);
    }
    _changesOfOthers += isShared ? 1 : 0;
}

void AllUnits::leave(std::uint32_t unit) {
    const UnitRow& row = _units[unit].row;
    bool isShared = _ofSerialNumber.isShared(unit);
    _ofSerialNumber.remove(unit);
    if (row.tells(UnitParameter::internalIPAddress)) {
        isShared = isShared || _ofAddress.isShared(unit);
        _ofAddress.remove(unit);
    }
    _changesOfOthers += isShared ? 1 : 0;
}

// Puts the unit behind the one that was heard last.
void AllUnits::hear(std::uint32_t number) {
    Unit& unit = _units[number];
    if (unit.hearing != 0) {
        leaveOrder(unit);
    }
    unit.hearing = ++_hearings;
    unit.older = _newest;
    unit.newer = nobody;
    (_newest != nobody ? _units[_newest].newer : _oldest) = number;
    _newest = number;
}

void AllUnits::leaveOrder(Unit& unit) {
    (unit.older != nobody ? _units[unit.older].newer : _oldest) = unit.newer;
    (unit.newer != nobody ? _units[unit.newer].older : _newest) = unit.older;
}

// With several units of one serial number, the one that the reply came from was heard.
void AllUnits::unitDidAnswer(std::string_view serial, std::uint32_t sender, std::uint32_t link) {
    std::uint32_t unit = _ofSerialNumber.first(numberOfSixBytes(serial));
    if (unit == nobody) {
        return;
    }
    if (_ofSerialNumber.isShared(unit)) {
        for (int steps = 0; unit != nobody && _units[unit].row.sender != sender; ++steps) {
            unit = steps < longestWalk ? _ofSerialNumber.next(unit) : nobody;
        }
    }
    if (unit == nobody) {
        return;
    }
    _changesOfOthers += _ofSerialNumber.isShared(unit) || _ofAddress.isShared(unit) ? 1 : 0;
    UnitRow& row = _units[unit].row;
    row.sender = sender;
    row.link = link != 0 ? link : row.link;
    row.heard = _clock.calendar();
    nameLink(row.link);
    hear(unit);
    changed();
}

void AllUnits::expectChange(std::string_view serial) {
    std::uint32_t unit = _ofSerialNumber.first(numberOfSixBytes(serial));
    for (int steps = 0; unit != nobody && steps < longestWalk; ++steps) {
        _units[unit].mayChange = true;
        unit = _ofSerialNumber.next(unit);
    }
}

// --- The units ---

UnitState AllUnits::stateOf(std::uint32_t unit) const {
    if (isSilent(_units[unit])) {
        return UnitState::silent;
    }
    if (sharerOfSerialNumber(unit) != nobody) {
        return UnitState::sharesSerialNumber;
    }
    return sharerOfAddress(unit) != nobody ? UnitState::sharesAddress : UnitState::answered;
}

std::uint32_t AllUnits::sharerOfSerialNumber(std::uint32_t unit) const {
    return sharerOf(_ofSerialNumber, row(unit).number(UnitParameter::serialNumber), unit,
                    [this](std::uint32_t other) { return !isSilent(_units[other]); });
}

// One unit under two serial numbers, which it had one after the other, has one hardware address.
std::uint32_t AllUnits::sharerOfAddress(std::uint32_t unit) const {
    const UnitRow& own = row(unit);
    if (!own.tells(UnitParameter::internalIPAddress)) {
        return nobody;
    }
    return sharerOf(_ofAddress, own.number(UnitParameter::internalIPAddress), unit,
                    [this, &own](std::uint32_t other) {
                        const auto hardware = UnitParameter::internalMACAddress;
                        const bool isSameUnit = own.tells(hardware) && row(other).tells(hardware) &&
                                                own.number(hardware) == row(other).number(hardware);
                        return !isSameUnit && !isSilent(_units[other]);
                    });
}

const std::string& AllUnits::nameOfLink(std::uint32_t link) const {
    static const std::string none;
    const auto found = _links.find(link);
    return found != _links.end() ? found->second : none;
}

void AllUnits::nameLink(std::uint32_t link) {
    if (link == 0 || _links.contains(link)) {
        return;
    }
    _links.emplace(link, _nameOfLink ? _nameOfLink(link) : std::string());
    ++_changesOfOthers;
}

std::vector<std::uint32_t> AllUnits::heardSince(std::uint64_t hearing) const {
    std::vector<std::uint32_t> units;
    for (std::uint32_t unit = _newest; unit != nobody && _units[unit].hearing > hearing;
         unit = _units[unit].older) {
        units.push_back(unit);
    }
    return units;
}

void AllUnits::changed() const {
    if (_changeAction) {
        _changeAction();
    }
}

} // namespace kx
