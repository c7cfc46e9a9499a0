// A steady number of events a second, for the flood. It keeps the rate over time even when the
// calls come at uneven times, but it catches up on at most a tenth of a second. Any thread, one at
// a time.

#pragma once

#include "Simulator/DelayedFrames.h"

namespace kx::simulator {

class EventRate {
public:
    // `perSecond` 0 means that nothing ever falls due. At most 1,000,000.
    EventRate(unsigned perSecond, TimePoint start);

    // The time at which the next event falls due; absent when no event ever does.
    std::optional<TimePoint> nextDue() const;

    // The number of events that have fallen due by `now` since the last call.
    std::size_t take(TimePoint now);

private:
    std::chrono::nanoseconds _interval;
    TimePoint _next;
};

} // namespace kx::simulator
