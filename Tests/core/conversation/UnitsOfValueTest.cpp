#include "conversation/UnitsOfValue.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

std::vector<std::uint32_t> unitsOf(const UnitsOfValue& units, std::uint64_t value) {
    std::vector<std::uint32_t> found;
    for (auto unit = units.first(value); unit != UnitsOfValue::nobody; unit = units.next(unit)) {
        found.push_back(unit);
    }
    return found;
}

using Units = std::vector<std::uint32_t>;

} // namespace

TEST(UnitsOfValue, TheOneAddedLastComesFirst) {
    UnitsOfValue units;
    for (const std::uint32_t unit : {3U, 1U, 2U}) {
        units.add(7, unit);
    }
    units.add(8, 0);
    EXPECT_EQ(unitsOf(units, 7), (Units{2, 1, 3}));
    EXPECT_EQ(unitsOf(units, 8), (Units{0}));
    EXPECT_EQ(unitsOf(units, 9), Units{});
    EXPECT_TRUE(units.isShared(3));
    EXPECT_FALSE(units.isShared(0));
}

TEST(UnitsOfValue, AUnitThatTellsNoValueSharesNone) {
    UnitsOfValue units;
    EXPECT_FALSE(units.isShared(0));
    units.add(7, 0);
    units.add(7, 1);
    EXPECT_FALSE(units.isShared(1000));
    EXPECT_TRUE(units.isShared(1));
}

TEST(UnitsOfValue, AnyOfThemCanBeTakenOut) {
    for (const std::uint32_t removed : {0U, 1U, 2U}) {
        UnitsOfValue units;
        Units rest;
        for (const std::uint32_t unit : {2U, 1U, 0U}) {
            units.add(7, unit);
        }
        for (const std::uint32_t unit : {0U, 1U, 2U}) {
            if (unit != removed) {
                rest.push_back(unit);
            }
        }
        units.remove(7, removed);
        EXPECT_EQ(unitsOf(units, 7), rest);
        units.remove(7, rest[0]);
        units.remove(7, rest[1]);
        EXPECT_EQ(unitsOf(units, 7), Units{});
        units.add(8, removed);
        EXPECT_EQ(unitsOf(units, 8), Units{removed});
    }
}

} // namespace kx
