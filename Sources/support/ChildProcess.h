// Another program, run as a child of this process and owned by an object.
//
// The child begins with what it is given and nothing besides: three descriptors, this process's
// environment unless it is given another, this process's working directory, every signal at its
// default and none blocked. It is reaped by its own process id only, so that children of others in
// this process stay theirs.
//
// An object that is destroyed, or takes another child, while its child still runs lets it run on:
// it neither ends it nor waits. A thread of its own then reaps the child when it ends, so that
// nothing is left of it. Who wants the child gone calls terminate() first.
//
// Threading: one thread at a time. Move only; an object that was moved from is one whose child has
// ended with status -1.

#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

namespace kx {

class ChildProcess {
public:
    // What the child has for its descriptors 0, 1 and 2. Absent: what this process has there. They
    // stay the caller's, and are not needed any more once the child is launched.
    struct Streams {
        std::optional<int> standardInput;
        std::optional<int> standardOutput;
        std::optional<int> standardError;
    };

    // Launches the program at `path`, a full path: no folders are searched. The program sees `path`
    // as its own name and then `arguments`. Throws PlatformException when it cannot be launched;
    // the reason names the path and has the system's text: "Could not launch /no/such/tool: No such
    // file or directory".
    explicit ChildProcess(const std::string& path, const std::vector<std::string>& arguments = {});
    ChildProcess(const std::string& path, const std::vector<std::string>& arguments,
                 const Streams& streams);

    // The same, with these environment variables ("NAME=value") instead of this process's.
    ChildProcess(const std::string& path, const std::vector<std::string>& arguments,
                 const Streams& streams, const std::vector<std::string>& environment);
    ~ChildProcess();
    ChildProcess(ChildProcess&& other) noexcept;
    ChildProcess& operator=(ChildProcess&& other) noexcept;
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    // How the child ended: its exit status (0 to 255), or the number of the signal that ended it;
    // wasEndedBySignal() tells which. Absent while it runs; never blocks. -1 when the system did
    // not keep it, as in a process that ignores SIGCHLD.
    std::optional<int> exitStatus();

    // Blocks until the child has ended; then the same.
    int waitUntilExit();

    // Whether a signal ended the child, so that exitStatus() is its number. False while it runs.
    bool wasEndedBySignal() const { return _wasEndedBySignal; }

    // Asks the child to end (SIGTERM), and returns at once. It may refuse. Without effect on a
    // child whose end is known, and on one that has passed to another user.
    void terminate();

    // The child's process id. It is the child's until exitStatus() or waitUntilExit() has told of
    // its end.
    pid_t processIdentifier() const { return _processIdentifier; }

private:
    void launch(const std::string& path, const std::vector<std::string>& arguments,
                const Streams& streams, char* const* environment);
    void take(int options); // notes the end, if waitpid(2) with these options tells of one
    void letGo();

    pid_t _processIdentifier = -1;
    std::optional<int> _exitStatus;
    bool _wasEndedBySignal = false;
};

} // namespace kx
