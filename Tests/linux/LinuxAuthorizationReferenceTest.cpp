// The common part of the references of both authorities, over an authority that the test plays.

#include "platform/linux/LinuxAuthorizationReference.h"

#include "doubles/ImpatientWaiting.h"
#include "platform/PollLoopDriver.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <stdexcept>

namespace kx {

namespace {

class PlayedReference final : public LinuxAuthorizationReference {
public:
    PlayedReference(RunningTools& runningTools, Waiting& waiting)
        : LinuxAuthorizationReference(runningTools, waiting) {}

    std::int32_t answer = errAuthorizationSuccess;
    bool isSilent = false;
    int begun = 0;                  // number of programs that were started
    std::vector<bool> mayAskPerson; // flag of each request, in order

    using LinuxAuthorizationReference::begin;

private:
    std::int32_t obtain(const AuthorizationItem& /*right*/, bool mayAsk) override {
        mayAskPerson.push_back(mayAsk);
        return answer;
    }
    std::unique_ptr<StartedTool> start(const std::string& toolPath,
                                       const std::vector<std::string>& arguments) override {
        ++begun;
        return StartedTool::start(toolPath, arguments, std::nullopt);
    }
    std::string programFor(const std::string& toolPath,
                           const std::vector<std::string>& /*arguments*/) const override {
        return toolPath == "/refused" ? std::string() : toolPath;
    }
    std::function<bool()> watchForSilence() override {
        return [this] { return isSilent; };
    }
    std::string launcher() const override { return "sh"; }
    std::int32_t refusalOf(int launcherStatus) const override { return launcherStatus; }
};

// Plays a system that tells nothing about processes. As in ReplacedFile.h, the calling thread keeps
// its view of the mounted file systems.
class HiddenProcesses {
public:
    HiddenProcesses() {
        if (::unshare(CLONE_NEWNS) != 0 ||
            ::mount("none", "/", "none", MS_REC | MS_PRIVATE, nullptr) != 0 ||
            ::mount("none", "/proc", "tmpfs", 0, nullptr) != 0) {
            throw std::runtime_error(std::strerror(errno));
        }
    }
    ~HiddenProcesses() { ::umount2("/proc", MNT_DETACH); }
    HiddenProcesses(const HiddenProcesses&) = delete;
    HiddenProcesses& operator=(const HiddenProcesses&) = delete;
};

class LinuxAuthorizationReferenceTest : public testing::Test {
protected:
    static constexpr auto asking = kAuthorizationFlagInteractionAllowed;
    static constexpr auto keeping = kAuthorizationFlagExtendRights;

    // A launcher that stays itself until a signal ends it.
    static constexpr auto waitAsItself = "while :; do :; done";

    static bool hasNoChildren() {
        return ::waitpid(-1, nullptr, WNOHANG | WNOWAIT) == -1 && errno == ECHILD;
    }

