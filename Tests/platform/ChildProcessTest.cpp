#include "support/ChildProcess.h"

#include "ChildFixture.h"
#include "System Configuration/SystemCallWrappers.h"
#include "support/Pipe.h"
#include "support/PlatformException.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <utility>

namespace kx {

namespace {

class ChildProcessTest : public ChildFixture {
protected:
    // The text that the child writes to its standard output until it ends.
    static std::string outputOf(const std::string& path,
                                const std::vector<std::string>& arguments) {
        Pipe output;
        ChildProcess child(path, arguments,
                           {.standardInput = {},
                            .standardOutput = output.writingEnd.number(),
                            .standardError = {}});
        output.writingEnd.close();
        auto text = textOf(output.readingEnd.number());
        EXPECT_EQ(child.waitUntilExit(), 0);
        return text;
    }

    static std::string textOf(int descriptor) {
        std::string text;
        std::array<char, 512> buffer{};
        ssize_t count = 0;
        while ((count = Read(descriptor, buffer.data(), buffer.size())) > 0) {
            text.append(buffer.data(), static_cast<std::size_t>(count));
        }
        return text;
    }

    static std::string launchFailure(const std::string& path,
                                     const std::vector<std::string>& arguments = {}) {
        try {
            ChildProcess child(path, arguments);
        } catch (const PlatformException& exception) {
            return exception.reason();
        }
        return "launched";
    }
};

} // namespace

TEST_F(ChildProcessTest, TheExitStatusIsTheTools) {
    for (const int status : {0, 1, 7, 255}) {
        ChildProcess child(shell, script("exit " + std::to_string(status)));
        EXPECT_EQ(child.waitUntilExit(), status);
        EXPECT_EQ(child.exitStatus(), status);
        EXPECT_FALSE(child.wasEndedBySignal());
    }
}

TEST_F(ChildProcessTest, AChildEndedByASignalHasItsNumberForAStatus) {
    ChildProcess child(shell, script("kill -KILL $$"));
    EXPECT_EQ(child.waitUntilExit(), SIGKILL);
    EXPECT_TRUE(child.wasEndedBySignal());
}

TEST_F(ChildProcessTest, APollNeverBlocksAndTellsTheEndOnce) {
    Pipe input;
    ChildProcess child(
        shell, script("read line; exit 3"),
        {.standardInput = input.readingEnd.number(), .standardOutput = {}, .standardError = {}});
    EXPECT_EQ(child.exitStatus(), std::nullopt);
    EXPECT_FALSE(child.wasEndedBySignal());
    input.writingEnd.close();
    ASSERT_TRUE(waitUntil([&] { return child.exitStatus().has_value(); }));
    EXPECT_EQ(child.exitStatus(), 3);
    EXPECT_EQ(child.waitUntilExit(), 3);
}

TEST_F(ChildProcessTest, ATerminatedChildEnds) {
    ChildProcess child("/bin/sleep", {"1000"});
    child.terminate();
    EXPECT_EQ(child.waitUntilExit(), SIGTERM);
    EXPECT_TRUE(child.wasEndedBySignal());
    child.terminate();
    EXPECT_EQ(child.exitStatus(), SIGTERM);
}

TEST_F(ChildProcessTest, AChildMayRefuseToBeTerminated) {
    Pipe input;
    Pipe output;
    ChildProcess child(shell,
                       script("trap 'echo refused' TERM; echo ready; "
                              "while ! read line; do :; done; read line; exit 5"),
                       {.standardInput = input.readingEnd.number(),
                        .standardOutput = output.writingEnd.number(),
                        .standardError = {}});
    output.writingEnd.close();
    std::array<char, 16> text{};
    ASSERT_EQ(Read(output.readingEnd.number(), text.data(), text.size()), 6);
    child.terminate();
    ASSERT_EQ(Write(input.writingEnd.number(), "\n\n", 2), 2);
    EXPECT_EQ(child.waitUntilExit(), 5);
    EXPECT_FALSE(child.wasEndedBySignal());
    EXPECT_EQ(textOf(output.readingEnd.number()), "refused\n");
}

TEST_F(ChildProcessTest, AToolThatIsNotThereIsToldInWords) {
    EXPECT_EQ(launchFailure("/no/such/tool"),
              "Could not launch /no/such/tool: No such file or directory");
    EXPECT_EQ(launchFailure(""), "Could not launch : No such file or directory");
}

TEST_F(ChildProcessTest, WhatIsNoProgramCannotBeLaunched) {
    EXPECT_EQ(launchFailure("/proc/version"), "Could not launch /proc/version: Permission denied");
    EXPECT_EQ(launchFailure("/tmp"), "Could not launch /tmp: Permission denied");
}

TEST_F(ChildProcessTest, NoFoldersAreSearchedForTheTool) {
    EXPECT_EQ(launchFailure("sh"), "Could not launch sh: No such file or directory");
}

TEST_F(ChildProcessTest, AWordWithAZeroByteIsNotCutShort) {
    const std::string word("a\0b", 3);
    EXPECT_EQ(launchFailure(shell, {word}), "Could not launch /bin/sh: Invalid argument");
    EXPECT_EQ(launchFailure(shell + '\0'), "Could not launch /bin/sh\\x00: Invalid argument");
}

TEST_F(ChildProcessTest, AClosedDescriptorCannotBeGiven) {
    Pipe pipe;
    const int closed = pipe.readingEnd.number();
    pipe.readingEnd.close();
    EXPECT_THROW(ChildProcess(shell, script("exit 0"),
                              {.standardInput = closed, .standardOutput = {}, .standardError = {}}),
                 PlatformException);
}

TEST_F(ChildProcessTest, TheArgumentsReachTheToolAsTheyAre) {
    EXPECT_EQ(outputOf("/usr/bin/printf", {"[%s]", "", "two words", "*", "\xC3\xA9", "'\"$"}),
              "[][two words][*][\xC3\xA9]['\"$]");
    EXPECT_EQ(outputOf(shell, {"-c", "echo $0"}), "/bin/sh\n");
}

TEST_F(ChildProcessTest, TheEnvironmentIsPassedOn) {
    ::setenv("KX_PASSED_ON", "yes", 1);
    EXPECT_EQ(outputOf(shell, script("echo $KX_PASSED_ON")), "yes\n");
    ::unsetenv("KX_PASSED_ON");
}

TEST_F(ChildProcessTest, AnotherEnvironmentIsAllThatTheChildHas) {
    Pipe output;
    ChildProcess child(
        "/usr/bin/env", {},
        {.standardInput = {}, .standardOutput = output.writingEnd.number(), .standardError = {}},
        {"ONE=1", "TWO=2"});
    output.writingEnd.close();
    EXPECT_EQ(textOf(output.readingEnd.number()), "ONE=1\nTWO=2\n");
    EXPECT_EQ(child.waitUntilExit(), 0);
}

TEST_F(ChildProcessTest, OneDescriptorMayServeTwice) {
    Pipe output;
    const int writingEnd = output.writingEnd.number();
    ChildProcess child(
        shell, script("echo one; echo two >&2"),
        {.standardInput = {}, .standardOutput = writingEnd, .standardError = writingEnd});
    output.writingEnd.close();
    EXPECT_EQ(textOf(output.readingEnd.number()), "one\ntwo\n");
    EXPECT_EQ(child.waitUntilExit(), 0);
}

TEST_F(ChildProcessTest, StandardDescriptorsCanBeExchanged) {
    Pipe one;
    Pipe other;
    const FileDescriptor output(::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3));
    const FileDescriptor error(::fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 3));
    ::dup2(one.writingEnd.number(), STDOUT_FILENO);
    ::dup2(other.writingEnd.number(), STDERR_FILENO);
    ChildProcess child(
        shell, script("echo out; echo err >&2"),
        {.standardInput = {}, .standardOutput = STDERR_FILENO, .standardError = STDOUT_FILENO});
    ::dup2(output.number(), STDOUT_FILENO);
    ::dup2(error.number(), STDERR_FILENO);
    one.writingEnd.close();
    other.writingEnd.close();
    EXPECT_EQ(textOf(one.readingEnd.number()), "err\n");
    EXPECT_EQ(textOf(other.readingEnd.number()), "out\n");
    EXPECT_EQ(child.waitUntilExit(), 0);
}

