#include "Simulator/EventRate.h"

#include <algorithm>

namespace kx::simulator {

namespace {

using std::chrono::nanoseconds;

constexpr nanoseconds longestArrears = std::chrono::milliseconds(100);

} // namespace

EventRate::EventRate(unsigned perSecond, TimePoint start)
    : _interval(perSecond == 0 ? nanoseconds::zero()
                               : nanoseconds(std::chrono::seconds(1)) / perSecond)
    , _next(start + _interval) {}

std::optional<TimePoint> EventRate::nextDue() const {
    if (_interval == nanoseconds::zero()) {
        return std::nullopt;
    }
    return _next;
}

std::size_t EventRate::take(TimePoint now) {
    if (_interval == nanoseconds::zero() || now < _next) {
        return 0;
    }
    // At a rate below ten a second, one interval alone is longer than the arrears that count.
    _next = std::max(_next, now - std::max(longestArrears, _interval));
    const auto due = (now - _next) / _interval + 1;
    _next += due * _interval;
    return static_cast<std::size_t>(due);
}

} // namespace kx::simulator
