// Frames that wait for their time to leave, earliest first. Frames of the same time leave in the
// order in which they came. Holds a bounded number of frames; further ones are lost, as in a
// switch. Any thread, one at a time.

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

    // The time at which the next frame leaves; absent when no frame waits.
    std::optional<TimePoint> nextDue() const;

    // Removes and returns the frames that are due at `now`.
    std::vector<Bytes> takeDue(TimePoint now);

private:
    std::size_t _capacity;
    std::multimap<TimePoint, Bytes> _frames;
};

} // namespace kx::simulator
