// The open descriptors of this process, counted when no thread but the caller's is left that could
// hold one.

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

// The entries of /proc/self/task at rest: the thread that asks, "." and "..". The thread sanitizer
// has a thread of its own from the first start of another one on.
#ifdef __SANITIZE_THREAD__
inline constexpr std::size_t tasksAtRest = 4;
#else
inline constexpr std::size_t tasksAtRest = 3;
#endif

inline std::size_t descriptorsAtRest(PollRunLoop& loop) {
    std::thread([] {}).join(); // so that the sanitizer's thread is there, too
    EXPECT_TRUE(runLoopUntil(loop, [] { return entryCount("/proc/self/task") == tasksAtRest; }));
    return entryCount("/proc/self/fd");
}

} // namespace kx
