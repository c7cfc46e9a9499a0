#include "platform/linux/StartedTool.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <fstream>
#include <thread>

namespace kx {

namespace {

// Between two looks at a program that is waited for: short, because the window stands still, and
// long enough to cost nothing while a person is asked.
constexpr std::chrono::milliseconds interval{5};

constexpr int signalBase = 128;

class FileActions {
public:
    FileActions() { ::posix_spawn_file_actions_init(&_actions); }
    ~FileActions() { ::posix_spawn_file_actions_destroy(&_actions); }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;

    posix_spawn_file_actions_t* get() { return &_actions; }

private:
    posix_spawn_file_actions_t _actions{};
};

class Attributes {
public:
    Attributes() { ::posix_spawnattr_init(&_attributes); }
    ~Attributes() { ::posix_spawnattr_destroy(&_attributes); }
    Attributes(const Attributes&) = delete;
    Attributes& operator=(const Attributes&) = delete;

    posix_spawnattr_t* get() { return &_attributes; }

private:
    posix_spawnattr_t _attributes{};
};

} // namespace

std::unique_ptr<StartedTool> StartedTool::start(const std::string& path,
                                                const std::vector<std::string>& arguments,
                                                char* const* environment) {
    std::vector<char*> pointers;
    pointers.reserve(arguments.size() + 2);
    pointers.push_back(const_cast<char*>(path.c_str()));
    for (const auto& argument : arguments) {
        pointers.push_back(const_cast<char*>(argument.c_str()));
    }
    pointers.push_back(nullptr);

    FileActions actions;
    ::posix_spawn_file_actions_addopen(actions.get(), STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    ::posix_spawn_file_actions_addopen(actions.get(), STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    ::posix_spawn_file_actions_addclosefrom_np(actions.get(), STDERR_FILENO + 1);

    // What this process does with signals is not the tool's affair.
    Attributes attributes;
    sigset_t signals;
    ::sigemptyset(&signals);
    ::posix_spawnattr_setsigmask(attributes.get(), &signals);
    ::sigfillset(&signals);
    ::posix_spawnattr_setsigdefault(attributes.get(), &signals);
    ::posix_spawnattr_setflags(attributes.get(), POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);

    pid_t process = 0;
    errno = ::posix_spawn(&process, path.c_str(), actions.get(), attributes.get(), pointers.data(),
                          environment);
    return errno == 0 ? std::unique_ptr<StartedTool>(new StartedTool(process)) : nullptr;
}

StartedTool::~StartedTool() {
    if (_process != 0) {
        ::waitpid(_process, nullptr, WNOHANG);
    }
}

bool StartedTool::hasEnded() const {
    siginfo_t end{};
    // An error means that there is no such child any more.
    return ::waitid(P_PID, static_cast<id_t>(_process), &end, WEXITED | WNOHANG | WNOWAIT) != 0 ||
           end.si_pid == _process;
}

std::string StartedTool::programName() const {
    std::ifstream file("/proc/" + std::to_string(_process) + "/comm");
    std::string name;
    std::getline(file, name);
    return name;
}

bool StartedTool::waitAMoment(const std::string& launcher) {
    using Clock = std::chrono::steady_clock;
    auto end = Clock::now() + moment;
    while (!hasEnded()) {
        if (!launcher.empty() && programName() == launcher) {
            end = Clock::now() + moment;
        } else if (Clock::now() >= end) {
            return false;
        }
        std::this_thread::sleep_for(interval);
    }
    return true;
}

int StartedTool::takeStatus() {
    int status = 0;
    while (::waitpid(_process, &status, 0) < 0 && errno == EINTR) {
    }
    _process = 0;
    return WIFSIGNALED(status) ? signalBase + WTERMSIG(status) : WEXITSTATUS(status);
}

} // namespace kx
