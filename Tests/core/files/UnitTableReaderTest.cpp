#include "UnitTableFixture.h"

#include <string>
#include <vector>

namespace kx {

class UnitTableReader : public UnitTableTest {};

TEST_F(UnitTableReader, ReadsTheTableOfTheManual) {
    EXPECT_EQ(wantsIn("serial,unit-id,internal-ip,destination-ip,destination-port,note\n"
                      "4B 58 00 00 00 01,RACK7A,192.0.2.41,192.0.2.9,3521,door side\n"
                      "4B 58 00 00 00 02,RACK7B,,192.0.2.9,3521,\n"),
              (Wants{"2 4B 58 00 00 00 01, unit-id=RACK7A, internal-ip=192.0.2.41, "
                     "destination-ip=192.0.2.9, destination-port=3521",
                     "3 4B 58 00 00 00 02, unit-id=RACK7B, destination-ip=192.0.2.9, "
                     "destination-port=3521"}));
}

TEST_F(UnitTableReader, EveryParameterHasAColumnByItsIdentifierAndByItsName) {
    const std::string line = "192.0.2.9,02:00:00:00:00:01,3522,10000,192.0.2.41,"
                             "02:4b:58:00:00:01,4B5800000001,7\n";
    const Wants wants{"2 4B 58 00 00 00 01, destination-ip=192.0.2.9, "
                      "destination-mac=02:00:00:00:00:01, destination-port=3522, "
                      "device-port=10000, internal-ip=192.0.2.41, internal-mac=02:4B:58:00:00:01, "
                      "unit-id=7"};
    std::string identifiers;
    std::string names;
    for (const ParameterDescription& row : parameterTable) {
        identifiers += (identifiers.empty() ? "" : ",") + std::string(row.identifier);
        names += (names.empty() ? "" : ",") + std::string(row.name);
    }
    EXPECT_EQ(wantsIn(identifiers + "\n" + line), wants);
    EXPECT_EQ(wantsIn(names + "\n" + line), wants);
}

TEST_F(UnitTableReader, ColumnsStandInAnyOrderAndLetterCase) {
    EXPECT_EQ(wantsIn("Unit-ID, NOTE ,Serial\nA,left,4b-58-00-00-00-01\n"),
              (Wants{"2 4B 58 00 00 00 01, unit-id=A"}));
}

TEST_F(UnitTableReader, ANewSerialNumberIsAnEdit) {
    EXPECT_EQ(wantsIn("serial,new-serial\n" + first + ",4B5800000009\n"),
              (Wants{"2 4B 58 00 00 00 01, serial=4B 58 00 00 00 09"}));
}

TEST_F(UnitTableReader, ColumnsThatAreNoParametersAreIgnored) {
    EXPECT_EQ(wantsIn("serial,note,state,reason,unit_id_bytes,source_ip,interface,answered_ms\n" +
                      first + ",=1+1,done,\x1B,4.7E+11,######,#REF!,1.5\n"),
              (Wants{"2 4B 58 00 00 00 01"}));
}

TEST_F(UnitTableReader, TheHeaderTellsTheSeparator) {
    for (const char separator : {',', ';', '\t'}) {
        std::string text = "serial|unit-id|note\n" + first + "|A|\"x|y,z;\"\n";
        for (char& character : text) {
            character = character == '|' ? separator : character;
        }
        const UnitTable table = wholeTable(text);
        EXPECT_EQ(table.dialect.separator, separator);
        ASSERT_EQ(table.rows.size(), 1U) << separator;
        EXPECT_EQ(wantsOf(table.rows[0]), "2 4B 58 00 00 00 01, unit-id=A");
    }
}

TEST_F(UnitTableReader, TheHeaderMayStandBehindEmptyLines) {
    EXPECT_EQ(wantsIn("\n\r\nserial;unit-id\n" + first + ";A\n"),
              (Wants{"4 4B 58 00 00 00 01, unit-id=A"}));
}

TEST_F(UnitTableReader, AQuotedHeaderMayHoldOtherSeparators) {
    EXPECT_EQ(complaintsAbout("\"a;b\",serial\n"),
              (std::vector<Told>{{1, "a;b", unknownColumn, "a;b"}}));
}

TEST_F(UnitTableReader, AMarkOfByteOrderAndEveryLineBreakAreTaken) {
    for (const std::string lineBreak : {"\r\n", "\n", "\r"}) {
        const UnitTable table = wholeTable("\xEF\xBB\xBF"
                                           "serial,unit-id" +
                                           lineBreak + first + ",A" + lineBreak + second + ",B");
        EXPECT_TRUE(table.hasByteOrderMark);
        EXPECT_EQ(table.dialect.lineBreak, lineBreak);
        ASSERT_EQ(table.rows.size(), 2U);
        EXPECT_EQ(wantsOf(table.rows[1]), "3 4B 58 00 00 00 02, unit-id=B");
    }
    EXPECT_FALSE(wholeTable("serial\n").hasByteOrderMark);
}

TEST_F(UnitTableReader, LinesKeepTheNumbersThatAnEditorShows) {
    EXPECT_EQ(wantsIn("\nserial,note,unit-id\r\n\r\n" + first +
                      ",\"two\r\nlines\",A\r\n,,\r\n\r\n" + second + ",,B\r\n"),
              (Wants{"4 4B 58 00 00 00 01, unit-id=A", "8 4B 58 00 00 00 02, unit-id=B"}))
        << "empty lines and those of separators alone say nothing";
}

TEST_F(UnitTableReader, ATableWithoutUnitsAsksForNothing) {
    EXPECT_TRUE(wholeTable("serial,unit-id\n").rows.empty());
}

// --- The file ---

TEST_F(UnitTableReader, AFileWithoutAnyTextIsEmpty) {
    for (const char* text : {"", "\xEF\xBB\xBF", "\n\r\n", ",,\n;\n"}) {
        const auto told = complaintsAbout(text);
        ASSERT_EQ(told.size(), 1U) << text;
        EXPECT_NE(told.front().fault, noSerialColumn);
    }
    EXPECT_EQ(complaintsAbout(""), (std::vector<Told>{{1, "", empty, ""}}));
}

TEST_F(UnitTableReader, UTF16IsToldByItsName) {
    using namespace std::string_view_literals;
    for (const std::string_view text :
         {"\xFF\xFEs\0e\0"sv, "\xFE\xFF\0s\0e"sv, "s\0e\0"sv, "\0s\0e"sv}) {
        EXPECT_EQ(complaintsAbout(text), (std::vector<Told>{{1, "", utf16, ""}}));
    }
}

TEST_F(UnitTableReader, BytesThatAreNotUTF8AreToldWhereTheyStandFirst) {
    EXPECT_EQ(complaintsAbout("serial,note\n" + first + ",\"a\nb\"\n" + second + ",T\xFCr\n"),
              (std::vector<Told>{{4, "note", notUTF8, "T\xFCr"}}))
        << "also in a column that is ignored: the whole file is of another encoding";
    EXPECT_EQ(complaintsAbout("serial,note\n" + first + ",\"\xC3\"\xA9\n"),
              (std::vector<Told>{{2, "note", textBehindQuote, "\u00E9"}}))
        << "a quotation mark within a character";
    EXPECT_EQ(complaintsAbout("serial,\xFC\n"), (std::vector<Told>{{1, "\xFC", notUTF8, "\xFC"}}));
    EXPECT_TRUE(readUnitTable("serial,\xFC\n").records.empty());
}

TEST_F(UnitTableReader, AQuotationMarkThatNothingClosesIsToldWhereItBegins) {
    EXPECT_EQ(complaintsAbout("serial,unit-id\n" + first + ",A\n" + second + ",\"B\nC,D\n"),
              (std::vector<Told>{{3, "unit-id", quoteNotClosed, "B\nC,D\n"}}));
    EXPECT_EQ(complaintsAbout("serial,\"unit-id\n"),
              (std::vector<Told>{{1, "unit-id\n", quoteNotClosed, "unit-id\n"}}));
}

TEST_F(UnitTableReader, AMissingHeaderIsToldOnce) {
    EXPECT_EQ(complaintsAbout(first + ",RACK7A,192.0.2.41\n"),
              (std::vector<Told>{{1, "", noHeader, first}}));
}

// --- The header ---

TEST_F(UnitTableReader, AColumnThatNobodyKnowsIsRefused) {
    EXPECT_EQ(complaintsAbout("serial,unit_id,rack\n" + first + ",A,7\n"),
              (std::vector<Told>{{1, "unit_id", unknownColumn, "unit_id"},
                                 {1, "rack", unknownColumn, "rack"}}));
}

TEST_F(UnitTableReader, ADoubledColumnIsRefusedUnderAnyName) {
    EXPECT_EQ(complaintsAbout("serial,unit-id,note,Unit ID,serial number,note\n"),
              (std::vector<Told>{{1, "Unit ID", doubledColumn, "Unit ID"},
                                 {1, "serial number", doubledColumn, "serial number"},
                                 {1, "note", doubledColumn, "note"}}));
}

TEST_F(UnitTableReader, ATableNeedsTheColumnOfSerialNumbers) {
    EXPECT_EQ(complaintsAbout("new-serial,unit-id\n" + first + ",A\n"),
              (std::vector<Told>{{1, "", noSerialColumn, ""}}));
}

TEST_F(UnitTableReader, AColumnWithoutANameMustBeEmpty) {
    EXPECT_EQ(wantsIn("serial,unit-id,,\n" + first + ",A,,\n"),
              (Wants{"2 4B 58 00 00 00 01, unit-id=A"}));
    EXPECT_EQ(complaintsAbout("serial,unit-id,,\n" + first + ",A,,x\n"),
              (std::vector<Told>{{2, "", cellWithoutColumn, "x"}}));
}

// --- Lines ---

TEST_F(UnitTableReader, ALineHasAsManyCellsAsTheHeader) {
    EXPECT_EQ(complaintsAbout("serial,unit-id,note\n" + first + ",A\n" + second + ",B,,\n"),
              (std::vector<Told>{{2, "", tooFewCells, ""}, {3, "", tooManyCells, ""}}));
}

TEST_F(UnitTableReader, ALineNeedsASerialNumber) {
    EXPECT_EQ(complaintsAbout("unit-id,serial,note\n,,Rack 7\n"),
              (std::vector<Told>{{2, "serial", noSerialNumber, ""}}));
}

TEST_F(UnitTableReader, EveryFaultOfALineIsTold) {
    EXPECT_EQ(complaintsAbout("serial,unit-id,internal-ip\n1,SEVEN77,300.0.0.1\n"),
              (std::vector<Told>{{2, "serial", lostZeros, "1"},
                                 {2, "unit-id", changedValue, "SEVEN77"},
                                 {2, "internal-ip", changedValue, "300.0.0.1"}}));
}

TEST_F(UnitTableReader, ComplaintsStandInTheOrderOfLines) {
    EXPECT_EQ(complaintsAbout("serial,internal-ip\n" + first + ",192.0.2.41\n" + second +
                              ",192.0.2.41\n4B5800000003,here\n"),
              (std::vector<Told>{{3, "internal-ip", addressTwice, "192.0.2.41", 2},
                                 {4, "internal-ip", changedValue, "here"}}));
}

TEST_F(UnitTableReader, TheColumnIsNamedAsTheHeaderNamesIt) {
    EXPECT_EQ(complaintsAbout("Serial Number; Device Port NUMBER\n" + first + ";port\n"),
              (std::vector<Told>{{2, " Device Port NUMBER", changedValue, "port"}}));
}

TEST_F(UnitTableReader, RowsWithoutComplaintsAreRead) {
    const UnitTable table =
        readUnitTable("serial,unit-id\n" + first + ",A\n1,B\n" + second + ",C\n");
    EXPECT_EQ(table.complaints.size(), 1U);
    ASSERT_EQ(table.rows.size(), 2U);
    EXPECT_EQ(wantsOf(table.rows[0]), "2 4B 58 00 00 00 01, unit-id=A");
    EXPECT_EQ(wantsOf(table.rows[1]), "4 4B 58 00 00 00 02, unit-id=C");
}

} // namespace kx
