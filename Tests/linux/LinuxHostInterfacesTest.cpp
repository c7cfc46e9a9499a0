#include "platform/linux/LinuxHostInterfaces.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

NetworkLink link(int index, std::string name, LinkKind kind) {
    NetworkLink made;
    made.index = index;
    made.name = std::move(name);
    made.kind = kind;
    made.isUp = made.isRunning = made.canBroadcast = true;
    IPv4InterfaceAddress address;
    address.address = 0xC0000201U;
    address.prefixLength = 24;
    made.ipv4Addresses = {address};
    return made;
}

HostInterface interfaceOf(const NetworkLink& made) {
    return hostInterfaces({"Name (" + made.name + ")"}, {"link-" + made.name}, {made}).at(0);
}

} // namespace

TEST(LinuxHostInterfaces, HaveTheTitlesOfThePopUpInItsOrder) {
    const auto interfaces = hostInterfaces(
        {"Office (kx2)", "Ethernet (kx0)", "Loopback (lo)"}, {"0b1c-uuid", "link-kx0", "=lo"},
        {link(1, "lo", LinkKind::other), link(2, "kx0", LinkKind::ethernet),
         link(3, "kx2", LinkKind::vlan)});
    ASSERT_EQ(interfaces.size(), 3U);
    EXPECT_EQ(interfaces[0].name, "kx2");
    EXPECT_EQ(interfaces[0].userName, "Office");
    EXPECT_EQ(interfaces[0].kind, "vlan");
    EXPECT_EQ(interfaces[0].link, 3U);
    EXPECT_TRUE(interfaces[0].hasProfile);
    EXPECT_FALSE(interfaces[1].hasProfile);
    EXPECT_FALSE(interfaces[2].hasProfile);
}

TEST(LinuxHostInterfaces, HaveTheNetworksOfTheirLink) {
    const HostInterface interface = interfaceOf(link(2, "kx0", LinkKind::ethernet));
    ASSERT_EQ(interface.networks.size(), 1U);
    EXPECT_EQ(interface.networks[0].address, 0xC0000201U);
    EXPECT_EQ(interface.networks[0].mask, 0xFFFFFF00U);
}

TEST(LinuxHostInterfaces, CanAskOnlyWithALinkABroadcastAndAnAddress) {
    const NetworkLink whole = link(2, "kx0", LinkKind::ethernet);
    EXPECT_TRUE(interfaceOf(whole).canAsk);
    NetworkLink without = whole;
    without.isRunning = false;
    EXPECT_FALSE(interfaceOf(without).canAsk);
    without = whole;
    without.canBroadcast = false;
    EXPECT_FALSE(interfaceOf(without).canAsk);
    without = whole;
    without.ipv4Addresses.clear();
    EXPECT_FALSE(interfaceOf(without).canAsk);
    without = whole;
    without.isLoopback = true;
    EXPECT_FALSE(interfaceOf(without).canAsk);
    EXPECT_EQ(interfaceOf(without).kind, "loopback");
}

TEST(LinuxHostInterfaces, ATitleWithoutALinkHasNothingElse) {
    const auto interfaces = hostInterfaces({"Modem (ppp0)"}, {}, {});
    ASSERT_EQ(interfaces.size(), 1U);
    EXPECT_EQ(interfaces[0].kind, "other");
    EXPECT_EQ(interfaces[0].link, 0U);
    EXPECT_FALSE(interfaces[0].canAsk);
}

} // namespace kx
