// The questions to a person, their number and their effects. Each suite has a person or a rule of
// its own.

#include "AuthorityFixture.h"
#include "platform/linux/PolkitCheck.h"
#include "support/Pipe.h"

#include <sys/socket.h>
#include <sys/un.h>

#include <QCoreApplication>
#include <QTimer>
#include <chrono>

namespace kx {

namespace {

using Actions = std::vector<std::string>;

// A right that one person granted stays granted to the process, so each of these tests has its own
// process and daemon.
class AnAllowingPerson : public AuthorityFixture {};

TEST_F(AnAllowingPerson, IsAskedOnce) {
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(runArp(), errAuthorizationSuccess);
    EXPECT_EQ(neighbourInTime(), unitAddress);
    EXPECT_EQ(dialogs(), Actions{arpAction});
}

// The question ends before the next event, so Qt's loop must not run under it.
TEST_F(AnAllowingPerson, IsAskedWhileTheEventLoopStands) {
    int events = 0;
    QTimer::singleShot(0, QCoreApplication::instance(), [&] { ++events; });
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(runArp(), errAuthorizationSuccess);
    EXPECT_EQ(dialogs(), Actions{arpAction});
    EXPECT_EQ(events, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(events, 1);
}

TEST_F(AnAllowingPerson, IsNotAskedWhetherTheRightIsHeld) {
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), keeping),
              errAuthorizationInteractionNotAllowed);
    EXPECT_EQ(dialogs(), Actions{});
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), keeping), errAuthorizationSuccess);
    EXPECT_EQ(dialogs(), Actions{arpAction});
}

TEST_F(AnAllowingPerson, GrantsNothingForLaterWhenTheRightIsNotToBeKept) {
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), asking), errAuthorizationSuccess);
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), keeping),
              errAuthorizationInteractionNotAllowed);
}

TEST_F(AnAllowingPerson, GrantsTheRightToOneToolOnly) {
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(reference->copyRights(rightOf(shell), keeping),
              errAuthorizationInteractionNotAllowed);
    EXPECT_EQ(reference->copyRights(rightOf(shell), asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(dialogs(), (Actions{arpAction, anyToolAction}));
}

TEST_F(AnAllowingPerson, GrantsNothingUnderTheNextReference) {
    Authorization authorization(*service, arpTool);
    EXPECT_FALSE(authorization.isAuthenticated());
    EXPECT_EQ(dialogs(), Actions{});
    EXPECT_TRUE(authorization.authenticate());
    EXPECT_TRUE(authorization.isAuthenticated());
    authorization.deauthenticate();
    EXPECT_FALSE(authorization.isAuthenticated());
    EXPECT_TRUE(authorization.authenticate());
    EXPECT_TRUE(authorization.isAuthenticated());
}

TEST_F(AnAllowingPerson, IsAskedByTheRunWhenNobodyWasBefore) {
    EXPECT_EQ(runArp(), errAuthorizationSuccess);
    EXPECT_EQ(neighbourInTime(), unitAddress);
    EXPECT_EQ(dialogs(), Actions{arpAction});
}

// The person takes longer than the moment that a tool is given.
TEST_F(AnAllowingPerson, MayTakeTheirTimeInTheRun) {
    EXPECT_EQ(runArp(), errAuthorizationSuccess);
    EXPECT_EQ(neighbourInTime(), unitAddress);
}

// The person takes longer than a call to another program usually takes.
TEST_F(AnAllowingPerson, MayTakeTheirTime) {
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(dialogs(), Actions{arpAction});
}

TEST_F(AnAllowingPerson, IsAskedForNothingButRunningATool) {
    auto right = rightOf(arpTool);
    right.name = "system.another";
    EXPECT_EQ(reference->copyRights(right, asking | keeping), errAuthorizationDenied);
    EXPECT_EQ(dialogs(), Actions{});
}

class ARefusingPerson : public AuthorityFixture {};

TEST_F(ARefusingPerson, LeavesTheRightUnheld) {
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), asking | keeping), errAuthorizationDenied);
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), keeping),
              errAuthorizationInteractionNotAllowed);
    EXPECT_EQ(dialogs(), Actions{arpAction});
}

TEST_F(ARefusingPerson, KeepsTheToolFromBeingStarted) {
    EXPECT_EQ(runArp(), errAuthorizationDenied);
    EXPECT_EQ(neighbour(), "");
    EXPECT_FALSE(hasChildren());
    runLoopFor(loop, std::chrono::milliseconds(300));
    EXPECT_EQ(ends, std::vector<int>{});
}

