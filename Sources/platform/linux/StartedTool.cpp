#include "platform/linux/StartedTool.h"

#include "support/Error.h"
#include "support/Pipe.h"
#include "support/PlatformException.h"
#include "support/SystemLog.h"
#include "support/TextFormat.h"

#include <fcntl.h>
#include <sys/wait.h>

#include <cerrno>
#include <fstream>
#include <thread>
#include <utility>

namespace kx {

namespace {

// The time between two looks at a program that is waited for. It is short, because the window does
// not react meanwhile. It is long enough to cost nothing while a person is asked.
constexpr std::chrono::milliseconds interval{5};

constexpr int signalBase = 128;

} // namespace

std::unique_ptr<StartedTool> StartedTool::start(const std::string& path,
                                                const std::vector<std::string>& arguments,
                                                const Environment& environment) {
    const FileDescriptor nothing(::open("/dev/null", O_RDWR | O_CLOEXEC));
    if (nothing.number() < 0) {
        logToSystem(filledText("Could not open /dev/null: %s", {posixErrorText(errno)}));
        return nullptr;
    }
    const ChildProcess::Streams streams{
        .standardInput = nothing.number(), .standardOutput = nothing.number(), .standardError = {}};
    try {
        return std::unique_ptr<StartedTool>(new StartedTool(
            environment.has_value() ? ChildProcess(path, arguments, streams, *environment)
                                    : ChildProcess(path, arguments, streams)));
    } catch (const PlatformException& exception) {
        logToSystem(exception.reason());
        return nullptr;
    }
}

StartedTool::StartedTool(ChildProcess child)
    : _child(std::move(child)) {}

bool StartedTool::hasEnded() const {
    const auto process = _child.processIdentifier();
    siginfo_t end{};
    // This only looks, with WNOWAIT: `_child` takes the end later, and until then the system keeps
    // the program's name. An error means that the system has kept nothing.
    return ::waitid(P_PID, static_cast<id_t>(process), &end, WEXITED | WNOHANG | WNOWAIT) != 0 ||
           end.si_pid == process;
}

std::optional<std::string> StartedTool::programName() const {
    std::ifstream file("/proc/" + std::to_string(_child.processIdentifier()) + "/comm");
    std::string name;
    return std::getline(file, name) ? std::optional(name) : std::nullopt;
}

bool StartedTool::waitAMoment(const std::string& launcher) {
    using Clock = std::chrono::steady_clock;
    auto end = Clock::now() + moment;
    while (!hasEnded()) {
        if (!launcher.empty() && programName().value_or(launcher) == launcher) {
            end = Clock::now() + moment;
        } else if (Clock::now() >= end) {
            return false;
        }
        std::this_thread::sleep_for(interval);
    }
    return true;
}

int StartedTool::status() {
    const int status = _child.waitUntilExit();
    return _child.wasEndedBySignal() ? signalBase + status : status;
}

} // namespace kx
