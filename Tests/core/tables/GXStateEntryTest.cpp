#include "tables/GXStateEntry.h"

#include "TestEntries.h"
#include "doubles/RecordedSystemLog.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace kx {
namespace {

using Lines = std::vector<std::string>;

TEST(GXStateEntry, StartsWithAnEmptyDictionary) {
    const GXStateEntry entry;
    EXPECT_EQ(*entry.nodeDictionary(), PropertyDictionary());
}

TEST(GXStateEntry, EntryFromDictionaryHoldsACopyOfIt) {
    PropertyDictionary dictionary = {{"a", 1}};
    const auto entry = GXStateEntry::entryFromDictionary(dictionary);
    dictionary["a"] = 2;
    EXPECT_EQ(*entry->nodeDictionary(), (PropertyDictionary{{"a", 1}}));
}

TEST(GXStateEntry, EntryFromDictionarySentToASubclassYieldsAPlainEntry) {
    const auto entry = KeyedEntry::entryFromDictionary({{"name", "n"}});
    EXPECT_EQ(dynamic_cast<KeyedEntry*>(entry.get()), nullptr);
    EXPECT_EQ(*entry->nodeDictionary(), (PropertyDictionary{{"name", "n"}}));
}

TEST(GXStateEntry, EntryOfClassIsOfThatClassAndHoldsACopy) {
    PropertyDictionary dictionary = {{"name", "n"}};
    const auto entry = entryOfClass<KeyedEntry>(dictionary);
    dictionary["name"] = "m";
    ASSERT_NE(dynamic_cast<KeyedEntry*>(entry.get()), nullptr);
    EXPECT_EQ(entry->key(), "n");
}

TEST(GXStateEntry, SetDictionaryIsSharedWithTheCaller) {
    GXStateEntry entry;
    const auto dictionary = std::make_shared<PropertyDictionary>();
    entry.setNodeDictionary(dictionary);
    (*dictionary)["a"] = "b";
    EXPECT_EQ(entry.nodeDictionary(), dictionary);
    EXPECT_EQ(entry.description(), "{a = b}");
}

TEST(GXStateEntry, SettingNoDictionarySetsANewEmptyOne) {
    const auto entry = GXStateEntry::entryFromDictionary({{"a", 1}});
    entry->setNodeDictionary(nullptr);
    ASSERT_NE(entry->nodeDictionary(), nullptr);
    EXPECT_TRUE(entry->nodeDictionary()->empty());
}

TEST(GXStateEntry, DescribesItsDictionary) {
    EXPECT_EQ(GXStateEntry().description(), "{}");
    EXPECT_EQ(GXStateEntry::entryFromDictionary({{"a", "x"}, {"b", 2}})->description(),
              "{a = x; b = 2}");
}

TEST(GXStateEntry, AbstractKeyLogsAndGivesNone) {
    const RecordedSystemLog log;
    EXPECT_EQ(GXStateEntry().key(), std::nullopt);
    EXPECT_EQ(log.lines(), Lines{"GXStateEntry: override key for subclass"});
}

TEST(GXStateEntry, AbstractIntegerKeyLogsAndGivesZero) {
    const RecordedSystemLog log;
    EXPECT_EQ(GXStateEntry().keyInt(), 0);
    EXPECT_EQ(log.lines(), Lines{"GXStateEntry: override keyInt for subclass"});
}

TEST(GXStateEntry, AbstractComparisonsLogTheSameLineAndSortBefore) {
    const RecordedSystemLog log;
    EXPECT_EQ(GXStateEntry().compareKey("a"), -1);
    EXPECT_EQ(GXStateEntry().compareKeyInt(1), -1);
    EXPECT_EQ(log.lines(), (Lines{"GXStateEntry: override compareKey for subclass",
                                  "GXStateEntry: override compareKey for subclass"}));
}

TEST(GXStateEntry, UnknownPropertyIsAPlatformExceptionThatNamesIt) {
    GXStateEntry entry;
    EXPECT_THROW(entry.setValueForKey("x", "colour"), UndefinedKeyFailure);
    try {
        entry.valueForKey("colour");
        FAIL() << "no exception";
    } catch (const PlatformException& exception) {
        EXPECT_EQ(exception.reason(), "the entry has no property \"colour\"");
    }
    EXPECT_TRUE(entry.nodeDictionary()->empty());
}

TEST(GXStateEntry, AnAbsentValueIsStoredAndReadAsAMissingField) {
    const auto entry = KeyedEntry::named("n");
    entry->setValueForKey(std::nullopt, "name");
    EXPECT_TRUE(entry->nodeDictionary()->empty());
    EXPECT_EQ(entry->valueForKey("name"), std::nullopt);
    EXPECT_EQ(entry->key(), std::nullopt);
}

TEST(GXStateEntry, CopyIsOfTheSameClassAndSharesTheDictionary) {
    const auto entry = KeyedEntry::named("n");
    const auto copy = entry->copy();
    EXPECT_NE(copy, entry);
    ASSERT_NE(dynamic_cast<KeyedEntry*>(copy.get()), nullptr);
    EXPECT_EQ(copy->nodeDictionary(), entry->nodeDictionary());

    copy->setValueForKey("m", "name");
    EXPECT_EQ(entry->key(), "m");
}

TEST(GXStateEntry, CopyOfAPlainEntryIsPlain) {
    const GXStateEntry entry;
    EXPECT_EQ(entry.copy()->nodeDictionary(), entry.nodeDictionary());
}

TEST(GXStateEntry, TravelsToAnotherProcessAsItself) {
    GXStateEntry entry;
    EXPECT_EQ(&entry.replacementObjectForPortCoder(), &entry);
}

TEST(GXStateEntry, ReadsBackWhatItEncoded) {
    const auto entry = GXStateEntry::entryFromDictionary(
        {{"text", "b\xC3\xA9"}, {"number", -5}, {"list", PropertyList{1, "x"}}});
    PropertyListEncoder encoder;
    ASSERT_TRUE(entry->encodeWithCoder(encoder));

    PropertyListDecoder decoder(encoder.bytes());
    KeyedEntry read;
    ASSERT_TRUE(read.initWithCoder(decoder));
    EXPECT_EQ(*read.nodeDictionary(), *entry->nodeDictionary());
    EXPECT_TRUE(decoder.isAtEnd());
}

TEST(GXStateEntry, SeveralEntriesReadBackInTheOrderEncoded) {
    PropertyListEncoder encoder;
    ASSERT_TRUE(KeyedEntry::named("first")->encodeWithCoder(encoder));
    ASSERT_TRUE(KeyedEntry::named("second")->encodeWithCoder(encoder));

    PropertyListDecoder decoder(encoder.bytes());
    KeyedEntry first;
    KeyedEntry second;
    ASSERT_TRUE(first.initWithCoder(decoder));
    ASSERT_TRUE(second.initWithCoder(decoder));
    EXPECT_EQ(first.key(), "first");
    EXPECT_EQ(second.key(), "second");
}

TEST(GXStateEntry, EncodesNothingWhenItsValuesAreNestedTooDeep) {
    PropertyListEncoder encoder;
    EXPECT_FALSE(KeyedEntry::nestedTooDeep("deep")->encodeWithCoder(encoder));
    EXPECT_TRUE(encoder.bytes().empty());
}

TEST(GXStateEntry, KeepsItsDictionaryWhenTheBytesAreNoDictionary) {
    PropertyListEncoder encoder;
    ASSERT_TRUE(encoder.encodeObject("text"));
    PropertyListDecoder text(encoder.bytes());
    PropertyListDecoder nothing({});
    KeyedEntry entry;
    entry.setValueForKey("n", "name");
    EXPECT_FALSE(entry.initWithCoder(text));
    EXPECT_FALSE(entry.initWithCoder(nothing));
    EXPECT_EQ(entry.key(), "n");
}

} // namespace
} // namespace kx
