#include "platform/posix/TerminalWaiting.h"

#include "contracts/WaitingContract.h"

namespace kx {

namespace {

using namespace std::chrono_literals;

constexpr auto sentence = "Waiting for administrator rights.";

class TerminalWaitingTrait {
public:
    Waiting& waiting() { return _waiting; }
    void giveUpInTheNextWait() {
        _later = _loop.callOnceAfter(300ms, [this] { _waiting.giveUp(); });
    }
    void run(const std::function<void()>& test) { test(); }

private:
    PollRunLoop _loop;
    TerminalConsole _console;
    TerminalWaiting _waiting{_loop, _console};
    RunLoop::Handle _later;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Terminal, WaitingContract, TerminalWaitingTrait);

TEST(TerminalWaiting, WhatWasGivenUpEndsNoLaterWait) {
    PollRunLoop loop;
    TerminalConsole console;
    TerminalWaiting waiting(loop, console);
    waiting.giveUp();
    int asked = 0;
    EXPECT_TRUE(waiting.until([&] { return ++asked == 5; }, sentence));
}

TEST(TerminalWaiting, RunsTheLoopMeanwhile) {
    PollRunLoop loop;
    TerminalConsole console;
    TerminalWaiting waiting(loop, console);
    bool isCalled = false;
    const auto call = loop.callOnceAfter(20ms, [&] { isCalled = true; });
    EXPECT_TRUE(waiting.until([&] { return isCalled; }, sentence));
}

} // namespace kx
