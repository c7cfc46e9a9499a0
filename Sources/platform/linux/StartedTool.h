// A tool that an authority has started, until its end is known.
//
// Threading: one thread. Ownership: a tool whose object is destroyed runs on, and nobody hears what
// it says after that.

#pragma once

#include "support/ChildProcess.h"
#include "support/Pipe.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kx {

class StartedTool {
public:
    using Environment = std::optional<std::vector<std::string>>;

    // The number of bytes of a tool's words that are kept.
    static constexpr std::size_t mostSaid = 1000;

    // Starts the program at `path` with these arguments and these environment variables
    // ("NAME=value"); when they are absent, with this process's own. The tool reads nothing, and
    // its standard output is not kept. Null when the system cannot start it, with a line in the
    // system log.
    static std::unique_ptr<StartedTool> start(const std::string& path,
                                              const std::vector<std::string>& arguments,
                                              const Environment& environment);

    // Whether the tool has ended. A tool that says much waits until this is asked.
    bool hasEnded();

    // The file name of the program that runs, or ran to its end, cut to 15 bytes. It is a
    // launcher's name until the launcher has become the tool. Absent when the system does not tell
    // it, as where it hides the processes of other users. Must not be called after status().
    std::optional<std::string> programName() const;

    // Asks the program to end. The system refuses this, and nothing happens, once a launcher has
    // become a tool with more rights than this process.
    void askToEnd();

    // Waits for the end of the tool. Returns its exit status, or the number of the signal that
    // ended it plus 128; -1 when the system did not keep the status.
    int status();

    // The first line of what the tool has said on standard error so far, without blanks around it;
    // empty when there is none, or when it is not UTF-8.
    std::string sentence();

private:
    StartedTool(ChildProcess child, FileDescriptor words);
    void listen();

    ChildProcess _child;
    FileDescriptor _words; // reading end of the tool's standard error; does not block
    std::string _said;
};

} // namespace kx
