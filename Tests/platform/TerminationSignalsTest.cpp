#include "platform/posix/TerminationSignals.h"

#include "platform/posix/PollRunLoop.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <vector>

namespace kx {

namespace {

constexpr std::chrono::milliseconds aMoment{100};

} // namespace

TEST(TerminationSignals, AreEventsOfTheRunLoop) {
    for (const int number : {SIGINT, SIGTERM}) {
        PollRunLoop runLoop;
        std::vector<int> received;
        const TerminationSignals termination(runLoop,
                                             [&](int signal) { received.push_back(signal); });
        std::raise(number);
        EXPECT_TRUE(received.empty()) << "nothing happens outside of the loop";
        runLoop.runOnce(aMoment);
        EXPECT_EQ(received, std::vector<int>{number});
    }
}

TEST(TerminationSignalsDeathTest, TheSecondOneEndsTheProcess) {
    EXPECT_EXIT(
        {
            PollRunLoop runLoop;
            const TerminationSignals termination(runLoop, [](int) {});
            std::raise(SIGINT);
            std::raise(SIGINT);
        },
        testing::KilledBySignal(SIGINT), "");
}

TEST(TerminationSignalsDeathTest, AfterwardsTheyEndTheProcessAgain) {
    EXPECT_EXIT(
        {
            PollRunLoop runLoop;
            {
                const TerminationSignals termination(runLoop, [](int) {});
            }
            std::raise(SIGTERM);
        },
        testing::KilledBySignal(SIGTERM), "");
}

} // namespace kx
