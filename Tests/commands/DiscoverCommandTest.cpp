#include "CommandFixture.h"

#include <cerrno>

namespace kx {

namespace {

class DiscoverCommandTest : public CommandTest {};

} // namespace

TEST_F(DiscoverCommandTest, ListsWhoAnswers) {
    play({});
    play({.unit = secondSampleUnit()});
    EXPECT_EQ(run({"discover", "--json"}), 0);
    EXPECT_EQ(document()["units"].size(), 2U);
    EXPECT_TRUE(document()["complete"].get<bool>());
    EXPECT_EQ(systemCalls.sentDatagrams().size(), 2U);
}

TEST_F(DiscoverCommandTest, AnInterfaceThatRefusesToSendLeavesTheOthersAndIsTold) {
    addInterface("kx2", secondLink, 0x0A000001U);
    play({.link = secondLink});
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    EXPECT_EQ(run({"discover", "-i", "all", "--json"}), 0);
    EXPECT_EQ(document()["units"].size(), 1U);
    EXPECT_FALSE(document()["complete"].get<bool>());
    EXPECT_EQ(document()["warnings"][0]["code"], "socket");
}

TEST_F(DiscoverCommandTest, AnInterfaceThatRefusesToSendLeavesARestoreOfTheOthers) {
    addInterface("kx2", secondLink, 0x0A000001U);
    play({.link = secondLink});
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    EXPECT_EQ(run({"restore", "--everyone", "--yes", "-i", "all", "--json"}), 0);
    EXPECT_EQ(document()["warnings"][0]["code"], "socket");
    EXPECT_EQ(commandsSent(), (Words{"192.168.1.255:3520 ^^IdZ", "10.0.0.255:3520 ^^IdZ"}));
}

TEST_F(DiscoverCommandTest, WhereNothingCanBeSentItCannotAsk) {
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    EXPECT_EQ(run({"discover", "--json"}), 3);
    EXPECT_EQ(errorCode(), "socket");
}

TEST_F(DiscoverCommandTest, RequestsThatFollowTooCloselyAreRefused) {
    EXPECT_EQ(run({"discover", "--wait", "0.5", "--tries", "51", "--json"}), 2);
    EXPECT_EQ(errorCode(), "usage");
    EXPECT_TRUE(systemCalls.sentDatagrams().empty());
    EXPECT_EQ(run({"discover", "--wait", "0.5", "--tries", "50", "--json"}), 1);
    EXPECT_EQ(systemCalls.sentDatagrams().size(), 50U);
}

TEST_F(DiscoverCommandTest, ASignalListsWhoHasAnsweredByThen) {
    play({});
    for (const Words& words : {Words{"discover", "--json"}, Words{"show", "--all", "--json"}}) {
        interruptAfter(100ms);
        EXPECT_EQ(run(words), 130);
        EXPECT_EQ(document()["units"].size(), 1U) << words.front();
    }
}

} // namespace kx
