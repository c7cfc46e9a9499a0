#include "TestArrayTables.h"
#include "doubles/RecordedSystemLog.h"
#include "tables/GXArrayTable.h"

#include <gtest/gtest.h>

#include <memory>

namespace kx {
namespace {

TEST(GXArrayTable, ArrayOfDictionariesHoldsTheEntriesOwnInOrder) {
    GXArrayTable table;
    storeNumbers(table, {1});
    table.insertObjectAtIndex(KeyedEntry::numbered(2), 3);
    EXPECT_EQ(table.arrayOfDictionaries(),
              (DictionaryArray{table.objectAtIndex(0)->nodeDictionary(),
                               table.objectAtIndex(3)->nodeDictionary()}));
}

TEST(GXArrayTable, LoadedArrayMakesEntriesOfTheClassInOrder) {
    GXArrayTable source;
    storeNumbers(source, {1, 2});
    CountingTable table;
    storeNumbers(table, {9});
    EXPECT_TRUE(table.loadArrayOfDictionariesForEntryClass(source.arrayOfDictionaries(),
                                                           entryOfClass<KeyedEntry>));
    EXPECT_EQ(numbers(table), (Numbers{1, 2}));
    EXPECT_EQ(table.added, 2);
    EXPECT_NE(table.objectAtIndex(0)->nodeDictionary(), source.objectAtIndex(0)->nodeDictionary());
}

TEST(GXArrayTable, LoadedArrayLeavesOutWhatTheClassRefuses) {
    const auto onlyNumbered =
        [](const PropertyDictionary& dictionary) -> std::shared_ptr<GXStateEntry> {
        return dictionary.contains("number") ? entryOfClass<KeyedEntry>(dictionary) : nullptr;
    };
    GXArrayTable source;
    source.addObject(KeyedEntry::named("a"));
    source.addObject(KeyedEntry::numbered(4));
    GXArrayTable table;
    EXPECT_TRUE(
        table.loadArrayOfDictionariesForEntryClass(source.arrayOfDictionaries(), onlyNumbered));
    EXPECT_EQ(numbers(table), (Numbers{4}));
}

TEST(GXArrayTable, LoadingNoArrayEmptiesTheTableAndFails) {
    GXArrayTable table;
    storeNumbers(table, {1});
    EXPECT_FALSE(table.loadArrayOfDictionariesForEntryClass(std::nullopt,
                                                            GXStateEntry::entryFromDictionary));
    EXPECT_EQ(table.count(), 0);
}

TEST(GXArrayTable, TableDictionaryMapsTheEntriesByTheirKeys) {
    GXArrayTable table;
    const auto entry = KeyedEntry::named("a");
    table.addObject(entry);
    table.insertObjectAtIndex(KeyedEntry::numbered(1),
                              5); // without a text key, behind placeholders
    EXPECT_EQ(table.tableDictionary(), (EntryDictionary{{"a", entry}}));
    EXPECT_EQ(table.dictionaryOfDictionaries(),
              (DictionaryOfDictionaries{{"a", entry->nodeDictionary()}}));
}

TEST(GXArrayTable, OfTwoEntriesWithOneKeyTheLastIsInTheDictionaries) {
    GXArrayTable table;
    table.addObject(KeyedEntry::named("a"));
    const auto last = KeyedEntry::named("a");
    table.addObject(last);
    EXPECT_EQ(table.tableDictionary(), (EntryDictionary{{"a", last}}));
    EXPECT_EQ(table.dictionaryOfDictionaries(),
              (DictionaryOfDictionaries{{"a", last->nodeDictionary()}}));
}

TEST(GXArrayTable, OfTwoEntriesOfADictionaryWithOneKeyTheLastIsKept) {
    GXArrayTable table;
    const auto last = KeyedEntry::named("a");
    table.setTableDictionary({{"x", KeyedEntry::named("a")}, {"y", last}});
    EXPECT_EQ(*table.tableArray(), EntryArray{last});
}

TEST(GXArrayTable, SetTableDictionarySortsTheEntriesByTheirOwnKeys) {
    GXArrayTable table;
    storeNumbers(table, {9});
    const auto first = KeyedEntry::named("a");
    const auto second = KeyedEntry::named("b");
    table.setTableDictionary({{"x", second}, {"y", first}});
    EXPECT_EQ(*table.tableArray(), (EntryArray{first, second}));
}

// Dictionaries under other keys than the entries' own, and in another order.
DictionaryOfDictionaries foreignKeys() {
    return {{"1", KeyedEntry::named("b")->nodeDictionary()},
            {"2", KeyedEntry::named("a")->nodeDictionary()}};
}

TEST(GXArrayTable, LoadedDictionaryStoresTheEntriesUnderTheirOwnKeys) {
    GXArrayTable table;
    storeNumbers(table, {9});
    EXPECT_TRUE(
        table.loadDictionaryOfDictionariesForEntryClass(foreignKeys(), entryOfClass<KeyedEntry>));
    ASSERT_EQ(table.count(), 2);
    EXPECT_EQ(table.objectAtIndex(0)->key(), "a");
    EXPECT_EQ(table.objectForKey("b"), table.objectAtIndex(1));
}

TEST(GXArrayTable, LoadedDictionaryOfPlainEntriesAppendsThem) {
    const RecordedSystemLog log;
    GXArrayTable table;
    EXPECT_TRUE(table.loadDictionaryOfDictionariesForEntryClass(foreignKeys(),
                                                                GXStateEntry::entryFromDictionary));
    EXPECT_EQ(table.description(), "({name = b}, {name = a})");
    EXPECT_TRUE(log.contains("GXStateEntry: override key for subclass"));
}

TEST(GXArrayTable, LoadingFillsTheArrayThatIsThere) {
    GXArrayTable table;
    const auto array = table.tableArray();
    EXPECT_TRUE(table.loadArrayOfDictionariesForEntryClass(
        DictionaryArray{KeyedEntry::named("a")->nodeDictionary()}, entryOfClass<KeyedEntry>));
    EXPECT_EQ(array->size(), 1U);
    EXPECT_TRUE(
        table.loadDictionaryOfDictionariesForEntryClass(foreignKeys(), entryOfClass<KeyedEntry>));
    EXPECT_EQ(array->size(), 2U);
    table.setTableDictionary({});
    EXPECT_TRUE(array->empty());
    EXPECT_EQ(table.tableArray(), array);
}

TEST(GXArrayTable, LoadingNoDictionaryEmptiesTheTableAndFails) {
    GXArrayTable table;
    storeNumbers(table, {1});
    EXPECT_FALSE(
        table.loadDictionaryOfDictionariesForEntryClass(std::nullopt, entryOfClass<KeyedEntry>));
    EXPECT_EQ(table.count(), 0);
}

TEST(GXArrayTable, SetArrayIsSharedWithTheCaller) {
    GXArrayTable table;
    const auto array = std::make_shared<EntryArray>();
    table.setTableArray(array);
    array->push_back(KeyedEntry::numbered(1));
    EXPECT_EQ(table.tableArray(), array);
    EXPECT_EQ(table.count(), 1);
    table.setTableArray(nullptr);
    EXPECT_EQ(table.count(), 0);
    EXPECT_EQ(array->size(), 1U);
}

TEST(GXArrayTable, CopySharesTheArrayAndHasNoDelegate) {
    GXTableDelegate delegate;
    CountingTable table;
    table.setDelegate(&delegate);
    const auto copy = table.copy();
    ASSERT_NE(dynamic_cast<CountingTable*>(copy.get()), nullptr);
    EXPECT_EQ(copy->delegate(), nullptr);
    EXPECT_EQ(copy->tableArray(), table.tableArray());

    storeNumbers(*copy, {1});
    EXPECT_EQ(numbers(table), (Numbers{1}));
    table.removeAllObjects();
    EXPECT_EQ(copy->count(), 0);
    EXPECT_EQ(GXArrayTable().copy()->count(), 0);
}

TEST(GXArrayTable, TravelsToAnotherProcessAsItself) {
    GXArrayTable table;
    EXPECT_EQ(&table.replacementObjectForPortCoder(), &table);
}

TEST(GXArrayTable, ReadsBackWhatItEncoded) {
    GXArrayTable table;
    storeNumbers(table, {1});
    table.insertObjectAtIndex(KeyedEntry::named("n"), 3);
    PropertyListEncoder encoder;
    ASSERT_TRUE(table.encodeWithCoder(encoder));

    PropertyListDecoder decoder(encoder.bytes());
    GXArrayTable read;
    ASSERT_TRUE(read.initWithCoder(decoder, entryOfClass<KeyedEntry>));
    EXPECT_EQ(read.description(), "({number = 1}, *NULL*, *NULL*, {name = n})");
    EXPECT_NE(dynamic_cast<KeyedEntry*>(read.objectAtIndex(0).get()), nullptr);
    EXPECT_EQ(read.delegate(), nullptr);
}

TEST(GXArrayTable, EncodesNothingWhenItsEntriesAreNestedTooDeep) {
    GXArrayTable table;
    storeNumbers(table, {1});
    table.addObject(KeyedEntry::nestedTooDeep("deep"));
    PropertyListEncoder encoder;
    EXPECT_FALSE(table.encodeWithCoder(encoder));
    EXPECT_TRUE(encoder.bytes().empty());
}

TEST(GXArrayTable, KeepsItsArrayWhenTheBytesAreNoArrayOfEntries) {
    GXArrayTable table;
    storeNumbers(table, {1});
    const PropertyListValue foreign[] = {"text", 1, PropertyDictionary(), PropertyList{"*null*"},
                                         PropertyList{PropertyDictionary(), 4}};
    for (const auto& object : foreign) {
        PropertyListEncoder encoder;
        ASSERT_TRUE(encoder.encodeObject(object));
        PropertyListDecoder decoder(encoder.bytes());
        EXPECT_FALSE(table.initWithCoder(decoder, entryOfClass<KeyedEntry>))
            << object.description();
    }
    PropertyListDecoder nothing({});
    EXPECT_FALSE(table.initWithCoder(nothing, entryOfClass<KeyedEntry>));
    EXPECT_EQ(numbers(table), (Numbers{1}));
}

} // namespace
} // namespace kx
