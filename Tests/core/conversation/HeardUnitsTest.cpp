#include "conversation/HeardUnits.h"

#include "HeardUnitSamples.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

HeardUnit unit(std::string_view serial, std::string_view hardware, std::string_view address,
               std::string_view unitID = "1") {
    HeardUnit made;
    made.record.setValue(UnitParameter::serialNumber, serial);
    made.record.setValue(UnitParameter::internalMACAddress, hardware);
    made.record.setValue(UnitParameter::internalIPAddress, address);
    made.record.setValue(UnitParameter::unitID, unitID);
    return made;
}

constexpr auto firstSerial = "01 02 03 04 05 06";
constexpr auto secondSerial = "01 02 03 04 05 07";
constexpr auto firstHardware = "00:1A:2B:3C:4D:5E";
constexpr auto secondHardware = "00:1A:2B:3C:4D:5F";

} // namespace

TEST(HeardUnits, AreInTheOrderOfSerialNumbers) {
    HeardUnits units;
    units.add(unit(secondSerial, secondHardware, "192.0.2.2"));
    units.add(unit(firstSerial, firstHardware, "192.0.2.1"));
    ASSERT_EQ(units.all().size(), 2U);
    EXPECT_EQ(units.all()[0]->serialNumber(), firstSerial);
    EXPECT_EQ(units.count(), 2U);
}

TEST(HeardUnits, ANewAnswerReplacesTheOldOne) {
    HeardUnits units;
    units.add(unit(firstSerial, firstHardware, "192.0.2.1"));
    units.add(unit(firstSerial, firstHardware, "192.0.2.9"));
    ASSERT_EQ(units.count(), 1U);
    EXPECT_EQ(units.all()[0]->record.value(UnitParameter::internalIPAddress), "192.0.2.9");
    EXPECT_TRUE(units.duplicateSerialNumbers().empty());
}

TEST(HeardUnits, ASerialNumberUnderTwoHardwareAddressesIsTwoUnits) {
    HeardUnits units;
    units.add(unit(firstSerial, firstHardware, "192.0.2.1"));
    units.add(unit(firstSerial, secondHardware, "192.0.2.2"));
    EXPECT_EQ(units.count(), 2U);
    const auto duplicates = units.duplicateSerialNumbers();
    ASSERT_EQ(duplicates.size(), 1U);
    EXPECT_EQ(duplicates[0].hardwareAddresses,
              (std::vector<std::string>{firstHardware, secondHardware}));
    EXPECT_EQ(units.named(SerialNumberOfUnit{firstSerial}).size(), 2U);
    EXPECT_TRUE(units.isDuplicated(*units.all()[0]));
}

TEST(HeardUnits, AnAddressUnderTwoSerialNumbersIsADuplicate) {
    HeardUnits units;
    units.add(unit(firstSerial, firstHardware, "192.0.2.1"));
    units.add(unit(secondSerial, secondHardware, "192.0.2.1"));
    const auto duplicates = units.duplicateAddresses();
    ASSERT_EQ(duplicates.size(), 1U);
    EXPECT_EQ(duplicates[0].address, "192.0.2.1");
    EXPECT_EQ(duplicates[0].serialNumbers, (std::vector<std::string>{firstSerial, secondSerial}));
    EXPECT_TRUE(units.isDuplicated(*units.all()[1]));
}

TEST(HeardUnits, AnAddressUnderThreeSerialNumbersIsOneDuplicate) {
    constexpr auto thirdSerial = "01 02 03 04 05 08";
    HeardUnits units;
    units.add(unit(thirdSerial, "", "192.0.2.1"));
    units.add(unit(firstSerial, "", "192.0.2.1"));
    units.add(unit("01 02 03 04 05 09", "", "192.0.2.5"));
    units.add(unit(secondSerial, "", "192.0.2.1"));
    units.add(unit("01 02 03 04 05 0A", "", "192.0.2.0"));
    units.add(unit("01 02 03 04 05 0B", "", "192.0.2.0"));
    const auto duplicates = units.duplicateAddresses();
    ASSERT_EQ(duplicates.size(), 2U);
    EXPECT_EQ(duplicates[0].address, "192.0.2.0");
    EXPECT_EQ(duplicates[0].serialNumbers,
              (std::vector<std::string>{"01 02 03 04 05 0A", "01 02 03 04 05 0B"}));
    EXPECT_EQ(duplicates[1].address, "192.0.2.1");
    EXPECT_EQ(duplicates[1].serialNumbers,
              (std::vector<std::string>{firstSerial, secondSerial, thirdSerial}));
}

