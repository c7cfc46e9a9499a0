#include "conversation/Discovery.h"

#include "units/UnitCommand.h"

#include <algorithm>
#include <utility>

namespace kx {

namespace {

// Without a fixed number of requests.
constexpr int mostRequests = 12;
constexpr int partsOfWait = 24;

} // namespace

Discovery::Discovery(UnitExchange& exchange, DiscoveryPlan plan)
    : Listener(exchange)
    , _plan(std::move(plan)) {}

void Discovery::start() {
    _deadline = exchange().runLoop().callOnceAfter(_plan.wait, [this] { finish(); });
    request();
}

void Discovery::request() {
    ++_requests;
    for (const UnitTarget& target : _plan.everybody) {
        auto failure = exchange().send(parameterRequestCommand, target);
        if (failure.has_value()) {
            _failure = std::move(failure);
        } else {
            ++_sent;
        }
    }
    if (!hasAsked()) {
        end();
    } else {
        scheduleRequest();
    }
}

void Discovery::scheduleRequest() {
    const auto requestAfter = [this](std::chrono::milliseconds time) {
        _nextRequest = exchange().runLoop().callOnceAfter(time, [this] { request(); });
    };
    if (_plan.tries.has_value()) {
        if (_requests < *_plan.tries) {
            requestAfter(_plan.wait / *_plan.tries);
        }
    } else if (_requests == 1) {
        requestAfter(_plan.wait / 2);
    } else if (_requests < mostRequests) {
        _nextRequest = exchange().runLoop().callOnceAfter(
            std::max(_plan.wait / partsOfWait, shortestTimeBetweenRequests), [this] {
                if (!hasEveryoneAnswered()) {
                    request();
                }
            });
    }
}

// No request follows, however long the object is kept.
void Discovery::finish() {
    _nextRequest.reset();
    end();
}

bool Discovery::hasEveryoneAnswered() const {
    const auto units = _units.all();
    return !units.empty() && std::ranges::all_of(units, [this](const HeardUnit* unit) {
        return unit->request == _requests;
    });
}

std::optional<TwoHostsOfOneSerial> Discovery::twoHostsOf(std::string_view serial) const {
    for (const Finding& finding : _contradictions) {
        const auto* const hosts = std::get_if<TwoHostsOfOneSerial>(&finding);
        if (hosts != nullptr && hosts->serial == serial) {
            return *hosts;
        }
    }
    return std::nullopt;
}

void Discovery::unitDidTell(const HeardUnit& unit) {
    if (hasEnded()) {
        return;
    }
    HeardUnit heard = unit;
    heard.request = _requests;
    _units.add(heard);
    _witness.unitDidTell(unit.record, {.sender = unit.sender, .link = unit.link}, _contradictions);
    if (_isSettling || !_plan.isEnough || !_plan.isEnough(_units)) {
        return;
    }
    _isSettling = true;
    _nextRequest.reset();
    if (_plan.settling.count() == 0) {
        end();
    } else {
        _deadline = exchange().runLoop().callOnceAfter(std::max(_plan.settling, 2 * unit.answered),
                                                       [this] { finish(); });
    }
}

} // namespace kx
