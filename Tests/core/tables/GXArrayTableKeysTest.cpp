#include "TestArrayTables.h"
#include "doubles/RecordedSystemLog.h"
#include "tables/GXArrayTable.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace kx {
namespace {

TEST(GXArrayTable, KeyedStoreKeepsAscendingOrder) {
    GXArrayTable table;
    storeNumbers(table, {5, 1, 3});
    EXPECT_EQ(numbers(table), (Numbers{1, 3, 5}));
}

TEST(GXArrayTable, KeyedStoreReplacesTheEntryWithTheKey) {
    GXArrayTable table;
    storeNumbers(table, {5, 1, 3});
    const auto replacement = KeyedEntry::numbered(3);
    EXPECT_EQ(table.setObjectForKeyInt(replacement, 3), 1);
    EXPECT_EQ(numbers(table), (Numbers{1, 3, 5}));
    EXPECT_EQ(table.objectAtIndex(1), replacement);
}

TEST(GXArrayTable, KeyedStoreBehindTheLastEntryReturnsOneLessThanItsIndex) {
    GXArrayTable table;
    storeNumbers(table, {1, 3, 5});
    const auto entry = KeyedEntry::numbered(9);
    EXPECT_EQ(table.setObjectForKeyInt(entry, 9), 2);
    EXPECT_EQ(table.objectAtIndex(3), entry);
}

TEST(GXArrayTable, KeyedStoreReturnsWhereTheSearchEnded) {
    GXArrayTable table;
    EXPECT_EQ(table.setObjectForKeyInt(KeyedEntry::numbered(10), 10), 0) << "empty table";
    EXPECT_EQ(table.setObjectForKeyInt(KeyedEntry::numbered(5), 5), 0) << "in front";
    EXPECT_EQ(table.setObjectForKeyInt(KeyedEntry::numbered(20), 20), 1) << "behind";
    EXPECT_EQ(table.setObjectForKeyInt(KeyedEntry::numbered(7), 7), 0) << "behind the first";
    EXPECT_EQ(numbers(table), (Numbers{5, 7, 10, 20}));
}

TEST(GXArrayTable, KeyedStoreLooksAtTheFirstOfTwoMiddleEntriesFirst) {
    GXArrayTable two;
    storeNumbers(two, {1, 5});
    EXPECT_EQ(two.setObjectForKeyInt(KeyedEntry::numbered(3), 3), 1);
    EXPECT_EQ(numbers(two), (Numbers{1, 3, 5}));

    GXArrayTable four;
    storeNumbers(four, {1, 5, 9, 13});
    EXPECT_EQ(four.setObjectForKeyInt(KeyedEntry::numbered(7), 7), 2);
    EXPECT_EQ(numbers(four), (Numbers{1, 5, 7, 9, 13}));
}

TEST(GXArrayTable, KeyedStoreTrustsTheKeyThatItIsGiven) {
    GXArrayTable table;
    storeNumbers(table, {1, 5});
    table.setObjectForKeyInt(KeyedEntry::numbered(9), 3);
    EXPECT_EQ(numbers(table), (Numbers{1, 9, 5}));
}

TEST(GXArrayTable, KeyedLookUpFindsEveryEntryOfEverySize) {
    for (int size = 0; size <= 33; ++size) {
        GXArrayTable table;
        for (int i = 0; i < size; ++i) {
            const int key = (i * 19) % 37 * 2; // scattered, even, all different
            table.setObjectForKeyInt(KeyedEntry::numbered(key), key);
        }
        int found = 0;
        for (int key = -1; key <= 75; ++key) {
            const auto entry = table.objectForKeyInt(key);
            EXPECT_TRUE(entry == nullptr || entry->keyInt() == key) << size << ", " << key;
            found += entry != nullptr ? 1 : 0;
        }
        EXPECT_EQ(found, size);
    }
}

TEST(GXArrayTable, KeyedLookUpByTextOrdersAndFindsByText) {
    GXArrayTable table;
    for (const char* name : {"pear", "apple", "fig"}) {
        table.setObjectForKey(KeyedEntry::named(name), name);
    }
    EXPECT_EQ(table.objectAtIndex(0)->key(), "apple");
    EXPECT_EQ(table.objectAtIndex(2)->key(), "pear");
    EXPECT_EQ(table.objectForKey("fig"), table.objectAtIndex(1));
    EXPECT_EQ(table.valueForKey("fig"), table.objectAtIndex(1));
    EXPECT_EQ(table.objectForKey("grape"), nullptr);
    EXPECT_EQ(table.objectForKey(std::nullopt), nullptr);
}

TEST(GXArrayTable, KeyedLookUpInAnEmptyTableFindsNothing) {
    const GXArrayTable table;
    EXPECT_EQ(table.objectForKey("a"), nullptr);
    EXPECT_EQ(table.objectForKeyInt(1), nullptr);
}

TEST(GXArrayTable, KeyedRemovalRemovesTheEntryFoundAndNothingElse) {
    GXArrayTable table;
    storeNumbers(table, {1, 3, 5});
    table.removeObjectForKeyInt(4);
    EXPECT_EQ(numbers(table), (Numbers{1, 3, 5}));
    table.removeObjectForKeyInt(3);
    EXPECT_EQ(numbers(table), (Numbers{1, 5}));

    GXArrayTable named;
    named.setObjectForKey(KeyedEntry::named("a"), "a");
    named.removeObjectForKey("b");
    EXPECT_EQ(named.count(), 1);
    named.removeObjectForKey("a");
    named.removeObjectForKey("a");
    EXPECT_EQ(named.count(), 0);
}

TEST(GXArrayTable, PlaceholdersSortBeforeEveryKey) {
    GXArrayTable table;
    table.insertObjectAtIndex(KeyedEntry::numbered(4), 3);
    EXPECT_EQ(table.objectForKeyInt(4), table.objectAtIndex(3));
    table.setObjectForKeyInt(KeyedEntry::numbered(-8), -8);
    EXPECT_EQ(table.objectAtIndex(3)->keyInt(), -8);
    EXPECT_EQ(table.objectAtIndex(4)->keyInt(), 4);
}

TEST(GXArrayTable, EntriesWithoutComparisonAreAlwaysAppendedAndNeverFound) {
    const RecordedSystemLog log;
    GXArrayTable table;
    const std::vector<std::shared_ptr<GXStateEntry>> entries = {std::make_shared<GXStateEntry>(),
                                                                std::make_shared<GXStateEntry>(),
                                                                std::make_shared<GXStateEntry>()};
    for (const auto& entry : entries) {
        table.setObjectForKey(entry, "a");
    }
    EXPECT_EQ(*table.tableArray(), entries);
    EXPECT_EQ(table.objectForKey("a"), nullptr);
    EXPECT_TRUE(log.contains("GXStateEntry: override compareKey for subclass"));
}

} // namespace
} // namespace kx
