#include "conversation/EditTrouble.h"

#include "EditOutcomes.h"
#include "addresses/IPv4Address.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

using enum UnitParameter;

InterfaceAddress addressAndMask(const char* address, const char* mask) {
    return {.address = ipForString(address), .mask = ipForString(mask)};
}

KnownNetwork known() {
    return {.own = {addressAndMask("192.168.1.20", "255.255.255.0"),
                    addressAndMask("10.0.0.1", "255.0.0.0")},
            .subnets = {addressAndMask("192.168.1.20", "255.255.255.0")}};
}

EditTrouble troubleOf(UnitParameter parameter, std::string_view typed,
                      const KnownNetwork& network = known()) {
    return troubleOfEdit(editOf(parameter, typed), network);
}

UnitRecord recordOf(std::string_view serial, std::string_view hardware, std::string_view address) {
    UnitRecord record;
    record.setValue(serialNumber, serial);
    record.setValue(internalMACAddress, hardware);
    record.setValue(internalIPAddress, address);
    return record;
}

} // namespace

TEST(EditTrouble, AnAddressInTheSubnetThatNobodyHasIsNone) {
    EXPECT_EQ(troubleOf(internalIPAddress, "192.168.1.99"), EditTrouble::none);
    EXPECT_EQ(troubleOf(internalIPAddress, "not an address"), EditTrouble::none);
    EXPECT_EQ(troubleOf(internalIPAddress, "192.168.1."), EditTrouble::none); // half typed
}

TEST(EditTrouble, ThisComputersOwnAddressIsTroubleOnAnyInterface) {
    EXPECT_EQ(troubleOf(internalIPAddress, "192.168.1.20"), EditTrouble::ownAddress);
    EXPECT_EQ(troubleOf(internalIPAddress, "10.0.0.1"), EditTrouble::ownAddress);
}

TEST(EditTrouble, AnAddressThatAListedUnitHasIsTrouble) {
    KnownNetwork held = known();
    held.isHeldByAnotherUnit = true;
    EXPECT_EQ(troubleOf(internalIPAddress, "192.168.1.11", held),
              EditTrouble::addressOfAnotherUnit);
}

TEST(EditTrouble, AddressesOfManyAndOfTheSubnetAreNoUnits) {
    EXPECT_EQ(troubleOf(internalIPAddress, "192.168.1.255"), EditTrouble::addressOfMany);
    EXPECT_EQ(troubleOf(internalIPAddress, "255.255.255.255"), EditTrouble::addressOfMany);
    EXPECT_EQ(troubleOf(internalIPAddress, "224.0.0.1"), EditTrouble::addressOfMany);
    EXPECT_EQ(troubleOf(internalIPAddress, "192.168.1.0"), EditTrouble::addressOfSubnet);
}

TEST(EditTrouble, OutsideTheSubnetAUnitMayBeOutOfReach) {
    EXPECT_EQ(troubleOf(internalIPAddress, "192.168.2.11"), EditTrouble::outsideSubnet);
    EXPECT_EQ(troubleOf(internalIPAddress, "10.0.0.7"), EditTrouble::outsideSubnet);
}

TEST(EditTrouble, WhereNothingIsKnownNothingIsSaid) {
    EXPECT_EQ(troubleOf(internalIPAddress, "10.0.0.7", {}), EditTrouble::none);
    const KnownNetwork withoutMask{.own = {}, .subnets = {addressAndMask("10.0.0.1", "")}};
    EXPECT_EQ(troubleOf(internalIPAddress, "192.168.1.0", withoutMask), EditTrouble::none);
    const KnownNetwork twoHosts{.own = {},
                                .subnets = {addressAndMask("10.0.0.1", "255.255.255.254")}};
    EXPECT_EQ(troubleOf(internalIPAddress, "10.0.0.0", twoHosts), EditTrouble::none);
}

