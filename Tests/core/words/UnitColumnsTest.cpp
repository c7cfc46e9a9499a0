#include "words/UnitColumns.h"

#include "core/conversation/HeardUnitSamples.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kx {

namespace {

class UnitColumnsTest : public ::testing::Test {
protected:
    std::uint32_t hear(const HeardUnit& unit) {
        units.unitDidTell(unit);
        return static_cast<std::uint32_t>(units.size() - 1);
    }
    std::uint32_t hearUnitID(const UnitIDBytes& bytes) {
        HeardUnit unit = heardUnit(static_cast<std::uint32_t>(units.size() + 1));
        setUnitID(unit, bytes);
        return hear(unit);
    }
    std::string searched(std::uint32_t unit, const UnitColumns& columns) const {
        std::string text;
        texts.appendSearched(unit, columns, text);
        return text;
    }
    std::uint64_t key(std::uint32_t unit, UnitColumn column) const {
        return sortingKey(units, unit, column, ranksOfLinks(units));
    }

    AllUnits units{[](std::uint32_t link) { return "eth" + std::to_string(link); }};
    UnitTexts texts{units, [](auto /*time*/) { return std::string("noon"); }};
};

constexpr UnitColumn idColumn = UnitColumn::unitID;

} // namespace

TEST_F(UnitColumnsTest, EveryParameterHasAColumnWithItsName) {
    for (const UnitParameter parameter : allUnitParameters) {
        int columns = 0;
        for (std::size_t i = 0; i < unitColumnCount; ++i) {
            const auto column = static_cast<UnitColumn>(i);
            if (parameterOfColumn(column) == parameter) {
                ++columns;
                EXPECT_EQ(UnitTexts::title(column), nameOfUnitParameter(parameter));
            }
        }
        EXPECT_EQ(columns, 1) << nameOfUnitParameter(parameter);
    }
    EXPECT_EQ(UnitTexts::title(UnitColumn::lastHeard), "Last heard");
}

TEST_F(UnitColumnsTest, EachCellHasTheTextThatRecordsHave) {
    const auto unit = hear(heardUnit(7));
    std::vector<std::string> cells;
    for (std::size_t i = 0; i < unitColumnCount; ++i) {
        cells.push_back(texts.text(unit, static_cast<UnitColumn>(i)));
    }
    EXPECT_EQ(cells,
              (std::vector<std::string>{"4B 58 00 00 00 07", "7", "Answered", "192.0.2.7",
                                        "02:4B:58:00:00:07", "10000", "192.0.2.254",
                                        "02:00:00:00:00:01", "3520", "192.0.2.7", "eth2", "noon"}));
}

TEST_F(UnitColumnsTest, WhatAUnitDoesNotTellIsEmpty) {
    HeardUnit bare;
    bare.record.setValue(UnitParameter::serialNumber, sampleSerial(1));
    const auto unit = hear(bare);
    EXPECT_EQ(texts.text(unit, idColumn), "");
    EXPECT_EQ(texts.text(unit, UnitColumn::internalIPAddress), "");
    EXPECT_EQ(texts.text(unit, UnitColumn::interface), "");
}

TEST_F(UnitColumnsTest, AForeignUnitIDIsShownWithoutWhatActsOnTheScreen) {
    EXPECT_EQ(texts.text(hearUnitID({'A', 'B', 0, 0, 0, 0}), idColumn), "AB");
    EXPECT_EQ(texts.text(hearUnitID({'a', '\n', '\t', 0x1B, 'b', 0}), idColumn),
              "a\uFFFD\uFFFD\uFFFDb");
    EXPECT_EQ(texts.text(hearUnitID({0xFF, 1, 2, 3, 4, 5}), idColumn), "FF0102030405");
}

