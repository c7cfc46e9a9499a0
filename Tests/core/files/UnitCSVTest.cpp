#include "files/UnitCSV.h"

#include "files/CSV.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kx {

namespace {

HeardUnit csvSample(std::string_view text, const UnitIDBytes& bytes) {
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

TEST(UnitCSV, AUnitIDThatIsNoTextIsLeftToItsBytes) {
    HeardUnit unit = csvSample("", {0xFF, 1, 2, 3, 4, 5});
    unit.record.removeValue(UnitParameter::unitID);
    EXPECT_EQ(csvUnitID(unit), "");
    EXPECT_EQ(shownValue(unit, UnitParameter::unitID), "FF0102030405");
}

TEST(UnitCSV, AUnitIDStandsInTheTableOfValuesWhereItIsReadBackAsTheSame) {
    EXPECT_EQ(csvUnitID(csvSample("RACK7A", {'R', 'A', 'C', 'K', '7', 'A'})), "RACK7A");
    EXPECT_EQ(csvUnitID(csvSample(std::string_view("AB\0\0\0\0", 6), {'A', 'B'})), "AB");
    EXPECT_EQ(csvUnitID(csvSample("12", {0, 0, 0, 0, 0, 12})), "12");
    EXPECT_EQ(csvUnitID(csvSample("=1+2-3", {'=', '1', '+', '2', '-', '3'})), "=1+2-3");
}

TEST(UnitCSV, AUnitIDThatWouldBecomeAnotherOneIsLeftToItsBytes) {
    EXPECT_EQ(csvUnitID(csvSample(std::string_view("12\0\0\0\0", 6), {'1', '2'})), "")
        << "the text 12 would be read as the number";
    EXPECT_EQ(csvUnitID(csvSample("7ABCDE", {'7', 'A', 'B', 'C', 'D', 'E'})), "");
    EXPECT_EQ(csvUnitID(csvSample("a\nb,\"c", {'a', '\n', 'b', ',', '"', 'c'})), "");
    EXPECT_EQ(csvUnitID(csvSample(std::string_view("\0ABCDE", 6), {0, 'A', 'B', 'C', 'D', 'E'})),
              "");
}

TEST(UnitCSV, TheBytesStandThereInEveryCase) {
    const HeardUnit unit = csvSample("7ABCDE", {'7', 'A', 'B', 'C', 'D', 'E'});
    const auto records = csvRecords(csvOfUnits({&unit}, {}));
    const auto column = std::ranges::find(records[0], "unit_id_bytes") - records[0].begin();
    EXPECT_EQ(records[1][static_cast<std::size_t>(column)], "374142434445");
}

} // namespace kx
