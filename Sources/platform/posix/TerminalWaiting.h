// The waiting of a program at a terminal. While it waits, another program may ask the person there,
// as polkit's agent for terminals does, so the terminal is lent to it meanwhile.

#pragma once

#include "platform/posix/TerminalConsole.h"
#include "support/Waiting.h"

namespace kx {

class TerminalWaiting final : public Waiting {
public:
    // `waiting`, which does the waiting, and `console` must outlive the object.
    TerminalWaiting(Waiting& waiting, TerminalConsole& console)
        : _waiting(waiting)
        , _console(console) {}

    bool until(const std::function<bool()>& isDone, std::string_view sentence) override;

private:
    Waiting& _waiting;
    TerminalConsole& _console;
};

} // namespace kx
