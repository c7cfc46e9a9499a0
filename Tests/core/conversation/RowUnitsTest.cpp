#include "conversation/RowUnits.h"

#include "HeardUnitSamples.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

class RowUnitsTest : public testing::Test {
protected:
    using Identities = std::vector<UnitIdentity>;
    using Found = std::vector<Identities>;

    static UnitIdentity identity(std::uint32_t serial, std::uint32_t hardware) {
        return {.serialNumber = sampleSerial(serial),
                .hardwareAddress = sampleHardwareAddress(hardware)};
    }

    static WantedRow row(std::uint32_t serial, Identities identities = {}, Identities former = {}) {
        return {.line = 2,
                .serialNumber = sampleSerial(serial),
                .edits = {},
                .identities = std::move(identities),
                .formerIdentities = std::move(former)};
    }

    void hear(std::uint32_t serial, std::uint32_t hardware) {
        HeardUnit unit = heardUnit(serial);
        unit.record.setValue(UnitParameter::internalMACAddress, sampleHardwareAddress(hardware));
        heard.add(unit);
    }

    // The units that each row means.
    std::vector<Identities> found(const std::vector<WantedRow>& rows) const {
        const UnitsByValue units(heard);
        std::vector<Identities> all;
        for (const auto& places : unitsOfRows(rows, units)) {
            all.emplace_back();
            for (const std::size_t place : places) {
                const HeardUnit& unit = *units.units()[place];
                all.back().push_back(
                    {std::string(unit.serialNumber()), std::string(unit.hardwareAddress())});
            }
        }
        return all;
    }

    HeardUnits heard;
};

} // namespace

TEST_F(RowUnitsTest, ARowMeansTheUnitsWithItsSerialNumber) {
    hear(1, 1);
    hear(2, 2);
    hear(2, 3);
    EXPECT_EQ(found({row(1), row(2), row(9)}),
              (Found{{identity(1, 1)}, {identity(2, 2), identity(2, 3)}, {}}));
}

TEST_F(RowUnitsTest, ARowWithIdentitiesMeansNoOtherUnit) {
    hear(1, 5);
    hear(9, 1);
    EXPECT_EQ(found({row(1, {identity(1, 1), identity(9, 1)})}), Found{{identity(9, 1)}});
    EXPECT_EQ(found({row(1, {identity(1, 1)})}), Found{{}});
}

TEST_F(RowUnitsTest, AUnitThatGotAnOldNameBackIsFoundByIt) {
    hear(1, 1);
    EXPECT_EQ(found({row(1, {identity(9, 1)})}), Found{{}});
    EXPECT_EQ(found({row(1, {identity(9, 1)}, {identity(1, 1)})}), Found{{identity(1, 1)}});
}

TEST_F(RowUnitsTest, AFormerNameIsNotThatOfAnotherUnitWithTheSerialNumber) {
    hear(1, 5);
    EXPECT_EQ(found({row(1, {identity(9, 1)}, {identity(1, 1)})}), Found{{}});
    HeardUnit unknown = heardUnit(2);
    unknown.record.removeValue(UnitParameter::internalMACAddress);
    heard.add(unknown);
    EXPECT_EQ(found({row(2, {identity(9, 2)}, {identity(2, 2)})}), Found{{}});
}

TEST_F(RowUnitsTest, AFormerNameDoesNotCountWhileTheUnitAnswersUnderTheNewOne) {
    hear(1, 1);
    hear(9, 1);
    EXPECT_EQ(found({row(1, {identity(9, 1)}, {identity(1, 1)})}), Found{{identity(9, 1)}});
}

TEST_F(RowUnitsTest, AUnitThatGotTheNamesOfAnotherOneIsNotTakenForIt) {
    // Unit 1 has got both names of unit 2, which is switched off.
    hear(2, 2);
    const WantedRow first = row(1, {identity(2, 2)}, {identity(1, 1)});
    EXPECT_EQ(found({first, row(2, {identity(9, 9)}, {identity(2, 2)})}),
              (Found{{identity(2, 2)}, {}}));
    EXPECT_EQ(found({row(2), first}), (Found{{}, {identity(2, 2)}}));
}

} // namespace kx
