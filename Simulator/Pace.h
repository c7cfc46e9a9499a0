// A steady number of events a second, for the flood. It keeps the rate over time however unevenly
// it is asked, but does not catch up on more than a tenth of a second. Any thread, one at a time.

#pragma once

#include "Simulator/DelayedFrames.h"

namespace kx::simulator {

class Pace {
public:
    // `perSecond` 0 means that nothing ever falls due. At most 1,000,000.
    Pace(unsigned perSecond, TimePoint start);

    // When the next event falls due; nothing when none ever does.
    std::optional<TimePoint> nextDue() const;

    // How many events have fallen due by `now` since the last call.
    std::size_t take(TimePoint now);

private:
    std::chrono::nanoseconds _interval;
    TimePoint _next;
};

} // namespace kx::simulator
