#include "LoopWatch.h"

#include <algorithm>
#include <ctime>
#include <utility>

namespace kx {

namespace {

using std::chrono::milliseconds;
using std::chrono::nanoseconds;

nanoseconds now(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return std::chrono::seconds(time.tv_sec) + nanoseconds(time.tv_nsec);
}

} // namespace

LoopWatch::LoopWatch()
    : _timeAtTick(now(CLOCK_MONOTONIC))
    , _workAtTick(now(CLOCK_THREAD_CPUTIME_ID)) {
    QObject::connect(&_tick, &QTimer::timeout, &_tick, [this] {
        const nanoseconds time = now(CLOCK_MONOTONIC);
        const nanoseconds work = now(CLOCK_THREAD_CPUTIME_ID);
        _longestWait = std::max(_longestWait, time - std::exchange(_timeAtTick, time));
        _longestWork = std::max(_longestWork, work - std::exchange(_workAtTick, work));
    });
    _tick.setTimerType(Qt::PreciseTimer);
    _tick.start(1);
}

milliseconds LoopWatch::longestWait() const {
    const nanoseconds passing = now(CLOCK_MONOTONIC) - _timeAtTick;
    return std::chrono::round<milliseconds>(std::max(_longestWait, passing));
}

milliseconds LoopWatch::longestWork() const {
    const nanoseconds passing = now(CLOCK_THREAD_CPUTIME_ID) - _workAtTick;
    return std::chrono::round<milliseconds>(std::max(_longestWork, passing));
}

} // namespace kx
