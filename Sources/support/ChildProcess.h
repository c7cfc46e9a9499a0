// Another program, run as a child of this process and owned by an object.
//
// The child gets only this: three descriptors, an environment (this process's own, unless another
// is given), and this process's working directory. Every signal has its default action, and none is
// blocked. The object reaps the child by its process id only, so other code in this process can
// reap its own children.
//
// When an object is destroyed, or takes another child, while its child still runs, the child runs
// on. The object neither ends it nor waits. A thread of its own then reaps the child when it ends,
// so that no zombie is left. To end the child, call terminate() first.
//
// Threading: one thread at a time. Move only; an object that was moved from acts like one whose
// child has ended with status -1.

#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

namespace kx {

class ChildProcess {
public:
    // The child's descriptors 0, 1 and 2. An absent one is this process's own. They stay the
    // caller's, which may close them once the child is launched.
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

    // Blocks until the child has ended, and then returns the same.
    int waitUntilExit();

    // Whether a signal ended the child, so that exitStatus() is its number. False while it runs.
    bool wasEndedBySignal() const { return _wasEndedBySignal; }

    // Asks the child to end (SIGTERM), and returns at once. The child may refuse. Has no effect on
    // a child whose end is known, and on one that now belongs to another user.
    void terminate();

    // The child's process id. It stays the child's until exitStatus() or waitUntilExit() has told
    // its end.
    pid_t processIdentifier() const { return _processIdentifier; }

private:
    void launch(const std::string& path, const std::vector<std::string>& arguments,
                const Streams& streams, char* const* environment);
    void take(int options); // records the end, if waitpid(2) with these options tells it
    void letGo();

    pid_t _processIdentifier = -1;
    std::optional<int> _exitStatus;
    bool _wasEndedBySignal = false;
};

} // namespace kx
