// What the references of both authorities have in common, over an authority that the test plays.

#include "platform/linux/HostReference.h"

#include "platform/posix/PollRunLoop.h"

#include <gtest/gtest.h>

#include <csignal>

namespace kx {

namespace {

class PlayedReference final : public HostReference {
public:
    explicit PlayedReference(RunningTools& runningTools)
        : HostReference(runningTools) {}

    std::int32_t answer = errAuthorizationSuccess;
    std::vector<bool> mayAskPerson; // of each request, in their order

private:
    std::int32_t obtain(const AuthorizationItem& /*right*/, bool mayAsk) override {
        mayAskPerson.push_back(mayAsk);
        return answer;
    }
    std::unique_ptr<StartedTool> start(const std::string& toolPath,
                                       const std::vector<std::string>& arguments) override {
        return StartedTool::start(toolPath, arguments, std::nullopt);
    }
    std::string launcher() const override { return "sh"; }
    std::int32_t refusalOf(int launcherStatus) const override { return launcherStatus; }
};

class HostReferenceTest : public testing::Test {
protected:
    static constexpr auto asking = kAuthorizationFlagInteractionAllowed;
    static constexpr auto keeping = kAuthorizationFlagExtendRights;

    const AuthorizationItem right{
        .name = std::string(kAuthorizationRightExecute), .value = "/bin/true", .flags = 0};
    PollRunLoop loop;
    RunningTools runningTools{loop};
    PlayedReference reference{runningTools};
};

} // namespace

TEST_F(HostReferenceTest, NobodyIsAskedWhetherARightIsHeld) {
    EXPECT_EQ(reference.copyRights(right, asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(reference.copyRights(right, keeping), errAuthorizationSuccess);
    EXPECT_EQ(reference.mayAskPerson, (std::vector<bool>{true, false}));
}

TEST_F(HostReferenceTest, ARightThatTheHostLetRunOutIsNotHeldAnyMore) {
    EXPECT_EQ(reference.copyRights(right, asking | keeping), errAuthorizationSuccess);
    reference.answer = errAuthorizationInteractionNotAllowed;
    EXPECT_EQ(reference.copyRights(right, keeping), errAuthorizationInteractionNotAllowed);
    reference.answer = errAuthorizationSuccess;
    EXPECT_EQ(reference.copyRights(right, keeping), errAuthorizationInteractionNotAllowed);
    EXPECT_EQ(reference.copyRights(right, asking | keeping), errAuthorizationSuccess);
}

TEST_F(HostReferenceTest, ALauncherThatEndsAsItselfHasStartedNoTool) {
    EXPECT_EQ(reference.executeWithPrivileges("/bin/sh", {"-c", "exit 42"}, {}), 42);
}

TEST_F(HostReferenceTest, ALauncherThatBecomesAnotherProgramHasStartedTheTool) {
    EXPECT_EQ(reference.executeWithPrivileges("/bin/sh", {"-c", "exec /bin/true"}, {}),
              errAuthorizationSuccess);
}

TEST_F(HostReferenceTest, ALauncherWhoseEndIsUnknownHasStartedNoTool) {
    const auto before = std::signal(SIGCHLD, SIG_IGN); // the system keeps no ends then
    EXPECT_EQ(reference.executeWithPrivileges("/bin/sh", {"-c", "exec /bin/true"}, {}), -1);
    std::signal(SIGCHLD, before);
}

} // namespace kx
