// The profiles that are read from NetworkManager's answer; other answers do no harm.

#include "platform/linux/ActiveConnections.h"

#include "Wire.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace kx {

namespace {

using Paths = std::vector<ObjectPath>;
using Dictionaries = std::vector<Dictionary>;
using Profiles = std::vector<ConnectionProfile>;

const std::string managerPath = "/org/freedesktop/NetworkManager";
const std::string connectionPath = "/org/freedesktop/NetworkManager/ActiveConnection/2";
const std::string devicePath = "/org/freedesktop/NetworkManager/Devices/3";
const std::string configurationPath = "/org/freedesktop/NetworkManager/IP4Config/4";

const std::string managerInterface = "org.freedesktop.NetworkManager";
const std::string activeInterface = "org.freedesktop.NetworkManager.Connection.Active";
const std::string deviceInterface = "org.freedesktop.NetworkManager.Device";
const std::string ipv4Interface = "org.freedesktop.NetworkManager.IP4Config";

class ActiveConnections : public testing::Test {
protected:
    ActiveConnections() {
        objects[managerPath][managerInterface]["ActiveConnections"] = Paths{{connectionPath}};
        auto& active = connection();
        active["Uuid"] = "1234";
        active["Id"] = "Büro";
        active["Devices"] = Paths{{devicePath}};
        active["Ip4Config"] = ObjectPath{configurationPath};
        active["StateFlags"] = 0x5CU;
        active["Vpn"] = false;
        device()["Interface"] = "eth0";
        device()["IpInterface"] = "eth0";
        setAddresses({{{"address", "192.0.2.5"}, {"prefix", 24U}}});
    }

    Properties& connection() { return objects[connectionPath][activeInterface]; }
    Properties& device() { return objects[devicePath][deviceInterface]; }
    void setAddresses(const Dictionaries& addresses) {
        objects[configurationPath][ipv4Interface]["AddressData"] = addresses;
    }

    Profiles read() { return readValue(objects); }
    template<class Carried>
    Profiles readValue(const Carried& value) {
        return activeConnections(wire.carried(value).get());
    }

    // The one profile, or an empty profile.
    ConnectionProfile only() {
        const auto profiles = read();
        EXPECT_EQ(profiles.size(), 1U);
        return profiles.size() == 1 ? profiles[0] : ConnectionProfile();
    }

    // A value of each type, with its signature.
    static std::vector<std::pair<std::string, Value>> strangeValues() {
        return {{"i", 5},
                {"u", 5U},
                {"b", true},
                {"s", "text"},
                {"o", ObjectPath{"/"}},
                {"as", std::vector<std::string>{"a", "b"}},
                {"ay", std::vector<std::uint8_t>{1, 2}},
                {"ao", Paths{{"/"}}},
                {"a{sv}", Dictionary{{"a", 1}}},
                {"aa{sv}", Dictionaries{{{"address", 1}}}},
                {"v", Inner{"inner"}}};
    }

    const ConnectionProfile ordinary{"1234", "Büro", "eth0", {{0xC0000205U, 24}}};
    Wire wire;
    ManagedObjects objects;
};

} // namespace

TEST_F(ActiveConnections, AConnectionIsAProfileWithItsDeviceAndItsAddresses) {
    EXPECT_EQ(read(), Profiles{ordinary});
}

TEST_F(ActiveConnections, TheyComeInTheOrderOfTheManagersList) {
    const std::string other = "/org/freedesktop/NetworkManager/ActiveConnection/10";
    objects[other][activeInterface] = connection();
    objects[other][activeInterface]["Uuid"] = "5678";
    objects[managerPath][managerInterface]["ActiveConnections"] = Paths{{other}, {connectionPath}};
    const auto profiles = read();
    ASSERT_EQ(profiles.size(), 2U);
    EXPECT_EQ(profiles[0].identifier, "5678");
    EXPECT_EQ(profiles[1].identifier, "1234");
}

TEST_F(ActiveConnections, AProfileThatIsActivatedAnewComesOnce) {
    const std::string next = "/org/freedesktop/NetworkManager/ActiveConnection/3";
    objects[next][activeInterface] = connection();
    objects[managerPath][managerInterface]["ActiveConnections"] = Paths{{next}, {connectionPath}};
    EXPECT_EQ(read(), Profiles{ordinary});
}

TEST_F(ActiveConnections, SeveralProfilesOnOneDeviceAllCome) {
    const std::string other = "/org/freedesktop/NetworkManager/ActiveConnection/3";
    objects[other][activeInterface] = connection();
    objects[other][activeInterface]["Uuid"] = "5678";
    objects[managerPath][managerInterface]["ActiveConnections"] = Paths{{connectionPath}, {other}};
    const auto profiles = read();
    ASSERT_EQ(profiles.size(), 2U);
    EXPECT_EQ(profiles[1].interfaceName, "eth0");
}

TEST_F(ActiveConnections, AProfileWithSeveralDevicesComesForEach) {
    const std::string other = "/org/freedesktop/NetworkManager/Devices/4";
    objects[other][deviceInterface]["Interface"] = "eth1";
    connection()["Devices"] = Paths{{devicePath}, {other}};
    const auto profiles = read();
    ASSERT_EQ(profiles.size(), 2U);
    EXPECT_EQ(profiles[0].interfaceName, "eth0");
    EXPECT_EQ(profiles[1].interfaceName, "eth1");
}

TEST_F(ActiveConnections, AModemsLinkIsNotTheModem) {
    device()["Interface"] = "cdc-wdm0";
    device()["IpInterface"] = "wwan0";
    EXPECT_EQ(only().interfaceName, "wwan0");
    device()["IpInterface"] = "";
    EXPECT_EQ(only().interfaceName, "cdc-wdm0") << "it has none yet";
}

