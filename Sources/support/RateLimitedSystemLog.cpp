#include "support/RateLimitedSystemLog.h"

#include <string>
#include <utility>

namespace kx {

RateLimitedSystemLog::RateLimitedSystemLog(SystemLog& log, RunLoop& runLoop)
    : _log(log)
    , _runLoop(runLoop) {}

RateLimitedSystemLog::~RateLimitedSystemLog() {
    tellHeldBack();
}

void RateLimitedSystemLog::write(std::string_view line) {
    if (_periodEnd == nullptr) {
        _periodEnd = _runLoop.callOnceAfter(period, [this] { endPeriod(); });
    }
    if (_written < mostLines) {
        ++_written;
        _log.write(line);
    } else {
        ++_heldBack;
    }
}

void RateLimitedSystemLog::writeLast(std::string_view line) {
    tellHeldBack();
    _log.writeLast(line);
}

void RateLimitedSystemLog::endPeriod() {
    const auto ended = std::move(_periodEnd);
    _written = 0;
    if (_heldBack > 0) {
        write(std::to_string(std::exchange(_heldBack, 0)) + " more like this");
    }
}

void RateLimitedSystemLog::tellHeldBack() {
    if (_heldBack > 0) {
        _log.write(std::to_string(std::exchange(_heldBack, 0)) + " more like this");
    }
}

} // namespace kx
