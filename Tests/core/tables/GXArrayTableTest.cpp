#include "tables/GXArrayTable.h"

#include "TestArrayTables.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <memory>

namespace kx {
namespace {

constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t highest = std::numeric_limits<std::int32_t>::max();

TEST(GXArrayTable, StartsEmptyWithoutDelegate) {
    const GXArrayTable table;
    EXPECT_EQ(table.count(), 0);
    EXPECT_EQ(table.delegate(), nullptr);
    EXPECT_EQ(table.objectAtIndex(0), nullptr);
    EXPECT_EQ(table.description(), "()");
}

TEST(GXArrayTable, KeepsTheDelegateThatItWasGiven) {
    GXTableDelegate delegate;
    GXArrayTable table;
    table.setDelegate(&delegate);
    EXPECT_EQ(table.delegate(), &delegate);
    table.setDelegate(nullptr);
    EXPECT_EQ(table.delegate(), nullptr);
}

TEST(GXArrayTable, AddedEntryReportsItsIndex) {
    GXArrayTable table;
    EXPECT_EQ(table.addObject(KeyedEntry::numbered(8)), 0);
    EXPECT_EQ(table.addObject(KeyedEntry::numbered(3)), 1);
    EXPECT_EQ(numbers(table), (Numbers{8, 3}));
}

TEST(GXArrayTable, DescribesItsElementsInOrder) {
    GXArrayTable table;
    table.insertObjectAtIndex(KeyedEntry::numbered(7), 1);
    EXPECT_EQ(table.description(), "(*NULL*, {number = 7})");
}

TEST(GXArrayTable, IndexOutOfRangeReadsAsNull) {
    GXArrayTable table;
    const auto entry = KeyedEntry::numbered(1);
    table.addObject(entry);
    EXPECT_EQ(table.objectAtIndex(0), entry);
    for (const std::int32_t index : {1, 2, highest, -1, lowest}) {
        EXPECT_EQ(table.objectAtIndex(index), nullptr) << index;
    }
}

TEST(GXArrayTable, RemovalOutOfRangeIsRefused) {
    GXArrayTable table;
    storeNumbers(table, {1, 2, 3});
    for (const std::int32_t index : {3, highest, -1, lowest}) {
        EXPECT_FALSE(table.removeObjectAtIndex(index)) << index;
    }
    EXPECT_TRUE(table.removeObjectAtIndex(1));
    EXPECT_EQ(numbers(table), (Numbers{1, 3}));
}

TEST(GXArrayTable, RemovesEveryOccurrenceOfAnEntry) {
    GXArrayTable table;
    const auto twice = KeyedEntry::numbered(1);
    table.addObject(twice);
    table.addObject(KeyedEntry::numbered(2));
    table.addObject(twice);
    table.removeObject(table.tableArray()->front());
    EXPECT_EQ(numbers(table), (Numbers{2}));
}

TEST(GXArrayTable, FindsTheFirstIndexOfAnEntry) {
    GXArrayTable table;
    const auto entry = KeyedEntry::numbered(1);
    table.insertObjectAtIndex(entry, 2);
    table.addObject(entry);
    EXPECT_EQ(table.indexOfObject(entry), 2);
    EXPECT_EQ(table.indexOfObject(KeyedEntry::numbered(1)), std::nullopt) << "another entry";
}

TEST(GXArrayTable, PlaceholdersAreNeitherFoundNorRemovedAsEntries) {
    GXArrayTable table;
    table.insertObjectAtIndex(KeyedEntry::numbered(1), 2);
    EXPECT_EQ(table.indexOfObject(nullptr), std::nullopt);
    table.removeObject(nullptr);
    EXPECT_EQ(table.count(), 3);
}

TEST(GXArrayTable, RemovesAllEntries) {
    GXArrayTable table;
    storeNumbers(table, {1, 2});
    table.removeAllObjects();
    EXPECT_EQ(table.count(), 0);
}

TEST(GXArrayTable, InsertionBelowTheCountMovesTheRestUp) {
    GXArrayTable table;
    storeNumbers(table, {1, 3});
    EXPECT_TRUE(table.insertObjectAtIndex(KeyedEntry::numbered(2), 1));
    EXPECT_TRUE(table.insertObjectAtIndex(KeyedEntry::numbered(0), 0));
    EXPECT_EQ(numbers(table), (Numbers{0, 1, 2, 3}));
}

TEST(GXArrayTable, InsertionAtTheCountAppends) {
    GXArrayTable table;
    storeNumbers(table, {1});
    EXPECT_TRUE(table.insertObjectAtIndex(KeyedEntry::numbered(2), 1));
    EXPECT_EQ(numbers(table), (Numbers{1, 2}));
}

TEST(GXArrayTable, InsertionBeyondTheEndFillsWithPlaceholders) {
    GXArrayTable table;
    const auto entry = KeyedEntry::numbered(1);
    EXPECT_TRUE(table.insertObjectAtIndex(entry, 3));
    EXPECT_EQ(table.count(), 4);
    for (const int index : {0, 1, 2}) {
        EXPECT_EQ(table.objectAtIndex(index), nullptr) << index;
    }
    EXPECT_EQ(table.objectAtIndex(3), entry);
}

TEST(GXArrayTable, InsertionLeavesAtMost99Placeholders) {
    GXArrayTable table;
    EXPECT_FALSE(table.insertObjectAtIndex(KeyedEntry::numbered(1), 100));
    EXPECT_EQ(table.count(), 0);
    EXPECT_TRUE(table.insertObjectAtIndex(KeyedEntry::numbered(1), 99));
    EXPECT_EQ(table.count(), 100);
    EXPECT_FALSE(table.insertObjectAtIndex(KeyedEntry::numbered(1), 200));
    EXPECT_TRUE(table.insertObjectAtIndex(KeyedEntry::numbered(1), 199));
    EXPECT_EQ(table.count(), 200);
}

TEST(GXArrayTable, InsertionAndReplacementAtImpossibleIndexesAreRefused) {
    GXArrayTable table;
    storeNumbers(table, {1, 2});
    for (const std::int32_t index : {-1, lowest, highest}) {
        EXPECT_FALSE(table.insertObjectAtIndex(KeyedEntry::numbered(9), index)) << index;
        EXPECT_FALSE(table.replaceObjectAtIndexWithObject(index, KeyedEntry::numbered(9))) << index;
    }
    EXPECT_EQ(numbers(table), (Numbers{1, 2}));
}

TEST(GXArrayTable, ReplacementBelowTheCountReplaces) {
    GXArrayTable table;
    storeNumbers(table, {1, 2, 3});
    EXPECT_TRUE(table.replaceObjectAtIndexWithObject(1, KeyedEntry::numbered(7)));
    EXPECT_EQ(numbers(table), (Numbers{1, 7, 3}));
}

TEST(GXArrayTable, ReplacementBeyondTheEndFillsWithinTheSameLimit) {
    GXArrayTable table;
    EXPECT_FALSE(table.replaceObjectAtIndexWithObject(100, KeyedEntry::numbered(1)));
    EXPECT_EQ(table.count(), 0);
    EXPECT_TRUE(table.replaceObjectAtIndexWithObject(99, KeyedEntry::numbered(1)));
    EXPECT_EQ(table.count(), 100);
    EXPECT_TRUE(table.replaceObjectAtIndexWithObject(50, KeyedEntry::numbered(2)));
    EXPECT_EQ(table.objectAtIndex(50)->keyInt(), 2);
    EXPECT_EQ(table.count(), 100);
}

TEST(GXArrayTable, OnlyReplacementGrowsThroughTheTablesOwnAddition) {
    CountingTable table;
    table.insertObjectAtIndex(KeyedEntry::numbered(1), 2);
    EXPECT_EQ(table.added, 0);
    table.replaceObjectAtIndexWithObject(5, KeyedEntry::numbered(1));
    EXPECT_EQ(table.added, 1);
    table.replaceObjectAtIndexWithObject(0, KeyedEntry::numbered(1));
    EXPECT_EQ(table.added, 1);
}

} // namespace
} // namespace kx
