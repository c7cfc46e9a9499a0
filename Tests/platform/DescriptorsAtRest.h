// Counts the open descriptors of this process when only the caller's thread is left. Other threads
// could hold descriptors.

#pragma once

#include "PollLoopDriver.h"

#include <dirent.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <thread>

namespace kx {

inline std::size_t entryCount(const char* path) {
    std::size_t count = 0;
    DIR* const directory = ::opendir(path);
    while (::readdir(directory) != nullptr) {
        ++count;
    }
    ::closedir(directory);
    return count;
}

// The number of entries of /proc/self/task at rest: the calling thread, "." and "..". The thread
// sanitizer has a thread of its own after the first start of another thread.
#ifdef __SANITIZE_THREAD__
inline constexpr std::size_t tasksAtRest = 4;
#else
inline constexpr std::size_t tasksAtRest = 3;
#endif

inline std::size_t descriptorsAtRest(PollRunLoop& loop) {
    std::thread([] {}).join(); // makes sure that the sanitizer's thread exists
    EXPECT_TRUE(runLoopUntil(loop, [] { return entryCount("/proc/self/task") == tasksAtRest; }));
    return entryCount("/proc/self/fd");
}

} // namespace kx
