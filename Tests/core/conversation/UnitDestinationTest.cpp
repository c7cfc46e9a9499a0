#include "conversation/UnitDestination.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

using enum UnitParameter;

constexpr Everybody toEverybody{.address = 0xC0A801FFU, .link = 7}; // 192.168.1.255

UnitDestination destinationOf(std::string_view address, std::string_view port) {
    UnitRecord record;
    record.setValue(internalIPAddress, address);
    record.setValue(devicePortNumber, port);
    return destinationOfUnit(&record, toEverybody);
}

} // namespace

TEST(DirectedBroadcast, IsTheLastAddressOfTheSubnet) {
    EXPECT_EQ(directedBroadcastAddress(0xC0A80114U, 0xFFFFFF00U), 0xC0A801FFU);
    EXPECT_EQ(directedBroadcastAddress(0xC0A80114U, 0xFFFF0000U), 0xC0A8FFFFU);
    EXPECT_EQ(directedBroadcastAddress(0xC0A80114U, 0xFFFFFFFFU), 0xC0A80114U);
}

TEST(DirectedBroadcast, IsEverywhereWithoutAMaskOrAnAddress) {
    EXPECT_EQ(directedBroadcastAddress(0xC0A80114U, 0), limitedBroadcastAddress);
    EXPECT_EQ(directedBroadcastAddress(0, 0xFFFFFF00U), limitedBroadcastAddress);
    EXPECT_EQ(directedBroadcastAddress(0, 0), 0xFFFFFFFFU);
}

TEST(UnitDestination, IsWhatTheUnitHasToldOfItself) {
    const UnitDestination unit = destinationOf("192.168.1.10", "10000");
    EXPECT_EQ(unit.address, 0xC0A8010AU);
    EXPECT_EQ(unit.port, 10000);
}

TEST(UnitDestination, WithoutARecordIsEverybodyOnTheDefaultPort) {
    const UnitDestination nobody = destinationOfUnit(nullptr, toEverybody);
    EXPECT_EQ(nobody.address, toEverybody.address);
    EXPECT_EQ(nobody.port, 3520);
}

TEST(UnitDestination, WithoutAnAddressIsEverybodyOnTheUnitsOwnPort) {
    UnitRecord record;
    record.setValue(devicePortNumber, "10000");
    const UnitDestination moving = destinationOfUnit(&record, toEverybody);
    EXPECT_EQ(moving.address, toEverybody.address);
    EXPECT_EQ(moving.port, 10000);
}

TEST(UnitDestination, WithoutAPortIsTheUnitOnTheDefaultPort) {
    UnitRecord record;
    record.setValue(internalIPAddress, "192.168.1.10");
    EXPECT_EQ(destinationOfUnit(&record, toEverybody).address, 0xC0A8010AU);
    EXPECT_EQ(destinationOfUnit(&record, toEverybody).port, 3520);
    EXPECT_EQ(destinationOf("192.168.1.10", "").port, 3520);
}

TEST(UnitDestination, AnAddressThatDoesNotParseIsZeroAndNotEverybody) {
    EXPECT_EQ(destinationOf("nowhere", "10000").address, 0U);
    EXPECT_EQ(destinationOf("", "10000").address, 0U);
}

TEST(UnitDestination, IsReachedByTheLinkOnWhichTheUnitWasHeard) {
    UnitRecord record;
    record.setValue(internalIPAddress, "10.0.0.7");
    record.setLink(3);
    EXPECT_EQ(destinationOfUnit(&record, toEverybody).link, 3U);
    EXPECT_EQ(destinationOf("192.168.1.10", "10000").link, 0U) << "no link was told";
}

TEST(UnitDestination, EverybodyIsReachedByTheChosenLink) {
    EXPECT_EQ(destinationOfUnit(nullptr, toEverybody).link, 7U);
    UnitRecord withoutAddress;
    withoutAddress.setLink(3);
    EXPECT_EQ(destinationOfUnit(&withoutAddress, toEverybody).link, 7U);
    EXPECT_EQ(destinationOfUnit(nullptr, Everybody()).address, limitedBroadcastAddress);
    EXPECT_EQ(destinationOfUnit(nullptr, Everybody()).link, 0U);
}

TEST(UnitDestination, ABroadcastLeavesByTheChosenLinkWhicheverUnitTellsItAsItsAddress) {
    const auto linkTo = [](std::string_view address, Everybody all) {
        UnitRecord record;
        record.setValue(internalIPAddress, address);
        record.setLink(3);
        return destinationOfUnit(&record, all).link;
    };
    EXPECT_EQ(linkTo("255.255.255.255", toEverybody), 7U);
    EXPECT_EQ(linkTo("192.168.1.255", toEverybody), 7U);
    EXPECT_EQ(linkTo("192.168.1.254", toEverybody), 3U);
    EXPECT_EQ(linkTo("255.255.255.255", Everybody()), 3U) << "nothing is chosen";
}

TEST(UnitDestination, APortIsCutTo16Bits) {
    EXPECT_EQ(destinationOf("192.168.1.10", "70000").port, 4464);
}

} // namespace kx
