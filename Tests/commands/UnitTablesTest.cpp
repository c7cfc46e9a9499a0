#include "commands/UnitTables.h"

#include "commands/TextTable.h"
#include "files/CSV.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

HeardUnit unitWithID(std::string_view text, const UnitIDBytes& bytes) {
    HeardUnit unit;
    unit.record.setValue(UnitParameter::serialNumber, "4B 58 00 00 00 01");
    unit.record.setValue(UnitParameter::unitID, text);
    unit.record.setValue(UnitParameter::internalIPAddress, "192.0.2.11");
    unit.unitIDBytes = bytes;
    unit.sender = 0xC000020BU;
    return unit;
}

// The cell "unit-id" of the only record.
std::string csvUnitID(const HeardUnit& unit) {
    const auto records = csvRecords(csvOfUnits({&unit}, {}));
    EXPECT_EQ(records.size(), 2U);
    EXPECT_EQ(records.at(0).at(1), "unit-id");
    EXPECT_EQ(records.at(0).size(), records.at(1).size());
    return records.at(1).at(1);
}

} // namespace

TEST(TextTable, ColumnsAreAsWideAsTheirWidestText) {
    TextTable table({"a", "bb"});
    table.addRow({"wide", "x"});
    table.addRow({"é", ""});
    EXPECT_EQ(table.text(false), "a     bb\nwide  x\né\n");
    EXPECT_EQ(table.text(true), "\x1b[1ma     bb\x1b[0m\nwide  x\né\n");
}

TEST(TextTable, CharactersThatActAreMarks) {
    TextTable table({"a"});
    table.addRow({"x\ny\x1b\t\u202e\xff"});
    EXPECT_EQ(table.text(false), "a\nx\uFFFDy\uFFFD\uFFFD\uFFFD\uFFFD\n");
}

TEST(UnitTables, AUnitIDThatIsNoTextIsShownByItsBytes) {
    HeardUnit unit = unitWithID("", {0xFF, 1, 2, 3, 4, 5});
    unit.record.removeValue(UnitParameter::unitID);
    EXPECT_NE(tableOfUnits({&unit}, {}, false).find("FF0102030405"), std::string::npos);
    EXPECT_NE(parametersOfUnit(unit, {}).find("unit-id           FF0102030405\n"),
              std::string::npos);
    EXPECT_EQ(csvUnitID(unit), "");
}

TEST(UnitTables, AUnitIDStandsInTheTableOfValuesWhereItIsReadBackAsTheSame) {
    EXPECT_EQ(csvUnitID(unitWithID("RACK7A", {'R', 'A', 'C', 'K', '7', 'A'})), "RACK7A");
    EXPECT_EQ(csvUnitID(unitWithID(std::string_view("AB\0\0\0\0", 6), {'A', 'B'})), "AB");
    EXPECT_EQ(csvUnitID(unitWithID("12", {0, 0, 0, 0, 0, 12})), "12");
    EXPECT_EQ(csvUnitID(unitWithID("=1+2-3", {'=', '1', '+', '2', '-', '3'})), "=1+2-3");
}

TEST(UnitTables, AUnitIDThatWouldBecomeAnotherOneIsLeftToItsBytes) {
    EXPECT_EQ(csvUnitID(unitWithID(std::string_view("12\0\0\0\0", 6), {'1', '2'})), "")
        << "the text 12 would be read as the number";
    EXPECT_EQ(csvUnitID(unitWithID("7ABCDE", {'7', 'A', 'B', 'C', 'D', 'E'})), "");
    EXPECT_EQ(csvUnitID(unitWithID("a\nb,\"c", {'a', '\n', 'b', ',', '"', 'c'})), "");
    EXPECT_EQ(csvUnitID(unitWithID(std::string_view("\0ABCDE", 6), {0, 'A', 'B', 'C', 'D', 'E'})),
              "");
}

TEST(UnitTables, TheBytesStandThereInEveryCase) {
    const HeardUnit unit = unitWithID("7ABCDE", {'7', 'A', 'B', 'C', 'D', 'E'});
    const auto records = csvRecords(csvOfUnits({&unit}, {}));
    const auto column = std::ranges::find(records[0], "unit_id_bytes") - records[0].begin();
    EXPECT_EQ(records[1][static_cast<std::size_t>(column)], "374142434445");
}

} // namespace kx
