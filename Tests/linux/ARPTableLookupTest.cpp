// Lookups in the host's ARP table, with the real tool and with others in its place.

#include "ReplacedFile.h"
#include "SharedHost.h"
#include "addresses/ARPTable.h"
#include "addresses/IPv4Address.h"
#include "doubles/RecordedSystemLog.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <sstream>

namespace kx {

namespace {

constexpr auto toolPath = "/usr/sbin/arp";
constexpr mode_t program = 0755;

// A network that is ready, with an entry in its table.
class ARPTableLookup : public testing::Test {
public:
    ~ARPTableLookup() override { std::filesystem::remove_all(folder); }

protected:
    static void SetUpTestSuite() {
        auto& network = sharedHost().network;
        network.addLink("kx5", "02:00:00:00:00:05");
        network.addAddress("kx5", "10.0.0.1/24");
        network.ip("neigh add 10.0.0.5 lladdr 00:05:02:0a:0b:0c dev kx5");
        ASSERT_TRUE(eventually(networkIsReady));
    }
    static void TearDownTestSuite() { sharedHost().network.ip("link del kx5"); }

    // A tool that notes its arguments, one on each line, and then runs these commands.
    std::string notingTool(const std::string& commands) const {
        return "#!/bin/sh\nfor word in \"$@\"; do echo \"$word\"; done >>" + folder + "/words\n" +
               commands + "\n";
    }

    // What the tool was given so far; empty when it has not run.
    std::string words() const {
        std::ostringstream text;
        const std::ifstream file(folder + "/words");
        if (file) {
            text << file.rdbuf();
        }
        return text.str();
    }

    std::string folder = std::string(::mkdtemp(std::string("/tmp/kx-arp-XXXXXX").data()));
    RecordedSystemLog log;
};

std::string saying(const std::string& sentence) {
    return "echo '" + sentence + "'";
}

} // namespace

TEST_F(ARPTableLookup, TheToolIsRunWithTheAddressAloneAndItsSentenceRead) {
    const ReplacedFile tool(
        toolPath, notingTool(saying("? (10.0.0.5) at 0:5:2:a:b:c on en0 [ethernet]")), program);
    EXPECT_EQ(hwAddressStringForIPString("10.0.0.5"), "00:05:02:0A:0B:0C");
    EXPECT_EQ(words(), "10.0.0.5\n");
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(ARPTableLookup, TheOctetsAreThoseOfTheText) {
    const ReplacedFile tool(
        toolPath, notingTool(saying("? (10.0.0.5) at 0:5:2:a:b:c on en0 [ethernet]")), program);
    std::array<std::uint8_t, 8> octets{9, 9, 9, 9, 9, 9, 9, 9};
    std::uint8_t length = 8;
    EXPECT_EQ(hwAddressForIP(ipForString("10.0.0.5"), octets.data(), length), 0);
    EXPECT_EQ(octets, (std::array<std::uint8_t, 8>{0, 5, 2, 10, 11, 12, 9, 9}));
    EXPECT_EQ(length, 6);
    EXPECT_EQ(words(), "10.0.0.5\n");
}

TEST_F(ARPTableLookup, WithRoomForFewerThanSixOctetsTheToolIsNotRun) {
    const ReplacedFile tool(toolPath, notingTool(saying("? at 0:5:2:a:b:c")), program);
    std::array<std::uint8_t, 6> octets{};
    for (std::uint8_t length = 0; length < 6; ++length) {
        std::uint8_t room = length;
        EXPECT_EQ(hwAddressForIP(ipForString("10.0.0.5"), octets.data(), room), -1);
        EXPECT_EQ(room, length);
    }
    EXPECT_EQ(octets, (std::array<std::uint8_t, 6>{}));
    EXPECT_EQ(words(), "");
}

TEST_F(ARPTableLookup, WithoutATextTheToolIsNotRun) {
    const ReplacedFile tool(toolPath, notingTool(saying("? at 0:5:2:a:b:c")), program);
    EXPECT_EQ(hwAddressStringForIPString(std::nullopt), std::nullopt);
    EXPECT_EQ(words(), "");
}

TEST_F(ARPTableLookup, WhileTheNetworkIsNotReadyTheToolIsNotRun) {
    const ReplacedFile tool(toolPath, notingTool(saying("? at 0:5:2:a:b:c")), program);
    sharedHost().network.ip("link set p-kx5 down");
    ASSERT_TRUE(eventually([] { return !networkIsReady(); }));
    EXPECT_EQ(hwAddressStringForIPString("10.0.0.5"), std::nullopt);
    EXPECT_EQ(words(), "");
    sharedHost().network.ip("link set p-kx5 up");
    EXPECT_TRUE(eventually(networkIsReady));
}

TEST_F(ARPTableLookup, TheStatusOfTheToolDoesNotMatter) {
    const ReplacedFile tool(toolPath, notingTool(saying("? at 0:5:2:a:b:c") + "; exit 1"), program);
    EXPECT_EQ(hwAddressStringForIPString("10.0.0.5"), "00:05:02:0A:0B:0C");
}

TEST_F(ARPTableLookup, AToolThatSaysNothingKnowsNothing) {
    const ReplacedFile tool(toolPath, notingTool(""), program);
    EXPECT_EQ(hwAddressStringForIPString("10.0.0.5"), std::nullopt);
    EXPECT_EQ(words(), "10.0.0.5\n");
}

TEST_F(ARPTableLookup, AToolThatDoesNotSpeakUTF8KnowsNothing) {
    const ReplacedFile tool(toolPath, notingTool("printf '\\377 at 0:5:2:a:b:c'"), program);
    EXPECT_EQ(hwAddressStringForIPString("10.0.0.5"), std::nullopt);
}

TEST_F(ARPTableLookup, AToolThatCannotBeRunKnowsNothing) {
    const ReplacedFile tool(toolPath, "no program", 0644);
    EXPECT_EQ(hwAddressStringForIPString("10.0.0.5"), std::nullopt);
    std::array<std::uint8_t, 6> octets{};
    std::uint8_t length = 6;
    EXPECT_EQ(hwAddressForIP(ipForString("10.0.0.5"), octets.data(), length), -1);
    EXPECT_EQ(length, 6);
    EXPECT_TRUE(log.lines().empty());
}

// The real tool answers with a table when it is given an address alone.
TEST_F(ARPTableLookup, TheTableOfNetToolsHoldsNoSentence) {
    EXPECT_EQ(hwAddressStringForIPString("10.0.0.5"), std::nullopt);
    EXPECT_EQ(hwAddressStringForIPString("10.0.0.9"), std::nullopt);
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(ARPTableLookup, TheSentenceOfNetToolsIsUnderstood) {
    const std::string original = folder + "/arp";
    std::filesystem::copy_file(toolPath, original);
    const ReplacedFile tool(toolPath, notingTool(original + " -a \"$1\""), program);
    EXPECT_EQ(hwAddressStringForIPString("10.0.0.5"), "00:05:02:0A:0B:0C");
    EXPECT_EQ(hwAddressStringForIPString("10.0.0.9"), std::nullopt);
    EXPECT_EQ(words(), "10.0.0.5\n10.0.0.9\n");
}

} // namespace kx
