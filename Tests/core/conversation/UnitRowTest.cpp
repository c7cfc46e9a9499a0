#include "conversation/UnitRow.h"

#include "HeardUnitSamples.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

void expectSame(const HeardUnit& unit, const HeardUnit& other) {
    EXPECT_EQ(unit.record, other.record);
    EXPECT_EQ(unit.unitIDBytes, other.unitIDBytes);
    EXPECT_EQ(unit.sender, other.sender);
    EXPECT_EQ(unit.link, other.link);
    EXPECT_EQ(unit.answered, other.answered);
}

} // namespace

TEST(UnitRow, WhatAUnitToldIsReadBackAsItWas) {
    HeardUnit unit = heardUnit(7);
    unit.answered = std::chrono::milliseconds(12);
    expectSame(UnitRow(unit).heardUnit(), unit);
    for (const UnitIDBytes& bytes : {UnitIDBytes{'R', 'A', 'C', 'K', '7', 'A'}, UnitIDBytes{'A'},
                                     UnitIDBytes{0xFF, 1, 2, 3, 4, 5}, UnitIDBytes{'a', '\n', ','},
                                     UnitIDBytes{0, 0, 0, 0, 0, 255}, UnitIDBytes{}}) {
        setUnitID(unit, bytes);
        expectSame(UnitRow(unit).heardUnit(), unit);
    }
}

TEST(UnitRow, WhatAUnitDidNotTellStaysAbsent) {
    for (const UnitParameter parameter : allUnitParameters) {
        HeardUnit unit = heardUnit(7);
        unit.record.removeValue(parameter);
        if (parameter == UnitParameter::unitID) {
            unit.unitIDBytes.reset();
        }
        EXPECT_FALSE(UnitRow(unit).tells(parameter));
        EXPECT_EQ(UnitRow(unit).text(parameter), std::nullopt);
        expectSame(UnitRow(unit).heardUnit(), unit);
    }
}

TEST(UnitRow, AnAddressOfZeroesIsToldAndNotAbsent) {
    HeardUnit unit = heardUnit(7);
    unit.record.setValue(UnitParameter::internalIPAddress, "0.0.0.0");
    EXPECT_EQ(UnitRow(unit).text(UnitParameter::internalIPAddress), "0.0.0.0");
}

} // namespace kx
