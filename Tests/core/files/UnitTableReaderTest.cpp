#include "files/UnitTableReader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kx {

class UnitTableReader : public testing::Test {
protected:
    using enum TableFault;

    static inline const std::string first = "4B 58 00 00 00 01";
    static inline const std::string second = "4B 58 00 00 00 02";

    // A complaint in one word: line, column, fault, cell, other line.
    struct Told {
        std::size_t line = 0;
        std::string column;
        TableFault fault = empty;
        std::string cell;
        std::size_t otherLine = 0;

        friend bool operator==(const Told&, const Told&) = default;
        friend std::ostream& operator<<(std::ostream& stream, const Told& told) {
            return stream << "line " << told.line << ", column " << told.column << ", fault "
                          << static_cast<int>(told.fault) << ", cell " << told.cell
                          << ", other line " << told.otherLine;
        }
    };

    static std::vector<Told> complaintsAbout(std::string_view text) {
        std::vector<Told> told;
        for (const TableComplaint& complaint : readUnitTable(text).complaints) {
            told.push_back({complaint.line, complaint.column, complaint.fault, complaint.cell,
                            complaint.otherLine});
        }
        return told;
    }

    // The complaints about one cell of an otherwise right line.
    static std::vector<Told> complaintsAboutCell(const std::string& column,
                                                 const std::string& cell) {
        const std::string text = "serial," + column + "\n" + first + ",\"" + cell + "\"\n";
        return complaintsAbout(text);
    }

    static TableFault faultOfCell(const std::string& column, const std::string& cell) {
        const auto told = complaintsAboutCell(column, cell);
        if (told.empty()) {
            return empty;
        }
        EXPECT_EQ(told.size(), 1U);
        EXPECT_EQ(told.front(), (Told{2, column, told.front().fault, cell}));
        return told.front().fault;
    }

    static UnitTable wholeTable(std::string_view text) {
        UnitTable table = readUnitTable(text);
        EXPECT_TRUE(table.complaints.empty()) << complaintsAbout(text).front();
        return table;
    }

    // What a row wants: the identifiers and the values that units then show.
    static std::string wantsOf(const WantedRow& row) {
        std::string text = std::to_string(row.line) + ' ' + row.serialNumber;
        for (const ExactEdit& edit : row.edits) {
            text += ", " + std::string(descriptionOf(edit.edit.parameter).identifier) + '=' +
                    edit.edit.expectedText.value_or("?");
        }
        return text;
    }

    static std::vector<std::string> wantsIn(std::string_view text) {
        std::vector<std::string> wants;
        for (const WantedRow& row : wholeTable(text).rows) {
            wants.push_back(wantsOf(row));
        }
        return wants;
    }

    using Wants = std::vector<std::string>;
};

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

// --- Cells ---

TEST_F(UnitTableReader, TextBehindAQuotationIsRefused) {
    EXPECT_EQ(complaintsAbout("serial,unit-id\n" + first + ",\"A\"B\n"),
              (std::vector<Told>{{2, "unit-id", textBehindQuote, "AB"}}));
    EXPECT_EQ(complaintsAbout("note,serial\n\"two\nlines\",\"" + first + "\"x\n"),
              (std::vector<Told>{{3, "serial", textBehindQuote, first + "x"}}))
        << "where the cell begins";
}

TEST_F(UnitTableReader, ACellOfBlanksIsNotEmpty) {
    EXPECT_EQ(faultOfCell("unit-id", "  "), onlyBlanks);
    EXPECT_EQ(faultOfCell("internal-ip", "\t"), onlyBlanks);
    EXPECT_EQ(complaintsAbout("serial,unit-id\n ,A\n"),
              (std::vector<Told>{{2, "serial", onlyBlanks, " "}}));
}

TEST_F(UnitTableReader, ABlankAtAnEndIsRefused) {
    EXPECT_EQ(faultOfCell("unit-id", "A "), blankAtEnd) << "the unit would be named so";
    EXPECT_EQ(faultOfCell("unit-id", " A"), blankAtEnd);
    EXPECT_EQ(faultOfCell("internal-ip", " 192.0.2.41"), blankAtEnd);
    EXPECT_EQ(complaintsAbout("serial\n" + first + " \n"),
              (std::vector<Told>{{2, "serial", blankAtEnd, first + " "}}));
    EXPECT_EQ(faultOfCell("unit-id", "A B"), empty);
}

TEST_F(UnitTableReader, ACharacterThatNobodySeesIsRefused) {
    for (const char* cell : {"A\nB", "A\tB", "A\x1B", "A\u200E", "A\u2028", "\x7F"}) {
        EXPECT_EQ(faultOfCell("unit-id", cell), controlCharacter) << cell;
    }
    EXPECT_EQ(faultOfCell("unit-id", std::string("A\0B", 3)), controlCharacter);
}

TEST_F(UnitTableReader, AValueThatTheConversionWouldChangeIsRefusedWithWhatItWouldBecome) {
    const auto table = readUnitTable("serial,destination-port\n" + first + ",3524\n");
    ASSERT_EQ(table.complaints.size(), 1U);
    EXPECT_EQ(table.complaints[0].fault, changedValue);
    ASSERT_TRUE(table.complaints[0].edit.has_value());
    EXPECT_EQ(table.complaints[0].edit->edit.value, "3520");
    EXPECT_EQ(faultOfCell("unit-id", "SEVEN77"), changedValue);
    EXPECT_EQ(faultOfCell("unit-id", "256"), changedValue) << "it would not show as a number";
    EXPECT_EQ(faultOfCell("unit-id", "007"), changedValue);
    EXPECT_EQ(faultOfCell("unit-id", "7ABCDE"), changedValue) << "it would be read as 7";
    EXPECT_EQ(faultOfCell("internal-ip", "192.0.002.041"), changedValue);
    EXPECT_EQ(faultOfCell("internal-ip", "192.0.2"), changedValue);
    EXPECT_EQ(faultOfCell("internal-mac", "02:00:00:00:00"), changedValue);
    EXPECT_EQ(faultOfCell("device-port", "70000"), changedValue);
    EXPECT_EQ(faultOfCell("new-serial", "4B 58"), changedValue);
}

