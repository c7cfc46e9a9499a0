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
