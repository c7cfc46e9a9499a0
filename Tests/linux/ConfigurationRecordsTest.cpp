// The services and records of links and connection profiles, without a kernel.

#include "platform/linux/ConfigurationRecords.h"

#include "NetworkLinks.h"
#include "addresses/IPv4Address.h"
#include "doubles/MarkedLocalizedText.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kx {

namespace {

NetworkLink loopback() {
    NetworkLink result = linkWithAddress(1, "lo", LinkKind::other);
    result.isLoopback = true;
    result.canBroadcast = false;
    return result;
}

std::vector<std::string> serviceOrder(const ConfigurationRecords& records) {
    std::vector<std::string> result;
    const auto global = records.dynamicStore.find("Setup:/Network/Global/IPv4");
    if (global != records.dynamicStore.end()) {
        for (const auto& serviceID : *valueForKey(global->second, "ServiceOrder")->list()) {
            result.push_back(serviceID.description());
        }
    }
    return result;
}

// One entry of a record; "(none)" when either is missing.
std::string entry(const ConfigurationRecords& records, const std::string& key,
                  const std::string& name) {
    const auto record = records.dynamicStore.find(key);
    const auto* const value =
        record != records.dynamicStore.end() ? valueForKey(record->second, name) : nullptr;
    return value != nullptr ? value->description() : "(none)";
}

std::string savedEntry(const ConfigurationRecords& records, const std::string& path,
                       const std::string& name) {
    const auto* const record = dictionaryAtPath(records.preferences, path);
    const auto* const value = record != nullptr ? valueForKey(*record, name) : nullptr;
    return value != nullptr ? value->description() : "(none)";
}

using Keys = std::vector<std::string>;

} // namespace

TEST(ConfigurationRecords, AHostWithoutServicesHasNoServiceOrder) {
    const auto records = configurationRecords({loopback()}, {});
    EXPECT_FALSE(records.dynamicStore.contains("Setup:/Network/Global/IPv4"));
    EXPECT_EQ(dictionaryAtPath(records.preferences, "/Sets/automatic/Network/Global/IPv4"),
              nullptr);
    EXPECT_NE(dictionaryAtPath(records.preferences, "/Sets/automatic"), nullptr);
}

TEST(ConfigurationRecords, AProfileIsAServiceByItsOwnIdentifierAndName) {
    const auto records =
        configurationRecords({linkWithAddress(2, "eth0")}, {{"1234", "Office", "eth0", {}}});
    EXPECT_EQ(serviceOrder(records), Keys{"1234"});
    const std::string key = "Setup:/Network/Service/1234/Interface";
    EXPECT_EQ(entry(records, key, "DeviceName"), "eth0");
    EXPECT_EQ(entry(records, key, "UserDefinedName"), "Office");
    EXPECT_EQ(entry(records, key, "Type"), "Ethernet");
    EXPECT_EQ(entry(records, "State:/Network/Service/1234/IPv4", "Addresses"), "(192.0.2.2)");
    EXPECT_EQ(savedEntry(records, "/NetworkServices/1234/Interface", "DeviceName"), "eth0");
}

TEST(ConfigurationRecords, ALinkIsAServiceOnlyWithoutAProfile) {
    const auto records = configurationRecords(
        {linkWithAddress(2, "eth0"), linkWithAddress(3, "eth1")}, {{"1234", "Office", "eth0", {}}});
    EXPECT_EQ(serviceOrder(records), (Keys{"1234", "link-eth1"}));
}

TEST(ConfigurationRecords, AProfileOnTheLoopbackIsNoService) {
    EXPECT_EQ(serviceOrder(configurationRecords({loopback()}, {{"1234", "lo", "lo", {}}})), Keys());
}

TEST(ConfigurationRecords, AProfileWhoseDeviceIsNoLinkIsNoService) {
    const auto records = configurationRecords(
        {linkWithAddress(2, "eth0")}, {{"1234", "Mobile", "cdc-wdm0", {{0xC0000205U, 24}}}});
    EXPECT_EQ(serviceOrder(records), Keys{"link-eth0"});
    EXPECT_EQ(dictionaryAtPath(records.preferences, "/NetworkServices/1234"), nullptr);
}

TEST(ConfigurationRecords, AProfileWhoseLinkHasNoAddressHasItsSavedAddressesOnly) {
    const auto records =
        configurationRecords({link(2, "eth0")}, {{"1234", "Office", "eth0", {{0xC0000205U, 24}}}});
    EXPECT_EQ(serviceOrder(records), Keys{"1234"});
    EXPECT_FALSE(records.dynamicStore.contains("State:/Network/Service/1234/IPv4"));
    EXPECT_EQ(savedEntry(records, "/NetworkServices/1234/IPv4", "Addresses"), "(192.0.2.5)");
    EXPECT_EQ(savedEntry(records, "/NetworkServices/1234/IPv4", "SubnetMasks"), "(255.255.255.0)");
}

