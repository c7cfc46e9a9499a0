// Cells of tables of units that are refused, and cells of two lines that cannot both be right.

#include "UnitTableFixture.h"

namespace kx {

class UnitTableReaderCells : public UnitTableTest {};

// --- Cells ---

TEST_F(UnitTableReaderCells, TextBehindAQuotationIsRefused) {
    EXPECT_EQ(complaintsAbout("serial,unit-id\n" + first + ",\"A\"B\n"),
              (std::vector<Told>{{2, "unit-id", textBehindQuote, "AB"}}));
    EXPECT_EQ(complaintsAbout("note,serial\n\"two\nlines\",\"" + first + "\"x\n"),
              (std::vector<Told>{{3, "serial", textBehindQuote, first + "x"}}))
        << "where the cell begins";
}

TEST_F(UnitTableReaderCells, ACellOfBlanksIsNotEmpty) {
    EXPECT_EQ(faultOfCell("unit-id", "  "), onlyBlanks);
    EXPECT_EQ(faultOfCell("internal-ip", "\t"), onlyBlanks);
    EXPECT_EQ(complaintsAbout("serial,unit-id\n ,A\n"),
              (std::vector<Told>{{2, "serial", onlyBlanks, " "}}));
}

TEST_F(UnitTableReaderCells, ABlankAtAnEndIsRefused) {
    EXPECT_EQ(faultOfCell("unit-id", "A "), blankAtEnd) << "the unit would be named so";
    EXPECT_EQ(faultOfCell("unit-id", " A"), blankAtEnd);
    EXPECT_EQ(faultOfCell("internal-ip", " 192.0.2.41"), blankAtEnd);
    EXPECT_EQ(complaintsAbout("serial\n" + first + " \n"),
              (std::vector<Told>{{2, "serial", blankAtEnd, first + " "}}));
    EXPECT_EQ(faultOfCell("unit-id", "A B"), empty);
}

TEST_F(UnitTableReaderCells, ACharacterThatNobodySeesIsRefused) {
    for (const char* cell : {"A\nB", "A\tB", "A\x1B", "A\u200E", "A\u2028", "\x7F"}) {
        EXPECT_EQ(faultOfCell("unit-id", cell), controlCharacter) << cell;
    }
    EXPECT_EQ(faultOfCell("unit-id", std::string("A\0B", 3)), controlCharacter);
}

TEST_F(UnitTableReaderCells, AValueThatTheConversionWouldChangeIsRefusedWithWhatItWouldBecome) {
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

TEST_F(UnitTableReaderCells, ATextThatIsNoSerialNumberIsRefused) {
    for (const char* cell : {"id:RACK7A", "4B 58 00 00 00", "4B 58-00 00 00 01", "4G5800000001"}) {
        EXPECT_EQ(complaintsAbout(std::string("serial\n") + cell + "\n"),
                  (std::vector<Told>{{2, "serial", notASerialNumber, cell}}));
    }
}

TEST_F(UnitTableReaderCells, ASerialNumberThatASpreadsheetHasDamagedIsToldByTheDamage) {
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

TEST_F(UnitTableReaderCells, AValueThatASpreadsheetHasDamagedIsToldByTheDamage) {
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

TEST_F(UnitTableReaderCells, AUnitHasOneLine) {
    EXPECT_EQ(
        complaintsAbout("serial,unit-id\n" + first + ",A\n\n4b5800000001,B\n" + first + ",C\n"),
        (std::vector<Told>{{4, "serial", serialNumberTwice, first, 2},
                           {5, "serial", serialNumberTwice, first, 2}}));
}

TEST_F(UnitTableReaderCells, ANewSerialNumberMustBeFreeInTheTable) {
    EXPECT_EQ(complaintsAbout("serial,new-serial\n" + first + ",4B5800000002\n" + second +
                              ",4B5800000009\n4B 58 00 00 00 03,4B5800000009\n"),
              (std::vector<Told>{{2, "new-serial", newSerialNumberTaken, second, 3},
                                 {4, "new-serial", newSerialNumberTaken, "4B 58 00 00 00 09", 3}}))
        << "also when the other unit gives its serial number up";
    EXPECT_TRUE(complaintsAbout("serial,new-serial\n" + first + "," + first + "\n").empty())
        << "it is the unit's own";
}

TEST_F(UnitTableReaderCells, AnAddressIsTakenOnce) {
    EXPECT_EQ(
        complaintsAbout("serial,internal-ip,internal-mac,destination-ip\n" + first +
                        ",192.0.2.41,02:00:00:00:00:0a,192.0.2.9\n" + second +
                        ",192.0.2.41,02-00-00-00-00-0A,192.0.2.9\n"),
        (std::vector<Told>{{3, "internal-ip", addressTwice, "192.0.2.41", 2},
                           {3, "internal-mac", hardwareAddressTwice, "02:00:00:00:00:0A", 2}}));
}

} // namespace kx
