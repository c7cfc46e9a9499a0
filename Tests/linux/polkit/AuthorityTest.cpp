// The questions to a person, their number and their effects. Each suite has a person or a rule of
// its own.

#include "AuthorityFixture.h"
#include "platform/linux/PolkitCheck.h"
#include "support/Pipe.h"

#include <sys/socket.h>
#include <sys/un.h>

#include <chrono>

namespace kx {

namespace {

using Actions = std::vector<std::string>;

// A right that one person granted stays granted to the process, so each of these tests has its own
// process and daemon.
class AnAllowingPerson : public AuthorityFixture {};

TEST_F(AnAllowingPerson, IsAskedOnce) {
    EXPECT_EQ(reference->copyRights(rightToEnter(), asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(reference->copyRights(rightToEnter(), asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(runArp(), errAuthorizationSuccess);
    EXPECT_EQ(neighbourInTime(), unitAddress);
    EXPECT_EQ(dialogs(), Actions{arpAction});
}

TEST_F(AnAllowingPerson, IsShownTheAddressesAndAskedOnceForTheQuestionAndTheRun) {
    EXPECT_EQ(reference->copyRights(rightToEnter(), asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(runArp(), errAuthorizationSuccess);
    EXPECT_EQ(neighbourInTime(), unitAddress);
    EXPECT_TRUE(runUntilEnd());
    EXPECT_EQ(ends, std::vector<int>{0});
    EXPECT_EQ(dialogs(), Actions{arpAction});
    ASSERT_EQ(messages().size(), 1U);
    EXPECT_TRUE(messages()[0].ends_with("ARP cache: /usr/libexec/kxconfig/kxarp -s 192.0.2.77 "
                                        "02:00:00:00:00:77"))
        << messages()[0];
}

TEST_F(AnAllowingPerson, IsNotAskedAboutOtherAddressesWhileTheGrantIsKept) {
    EXPECT_EQ(reference->copyRights(rightToEnter(), asking | keeping), errAuthorizationSuccess);
    // Another list is a run of its own, under the grant that polkit keeps.
    EXPECT_EQ(run(arpTool, {"-s", "192.0.2.78", unitAddress}), errAuthorizationSuccess);
    EXPECT_TRUE(runUntilEnd());
    EXPECT_EQ(ends, std::vector<int>{0});
    EXPECT_EQ(dialogs(), Actions{arpAction});
}

TEST_F(AnAllowingPerson, WhoAllowsToEnterAnAddressAllowsToTakeItOut) {
    EXPECT_EQ(reference->copyRights(rightToEnter(), asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(runArp(), errAuthorizationSuccess);
    EXPECT_EQ(neighbourInTime(), unitAddress);
    AuthorizationItem right = rightToEnter();
    right.arguments.front() = "-d";
    EXPECT_EQ(reference->copyRights(right, asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(run(arpTool, right.arguments), errAuthorizationSuccess);
    EXPECT_TRUE(runLoopUntil(loop, [] { return neighbour().empty(); }));
    EXPECT_EQ(dialogs(), Actions{arpAction});
}

TEST_F(AnAllowingPerson, IsNotAskedAboutARunThatIsNotKnown) {
    for (const auto* const tool : {arpTool, shell}) {
        EXPECT_EQ(reference->copyRights(rightOf(tool), asking | keeping),
                  errAuthorizationInteractionNotAllowed);
    }
    EXPECT_FALSE(Authorization(*service, arpTool).authenticate());
    EXPECT_EQ(dialogs(), Actions{});
    EXPECT_FALSE(hasChildren());
}

TEST_F(AnAllowingPerson, IsNotAskedAboutTextsThatTheToolNeverGets) {
    const std::vector<std::string> words{"-s", "192.0.2.77\u00fc", unitAddress};
    Authorization authorization(*service, arpTool);
    EXPECT_TRUE(authorization.authenticate(words));
    EXPECT_FALSE(hasChildren()) << "no launcher has begun";
    EXPECT_EQ(authorization.runToolWithArgs(words), -1);
    EXPECT_EQ(dialogs(), Actions{});
    EXPECT_FALSE(hasChildren());
}

// A boundary that stands before the tool and not in the window.
TEST_F(AnAllowingPerson, CannotMakeTheToolReadAFile) {
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"-v", "-f", "/etc/shadow"},
          {"-s", "-v", "-f", "/etc/shadow"},
          {"-s", "-f", "/etc/shadow"},
          {"-s", newAddress, "-f"},
          {"-s", "192.0.2.077", unitAddress},
          {"-s", "unit.example", unitAddress},
          {"-s", newAddress, unitAddress, "pub"}}) {
        ends.clear();
        sentences.clear();
        EXPECT_EQ(run(arpTool, words), errAuthorizationSuccess);
        EXPECT_TRUE(runUntilEnd());
        ASSERT_EQ(ends.size(), 1U);
        EXPECT_TRUE(ends[0] == 64 || ends[0] == 65 || ends[0] == 66) << ends[0];
        EXPECT_EQ(sentences[0], service->objectionTo(arpTool, words));
        EXPECT_EQ(sentences[0].find("root:"), std::string::npos);
    }
    EXPECT_EQ(neighbour(), "");
}

// A window is painted meanwhile.
TEST_F(AnAllowingPerson, IsAskedWhileTheEventLoopRuns) {
    int events = 0;
    const auto event = loopOfWaiting.callOnceAfter(std::chrono::milliseconds(0), [&] { ++events; });
    EXPECT_EQ(reference->copyRights(rightToEnter(), asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(events, 1);
}

TEST_F(AnAllowingPerson, IsNotAskedWhetherTheRightIsHeld) {
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), keeping),
              errAuthorizationInteractionNotAllowed);
    EXPECT_EQ(dialogs(), Actions{});
    EXPECT_EQ(reference->copyRights(rightToEnter(), asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), keeping), errAuthorizationSuccess);
    EXPECT_EQ(dialogs(), Actions{arpAction});
}

TEST_F(AnAllowingPerson, GrantsNothingForLaterWhenTheRightIsNotToBeKept) {
    EXPECT_EQ(reference->copyRights(rightToEnter(), asking), errAuthorizationSuccess);
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), keeping),
              errAuthorizationInteractionNotAllowed);
}

TEST_F(AnAllowingPerson, GrantsTheRightToOneToolOnly) {
    EXPECT_EQ(reference->copyRights(rightToEnter(), asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(reference->copyRights(rightOf(shell), keeping),
              errAuthorizationInteractionNotAllowed);
    AuthorizationItem right = rightOf(shell);
    right.arguments = {"-c", "exit 0"};
    EXPECT_EQ(reference->copyRights(right, asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(dialogs(), (Actions{arpAction, anyToolAction}));
}

TEST_F(AnAllowingPerson, GrantsNothingUnderTheNextReference) {
    Authorization authorization(*service, arpTool);
    EXPECT_FALSE(authorization.isAuthenticated());
    EXPECT_EQ(dialogs(), Actions{});
    EXPECT_TRUE(authorization.authenticate(enteringArguments()));
    EXPECT_TRUE(authorization.isAuthenticated());
    authorization.deauthenticate();
    EXPECT_FALSE(authorization.isAuthenticated());
    EXPECT_TRUE(authorization.authenticate(enteringArguments()));
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
    EXPECT_EQ(reference->copyRights(rightToEnter(), asking | keeping), errAuthorizationSuccess);
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
    EXPECT_EQ(reference->copyRights(rightToEnter(), asking | keeping), errAuthorizationDenied);
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
    EXPECT_EQ(reference->copyRights(rightToEnter(), asking | keeping), errAuthorizationCanceled);
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
    EXPECT_NE(reference->copyRights(rightToEnter(), asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(runArp(), errAuthorizationDenied);
    EXPECT_EQ(neighbour(), "");
    EXPECT_FALSE(Authorization(*service, arpTool).authenticate(enteringArguments()));
}

class ARuleThatAllows : public AuthorityFixture {};

TEST_F(ARuleThatAllows, NeedsNoPerson) {
    EXPECT_EQ(reference->copyRights(rightToEnter(), asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(runArp(), errAuthorizationSuccess);
    EXPECT_EQ(neighbourInTime(), unitAddress);
    EXPECT_EQ(dialogs(), Actions{});
}

TEST_F(ARuleThatAllows, MeansNothingBeforeTheRightIsAskedFor) {
    EXPECT_FALSE(Authorization(*service, arpTool).isAuthenticated());
}

class ARuleThatForbids : public AuthorityFixture {};

TEST_F(ARuleThatForbids, LeavesNothingToAskAPerson) {
    EXPECT_EQ(reference->copyRights(rightToEnter(), asking | keeping), errAuthorizationDenied);
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
    PollRunLoop loop;
    WaitingPerson waiting(loop);
    EXPECT_FALSE(isPolkitThere(waiting));
    EXPECT_EQ(askPolkit("org.kxconfig.KXConfig.set-arp-entry", waiting), PolkitAnswer::unreachable);
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(15));
}

class AnUnknownAction : public AuthorityFixture {};

TEST_F(AnUnknownAction, IsDenied) {
    EXPECT_EQ(reference->copyRights(rightToEnter(), asking | keeping), errAuthorizationDenied);
    EXPECT_EQ(dialogs(), Actions{});
}

class NoLauncher : public AuthorityFixture {};

TEST_F(NoLauncher, MeansThatNobodyIsAskedInVain) {
    EXPECT_EQ(reference->copyRights(rightToEnter(), asking | keeping),
              errAuthorizationToolExecuteFailure);
    EXPECT_EQ(runArp(), errAuthorizationToolExecuteFailure);
    EXPECT_EQ(dialogs(), Actions{});
    EXPECT_FALSE(hasChildren());
}

class NoTool : public AuthorityFixture {};

TEST_F(NoTool, MeansThatNobodyIsAskedInVain) {
    EXPECT_EQ(reference->copyRights(rightToEnter(), asking | keeping),
              errAuthorizationToolExecuteFailure);
    EXPECT_EQ(runArp(), errAuthorizationToolExecuteFailure);
    EXPECT_EQ(dialogs(), Actions{});
}

class TheAdministrator : public AuthorityFixture {};

TEST_F(TheAdministrator, NeedsNobodyElse) {
    EXPECT_EQ(reference->copyRights(rightOf(arpTool), asking | keeping), errAuthorizationSuccess);
    EXPECT_EQ(runArp(), errAuthorizationSuccess);
    EXPECT_EQ(neighbourInTime(), unitAddress);
}

TEST_F(TheAdministrator, HasTextsHandedOnAsTheyAreButNoOptions) {
    EXPECT_EQ(run(arpTool, {"-s", "192.0.2.077", unitAddress}), errAuthorizationSuccess); // octal
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"-s", "-f", "/etc/shadow"},
          {"-s", newAddress, "-v"},
          {"-s", "-"}}) {
        EXPECT_EQ(run(arpTool, words), errAuthorizationDenied);
        EXPECT_EQ(service->objectionTo(arpTool, words),
                  "The ARP tool gets no text that begins with “-”.");
    }
    EXPECT_EQ(service->objectionTo(arpTool, {"-s", "unit.example"}), std::nullopt);
    EXPECT_EQ(service->objectionTo("/bin/true", {"-s", "-f"}), std::nullopt);
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
