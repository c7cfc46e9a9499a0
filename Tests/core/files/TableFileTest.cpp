#include "files/TableFile.h"

#include "files/KeptPlan.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace kx {

namespace {

class TableFileTest : public testing::Test {
protected:
    static constexpr auto serial = "4B 58 00 00 00 01";

    TableFileTest() {
        std::string name = "/tmp/kx-table-file-XXXXXX";
        folder = ::mkdtemp(name.data());
    }
    ~TableFileTest() override { std::filesystem::remove_all(folder); }

    std::string write(const std::string& text) const {
        std::ofstream(folder + "/file") << text;
        return folder + "/file";
    }
    TableFile read(const std::string& text) const {
        return std::get<TableFile>(readTableFile(write(text)));
    }

    std::string folder;
};

} // namespace

TEST_F(TableFileTest, ATableHasItsRowsAndItsLines) {
    const TableFile file = read("serial,unit-id\n\n4B5800000001,A\n");
    EXPECT_EQ(file.path, folder + "/file");
    ASSERT_EQ(file.rows.size(), 1U);
    EXPECT_EQ(file.rows.front().serialNumber, serial);
    EXPECT_EQ(file.rows.front().line, 3U);
    EXPECT_FALSE(file.rows.front().seen.has_value());
    EXPECT_EQ(reportOfFile(file, {{.line = 3, .state = "done", .reason = ""}}),
              "serial,unit-id,state,reason\n\n4B5800000001,A,done,\n");
}

TEST_F(TableFileTest, AKeptPlanIsToldFromATableWhateverItsName) {
    const TableFile table = read("serial,unit-id\n4B5800000001,A\n");
    std::vector<WantedRow> rows = table.rows;
    SeenUnit seen;
    seen.record.setValue(UnitParameter::serialNumber, serial);
    rows.front().seen = seen;
    const TableFile file = read(textOfKeptPlan("serial,unit-id\n4B5800000001,A\n", rows));
    ASSERT_EQ(file.rows.size(), 1U);
    EXPECT_TRUE(file.rows.front().seen.has_value());
}

TEST_F(TableFileTest, AFaultyTableHasComplaintsAndNoPlanThatIsDamagedIsTaken) {
    EXPECT_EQ(read("serial,unit-id\n4.7E+11,A\n").table.complaints.size(), 1U);
    const TableFile table = read("serial,unit-id\n4B5800000001,A\n");
    std::string kept = textOfKeptPlan("serial,unit-id\n4B5800000001,A\n", table.rows);
    kept.replace(kept.find("4B5800000001,A"), 14, "4B5800000001,B");
    const auto damaged = readTableFile(write(kept));
    ASSERT_TRUE(std::holds_alternative<TableFileFault>(damaged));
    EXPECT_EQ(std::get<DocumentFault>(std::get<TableFileFault>(damaged)), DocumentFault::damaged);
}

TEST_F(TableFileTest, AFileThatCannotBeReadIsToldWithTheSystemsReason) {
    const auto missing = readTableFile(folder + "/none");
    ASSERT_TRUE(std::holds_alternative<TableFileFault>(missing));
    EXPECT_EQ(std::get<Error>(std::get<TableFileFault>(missing)).code, ENOENT);
    const auto folderItself = readTableFile(folder);
    EXPECT_TRUE(std::holds_alternative<TableFileFault>(folderItself));
}

TEST_F(TableFileTest, RowsThatStandInNoTableAreReportedInLinesOfTheirOwn) {
    std::vector<WantedRow> rows = read("serial,unit-id\n\n\n4B5800000001,A\n").rows;
    const TableFile file = tableFileOfRows(rows, "journal");
    EXPECT_FALSE(file.isTable);
    EXPECT_EQ(file.path, "journal");
    const std::string report = reportOfFile(file, {{.line = 4, .state = "half", .reason = "So."}});
    EXPECT_NE(report.find("4B 58 00 00 00 01,A,half,So."), std::string::npos) << report;
}

} // namespace kx
