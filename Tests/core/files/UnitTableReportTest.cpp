#include "files/UnitTableReport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kx {

namespace {

std::string reportOf(std::string_view table, const std::vector<ReportedRow>& rows) {
    return reportOfTable(readUnitTable(table), rows);
}

// The edit of a text that the table may hold.
ExactEdit reportedEdit(UnitParameter parameter, std::string_view text) {
    return std::get<ExactEdit>(exactEdit(parameter, text));
}

} // namespace

TEST(UnitTableReport, IsTheTableWithStateAndReason) {
    EXPECT_EQ(reportOf("serial,unit-id,note\r\n4B 58 00 00 00 01,A,\"left, below\"\r\n"
                       "4B 58 00 00 00 02,B,\r\n",
                       {{2, "done", ""}, {3, "silent", "It has not answered, twice."}}),
              "serial,unit-id,note,state,reason\r\n"
              "4B 58 00 00 00 01,A,\"left, below\",done,\r\n"
              "4B 58 00 00 00 02,B,,silent,\"It has not answered, twice.\"\r\n");
}

TEST(UnitTableReport, FillsTheColumnsThatAreThere) {
    EXPECT_EQ(reportOf("State,serial, reason ,unit-id\n,4B5800000001,old,A\nsilent,4B5800000002,"
                       "old,B\n",
                       {{2, "done", "new"}}),
              "State,serial,\" reason \",unit-id\ndone,4B5800000001,new,A\n,4B5800000002,,B\n")
        << "what an earlier report said of a line is gone";
}

TEST(UnitTableReport, KeepsTheDialect) {
    EXPECT_EQ(reportOf("\xEF\xBB\xBFserial;unit-id\r4B5800000001;A\r", {{2, "done", "a;b"}}),
              "\xEF\xBB\xBFserial;unit-id;state;reason\r4B5800000001;A;done;\"a;b\"\r");
    EXPECT_EQ(reportOf("serial\tunit-id\n4B5800000001\tA\n", {{2, "done", ""}}),
              "serial\tunit-id\tstate\treason\n4B5800000001\tA\tdone\t\n");
}

TEST(UnitTableReport, KeepsEveryLineInItsPlace) {
    const std::string report =
        reportOf("\nserial,note\n\n4B5800000001,\"a\nb\"\n,\n4B5800000002,c", {{7, "done", ""}});
    EXPECT_EQ(report, "\nserial,note,state,reason\n\n4B5800000001,\"a\nb\",,\n,,,\n"
                      "4B5800000002,c,done,\n");
    EXPECT_EQ(readUnitTable(report).rows.back().line, 7U);
}

TEST(UnitTableReport, IsReadAsATableAgain) {
    const std::string text = "serial;internal-ip;note\r\n\r\n4B5800000001;192.0.2.41;\"two\r\n"
                             "lines; \"\"quoted\"\"\"\r\n4B5800000002;;\r\n";
    const std::string report = reportOf(text, {{3, "half", "“=1+1”, 'a'"}, {5, "unchanged", ""}});
    const UnitTable before = readUnitTable(text);
    const UnitTable after = readUnitTable(report);
    EXPECT_TRUE(after.complaints.empty());
    ASSERT_EQ(after.rows.size(), before.rows.size());
    for (std::size_t i = 0; i < after.rows.size(); ++i) {
        EXPECT_EQ(after.rows[i].line, before.rows[i].line);
        EXPECT_EQ(after.rows[i].serialNumber, before.rows[i].serialNumber);
        EXPECT_EQ(after.rows[i].edits.size(), before.rows[i].edits.size());
    }
    EXPECT_EQ(reportOfTable(after, std::vector<ReportedRow>{{3, "half", "“=1+1”, 'a'"},
                                                            {5, "unchanged", ""}}),
              report)
        << "a report of a report has no further columns";
}

TEST(UnitTableReport, LosesNothingOfALineWithTheWrongNumberOfCells) {
    EXPECT_EQ(reportOf("serial,unit-id\n4B5800000001\n4B5800000002,B,C,D\n",
                       {{2, "refused", "few"}, {3, "refused", "many"}}),
              "serial,unit-id,state,reason\n4B5800000001,,refused,few\n"
              "4B5800000002,B,refused,many,C,D\n");
}

TEST(UnitTableReport, OfATextThatIsNoTableHasOnlyItsColumns) {
    EXPECT_EQ(reportOf("\xFF\xFEs", {}), "");
}

TEST(UnitTableReport, IsMadeForRowsWithoutATableToo) {
    const std::vector<WantedRow> rows{
        {.line = 17,
         .serialNumber = "4B 58 00 00 00 01",
         .edits = {reportedEdit(UnitParameter::unitID, "A"),
                   reportedEdit(UnitParameter::serialNumber, "4B 58 00 00 00 09")}},
        {.line = 3,
         .serialNumber = "4B 58 00 00 00 02",
         .edits = {reportedEdit(UnitParameter::internalIPAddress, "192.0.2.41")}}};
    const UnitTable table = unitTableOfRows(rows);
    EXPECT_TRUE(table.complaints.empty());
    EXPECT_EQ(reportOfTable(table, std::vector<ReportedRow>{{2, "done", ""}, {3, "half", "why"}}),
              "serial,internal-ip,new-serial,unit-id,state,reason\r\n"
              "4B 58 00 00 00 01,,4B5800000009,A,done,\r\n"
              "4B 58 00 00 00 02,192.0.2.41,,,half,why\r\n");
}

TEST(UnitTableReport, LeavesTheCellEmptyOfAValueThatNoCellAsksFor) {
    ExactEdit bytes = reportedEdit(UnitParameter::unitID, "12"); // the digits, not the number
    bytes.edit.command = "^^IdU313200000000";
    const UnitTable table = unitTableOfRows(
        std::vector<WantedRow>{{.line = 2, .serialNumber = "4B 58 00 00 00 01", .edits = {bytes}}});
    EXPECT_TRUE(table.complaints.empty());
    EXPECT_EQ(reportOfTable(table, {}), "serial,unit-id,state,reason\r\n4B 58 00 00 00 01,,,\r\n");
}

} // namespace kx
