// A program that this process has started, until it has ended and its end is taken.
//
// Threading: one thread. Ownership: an object that is destroyed leaves its program running.

#pragma once

#include <sys/types.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace kx {

class StartedTool {
public:
    // How long waitAMoment() gives a tool.
    static constexpr std::chrono::milliseconds moment{2000};

    // Starts the program at `path` with these arguments and a null-terminated list of environment
    // variables. It reads nothing, its output goes nowhere, its diagnostics to standard error; it
    // gets no other descriptor of this process. Null, with errno set, when the system cannot start
    // it.
    static std::unique_ptr<StartedTool> start(const std::string& path,
                                              const std::vector<std::string>& arguments,
                                              char* const* environment);

    ~StartedTool();
    StartedTool(const StartedTool&) = delete;
    StartedTool& operator=(const StartedTool&) = delete;

    // Whether it has ended. Its number stays taken until takeStatus().
    bool hasEnded() const;

    // The file name of the program that runs, which changes when that becomes another one; also
    // after the end, until takeStatus(). Cut to 15 bytes; empty when the system does not tell.
    std::string programName() const;

    // Returns once it has ended, or after a moment in which it has run. Where `launcher` is the
    // program that runs, it asks a person first and then becomes the tool: that takes as long as it
    // takes, and the moment begins after it. Whether it has ended then.
    bool waitAMoment(const std::string& launcher);

    // After its end, once: the exit status, or 128 and the number of the signal that ended it.
    int takeStatus();

private:
    explicit StartedTool(pid_t process)
        : _process(process) {}

    pid_t _process; // 0 once the status is taken
};

} // namespace kx
