#include "conversation/DiscoveryFindings.h"

#include "addresses/IPv4Address.h"
#include "addresses/SocketAddressRecord.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

using enum UnitParameter;
using Findings = std::vector<Finding>;

const std::string firstUnit = "01 02 03 04 05 06";
const std::string secondUnit = "01 02 03 04 05 07";
const std::string firstMAC = "02:4B:58:00:00:01";
const std::string secondMAC = "02:4B:58:00:00:02";

// What one unit tells, and from where.
struct Told {
    std::string serial = firstUnit;
    std::string address = "192.168.1.10";
    std::string sender = "192.168.1.10";
    std::string hardwareAddress = firstMAC;
    std::uint32_t link = 1;
};

class DiscoveryFindingsTest : public testing::Test {
protected:
    bool tell(const Told& told) {
        UnitRecord record;
        const auto set = [&record](UnitParameter parameter, const std::string& text) {
            if (!text.empty()) {
                record.setValue(parameter, text);
            }
        };
        set(serialNumber, told.serial);
        set(internalIPAddress, told.address);
        set(internalMACAddress, told.hardwareAddress);
        return findings.unitDidTell(
            record, {.sender = dataForAddress(ipForString(told.sender), 3520), .link = told.link});
    }

    // The same without parameters.
    bool reply(const std::string& serial, const std::string& sender, std::uint32_t link = 1) {
        return findings.replyDidCome(
            serial, {.sender = dataForAddress(ipForString(sender), 3520), .link = link});
    }

    const Finding twoHosts = TwoHostsOfOneSerial{firstUnit, "192.168.1.10", "192.168.1.99"};
    const Finding otherSender = SenderOfAnotherAddress{firstUnit, 0xC0A8010AU, 0xC0A80163U};

    DiscoveryFindings findings;
};

} // namespace

TEST_F(DiscoveryFindingsTest, AreNoneForUnitsThatAgree) {
    EXPECT_FALSE(tell({}));
    EXPECT_FALSE(tell({}));
    EXPECT_FALSE(tell({secondUnit, "192.168.1.11", "192.168.1.11", secondMAC}));
    EXPECT_EQ(findings.all(), Findings());
    EXPECT_EQ(findings.weightiest(), std::nullopt);
}

TEST_F(DiscoveryFindingsTest, UnitsThatAreForgottenAreFoundOnce) {
    findings.begin({}, 7);
    EXPECT_FALSE(findings.setForgottenUnits(7));
    EXPECT_EQ(findings.weightiest(), std::nullopt);
    EXPECT_TRUE(findings.setForgottenUnits(8));
    EXPECT_FALSE(findings.setForgottenUnits(9));
    tell({.sender = "192.168.1.99"});
    EXPECT_EQ(findings.weightiest(), Finding(ForgottenUnits()));
    findings.setDropped(1);
    EXPECT_EQ(findings.weightiest(), Finding(DroppedDatagrams{1}));
    findings.begin({}, 9);
    EXPECT_EQ(findings.weightiest(), std::nullopt);
}

TEST_F(DiscoveryFindingsTest, AnotherSenderIsAnotherHost) {
    tell({});
    EXPECT_TRUE(tell({.sender = "192.168.1.99"}));
    EXPECT_EQ(findings.all(), (Findings{twoHosts, otherSender}));
    EXPECT_EQ(findings.weightiest(), twoHosts);
}

TEST_F(DiscoveryFindingsTest, AnotherHardwareAddressBehindOneAddressIsAnotherHost) {
    tell({});
    EXPECT_TRUE(tell({.hardwareAddress = secondMAC}));
    EXPECT_EQ(findings.all(), Findings{(TwoHostsOfOneSerial{firstUnit, firstMAC, secondMAC})});
}

TEST_F(DiscoveryFindingsTest, AHardwareAddressThatIsNotToldIsNoOther) {
    tell({});
    EXPECT_FALSE(tell({.hardwareAddress = ""}));
    EXPECT_EQ(findings.all(), Findings());
}

TEST_F(DiscoveryFindingsTest, AReplyWithoutParametersFromAnotherSenderIsAnotherHost) {
    tell({});
    EXPECT_FALSE(reply(firstUnit, "192.168.1.10"));
    EXPECT_TRUE(reply(firstUnit, "192.168.1.99"));
    EXPECT_FALSE(reply(firstUnit, "192.168.1.99"));
    EXPECT_EQ(findings.all(), Findings{twoHosts});
}

