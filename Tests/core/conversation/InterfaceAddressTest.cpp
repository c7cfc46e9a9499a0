#include "conversation/InterfaceAddress.h"

#include "doubles/ScriptedNetworkInterfaces.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

class InterfaceAddressOfHost : public testing::Test {
protected:
    InterfaceAddressOfHost() {
        interfaces.addService("Ethernet", "eth0", "192.168.1.20", "255.255.255.0");
    }

    void set(const std::string& key, PropertyListValue value) {
        interfaces.setData("service-eth0", "IPv4", key, std::move(value));
    }

    InterfaceAddress found(std::string_view name = "eth0") {
        return addressOfInterface(interfaces, name);
    }

    ScriptedNetworkInterfaces interfaces;
};

} // namespace

TEST_F(InterfaceAddressOfHost, IsTheFirstOneOfTheService) {
    EXPECT_EQ(found().address, 0xC0A80114U);
    EXPECT_EQ(found().mask, 0xFFFFFF00U);
    set("Addresses", PropertyList{"10.1.2.3", "10.9.9.9"});
    set("SubnetMasks", PropertyList{"255.255.0.0", "255.0.0.0"});
    EXPECT_EQ(found().address, 0x0A010203U);
    EXPECT_EQ(found().mask, 0xFFFF0000U);
}

TEST_F(InterfaceAddressOfHost, IsThatOfTheInterfaceThatIsNamed) {
    interfaces.addService("Wi-Fi", "wlan0", "10.1.2.3", "255.255.0.0");
    EXPECT_EQ(found("eth0").address, 0xC0A80114U);
    EXPECT_EQ(found("wlan0").address, 0x0A010203U);
}

TEST_F(InterfaceAddressOfHost, AllOfThemAreThoseOfAllServices) {
    interfaces.addService("Wi-Fi", "wlan0", "10.1.2.3", "255.255.0.0");
    set("Addresses", PropertyList{"192.168.1.20", "192.168.2.20"});
    set("SubnetMasks", PropertyList{"255.255.255.0", "255.255.255.0"});
    EXPECT_EQ(addressesOfHost(interfaces),
              (std::vector<InterfaceAddress>{{.address = 0xC0A80114U, .mask = 0xFFFFFF00U},
                                             {.address = 0xC0A80214U, .mask = 0xFFFFFF00U},
                                             {.address = 0x0A010203U, .mask = 0xFFFF0000U}}));
    interfaces.clear();
    EXPECT_TRUE(addressesOfHost(interfaces).empty());
}

TEST_F(InterfaceAddressOfHost, IsNoneWithoutAService) {
    EXPECT_EQ(found("tun0").address, 0U);
    EXPECT_EQ(found("tun0").mask, 0U);
    EXPECT_EQ(found("").address, 0U);
}

TEST_F(InterfaceAddressOfHost, AddressAndMaskAreMissingEachForItself) {
    interfaces.setService("wlan0", "b");
    interfaces.setData("b", "IPv4", "Addresses", PropertyList{"192.168.1.30"});
    EXPECT_EQ(found("wlan0").address, 0xC0A8011EU);
    EXPECT_EQ(found("wlan0").mask, 0U);
    interfaces.setService("wlan1", "c");
    interfaces.setData("c", "IPv4", "SubnetMasks", PropertyList{"255.255.255.0"});
    EXPECT_EQ(found("wlan1").address, 0U);
    EXPECT_EQ(found("wlan1").mask, 0xFFFFFF00U);
}

TEST_F(InterfaceAddressOfHost, ConfigurationOfAnUnexpectedShapeIsNoAddress) {
    for (const PropertyListValue& shape :
         {PropertyListValue("192.168.1.20"), PropertyListValue(PropertyList{}),
          PropertyListValue(PropertyList{5}), PropertyListValue(PropertyList{"not an address"}),
          PropertyListValue(PropertyDictionary{{"0", "192.168.1.20"}})}) {
        set("Addresses", shape);
        set("SubnetMasks", shape);
        EXPECT_EQ(found().address, 0U) << shape.description();
        EXPECT_EQ(found().mask, 0U) << shape.description();
    }
}

TEST_F(InterfaceAddressOfHost, HasABroadcastAddressWhereItsSubnetHasOne) {
    EXPECT_EQ(broadcastAddressOf({.address = 0xC0A80114U, .mask = 0xFFFFFF00U}), 0xC0A801FFU);
    EXPECT_EQ(broadcastAddressOf({.address = 0xC0A80111U, .mask = 0xFFFFFFFCU}), 0xC0A80113U);
    EXPECT_EQ(broadcastAddressOf({.address = 0xC0A80114U}), 0xFFFFFFFFU) << "without a mask";
    EXPECT_EQ(broadcastAddressOf({.address = 0xC0A80114U, .mask = 0xFFFFFFFEU}), std::nullopt);
    EXPECT_EQ(broadcastAddressOf({.address = 0xC0A80114U, .mask = 0xFFFFFFFFU}), std::nullopt);
    EXPECT_EQ(broadcastAddressOf({.mask = 0xFFFFFF00U}), std::nullopt);
}

TEST_F(InterfaceAddressOfHost, HasTheBroadcastAddressesOfAllAddressesOfAllInterfaces) {
    set("Addresses", PropertyList{"192.168.1.20", "10.9.9.9", "10.0.0.1", "not an address"});
    set("SubnetMasks", PropertyList{"255.255.255.0", "255.0.0.0", "255.255.255.255", "255.0.0.0"});
    interfaces.addTitle("Tunnel (tun0)", "=tun0");
    interfaces.addService("Wi-Fi", "wlan0", "10.1.2.3", "255.255.0.0");
    EXPECT_EQ(broadcastAddressesOf(addressesOfHost(interfaces)),
              (std::vector<std::uint32_t>{0xC0A801FFU, 0x0AFFFFFFU, 0x0A01FFFFU}));
    interfaces.clear();
    EXPECT_TRUE(broadcastAddressesOf(addressesOfHost(interfaces)).empty());
}

} // namespace kx