class ADismissingPerson : public AuthorityFixture {};

TEST_F(ADismissingPerson, CancelsTheRequest) {
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), asking | keeping), errAuthorizationCanceled);
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), keeping),
              errAuthorizationInteractionNotAllowed);
    EXPECT_EQ(dialogs(), Actions{arpAction});
}

TEST_F(ADismissingPerson, CancelsTheRun) {
    EXPECT_EQ(runArp(), errAuthorizationCanceled);
    EXPECT_EQ(neighbour(), "");
    EXPECT_FALSE(hasChildren());
    runLoopFor(loop, std::chrono::milliseconds(300));
    EXPECT_EQ(ends, std::vector<int>{});
}

class NobodyAtTheDialogs : public AuthorityFixture {};

TEST_F(NobodyAtTheDialogs, CanAllowAnything) {
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), asking | keeping),
              errAuthorizationInteractionNotAllowed);
    EXPECT_EQ(runArp(), errAuthorizationDenied);
    EXPECT_EQ(neighbour(), "");
    EXPECT_FALSE(Authorization(*service, arpTool).authenticate());
}

class ARuleThatAllows : public AuthorityFixture {};

TEST_F(ARuleThatAllows, NeedsNoPerson) {
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(runArp(), errAuthorizationSuccess);
    EXPECT_EQ(neighbourInTime(), unitAddress);
    EXPECT_EQ(dialogs(), Actions{});
}

TEST_F(ARuleThatAllows, MeansNothingBeforeTheRightIsAskedFor) {
    EXPECT_FALSE(Authorization(*service, arpTool).isAuthenticated());
}

class ARuleThatForbids : public AuthorityFixture {};

TEST_F(ARuleThatForbids, LeavesNothingToAskAPerson) {
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), asking | keeping), errAuthorizationDenied);
    EXPECT_EQ(runArp(), errAuthorizationDenied);
    EXPECT_EQ(neighbour(), "");
    EXPECT_EQ(dialogs(), Actions{});
}

class NoAuthority : public AuthorityFixture {};

TEST_F(NoAuthority, GivesNoReference) {
    EXPECT_EQ(reference, nullptr);
    Authorization authorization(*service, arpTool);
    EXPECT_FALSE(authorization.authenticate());
    EXPECT_FALSE(authorization.isAuthenticated());
    EXPECT_EQ(authorization.runToolWithArgs({"-s", newAddress, unitAddress}),
              errAuthorizationInvalidRef);
}

// A bus that takes connections and says nothing. The bus library alone would wait 25 seconds for
// each answer.
TEST(ASilentBus, IsAsGoodAsNone) {
    const std::string path = std::string(std::getenv("HOME")) + "/silent";
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    const FileDescriptor bus(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    ASSERT_EQ(::bind(bus.number(), reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(::listen(bus.number(), 4), 0);
    ::setenv("DBUS_SYSTEM_BUS_ADDRESS", ("unix:path=" + path).c_str(), 1);
    const auto before = std::chrono::steady_clock::now();
    EXPECT_FALSE(isPolkitThere());
    EXPECT_EQ(askPolkit("org.kxconfig.KXConfig.set-arp-entry", true), PolkitAnswer::unreachable);
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(15));
}

class AnUnknownAction : public AuthorityFixture {};

TEST_F(AnUnknownAction, IsDenied) {
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), asking | keeping), errAuthorizationDenied);
    EXPECT_EQ(dialogs(), Actions{});
}

class NoLauncher : public AuthorityFixture {};

TEST_F(NoLauncher, MeansThatNoToolIsStarted) {
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(runArp(), errAuthorizationToolExecuteFailure);
    EXPECT_FALSE(hasChildren());
}

class TheAdministrator : public AuthorityFixture {};

TEST_F(TheAdministrator, NeedsNobodyElse) {
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(runArp(), errAuthorizationSuccess);
    EXPECT_EQ(neighbourInTime(), unitAddress);
}

TEST_F(TheAdministrator, HoldsARightOnceItWasAskedFor) {
    Authorization authorization(*service, arpTool);
    EXPECT_FALSE(authorization.isAuthenticated());
    EXPECT_TRUE(authorization.authenticate());
    EXPECT_TRUE(authorization.isAuthenticated());
    authorization.deauthenticate();
    EXPECT_FALSE(authorization.isAuthenticated());
}

} // namespace

} // namespace kx
