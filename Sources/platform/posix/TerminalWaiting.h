// The waiting of a program at a terminal. While it waits, another program may ask the person there,
// as polkit's agent for terminals does, so the terminal is lent to it meanwhile.
//
// Threading: the thread of the run loop only.

#pragma once

#include "platform/posix/PollRunLoop.h"
#include "platform/posix/TerminalConsole.h"
#include "support/Waiting.h"

namespace kx {

class TerminalWaiting final : public Waiting {
public:
    // `loop`, whose turns are run meanwhile, and `console` must outlive the object.
    TerminalWaiting(PollRunLoop& loop, TerminalConsole& console)
        : _loop(loop)
        , _console(console) {}

    // Tells nothing of its own at the terminal, so it needs no sentence.
    bool until(const std::function<bool()>& isDone, std::string_view sentence) override;

    // The person gives up what is waited for now. A later wait knows nothing of it.
    void giveUp() { ++_timesGivenUp; }

private:
    PollRunLoop& _loop;
    TerminalConsole& _console;
    unsigned _timesGivenUp = 0;
};

} // namespace kx
