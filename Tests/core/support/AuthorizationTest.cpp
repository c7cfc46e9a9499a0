#include "support/Authorization.h"

#include "doubles/RecordedSystemLog.h"
#include "doubles/ScriptedAuthorizationService.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kx {

namespace {

using Words = std::vector<std::string>;

const std::string arpTool = "/usr/sbin/arp";

class AuthorizationTest : public testing::Test {
protected:
    ScriptedAuthorizationService service;
    RecordedSystemLog log;
    Authorization authorization{service, arpTool};
};

} // namespace

TEST_F(AuthorizationTest, ANewOneHasAskedForNothing) {
    EXPECT_EQ(service.referencesMade(), 0);
    EXPECT_TRUE(service.requests().empty());
}

TEST_F(AuthorizationTest, TheRightIsTheAdministratorsForTheTool) {
    EXPECT_TRUE(authorization.authenticate());
    ASSERT_EQ(service.requests().size(), 1U);
    const auto& request = service.requests()[0];
    EXPECT_EQ(request.right.name, "system.privilege.admin");
    EXPECT_EQ(request.right.value, "/usr/sbin/arp");
    EXPECT_EQ(request.right.flags, 0U);
    EXPECT_EQ(request.flags, 3U);
}

TEST_F(AuthorizationTest, TheAuthorityHearsTheArgumentsThatArePlanned) {
    EXPECT_TRUE(authorization.authenticate({"-s", "10.0.0.5"}));
    EXPECT_EQ(service.requests().at(0).right.arguments, (Words{"-s", "10.0.0.5"}));
    EXPECT_TRUE(authorization.isAuthenticated());
    EXPECT_EQ(service.requests().at(1).right.arguments, Words{});
}

TEST_F(AuthorizationTest, ThePathIsAskedForAsItsBytesAre) {
    const std::string path = "/opt/\xC3\xA9t\xC3\xA9/tool";
    EXPECT_TRUE(Authorization(service, path).authenticate());
    EXPECT_EQ(service.requests()[0].right.value, path);
}

TEST_F(AuthorizationTest, WhetherTheRightIsHeldIsAskedWithoutADialog) {
    EXPECT_FALSE(authorization.isAuthenticated());
    ASSERT_EQ(service.requests().size(), 1U);
    EXPECT_EQ(service.requests()[0].flags, 2U);
    EXPECT_EQ(service.dialogs(), 0);
}

TEST_F(AuthorizationTest, TheRightIsHeldFromItsGrantUntilItIsGivenBack) {
    EXPECT_FALSE(authorization.isAuthenticated());
    EXPECT_TRUE(authorization.authenticate());
    EXPECT_TRUE(authorization.isAuthenticated());
    authorization.deauthenticate();
    EXPECT_FALSE(authorization.isAuthenticated());
    EXPECT_EQ(service.dialogs(), 1);
}

TEST_F(AuthorizationTest, APersonIsAskedOnce) {
    EXPECT_TRUE(authorization.authenticate());
    EXPECT_TRUE(authorization.authenticate());
    EXPECT_EQ(service.dialogs(), 1);
    EXPECT_EQ(service.requests().size(), 2U);
    EXPECT_EQ(service.referencesMade(), 1);
}

TEST_F(AuthorizationTest, APersonIsAskedAgainAfterTheRightWasGivenBack) {
    EXPECT_TRUE(authorization.authenticate());
    authorization.deauthenticate();
    EXPECT_TRUE(authorization.authenticate());
    EXPECT_EQ(service.dialogs(), 2);
    EXPECT_EQ(service.referencesMade(), 2);
    EXPECT_EQ(service.referencesAlive(), 1);
}

TEST_F(AuthorizationTest, GivingBackWhatIsNotHeldIsWithoutEffect) {
    authorization.deauthenticate();
    EXPECT_EQ(service.referencesMade(), 0);
    EXPECT_TRUE(authorization.authenticate());
    authorization.deauthenticate();
    authorization.deauthenticate();
    EXPECT_EQ(service.referencesAlive(), 0);
}