    const AuthorizationItem right{
        .name = std::string(kAuthorizationRightExecute), .value = "/bin/true", .flags = 0};
    PollRunLoop loop;
    RunningTools runningTools{loop};
    ImpatientWaiting waiting;
    PlayedReference reference{runningTools, waiting};
};

} // namespace

TEST_F(LinuxAuthorizationReferenceTest, NobodyIsAskedWhetherARightIsHeld) {
    EXPECT_EQ(reference.copyRights(right, asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(reference.copyRights(right, keeping), errAuthorizationSuccess);
    EXPECT_EQ(reference.mayAskPerson, (std::vector<bool>{true, false}));
}

TEST_F(LinuxAuthorizationReferenceTest, ARightThatTheHostLetRunOutIsNotHeldAnyMore) {
    EXPECT_EQ(reference.copyRights(right, asking | keeping), errAuthorizationSuccess);
    reference.answer = errAuthorizationInteractionNotAllowed;
    EXPECT_EQ(reference.copyRights(right, keeping), errAuthorizationInteractionNotAllowed);
    reference.answer = errAuthorizationSuccess;
    EXPECT_EQ(reference.copyRights(right, keeping), errAuthorizationInteractionNotAllowed);
    EXPECT_EQ(reference.copyRights(right, asking | keeping), errAuthorizationSuccess);
}

TEST_F(LinuxAuthorizationReferenceTest, ALauncherThatEndsAsItselfHasStartedNoTool) {
    EXPECT_EQ(reference.executeWithPrivileges("/bin/sh", {"-c", "exit 42"}, {}), 42);
}

TEST_F(LinuxAuthorizationReferenceTest, ALauncherThatBecomesAnotherProgramHasStartedTheTool) {
    EXPECT_EQ(reference.executeWithPrivileges("/bin/sh", {"-c", "exec /bin/true"}, {}),
              errAuthorizationSuccess);
}

TEST_F(LinuxAuthorizationReferenceTest, ALauncherWhoseEndIsUnknownIsNotSaidToHaveRefused) {
    std::vector<int> ends;
    const auto before = std::signal(SIGCHLD, SIG_IGN); // the system then keeps no exit status
    EXPECT_EQ(
        reference.executeWithPrivileges("/bin/sh", {"-c", "exec /bin/true"},
                                        [&](const ToolEnd& end) { ends.push_back(end.status); }),
        errAuthorizationSuccess);
    std::signal(SIGCHLD, before);
    EXPECT_TRUE(runLoopUntil(loop, [&] { return !ends.empty(); }));
    EXPECT_EQ(ends, std::vector<int>{-1});
}

TEST_F(LinuxAuthorizationReferenceTest, WithoutNamesOfProgramsTheStatusTellsARefusal) {
    std::vector<int> ends;
    const auto run = [&](const std::string& script) {
        return reference.executeWithPrivileges(
            "/bin/sh", {"-c", script}, [&](const ToolEnd& end) { ends.push_back(end.status); });
    };
    const HiddenProcesses hidden;
    EXPECT_EQ(run("exit 126"), 126);
    EXPECT_EQ(run("exit 127"), 127);
    EXPECT_EQ(run("exec /bin/true"), errAuthorizationSuccess);
    EXPECT_EQ(run("exec /bin/false"), errAuthorizationSuccess);
    EXPECT_TRUE(runLoopUntil(loop, [&] { return ends.size() == 2; }));
    EXPECT_EQ(ends, (std::vector<int>{0, 1}));
}

// The program that still runs may be the launcher, in which a person is asked.
TEST_F(LinuxAuthorizationReferenceTest, WithoutNamesOfProgramsALongRunIsWaitedFor) {
    const HiddenProcesses hidden;
    EXPECT_EQ(reference.executeWithPrivileges("/bin/sh", {"-c", "sleep 2.2; exit 126"}, {}), 126);
}

TEST_F(LinuxAuthorizationReferenceTest, ALauncherIsEndedWhenThePersonGivesUp) {
    waiting.patience = std::chrono::milliseconds(100);
    EXPECT_EQ(reference.begin("/bin/sh", {"-c", waitAsItself}), errAuthorizationCanceled);
    EXPECT_EQ(waiting.sentences, std::vector<std::string>{"Waiting for administrator rights."});
    EXPECT_TRUE(runLoopUntil(loop, hasNoChildren));
}

TEST_F(LinuxAuthorizationReferenceTest, ALauncherIsEndedWhenItsAuthorityFallsSilent) {
    reference.isSilent = true;
    EXPECT_EQ(reference.begin("/bin/sh", {"-c", waitAsItself}), errAuthorizationDenied);
    EXPECT_TRUE(runLoopUntil(loop, hasNoChildren));
}

TEST_F(LinuxAuthorizationReferenceTest, ALauncherThatBecomesTheToolAtTheLastMomentIsNoRefusal) {
    waiting.patience = std::chrono::milliseconds(100);
    // It does not end when it is asked to, but becomes the tool.
    EXPECT_EQ(reference.begin("/bin/sh", {"-c", "trap 'exec /bin/true' TERM; while :; do :; done"}),
              errAuthorizationSuccess);
}

TEST_F(LinuxAuthorizationReferenceTest, AToolThatHasBegunIsTakenOverByTheRunWithItsArguments) {
    const std::vector<std::string> arguments{"-c", "echo once >&2; exec /bin/false"};
    std::vector<ToolEnd> ends;
    const auto record = [&](const ToolEnd& end) { ends.push_back(end); };
    EXPECT_EQ(reference.begin("/bin/sh", arguments), errAuthorizationSuccess);
    EXPECT_EQ(reference.executeWithPrivileges("/bin/sh", arguments, record),
              errAuthorizationSuccess);
    EXPECT_EQ(reference.begun, 1);
    EXPECT_TRUE(runLoopUntil(loop, [&] { return ends.size() == 1; }));
    EXPECT_EQ(ends, (std::vector<ToolEnd>{{1, "once"}}));

    EXPECT_EQ(reference.executeWithPrivileges("/bin/sh", arguments, record),
              errAuthorizationSuccess);
    EXPECT_EQ(reference.begun, 2) << "it was taken over once";
    EXPECT_EQ(reference.begin("/bin/sh", arguments), errAuthorizationSuccess);
    EXPECT_EQ(reference.executeWithPrivileges("/bin/sh", {"-c", "exec /bin/true"}, record),
              errAuthorizationSuccess);
    EXPECT_EQ(reference.begun, 4) << "other arguments are another run";
}

TEST_F(LinuxAuthorizationReferenceTest, ARunThatTheAuthorityRefusesStartsNothing) {
    EXPECT_EQ(reference.executeWithPrivileges("/refused", {}, {}), errAuthorizationDenied);
    EXPECT_EQ(reference.begun, 0);
}

// A person may cancel the wait for the tool's first work, but not the tool.
TEST_F(LinuxAuthorizationReferenceTest, AToolRunsOnWhenThePersonDoesNotWaitForItsFirstWork) {
    std::vector<int> ends;
    waiting.patience = std::chrono::milliseconds(300);
    EXPECT_EQ(
        reference.executeWithPrivileges("/bin/sh", {"-c", "exec /bin/sleep 1"},
                                        [&](const ToolEnd& end) { ends.push_back(end.status); }),
        errAuthorizationSuccess);
    EXPECT_TRUE(ends.empty());
    EXPECT_TRUE(runLoopUntil(loop, [&] { return !ends.empty(); }));
    EXPECT_EQ(ends, std::vector<int>{0});
}

} // namespace kx
