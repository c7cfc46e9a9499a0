// Tests that run real children: each must leave no child and no descriptor behind.

#pragma once

#include "System Configuration/SystemCallWrappers.h"

#include <gtest/gtest.h>
#include <sys/types.h>
#include <sys/wait.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

namespace kx {

// The bytes that can be read there at once.
inline std::string textIn(int descriptor) {
    std::array<char, 512> buffer{};
    const ssize_t count = Read(descriptor, buffer.data(), buffer.size());
    return {buffer.data(), static_cast<std::size_t>(count < 0 ? 0 : count)};
}

class ChildFixture : public testing::Test {
public:
    // A lookup that an earlier test gave up still opens and closes descriptors for a moment.
    static void SetUpTestSuite() {
        EXPECT_TRUE(waitUntil([] {
            const std::ptrdiff_t before = openDescriptors();
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
            return openDescriptors() == before;
        }));
    }

    // This is checked here, when the members of a test's own fixture are gone.
    ~ChildFixture() override {
        EXPECT_TRUE(hasNoChild()) << "a child is left";
        EXPECT_EQ(openDescriptors(), _openAtFirst) << "a descriptor is left";
    }

protected:
    static inline const std::string shell = "/bin/sh";
    // The contents of a text before the call that should set it.
    static inline const std::string untouched = "untouched";

    // The arguments that make /bin/sh run this script.
    static std::vector<std::string> script(const std::string& text) { return {"-c", text}; }

    // Returns false when the condition does not hold in time. The time is so long that only a hang
    // uses it up.
    static bool waitUntil(const std::function<bool()>& condition) {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
        while (!condition() && std::chrono::steady_clock::now() < end) {
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
        return condition();
    }

    // Whether every child of this process has been reaped; reaps none itself.
    static bool hasNoChild() {
        siginfo_t end{};
        return ::waitid(P_ALL, 0, &end, WEXITED | WNOHANG | WNOWAIT) != 0 && errno == ECHILD;
    }

    static std::ptrdiff_t openDescriptors() {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    }

private:
    std::ptrdiff_t _openAtFirst = openDescriptors();
};

} // namespace kx
