#include "units/PackedValues.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace kx {

namespace {

std::uint64_t largest(UnitParameter parameter) {
    return (std::uint64_t{1} << 8 * lengthOfValue(descriptionOf(parameter).form)) - 1;
}

} // namespace

TEST(PackedValues, HasNothingAtFirst) {
    const PackedValues values;
    for (const UnitParameter parameter : allUnitParameters) {
        EXPECT_FALSE(values.has(parameter));
        EXPECT_EQ(values.number(parameter), 0U);
    }
}

TEST(PackedValues, AValueOfZeroesIsSet) {
    PackedValues values;
    values.set(UnitParameter::unitID, 0);
    EXPECT_TRUE(values.has(UnitParameter::unitID));
    EXPECT_EQ(values.number(UnitParameter::unitID), 0U);
}

TEST(PackedValues, EachValueKeepsItsPlace) {
    for (const UnitParameter changed : allUnitParameters) {
        PackedValues values;
        for (const UnitParameter parameter : allUnitParameters) {
            values.set(parameter, largest(parameter) - indexOf(parameter));
        }
        values.set(changed, 1);
        for (const UnitParameter parameter : allUnitParameters) {
            EXPECT_TRUE(values.has(parameter));
            EXPECT_EQ(values.number(parameter),
                      parameter == changed ? 1 : largest(parameter) - indexOf(parameter));
        }
    }
}

TEST(PackedValues, OfANumberTooLargeTheLastBytesCount) {
    PackedValues values;
    values.set(UnitParameter::devicePortNumber, 0x1234567);
    EXPECT_EQ(values.number(UnitParameter::devicePortNumber), 0x4567U);
    EXPECT_EQ(values.number(UnitParameter::destinationPortNumber), 0U);
}

TEST(PackedValues, TakesNoMoreThanTheBytesOfAReply) {
    EXPECT_EQ(sizeof(PackedValues), 37U);
}

} // namespace kx
