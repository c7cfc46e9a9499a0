// The start and the end of a tool. They are the same for a rule that lets the user run it, and for
// root.

#include "AuthorityFixture.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>

namespace kx {

namespace {

using Ends = std::vector<int>;

class AToolRun : public AuthorityFixture {};

TEST_F(AToolRun, IsDoneWhenTheStartReturns) {
    EXPECT_EQ(runArp(), errAuthorizationSuccess);
    EXPECT_EQ(neighbourInTime(), unitAddress);
}

TEST_F(AToolRun, HasItsEndToldFromTheRunLoop) {
    ASSERT_EQ(runArp(), errAuthorizationSuccess);
    EXPECT_EQ(ends, Ends{});
    EXPECT_TRUE(runUntilEnd());
    EXPECT_EQ(ends, Ends{0});
    EXPECT_FALSE(hasChildren());
}

TEST_F(AToolRun, MayFailAfterItsStartAndSaysWhy) {
    EXPECT_EQ(run(arpTool, {"-s", "203.0.113.1", unitAddress}), errAuthorizationSuccess);
    EXPECT_TRUE(runUntilEnd());
    EXPECT_EQ(ends, Ends{255});
    EXPECT_EQ(sentences, std::vector<std::string>{"SIOCSARP: Network is unreachable"});
}

TEST_F(AToolRun, TakesOutTheEntryThatItHasMade) {
    EXPECT_EQ(runArp(), errAuthorizationSuccess);
    EXPECT_EQ(neighbourInTime(), unitAddress);
    EXPECT_EQ(run(arpTool, {"-d", newAddress, unitAddress}), errAuthorizationSuccess);
    EXPECT_TRUE(runLoopUntil(loop, [] { return neighbour().empty(); }));
    EXPECT_TRUE(runLoopUntil(loop, [this] { return ends.size() == 2; }));
    EXPECT_EQ(ends, (Ends{0, 0}));
}

TEST_F(AToolRun, TakesOutNoEntryOfAnotherHardwareAddress) {
    EXPECT_EQ(runArp(), errAuthorizationSuccess);
    EXPECT_EQ(neighbourInTime(), unitAddress);
    EXPECT_TRUE(runUntilEnd());
    EXPECT_EQ(run(arpTool, {"-d", newAddress, "02:00:00:00:00:78"}), errAuthorizationSuccess);
    EXPECT_TRUE(runLoopUntil(loop, [this] { return ends.size() == 2; }));
    EXPECT_EQ(ends.back(), 67);
    EXPECT_EQ(sentences.back(), "The ARP cache has no fixed entry with this address and this "
                                "hardware address.");
    EXPECT_EQ(neighbour(), unitAddress);
}

// A tool that waits for room to say more would never end.
TEST_F(AToolRun, MaySayMuchOfWhichTheBeginningIsKept) {
    EXPECT_EQ(
        runShell("printf '\\n  first \\nsecond\\n' >&2; yes >&2 & sleep 0.5; kill %1; exit 4"),
        errAuthorizationSuccess);
    EXPECT_TRUE(runUntilEnd());
    EXPECT_EQ(ends, Ends{4});
    EXPECT_EQ(sentences, std::vector<std::string>{"first"});
}

TEST_F(AToolRun, IsNotTakenForARefusalByItsStatus) {
    for (const int status : {126, 127}) {
        ends.clear();
        EXPECT_EQ(runShell("exit " + std::to_string(status)), errAuthorizationSuccess);
        EXPECT_TRUE(runUntilEnd());
        EXPECT_EQ(ends, Ends{status});
    }
}

TEST_F(AToolRun, TellsTheSignalThatEndedIt) {
    EXPECT_EQ(runShell("kill -KILL $$"), errAuthorizationSuccess);
    EXPECT_TRUE(runUntilEnd());
    EXPECT_EQ(ends, Ends{128 + SIGKILL});
}

TEST_F(AToolRun, NeedsAToolThatIsThere) {
    EXPECT_EQ(run("/usr/sbin/no-such-tool", {}), errAuthorizationToolExecuteFailure);
    EXPECT_EQ(run("/etc/passwd", {}), errAuthorizationToolExecuteFailure);
    EXPECT_FALSE(hasChildren());
    runLoopFor(loop, std::chrono::milliseconds(300));
    EXPECT_EQ(ends, Ends{});
}

TEST_F(AToolRun, GetsItsArgumentsAsTheyAre) {
    const std::string script =
        R"([ $# = 3 ] && [ "$1" = 'a b' ] && [ "$2" = '' ] && [ "$3" = '$HOME;' ])";
    EXPECT_EQ(run(shell, {"-c", script, "name", "a b", "", "$HOME;"}), errAuthorizationSuccess);
    EXPECT_TRUE(runUntilEnd());
    EXPECT_EQ(ends, Ends{0});
}

TEST_F(AToolRun, MayHaveNoArguments) {
    EXPECT_EQ(run("/bin/true", {}), errAuthorizationSuccess);
    EXPECT_TRUE(runUntilEnd());
    EXPECT_EQ(ends, Ends{0});
}

TEST_F(AToolRun, IsTheAdministratorsAndReadsNothing) {
    EXPECT_EQ(runShell("read line && exit 1; exit $(id -u)"), errAuthorizationSuccess);
    EXPECT_TRUE(runUntilEnd());
    EXPECT_EQ(ends, Ends{0});
}

TEST_F(AToolRun, GetsNoDescriptorOfTheApplication) {
    const int descriptor = ::open("/dev/null", O_RDONLY);
    ASSERT_GE(descriptor, 0);
    EXPECT_EQ(runShell("[ ! -e /proc/$$/fd/" + std::to_string(descriptor) + " ]"),
              errAuthorizationSuccess);
    EXPECT_TRUE(runUntilEnd());
    EXPECT_EQ(ends, Ends{0});
    ::close(descriptor);
}

TEST_F(AToolRun, GoesOnAfterAMoment) {
    HeldTool tool;
    EXPECT_EQ(runShell(tool.script()), errAuthorizationSuccess);
    runLoopFor(loop, std::chrono::milliseconds(300));
    EXPECT_EQ(ends, Ends{});
    tool.release();
    EXPECT_TRUE(runUntilEnd());
    EXPECT_EQ(ends, Ends{5});
    EXPECT_FALSE(hasChildren());
}

TEST_F(AToolRun, IsReapedThoughNobodyWantsToKnow) {
    HeldTool tool;
    EXPECT_EQ(runShell(tool.script()), errAuthorizationSuccess);
    EXPECT_EQ(reference->executeWithPrivileges("/bin/true", {}, {}), errAuthorizationSuccess);
    reference.reset();
    tool.release();
    EXPECT_TRUE(runLoopUntil(loop, [] { return !hasChildren(); }));
    runLoopFor(loop, std::chrono::milliseconds(300));
    EXPECT_EQ(ends, Ends{});
}

TEST_F(AToolRun, LetsItsReferenceBeDestroyedByTheWordOfItsEnd) {
    EXPECT_EQ(runArp(), errAuthorizationSuccess);
    EXPECT_EQ(reference->executeWithPrivileges(arpTool, {"-s", newAddress, unitAddress},
                                               [this](const ToolEnd& end) {
                                                   ends.push_back(end.status);
                                                   reference.reset();
                                               }),
              errAuthorizationSuccess);
    EXPECT_EQ(runArp(), errAuthorizationSuccess);
    runLoopFor(loop, std::chrono::milliseconds(300));
    EXPECT_EQ(ends, (Ends{0, 0}));
    EXPECT_FALSE(hasChildren());
}

TEST_F(AToolRun, LeavesNothingBehind) {
    const auto runAll = [this] {
        EXPECT_EQ(reference->copyRights(rightOf(arpTool), asking | keeping),
                  errAuthorizationSuccess);
        EXPECT_EQ(runArp(), errAuthorizationSuccess);
        EXPECT_EQ(run("/usr/sbin/no-such-tool", {}), errAuthorizationToolExecuteFailure);
        EXPECT_TRUE(runUntilEnd());
        ends.clear();
        reference = service->create();
    };
    runAll(); // opens the descriptors that the bus library keeps
    const auto before = openDescriptors();
    for (int round = 0; round < 5; ++round) {
        runAll();
    }
    // The bus library closes its last connection after an unknown time.
    EXPECT_TRUE(runLoopUntil(loop, [before] { return openDescriptors() <= before; }));
    EXPECT_FALSE(hasChildren());
}

} // namespace

} // namespace kx