TEST(ConfigurationRecords, AProfileOnSeveralLinksIsAServiceForEach) {
    const auto records =
        configurationRecords({linkWithAddress(2, "eth0"), linkWithAddress(3, "eth1")},
                             {{"1234", "Any", "eth0", {}}, {"1234", "Any", "eth1", {}}});
    EXPECT_EQ(serviceOrder(records), (Keys{"1234", "1234-eth1"}));
    EXPECT_EQ(entry(records, "Setup:/Network/Service/1234-eth1/Interface", "DeviceName"), "eth1");
}

TEST(ConfigurationRecords, ALinkIsNamedByItsKind) {
    struct {
        LinkKind kind;
        std::string name;
        std::string type;
    } const kinds[] = {{LinkKind::ethernet, "Ethernet", "Ethernet"},
                       {LinkKind::wiFi, "Wi-Fi", "IEEE80211"},
                       {LinkKind::bridge, "Bridge", "Bridge"},
                       {LinkKind::vlan, "VLAN", "VLAN"},
                       {LinkKind::bond, "Bond", "Bond"},
                       {LinkKind::pointToPoint, "PPP", "PPP"},
                       {LinkKind::other, "Network", "Network"}};
    for (const auto& [kind, name, type] : kinds) {
        const auto records = configurationRecords({linkWithAddress(2, "x", kind)}, {});
        const std::string key = "Setup:/Network/Service/link-x/Interface";
        EXPECT_EQ(entry(records, key, "UserDefinedName"), name);
        EXPECT_EQ(entry(records, key, "Type"), type);
    }
}

TEST(ConfigurationRecords, TheNameOfAKindIsInTheLanguageOfThePerson) {
    const MarkedLocalizedText marked;
    const auto records = configurationRecords({linkWithAddress(2, "x", LinkKind::wiFi)}, {});
    EXPECT_EQ(entry(records, "Setup:/Network/Service/link-x/Interface", "UserDefinedName"),
              "<Wi-Fi>");
    EXPECT_EQ(entry(records, "Setup:/Network/Service/link-x/Interface", "Type"), "IEEE80211");
}

TEST(ConfigurationRecords, ADialUpProfileHasTheDialUpType) {
    NetworkLink ppp = linkWithAddress(2, "ppp0", LinkKind::pointToPoint);
    ppp.canBroadcast = false;
    const auto records = configurationRecords({ppp}, {{"1234", "Provider", "ppp0", {}}});
    EXPECT_EQ(entry(records, "Setup:/Network/Service/1234/Interface", "Type"), "PPP");
    EXPECT_EQ(serviceOrder(configurationRecords({ppp}, {})), Keys()) << "it cannot broadcast";
}

TEST(ConfigurationRecords, ATunnelWithAProfileIsNoServiceBecauseItCarriesNoBroadcast) {
    NetworkLink tunnel = linkWithAddress(2, "tun0", LinkKind::other);
    tunnel.canBroadcast = false;
    tunnel.isPointToPoint = true;
    const auto records = configurationRecords({tunnel}, {{"1234", "Company", "tun0", {}}});
    EXPECT_EQ(serviceOrder(records), Keys());
    EXPECT_EQ(dictionaryAtPath(records.preferences, "/NetworkServices/1234"), nullptr);
}

TEST(ConfigurationRecords, ServicesStandInTheOrderOfTheirDefaultRoutes) {
    auto slow = linkWithAddress(2, "wlan0");
    slow.defaultRouteMetric = 600;
    auto fast = linkWithAddress(4, "eth0");
    fast.defaultRouteMetric = 100;
    const auto records =
        configurationRecords({slow, linkWithAddress(3, "eth1"), fast}, {{"a", "Air", "wlan0", {}}});
    EXPECT_EQ(serviceOrder(records), (Keys{"link-eth0", "a", "link-eth1"}));
}

TEST(ConfigurationRecords, APathLeadsToADictionaryAndNowhereElse) {
    const auto records = configurationRecords({linkWithAddress(2, "eth0")}, {});
    for (const char* path : {"", "/", "//", "CurrentSet", "/CurrentSet", "/Sets/", "/Sets/none",
                             "/NetworkServices/link-eth0/Interface/DeviceName",
                             "NetworkServices/link-eth0/Interface"}) {
        EXPECT_EQ(dictionaryAtPath(records.preferences, path), nullptr) << path;
    }
    EXPECT_NE(dictionaryAtPath(records.preferences, "/NetworkServices/link-eth0/Interface"),
              nullptr);
}

TEST(ConfigurationRecords, WhatCameWentOrChangedIsNamedOnceInOrder) {
    auto more = linkWithAddress(2, "eth0");
    more.ipv4Addresses.push_back({0x0A000001U, 8});
    const auto before = configurationRecords({linkWithAddress(2, "eth0"), link(3, "eth1")}, {});
    const auto after = configurationRecords({more, link(4, "eth2")}, {});
    EXPECT_EQ(
        changedKeys(before, after),
        (Keys{"State:/Network/Interface/eth0/IPv4", "State:/Network/Interface/eth1/Link",
              "State:/Network/Interface/eth2/Link", "State:/Network/Service/link-eth0/IPv4"}));
    EXPECT_EQ(changedKeys(before, before), Keys());
}

} // namespace kx
