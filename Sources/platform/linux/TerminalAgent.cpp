#include "platform/linux/TerminalAgent.h"

#include "support/Pipe.h"
#include "support/PlatformException.h"
#include "support/SystemLog.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace kx {

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto agentPath = "/usr/bin/pkttyagent";

// It has to reach polkit over the bus, and to end when it is told to.
constexpr std::chrono::milliseconds longestStartOfAgent{2000};
constexpr std::chrono::milliseconds longestEndOfAgent{1000};
constexpr std::chrono::milliseconds betweenLooksAtTheAgent{5};

bool isSet(const char* name) {
    const char* const value = std::getenv(name); // no other thread of ours sets one
    return value != nullptr && *value != '\0';
}

// The agent closes its standard output when it can ask, and writes nothing to it before. On a
// screen the desktop's agent goes first. polkit lets an agent stand back only in a login session,
// so elsewhere it does not.
std::vector<std::string> wordsOfAgent() {
    std::vector<std::string> words{"--process", std::to_string(::getpid()), "--notify-fd",
                                   std::to_string(STDOUT_FILENO)};
    if (isSet("DISPLAY") || isSet("WAYLAND_DISPLAY")) {
        words.emplace_back("--fallback");
    }
    return words;
}

// Signals may interrupt it; they are attended to by the wait for the person.
void awaitEnd(const FileDescriptor& reading, std::chrono::milliseconds longest) {
    const auto end = Clock::now() + longest;
    pollfd polled{.fd = reading.number(), .events = POLLIN, .revents = 0};
    for (auto left = longest; left.count() > 0;
         left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now())) {
        if (::poll(&polled, 1, static_cast<int>(left.count())) == 1) {
            return;
        }
    }
}

} // namespace

std::unique_ptr<TerminalAgent> TerminalAgent::start() {
    if (::access(agentPath, X_OK) != 0) {
        return nullptr;
    }
    const FileDescriptor nothing(::open("/dev/null", O_RDWR | O_CLOEXEC));
    try {
        Pipe readiness;
        std::unique_ptr<TerminalAgent> agent(
            new TerminalAgent(ChildProcess(agentPath, wordsOfAgent(),
                                           {.standardInput = nothing.number(),
                                            .standardOutput = readiness.writingEnd.number(),
                                            .standardError = nothing.number()})));
        readiness.writingEnd.close();
        awaitEnd(readiness.readingEnd, longestStartOfAgent);
        return agent->_agent.exitStatus().has_value() ? nullptr : std::move(agent);
    } catch (const PlatformException& exception) {
        logToSystem(exception.reason());
        return nullptr;
    }
}

TerminalAgent::TerminalAgent(ChildProcess agent)
    : _agent(std::move(agent)) {}

TerminalAgent::~TerminalAgent() {
    const auto end = Clock::now() + longestEndOfAgent;
    _agent.terminate();
    while (!_agent.exitStatus().has_value() && Clock::now() < end) {
        std::this_thread::sleep_for(betweenLooksAtTheAgent);
    }
}

} // namespace kx