TEST_F(ChildProcessTest, NoOtherDescriptorReachesTheChild) {
    int careless[2]; // opened as a library might open them
    ASSERT_EQ(::pipe(careless), 0);
    // The descriptors 0, 1, 2, and the one with which ls reads the folder.
    EXPECT_EQ(outputOf("/bin/ls", {"/proc/self/fd"}), "0\n1\n2\n3\n");
    ::close(careless[0]);
    ::close(careless[1]);
}

TEST_F(ChildProcessTest, SignalsAreAtTheirDefaultsInTheChild) {
    const SignalHandler before = Signal(SIGPIPE, SIG_IGN);
    sigset_t blocked;
    sigset_t maskBefore;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGTERM);
    ::sigprocmask(SIG_BLOCK, &blocked, &maskBefore);
    const std::string status = outputOf("/bin/cat", {"/proc/self/status"});
    ::sigprocmask(SIG_SETMASK, &maskBefore, nullptr);
    Signal(SIGPIPE, before);
    EXPECT_NE(status.find("SigBlk:\t0000000000000000\n"), std::string::npos) << status;
    // Only the lower half counts: the C library reserves two signals above it.
    const auto ignored = status.find("SigIgn:\t");
    ASSERT_NE(ignored, std::string::npos) << status;
    EXPECT_EQ(std::stoull(status.substr(ignored + 8, 16), nullptr, 16) & 0x7FFFFFFFU, 0U) << status;
}

