#include "tables/GXDictionaryTable.h"

#include "TestEntries.h"
#include "doubles/RecordedSystemLog.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace kx {
namespace {

// Has its rows in descending key order, through the cache that the base class drops.
class DescendingTable final : public GXDictionaryTable {
public:
    bool hasSortedKeys() const { return sortedKeys.has_value(); }

    void sortKeys() {
        sortedKeys.emplace();
        for (const auto& [key, entry] : *tableDictionary()) {
            sortedKeys->insert(sortedKeys->begin(), key);
        }
    }

    std::shared_ptr<GXStateEntry> objectAtIndex(std::int32_t index) const override {
        const auto row = static_cast<std::size_t>(index);
        return sortedKeys && row < sortedKeys->size() ? objectForKey((*sortedKeys)[row]) : nullptr;
    }

protected:
    std::shared_ptr<GXDictionaryTable> newInstance() const override {
        return std::make_shared<DescendingTable>();
    }
};

void addNames(GXDictionaryTable& table, std::initializer_list<const char*> names) {
    for (const char* name : names) {
        table.addObject(KeyedEntry::named(name));
    }
}

TEST(GXDictionaryTable, StartsEmptyWithoutDelegateOrSortedKeys) {
    const DescendingTable table;
    EXPECT_EQ(table.count(), 0);
    EXPECT_EQ(table.delegate(), nullptr);
    EXPECT_FALSE(table.hasSortedKeys());
    EXPECT_EQ(table.description(), "Table = ");
}

TEST(GXDictionaryTable, KeepsTheDelegateThatItWasGiven) {
    GXTableDelegate delegate;
    GXDictionaryTable table;
    table.setDelegate(&delegate);
    EXPECT_EQ(table.delegate(), &delegate);
}

TEST(GXDictionaryTable, FindsEntriesByKey) {
    GXDictionaryTable table;
    addNames(table, {"a", "b"});
    EXPECT_EQ(table.objectForKey("b")->key(), "b");
    EXPECT_EQ(table.valueForKey("b"), table.objectForKey("b"));
    EXPECT_EQ(table.objectForKey("c"), nullptr);
    EXPECT_EQ(table.objectForKey(std::nullopt), nullptr);
    EXPECT_EQ(table.count(), 2);
}

TEST(GXDictionaryTable, DescribesEveryEntryFollowedByASemicolon) {
    GXDictionaryTable table;
    addNames(table, {"b", "a"});
    EXPECT_EQ(table.description(), "Table = {name = a};{name = b};");
}

TEST(GXDictionaryTable, StoringUnderANewKeyDropsTheSortedKeys) {
    DescendingTable table;
    table.sortKeys();
    table.setObjectForKey(KeyedEntry::named("a"), "a");
    EXPECT_FALSE(table.hasSortedKeys());
}

TEST(GXDictionaryTable, ReplacingAnEntryKeepsTheSortedKeys) {
    DescendingTable table;
    addNames(table, {"a"});
    table.sortKeys();
    const auto replacement = KeyedEntry::named("other");
    table.setObjectForKey(replacement, "a");
    EXPECT_TRUE(table.hasSortedKeys());
    EXPECT_EQ(table.objectForKey("a"), replacement);
    EXPECT_EQ(table.count(), 1);
}

TEST(GXDictionaryTable, AdditionUsesTheEntrysKeyAndDropsTheSortedKeys) {
    DescendingTable table;
    addNames(table, {"a"});
    table.sortKeys();
    addNames(table, {"a"});
    EXPECT_FALSE(table.hasSortedKeys());
    EXPECT_EQ(table.count(), 1);
}

TEST(GXDictionaryTable, AdditionWithoutAKeyDoesNothing) {
    DescendingTable table;
    table.sortKeys();
    table.addObject(std::make_shared<KeyedEntry>());
    table.addObject(nullptr);
    table.setObjectForKey(KeyedEntry::named("a"), std::nullopt);
    table.setObjectForKey(nullptr, "a");
    EXPECT_EQ(table.count(), 0);
    EXPECT_TRUE(table.hasSortedKeys());
}

TEST(GXDictionaryTable, RemovalDropsTheSortedKeys) {
    DescendingTable table;
    addNames(table, {"a", "b", "c"});

    table.sortKeys();
    table.removeObject(KeyedEntry::named("a")); // removes by key, so any entry with the key will do
    EXPECT_EQ(table.objectForKey("a"), nullptr);
    EXPECT_FALSE(table.hasSortedKeys());

    table.sortKeys();
    table.removeObjectForKey("b");
    EXPECT_EQ(table.objectForKey("b"), nullptr);
    EXPECT_FALSE(table.hasSortedKeys());

    table.sortKeys();
    table.removeAllObjects();
    EXPECT_EQ(table.count(), 0);
    EXPECT_FALSE(table.hasSortedKeys());
}

TEST(GXDictionaryTable, RemovalOfWhatIsNotThereDropsTheSortedKeysAllTheSame) {
    DescendingTable table;
    addNames(table, {"a"});
    const auto dropsSortedKeys = [&table](const auto& change) {
        table.sortKeys();
        change();
        return !table.hasSortedKeys();
    };
    EXPECT_TRUE(dropsSortedKeys([&] { table.removeObject(KeyedEntry::named("b")); }));
    EXPECT_TRUE(dropsSortedKeys([&] { table.removeObject(std::make_shared<KeyedEntry>()); }));
    EXPECT_TRUE(dropsSortedKeys([&] { table.removeObject(nullptr); }));
    EXPECT_TRUE(dropsSortedKeys([&] { table.removeObjectForKey("b"); }));
    EXPECT_TRUE(dropsSortedKeys([&] { table.removeObjectForKey(std::nullopt); }));
    EXPECT_EQ(table.count(), 1);
    table.removeAllObjects();
    EXPECT_TRUE(dropsSortedKeys([&] { table.removeAllObjects(); })) << "nothing is there";
    EXPECT_TRUE(dropsSortedKeys([&] { table.setTableDictionary(table.tableDictionary()); }));
    EXPECT_TRUE(dropsSortedKeys([&] { table.setTableDictionary(nullptr); }));
}

TEST(GXDictionaryTable, LoadingDropsTheSortedKeysAlsoWhenThereIsNothingToLoad) {
    DescendingTable table;
    for (const auto& source :
         {std::optional(DictionaryOfDictionaries()), std::optional<DictionaryOfDictionaries>()}) {
        addNames(table, {"a"});
        table.sortKeys();
        table.loadDictionaryOfDictionariesForEntryClass(source, entryOfClass<KeyedEntry>);
        EXPECT_FALSE(table.hasSortedKeys());
    }
}

TEST(GXDictionaryTable, RemovalOfWhatIsNotThereLeavesTheEntries) {
    GXDictionaryTable table;
    addNames(table, {"a"});
    table.removeObject(std::make_shared<KeyedEntry>());
    table.removeObject(nullptr);
    table.removeObjectForKey("b");
    table.removeObjectForKey(std::nullopt);
    EXPECT_EQ(table.count(), 1);
}

TEST(GXDictionaryTable, SetDictionaryIsSharedAndDropsTheSortedKeys) {
    DescendingTable table;
    table.sortKeys();
    const auto dictionary = std::make_shared<EntryDictionary>();
    table.setTableDictionary(dictionary);
    EXPECT_FALSE(table.hasSortedKeys());
    dictionary->emplace("k", KeyedEntry::named("a"));
    EXPECT_EQ(table.tableDictionary(), dictionary);
    EXPECT_EQ(table.count(), 1);
    table.setTableDictionary(nullptr);
    EXPECT_EQ(table.count(), 0);
}

TEST(GXDictionaryTable, RowsAreAbstract) {
    const RecordedSystemLog log;
    GXDictionaryTable table;
    addNames(table, {"a"});
    EXPECT_EQ(table.objectAtIndex(0), nullptr);
    EXPECT_EQ(log.lines(), std::vector<std::string>{"GXDictionaryTable: override for subclass"});
}

TEST(GXDictionaryTable, UpdateHookDoesNothing) {
    const RecordedSystemLog log;
    GXDictionaryTable table;
    addNames(table, {"a"});
    table.updateTable(nullptr);
    EXPECT_EQ(table.count(), 1);
    EXPECT_TRUE(log.lines().empty());
}

TEST(GXDictionaryTable, DictionaryOfDictionariesUsesTheEntriesOwnKeys) {
    GXDictionaryTable table;
    const auto entry = KeyedEntry::named("own");
    table.setObjectForKey(entry, "table's");
    table.setObjectForKey(KeyedEntry::numbered(1), "without a key of its own");
    EXPECT_EQ(table.dictionaryOfDictionaries(),
              (DictionaryOfDictionaries{{"own", entry->nodeDictionary()}}));
}

// Dictionaries under other keys than the entries' own.
DictionaryOfDictionaries foreignDictionaries() {
    return {{"1", KeyedEntry::named("b")->nodeDictionary()},
            {"2", KeyedEntry::named("a")->nodeDictionary()}};
}

TEST(GXDictionaryTable, LoadedDictionaryReplacesTheContentsByEntriesUnderTheirOwnKeys) {
    const DictionaryOfDictionaries source = foreignDictionaries();
    DescendingTable table;
    addNames(table, {"z"});
    table.sortKeys();
    EXPECT_TRUE(table.loadDictionaryOfDictionariesForEntryClass(source, entryOfClass<KeyedEntry>));
    EXPECT_FALSE(table.hasSortedKeys());
    EXPECT_EQ(table.description(), "Table = {name = a};{name = b};");
    EXPECT_EQ(table.objectForKey("1"), nullptr);
    ASSERT_NE(table.objectForKey("a"), nullptr);
    EXPECT_EQ(table.objectForKey("a")->key(), "a");
    EXPECT_NE(table.objectForKey("a")->nodeDictionary(), source.at("2")) << "a copy";
}

TEST(GXDictionaryTable, LoadedDictionaryLeavesOutWhatTheClassRefuses) {
    GXDictionaryTable table;
    EXPECT_TRUE(table.loadDictionaryOfDictionariesForEntryClass(
        foreignDictionaries(),
        [](const PropertyDictionary& dictionary) -> std::shared_ptr<GXStateEntry> {
            return dictionary.at("name") == "b" ? entryOfClass<KeyedEntry>(dictionary) : nullptr;
        }));
    EXPECT_EQ(table.description(), "Table = {name = b};");
}

TEST(GXDictionaryTable, LoadingNoDictionaryEmptiesTheTableAndFails) {
    GXDictionaryTable table;
    addNames(table, {"a"});
    EXPECT_FALSE(
        table.loadDictionaryOfDictionariesForEntryClass(std::nullopt, entryOfClass<KeyedEntry>));
    EXPECT_EQ(table.count(), 0);
}

TEST(GXDictionaryTable, EmptyingAndLoadingReachTheCopiesToo) {
    GXDictionaryTable table;
    addNames(table, {"z"});
    const auto copy = table.copy();
    table.removeAllObjects();
    EXPECT_EQ(copy->count(), 0);
    EXPECT_TRUE(table.loadDictionaryOfDictionariesForEntryClass(foreignDictionaries(),
                                                                entryOfClass<KeyedEntry>));
    EXPECT_EQ(copy->count(), 2);
    EXPECT_EQ(copy->tableDictionary(), table.tableDictionary());
}

TEST(GXDictionaryTable, OfTwoEntriesWithOneKeyTheLastIsKept) {
    GXDictionaryTable table;
    const auto last = KeyedEntry::named("own");
    table.setObjectForKey(KeyedEntry::named("own"), "1");
    table.setObjectForKey(last, "2");
    EXPECT_EQ(table.dictionaryOfDictionaries(),
              (DictionaryOfDictionaries{{"own", last->nodeDictionary()}}));

    last->setValueForKey(PropertyListValue(7), "number");
    GXDictionaryTable loaded;
    EXPECT_TRUE(loaded.loadDictionaryOfDictionariesForEntryClass(
        DictionaryOfDictionaries{{"1", KeyedEntry::named("own")->nodeDictionary()},
                                 {"2", last->nodeDictionary()}},
        entryOfClass<KeyedEntry>));
    EXPECT_EQ(loaded.description(), "Table = " + last->description() + ";");
}

TEST(GXDictionaryTable, CopySharesTheDictionaryAndHasNoDelegate) {
    GXTableDelegate delegate;
    DescendingTable table;
    table.setDelegate(&delegate);
    const auto copy = table.copy();
    ASSERT_NE(dynamic_cast<DescendingTable*>(copy.get()), nullptr);
    EXPECT_EQ(copy->delegate(), nullptr);
    addNames(*copy, {"a"});
    EXPECT_EQ(table.count(), 1);
    EXPECT_EQ(GXDictionaryTable().copy()->count(), 0);
}

TEST(GXDictionaryTable, TravelsToAnotherProcessAsItself) {
    GXDictionaryTable table;
    EXPECT_EQ(&table.replacementObjectForPortCoder(), &table);
}

TEST(GXDictionaryTable, ReadsBackWhatItEncoded) {
    GXDictionaryTable table;
    addNames(table, {"a"});
    table.setObjectForKey(KeyedEntry::numbered(2), "under another key");
    PropertyListEncoder encoder;
    ASSERT_TRUE(table.encodeWithCoder(encoder));

    PropertyListDecoder decoder(encoder.bytes());
    DescendingTable read;
    read.sortKeys();
    ASSERT_TRUE(read.initWithCoder(decoder, entryOfClass<KeyedEntry>));
    EXPECT_FALSE(read.hasSortedKeys());
    EXPECT_EQ(read.count(), 2);
    EXPECT_EQ(read.objectForKey("a")->key(), "a");
    EXPECT_EQ(read.objectForKey("under another key")->keyInt(), 2);
}

TEST(GXDictionaryTable, EncodesNothingWhenItsEntriesAreNestedTooDeep) {
    GXDictionaryTable table;
    addNames(table, {"a"});
    table.addObject(KeyedEntry::nestedTooDeep("deep"));
    PropertyListEncoder encoder;
    EXPECT_FALSE(table.encodeWithCoder(encoder));
    EXPECT_TRUE(encoder.bytes().empty());
}

TEST(GXDictionaryTable, KeepsItsDictionaryWhenTheBytesAreNoDictionaryOfEntries) {
    GXDictionaryTable table;
    addNames(table, {"a"});
    const PropertyListValue foreign[] = {"text", PropertyList(), PropertyDictionary{{"k", "text"}}};
    for (const auto& object : foreign) {
        PropertyListEncoder encoder;
        ASSERT_TRUE(encoder.encodeObject(object));
        PropertyListDecoder decoder(encoder.bytes());
        EXPECT_FALSE(table.initWithCoder(decoder, entryOfClass<KeyedEntry>))
            << object.description();
    }
    EXPECT_EQ(table.description(), "Table = {name = a};");
}

TEST(GXDictionaryTableView, ShowsTheRowsOfTheSubclass) {
    DescendingTable table;
    addNames(table, {"a", "b"});
    table.sortKeys();
    EXPECT_EQ(table.numberOfRowsInTableView(), 2);
    EXPECT_EQ(table.tableViewObjectValueForTableColumnRow({"name"}, 0), PropertyListValue("b"));
    EXPECT_EQ(table.tableViewObjectValueForTableColumnRow({"name"}, 1), PropertyListValue("a"));
    EXPECT_EQ(table.tableViewObjectValueForTableColumnRow({"name"}, 2), std::nullopt);
}

TEST(GXDictionaryTableView, UnknownColumnIsAnException) {
    const RecordedSystemLog log;
    DescendingTable table;
    addNames(table, {"a"});
    table.sortKeys();
    EXPECT_THROW(table.tableViewObjectValueForTableColumnRow({"colour"}, 0), UndefinedKeyFailure);
    EXPECT_TRUE(log.lines().empty());
}

TEST(GXDictionaryTableView, CannotBeEdited) {
    DescendingTable table;
    addNames(table, {"a"});
    table.sortKeys();
    table.tableViewSetObjectValueForTableColumnRow("z", {"name"}, 0);
    EXPECT_EQ(table.description(), "Table = {name = a};");
}

} // namespace
} // namespace kx
