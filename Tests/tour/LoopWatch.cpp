#include "LoopWatch.h"

#include <algorithm>

namespace kx {

LoopWatch::LoopWatch() {
    QObject::connect(&_tick, &QTimer::timeout, &_tick, [this] {
        _longest = longestWaitInMilliseconds();
        _sinceTick.start();
    });
    _tick.setTimerType(Qt::PreciseTimer);
    _tick.start(1);
    _sinceTick.start();
}

qint64 LoopWatch::longestWaitInMilliseconds() const {
    return std::max(_longest, _sinceTick.elapsed());
}

} // namespace kx
