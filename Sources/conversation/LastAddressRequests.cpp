#include "conversation/LastAddressRequests.h"

#include "units/UnitCommand.h"

#include <algorithm>

namespace kx {

namespace {

// A unit that has no address yet tells 0.0.0.0, where this host would ask itself.
UnitTarget lastAddressOf(const HeardUnit& unit) {
    UnitTarget target = unit.target();
    if (target.address == 0) {
        target.address = unit.sender;
    }
    return target;
}

} // namespace

LastAddressRequests::LastAddressRequests(UnitExchange& exchange,
                                         const std::vector<HeardUnit>& units)
    : Listener(exchange)
    , _unanswered(units.size()) {
    _units.reserve(units.size());
    std::map<std::uint32_t, int> unitsAt;
    for (const HeardUnit& unit : units) {
        _places.emplace(identityOf(unit), _units.size());
        const int count = ++unitsAt[lastAddressOf(unit).address];
        _units.push_back({.unit = unit, .isOneTooMany = count > mostAtOneAddress});
    }
}

bool LastAddressRequests::wasAsked(const HeardUnit& unit) const {
    const auto place = _places.find(identityOf(unit));
    return place != _places.end() && _units[place->second].wasAsked;
}

void LastAddressRequests::start() {
    if (_unanswered == 0) {
        end();
    } else {
        beginTry();
    }
}

void LastAddressRequests::beginTry() {
    ++_tries;
    _next = 0;
    _tryBegan = exchange().now();
    askNextGroup();
}

void LastAddressRequests::askNextGroup() {
    for (std::size_t sent = 0; sent < unitsAtOnce && _next < _units.size(); ++_next) {
        if (!_units[_next].hasAnswered && !_units[_next].isOneTooMany) {
            ask(_units[_next]);
            ++sent;
        }
    }
    if (_next < _units.size()) {
        callAfter(timeBetweenGroups, &LastAddressRequests::askNextGroup);
    } else if (_tries == mostTries) {
        callAfter(timeAfterTheLast, &LastAddressRequests::finish);
    } else {
        const auto taken = exchange().now() - _tryBegan;
        callAfter(std::max(timeBetweenTries - taken, timeBetweenGroups),
                  &LastAddressRequests::beginTry);
    }
}

void LastAddressRequests::ask(Asked& asked) {
    const UnitTarget target = lastAddressOf(asked.unit);
    if (target.address != 0 && !exchange().send(parameterRequestCommand, target).has_value()) {
        asked.wasAsked = true;
    }
}

void LastAddressRequests::callAfter(std::chrono::milliseconds time,
                                    void (LastAddressRequests::*operation)()) {
    _delay = exchange().runLoop().callOnceAfter(time, [this, operation] { (this->*operation)(); });
}

void LastAddressRequests::unitDidTell(const HeardUnit& unit) {
    if (hasEnded()) {
        return;
    }
    _heard.add(unit);
    const auto place = _places.find(identityOf(unit));
    if (place == _places.end() || std::exchange(_units[place->second].hasAnswered, true)) {
        return;
    }
    if (--_unanswered == 0) {
        finish();
    }
}

// No request follows, however long the object is kept.
void LastAddressRequests::finish() {
    _delay.reset();
    end();
}

} // namespace kx
