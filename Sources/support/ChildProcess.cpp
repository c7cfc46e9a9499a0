#include "support/ChildProcess.h"

#include "support/Error.h"
#include "support/Pipe.h"
#include "support/PlatformException.h"
#include "support/SystemLog.h"
#include "support/TextFormat.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <system_error>
#include <thread>
#include <utility>

namespace kx {

namespace {

constexpr int streamCount = 3;
constexpr int unknownStatus = -1;

[[noreturn]] void throwLaunchFailure(const std::string& path, int errorNumber) {
    throw PlatformException(
        filledText("Could not launch %@: %s", {escapedLine(path), posixErrorText(errorNumber)}));
}

// The actions of the child on its descriptors, between its start and its program.
class FileActions {
public:
    FileActions() { posix_spawn_file_actions_init(&_actions); }
    ~FileActions() { posix_spawn_file_actions_destroy(&_actions); }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;

    // A descriptor that is one of the three is copied to another number first, because it could be
    // overwritten before its turn. Returns 0, or a value of errno(3).
    int give(std::optional<int> descriptor, int target) {
        if (!descriptor.has_value()) {
            return 0;
        }
        const int copy = ::fcntl(*descriptor, F_DUPFD_CLOEXEC, streamCount);
        if (copy < 0) {
            return errno;
        }
        _copies.at(static_cast<std::size_t>(target)) = FileDescriptor(copy);
        return posix_spawn_file_actions_adddup2(&_actions, copy, target);
    }

    int closeTheRest() { return posix_spawn_file_actions_addclosefrom_np(&_actions, streamCount); }

    const posix_spawn_file_actions_t* get() const { return &_actions; }

private:
    posix_spawn_file_actions_t _actions{};
    std::array<FileDescriptor, streamCount> _copies;
};

class Attributes {
public:
    Attributes() {
        posix_spawnattr_init(&_attributes);
        sigset_t signals;
        sigfillset(&signals);
        posix_spawnattr_setsigdefault(&_attributes, &signals);
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&_attributes, &signals);
        posix_spawnattr_setflags(&_attributes, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
    }
    ~Attributes() { posix_spawnattr_destroy(&_attributes); }
    Attributes(const Attributes&) = delete;
    Attributes& operator=(const Attributes&) = delete;

    const posix_spawnattr_t* get() const { return &_attributes; }

private:
    posix_spawnattr_t _attributes{};
};

// A zero byte would cut a text short without a report.
bool holdsZeroByte(const std::string& text) {
    return text.find('\0') != std::string::npos;
}

// The words in the form of posix_spawn(3), ended by null. It does not write to them; its type is
// older than const.
std::vector<char*> wordVector(const std::vector<std::string>& words) {
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (const auto& word : words) {
        pointers.push_back(const_cast<char*>(word.c_str()));
    }
    pointers.push_back(nullptr);
    return pointers;
}

} // namespace

ChildProcess::ChildProcess(const std::string& path, const std::vector<std::string>& arguments)
    : ChildProcess(path, arguments, Streams()) {}

ChildProcess::ChildProcess(const std::string& path, const std::vector<std::string>& arguments,
                           const Streams& streams) {
    launch(path, arguments, streams, environ);
}

ChildProcess::ChildProcess(const std::string& path, const std::vector<std::string>& arguments,
                           const Streams& streams, const std::vector<std::string>& environment) {
    launch(path, arguments, streams, wordVector(environment).data());
}

void ChildProcess::launch(const std::string& path, const std::vector<std::string>& arguments,
                          const Streams& streams, char* const* environment) {
    if (holdsZeroByte(path) || std::any_of(arguments.begin(), arguments.end(), holdsZeroByte)) {
        throwLaunchFailure(path, EINVAL);
    }
    FileActions actions;
    const std::array<std::optional<int>, streamCount> given{
        streams.standardInput, streams.standardOutput, streams.standardError};
    int errorNumber = 0;
    for (int target = 0; target < streamCount && errorNumber == 0; ++target) {
        errorNumber = actions.give(given.at(static_cast<std::size_t>(target)), target);
    }
    if (errorNumber == 0) {
        errorNumber = actions.closeTheRest();
    }
    if (errorNumber == 0) {
        auto words = wordVector(arguments);
        words.insert(words.begin(), const_cast<char*>(path.c_str()));
        errorNumber = posix_spawn(&_processIdentifier, path.c_str(), actions.get(),
                                  Attributes().get(), words.data(), environment);
    }
    if (errorNumber != 0) {
        throwLaunchFailure(path, errorNumber);
    }
}

ChildProcess::~ChildProcess() {
    letGo();
}

ChildProcess::ChildProcess(ChildProcess&& other) noexcept
    : _processIdentifier(std::exchange(other._processIdentifier, -1))
    , _exitStatus(std::exchange(other._exitStatus, unknownStatus))
    , _wasEndedBySignal(other._wasEndedBySignal) {}

ChildProcess& ChildProcess::operator=(ChildProcess&& other) noexcept {
    if (this != &other) {
        letGo();
        _processIdentifier = std::exchange(other._processIdentifier, -1);
        _exitStatus = std::exchange(other._exitStatus, unknownStatus);
        _wasEndedBySignal = other._wasEndedBySignal;
    }
    return *this;
}

std::optional<int> ChildProcess::exitStatus() {
    take(WNOHANG);
    return _exitStatus;
}

int ChildProcess::waitUntilExit() {
    take(0);
    return _exitStatus.value_or(unknownStatus);
}

void ChildProcess::terminate() {
    if (!exitStatus().has_value()) {
        ::kill(_processIdentifier, SIGTERM);
    }
}

void ChildProcess::take(int options) {
    if (_exitStatus.has_value()) {
        return;
    }
    int status = 0;
    pid_t ended = 0;
    do {
        ended = ::waitpid(_processIdentifier, &status, options);
    } while (ended < 0 && errno == EINTR);
    if (ended < 0) {
        _exitStatus = unknownStatus;
    } else if (ended > 0) {
        _wasEndedBySignal = WIFSIGNALED(status);
        _exitStatus = _wasEndedBySignal ? WTERMSIG(status) : WEXITSTATUS(status);
    }
}

void ChildProcess::letGo() {
    if (exitStatus().has_value()) {
        return;
    }
    try {
        std::thread([child = _processIdentifier] {
            while (::waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
            }
        }).detach();
    } catch (const std::system_error&) {
        // Without a thread, the child is reaped when this process ends.
    }
}

} // namespace kx