TEST_F(DiscoveryFindingsTest, TwoHostsThatTellNoParametersAreTwoHostsToo) {
    EXPECT_FALSE(reply(firstUnit, "192.168.1.10"));
    EXPECT_FALSE(reply(secondUnit, "192.168.1.99"));
    EXPECT_TRUE(reply(firstUnit, "192.168.1.99"));
    EXPECT_EQ(findings.all(), Findings{twoHosts});
}

TEST_F(DiscoveryFindingsTest, AUnitMayAcceptItsMoveAtItsOldAddress) {
    tell({});
    findings.expectChange(firstUnit);
    EXPECT_FALSE(reply(firstUnit, "192.168.1.10"));
    EXPECT_FALSE(tell({.address = "10.0.0.7", .sender = "10.0.0.7"}));
    EXPECT_TRUE(reply(firstUnit, "192.168.1.10")) << "but not after it has told the new one";
}

TEST_F(DiscoveryFindingsTest, AUnitMayBeHeardOnOneInterfaceOnly) {
    const Finding twoInterfaces = UnitOnTwoInterfaces{firstUnit, 1, 7};
    tell({});
    EXPECT_FALSE(tell({.link = 0})) << "the system does not tell it";
    EXPECT_FALSE(tell({secondUnit, "192.168.1.11", "192.168.1.11", secondMAC, 7}));
    EXPECT_TRUE(tell({.link = 7}));
    EXPECT_FALSE(tell({.link = 8})) << "it is told once";
    EXPECT_EQ(findings.all(), Findings{twoInterfaces});
    findings.begin({});
    EXPECT_FALSE(reply(firstUnit, "192.168.1.10"));
    EXPECT_TRUE(reply(firstUnit, "192.168.1.10", 7));
    EXPECT_EQ(findings.weightiest(), twoInterfaces);
    EXPECT_FALSE(reply(firstUnit, "192.168.1.10", 7));
    findings.expectChange(firstUnit);
    EXPECT_FALSE(reply(firstUnit, "192.168.1.10", 7));
}

TEST_F(DiscoveryFindingsTest, TwoSerialNumbersMayNotHaveOneAddress) {
    tell({});
    EXPECT_TRUE(tell({.serial = secondUnit, .hardwareAddress = secondMAC}));
    EXPECT_EQ(findings.all(),
              Findings{(SerialsOfOneAddress{0xC0A8010AU, {firstUnit, secondUnit}})});
}

TEST_F(DiscoveryFindingsTest, EverySerialNumberOfOneAddressIsListedOnce) {
    const std::string thirdUnit = "01 02 03 04 05 08";
    for (int i = 0; i < 2; ++i) {
        for (const std::string& unit : {firstUnit, secondUnit, thirdUnit}) {
            tell({.serial = unit, .hardwareAddress = ""});
        }
    }
    EXPECT_EQ(findings.all(),
              Findings{(SerialsOfOneAddress{0xC0A8010AU, {firstUnit, secondUnit, thirdUnit}})});
}

TEST_F(DiscoveryFindingsTest, NotMoreThanAHundredSerialNumbersOfOneAddressAreListed) {
    for (int i = 100; i < 300; ++i) {
        tell({.serial = "01 02 03 04 0" + std::to_string(i / 100) + ' ' +
                        std::to_string(i % 100 + 100).substr(1),
              .hardwareAddress = ""});
    }
    ASSERT_EQ(findings.all().size(), 1U);
    const auto found = findings.all();
    EXPECT_EQ(std::get<SerialsOfOneAddress>(found.front()).serials.size(), 100U);
}

TEST_F(DiscoveryFindingsTest, AUnitThatGivesTheAddressUpIsNoneOfThoseThatHaveIt) {
    const std::string thirdUnit = "01 02 03 04 05 08";
    tell({.hardwareAddress = ""});
    tell({.serial = secondUnit, .hardwareAddress = ""});
    findings.expectChange(secondUnit);
    tell({secondUnit, "192.168.1.11", "192.168.1.11", ""});
    tell({.hardwareAddress = ""});
    tell({.serial = thirdUnit, .hardwareAddress = ""});
    EXPECT_EQ(findings.all(), (Findings{SerialsOfOneAddress{0xC0A8010AU, {firstUnit, secondUnit}},
                                        SerialsOfOneAddress{0xC0A8010AU, {firstUnit, thirdUnit}}}));
}

