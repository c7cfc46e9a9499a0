// The facts about real links that reach a person and the controller.

#include "PrivateNetwork.h"
#include "System Configuration/ConfigurationKeys.h"
#include "System Configuration/InterfaceTitles.h"
#include "System Configuration/SystemConfiguration.h"
#include "WithoutNetlink.h"
#include "contracts/ConfigurationStoreContract.h"
#include "platform/PollLoopDriver.h"
#include "platform/linux/LinuxConfigurationStore.h"
#include "platform/linux/LinuxKernelQuery.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

using Titles = std::vector<std::string>;
using namespace std::chrono_literals;

class LinuxInterfaces : public testing::Test {
protected:
    // Made on first use. Its own watch speaks to the shared instance, so tests that turn the loop
    // do not use it.
    SystemConfiguration& configuration() {
        if (!_configuration.has_value()) {
            _configuration.emplace(store, kernelQuery);
        }
        return *_configuration;
    }
    Titles popUpTitles() {
        return configuration().bsdTitlesAndServiceIDs(&serviceIDs).value_or(Titles());
    }
    Titles allTitles() {
        return configuration().interfaceTitlesAndServiceIDs(&serviceIDs).value_or(Titles());
    }

    // The values that the controller reads when a title is chosen: the first address and its mask.
    std::string choice(const std::string& title) {
        const auto serviceID = configuration().serviceIDForInterface(bsdNameForTitle(title));
        return serviceID.has_value()
                   ? first(*serviceID, "Addresses") + "/" + first(*serviceID, "SubnetMasks")
                   : "no service";
    }
    std::string textOf(const std::string& serviceID, std::string_view request) {
        return configuration().serviceInterfaceDataForKey(serviceID, request);
    }

    // Starts to watch the IPv4 state of every service.
    void watch() {
        session = store.openSession("test", RecordedChanges::record, &changes);
        const std::vector<std::string_view> patterns = {"State:/Network/Service/[^/]+/IPv4"};
        ASSERT_TRUE(session->setNotificationKeys({}, patterns));
        source = session->createRunLoopSource();
        source->addToRunLoop();
    }
    Titles changedKeys() {
        runLoopFor(loop, 400ms);
        auto keys = std::exchange(changes.keys, {});
        std::ranges::sort(keys);
        return keys;
    }

    PrivateNetwork network;
    PollRunLoop loop;
    KernelLinks links{loop};
    LinuxKernelQuery kernelQuery{links};
    LinuxConfigurationStore store{loop, links, nullptr};
    Titles serviceIDs;
    RecordedChanges changes;
    std::unique_ptr<DynamicStoreSession> session;
    std::unique_ptr<ConfigurationChangeSource> source;

private:
    std::optional<SystemConfiguration> _configuration;

    std::string first(const std::string& serviceID, std::string_view key) {
        const auto value = configuration().serviceDataForDictionaryNameKey(serviceID, "IPv4", key);
        const auto* const list = value.has_value() ? value->list() : nullptr;
        return list != nullptr && !list->empty() ? list->front().description() : "none";
    }
};

} // namespace

TEST_F(LinuxInterfaces, AHostWithoutLinksOffersItsLoopbackAsAKernelInterface) {
    EXPECT_EQ(popUpTitles(), Titles{"Loopback (lo)"});
    EXPECT_EQ(serviceIDs, Titles{"=lo"});
    EXPECT_EQ(configuration().serviceIDForInterface("lo"), "=lo");
    EXPECT_EQ(choice("Loopback (lo)"), "none/none");
    EXPECT_EQ(textOf("=lo", linkStatusRequest), "Active");
    EXPECT_EQ(textOf("=lo", netNumberRequest), "127.0.0.1/8");
}

TEST_F(LinuxInterfaces, ALoopbackThatIsDownIsNotOffered) {
    network.ip("link set lo down");
    EXPECT_EQ(popUpTitles(), Titles());
    EXPECT_EQ(allTitles(), Titles{"Loopback (lo)"});
}

TEST_F(LinuxInterfaces, ALinkWithAnAddressIsAServiceNamedByItsKind) {
    network.addLink("kx0", "02:00:00:00:00:01");
    network.addAddress("kx0", "192.0.2.1/24");
    network.ip("link add kxbr type bridge");
    network.addAddress("kxbr", "198.51.100.1/28");
    EXPECT_EQ(allTitles(), (Titles{"Ethernet (kx0)", "Bridge (kxbr)", "Loopback (lo)",
                                   "BSD Interface (p-kx0)"}));
    EXPECT_EQ(serviceIDs, (Titles{"link-kx0", "link-kxbr", "=lo", "=p-kx0"}));
    EXPECT_EQ(choice("Ethernet (kx0)"), "192.0.2.1/255.255.255.0");
    EXPECT_EQ(choice("Bridge (kxbr)"), "198.51.100.1/255.255.255.240");
    EXPECT_EQ(configuration().bsdNameForServiceID("link-kx0"), "kx0");
    EXPECT_EQ(textOf("link-kx0", hardwareAddressRequest), "02:00:00:00:00:01");
}

