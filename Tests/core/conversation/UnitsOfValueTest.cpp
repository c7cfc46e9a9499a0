#include "conversation/UnitsOfValue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <vector>

namespace kx {

namespace {

using Units = std::vector<std::uint32_t>;

class UnitsOfValues : public testing::Test {
protected:
    void tell(std::uint64_t value, std::uint32_t unit) {
        told[unit] = value;
        units.add(unit);
    }

    Units unitsOf(std::uint64_t value) const {
        Units found;
        for (auto unit = units.first(value); unit != UnitsOfValue::nobody;
             unit = units.next(unit)) {
            found.push_back(unit);
        }
        return found;
    }

    std::map<std::uint32_t, std::uint64_t> told;
    UnitsOfValue units{[this](std::uint32_t unit) { return told.at(unit); }};
};

} // namespace

TEST_F(UnitsOfValues, TheOneAddedLastComesFirst) {
    for (const std::uint32_t unit : {3U, 1U, 2U}) {
        tell(7, unit);
    }
    tell(8, 0);
    EXPECT_EQ(unitsOf(7), (Units{2, 1, 3}));
    EXPECT_EQ(unitsOf(8), (Units{0}));
    EXPECT_EQ(unitsOf(9), Units{});
    EXPECT_TRUE(units.isShared(3));
    EXPECT_FALSE(units.isShared(0));
}

TEST_F(UnitsOfValues, AUnitThatIsNotThereSharesNoValue) {
    EXPECT_FALSE(units.isShared(0));
    tell(7, 0);
    tell(7, 1);
    EXPECT_FALSE(units.isShared(1000));
    EXPECT_TRUE(units.isShared(1));
}

TEST_F(UnitsOfValues, AnyOfThemCanBeTakenOut) {
    for (const std::uint32_t removed : {0U, 1U, 2U}) {
        Units rest;
        for (const std::uint32_t unit : {2U, 1U, 0U}) {
            tell(7, unit);
        }
        for (const std::uint32_t unit : {0U, 1U, 2U}) {
            if (unit != removed) {
                rest.push_back(unit);
            }
        }
        units.remove(removed);
        EXPECT_EQ(unitsOf(7), rest);
        units.remove(rest[0]);
        units.remove(rest[1]);
        EXPECT_EQ(unitsOf(7), Units{});
        tell(8, removed);
        EXPECT_EQ(unitsOf(8), Units{removed});
        units.remove(removed);
    }
}

TEST_F(UnitsOfValues, NobodyIsLeftWhenTheyAreCleared) {
    tell(7, 0);
    tell(7, 1);
    units.clear();
    EXPECT_EQ(unitsOf(7), Units{});
    EXPECT_FALSE(units.isShared(0));
    tell(7, 1);
    EXPECT_EQ(unitsOf(7), Units{1});
}

// The same by a plain list for each value.
TEST_F(UnitsOfValues, AgreeWithPlainListsOverManyRandomChanges) {
    std::map<std::uint64_t, Units> expected;
    std::vector<bool> isThere(300);
    std::mt19937 random(1);
    for (int step = 0; step < 20'000; ++step) {
        const auto unit = static_cast<std::uint32_t>(random() % isThere.size());
        if (isThere[unit]) {
            units.remove(unit);
            std::erase(expected[told[unit]], unit);
        } else {
            const std::uint64_t value = random() % 40;
            tell(value, unit);
            expected[value].insert(expected[value].begin(), unit);
        }
        isThere[unit] = !isThere[unit];
        ASSERT_EQ(unitsOf(told[unit]), expected[told[unit]]) << step;
        ASSERT_EQ(units.isShared(unit), isThere[unit] && expected[told[unit]].size() > 1) << step;
    }
}

} // namespace kx
