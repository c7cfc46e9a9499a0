// The neighbour table and the ARP probes on real links.

#include "PrivateNetwork.h"
#include "WithoutNetlink.h"
#include "addresses/IPv4Address.h"
#include "platform/linux/LinuxAddressProbes.h"
#include "platform/linux/LinuxNeighbourTable.h"
#include "platform/posix/PollRunLoop.h"

#include <gtest/gtest.h>
#include <net/if.h>

namespace kx {

namespace {

constexpr std::uint32_t nearAddress = 0xC000020BU; // 192.0.2.11
constexpr std::uint32_t farAddress = 0xC0000202U;

class AddressHoldersOnLinks : public testing::Test {
protected:
    AddressHoldersOnLinks() {
        network.addLink("kx0", "02:00:00:00:00:01");
        network.addAddress("kx0", "192.0.2.1/24");
        link = ::if_nametoindex("kx0");
    }

    std::optional<Neighbour> entry() { return table.entry(nearAddress, link); }

    void setEntry(const std::string& words) {
        network.ip("neigh replace 192.0.2.11 dev kx0 " + words);
    }

    PrivateNetwork network;
    std::uint32_t link = 0;
    LinuxNeighbourTable table;
};

} // namespace

TEST_F(AddressHoldersOnLinks, AnAddressThatNobodyHasAskedForHasNoEntry) {
    EXPECT_FALSE(entry().has_value());
    setEntry("lladdr 02:4b:58:00:00:01 nud reachable");
    EXPECT_TRUE(entry().has_value());
    EXPECT_FALSE(table.entry(nearAddress + 1, link).has_value());
    EXPECT_FALSE(table.entry(nearAddress, link + 1000).has_value());
    EXPECT_TRUE(entry().has_value()) << "a question without an answer does not disturb the next";
}

TEST_F(AddressHoldersOnLinks, AnEntryTellsItsStateAndItsHardwareAddress) {
    const std::string hardware = "lladdr 02:4b:58:00:00:01 nud ";
    std::uint32_t each = nearAddress;
    for (const auto& [word, state] :
         {std::pair{"reachable", NeighbourState::reachable},
          std::pair{"stale", NeighbourState::stale}, std::pair{"delay", NeighbourState::stale},
          std::pair{"permanent", NeighbourState::permanent},
          std::pair{"noarp", NeighbourState::permanent}}) {
        // Each at an address of its own: what was reachable a moment ago soon is again.
        ++each;
        network.ip("neigh replace " + stringForIP(each) + " dev kx0 " + hardware + word);
        const auto found = table.entry(each, link);
        ASSERT_TRUE(found.has_value()) << word;
        EXPECT_EQ(found->state, state) << word;
        EXPECT_EQ(found->hardwareAddress, "02:4B:58:00:00:01");
    }
}

TEST_F(AddressHoldersOnLinks, EntriesThatTheSystemDoesNotGiveUpAreCounted) {
    const std::size_t before = table.entriesInUse();
    for (const auto& [word, isInUse] :
         {std::pair{"reachable", true}, std::pair{"delay", true}, std::pair{"permanent", true},
          std::pair{"stale", false}, std::pair{"failed", false}}) {
        network.ip("neigh flush dev kx0 nud all");
        setEntry("lladdr 02:4b:58:00:00:01 nud " + std::string(word));
        EXPECT_EQ(table.entriesInUse() - before, isInUse ? 1U : 0U) << word;
    }
}

TEST_F(AddressHoldersOnLinks, WhereTheKernelCannotBeAskedNothingIsKnown) {
    withoutNetlink([this] {
        LinuxNeighbourTable deaf;
        EXPECT_EQ(deaf.entriesInUse(), 0U);
        EXPECT_TRUE(deaf.knownAddresses(link).empty());
        EXPECT_FALSE(deaf.entry(nearAddress, link).has_value());
    });
}

TEST_F(AddressHoldersOnLinks, AnEntryIsForgottenUnlessSomebodyHasEnteredItByHand) {
    setEntry("lladdr 02:4b:58:00:00:01 nud reachable");
    table.forget(nearAddress, link);
    EXPECT_FALSE(entry().has_value());
    table.forget(nearAddress, link); // nothing is there any more
    setEntry("lladdr 02:4b:58:00:00:01 nud permanent");
    table.forget(nearAddress, link);
    ASSERT_TRUE(entry().has_value());
    EXPECT_EQ(entry()->state, NeighbourState::permanent);
}

TEST_F(AddressHoldersOnLinks, AProbeHearsWhoClaimsTheAddress) {
    PollRunLoop runLoop;
    LinuxAddressProbes probes(runLoop);
    // This host answers for its own address at the other end of a pair within one network.
    network.ip("link add kx2 type veth peer name kx3 address 02:00:00:00:00:04");
    network.ip("link set kx2 up");
    network.ip("link set kx3 up");
    network.addAddress("kx3", "192.0.2.2/32");
    std::vector<std::string> heard;
    const auto probe =
        probes.open(::if_nametoindex("kx2"), [&](std::uint32_t from, const std::string& hardware) {
            if (from == farAddress) {
                heard.push_back(hardware);
            }
        });
    ASSERT_NE(probe, nullptr);
    const auto isHeard = [&] {
        probe->probe(farAddress);
        runLoop.runOnce(std::chrono::milliseconds(50));
        return !heard.empty();
    };
    EXPECT_TRUE(eventually(isHeard));
    EXPECT_EQ(heard.at(0), "02:00:00:00:00:04");
}

TEST_F(AddressHoldersOnLinks, ALinkWithoutHardwareAddressesCannotBeProbed) {
    PollRunLoop runLoop;
    LinuxAddressProbes probes(runLoop);
    EXPECT_EQ(probes.open(link + 1000, {}), nullptr);
}

} // namespace kx