TEST_F(LinuxInterfaces, ALinkWithoutAnAddressIsOfTheKernelOnly) {
    network.addLink("kx0", "02:00:00:00:00:01");
    EXPECT_EQ(popUpTitles(),
              (Titles{"Loopback (lo)", "BSD Interface (p-kx0)", "BSD Interface (kx0)"}));
    EXPECT_EQ(choice("BSD Interface (kx0)"), "no service");
}

TEST_F(LinuxInterfaces, ALinkWithIPv6OnlyIsOfTheKernelOnlyAndTellsItsAddresses) {
    network.addLink("kx0", "02:00:00:00:00:01");
    network.ip("link set kx0 addrgenmode none");
    network.ip("address flush dev kx0");
    network.ip("address add 2001:db8::1/64 dev kx0 nodad");
    popUpTitles();
    EXPECT_NE(std::ranges::find(serviceIDs, "=kx0"), serviceIDs.end());
    EXPECT_EQ(configuration().interfaceDataForDictionaryNameKey("kx0", "IPv6", "Addresses"),
              PropertyListValue(PropertyList{"2001:db8::1"}));
    EXPECT_EQ(configuration().interfaceDataForDictionaryNameKey("kx0", "IPv6", "PrefixLength"),
              PropertyListValue(PropertyList{64}));
    EXPECT_EQ(configuration().interfaceDataForDictionaryNameKey("kx0", "IPv4", "Addresses"),
              std::nullopt);
    network.addAddress("kx0", "192.0.2.1/24");
    EXPECT_EQ(textOf("link-kx0", grantAddress6Request), "2001:db8::1/64");
}

TEST_F(LinuxInterfaces, ATunnelIsNoServiceEvenWithAnAddress) {
    network.ip("tuntap add tun0 mode tun");
    network.addAddress("tun0", "203.0.113.1/24");
    network.ip("link set tun0 up");
    EXPECT_EQ(popUpTitles(), (Titles{"Loopback (lo)", "VPN Tunnel (tun0)"}));
    EXPECT_EQ(choice("VPN Tunnel (tun0)"), "no service");
    EXPECT_EQ(textOf("=tun0", grantAddressRequest), "203.0.113.1");
    EXPECT_EQ(textOf("=tun0", hardwareAddressRequest), "not available");
}

TEST_F(LinuxInterfaces, EveryAddressOfALinkIsListedThePrimaryOnesFirst) {
    network.addLink("kx0", "02:00:00:00:00:01");
    network.addAddress("kx0", "10.0.0.5/8");
    network.addAddress("kx0", "192.0.2.6/24");
    network.addAddress("kx0", "10.0.0.7/8"); // a secondary address of the first network
    EXPECT_EQ(textOf("link-kx0", netNumberRequest), "10.0.0.5/8,192.0.2.6/24,10.0.0.7/8");
    EXPECT_EQ(textOf("link-kx0", subnetMaskRequest), "255.0.0.0,255.255.255.0,255.0.0.0");
    EXPECT_EQ(configuration().bsdNameInterfaceDataForKey("kx0", netNumberRequest), "10.0.0.5/8");
}

TEST_F(LinuxInterfaces, AnAddressOfTheWholeNetworkComesBeforeOneOfTheLinkOrTheHost) {
    network.addLink("kx0", "02:00:00:00:00:01");
    network.addAddress("kx0", "10.5.0.1/24");
    network.ip("address add 169.254.7.7/16 dev kx0 scope link");
    network.ip("address add 10.9.0.1/24 dev kx0 scope host");
    network.addAddress("kx0", "10.6.0.1/24");
    EXPECT_EQ(choice("Ethernet (kx0)"), "10.5.0.1/255.255.255.0");
    EXPECT_EQ(textOf("link-kx0", netNumberRequest),
              "10.5.0.1/24,10.6.0.1/24,169.254.7.7/16,10.9.0.1/24");
    EXPECT_EQ(configuration().bsdNameInterfaceDataForKey("kx0", netNumberRequest), "10.5.0.1/24");
    network.ip("address delete 10.5.0.1/24 dev kx0");
    network.ip("address delete 10.6.0.1/24 dev kx0");
    EXPECT_EQ(choice("Ethernet (kx0)"), "169.254.7.7/255.255.0.0");
}

