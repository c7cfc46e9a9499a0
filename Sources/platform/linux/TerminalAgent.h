// polkit's own agent for terminals, pkttyagent, which asks a person there for the administrator's
// password. It asks about this process and its children only. Where another agent is registered for
// this process it does not start, and on a screen the desktop's agent asks. Its words are in the
// language of the environment.
//
// pkexec has an agent of its own for terminals. polkitd does not take its answers, because pkexec
// runs as root and the check of the password as the user ("No session for cookie").
//
// Threading: the main thread only.

#pragma once

#include "support/ChildProcess.h"

#include <memory>

namespace kx {

class TerminalAgent {
public:
    // Starts the agent, and blocks until it can ask, for two seconds at most. Null when there is no
    // agent or no terminal.
    static std::unique_ptr<TerminalAgent> start();

    // Ends the agent, and with it a question.
    ~TerminalAgent();
    TerminalAgent(const TerminalAgent&) = delete;
    TerminalAgent& operator=(const TerminalAgent&) = delete;

private:
    explicit TerminalAgent(ChildProcess agent);

    ChildProcess _agent;
};

} // namespace kx
