// A watch over the program's event loop: how long a user's event had to wait at most.
//
// It asks for a call every millisecond, and takes the longest time from one to the next. What it
// finds is what a click at the worst moment would have met, and a little too long where the driver
// itself sleeps between two looks (10 ms at most). Main thread only.

#pragma once

#include <QTimer>
#include <chrono>

namespace kx {

class LoopWatch final {
public:
    // The watch begins.
    LoopWatch();

    // So far, the time that is passing now included.
    std::chrono::milliseconds longestWait() const;

    // The most that the program's main thread worked between two calls: what is left of the longest
    // wait on a machine that does nothing else.
    std::chrono::milliseconds longestWork() const;

private:
    QTimer _tick;
    std::chrono::nanoseconds _timeAtTick;
    std::chrono::nanoseconds _workAtTick;
    std::chrono::nanoseconds _longestWait{0};
    std::chrono::nanoseconds _longestWork{0};
};

} // namespace kx
