// Lookups in the host's ARP table, with the real tool and with other tools in its place.

#include "RecordingTool.h"
#include "ReplacedFile.h"
#include "SharedHost.h"
#include "addresses/ARPTable.h"
#include "doubles/RecordedSystemLog.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace kx {

namespace {

constexpr auto arpPath = "/usr/sbin/arp";
constexpr mode_t executable = 0755;

// A network that is ready, with an entry in its table.
class ARPTableLookup : public testing::Test {
protected:
    static void SetUpTestSuite() {
        auto& network = sharedHost().network;
        network.addLink("kx5", "02:00:00:00:00:05");
        network.addAddress("kx5", "10.0.0.1/24");
        network.ip("neigh add 10.0.0.5 lladdr 00:05:02:0a:0b:0c dev kx5");
        ASSERT_TRUE(eventually(networkIsReady));
    }
    static void TearDownTestSuite() { sharedHost().network.ip("link del kx5"); }

    RecordingTool recording;
    RecordedSystemLog log;
};

} // namespace

TEST_F(ARPTableLookup, WhileTheNetworkIsNotReadyTheToolIsNotRun) {
    const ReplacedFile tool(arpPath, recording.program(saying("? at 0:5:2:a:b:c")), executable);
    sharedHost().network.ip("link set p-kx5 down");
    ASSERT_TRUE(eventually([] { return !networkIsReady(); }));
    EXPECT_EQ(hwAddressStringForIPString("10.0.0.5"), std::nullopt);
    EXPECT_EQ(recording.words(), "");
    sharedHost().network.ip("link set p-kx5 up");
    EXPECT_TRUE(eventually(networkIsReady));
}

// The real tool answers with a table when it is given an address alone.
TEST_F(ARPTableLookup, TheTableOfNetToolsHoldsNoSentence) {
    EXPECT_EQ(hwAddressStringForIPString("10.0.0.5"), std::nullopt);
    EXPECT_EQ(hwAddressStringForIPString("10.0.0.9"), std::nullopt);
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(ARPTableLookup, TheSentenceOfNetToolsIsUnderstood) {
    const std::string original = recording.folder() + "/arp";
    std::filesystem::copy_file(arpPath, original);
    const ReplacedFile tool(arpPath, recording.program(original + " -a \"$1\""), executable);
    EXPECT_EQ(hwAddressStringForIPString("10.0.0.5"), "00:05:02:0A:0B:0C");
    EXPECT_EQ(hwAddressStringForIPString("10.0.0.9"), std::nullopt);
    EXPECT_EQ(recording.words(), "10.0.0.5\n10.0.0.9\n");
}

} // namespace kx