TEST_F(AuthorizationTest, TheEndOfTheObjectGivesTheRightBack) {
    {
        Authorization other(service, arpTool);
        EXPECT_TRUE(other.authenticate());
        EXPECT_EQ(service.referencesAlive(), 1);
    }
    EXPECT_EQ(service.referencesAlive(), 0);
}

TEST_F(AuthorizationTest, ARefusedRightIsNotHeldAndIsAskedForAnew) {
    service.answerDialogsWith(errAuthorizationDenied);
    EXPECT_FALSE(authorization.authenticate());
    EXPECT_FALSE(authorization.isAuthenticated());
    EXPECT_FALSE(authorization.authenticate());
    EXPECT_EQ(service.dialogs(), 2);
    service.answerDialogsWith(errAuthorizationSuccess);
    EXPECT_TRUE(authorization.authenticate());
    EXPECT_TRUE(authorization.isAuthenticated());
    EXPECT_EQ(service.referencesMade(), 1);
}

TEST_F(AuthorizationTest, ADismissedDialogIsARefusal) {
    service.answerDialogsWith(errAuthorizationCanceled);
    EXPECT_FALSE(authorization.authenticate());
    EXPECT_FALSE(authorization.isAuthenticated());
}

TEST_F(AuthorizationTest, WithoutAnAuthorityThereAreNoRights) {
    service.beAbsent();
    EXPECT_FALSE(authorization.authenticate());
    EXPECT_FALSE(authorization.isAuthenticated());
    authorization.deauthenticate();
    EXPECT_EQ(authorization.runToolWithArgs({"-s"}), errAuthorizationInvalidRef);
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(AuthorizationTest, TheToolRunsWithItsArgumentsInTheirOrder) {
    ASSERT_TRUE(authorization.authenticate());
    EXPECT_EQ(authorization.runToolWithArgs({"-s", "10.0.0.5", "00:1A:2B:3C:4D:5E"}), 0);
    ASSERT_EQ(service.runs().size(), 1U);
    EXPECT_EQ(service.runs()[0].toolPath, "/usr/sbin/arp");
    EXPECT_EQ(service.runs()[0].arguments, (Words{"-s", "10.0.0.5", "00:1A:2B:3C:4D:5E"}));
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(AuthorizationTest, ARunAsksForNothingItself) {
    ASSERT_TRUE(authorization.authenticate());
    authorization.runToolWithArgs({"-s"});
    EXPECT_EQ(service.requests().size(), 1U);
}

TEST_F(AuthorizationTest, WithoutAReferenceNothingRuns) {
    EXPECT_EQ(authorization.runToolWithArgs({"-s"}), errAuthorizationInvalidRef);
    ASSERT_TRUE(authorization.authenticate());
    authorization.deauthenticate();
    EXPECT_EQ(authorization.runToolWithArgs({"-s"}), errAuthorizationInvalidRef);
    EXPECT_TRUE(service.runs().empty());
}

TEST_F(AuthorizationTest, ThirtyOneArgumentsArePassedOnAndThirtyTwoAreNot) {
    ASSERT_TRUE(authorization.authenticate());
    EXPECT_EQ(authorization.runToolWithArgs(Words(31, "x")), 0);
    EXPECT_EQ(authorization.runToolWithArgs(Words(32, "x")), -1);
    ASSERT_EQ(service.runs().size(), 1U);
    EXPECT_EQ(service.runs()[0].arguments, Words(31, "x"));
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(AuthorizationTest, TooManyArgumentsAreNotLookedAt) {
    ASSERT_TRUE(authorization.authenticate());
    EXPECT_EQ(authorization.runToolWithArgs(Words(32, "\xC3\xA9")), -1);
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(AuthorizationTest, AnEmptyArrayOfArgumentsIsPassedOnEmpty) {
    ASSERT_TRUE(authorization.authenticate());
    EXPECT_EQ(authorization.runToolWithArgs({}), 0);
    ASSERT_EQ(service.runs().size(), 1U);
    EXPECT_EQ(service.runs()[0].arguments, Words{});
}

TEST_F(AuthorizationTest, AnEmptyArgumentIsAnArgument) {
    ASSERT_TRUE(authorization.authenticate());
    EXPECT_EQ(authorization.runToolWithArgs({"", "x", ""}), 0);
    EXPECT_EQ(service.runs()[0].arguments, (Words{"", "x", ""}));
}

TEST_F(AuthorizationTest, AnArgumentThatIsNotASCIIIsLoggedAndNothingRuns) {
    ASSERT_TRUE(authorization.authenticate());
    EXPECT_EQ(authorization.runToolWithArgs({"-s", "d\xC3\xA9j\xC3\xA0", "\xE2\x82\xAC"}), -1);
    EXPECT_TRUE(service.runs().empty());
    EXPECT_EQ(log.lines(), Words{"Character conversion exception: d\xC3\xA9j\xC3\xA0"});
}

TEST_F(AuthorizationTest, NobodyIsAskedAboutAnArgumentThatIsNotASCII) {
    service.answerDialogsWith(errAuthorizationDenied);
    EXPECT_TRUE(authorization.authenticate({"-s", "d\xC3\xA9j\xC3\xA0"}));
    EXPECT_TRUE(service.requests().empty());
    EXPECT_EQ(authorization.runToolWithArgs({"-s", "d\xC3\xA9j\xC3\xA0"}), -1);
    EXPECT_TRUE(service.runs().empty());
    EXPECT_FALSE(authorization.isAuthenticated()) << "it is no right";
}

TEST_F(AuthorizationTest, WithoutAnAuthorityThereAreNoRightsForThemEither) {
    service.beAbsent();
    EXPECT_FALSE(authorization.authenticate({"d\xC3\xA9j\xC3\xA0"}));
}

TEST_F(AuthorizationTest, ArgumentsAreLookedAtBeforeTheReference) {
    EXPECT_EQ(authorization.runToolWithArgs({"\xC3\xA9"}), -1);
    EXPECT_EQ(authorization.runToolWithArgs(Words(32, "x")), -1);
}

TEST_F(AuthorizationTest, AToolThatCannotBeStartedHasTheAuthoritysStatus) {
    ASSERT_TRUE(authorization.authenticate());
    service.startToolsWith(errAuthorizationToolExecuteFailure);
    EXPECT_EQ(authorization.runToolWithArgs({"-s"}), errAuthorizationToolExecuteFailure);
}

TEST_F(AuthorizationTest, TheEndOfTheToolIsToldAfterItsStart) {
    std::vector<int> ends;
    ASSERT_TRUE(authorization.authenticate());
    EXPECT_EQ(authorization.runToolWithArgs(
                  {"-s"}, [&](const ToolEnd& end) { ends.push_back(end.status); }),
              0);
    EXPECT_TRUE(ends.empty());
    service.endTools(255);
    service.endTools(0);
    EXPECT_EQ(ends, std::vector<int>{255});
}

TEST_F(AuthorizationTest, NothingIsToldAfterTheRightWasGivenBack) {
    std::vector<int> ends;
    ASSERT_TRUE(authorization.authenticate());
    authorization.runToolWithArgs({"-s"}, [&](const ToolEnd& end) { ends.push_back(end.status); });
    authorization.deauthenticate();
    service.endTools(0);
    EXPECT_TRUE(ends.empty());
}

TEST_F(AuthorizationTest, ASubclassFindsTheRightNotDeclined) {
    class Declining final : public Authorization {
    public:
        using Authorization::Authorization;
        bool isDeclined() const { return _authorizationDeclined; }
    };
    service.answerDialogsWith(errAuthorizationDenied);
    Declining declining(service, arpTool);
    EXPECT_FALSE(declining.isDeclined());
    EXPECT_FALSE(declining.authenticate());
    EXPECT_FALSE(declining.isDeclined());
}

} // namespace kx
