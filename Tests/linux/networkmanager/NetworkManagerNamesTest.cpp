// The facts that reach a person and the controller on a host whose links have profiles.

#include "PrivateHost.h"
#include "System Configuration/InterfaceTitles.h"
#include "addresses/IPv4Address.h"
#include "contracts/ConfigurationStoreContract.h"
#include "conversation/ChosenInterface.h"
#include "doubles/SharedConfigurationDoubles.h"
#include "platform/linux/LinuxConfigurationStore.h"
#include "platform/linux/LinuxKernelQuery.h"
#include "platform/linux/NetworkManagerProfiles.h"
#include "platform/qt/QtRunLoop.h"

#include <gtest/gtest.h>

#include <map>

namespace kx {

namespace {

using Titles = std::vector<std::string>;
using Counts = std::map<std::string, int>;
using namespace std::chrono_literals;

const std::string office = PrivateHost::officeID;
const std::string line = PrivateHost::lineID;

// The application's sources of facts about the host.
class Sources {
public:
    Sources() {
        sharedConfigurationDoubles(); // the watch hears every change, too
    }

    // The titles of the services in the pop-up.
    Titles services() {
        Titles result;
        const auto titles = configuration.bsdTitlesAndServiceIDs(&serviceIDs).value_or(Titles());
        for (std::size_t i = 0; i < titles.size(); ++i) {
            if (!serviceIDs[i].starts_with('=')) {
                result.push_back(titles[i]);
            }
        }
        serviceIDs.resize(result.size()); // the services come first
        return result;
    }

    // The values that the controller reads when a title is chosen: the first address and its mask.
    std::string choice(const std::string& title) {
        const auto serviceID = configuration.serviceIDForInterface(bsdNameForTitle(title));
        return serviceID.has_value()
                   ? first(*serviceID, "Addresses") + "/" + first(*serviceID, "SubnetMasks")
                   : "no service";
    }

    // Starts to count how often each key under a pattern is reported as changed.
    void watch(std::string_view pattern) {
        _changes = {};
        _source.reset();
        _session = store.openSession("test", RecordedChanges::record, &_changes);
        ASSERT_TRUE(_session->setNotificationKeys({}, std::array{pattern}));
        _source = _session->createRunLoopSource();
        _source->addToRunLoop();
    }
    Counts toldAtRest() {
        handleEventsFor(700ms);
        Counts counts;
        for (const auto& key : _changes.keys) {
            ++counts[key];
        }
        return counts;
    }

    Titles serviceIDs;
    QtRunLoop loop;
    KernelLinks links{loop};
    NetworkManagerProfiles profiles{loop};
    LinuxConfigurationStore store{loop, links, &profiles};
    LinuxKernelQuery kernelQuery{links};
    SystemConfiguration configuration{store, kernelQuery};

private:
    std::string first(const std::string& serviceID, std::string_view key) {
        const auto value = configuration.serviceDataForDictionaryNameKey(serviceID, "IPv4", key);
        const auto* const list = value.has_value() ? value->list() : nullptr;
        return list != nullptr && !list->empty() ? list->front().description() : "none";
    }

    RecordedChanges _changes;
    std::unique_ptr<DynamicStoreSession> _session;
    std::unique_ptr<ConfigurationChangeSource> _source;
};

class NetworkManagerNames : public testing::Test {
protected:
    void startAndList() { startAndListWith(names); }
    void startAndListWith(const Titles& titles) {
        host.start();
        sources.emplace();
        ASSERT_TRUE(servicesBecome(titles));
    }
    bool servicesBecome(const Titles& titles) {
        const bool isSo = handleEventsUntil([&] { return sources->services() == titles; });
        EXPECT_EQ(sources->services(), titles);
        return isSo;
    }