TEST(HeardUnits, AnAddressTwiceUnderOneSerialNumberIsNoDuplicateOfAddresses) {
    HeardUnits units;
    units.add(unit(firstSerial, firstHardware, "192.0.2.1"));
    units.add(unit(firstSerial, secondHardware, "192.0.2.1"));
    units.add(unit(secondSerial, secondHardware, "192.0.2.2"));
    EXPECT_TRUE(units.duplicateAddresses().empty());
    units.add(unit(secondSerial, firstHardware, "192.0.2.1"));
    ASSERT_EQ(units.duplicateAddresses().size(), 1U);
    EXPECT_EQ(units.duplicateAddresses()[0].serialNumbers,
              (std::vector<std::string>{firstSerial, secondSerial}));
}

TEST(HeardUnits, UnitsThatDifferAreNoDuplicates) {
    HeardUnits units;
    units.add(unit(firstSerial, firstHardware, "192.0.2.1"));
    units.add(unit(secondSerial, secondHardware, "192.0.2.2"));
    EXPECT_TRUE(units.duplicateAddresses().empty());
    EXPECT_TRUE(units.duplicateSerialNumbers().empty());
    EXPECT_FALSE(units.isDuplicated(*units.all()[0]));
}

TEST(HeardUnits, AreFoundByTheTextOfTheirUnitID) {
    HeardUnits units;
    units.add(unit(firstSerial, firstHardware, "192.0.2.1", std::string_view("AB\0\0\0\0", 6)));
    units.add(unit(secondSerial, secondHardware, "192.0.2.2", "AB"));
    EXPECT_EQ(units.named(UnitIDOfUnit{"AB"}).size(), 2U);
    EXPECT_TRUE(units.named(UnitIDOfUnit{"A"}).empty());
    EXPECT_TRUE(units.named(SerialNumberOfUnit{"00 00 00 00 00 00"}).empty());
}

TEST(HeardUnits, InventedUnitsFillNoMemory) {
    HeardUnits units(2);
    units.add(unit(firstSerial, firstHardware, "192.0.2.1"));
    units.add(unit(secondSerial, secondHardware, "192.0.2.2"));
    EXPECT_FALSE(units.isIncomplete());
    units.add(unit(firstSerial, firstHardware, "192.0.2.9"));
    EXPECT_FALSE(units.isIncomplete()) << "a known unit needs no room";
    units.add(unit(firstSerial, secondHardware, "192.0.2.3"));
    units.add(unit("01 02 03 04 05 08", secondHardware, "192.0.2.3"));
    EXPECT_EQ(units.count(), 2U);
    EXPECT_TRUE(units.isIncomplete());
    EXPECT_EQ(units.all()[0]->record.value(UnitParameter::internalIPAddress), "192.0.2.9");
}

TEST(HeardUnits, AUnitWithoutAHardwareAddressIsOneToo) {
    HeardUnits units;
    HeardUnit bare;
    bare.record.setValue(UnitParameter::serialNumber, firstSerial);
    units.add(bare);
    units.add(bare);
    EXPECT_EQ(units.count(), 1U);
    EXPECT_EQ(units.all()[0]->hardwareAddress(), "");
}

TEST(ShownText, AUnitIDThatIsNoTextIsToldByItsBytes) {
    HeardUnit unit = heardUnit(7);
    const auto shown = [&unit](UnitParameter parameter) {
        return shownText(unit.record, unit.unitIDBytes, parameter);
    };
    EXPECT_EQ(shown(UnitParameter::unitID), "7");
    EXPECT_EQ(shown(UnitParameter::devicePortNumber), "10000");
    setUnitID(unit, {'A', 'B', 0, 0, 0, 0});
    EXPECT_EQ(shown(UnitParameter::unitID), "AB");
    setUnitID(unit, {0xFF, 0xFE, 0, 0, 0, 1});
    EXPECT_EQ(shown(UnitParameter::unitID), "FFFE00000001");
    unit.unitIDBytes.reset();
    unit.record.removeValue(UnitParameter::devicePortNumber);
    EXPECT_EQ(shown(UnitParameter::unitID), std::nullopt);
    EXPECT_EQ(shown(UnitParameter::devicePortNumber), std::nullopt);
}

} // namespace kx