TEST_F(UnitColumnsTest, AMarkedStateHasASignAndWordsAndASentence) {
    hear(heardUnit(1));
    HeardUnit second = heardUnit(2);
    second.record.setValue(UnitParameter::internalIPAddress, "192.0.2.1");
    hear(second);
    EXPECT_EQ(texts.text(0, UnitColumn::state), "⚠ Address used twice");
    EXPECT_EQ(texts.note(0, UnitColumn::state),
              "The unit 4B 58 00 00 00 02 has the address 192.0.2.1, too.");
    EXPECT_EQ(texts.note(0, UnitColumn::internalIPAddress), texts.note(0, UnitColumn::state));
    EXPECT_EQ(texts.note(0, UnitColumn::serialNumber), "");

    HeardUnit impostor = heardUnit(1);
    impostor.record.setValue(UnitParameter::internalMACAddress, sampleHardwareAddress(9));
    hear(impostor);
    EXPECT_EQ(texts.text(0, UnitColumn::state), "⚠ Serial number used twice");
    EXPECT_EQ(texts.note(0, UnitColumn::serialNumber),
              "Another unit, 02:4B:58:00:00:09, has this serial number, too.");
    EXPECT_NE(texts.note(0, UnitColumn::internalIPAddress), "") << "it is used twice as well";

    units.discoveryDidBegin();
    units.everybodyWasAsked(2);
    units.discoveryDidEnd();
    EXPECT_EQ(texts.text(0, UnitColumn::state), "○ No answer");
    EXPECT_EQ(texts.note(0, UnitColumn::state), "It did not answer the latest Discover.");
    EXPECT_EQ(texts.note(0, UnitColumn::internalIPAddress), "");
}

TEST_F(UnitColumnsTest, AFilterSearchesTheShownTextsAndTheirDigits) {
    const auto unit = hearUnitID({'R', 'a', 'c', 'k', '7', 0});
    EXPECT_EQ(searched(unit, UnitColumns().set()),
              "4b 58 00 00 00 01\n4b5800000001\nrack7\nanswered\n192.0.2.1\n"
              "02:4b:58:00:00:01\n024b58000001\n10000\n192.0.2.254\n"
              "02:00:00:00:00:01\n020000000001\n3520\n192.0.2.1\neth2\n");
    EXPECT_EQ(searched(unit, UnitColumns().set(indexOf(idColumn))), "rack7\n");
    EXPECT_EQ(searched(unit, UnitColumns().set(indexOf(UnitColumn::lastHeard))), "");
}

TEST_F(UnitColumnsTest, UnitIDsAreInOrderAsNumbersThenNamesThenBytes) {
    const std::vector<std::uint32_t> inOrder{
        hearUnitID({0, 0, 0, 0, 0, 9}),     hearUnitID({'1', '0', 0, 0, 0, 0}),
        hearUnitID({0, 0, 0, 0, 0, 200}),   hearUnitID({'9', '9', '9', '9', '9', '9'}),
        hearUnitID({0, 0, 0, 0, 'A', 0}),   hearUnitID({'a', 0, 0, 0, 0, 0}),
        hearUnitID({'A', 'B', 0, 0, 0, 0}), hearUnitID({'b', 0, 0, 0, 0, 0}),
        hearUnitID({0, 0, 0, 0, 0xFF, 0}),  hearUnitID({0xFF, 0, 0, 0, 0, 0}),
    };
    EXPECT_TRUE(std::ranges::is_sorted(inOrder, {},
                                       [this](std::uint32_t unit) { return key(unit, idColumn); }));
    HeardUnit without = heardUnit(50);
    without.unitIDBytes.reset();
    without.record.removeValue(UnitParameter::unitID);
    EXPECT_GT(key(hear(without), idColumn), key(inOrder.back(), idColumn));
}

TEST_F(UnitColumnsTest, InterfacesAreInTheOrderOfTheirNames) {
    for (const std::uint32_t link : {30U, 4U, 0U}) {
        HeardUnit unit = heardUnit(link + 1);
        unit.link = link;
        hear(unit);
    }
    EXPECT_LT(key(0, UnitColumn::interface), key(1, UnitColumn::interface)) << "eth30, eth4";
    EXPECT_LT(key(1, UnitColumn::interface), key(2, UnitColumn::interface));
}

} // namespace kx