TEST_F(LinuxInterfaces, TheStateOfALinkFollowsItsFlagsAndItsCarrier) {
    const auto stateOf = [this](const std::string& name) {
        const auto state = configuration().interfaceState(name);
        return !state.has_value() ? std::string("unknown")
                                  : std::string(state->isRunning ? "running" : "not running") +
                                        (state->canBroadcast ? ", can broadcast" : "");
    };
    EXPECT_EQ(stateOf("kx0"), "unknown");
    network.addLink("kx0", "02:00:00:00:00:01");
    EXPECT_TRUE(eventually([&] { return stateOf("kx0") == "running, can broadcast"; }));
    network.ip("link set p-kx0 down");
    EXPECT_TRUE(eventually([&] { return stateOf("kx0") == "not running, can broadcast"; }));
    network.ip("link set p-kx0 up");
    network.ip("link set kx0 down");
    EXPECT_EQ(stateOf("kx0"), "not running, can broadcast");
    network.ip("tuntap add tun0 mode tun");
    EXPECT_EQ(stateOf("tun0"), "not running");
    EXPECT_EQ(stateOf("lo"), "running");
}

TEST_F(LinuxInterfaces, ALinkIsActiveWhileItHasACarrier) {
    network.addLink("kx0", "02:00:00:00:00:01");
    network.addAddress("kx0", "192.0.2.1/24");
    EXPECT_EQ(textOf("link-kx0", linkStatusRequest), "Active");
    network.ip("link set p-kx0 down");
    EXPECT_TRUE(eventually([this] { return textOf("link-kx0", linkStatusRequest) == "Inactive"; }));
    EXPECT_EQ(textOf("=kx0", linkStatusRequest), "Active") << "a kernel interface need only be up";
    network.ip("link set kx0 down");
    EXPECT_EQ(textOf("=kx0", linkStatusRequest), "Inactive");
    EXPECT_EQ(allTitles(), (Titles{"Ethernet (kx0)", "Loopback (lo)", "BSD Interface (p-kx0)"}))
        << "its address stays, and so it stays a service";
}

TEST_F(LinuxInterfaces, TheHostsPreferredDefaultRouteComesFirst) {
    for (const std::string number : {"0", "1", "2"}) {
        network.addLink("kx" + number, "02:00:00:00:00:0" + number);
        network.addAddress("kx" + number, "192.0." + number + ".1/24");
    }
    EXPECT_EQ(popUpTitles()[0], "Ethernet (kx0)") << "without any route, the oldest link";
    network.ip("route add default via 192.0.2.254 dev kx2 metric 50");
    network.ip("route add default via 192.0.1.254 dev kx1 metric 600");
    popUpTitles();
    EXPECT_EQ((Titles{serviceIDs.begin(), serviceIDs.begin() + 3}),
              (Titles{"link-kx2", "link-kx1", "link-kx0"}));
    network.ip("route add default via 192.0.1.254 dev kx1 metric 20");
    popUpTitles();
    EXPECT_EQ(serviceIDs[0], "link-kx1");
    network.ip("route flush exact default");
    network.ip("route add default metric 10 nexthop dev kx0 nexthop dev kx2");
    popUpTitles();
    EXPECT_EQ((Titles{serviceIDs.begin(), serviceIDs.begin() + 3}),
              (Titles{"link-kx0", "link-kx2", "link-kx1"}));
}

TEST_F(LinuxInterfaces, ALinkThatComesLaterIsSeenWithoutATurnOfTheLoop) {
    popUpTitles();
    network.addLink("kx0", "02:00:00:00:00:01");
    network.addAddress("kx0", "192.0.2.1/24");
    EXPECT_EQ(popUpTitles()[0], "Ethernet (kx0)");
    network.ip("link set kx0 down");
    network.ip("link set kx0 name office");
    EXPECT_EQ(popUpTitles()[0], "Ethernet (office)");
    network.ip("link del office");
    EXPECT_EQ(popUpTitles(), Titles{"Loopback (lo)"});
}

TEST_F(LinuxInterfaces, AChangeIsToldOnceForEachChangedKey) {
    network.addLink("kx0", "02:00:00:00:00:01");
    network.addLink("kx1", "02:00:00:00:00:02");
    watch();
    network.addAddress("kx0", "192.0.2.1/24");
    network.addAddress("kx1", "198.51.100.1/24");
    EXPECT_EQ(changedKeys(), (Titles{"State:/Network/Service/link-kx0/IPv4",
                                     "State:/Network/Service/link-kx1/IPv4"}));
    network.addAddress("kx0", "192.0.2.2/24");
    EXPECT_EQ(changedKeys(), Titles{"State:/Network/Service/link-kx0/IPv4"});
    network.ip("address del 192.0.2.1/24 dev kx0"); // removes its secondary address too: two events
    EXPECT_EQ(changedKeys(), Titles{"State:/Network/Service/link-kx0/IPv4"});
    network.ip("link set kx1 mtu 1400");
    EXPECT_EQ(changedKeys(), Titles());
    network.ip("link del kx1");
    EXPECT_EQ(changedKeys(), Titles{"State:/Network/Service/link-kx1/IPv4"});
}

