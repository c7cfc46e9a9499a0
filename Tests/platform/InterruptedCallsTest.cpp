// Signals that arrive while a process waits for a child or reads from it: the process goes on.

#include "ChildFixture.h"
#include "support/ChildProcess.h"
#include "support/Pipe.h"
#include "support/TaskSupport.h"

#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <set>

namespace kx {

namespace {

std::atomic<int> interruptions{0};

void countInterruption(int /*signal*/) {
    interruptions = interruptions + 1;
}

class InterruptedCalls : public ChildFixture {
protected:
    InterruptedCalls() {
        interruptions = 0;
        EXPECT_NE(_previous, SIG_ERR);
    }
    ~InterruptedCalls() override {
        ringEvery(0);
        Signal(SIGALRM, _previous);
    }

    // Interrupts the system calls of this process again and again. 0 ends the interruptions.
    static void ringEvery(suseconds_t microseconds) {
        itimerval timer{};
        timer.it_interval.tv_usec = timer.it_value.tv_usec = microseconds;
        EXPECT_EQ(::setitimer(ITIMER_REAL, &timer, nullptr), 0);
    }

    static std::set<pid_t> threads() {
        std::set<pid_t> result;
        for (const auto& entry : std::filesystem::directory_iterator("/proc/self/task")) {
            result.insert(std::stoi(entry.path().filename()));
        }
        return result;
    }

private:
    SignalHandler _previous = Signal(SIGALRM, countInterruption);
};

} // namespace

TEST_F(InterruptedCalls, AChildIsWaitedForToItsEnd) {
    ChildProcess child(shell, script("sleep 0.1; exit 3"));
    ringEvery(5000);
    EXPECT_EQ(child.waitUntilExit(), 3);
    EXPECT_GT(interruptions, 0);
}

TEST_F(InterruptedCalls, ATasksOutputsAreReadToTheirEnds) {
    std::optional<std::string> output;
    std::optional<std::string> error;
    ringEvery(5000);
    EXPECT_EQ(TaskSupport::doTaskArgumentsInputOutputError(
                  shell, script("sleep 0.1; echo out; echo err >&2; sleep 0.1; exit 3"), {},
                  &output, &error),
              3);
    EXPECT_EQ(output, "out\n");
    EXPECT_EQ(error, "err\n");
    EXPECT_GT(interruptions, 0);
}

TEST_F(InterruptedCalls, AShortTasksOutputIsReadToItsEnd) {
    std::optional<std::string> output;
    ringEvery(5000);
    EXPECT_EQ(TaskSupport::doShortTaskArgumentsInputShortOutput(
                  shell, script("sleep 0.1; echo out; sleep 0.1; exit 3"), {}, &output),
              3);
    EXPECT_EQ(output, "out\n");
    EXPECT_GT(interruptions, 0);
}

TEST_F(InterruptedCalls, AChildThatIsLeftToItselfIsStillReaped) {
    std::thread([] {}).join(); // after this a sanitizer's own thread exists
    Pipe input;
    const auto threadsBefore = threads();
    {
        const ChildProcess child(shell, script("read line; exit 3"),
                                 {.standardInput = input.readingEnd.number(),
                                  .standardOutput = {},
                                  .standardError = {}});
    }
    const auto threadsNow = threads();
    std::vector<pid_t> waiting;
    std::ranges::set_difference(threadsNow, threadsBefore, std::back_inserter(waiting));
    ASSERT_EQ(waiting.size(), 1U) << "a thread waits for its end";
    for (int i = 0; i < 20; ++i) {
        ::syscall(SYS_tgkill, ::getpid(), waiting.front(), SIGALRM);
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    EXPECT_GT(interruptions, 0);
    EXPECT_TRUE(threads().contains(waiting.front()));
    input.writingEnd.close();
    EXPECT_TRUE(waitUntil(hasNoChild));
    EXPECT_TRUE(waitUntil([&] { return !threads().contains(waiting.front()); }));
}

} // namespace kx
