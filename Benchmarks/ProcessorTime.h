// The processor time that this process has used. It is for work whose measured time would otherwise
// include waiting, for example for the next frame of a view.

#pragma once

#include <chrono>
#include <ctime>

namespace kx {

inline std::chrono::duration<double> processorTime() {
    timespec used{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    return std::chrono::seconds(used.tv_sec) + std::chrono::nanoseconds(used.tv_nsec);
}

} // namespace kx
