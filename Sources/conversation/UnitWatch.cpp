#include "conversation/UnitWatch.h"

#include "units/UnitCommand.h"

#include <algorithm>
#include <set>
#include <utility>

namespace kx {

namespace {

bool isSame(const HeardUnit& left, const HeardUnit& right) {
    return left.record == right.record && left.unitIDBytes == right.unitIDBytes &&
           left.sender == right.sender && left.link == right.link;
}

} // namespace

UnitWatch::UnitWatch(UnitExchange& exchange, WatchPlan plan)
    : Listener(exchange)
    , _plan(std::move(plan)) {}

std::size_t UnitWatch::count() const {
    return static_cast<std::size_t>(
        std::ranges::count_if(_units, [](const auto& entry) { return !entry.second.isSilent; }));
}

void UnitWatch::start() {
    _hasBegun = true;
    if (_plan.duration.has_value()) {
        _deadline = exchange().runLoop().callOnceAfter(*_plan.duration, [this] { end(); });
    }
    request();
}

void UnitWatch::request() {
    noteSilence();
    if (hasEnded()) {
        return; // an event has ended the watch
    }
    for (const UnitTarget& target : _plan.everybody) {
        askAt(target);
    }
    if (!_hasAsked) {
        end();
        return;
    }
    askThoseThatMissedIt();
    _nextRequest = exchange().runLoop().callOnceAfter(_plan.every, [this] { request(); });
}

void UnitWatch::askThoseThatMissedIt() {
    std::set<std::uint32_t> asked;
    for (auto& entry : _units) {
        Watched& watched = entry.second;
        const UnitTarget target = watched.unit.target();
        if (watched.unanswered > 0 && !watched.isSilent && asked.size() < mostAskedAlone &&
            asked.insert(target.address).second) {
            exchange().send(parameterRequestCommand, target);
        }
        ++watched.unanswered;
    }
}

void UnitWatch::askAt(const UnitTarget& everybody) {
    auto failure = exchange().send(parameterRequestCommand, everybody);
    if (!failure.has_value()) {
        _hasAsked = true;
    } else if (_nextRequest == nullptr) {
        _failure = std::move(failure); // of the first request
    }
}

void UnitWatch::noteSilence() {
    for (auto& [key, watched] : _units) {
        if (!watched.isSilent && watched.unanswered >= requestsUntilSilent) {
            watched.isSilent = true;
            _plan.tell(UnitEvent::silent, watched.unit);
        }
    }
}

void UnitWatch::unitDidTell(const HeardUnit& unit) {
    if (!_hasBegun || hasEnded()) {
        return;
    }
    const UnitIdentity key = identityOf(unit);
    if (_units.size() == HeardUnits::defaultLimit && !_units.contains(key)) {
        return; // any host can invent units
    }
    const auto [found, isNew] = _units.try_emplace(key, Watched{.unit = unit});
    Watched& watched = found->second;
    watched.unanswered = 0;
    const bool wasSilent = std::exchange(watched.isSilent, false);
    const bool hasChanged = !isSame(watched.unit, unit);
    watched.unit = unit;
    if (isNew) {
        _plan.tell(UnitEvent::appeared, unit);
    } else if (wasSilent) {
        _plan.tell(UnitEvent::back, unit);
    } else if (hasChanged) {
        _plan.tell(UnitEvent::changed, unit);
    }
    endWhenEnough();
}

void UnitWatch::endWhenEnough() {
    if (_plan.until.has_value() && count() >= *_plan.until) {
        end();
    }
}

} // namespace kx