    const Titles names = {"Office (kx0)", "Production line (kx1)"};
    PrivateHost host;
    std::optional<Sources> sources;
};

const auto addressPattern = "State:/Network/Service/[^/]+/IPv4";
const auto interfacePattern = "Setup:/Network/Service/[^/]+/Interface";

std::string addressKey(const std::string& serviceID) {
    return "State:/Network/Service/" + serviceID + "/IPv4";
}
std::string interfaceKey(const std::string& serviceID) {
    return "Setup:/Network/Service/" + serviceID + "/Interface";
}

} // namespace

TEST_F(NetworkManagerNames, TitlesAreTheNamesOfTheProfilesWithTheirDevices) {
    startAndList();
    EXPECT_EQ(sources->serviceIDs, (Titles{office, line}));
    EXPECT_EQ(sources->configuration.bsdNameForServiceID(line), "kx1");
}

// NetworkManager gives the link-local address the scope of the link, and the kernel tells it first.
TEST_F(NetworkManagerNames, ALinkLocalAddressBesideARealOneIsNotTheOneThatIsChosen) {
    host.addProfile(office, "Office",
                    PrivateHost::ethernet("kx0", "address1=192.0.2.5/24\nlink-local=3\n"));
    startAndList();
    const auto addresses = [this] {
        return sources->configuration.serviceInterfaceDataForKey(office, grantAddressRequest);
    };
    EXPECT_TRUE(handleEventsUntil([&] {
        return addresses().find(",169.254.") != std::string::npos;
    })) << addresses();
    EXPECT_TRUE(addresses().starts_with("192.0.2.5,169.254.")) << addresses();
    EXPECT_EQ(sources->choice("Office (kx0)"), "192.0.2.5/255.255.255.0");
}

// The profile still has the address, so choosing the interface gives it. But no broadcast leaves.
TEST_F(NetworkManagerNames, AnAddressThatTheKernelHasLostIsLostThoughItsProfileIsActive) {
    startAndList();
    const ChosenInterface chosen{.name = "kx0",
                                 .address = addressOfInterface(sources->configuration, "kx0")};
    EXPECT_EQ(faultOfInterface(sources->configuration, chosen, true), std::nullopt);
    EXPECT_TRUE(broadcastCanLeave(sources->configuration, "kx0", ipForString("192.0.2.255")));
    host.networkManager->hang(); // it would hear of it, and take the address out of the profile
    host.network.ip("address flush dev kx0");
    EXPECT_EQ(sources->choice("Office (kx0)"), "192.0.2.5/255.255.255.0");
    EXPECT_EQ(faultOfInterface(sources->configuration, chosen, true),
              (InterfaceFinding{.fault = InterfaceFault::lostAddress, .interface = "kx0"}));
    EXPECT_FALSE(broadcastCanLeave(sources->configuration, "kx0", ipForString("192.0.2.255")));
}

TEST_F(NetworkManagerNames, ChoosingOneGivesItsAddressAndMask) {
    startAndList();
    EXPECT_EQ(sources->choice("Office (kx0)"), "192.0.2.5/255.255.255.0");
    EXPECT_EQ(sources->choice("Production line (kx1)"), "198.51.100.5/255.255.255.128");
}

TEST_F(NetworkManagerNames, TheOrderIsTheHosts) {
    const std::string gateway = "address1=192.0.2.5/24,192.0.2.1\nroute-metric=600\n";
    host.addProfile(office, "Office", PrivateHost::ethernet("kx0", gateway));
    const std::string better = "address1=198.51.100.5/25,198.51.100.1\nroute-metric=50\n";
    host.addProfile(line, "Production line", PrivateHost::ethernet("kx1", better));
    startAndListWith({"Production line (kx1)", "Office (kx0)"});
    PrivateHost::nmcli({"connection", "modify", line.c_str(), "ipv4.route-metric", "700"});
    PrivateHost::nmcli({"device", "reapply", "kx1"});
    servicesBecome(names);
}

TEST_F(NetworkManagerNames, ANewNameIsToldOnce) {
    startAndList();
    sources->watch(interfacePattern);
    PrivateHost::nmcli({"connection", "modify", office.c_str(), "connection.id", "Head office"});
    ASSERT_TRUE(servicesBecome({"Head office (kx0)", "Production line (kx1)"}));
    EXPECT_EQ(sources->toldAtRest(), (Counts{{interfaceKey(office), 1}}));
}

TEST_F(NetworkManagerNames, ANewAddressIsToldOnce) {
    startAndList();
    sources->watch(addressPattern);
    PrivateHost::nmcli({"connection", "modify", line.c_str(), "ipv4.addresses", "203.0.113.9/28"});
    PrivateHost::nmcli({"device", "reapply", "kx1"});
    EXPECT_TRUE(handleEventsUntil(
        [&] { return sources->choice("Production line (kx1)") == "203.0.113.9/255.255.255.240"; }));
    EXPECT_EQ(sources->toldAtRest(), (Counts{{addressKey(line), 1}}));
}

TEST_F(NetworkManagerNames, AnAddressThatIsReplacedSlowlyIsToldAsItGoesAndAsTheNewOneComes) {
    startAndList();
    sources->watch(addressPattern);
    PrivateHost::nmcli({"connection", "modify", line.c_str(), "ipv4.addresses", "203.0.113.9/28",
                        "ipv4.dad-timeout", "600"});
    PrivateHost::nmcli({"device", "reapply", "kx1"});
    EXPECT_TRUE(handleEventsUntil(
        [&] { return sources->choice("Production line (kx1)") == "203.0.113.9/255.255.255.240"; }));
    EXPECT_EQ(sources->toldAtRest(), (Counts{{addressKey(line), 2}}));
}

TEST_F(NetworkManagerNames, AProfileThatGoesAndComesIsToldOnceEachTime) {
    startAndList();
    sources->watch(addressPattern);
    PrivateHost::nmcli({"connection", "down", office.c_str()});
    ASSERT_TRUE(servicesBecome({"Production line (kx1)"}));
    EXPECT_EQ(sources->toldAtRest(), (Counts{{addressKey(office), 1}}));
    sources->watch(addressPattern);
    PrivateHost::nmcli({"connection", "up", office.c_str()});
    ASSERT_TRUE(servicesBecome(names));
    EXPECT_EQ(sources->toldAtRest(), (Counts{{addressKey(office), 1}}));
}

TEST_F(NetworkManagerNames, AnAddressThatIsNotTheProfilesIsOfferedToo) {
    startAndList();
    host.network.ip("address flush dev kx0");
    host.network.addAddress("kx0", "203.0.113.1/24");
    EXPECT_EQ(sources->choice("Office (kx0)"), "203.0.113.1/255.255.255.0")
        << "the broadcast leaves by what the kernel has";
}

TEST_F(NetworkManagerNames, AProfileWithoutAddressesInTheKernelHasItsSavedOnes) {
    startAndList();
    ASSERT_TRUE(handleEventsUntil([&] {
        return std::ranges::none_of(sources->profiles.activeProfiles(),
                                    [](const auto& profile) { return profile.addresses.empty(); });
    }));
    host.networkManager->hang(); // otherwise it would put the addresses back
    host.network.ip("address flush dev kx0");
    EXPECT_EQ(sources->choice("Office (kx0)"), "192.0.2.5/255.255.255.0");
    host.networkManager->goOn();
}

TEST_F(NetworkManagerNames, WhatNetworkManagerDidNotConfigureIsNamedByItsKind) {
    host.network.ip("link add yard type bridge");
    host.network.addAddress("yard", "203.0.113.1/24");
    host.network.ip("link set yard up");
    startAndListWith({"Office (kx0)", "Production line (kx1)", "Bridge (yard)"});
    EXPECT_EQ(sources->serviceIDs.back(), "link-yard");
}

TEST_F(NetworkManagerNames, ABridgeAndItsPortHaveTheirOwnNames) {
    host.addProfile("00000003-0000-4000-8000-000000000000", "Yard",
                    "type=bridge\ninterface-name=yard\n[bridge]\nstp=false\n[ipv4]\nmethod=manual\n"
                    "address1=203.0.113.5/24\n[ipv6]\nmethod=disabled\n");
    host.addProfile(line, "Production line",
                    "type=ethernet\ninterface-name=kx1\nmaster=yard\nslave-type=bridge\n");
    startAndListWith({"Office (kx0)", "Production line (kx1)", "Yard (yard)"});
    EXPECT_EQ(sources->choice("Yard (yard)"), "203.0.113.5/255.255.255.0");
    EXPECT_EQ(sources->choice("Production line (kx1)"), "none/none");
}

TEST_F(NetworkManagerNames, AStoppedNetworkManagerLeavesTheKernelsView) {
    startAndList();
    host.stopNetworkManager();
    ASSERT_TRUE(servicesBecome({"Ethernet (kx0)", "Ethernet (kx1)"}));
    EXPECT_EQ(sources->choice("Ethernet (kx0)"), "192.0.2.5/255.255.255.0");
    host.startNetworkManager();
    servicesBecome(names);
}

TEST_F(NetworkManagerNames, ACrashedNetworkManagerLeavesTheKernelsView) {
    startAndList();
    host.networkManager.reset();
    servicesBecome({"Ethernet (kx0)", "Ethernet (kx1)"});
}

} // namespace kx
