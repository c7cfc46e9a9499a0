#include "conversation/ChosenInterface.h"

#include "addresses/IPv4Address.h"
#include "doubles/ScriptedNetworkInterfaces.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

class ChosenInterfaceTest : public testing::Test {
protected:
    ChosenInterfaceTest() { configure("192.168.1.20", "255.255.255.0"); }

    void configure(const std::string& address, const std::string& mask) {
        interfaces.clear();
        interfaces.addService("Ethernet", "eth0", address, mask);
    }

    // The interface as it is now.
    ChosenInterface chosen() {
        return {.name = "eth0", .address = addressOfInterface(interfaces, "eth0")};
    }

    std::string faultOf(const ChosenInterface& interface, bool exists = true) {
        const auto finding = faultOfInterface(interfaces, interface, exists);
        if (!finding.has_value()) {
            return "none";
        }
        EXPECT_EQ(finding->interface, interface.name);
        switch (finding->fault) {
        case InterfaceFault::gone:
            return "gone";
        case InterfaceFault::withoutLink:
            return "without link";
        case InterfaceFault::withoutBroadcast:
            return "without broadcast";
        case InterfaceFault::lostAddress:
            return "lost its address";
        case InterfaceFault::outOfDate:
            break;
        }
        return "out of date";
    }

    ScriptedNetworkInterfaces interfaces;
};

} // namespace

TEST_F(ChosenInterfaceTest, HasNoFaultWhileItIsAsItWasChosen) {
    EXPECT_EQ(faultOf(chosen()), "none");
}

TEST_F(ChosenInterfaceTest, IsOutOfDateWhenItsAddressOrItsMaskIsAnother) {
    const ChosenInterface before = chosen();
    configure("192.168.1.21", "255.255.255.0");
    EXPECT_EQ(faultOf(before), "out of date");
    configure("192.168.1.20", "255.255.0.0");
    EXPECT_EQ(faultOf(before), "out of date");
    configure("192.168.1.20", "255.255.255.0");
    EXPECT_EQ(faultOf(before), "none");
}

TEST_F(ChosenInterfaceTest, AnAddressThatCameAfterTheChoiceIsOneToTakeOver) {
    EXPECT_EQ(faultOf({.name = "eth0", .address = {}}), "out of date");
}

TEST_F(ChosenInterfaceTest, SaysWhenItHasLostItsAddress) {
    const ChosenInterface before = chosen();
    interfaces.clear();
    EXPECT_EQ(faultOf(before), "lost its address");
}

TEST_F(ChosenInterfaceTest, AnAddressThatIsOnlySavedForItIsLost) {
    const ChosenInterface before = chosen();
    interfaces.loseAddresses("eth0");
    EXPECT_EQ(chosen().address, before.address) << "choosing it again would give the same";
    EXPECT_EQ(faultOf(before), "lost its address");
    EXPECT_FALSE(broadcastCanLeave(interfaces, "eth0", ipForString("192.168.1.255")));
    EXPECT_TRUE(broadcastCanLeave(interfaces, "eth0", ipForString("255.255.255.255")));
}

TEST_F(ChosenInterfaceTest, AnInterfaceThatNeverHadAnAddressHasLostNone) {
    interfaces.clear();
    EXPECT_EQ(faultOf(chosen()), "none");
}

TEST_F(ChosenInterfaceTest, ReachesNobodyByBroadcastInASubnetOfTwoAddressesOrOne) {
    for (const char* const mask : {"255.255.255.255", "255.255.255.254"}) {
        configure("192.168.1.20", mask);
        EXPECT_EQ(faultOf(chosen()), "without broadcast") << mask;
    }
    configure("192.168.1.20", "255.255.255.252");
    EXPECT_EQ(faultOf(chosen()), "none");
}

TEST_F(ChosenInterfaceTest, ReachesNobodyByBroadcastWhenItLeadsToOneHostOnly) {
    interfaces.setState("eth0", InterfaceState{.isRunning = true, .canBroadcast = false});
    EXPECT_EQ(faultOf(chosen()), "without broadcast");
}

TEST_F(ChosenInterfaceTest, TheWeightiestFaultIsTold) {
    const ChosenInterface before = chosen();
    configure("10.0.0.1", "255.255.255.255");
    EXPECT_EQ(faultOf(before), "without broadcast");
    interfaces.setState("eth0", InterfaceState{.isRunning = false, .canBroadcast = false});
    EXPECT_EQ(faultOf(before), "without link");
    EXPECT_EQ(faultOf(before, false), "gone");
}

TEST_F(ChosenInterfaceTest, AKernelThatDoesNotTellIsNoFault) {
    const ChosenInterface before = chosen();
    configure("10.0.0.1", "255.0.0.0");
    interfaces.setState("eth0", std::nullopt);
    EXPECT_EQ(faultOf(before), "none");
}

TEST_F(ChosenInterfaceTest, ABroadcastLeavesOnlyToASubnetThatTheInterfaceHasNow) {
    const auto canLeave = [this](const std::string& address) {
        return broadcastCanLeave(interfaces, "eth0", ipForString(address));
    };
    EXPECT_TRUE(canLeave("192.168.1.255"));
    EXPECT_FALSE(canLeave("10.255.255.255"));
    interfaces.setData("service-eth0", "IPv4", "Addresses",
                       PropertyList{"10.0.0.1", "192.168.1.20"});
    interfaces.setData("service-eth0", "IPv4", "SubnetMasks",
                       PropertyList{"255.0.0.0", "255.255.255.0"});
    EXPECT_TRUE(canLeave("192.168.1.255")) << "also to that of another address than the first";
    EXPECT_TRUE(canLeave("10.255.255.255"));
    interfaces.clear();
    EXPECT_FALSE(canLeave("192.168.1.255"));
    EXPECT_TRUE(canLeave("255.255.255.255")) << "it needs no address";
    interfaces.setState("eth0", std::nullopt);
    EXPECT_TRUE(canLeave("192.168.1.255")) << "the system does not tell";
}

} // namespace kx
