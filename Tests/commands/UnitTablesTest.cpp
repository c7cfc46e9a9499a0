#include "commands/UnitTables.h"

#include "commands/TextTable.h"
#include "core/conversation/HeardUnitSamples.h"

#include <gtest/gtest.h>

namespace kx {

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
    HeardUnit unit = heardUnit(1);
    setUnitID(unit, {0xFF, 1, 2, 3, 4, 5});
    EXPECT_NE(tableOfUnits({&unit}, {}, false).find("FF0102030405"), std::string::npos);
    EXPECT_NE(parametersOfUnit(unit, {}).find("unit-id           FF0102030405\n"),
              std::string::npos);
}

} // namespace kx