TEST_F(ActiveConnections, AVirtualPrivateNetworkIsNotTheDeviceThatCarriesIt) {
    connection()["Vpn"] = true;
    EXPECT_EQ(read(), Profiles());
}

TEST_F(ActiveConnections, WhatNetworkManagerMadeUpIsNoProfile) {
    connection()["StateFlags"] = 0xDCU;
    EXPECT_EQ(read(), Profiles());
}

TEST_F(ActiveConnections, AProfileWithoutANameIsLeftOut) {
    connection()["Id"] = "";
    EXPECT_EQ(read(), Profiles());
}

TEST_F(ActiveConnections, AConnectionWithoutADeviceIsLeftOut) {
    connection()["Devices"] = Paths();
    EXPECT_EQ(read(), Profiles());
    connection()["Devices"] = Paths{{"/gone"}};
    EXPECT_EQ(read(), Profiles());
    connection()["Devices"] = Paths{{devicePath}};
    device()["Interface"] = device()["IpInterface"] = "";
    EXPECT_EQ(read(), Profiles());
}

TEST_F(ActiveConnections, AProfileMayHaveNoAddresses) {
    connection()["Ip4Config"] = ObjectPath{"/"};
    EXPECT_EQ(only().addresses, std::vector<IPv4InterfaceAddress>());
    connection().erase("Ip4Config");
    EXPECT_EQ(only().addresses, std::vector<IPv4InterfaceAddress>());
}

TEST_F(ActiveConnections, AddressesThatCannotBeReadAreLeftOut) {
    setAddresses({{{"address", "192.0.2.5.6"}, {"prefix", 24U}},
                  {{"address", "2001:db8::1"}, {"prefix", 24U}},
                  {{"address", ""}, {"prefix", 24U}},
                  {{"address", 5}, {"prefix", 24U}},
                  {{"prefix", 24U}},
                  {{"address", "192.0.2.6"}},
                  {{"address", "192.0.2.6"}, {"prefix", "24"}},
                  {{"address", "192.0.2.6"}, {"prefix", 33U}},
                  {},
                  {{"address", "192.0.2.7"}, {"prefix", 32U}},
                  {{"address", "192.0.2.8"}, {"prefix", 0U}, {"more", true}}});
    EXPECT_EQ(only().addresses,
              (std::vector<IPv4InterfaceAddress>{{0xC0000207U, 32}, {0xC0000208U, 0}}));
}

TEST_F(ActiveConnections, AnIdentifierThatWouldNotBeOneInAKeyIsLeftOut) {
    for (const char* identifier : {"", "=eth0", "12/34", "/"}) {
        connection()["Uuid"] = identifier;
        EXPECT_EQ(read(), Profiles()) << identifier;
    }
}

TEST_F(ActiveConnections, APropertyOfAnotherTypeCountsAsMissing) {
    const auto before = objects;
    for (const auto& [path, interface, name, type] :
         std::initializer_list<std::tuple<std::string, std::string, std::string, std::string>>{
             {managerPath, managerInterface, "ActiveConnections", "ao"},
             {connectionPath, activeInterface, "Devices", "ao"},
             {connectionPath, activeInterface, "Ip4Config", "o"},
             {connectionPath, activeInterface, "Uuid", "s"},
             {connectionPath, activeInterface, "Id", "s"},
             {connectionPath, activeInterface, "StateFlags", "u"},
             {connectionPath, activeInterface, "Vpn", "b"},
             {devicePath, deviceInterface, "IpInterface", "s"},
             {configurationPath, ipv4Interface, "AddressData", "aa{sv}"}}) {
        objects = before;
        objects[path][interface].erase(name);
        const Profiles withoutIt = read();
        for (const auto& [otherType, value] : strangeValues()) {
            objects[path][interface][name] = value;
            if (otherType != type) {
                EXPECT_EQ(read(), withoutIt) << name << " as " << otherType;
            }
        }
    }
}

TEST_F(ActiveConnections, WhatIsNotReadMayHaveAnyType) {
    for (const auto& [type, value] : strangeValues()) {
        for (const auto& [path, interface] :
             std::initializer_list<std::pair<std::string, std::string>>{
                 {managerPath, managerInterface},
                 {connectionPath, activeInterface},
                 {devicePath, deviceInterface},
                 {devicePath, deviceInterface + ".Wired"},
                 {configurationPath, ipv4Interface},
                 {"/org/freedesktop/NetworkManager/Settings/1", activeInterface}}) {
            objects[path][interface]["A"] = value;
            objects[path][interface]["Zulu"] = value;
        }
        EXPECT_EQ(read(), Profiles{ordinary}) << type;
    }
}

TEST_F(ActiveConnections, AnObjectWithoutItsInterfaceCountsAsMissing) {
    for (const auto& path : {managerPath, connectionPath, devicePath}) {
        auto objectsBefore = objects;
        objects[path].clear();
        EXPECT_EQ(read(), Profiles()) << path;
        objects = objectsBefore;
    }
    objects.erase(configurationPath);
    EXPECT_EQ(only().name, "Büro");
}

TEST_F(ActiveConnections, AnAnswerOfAnotherShapeHasNoProfiles) {
    EXPECT_EQ(readValue(std::string("text")), Profiles());
    EXPECT_EQ(readValue(5), Profiles());
    EXPECT_EQ(readValue(std::vector<std::string>{"a"}), Profiles());
    EXPECT_EQ(readValue(Dictionary{{"a", 1}}), Profiles());
    EXPECT_EQ(readValue(PropertiesByInterface{{"a", {{"b", 1}}}}), Profiles());
    EXPECT_EQ(readValue(ManagedObjects()), Profiles());
    EXPECT_EQ(activeConnections(wire.carried().get()), Profiles());
}

} // namespace kx
