// Runs a poll loop until a condition holds, with a time limit.

#pragma once

#include "platform/posix/PollRunLoop.h"

#include <chrono>
#include <functional>

namespace kx {

// Returns false when the condition does not hold within five seconds.
inline bool runLoopUntil(PollRunLoop& loop, const std::function<bool()>& condition) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    while (!condition() && std::chrono::steady_clock::now() < end) {
        loop.runOnce(std::chrono::milliseconds(50));
    }
    return condition();
}

inline void runLoopFor(PollRunLoop& loop, std::chrono::milliseconds time) {
    using std::chrono::milliseconds;
    using std::chrono::steady_clock;
    const auto end = steady_clock::now() + time;
    auto left = time;
    do {
        loop.runOnce(left);
        left = std::chrono::ceil<milliseconds>(end - steady_clock::now());
    } while (left > milliseconds::zero());
}

} // namespace kx
