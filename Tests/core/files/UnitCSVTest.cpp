#include "files/UnitCSV.h"

#include "core/conversation/HeardUnitSamples.h"
#include "core/files/HostileUnits.h"
#include "files/CSV.h"
#include "files/UnitTableReader.h"
#include "files/WholeFile.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kx {

namespace {

HeardUnit csvSample(const UnitIDBytes& bytes) {
    HeardUnit unit = heardUnit(1);
    setUnitID(unit, bytes);
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

// The table is about these units and asks for what they show already. The number of unit IDs in it.
std::size_t expectNoChange(std::string_view text, const std::vector<HeardUnit>& units) {
    const UnitTable table = readUnitTable(text);
    EXPECT_TRUE(table.complaints.empty());
    EXPECT_EQ(table.rows.size(), units.size());
    std::size_t named = 0;
    for (std::size_t i = 0; i < std::min(table.rows.size(), units.size()); ++i) {
        const WantedRow& row = table.rows[i];
        EXPECT_EQ(row.serialNumber, units[i].serialNumber());
        EXPECT_GE(row.edits.size(), exportedParameters.size() - 2) << "all but the unit ID";
        for (const ExactEdit& edit : row.edits) {
            named += edit.edit.parameter == UnitParameter::unitID ? 1 : 0;
            EXPECT_TRUE(edit.isShownBy(units[i].record, units[i].unitIDBytes))
                << "line " << row.line << ": " << edit.edit.typed;
        }
    }
    return named;
}

} // namespace

TEST(UnitCSV, AUnitIDThatIsNoTextIsLeftToItsBytes) {
    const HeardUnit unit = csvSample({0xFF, 1, 2, 3, 4, 5});
    EXPECT_EQ(csvUnitID(unit), "");
    EXPECT_EQ(shownValue(unit, UnitParameter::unitID), "FF0102030405");
}

TEST(UnitCSV, AUnitIDStandsInTheTableOfValuesWhereItIsReadBackAsTheSame) {
    EXPECT_EQ(csvUnitID(csvSample({'R', 'A', 'C', 'K', '7', 'A'})), "RACK7A");
    EXPECT_EQ(csvUnitID(csvSample({'A', 'B'})), "AB");
    EXPECT_EQ(csvUnitID(csvSample({0, 0, 0, 0, 0, 12})), "12");
}

TEST(UnitCSV, AUnitIDThatASpreadsheetWouldChangeIsLeftToItsBytes) {
    EXPECT_EQ(csvUnitID(csvSample({'=', '1', '+', '2', '-', '3'})), "");
    EXPECT_EQ(csvUnitID(csvSample({'T', 'R', 'U', 'E'})), "");
}

TEST(UnitCSV, AnExportThatIsPlannedAtOnceChangesNothingWhateverTheUnitIDsAre) {
    const auto units = HostileUnits::make(10'000);
    UnitList list;
    for (const HeardUnit& unit : units) {
        list.push_back(&unit);
    }
    const std::size_t named = expectNoChange(csvOfUnits(list, {}), units);
    EXPECT_GT(named, units.size() / 4) << "the unit IDs that are safe stand there";
}

// LibreOffice 7.4.7 has opened the export of these units and saved it; Tests/spreadsheet does so
// with ten thousand.
TEST(UnitCSV, AnExportThatASpreadsheetHasSavedChangesNothing) {
    const auto contents =
        contentsOfFile(KX_SOURCE_DIR "/Tests/core/files/saved-by-libreoffice.csv", 1'000'000);
    ASSERT_TRUE(std::holds_alternative<std::string>(contents));
    EXPECT_GT(expectNoChange(std::get<std::string>(contents), HostileUnits::make(400)), 256U);
}

TEST(UnitCSV, AUnitIDThatWouldBecomeAnotherOneIsLeftToItsBytes) {
    EXPECT_EQ(csvUnitID(csvSample({'1', '2'})), "") << "the text 12 would be read as the number";
    EXPECT_EQ(csvUnitID(csvSample({'7', 'A', 'B', 'C', 'D', 'E'})), "");
    EXPECT_EQ(csvUnitID(csvSample({'a', '\n', 'b', ',', '"', 'c'})), "");
    EXPECT_EQ(csvUnitID(csvSample({0, 'A', 'B', 'C', 'D', 'E'})), "");
}

TEST(UnitCSV, TheBytesStandThereInEveryCase) {
    const HeardUnit unit = csvSample({'7', 'A', 'B', 'C', 'D', 'E'});
    const auto records = csvRecords(csvOfUnits({&unit}, {}));
    const auto column = std::ranges::find(records[0], "unit_id_bytes") - records[0].begin();
    EXPECT_EQ(records[1][static_cast<std::size_t>(column)], "374142434445");
}

} // namespace kx
