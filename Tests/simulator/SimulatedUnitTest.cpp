#include "Simulator/SimulatedUnit.h"

#include "Simulator/FactorySettings.h"
#include "simulator/Literals.h"

#include <gtest/gtest.h>

#include <random>

namespace kx::simulator {
namespace {

constexpr Network kNetwork{.base = 0xC0000200, .prefixLength = 24};

constexpr std::string_view kFirstReply = "5E5E 3C553E 000000000001 3C533E 4B5800000001 24"
                                         "3C4D3E 024B58000001"
                                         "3C493E C000020B"
                                         "3C443E C0000201"
                                         "3C543E 0DC0"
                                         "3C503E 2710"
                                         "3C553E 000000000001"
                                         "3C433E 020000000001"
                                         "3C533E 4B5800000001";

SimulatedUnit firstUnit() {
    return SimulatedUnit(factorySettings(1, kNetwork));
}

Bytes acknowledgement(std::string_view unitID = "000000000001",
                      std::string_view serial = "4B5800000001") {
    return bytesOfHex("5E5E 3C553E" + std::string(unitID) + "3C533E" + std::string(serial) +
                      "24 6F6B0D");
}

// The unit after `command`, which it must have acknowledged.
SimulatedUnit unitAfter(std::string_view command) {
    SimulatedUnit unit = firstUnit();
    EXPECT_TRUE(unit.answer(bytesOfText(command)).has_value()) << command;
    return unit;
}

TEST(SimulatedUnit, AnswersTheParameterRequestWith81Bytes) {
    SimulatedUnit unit = firstUnit();
    const std::optional<Bytes> reply = unit.answer(bytesOfText("^^IdX"));
    ASSERT_TRUE(reply);
    EXPECT_EQ(reply->size(), 81U);
    EXPECT_EQ(*reply, bytesOfHex(kFirstReply));
}

TEST(SimulatedUnit, LaysEverySettingAtItsOffset) {
    SimulatedUnit unit(UnitSettings{.hardwareAddress = {0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E},
                                    .address = 0xC0A8010A,
                                    .destinationAddress = 0xC0A80101,
                                    .destinationPort = 3520,
                                    .devicePort = 10000,
                                    .unitID = {0, 0, 0, 0, 0, 0x2A},
                                    .destinationHardwareAddress = {0, 0x0A, 0x0B, 0x0C, 0x0D, 0x0E},
                                    .serial = {1, 2, 3, 4, 5, 6}});
    EXPECT_EQ(unit.parameterReply(), bytesOfHex("5E5E 3C553E 00000000002A 3C533E 010203040506 24"
                                                "3C4D3E 001A2B3C4D5E"
                                                "3C493E C0A8010A"
                                                "3C443E C0A80101"
                                                "3C543E 0DC0"
                                                "3C503E 2710"
                                                "3C553E 00000000002A"
                                                "3C433E 000A0B0C0D0E"
                                                "3C533E 010203040506"));
}

TEST(SimulatedUnit, AcknowledgesWithOkAndACarriageReturn) {
    SimulatedUnit unit = firstUnit();
    EXPECT_EQ(unit.answer(bytesOfText("^^IdP2711")), acknowledgement());
}

TEST(SimulatedUnit, EachCommandChangesItsOwnSettingAlone) {
    const UnitSettings before = firstUnit().settings();
    const auto expectOnly = [&](std::string_view command, auto member, const auto& value) {
        UnitSettings expected = before;
        expected.*member = value;
        EXPECT_EQ(unitAfter(command).settings(), expected) << command;
    };
    expectOnly("^^IdU00000000000C", &UnitSettings::unitID, SixBytes{0, 0, 0, 0, 0, 12});
    expectOnly("^^IdM001a2B3c4D5e", &UnitSettings::hardwareAddress,
               SixBytes{0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E});
    expectOnly("^^IdIC0A80114", &UnitSettings::address, IPv4{0xC0A80114});
    expectOnly("^^IdD0A000007", &UnitSettings::destinationAddress, IPv4{0x0A000007});
    expectOnly("^^IdT0DC3", &UnitSettings::destinationPort, std::uint16_t{3523});
    expectOnly("^^IdPFFFF", &UnitSettings::devicePort, std::uint16_t{65535});
    expectOnly("^^IdC000A0B0C0D0E", &UnitSettings::destinationHardwareAddress,
               SixBytes{0x00, 0x0A, 0x0B, 0x0C, 0x0D, 0x0E});
    expectOnly("^^IdS001A2B3C4D5E", &UnitSettings::serial,
               SixBytes{0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E});
}

TEST(SimulatedUnit, AnswersUnderItsNewIdentity) {
    SimulatedUnit unit = firstUnit();
    EXPECT_EQ(unit.answer(bytesOfText("^^IdU00000000000C")), acknowledgement("00000000000C"));
    EXPECT_EQ(unit.answer(bytesOfText("^^IdS0A0B0C0D0E0F")),
              acknowledgement("00000000000C", "0A0B0C0D0E0F"));
}

TEST(SimulatedUnit, ShortUnitIDStandsAtTheLeft) {
    EXPECT_EQ(unitAfter("^^IdU4142").settings().unitID, (SixBytes{'A', 'B', 0, 0, 0, 0}));
}

TEST(SimulatedUnit, TakesACommandThatEndsWithACarriageReturn) {
    EXPECT_EQ(unitAfter("^^IdP2711\r").settings().devicePort, 10001);
    SimulatedUnit unit = firstUnit();
    EXPECT_EQ(unit.answer(bytesOfText("^^IdX\r")), bytesOfHex(kFirstReply));
}

TEST(SimulatedUnit, RestoreBringsBackEverySetting) {
    SimulatedUnit unit = firstUnit();
    for (const std::string_view command :
         {"^^IdU4142", "^^IdM020000000009", "^^IdI0A000007", "^^IdD0A000001", "^^IdT0DC1",
          "^^IdP0050", "^^IdC020000000008", "^^IdS000000000009"})
        ASSERT_TRUE(unit.answer(bytesOfText(command)));
    ASSERT_NE(unit.settings(), firstUnit().settings());

    EXPECT_EQ(unit.answer(bytesOfText("^^IdZ")), acknowledgement());
    EXPECT_EQ(unit.settings(), firstUnit().settings());
}

TEST(SimulatedUnit, TellsItsVersionAsText) {
    SimulatedUnit unit = firstUnit();
    Bytes expected = bytesOfHex("5E5E 3C553E 000000000001 3C533E 4B5800000001 24");
    appendBytes(expected, bytesOfText("simulated unit 1.0\r"));
    EXPECT_EQ(unit.answer(bytesOfText("^^IdV\r")), expected);
    EXPECT_FALSE(unit.answer(bytesOfText("^^IdV")));
}

TEST(SimulatedUnit, SetsItsClockAndKeepsItThroughARestore) {
    SimulatedUnit unit = firstUnit();
    EXPECT_EQ(unit.clock(), "");
    EXPECT_EQ(unit.answer(bytesOfText("^^Id-Z03051407\r")), acknowledgement());
    EXPECT_EQ(unit.clock(), "03051407");
    EXPECT_TRUE(unit.answer(bytesOfText("^^IdZ")));
    EXPECT_EQ(unit.clock(), "03051407");
}

TEST(SimulatedUnit, TakesTheFirstAndTheLastMinuteOfTheYear) {
    EXPECT_EQ(unitAfter("^^Id-Z01010000\r").clock(), "01010000");
    EXPECT_EQ(unitAfter("^^Id-Z12312359\r").clock(), "12312359");
    EXPECT_EQ(unitAfter("^^Id-Z02290000\r").clock(), "02290000");
}

TEST(SimulatedUnit, IgnoresATimeThatDoesNotExist) {
    SimulatedUnit unit = firstUnit();
    for (const std::string_view time :
         {"00011200", "13011200", "01001200", "01321200", "04311200", "02301200", "01012400",
          "01011260", "0101120", "010112000", "+1011200", "0101 200", ""})
        EXPECT_FALSE(unit.answer(bytesOfText("^^Id-Z" + std::string(time) + "\r"))) << time;
    EXPECT_FALSE(unit.answer(bytesOfText("^^Id-Z03051407")));
    EXPECT_EQ(unit.clock(), "");
}

TEST(SimulatedUnit, IgnoresMalformedCommands) {
    SimulatedUnit unit = firstUnit();
    for (const std::string_view command : {"",
                                           "^",
                                           "^^Id",
                                           "^^Id\r",
                                           "^^idX",
                                           "^^IdX ",
                                           "^^IdXX",
                                           "^^IdZ0",
                                           " ^^IdX",
                                           "^^IdQ",
                                           "^^IdU",
                                           "^^IdU0",
                                           "^^IdU000",
                                           "^^IdU41424344454647",
                                           "^^IdUxy",
                                           "^^IdM",
                                           "^^IdM0011223344",
                                           "^^IdM00:11:22:33:44:55",
                                           "^^IdM00112233445566",
                                           "^^IdI",
                                           "^^IdIC0A8011",
                                           "^^IdIC0A801140",
                                           "^^IdI-0A80114",
                                           "^^IdT",
                                           "^^IdTDC0",
                                           "^^IdT0x0D",
                                           "^^IdP11170",
                                           "^^IdPFFFFFFFF",
                                           "^^IdP+123",
                                           "^^IdP 123",
                                           "^^IdC12",
                                           "^^IdS1",
                                           "^^IdP2711\r\r",
                                           "^^Idx"})
        EXPECT_FALSE(unit.answer(bytesOfText(command))) << command;
    EXPECT_EQ(unit.settings(), firstUnit().settings());
}

TEST(SimulatedUnit, ListensOnTheCommonPortAndItsDevicePort) {
    SimulatedUnit unit = unitAfter("^^IdP2711");
    EXPECT_TRUE(unit.listensOnPort(3520));
    EXPECT_TRUE(unit.listensOnPort(10001));
    EXPECT_FALSE(unit.listensOnPort(10000));
    EXPECT_FALSE(unit.listensOnPort(3521));
}

TEST(SimulatedUnit, WhateverIsSentTheSettingsCanBeRead) {
    std::mt19937 random(1);
    SimulatedUnit unit = firstUnit();
    for (std::size_t length = 0; length <= 200; ++length) {
        for (int round = 0; round < 50; ++round) {
            Bytes command = bytesOfText("^^Id");
            command.resize(length);
            for (std::size_t index = round % 2 == 0 ? 0 : 4; index < length; ++index)
                command[index] = static_cast<std::uint8_t>(random());
            unit.answer(command);
            ASSERT_EQ(unit.parameterReply().size(), 81U);
        }
    }
}

TEST(FactorySettings, FollowFromTheNumber) {
    const UnitSettings settings = factorySettings(0x1234, {.base = 0x0A000000, .prefixLength = 16});
    EXPECT_EQ(settings.hardwareAddress, (SixBytes{0x02, 0x4B, 0x58, 0x00, 0x12, 0x34}));
    EXPECT_EQ(settings.serial, (SixBytes{0x4B, 0x58, 0x00, 0x00, 0x12, 0x34}));
    EXPECT_EQ(settings.address, 0x0A00123EU);
    EXPECT_EQ(settings.destinationAddress, 0x0A000001U);
    EXPECT_EQ(settings.destinationPort, 3520);
}

TEST(FactorySettings, UnitIDIsANumberOrAText) {
    const auto unitID = [](unsigned number) { return factorySettings(number, kNetwork).unitID; };
    EXPECT_EQ(unitID(1), (SixBytes{0, 0, 0, 0, 0, 1}));
    EXPECT_EQ(unitID(255), (SixBytes{0, 0, 0, 0, 0, 255}));
    EXPECT_EQ(unitID(2), (SixBytes{'U', '0', '0', '0', '0', '2'}));
    EXPECT_EQ(unitID(257), (SixBytes{'U', '0', '0', '2', '5', '7'}));
    EXPECT_EQ(unitID(99'999), (SixBytes{'U', '9', '9', '9', '9', '9'}));
}

TEST(FactorySettings, EveryThirdUnitTakesCommandsOnTheCommonPortOnly) {
    EXPECT_EQ(factorySettings(1, kNetwork).devicePort, 10000);
    EXPECT_EQ(factorySettings(2, kNetwork).devicePort, 10000);
    EXPECT_EQ(factorySettings(3, kNetwork).devicePort, 3520);
}

TEST(FactorySettings, UnitsStayBelowTheDirectedBroadcastAddress) {
    EXPECT_TRUE(networkHoldsUnits(kNetwork, 244));
    EXPECT_FALSE(networkHoldsUnits(kNetwork, 245));
    EXPECT_TRUE(networkHoldsUnits({.base = 0x0A000000, .prefixLength = 16}, 10'000));
    EXPECT_TRUE(networkHoldsUnits({.base = 0x0A000000, .prefixLength = 8}, kHighestUnitNumber));
}

} // namespace
} // namespace kx::simulator
