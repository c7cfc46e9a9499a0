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

    // Starts the program at `path` with these arguments, and these environment variables
    // ("NAME=value") or, where absent, this process's own. It reads nothing; what it writes is not
    // kept, but what it complains about goes where this process's own complaints go. Null when the
    // system cannot start it, with a line in the system log.
    static std::unique_ptr<StartedTool> start(const std::string& path,
                                              const std::vector<std::string>& arguments,
                                              const Environment& environment);

    // Whether it has ended.
    bool hasEnded() const;

    // Whether the program that runs, or ran to its end, is `launcher`, by its file name of at most
    // 15 bytes: it has not become the tool yet, or never did. Also true when the system does not
    // tell, and false for an empty name, which stands for no launcher. Not to be asked after
    // status().
    bool isStill(const std::string& launcher) const;

    // Returns once it has ended, or after a moment in which it has run. While it is still
    // `launcher` a person may be asked: that takes as long as it takes, and the moment begins after
    // it. Whether it has ended then.
    bool waitAMoment(const std::string& launcher);

    // Waits for its end. The exit status, or 128 and the number of the signal that ended it; -1
    // when the system did not keep it.
    int status();

private:
    explicit StartedTool(ChildProcess child);

    ChildProcess _child;
};

} // namespace kx
