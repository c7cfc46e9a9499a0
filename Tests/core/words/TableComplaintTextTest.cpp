#include "words/TableComplaintText.h"

#include "files/UnitTableReader.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace kx {

namespace {

// The sentence about the only fault of a table.
std::string complaintAbout(std::string_view table) {
    const auto complaints = readUnitTable(table).complaints;
    EXPECT_EQ(complaints.size(), 1U) << table;
    return complaints.empty() ? std::string() : textOfComplaint(complaints.front());
}

} // namespace

TEST(TableComplaintText, EveryFaultHasASentenceOfItsOwn) {
    std::set<std::string> texts;
    constexpr int last = static_cast<int>(TableFault::hardwareAddressTwice);
    for (int number = 0; number <= last; ++number) {
        const std::string text = faultOfTable(
            {.column = "K", .fault = static_cast<TableFault>(number), .cell = "C", .otherLine = 7});
        EXPECT_TRUE(text.ends_with('.')) << number << ": " << text;
        EXPECT_TRUE(texts.insert(text).second) << text;
    }
}

TEST(TableComplaintText, ACellIsToldByItsLineAndTheNameOfItsColumn) {
    EXPECT_EQ(complaintAbout("serial;Unit ID\n4B5800000001;4.7E+11\n"),
              "Line 2, Unit ID: “4.7E+11” is a number that a spreadsheet has shortened. Type it "
              "again in a cell that is formatted as text.");
    EXPECT_EQ(complaintAbout("serial,internal-ip\n4B5800000001,192.0.2.41\n"
                             "4B5800000002,192.0.2.41\n"),
              "Line 3, internal-ip: Line 2 has the same address.");
}

TEST(TableComplaintText, AValueIsToldWithTheOneThatAUnitWouldGet) {
    const std::string text = complaintAbout("serial,destination-port\n4B5800000001,3524\n");
    EXPECT_TRUE(text.starts_with("Line 2, destination-port: A unit would get another value than "
                                 "“3524”."))
        << text;
    EXPECT_NE(text.find("3520"), std::string::npos) << text;
}

TEST(TableComplaintText, ALineIsToldWithoutAColumn) {
    EXPECT_EQ(complaintAbout("serial,note\n4B5800000001\n"),
              "Line 2: The line has fewer cells than the first one.");
    EXPECT_EQ(complaintAbout(""), "Line 1: The file is empty.");
    EXPECT_EQ(complaintAbout("serial,\n4B5800000001,x\n"),
              "Line 2: “x” stands in a column without a name.");
}

TEST(TableComplaintText, ForeignTextCannotHideOrForgeASentence) {
    EXPECT_EQ(complaintAbout("serial,\x1B[2J\n"),
              "Line 1, \uFFFD[2J: “\uFFFD[2J” is no name of a column.");
    EXPECT_EQ(complaintAbout("serial,T\xFCr\n"),
              "Line 1, T\uFFFDr: The cell is not in UTF-8. Save the file as CSV in UTF-8.");
}

} // namespace kx
