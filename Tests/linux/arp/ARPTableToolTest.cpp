// Lookups in the ARP table with other tools in the place of the host's.

#include "addresses/ARPTable.h"
#include "addresses/IPv4Address.h"
#include "core/System Configuration/ConfigurationFixture.h"
#include "doubles/RecordedSystemLog.h"
#include "doubles/SharedConfigurationDoubles.h"
#include "linux/RecordingTool.h"
#include "linux/ReplacedFile.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <chrono>

namespace kx {

namespace {

constexpr auto toolPath = "/usr/sbin/arp";
constexpr mode_t executable = 0755;

// A network that the store reports as ready.
class ARPTableTool : public testing::Test {
protected:
    void SetUp() override {
        setServiceOrder(store, {"A"});
        setServiceInterface(store, "A", ethernet("Ethernet", "en0"));
        setActive(1);
        ASSERT_TRUE(networkIsReady());
    }

    void setActive(int isActive) {
        store.setValue("State:/Network/Interface/en0/Link", {{"Active", isActive}});
    }

    MemoryConfigurationStore& store = sharedConfigurationDoubles().store;
    RecordingTool recording;
    RecordedSystemLog log;
};

} // namespace

TEST_F(ARPTableTool, TheToolIsRunWithTheAddressAloneAndItsSentenceRead) {
    const ReplacedFile tool(
        toolPath, recording.program(saying("? (10.0.0.5) at 0:5:2:a:b:c on en0 [ethernet]")),
        executable);
    EXPECT_EQ(hwAddressStringForIPString("10.0.0.5"), "00:05:02:0A:0B:0C");
    EXPECT_EQ(recording.words(), "10.0.0.5\n");
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(ARPTableTool, TheOctetsAreThoseOfTheText) {
    const ReplacedFile tool(
        toolPath, recording.program(saying("? (10.0.0.5) at 0:5:2:a:b:c on en0 [ethernet]")),
        executable);
    std::array<std::uint8_t, 8> octets{9, 9, 9, 9, 9, 9, 9, 9};
    std::uint8_t length = 8;
    EXPECT_EQ(hwAddressForIP(ipForString("10.0.0.5"), octets.data(), length), 0);
    EXPECT_EQ(octets, (std::array<std::uint8_t, 8>{0, 5, 2, 10, 11, 12, 9, 9}));
    EXPECT_EQ(length, 6);
    EXPECT_EQ(recording.words(), "10.0.0.5\n");
}

TEST_F(ARPTableTool, WithRoomForFewerThanSixOctetsTheToolIsNotRun) {
    const ReplacedFile tool(toolPath, recording.program(saying("? at 0:5:2:a:b:c")), executable);
    std::array<std::uint8_t, 6> octets{};
    for (std::uint8_t length = 0; length < 6; ++length) {
        std::uint8_t room = length;
        EXPECT_EQ(hwAddressForIP(ipForString("10.0.0.5"), octets.data(), room), -1);
        EXPECT_EQ(room, length);
    }
    EXPECT_EQ(octets, (std::array<std::uint8_t, 6>{}));
    EXPECT_EQ(recording.words(), "");
}

TEST_F(ARPTableTool, WithoutATextTheToolIsNotRun) {
    const ReplacedFile tool(toolPath, recording.program(saying("? at 0:5:2:a:b:c")), executable);
    EXPECT_EQ(hwAddressStringForIPString(std::nullopt), std::nullopt);
    EXPECT_EQ(recording.words(), "");
}

TEST_F(ARPTableTool, WhileTheNetworkIsNotReadyTheToolIsNotRun) {
    const ReplacedFile tool(toolPath, recording.program(saying("? at 0:5:2:a:b:c")), executable);
    setActive(0);
    EXPECT_EQ(hwAddressStringForIPString("10.0.0.5"), std::nullopt);
    std::array<std::uint8_t, 6> octets{1, 2, 3, 4, 5, 6};
    std::uint8_t length = 6;
    EXPECT_EQ(hwAddressForIP(ipForString("10.0.0.5"), octets.data(), length), -1);
    EXPECT_EQ(octets, (std::array<std::uint8_t, 6>{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(length, 6);
    EXPECT_EQ(recording.words(), "");
}

TEST_F(ARPTableTool, TheStatusOfTheToolDoesNotMatter) {
    const ReplacedFile tool(toolPath, recording.program(saying("? at 0:5:2:a:b:c") + "; exit 1"),
                            executable);
    EXPECT_EQ(hwAddressStringForIPString("10.0.0.5"), "00:05:02:0A:0B:0C");
}

TEST_F(ARPTableTool, AToolThatSaysNothingKnowsNothing) {
    const ReplacedFile tool(toolPath, recording.program(""), executable);
    EXPECT_EQ(hwAddressStringForIPString("10.0.0.5"), std::nullopt);
    EXPECT_EQ(recording.words(), "10.0.0.5\n");
}

TEST_F(ARPTableTool, AToolThatDoesNotSpeakUTF8KnowsNothing) {
    const ReplacedFile tool(toolPath, recording.program("printf '\\377 at 0:5:2:a:b:c'"),
                            executable);
    EXPECT_EQ(hwAddressStringForIPString("10.0.0.5"), std::nullopt);
}

TEST_F(ARPTableTool, AToolThatHangsIsEndedThoughItRefusesToEnd) {
    const ReplacedFile tool(
        toolPath,
        recording.program(saying("? at 0:5:2:a:b:c") +
                          "; exec >&-; trap '' TERM; while :; do sleep 1; done"),
        executable);
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(hwAddressStringForIPString("10.0.0.5"), "00:05:02:0A:0B:0C");
    const auto lasted = std::chrono::steady_clock::now() - begin;
    EXPECT_GE(lasted, longestLookup);
    EXPECT_LT(lasted, longestLookup + std::chrono::seconds(5));
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "no child is left";
}

TEST_F(ARPTableTool, AToolThatCannotBeRunKnowsNothing) {
    const ReplacedFile tool(toolPath, "no program", 0644);
    EXPECT_EQ(hwAddressStringForIPString("10.0.0.5"), std::nullopt);
    std::array<std::uint8_t, 6> octets{};
    std::uint8_t length = 6;
    EXPECT_EQ(hwAddressForIP(ipForString("10.0.0.5"), octets.data(), length), -1);
    EXPECT_EQ(length, 6);
    EXPECT_TRUE(log.lines().empty());
}

} // namespace kx