TEST(EditTrouble, AHardwareAddressOfManyIsNoUnits) {
    EXPECT_EQ(troubleOf(internalMACAddress, "FF:FF:FF:FF:FF:FF"),
              EditTrouble::hardwareAddressOfMany);
    EXPECT_EQ(troubleOf(internalMACAddress, "01:00:5e:00:00:01"),
              EditTrouble::hardwareAddressOfMany);
    EXPECT_EQ(troubleOf(internalMACAddress, "02:4B:58:00:00:01"), EditTrouble::none);
    EXPECT_EQ(troubleOf(internalMACAddress, "0"), EditTrouble::none);
}

TEST(EditTrouble, ADestinationMayBeOfManyAndMayBeThisComputer) {
    for (const char* address : {"192.168.1.255", "192.168.1.20", "10.9.9.9"}) {
        EXPECT_EQ(troubleOf(destinationIPAddress, address), EditTrouble::none) << address;
    }
    EXPECT_EQ(troubleOf(destinationMACAddress, "FF:FF:FF:FF:FF:FF"), EditTrouble::none);
}

TEST(ListedHolder, FindsTheOtherUnitThatTellsTheAddress) {
    UnitRegistry units;
    units.store(recordOf("A", "00:00:00:00:00:01", "192.168.1.10"));
    units.store(recordOf("B", "00:00:00:00:00:02", "192.168.1.11"));
    ListedHolder holder;
    holder.seek(units, ipForString("192.168.1.11"), "A");
    EXPECT_EQ(holder.serialNumber(), "B");
    holder.seek(units, ipForString("192.168.1.10"), "A"); // the unit's own
    EXPECT_EQ(holder.serialNumber(), std::nullopt);
    holder.seek(units, ipForString("192.168.1.10"), std::nullopt);
    EXPECT_EQ(holder.serialNumber(), "A");
}

TEST(ListedHolder, ARecordFromBeforeTheSerialNumberWasChangedIsTheUnitsOwn) {
    UnitRegistry units;
    units.store(recordOf("old", "00:00:00:00:00:01", "192.168.1.10"));
    units.store(recordOf("new", "00:00:00:00:00:01", "192.168.1.10"));
    ListedHolder holder;
    holder.seek(units, ipForString("192.168.1.10"), "new");
    EXPECT_EQ(holder.serialNumber(), std::nullopt);
}

TEST(ListedHolder, AUnitThatTellsItsHardwareAddressLaterIsNotTakenForAnother) {
    UnitRegistry units;
    UnitRecord withoutHardwareAddress = recordOf("new", "00:00:00:00:00:01", "192.168.1.10");
    withoutHardwareAddress.removeValue(internalMACAddress);
    units.store(withoutHardwareAddress);
    units.store(recordOf("old", "00:00:00:00:00:01", "192.168.1.10"));
    ListedHolder holder;
    holder.seek(units, ipForString("192.168.1.10"), "new");
    EXPECT_EQ(holder.serialNumber(), "old");
    holder.unitDidTell(recordOf("new", "00:00:00:00:00:01", "192.168.1.10"));
    EXPECT_EQ(holder.serialNumber(), std::nullopt);
}

TEST(ListedHolder, FollowsWhatUnitsTellAfterwards) {
    UnitRegistry units;
    ListedHolder holder;
    holder.unitDidTell(recordOf("A", "00:00:00:00:00:01", "192.168.1.10"));
    EXPECT_EQ(holder.serialNumber(), std::nullopt); // nothing is sought
    holder.seek(units, ipForString("192.168.1.10"), std::nullopt);
    holder.unitDidTell(recordOf("A", "00:00:00:00:00:01", "192.168.1.10"));
    EXPECT_EQ(holder.serialNumber(), "A");
    holder.unitDidTell(recordOf("B", "00:00:00:00:00:02", "192.168.1.11"));
    EXPECT_EQ(holder.serialNumber(), "A");
    holder.unitDidTell(recordOf("A", "00:00:00:00:00:01", "192.168.1.99"));
    EXPECT_EQ(holder.serialNumber(), std::nullopt);
    holder.reset();
    holder.unitDidTell(recordOf("A", "00:00:00:00:00:01", "192.168.1.10"));
    EXPECT_EQ(holder.serialNumber(), std::nullopt);
}

} // namespace kx
