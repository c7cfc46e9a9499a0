// Runs a poll loop until something has happened, but not for ever.

#pragma once

#include "platform/posix/PollRunLoop.h"

#include <chrono>
#include <functional>

namespace kx {

// False when the condition does not hold within five seconds.
inline bool runLoopUntil(PollRunLoop& loop, const std::function<bool()>& condition) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    while (!condition() && std::chrono::steady_clock::now() < end) {
        loop.runOnce(std::chrono::milliseconds(50));
    }
    return condition();
}

inline void runLoopFor(PollRunLoop& loop, std::chrono::milliseconds time) {
    const auto end = loop.callOnceAfter(time, [&loop] { loop.stop(); });
    loop.run();
}

} // namespace kx
