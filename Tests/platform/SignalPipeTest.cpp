#include "support/SignalPipe.h"

#include "platform/posix/PollRunLoop.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <optional>
#include <vector>

namespace kx {

namespace {

constexpr std::chrono::milliseconds aMoment{100};

void (*handlerOf(int signal))(int) {
    struct sigaction action {};
    ::sigaction(signal, nullptr, &action);
    return action.sa_handler;
}

} // namespace

TEST(SignalPipe, TakesSignalsInTheirOrder) {
    SignalPipe pipe({SIGINT, SIGTERM, SIGHUP});
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        std::raise(signal);
    }
    EXPECT_EQ(pipe.take(), SIGTERM);
    EXPECT_EQ(pipe.take(), SIGHUP);
    EXPECT_EQ(pipe.take(), SIGINT);
}

TEST(SignalPipe, HasNothingToTakeBeforeASignal) {
    SignalPipe pipe({SIGTERM});
    EXPECT_EQ(pipe.take(), std::nullopt);
    std::raise(SIGTERM);
    EXPECT_EQ(pipe.take(), SIGTERM);
    EXPECT_EQ(pipe.take(), std::nullopt);
}

TEST(SignalPipe, MakesSignalsEventsOfARunLoop) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        PollRunLoop runLoop;
        SignalPipe pipe({signal});
        std::vector<int> received;
        const auto watch = runLoop.watchForReading(
            pipe.descriptor(), [&] { received.push_back(pipe.take().value_or(0)); });
        std::raise(signal);
        EXPECT_TRUE(received.empty()) << "nothing happens outside of the loop";
        runLoop.runOnce(aMoment);
        EXPECT_EQ(received, std::vector<int>{signal});
    }
}

TEST(SignalPipe, LeavesAnIgnoredSignalIgnoredAndOthersAsTheyWere) {
    std::signal(SIGHUP, SIG_IGN);
    {
        const SignalPipe pipe({SIGTERM, SIGHUP});
        EXPECT_EQ(handlerOf(SIGHUP), SIG_IGN);
        EXPECT_NE(handlerOf(SIGTERM), SIG_DFL);
        EXPECT_EQ(handlerOf(SIGINT), SIG_DFL);
    }
    EXPECT_EQ(handlerOf(SIGHUP), SIG_IGN);
    EXPECT_EQ(handlerOf(SIGTERM), SIG_DFL);
    std::signal(SIGHUP, SIG_DFL);
}

TEST(SignalPipe, InterruptsASystemCallThatWaits) {
    const SignalPipe pipe({SIGTERM});
    struct sigaction action {};
    ::sigaction(SIGTERM, nullptr, &action);
    EXPECT_EQ(action.sa_flags & SA_RESTART, 0);
}

TEST(SignalPipeDeathTest, TheSecondSignalOfAKindEndsTheProcess) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        EXPECT_EXIT(
            {
                const SignalPipe pipe({signal});
                std::raise(signal);
                std::raise(signal);
            },
            testing::KilledBySignal(signal), "");
    }
}

TEST(SignalPipeDeathTest, AfterwardsSignalsEndTheProcessAgain) {
    EXPECT_EXIT(
        {
            { const SignalPipe pipe({SIGTERM}); }
            std::raise(SIGTERM);
        },
        testing::KilledBySignal(SIGTERM), "");
}

} // namespace kx