TEST_F(UnitTableReader, ATextThatIsNoSerialNumberIsRefused) {
    for (const char* cell : {"id:RACK7A", "4B 58 00 00 00", "4B 58-00 00 00 01", "4G5800000001"}) {
        EXPECT_EQ(complaintsAbout(std::string("serial\n") + cell + "\n"),
                  (std::vector<Told>{{2, "serial", notASerialNumber, cell}}));
    }
}

TEST_F(UnitTableReader, ASerialNumberThatASpreadsheetHasDamagedIsToldByTheDamage) {
    const auto faultOf = [](const std::string& cell) {
        const auto told = complaintsAbout("serial;note\n" + cell + ";\n");
        return told.size() == 1 ? told.front().fault : empty;
    };
    EXPECT_EQ(faultOf("4.7E+11"), scientificNotation);
    EXPECT_EQ(faultOf("4,758E+11"), scientificNotation);
    EXPECT_EQ(faultOf("4758000001"), lostZeros);
    EXPECT_EQ(faultOf("######"), tooNarrow);
    EXPECT_EQ(faultOf("#REF!"), spreadsheetError);
    EXPECT_EQ(faultOf("'4B5800000001"), leadingApostrophe);
    EXPECT_EQ(faultOf("4B\u00A058\u00A000\u00A000\u00A000\u00A001"), otherBlank);
    EXPECT_EQ(faultOf("475,800,000,001"), groupedDigits);
    EXPECT_EQ(faultOf("4758000000012"), notASerialNumber) << "it has lost nothing";
    EXPECT_EQ(faultOf("475800000001"), empty) << "twelve digits are a serial number";
    EXPECT_EQ(faultOf("47E800000001"), empty) << "these too, whatever a spreadsheet takes them for";
}

TEST_F(UnitTableReader, AValueThatASpreadsheetHasDamagedIsToldByTheDamage) {
    EXPECT_EQ(faultOfCell("device-port", "10,000"), groupedDigits);
    EXPECT_EQ(faultOfCell("device-port", "10.000"), groupedDigits);
    EXPECT_EQ(faultOfCell("destination-port", "3 521"), groupedDigits);
    EXPECT_EQ(faultOfCell("destination-port", "3521.00"), decimalPlaces);
    EXPECT_EQ(faultOfCell("destination-port", "3.521E+03"), scientificNotation);
    EXPECT_EQ(faultOfCell("destination-port", "WAHR"), truthValue);
    EXPECT_EQ(faultOfCell("destination-port", "22.08.1909"), date);
    EXPECT_EQ(faultOfCell("unit-id", "11-Jan"), date);
    EXPECT_EQ(faultOfCell("unit-id", "2026-01-11"), date);
    EXPECT_EQ(faultOfCell("unit-id", "1E+05"), scientificNotation);
    EXPECT_EQ(faultOfCell("unit-id", "######"), tooNarrow) << "although units could be named so";
    EXPECT_EQ(faultOfCell("unit-id", "#REF!"), spreadsheetError);
    EXPECT_EQ(faultOfCell("unit-id", "#NAME?"), spreadsheetError);
    EXPECT_EQ(faultOfCell("internal-ip", "192168178100"), lostDots);
    EXPECT_EQ(faultOfCell("internal-mac", "20000000001"), lostZeros);
    EXPECT_EQ(faultOfCell("unit-id", "Jan-11"), empty) << "this is a name of six bytes";
}

// --- Two lines ---

TEST_F(UnitTableReader, AUnitHasOneLine) {
    EXPECT_EQ(
        complaintsAbout("serial,unit-id\n" + first + ",A\n\n4b5800000001,B\n" + first + ",C\n"),
        (std::vector<Told>{{4, "serial", serialNumberTwice, first, 2},
                           {5, "serial", serialNumberTwice, first, 2}}));
}

TEST_F(UnitTableReader, ANewSerialNumberMustBeFreeInTheTable) {
    EXPECT_EQ(complaintsAbout("serial,new-serial\n" + first + ",4B5800000002\n" + second +
                              ",4B5800000009\n4B 58 00 00 00 03,4B5800000009\n"),
              (std::vector<Told>{{2, "new-serial", newSerialNumberTaken, second, 3},
                                 {4, "new-serial", newSerialNumberTaken, "4B 58 00 00 00 09", 3}}))
        << "also when the other unit gives its serial number up";
    EXPECT_TRUE(complaintsAbout("serial,new-serial\n" + first + "," + first + "\n").empty())
        << "it is the unit's own";
}

TEST_F(UnitTableReader, AnAddressIsTakenOnce) {
    EXPECT_EQ(
        complaintsAbout("serial,internal-ip,internal-mac,destination-ip\n" + first +
                        ",192.0.2.41,02:00:00:00:00:0a,192.0.2.9\n" + second +
                        ",192.0.2.41,02-00-00-00-00-0A,192.0.2.9\n"),
        (std::vector<Told>{{3, "internal-ip", addressTwice, "192.0.2.41", 2},
                           {3, "internal-mac", hardwareAddressTwice, "02:00:00:00:00:0A", 2}}));
}

} // namespace kx
