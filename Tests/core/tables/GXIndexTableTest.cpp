#include "tables/GXIndexTable.h"

#include "TestEntries.h"
#include "doubles/RecordedSystemLog.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace kx {
namespace {

// A subclass that shows which class a copy has.
class OtherTable final : public GXIndexTable {
protected:
    std::shared_ptr<GXIndexTable> newInstance() const override {
        return std::make_shared<OtherTable>();
    }
};

void setRows(GXIndexTable& table, std::initializer_list<int> rows) {
    for (const int row : rows) {
        table.setObjectAtIndex(KeyedEntry::numbered(row), row);
    }
}

TEST(GXIndexTable, StartsEmptyWithoutDelegate) {
    const GXIndexTable table;
    EXPECT_EQ(table.count(), 0);
    EXPECT_EQ(table.delegate(), nullptr);
    EXPECT_EQ(table.objectAtIndex(0), nullptr);
    EXPECT_EQ(table.description(), "Table = ");
}

TEST(GXIndexTable, KeepsTheDelegateThatItWasGiven) {
    GXTableDelegate delegate;
    GXIndexTable table;
    table.setDelegate(&delegate);
    EXPECT_EQ(table.delegate(), &delegate);
}

TEST(GXIndexTable, CountIsOneMoreThanTheHighestRow) {
    GXIndexTable table;
    setRows(table, {0, 7});
    EXPECT_EQ(table.count(), 8);
    setRows(table, {3});
    EXPECT_EQ(table.count(), 8);
    EXPECT_EQ(table.numberOfRowsInTableView(), 8);
}

TEST(GXIndexTable, RemovingTheLastRowGoesDownToTheHighestRowLeft) {
    GXIndexTable table;
    setRows(table, {0, 7});
    table.removeObjectAtIndex(7);
    EXPECT_EQ(table.count(), 1);
    table.removeObjectAtIndex(0);
    EXPECT_EQ(table.count(), 0);
}

TEST(GXIndexTable, RemovingAMiddleRowLeavesTheCount) {
    GXIndexTable table;
    setRows(table, {0, 3, 7});
    table.removeObjectAtIndex(3);
    EXPECT_EQ(table.count(), 8);
    EXPECT_EQ(table.objectAtIndex(3), nullptr);
    table.removeObjectAtIndex(20);
    EXPECT_EQ(table.count(), 8);
}

TEST(GXIndexTable, RemovingAnyOtherRowOfACopyLeavesItsOwnCount) {
    GXIndexTable table;
    setRows(table, {3, 5});
    const auto copy = table.copy();
    copy->removeObjectAtIndex(3);
    EXPECT_EQ(copy->count(), 0);
    setRows(*copy, {0});
    copy->removeObjectAtIndex(0);
    EXPECT_EQ(copy->count(), 6) << "the last row of the copy: recomputed from what is left";
}

TEST(GXIndexTable, StoringReplacesTheEntryOfTheRow) {
    GXIndexTable table;
    setRows(table, {2});
    const auto replacement = KeyedEntry::numbered(9);
    table.setObjectAtIndex(replacement, 2);
    EXPECT_EQ(table.objectAtIndex(2), replacement);
    EXPECT_EQ(table.count(), 3);
    table.setObjectAtIndex(nullptr, 2);
    EXPECT_EQ(table.objectAtIndex(2), replacement);
}

TEST(GXIndexTable, HolesAndRowsOutOfRangeReadAsNull) {
    GXIndexTable table;
    setRows(table, {2});
    for (const std::int32_t index : {0, 1, 3, -1, std::numeric_limits<std::int32_t>::max()}) {
        EXPECT_EQ(table.objectAtIndex(index), nullptr) << index;
    }
}

TEST(GXIndexTable, NegativeRowLiesAboveAllOthers) {
    GXIndexTable table;
    setRows(table, {4, -3});
    EXPECT_EQ(table.count(), -2);
    EXPECT_EQ(table.objectAtIndex(-3)->keyInt(), -3);
    table.removeObjectAtIndex(-3);
    EXPECT_EQ(table.count(), 5);
}

TEST(GXIndexTable, RemovingAllRowsResetsTheCount) {
    GXIndexTable table;
    setRows(table, {0, 7});
    table.removeAllObjects();
    EXPECT_EQ(table.count(), 0);
    EXPECT_TRUE(table.tableDictionary()->empty());
}

TEST(GXIndexTable, RemovingAllRowsReachesTheCopiesToo) {
    GXIndexTable table;
    table.setObjectAtIndex(KeyedEntry::named("a"), 4);
    const auto copy = table.copy();
    table.removeAllObjects();
    EXPECT_EQ(copy->objectAtIndex(4), nullptr);
    EXPECT_EQ(copy->tableDictionary(), table.tableDictionary());
}

TEST(GXIndexTable, SetDictionaryIsSharedAndLeavesTheCount) {
    GXIndexTable table;
    setRows(table, {4});
    const auto rows = std::make_shared<EntryRows>();
    (*rows)[9] = KeyedEntry::numbered(9);
    table.setTableDictionary(rows);
    EXPECT_EQ(table.tableDictionary(), rows);
    EXPECT_EQ(table.count(), 5);
    EXPECT_EQ(table.objectAtIndex(9)->keyInt(), 9);
    table.setTableDictionary(nullptr);
    EXPECT_EQ(table.objectAtIndex(9), nullptr);
    EXPECT_EQ(table.count(), 5);
}

TEST(GXIndexTable, DescribesEveryEntryFollowedByASemicolon) {
    GXIndexTable table;
    setRows(table, {12, 3});
    EXPECT_EQ(table.description(), "Table = {number = 3};{number = 12};");
}

TEST(GXIndexTable, UpdateHookIsAbstract) {
    const RecordedSystemLog log;
    GXIndexTable table;
    table.updateTable();
    EXPECT_EQ(log.lines(),
              std::vector<std::string>{"GXIndexTable updateTable: override for subclass"});
}

TEST(GXIndexTable, CopySharesTheRowsAndCountsNoneUntilRowsAreSet) {
    GXTableDelegate delegate;
    OtherTable table;
    table.setDelegate(&delegate);
    setRows(table, {4});
    const auto copy = table.copy();
    ASSERT_NE(dynamic_cast<OtherTable*>(copy.get()), nullptr);
    EXPECT_EQ(copy->delegate(), nullptr);
    EXPECT_EQ(copy->count(), 0);
    EXPECT_EQ(copy->objectAtIndex(4), table.objectAtIndex(4));

    setRows(*copy, {1});
    EXPECT_EQ(copy->count(), 2);
    EXPECT_EQ(table.objectAtIndex(1)->keyInt(), 1);
    EXPECT_EQ(GXIndexTable().copy()->count(), 0);
}

TEST(GXIndexTable, TravelsToAnotherProcessAsItself) {
    GXIndexTable table;
    EXPECT_EQ(&table.replacementObjectForPortCoder(), &table);
}

TEST(GXIndexTable, ReadsBackTheRowsThatItEncodedAndCountsNone) {
    GXIndexTable table;
    setRows(table, {0, 100, 20});
    PropertyListEncoder encoder;
    ASSERT_TRUE(table.encodeWithCoder(encoder));

    PropertyListDecoder decoder(encoder.bytes());
    GXIndexTable read;
    setRows(read, {5});
    ASSERT_TRUE(read.initWithCoder(decoder, entryOfClass<KeyedEntry>));
    EXPECT_EQ(read.count(), 0);
    EXPECT_EQ(read.description(), table.description());
    EXPECT_EQ(read.objectAtIndex(20)->keyInt(), 20);
}

TEST(GXIndexTable, EncodesNothingWhenItsEntriesAreNestedTooDeep) {
    GXIndexTable table;
    setRows(table, {0});
    table.setObjectAtIndex(KeyedEntry::nestedTooDeep("deep"), 1);
    PropertyListEncoder encoder;
    EXPECT_FALSE(table.encodeWithCoder(encoder));
    EXPECT_TRUE(encoder.bytes().empty());
}

TEST(GXIndexTable, KeepsItsRowsWhenTheBytesAreNoRows) {
    GXIndexTable table;
    setRows(table, {1});
    const PropertyDictionary empty;
    const PropertyListValue foreign[] = {"text",
                                         PropertyList(),
                                         PropertyDictionary{{"0", "text"}},
                                         PropertyDictionary{{"", empty}},
                                         PropertyDictionary{{"one", empty}},
                                         PropertyDictionary{{"01", empty}},
                                         PropertyDictionary{{"1 ", empty}},
                                         PropertyDictionary{{"2147483648", empty}}};
    for (const auto& object : foreign) {
        PropertyListEncoder encoder;
        ASSERT_TRUE(encoder.encodeObject(object));
        PropertyListDecoder decoder(encoder.bytes());
        EXPECT_FALSE(table.initWithCoder(decoder, entryOfClass<KeyedEntry>))
            << object.description();
    }
    EXPECT_EQ(table.count(), 2);
    EXPECT_EQ(table.description(), "Table = {number = 1};");
}

TEST(GXIndexTableView, CellShowsTheEntrysValueAndHolesAreEmpty) {
    GXIndexTable table;
    setRows(table, {1});
    EXPECT_EQ(table.tableViewObjectValueForTableColumnRow({"number"}, 1), PropertyListValue(1));
    EXPECT_EQ(table.tableViewObjectValueForTableColumnRow({"name"}, 1), std::nullopt);
    EXPECT_EQ(table.tableViewObjectValueForTableColumnRow({"number"}, 0), std::nullopt);
}

TEST(GXIndexTableView, ACountBelowZeroIsNoRows) {
    GXIndexTable table;
    setRows(table, {4, -3});
    ASSERT_EQ(table.count(), -2);
    EXPECT_EQ(table.numberOfRowsInTableView(), 0);
    table.removeObjectAtIndex(-3);
    EXPECT_EQ(table.numberOfRowsInTableView(), 5);
}

TEST(GXIndexTableView, UnknownColumnIsAnException) {
    GXIndexTable table;
    setRows(table, {1});
    EXPECT_THROW(table.tableViewObjectValueForTableColumnRow({"colour"}, 1), UndefinedKeyFailure);
}

} // namespace
} // namespace kx
