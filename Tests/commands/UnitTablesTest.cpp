#include "commands/UnitTables.h"

#include "commands/TextTable.h"

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
}

} // namespace kx
