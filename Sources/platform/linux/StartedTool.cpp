#include "platform/linux/StartedTool.h"

#include "System Configuration/SystemCallWrappers.h"
#include "support/ByteRange.h"
#include "support/Error.h"
#include "support/PlatformException.h"
#include "support/SystemLog.h"
#include "support/TextEncoding.h"
#include "support/TextFormat.h"

#include <fcntl.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fstream>
#include <utility>

namespace kx {

namespace {

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
    try {
        Pipe words;
        ::fcntl(words.readingEnd.number(), F_SETFL, O_NONBLOCK);
        const ChildProcess::Streams streams{.standardInput = nothing.number(),
                                            .standardOutput = nothing.number(),
                                            .standardError = words.writingEnd.number()};
        return std::unique_ptr<StartedTool>(new StartedTool(
            environment.has_value() ? ChildProcess(path, arguments, streams, *environment)
                                    : ChildProcess(path, arguments, streams),
            std::move(words.readingEnd)));
    } catch (const PlatformException& exception) {
        logToSystem(exception.reason());
        return nullptr;
    }
}

StartedTool::StartedTool(ChildProcess child, FileDescriptor words)
    : _child(std::move(child))
    , _words(std::move(words)) {}

// All of it is read, so that the tool never waits for room in the pipe.
void StartedTool::listen() {
    std::array<char, 4096> buffer{};
    ssize_t count = 0;
    while ((count = Read(_words.number(), buffer.data(), buffer.size())) > 0) {
        _said.append(buffer.data(), static_cast<std::size_t>(count));
        _said.resize(std::min(_said.size(), mostSaid));
    }
}

bool StartedTool::hasEnded() {
    listen();
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

void StartedTool::askToEnd() {
    if (!hasEnded()) {
        ::kill(_child.processIdentifier(), SIGTERM);
    }
}

int StartedTool::status() {
    const int status = _child.waitUntilExit();
    return _child.wasEndedBySignal() ? signalBase + status : status;
}

std::string StartedTool::sentence() {
    constexpr auto blanks = " \t\r\n";
    listen();
    const auto begin = _said.find_first_not_of(blanks);
    if (begin == std::string::npos) {
        return {};
    }
    const std::string line = _said.substr(begin, _said.find('\n', begin) - begin);
    const std::string trimmed = line.substr(0, line.find_last_not_of(blanks) + 1);
    const Bytes bytes(trimmed.begin(), trimmed.end());
    return textFromUTF8(subrange(bytes, 0, lengthOfWholeCharacters(bytes))).value_or("");
}

} // namespace kx