TEST_F(LinuxInterfaces, ReadingInBetweenDoesNotSwallowAChange) {
    network.addLink("kx0", "02:00:00:00:00:01");
    watch();
    network.addAddress("kx0", "192.0.2.1/24");
    EXPECT_TRUE(session->copyValue("State:/Network/Service/link-kx0/IPv4").has_value());
    EXPECT_EQ(changedKeys(), Titles{"State:/Network/Service/link-kx0/IPv4"});
}

TEST_F(LinuxInterfaces, ASessionWithoutACallbackSeesTheLinksAsTheyWereWhenItWasOpened) {
    network.addLink("kx0", "02:00:00:00:00:01");
    network.addAddress("kx0", "192.0.2.1/24");
    const std::string key = "State:/Network/Service/link-kx0/IPv4";
    const auto before = links.generation();
    const auto quiet = store.openSession("test", nullptr, nullptr);
    network.ip("address flush dev kx0");
    EXPECT_TRUE(quiet->copyValue(key).has_value());
    EXPECT_EQ(links.generation(), before + 1) << "the host is read once";
    EXPECT_FALSE(store.openSession("test", nullptr, nullptr)->copyValue(key).has_value());
}

TEST_F(LinuxInterfaces, WhatIsThereBeforeTheFirstReadIsNoChange) {
    network.addLink("kx0", "02:00:00:00:00:01");
    network.addAddress("kx0", "192.0.2.1/24");
    session = store.openSession("test", RecordedChanges::record, &changes);
    const std::vector<std::string_view> patterns = {"State:/Network/Service/[^/]+/IPv4"};
    ASSERT_TRUE(session->setNotificationKeys({}, patterns));
    source = session->createRunLoopSource();
    network.ip("link set kx0 mtu 1400"); // makes the store read the links again
    withoutNetlink([this] { source->addToRunLoop(); });
    EXPECT_EQ(changedKeys(), Titles());
    network.ip("link set kx0 mtu 1500");
    EXPECT_EQ(changedKeys(), Titles());
    network.addAddress("kx0", "192.0.2.2/24");
    EXPECT_EQ(changedKeys(), Titles{"State:/Network/Service/link-kx0/IPv4"});
}

TEST_F(LinuxInterfaces, ALinkWhoseNameIsNoTextIsLeftOut) {
    network.addLink("kx\xFF", "02:00:00:00:00:01");
    network.addAddress("kx\xFF", "192.0.2.1/24");
    EXPECT_EQ(allTitles(), Titles{"Loopback (lo)"});
}

TEST_F(LinuxInterfaces, MoreChangesThanTheSocketHoldsAreToldAsOne) {
    network.addLink("kx0", "02:00:00:00:00:01");
    watch();
    std::string commands;
    for (int i = 0; i < 2000; ++i) {
        commands += "address add 10." + std::to_string(i / 250) + "." + std::to_string(i % 250) +
                    ".1/32 dev kx0\n";
    }
    network.batch(commands);
    EXPECT_EQ(changedKeys(), Titles{"State:/Network/Service/link-kx0/IPv4"});
    const auto record = session->copyValue("State:/Network/Service/link-kx0/IPv4");
    ASSERT_TRUE(record.has_value());
    EXPECT_EQ(valueForKey(*record, "Addresses")->list()->size(), 2000U);
}

TEST_F(LinuxInterfaces, ManyLinksAreListedInTheOrderInWhichTheyCame) {
    std::string commands;
    for (int i = 0; i < 300; ++i) {
        commands += "link add kx" + std::to_string(i) + " type bridge\n";
    }
    network.batch(commands);
    const auto titles = allTitles();
    ASSERT_EQ(titles.size(), 301U);
    for (std::size_t i = 0; i < 300; ++i) {
        EXPECT_EQ(titles[i + 1], "BSD Interface (kx" + std::to_string(i) + ")");
    }
}

TEST_F(LinuxInterfaces, APatternThatIsNoRegularExpressionIsRefused) {
    session = store.openSession("test", RecordedChanges::record, &changes);
    const std::vector<std::string_view> patterns = {"State:/Network/Service/[^/+/IPv4"};
    EXPECT_FALSE(session->setNotificationKeys({}, patterns));
    EXPECT_NE(store.SCError(), 0);
}

TEST_F(LinuxInterfaces, AKernelThatCannotBeAskedLeavesNothingToOffer) {
    withoutNetlink([this] {
        EXPECT_EQ(store.openSession("test", nullptr, nullptr), nullptr);
        EXPECT_NE(store.SCError(), 0);
        EXPECT_EQ(store.openPreferences("test"), nullptr);
        EXPECT_EQ(configuration().bsdTitlesAndServiceIDs(nullptr), std::nullopt);
    });
}

} // namespace kx