TEST_F(ChildProcessTest, AMovedChildBelongsToItsNewObject) {
    ChildProcess first("/bin/sleep", {"1000"});
    const pid_t identifier = first.processIdentifier();
    ChildProcess second(std::move(first));
    EXPECT_EQ(second.processIdentifier(), identifier);
    // NOLINTBEGIN(bugprone-use-after-move): tests the state after a move
    EXPECT_EQ(first.exitStatus(), -1);
    EXPECT_EQ(first.processIdentifier(), -1);
    first.terminate();
    // NOLINTEND(bugprone-use-after-move)
    EXPECT_EQ(second.exitStatus(), std::nullopt);
    first = std::move(second);
    first.terminate();
    EXPECT_EQ(first.waitUntilExit(), SIGTERM);
}

TEST_F(ChildProcessTest, AChildThatIsLetGoRunsOnAndLeavesNothing) {
    Pipe input;
    pid_t identifier = 0;
    {
        const ChildProcess child(shell, script("read line"),
                                 {.standardInput = input.readingEnd.number(),
                                  .standardOutput = {},
                                  .standardError = {}});
        identifier = child.processIdentifier();
    }
    EXPECT_EQ(::kill(identifier, 0), 0); // the child runs
    input.writingEnd.close();
    EXPECT_TRUE(waitUntil([&] { return ::kill(identifier, 0) != 0; })); // now it is gone
}

TEST_F(ChildProcessTest, AnEndedChildThatIsLetGoLeavesNothing) {
    pid_t identifier = 0;
    {
        const ChildProcess child("/bin/true");
        identifier = child.processIdentifier();
        siginfo_t end{};
        ASSERT_EQ(::waitid(P_PID, static_cast<id_t>(identifier), &end, WEXITED | WNOWAIT), 0);
    }
    EXPECT_NE(::kill(identifier, 0), 0);
}

TEST_F(ChildProcessTest, OtherChildrenOfTheProcessAreNotReaped) {
    const pid_t other = ::fork();
    if (other == 0) {
        ::_exit(9);
    }
    ChildProcess child(shell, script("exit 4"));
    EXPECT_EQ(child.waitUntilExit(), 4);
    int status = 0;
    EXPECT_EQ(::waitpid(other, &status, 0), other);
    EXPECT_EQ(WEXITSTATUS(status), 9);
}

TEST_F(ChildProcessTest, AStatusThatTheSystemDidNotKeepIsUnknown) {
    const SignalHandler before = Signal(SIGCHLD, SIG_IGN);
    ChildProcess child(shell, script("exit 4"));
    EXPECT_EQ(child.waitUntilExit(), -1);
    Signal(SIGCHLD, before);
}

TEST_F(ChildProcessTest, AThousandChildrenLeaveNothingBehind) {
    for (int round = 0; round < 1000; ++round) {
        ChildProcess child("/bin/true");
        ASSERT_EQ(child.waitUntilExit(), 0);
    }
}

TEST_F(ChildProcessTest, APipeIsClosedAtTheLaunchOfAnotherProgram) {
    const Pipe pipe;
    EXPECT_NE(::fcntl(pipe.readingEnd.number(), F_GETFD) & FD_CLOEXEC, 0);
    EXPECT_NE(::fcntl(pipe.writingEnd.number(), F_GETFD) & FD_CLOEXEC, 0);
}

TEST_F(ChildProcessTest, ADescriptorHasOneOwner) {
    Pipe pipe;
    const int number = pipe.readingEnd.number();
    FileDescriptor taken(std::move(pipe.readingEnd));
    EXPECT_EQ(taken.number(), number);
    EXPECT_EQ(pipe.readingEnd.number(), -1); // NOLINT(bugprone-use-after-move): tested here
    pipe.writingEnd = std::move(taken);      // this closes the writing end
    EXPECT_EQ(pipe.writingEnd.number(), number);
    EXPECT_EQ(::fcntl(number, F_GETFD) & FD_CLOEXEC, FD_CLOEXEC);
    pipe.writingEnd.close();
    EXPECT_EQ(::fcntl(number, F_GETFD), -1);
    pipe.writingEnd.close();
}

} // namespace kx
