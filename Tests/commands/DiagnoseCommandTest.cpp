#include "CommandFixture.h"

#include <cerrno>

namespace kx {

namespace {

class DiagnoseCommandTest : public CommandTest {
protected:
    DiagnoseCommandTest() {
        diagnostics.routeTo = [](std::uint32_t) { return HostRoute{.exists = true, .link = link}; };
    }

    Words causes() const {
        Words ids;
        const Json whole = document();
        for (const Json& cause : whole["causes"]) {
            ids.push_back(cause["id"].get<std::string>());
        }
        return ids;
    }
};

} // namespace

TEST_F(DiagnoseCommandTest, UnitsThatAnswerAreASuccess) {
    play({});
    diagnosticSockets.isRefused = true; // nothing plays what they would hear
    EXPECT_EQ(run({"diagnose", "--json"}), 0);
    EXPECT_EQ(causes(), Words());
    EXPECT_EQ(document()["checks"].size(), 14U);
    EXPECT_EQ(systemCalls.sentDatagrams().size(), 3U);
}

TEST_F(DiagnoseCommandTest, ACauseIsNoErrorOfTheProgram) {
    EXPECT_EQ(run({"diagnose", "--json"}), 1);
    EXPECT_EQ(causes(), Words{"firewall"}) << "the own broadcast does not come back";
    EXPECT_TRUE(document()["error"].is_null());
    EXPECT_EQ(document()["exit"], 1);
}

TEST_F(DiagnoseCommandTest, ACauseIsFoundWhereNothingCanBeAsked) {
    interfaces.interfaces.front().isRunning = false;
    interfaces.interfaces.front().canAsk = false;
    EXPECT_EQ(run({"diagnose", "--json"}), 1);
    EXPECT_EQ(causes(), Words{"no-link"});
    EXPECT_TRUE(systemCalls.sentDatagrams().empty());
    interfaces.interfaces.clear();
    EXPECT_EQ(run({"diagnose", "--json"}), 1);
    EXPECT_EQ(causes(), Words{"no-link"}) << "there is no interface at all";
}

TEST_F(DiagnoseCommandTest, OfSeveralInterfacesThatCannotAskEachHasItsCause) {
    addInterface("kx2", secondLink, 0x0A000001U);
    for (HostInterface& interface : interfaces.interfaces) {
        interface.canAsk = false;
    }
    interfaces.interfaces[0].networks.clear();
    interfaces.interfaces[1].isRunning = false;
    EXPECT_EQ(run({"diagnose", "--json"}), 1);
    EXPECT_EQ(causes(), (Words{"no-link", "no-address"}));
}

TEST_F(DiagnoseCommandTest, OfSeveralInterfacesOneMustBeNamed) {
    addInterface("kx2", secondLink, 0x0A000001U);
    EXPECT_EQ(run({"diagnose", "--json"}), 3);
    EXPECT_EQ(errorCode(), "interface");
}

TEST_F(DiagnoseCommandTest, WhereUnitsAnswerOnOneInterfaceTheOthersMayBeSilent) {
    addInterface("kx2", secondLink, 0x0A000001U);
    diagnosticSockets.isRefused = true;
    EXPECT_EQ(run({"diagnose", "-i", "all", "--port", "3521", "--json"}), 1);
    EXPECT_EQ(causes(), (Words{"nothing-arrived", "nothing-arrived"}));
    play({});
    EXPECT_EQ(run({"diagnose", "-i", "kx2", "--port", "3521", "--json"}), 1);
    EXPECT_EQ(causes(), Words{"nothing-arrived"});
    EXPECT_EQ(run({"diagnose", "-i", "all", "--port", "3521", "--json"}), 0);
    EXPECT_EQ(causes(), Words());
}

TEST_F(DiagnoseCommandTest, ATakenPortIsACauseWithItsOwner) {
    systemCalls.failNext(Operation::bind, EADDRINUSE);
    diagnostics.owners[3521] = {.program = "other", .process = 7, .user = "root"};
    EXPECT_EQ(run({"diagnose", "--port", "3521", "--json"}), 1);
    EXPECT_EQ(causes(), Words{"port-taken"});
    EXPECT_NE(console.output.find("other (process 7)"), std::string::npos);
}

TEST_F(DiagnoseCommandTest, APortThatCannotBeOpenedForAnotherReasonHasNoCause) {
    systemCalls.failNext(Operation::bind, EACCES);
    EXPECT_EQ(run({"diagnose", "--json"}), 3);
    EXPECT_EQ(errorCode(), "socket");
}

TEST_F(DiagnoseCommandTest, ARefusedRequestIsACause) {
    for (int i = 0; i < 3; ++i) {
        systemCalls.failNext(Operation::sendTo, EPERM);
    }
    diagnosticSockets.isRefused = true;
    EXPECT_EQ(run({"diagnose", "--json"}), 1);
    EXPECT_EQ(causes(), Words{"send-refused"});
}

TEST_F(DiagnoseCommandTest, AWordThatIsNeitherAUnitNorAnAddressSendsNothing) {
    for (const char* const word :
         {"rack", "192.168.1", "192.168.1.011", "192.168.1.1", "192.168.1.255", "192.168.1.0"}) {
        EXPECT_EQ(run({"diagnose", word, "--json"}), 2) << word;
        EXPECT_EQ(errorCode(), "value") << word;
    }
    EXPECT_TRUE(systemCalls.sentDatagrams().empty());
    EXPECT_TRUE(diagnosticSockets.sent.empty());
}

TEST_F(DiagnoseCommandTest, AnInterruptedOneAccusesNobody) {
    interruptAfter(std::chrono::milliseconds(100));
    EXPECT_EQ(run({"diagnose", "--json"}), 130);
    EXPECT_EQ(causes(), Words());
}

} // namespace kx
