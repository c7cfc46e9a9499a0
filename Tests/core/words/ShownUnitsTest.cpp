#include "words/ShownUnits.h"

#include "core/conversation/HeardUnitSamples.h"

#include <gtest/gtest.h>

#include <random>

namespace kx {

namespace {

class ShownUnitsTest : public ::testing::Test {
protected:
    void hear(std::uint32_t number) { units.unitDidTell(heardUnit(number)); }
    void hearUpTo(std::uint32_t number) {
        for (std::uint32_t each = 1; each <= number; ++each) {
            hear(each);
        }
    }
    void filter(std::string_view text) { shown.setFilter(text, UnitColumns().set()); }

    bool work() {
        return shown.work([] { return false; });
    }

    // The last bytes of the serial numbers, in the order of the list.
    std::vector<std::uint64_t> numbers() {
        while (shown.hasWork()) {
            work();
        }
        std::vector<std::uint64_t> all;
        for (const std::uint32_t unit : shown.list()) {
            all.push_back(units.row(unit).number(UnitParameter::serialNumber) & 0xFFFFU);
        }
        return all;
    }

    AllUnits units{[](std::uint32_t link) { return "eth" + std::to_string(link); }};
    UnitTexts texts{units, [](auto /*time*/) { return std::string("noon"); }};
    ShownUnits shown{units, texts};
};

using Numbers = std::vector<std::uint64_t>;
using Order = ShownUnits::Order;

} // namespace

TEST_F(ShownUnitsTest, UnitsStandInTheOrderOfTheirSerialNumbers) {
    for (const std::uint32_t number : {3U, 1U, 2U}) {
        hear(number);
    }
    EXPECT_EQ(numbers(), (Numbers{1, 2, 3}));
    EXPECT_FALSE(shown.hasWork());
    hear(0);
    EXPECT_TRUE(shown.hasWork());
    EXPECT_EQ(numbers(), (Numbers{0, 1, 2, 3}));
}

TEST_F(ShownUnitsTest, UnitsThatAreHeardTogetherComeInAtTheirPlaces) {
    hear(5);
    EXPECT_EQ(numbers(), Numbers{5});
    for (const std::uint32_t number : {9U, 7U, 3U, 8U}) {
        hear(number);
    }
    EXPECT_EQ(numbers(), (Numbers{3, 5, 7, 8, 9}));
}

TEST_F(ShownUnitsTest, AddressesAreSortedAsSuchInEitherDirection) {
    for (const std::uint32_t number : {100U, 9U, 10U}) {
        hear(number);
    }
    HeardUnit without = heardUnit(4);
    without.record.removeValue(UnitParameter::internalIPAddress);
    units.unitDidTell(without);
    shown.setOrder({UnitColumn::internalIPAddress, false});
    EXPECT_EQ(numbers(), (Numbers{9, 10, 100, 4}));
    shown.setOrder({UnitColumn::internalIPAddress, true});
    EXPECT_EQ(numbers(), (Numbers{100, 10, 9, 4})) << "an absent value stands last";
}

TEST_F(ShownUnitsTest, EqualCellsAreInTheOrderOfSerialNumbers) {
    for (const std::uint32_t number : {3U, 1U, 2U}) {
        hear(number);
    }
    shown.setOrder({UnitColumn::destinationIPAddress, true});
    EXPECT_EQ(numbers(), (Numbers{1, 2, 3}));
}

TEST_F(ShownUnitsTest, AFilterLetsThoseUnitsPassThatContainItsText) {
    hearUpTo(20);
    filter("4b 58 00 00 00 0a");
    EXPECT_EQ(numbers(), (Numbers{10}));
    filter(" 4B580000000A ");
    EXPECT_EQ(numbers(), (Numbers{10}));
    filter("192.0.2.1");
    EXPECT_EQ(numbers(), (Numbers{1, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19}));
    filter("ANSWERED");
    EXPECT_EQ(numbers().size(), 20U);
    filter("");
    EXPECT_FALSE(shown.hasFilter());
    EXPECT_EQ(numbers().size(), 20U);
}

TEST_F(ShownUnitsTest, HiddenColumnsAreNotSearched) {
    hear(1);
    filter("eth2");
    EXPECT_EQ(numbers(), (Numbers{1}));
    shown.setFilter("eth2", UnitColumns().set().reset(indexOf(UnitColumn::interface)));
    EXPECT_EQ(numbers(), Numbers{});
}

TEST_F(ShownUnitsTest, AUnitThatChangesMovesAppearsAndGoes) {
    hearUpTo(3);
    shown.setOrder({UnitColumn::devicePortNumber, false});
    filter("10000");
    EXPECT_EQ(numbers(), (Numbers{1, 2, 3}));
    HeardUnit changed = heardUnit(1);
    changed.record.setValue(UnitParameter::destinationPortNumber, "10000");
    changed.record.setValue(UnitParameter::devicePortNumber, "65535");
    units.unitDidTell(changed);
    EXPECT_EQ(numbers(), (Numbers{2, 3, 1}));
    changed.record.setValue(UnitParameter::destinationPortNumber, "3520");
    units.unitDidTell(changed);
    EXPECT_EQ(numbers(), (Numbers{2, 3}));
    hear(1);
    EXPECT_EQ(numbers(), (Numbers{1, 2, 3}));
}

TEST_F(ShownUnitsTest, AUnitThatIsHeardMovesInTheOrderOfAnswers) {
    hearUpTo(3);
    shown.setOrder({UnitColumn::lastHeard, true});
    EXPECT_EQ(numbers(), (Numbers{3, 2, 1}));
    hear(2);
    EXPECT_EQ(numbers(), (Numbers{2, 3, 1}));
}

TEST_F(ShownUnitsTest, AStateThatAnotherUnitChangesCountsToo) {
    hearUpTo(3);
    filter("used twice");
    EXPECT_EQ(numbers(), Numbers{});
    HeardUnit third = heardUnit(3);
    third.record.setValue(UnitParameter::internalIPAddress, "192.0.2.1");
    units.unitDidTell(third);
    EXPECT_EQ(numbers(), (Numbers{1, 3})) << "unit 1 was not heard, and has company";
    filter("");
    shown.setOrder({UnitColumn::state, false});
    EXPECT_EQ(numbers(), (Numbers{1, 3, 2}));
    units.discoveryDidBegin();
    units.everybodyWasAsked(2);
    hear(3);
    units.discoveryDidEnd();
    EXPECT_EQ(numbers(), (Numbers{1, 2, 3})) << "two are silent";
}

TEST_F(ShownUnitsTest, TheListStaysWholeWhileTheWorkIsCutIntoSlices) {
    hearUpTo(2'000);
    ASSERT_EQ(numbers().size(), 2'000U);
    shown.setOrder({UnitColumn::lastHeard, true});
    int slices = 0;
    while (!shown.work([] { return true; })) {
        EXPECT_EQ(shown.list().size(), 2'000U);
        EXPECT_EQ(shown.list().front(), 0U);
        if (++slices == 3) {
            hear(1); // looked at already
            hear(2'001);
        }
    }
    EXPECT_GT(slices, 3);
    EXPECT_EQ(shown.list().size(), 2'001U);
    EXPECT_TRUE(shown.hasWork()) << "unit 1 was heard meanwhile";
    EXPECT_EQ(numbers()[0], 2'001U);
    EXPECT_EQ(numbers()[1], 1U);
}

TEST_F(ShownUnitsTest, ANewFilterTakesThePlaceOfTheOneUnderWay) {
    hearUpTo(2'000);
    filter("4b");
    EXPECT_FALSE(shown.work([] { return true; }));
    filter("4b5800000123");
    EXPECT_EQ(numbers(), (Numbers{0x123}));
}

TEST_F(ShownUnitsTest, WhatIsPutInOneByOneIsWhatASearchFinds) {
    std::mt19937 source(1); // NOLINT(cert-msc51-cpp): the same units each time
    const auto upTo = [&source](unsigned long end) {
        return static_cast<std::uint32_t>(source() % end);
    };
    shown.setOrder({UnitColumn::internalIPAddress, true});
    filter("2.1");
    for (int round = 0; round < 200; ++round) {
        for (int i = 0; i < 20; ++i) {
            HeardUnit unit = heardUnit(upTo(300));
            unit.record.setValue(UnitParameter::internalIPAddress,
                                 stringForIP(0xC0000200U + upTo(200)));
            units.unitDidTell(unit);
        }
        const auto grown = numbers();
        ShownUnits fresh(units, texts);
        fresh.setOrder({UnitColumn::internalIPAddress, true});
        fresh.setFilter("2.1", UnitColumns().set());
        fresh.work([] { return false; });
        ASSERT_EQ(shown.list(), fresh.list()) << round;
    }
}

TEST_F(ShownUnitsTest, AfterAClearTheListIsEmptyAndBeginsAnew) {
    hearUpTo(2'000);
    filter("4b");
    EXPECT_FALSE(shown.work([] { return true; }));
    units.clear();
    EXPECT_EQ(numbers(), Numbers{});
    hear(5);
    EXPECT_EQ(numbers(), (Numbers{5}));
}

TEST_F(ShownUnitsTest, ManyUnitsAtOnceAreSearchedInSlices) {
    work();
    hearUpTo(10'000);
    EXPECT_FALSE(shown.work([] { return true; }));
    EXPECT_EQ(numbers().size(), 10'000U);
}

} // namespace kx
