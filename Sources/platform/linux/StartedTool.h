// A tool that an authority has started, until its end is known.
//
// Threading: one thread. Ownership: a tool whose object is destroyed runs on.

#pragma once

#include "support/ChildProcess.h"

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kx {

class StartedTool {
public:
    // How long waitAMoment() gives a tool.
    static constexpr std::chrono::milliseconds moment{2000};

    using Environment = std::optional<std::vector<std::string>>;

    // Starts the program at `path` with these arguments and these environment variables
    // ("NAME=value"); when they are absent, with this process's own. The tool reads nothing, and
    // its standard output is not kept. It shares this process's standard error. Null when the
    // system cannot start it, with a line in the system log.
    static std::unique_ptr<StartedTool> start(const std::string& path,
                                              const std::vector<std::string>& arguments,
                                              const Environment& environment);

    // Whether the tool has ended.
    bool hasEnded() const;

    // The file name of the program that runs, or ran to its end, cut to 15 bytes. It is a
    // launcher's name until the launcher has become the tool. Absent when the system does not tell
    // it, as where it hides the processes of other users. Must not be called after status().
    std::optional<std::string> programName() const;

    // Returns when the tool has ended, or when it has run for a moment. While the program is still
    // `launcher`, a person may be asked; this takes as long as the person takes, and the moment
    // begins afterwards. While the system does not tell the name of the program, the wait is the
    // same, so that the person is not cut short. An empty name stands for no launcher. Returns
    // whether the tool has ended.
    bool waitAMoment(const std::string& launcher);

    // Waits for the end of the tool. Returns its exit status, or the number of the signal that
    // ended it plus 128; -1 when the system did not keep the status.
    int status();

private:
    explicit StartedTool(ChildProcess child);

    ChildProcess _child;
};

} // namespace kx
