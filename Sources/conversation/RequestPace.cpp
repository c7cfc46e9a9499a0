#include "conversation/RequestPace.h"

#include <chrono>
#include <utility>

namespace kx {

RequestPace::RequestPace(RunLoop& runLoop, std::function<void()> requestOwed)
    : _runLoop(runLoop)
    , _requestOwed(std::move(requestOwed)) {}

bool RequestPace::admits() {
    if (_second == nullptr) {
        _admitted = 0;
        _second = _runLoop.callOnceAfter(std::chrono::seconds(1), [this] { endSecond(); });
    }
    if (_admitted < mostAtOnce) {
        ++_admitted;
        return true;
    }
    _owes = true;
    return false;
}

void RequestPace::reset() {
    _second.reset();
    _owes = false;
}

void RequestPace::endSecond() {
    _second.reset();
    if (std::exchange(_owes, false)) {
        _requestOwed();
    }
}

} // namespace kx
