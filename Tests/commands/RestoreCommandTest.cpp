#include "CommandFixture.h"

#include <cerrno>

namespace kx {

using RestoreCommandTest = CommandTest;

TEST_F(RestoreCommandTest, AnInterfaceThatRefusesToSendLeavesARestoreOfTheOthers) {
    addInterface("kx2", secondLink, 0x0A000001U);
    play({.link = secondLink});
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    EXPECT_EQ(run({"restore", "--everyone", "--yes", "-i", "all", "--json"}), 0);
    EXPECT_EQ(document()["warnings"][0]["code"], "socket");
    EXPECT_EQ(commandsSent(), (Words{"192.168.1.255:3520 ^^IdZ", "10.0.0.255:3520 ^^IdZ"}));
}

TEST_F(RestoreCommandTest, NobodyIsAskedUnlessTheQuestionIsSeen) {
    play({});
    console.hasInputTerminal = true;
    EXPECT_EQ(run({"restore", serial, "--json"}), 2);
    EXPECT_EQ(errorCode(), "usage");
    EXPECT_TRUE(systemCalls.sentDatagrams().empty());
    console.isTerminal = true;
    console.answers = {"y"};
    EXPECT_EQ(run({"restore", serial, "--json"}), 0);
}

TEST_F(RestoreCommandTest, ARestoreThatWasSentIsReadBackAfterASignal) {
    play({.obey = [](SampleUnit& unit, std::string_view) { unit.unitID.back() = 7; }});
    interruptAfter(50ms); // the unit was found, and has the command
    EXPECT_EQ(run({"restore", serial, "--yes", "--json"}), 130);
    EXPECT_EQ(commandsSent(), Words{"192.168.1.10:10000 ^^IdZ"});
    ASSERT_EQ(document()["units"].size(), 1U);
    EXPECT_EQ(document()["units"][0]["unit_id"], "7");
}

TEST_F(RestoreCommandTest, AnOptionCommandThatWasSentIsAnsweredAfterASignal) {
    play({.late = 30ms});
    interruptAfter(100ms); // the answer comes at 120 ms
    EXPECT_EQ(run({"option", serial, "V", "--json"}), 130);
    EXPECT_EQ(commandsSent().size(), 1U);
    EXPECT_EQ(document()["replies"].size(), 1U);
}

TEST_F(RestoreCommandTest, ASignalEndsAQuestionThatNobodyAnswers) {
    play({});
    console.hasInputTerminal = true;
    console.isTerminal = true;
    console.answers = {"y"};
    console.timeToAnswer = std::chrono::hours(1);
    interruptAfter(std::chrono::seconds(30));
    EXPECT_EQ(run({"restore", serial}), 130);
    EXPECT_TRUE(commandsSent().empty());
}

} // namespace kx
