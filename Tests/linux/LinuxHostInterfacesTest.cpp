#include "platform/linux/LinuxHostInterfaces.h"

#include "NetworkLinks.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

HostInterface interfaceOf(const NetworkLink& made) {
    return hostInterfaces({"Name (" + made.name + ")"}, {"link-" + made.name}, {made}).at(0);
}

} // namespace

TEST(LinuxHostInterfaces, HaveTheTitlesOfThePopUpInItsOrder) {
    const auto interfaces = hostInterfaces(
        {"Office (kx2)", "Ethernet (kx0)", "Loopback (lo)"}, {"0b1c-uuid", "link-kx0", "=lo"},
        {linkWithAddress(1, "lo", LinkKind::other), linkWithAddress(2, "kx0"),
         linkWithAddress(3, "kx2", LinkKind::vlan)});
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
    const HostInterface interface = interfaceOf(linkWithAddress(2, "kx0"));
    ASSERT_EQ(interface.networks.size(), 1U);
    EXPECT_EQ(interface.networks[0].address, 0xC0000202U);
    EXPECT_EQ(interface.networks[0].mask, 0xFFFFFF00U);
}

TEST(LinuxHostInterfaces, CanAskOnlyWithALinkABroadcastAndAnAddress) {
    const NetworkLink whole = linkWithAddress(2, "kx0");
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
