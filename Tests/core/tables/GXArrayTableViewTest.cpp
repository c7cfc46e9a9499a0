#include "TestArrayTables.h"
#include "doubles/RecordedSystemLog.h"
#include "tables/GXArrayTable.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace kx {
namespace {

TEST(GXArrayTableView, HasARowForEachElement) {
    GXArrayTable table;
    EXPECT_EQ(table.numberOfRowsInTableView(), 0);
    table.insertObjectAtIndex(KeyedEntry::numbered(1), 2);
    EXPECT_EQ(table.numberOfRowsInTableView(), 3);
}

TEST(GXArrayTableView, CellShowsTheEntrysValue) {
    GXArrayTable table;
    table.addObject(KeyedEntry::named("n"));
    EXPECT_EQ(table.tableViewObjectValueForTableColumnRow({"name"}, 0), PropertyListValue("n"));
    EXPECT_EQ(table.tableViewObjectValueForTableColumnRow({"number"}, 0), std::nullopt);
}

TEST(GXArrayTableView, CellWithoutAnEntryIsEmpty) {
    GXArrayTable table;
    table.insertObjectAtIndex(KeyedEntry::named("n"), 1);
    for (const int row : {0, 2, -1}) {
        EXPECT_EQ(table.tableViewObjectValueForTableColumnRow({"name"}, row), std::nullopt) << row;
    }
}

TEST(GXArrayTableView, CellOfAnUnknownColumnShowsTheIdentifierAndLogs) {
    const RecordedSystemLog log;
    GXArrayTable table;
    table.addObject(KeyedEntry::named("n"));
    EXPECT_EQ(table.tableViewObjectValueForTableColumnRow({"colour"}, 0),
              PropertyListValue("colour"));
    EXPECT_EQ(log.lines(), std::vector<std::string>{"KVC Exception, no value for key colour"});
}

// An entry whose properties fail as the test says.
template<class Failure>
class FailingEntry final : public GXStateEntry {
public:
    std::optional<PropertyListValue> valueForKey(std::string_view /*key*/) const override {
        throw Failure("failed");
    }
};

TEST(GXArrayTableView, CellShowsTheIdentifierAfterAnyPlatformException) {
    const RecordedSystemLog log;
    GXArrayTable table;
    table.addObject(std::make_shared<FailingEntry<PlatformException>>());
    EXPECT_EQ(table.tableViewObjectValueForTableColumnRow({"name"}, 0), PropertyListValue("name"));
    EXPECT_EQ(log.lines().size(), 1U);
}

TEST(GXArrayTableView, OtherExceptionsPassOn) {
    const RecordedSystemLog log;
    GXArrayTable table;
    table.addObject(std::make_shared<FailingEntry<std::runtime_error>>());
    EXPECT_THROW(table.tableViewObjectValueForTableColumnRow({"name"}, 0), std::runtime_error);
    EXPECT_TRUE(log.lines().empty());
}

TEST(GXArrayTableView, EditedCellIsStoredInTheEntry) {
    GXArrayTable table;
    table.insertObjectAtIndex(KeyedEntry::named("n"), 1);
    table.tableViewSetObjectValueForTableColumnRow("m", {"name"}, 1);
    EXPECT_EQ(table.objectAtIndex(1)->key(), "m");
    EXPECT_NO_THROW(table.tableViewSetObjectValueForTableColumnRow("m", {"name"}, 0));
    EXPECT_NO_THROW(table.tableViewSetObjectValueForTableColumnRow("m", {"name"}, 2));
    EXPECT_THROW(table.tableViewSetObjectValueForTableColumnRow("m", {"colour"}, 1),
                 UndefinedKeyFailure);
}

} // namespace
} // namespace kx
