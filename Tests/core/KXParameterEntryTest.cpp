#include "KXParameterEntry.h"

#include "tables/GXArrayTable.h"

#include <gtest/gtest.h>

#include <memory>

namespace kx {
namespace {

TEST(KXParameterEntry, PropertiesAreAbsentAtFirst) {
    const KXParameterEntry entry;
    EXPECT_EQ(entry.parameterName(), std::nullopt);
    EXPECT_EQ(entry.parameterValue(), std::nullopt);
    EXPECT_EQ(entry.valueForKey("parameterName"), std::nullopt);
    EXPECT_EQ(entry.valueForKey("parameterValue"), std::nullopt);
}

TEST(KXParameterEntry, PropertiesLiveInTheDictionaryUnderTheirNames) {
    KXParameterEntry entry;
    entry.setParameterName("unit ID");
    entry.setParameterValue("42");
    EXPECT_EQ(*entry.nodeDictionary(),
              (PropertyDictionary{{"parameterName", "unit ID"}, {"parameterValue", "42"}}));
    EXPECT_EQ(entry.parameterName(), "unit ID");
    EXPECT_EQ(entry.parameterValue(), "42");
}

TEST(KXParameterEntry, StoringAnAbsentTextRemovesTheField) {
    KXParameterEntry entry;
    entry.setParameterName("unit ID");
    entry.setParameterValue("");
    entry.setParameterName(std::nullopt);
    EXPECT_EQ(*entry.nodeDictionary(), (PropertyDictionary{{"parameterValue", ""}}));
    entry.setValueForKey(std::nullopt, "parameterValue");
    EXPECT_TRUE(entry.nodeDictionary()->empty());
}

TEST(KXParameterEntry, PropertiesAreReadAndWrittenByName) {
    KXParameterEntry entry;
    entry.setValueForKey("device Port number", "parameterName");
    entry.setValueForKey("3520", "parameterValue");
    EXPECT_EQ(entry.parameterName(), "device Port number");
    EXPECT_EQ(entry.valueForKey("parameterValue"), PropertyListValue("3520"));
}

TEST(KXParameterEntry, FieldThatIsNoTextReadsAsItsDescription) {
    KXParameterEntry entry;
    entry.setValueForKey(3520, "parameterValue");
    EXPECT_EQ(entry.parameterValue(), "3520");
}

TEST(KXParameterEntry, KnowsNoOtherPropertyNotEvenOneInItsDictionary) {
    KXParameterEntry entry;
    entry.nodeDictionary()->emplace("other", "x");
    EXPECT_THROW(entry.valueForKey("other"), UndefinedKeyFailure);
    EXPECT_THROW(entry.valueForKey(""), UndefinedKeyFailure);
    EXPECT_THROW(entry.setValueForKey("y", "other"), UndefinedKeyFailure);
}

TEST(KXParameterEntry, EntryFromDictionaryYieldsAPlainEntry) {
    const auto entry = KXParameterEntry::entryFromDictionary({{"parameterName", "unit ID"}});
    EXPECT_EQ(dynamic_cast<KXParameterEntry*>(entry.get()), nullptr);
}

TEST(KXParameterEntry, CopyIsAParameterEntryThatSharesTheDictionary) {
    KXParameterEntry entry;
    const auto copy = std::dynamic_pointer_cast<KXParameterEntry>(entry.copy());
    ASSERT_NE(copy, nullptr);
    copy->setParameterValue("7");
    EXPECT_EQ(entry.parameterValue(), "7");
}

TEST(KXParameterEntry, ColumnsOfATableReadAndWriteItsProperties) {
    const auto entry = std::make_shared<KXParameterEntry>();
    GXArrayTable table;
    table.addObject(entry);
    table.tableViewSetObjectValueForTableColumnRow("unit ID", {"parameterName"}, 0);
    EXPECT_EQ(entry->parameterName(), "unit ID");
    EXPECT_EQ(table.tableViewObjectValueForTableColumnRow({"parameterName"}, 0),
              PropertyListValue("unit ID"));
    EXPECT_EQ(table.tableViewObjectValueForTableColumnRow({"parameterValue"}, 0), std::nullopt);
}

TEST(KXParameterEntry, TablesOfParametersReadBackAsParameters) {
    const auto entry = std::make_shared<KXParameterEntry>();
    entry->setParameterName("unit ID");
    GXArrayTable table;
    table.addObject(entry);
    PropertyListEncoder encoder;
    ASSERT_TRUE(table.encodeWithCoder(encoder));

    PropertyListDecoder decoder(encoder.bytes());
    GXArrayTable read;
    ASSERT_TRUE(read.initWithCoder(decoder, entryOfClass<KXParameterEntry>));
    const auto first = std::dynamic_pointer_cast<KXParameterEntry>(read.objectAtIndex(0));
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->parameterName(), "unit ID");
}

} // namespace
} // namespace kx
