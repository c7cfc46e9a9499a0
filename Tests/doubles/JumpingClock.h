// Clocks of the host that jump, for the whole test program: the calendar time, as when a person or
// a time server sets it, and the time since the start of the host, as after a suspension. The
// monotonic clock never jumps; it stands still while the host is suspended.
//
// Include this in exactly one file of a program. It takes the place of clock_gettime(2), which the
// standard library and Qt call.

#pragma once

#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <ctime>

namespace kx {

class JumpingClock {
public:
    ~JumpingClock() { secondsJumped() = 0; }

    // All clocks but the monotonic ones are by so many seconds further from now on.
    static void jumpBy(std::time_t seconds) { secondsJumped() += seconds; }

    static std::atomic<std::time_t>& secondsJumped() {
        static std::atomic<std::time_t> seconds = 0;
        return seconds;
    }
};

} // namespace kx

extern "C" int clock_gettime(clockid_t clock, timespec* time) noexcept {
    const auto result = static_cast<int>(::syscall(SYS_clock_gettime, clock, time));
    if (result == 0 && (clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE ||
                        clock == CLOCK_BOOTTIME || clock == CLOCK_TAI)) {
        time->tv_sec += kx::JumpingClock::secondsJumped();
    }
    return result;
}
