#include "platform/posix/SystemWallClock.h"

namespace kx {

std::tm SystemWallClock::localTime() const {
    const std::time_t now = std::time(nullptr);
    std::tm result{};
    ::tzset(); // localtime_r() alone keeps the time zone with which the process began
    ::localtime_r(&now, &result);
    return result;
}

} // namespace kx
