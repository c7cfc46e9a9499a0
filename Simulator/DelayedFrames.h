// Frames that wait for their time to leave, earliest first; those of the same time in the order in
// which they came. Holds a bounded number: what does not fit is lost, as in a switch. Any thread,
// one at a time.

#pragma once

#include "Simulator/Wire.h"

#include <chrono>
#include <map>
#include <optional>

namespace kx::simulator {

using TimePoint = std::chrono::steady_clock::time_point;

class DelayedFrames {
public:
    explicit DelayedFrames(std::size_t capacity);

    // False when the frame was lost because `capacity` frames wait already.
    bool add(TimePoint due, Bytes frame);

    // When the next frame leaves; nothing when none waits.
    std::optional<TimePoint> nextDue() const;

    // The frames that are due at `now`, taken out.
    std::vector<Bytes> takeDue(TimePoint now);

private:
    std::size_t _capacity;
    std::multimap<TimePoint, Bytes> _frames;
};

} // namespace kx::simulator