TEST_F(DiscoveryFindingsTest, UnitsWithoutAnAddressDoNotShareOne) {
    tell({.address = ""});
    EXPECT_FALSE(tell({secondUnit, "", "192.168.1.11", secondMAC}));
    EXPECT_FALSE(tell({.serial = secondUnit,
                       .address = "0.0.0.0",
                       .sender = "192.168.1.11",
                       .hardwareAddress = secondMAC}));
    EXPECT_EQ(findings.all(), Findings());
}

TEST_F(DiscoveryFindingsTest, ASenderMustHaveTheAddressThatItClaims) {
    EXPECT_TRUE(tell({.sender = "192.168.1.99"}));
    EXPECT_EQ(findings.all(), Findings{otherSender});
}

TEST_F(DiscoveryFindingsTest, AnAnswerWithoutASerialNumberSaysNothing) {
    EXPECT_FALSE(tell({.serial = "", .sender = "192.168.1.99"}));
}

TEST_F(DiscoveryFindingsTest, EachIsToldOnce) {
    for (int i = 0; i < 3; ++i) {
        tell({});
        tell({.sender = "192.168.1.99"});
        tell({.serial = secondUnit, .hardwareAddress = secondMAC});
    }
    EXPECT_EQ(findings.all().size(), 3U);
}

TEST_F(DiscoveryFindingsTest, AUnitMayAnswerDifferentlyAfterACommand) {
    tell({});
    findings.expectChange(firstUnit);
    EXPECT_FALSE(tell({firstUnit, "10.0.0.7", "10.0.0.7", secondMAC}));
    findings.expectChange(firstUnit);
    EXPECT_FALSE(tell({secondUnit, "10.0.0.7", "10.0.0.7", secondMAC})) << "a new serial number";
    findings.expectChange("0A 0B 0C 0D 0E 0F"); // a unit that was not heard
    EXPECT_EQ(findings.all(), Findings());
}

TEST_F(DiscoveryFindingsTest, ACommandToOneUnitExcusesNoOther) {
    tell({});
    tell({secondUnit, "192.168.1.11", "192.168.1.11", secondMAC});
    findings.expectChange(secondUnit);
    EXPECT_TRUE(tell({.sender = "192.168.1.99"}));
}

TEST_F(DiscoveryFindingsTest, ACommandToEverybodyExcusesAll) {
    tell({});
    findings.expectChanges();
    EXPECT_FALSE(tell({firstUnit, "10.0.0.7", "10.0.0.7", secondMAC}));
}

TEST_F(DiscoveryFindingsTest, StandInTheOrderOfTheirWeight) {
    tell({});
    tell({.sender = "192.168.1.99"});
    findings.setDropped(5);
    EXPECT_EQ(findings.weightiest(), Finding(DroppedDatagrams{5}));
    findings.begin(InterfaceFinding{InterfaceFault::outOfDate, "eth0"});
    EXPECT_EQ(findings.all(), Findings{(InterfaceFinding{InterfaceFault::outOfDate, "eth0"})})
        << "a discovery forgets the one before";
    tell({.sender = "192.168.1.99"});
    findings.setDropped(1);
    EXPECT_EQ(findings.all(), (Findings{InterfaceFinding{InterfaceFault::outOfDate, "eth0"},
                                        DroppedDatagrams{1}, otherSender}));
    findings.setDropped(0);
    EXPECT_EQ(findings.all().size(), 2U);
}

TEST_F(DiscoveryFindingsTest, NobodyFillsTheMemoryWithThem) {
    char serial[] = "00 00 00 00 00 00";
    for (int i = 0; i < 200; ++i) {
        serial[15] = "0123456789ABCDEF"[i / 16];
        serial[16] = "0123456789ABCDEF"[i % 16];
        tell({.serial = serial, .sender = "192.168.1.99"});
    }
    EXPECT_EQ(findings.all().size(), DiscoveryFindings::mostContradictions);
    EXPECT_FALSE(tell({.sender = "192.168.1.98"}));
}

} // namespace kx
