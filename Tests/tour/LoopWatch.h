// A watch over the program's event loop: how long a user's event had to wait at most.
//
// It asks for a call every millisecond, and takes the longest time from one to the next. What it
// finds is what a click at the worst moment would have met, and a little too long where the driver
// itself sleeps between two looks (10 ms at most). Main thread only.

#pragma once

#include <QElapsedTimer>
#include <QTimer>

namespace kx {

class LoopWatch final {
public:
    // The watch begins.
    LoopWatch();

    // So far, the time that is passing now included.
    qint64 longestWaitInMilliseconds() const;

private:
    QTimer _tick;
    QElapsedTimer _sinceTick;
    qint64 _longest = 0;
};

} // namespace kx
