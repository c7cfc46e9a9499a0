#include "conversation/Discovery.h"

#include "units/UnitCommand.h"

#include <utility>

namespace kx {

Discovery::Discovery(UnitExchange& exchange, DiscoveryPlan plan)
    : Listener(exchange)
    , _plan(std::move(plan)) {}

void Discovery::start() {
    _deadline = exchange().runLoop().callOnceAfter(_plan.wait, [this] { end(); });
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
    } else if (_requests < _plan.tries) {
        _nextRequest =
            exchange().runLoop().callOnceAfter(_plan.wait / _plan.tries, [this] { request(); });
    }
}

void Discovery::unitDidTell(const HeardUnit& unit) {
    if (hasEnded()) {
        return;
    }
    _units.add(unit);
    if (_plan.heard) {
        _plan.heard(_units);
    }
    if (_isSettling || !_plan.isEnough || !_plan.isEnough(_units)) {
        return;
    }
    _isSettling = true;
    _nextRequest.reset();
    if (_plan.settling.count() == 0) {
        end();
    } else {
        _deadline = exchange().runLoop().callOnceAfter(_plan.settling, [this] { end(); });
    }
}

} // namespace kx
