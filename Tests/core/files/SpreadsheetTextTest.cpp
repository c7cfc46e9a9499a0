#include "files/SpreadsheetText.h"

#include <gtest/gtest.h>

namespace kx {

class SpreadsheetText : public testing::Test {
protected:
    using enum TableFault;

    static std::optional<TableFault> damageOfPort(std::string_view cell) {
        return damageOfSpreadsheet(cell, ValueForm::anyPort);
    }
};

TEST_F(SpreadsheetText, ALargeNumberBecomesAPowerOfTen) {
    for (const char* cell : {"4.7E+11", "4,7E+11", "4E11", "-1.5e-3", "1E5"}) {
        EXPECT_EQ(damageOfPort(cell), scientificNotation) << cell;
    }
    for (const char* cell : {"E11", "4E", "4.E11", "4.7E+11x", "FE"}) {
        EXPECT_NE(damageOfPort(cell), scientificNotation) << cell;
    }
}

TEST_F(SpreadsheetText, WhatLooksLikeADayBecomesADate) {
    for (const char* cell :
         {"11-Jan", "Jan-11", "11. Mai", "1-Sept.", "11-Jan-26", "Dez 26", "2026-01-11",
          "11.01.2026", "1/11/2026", "1/11", "11-01-26", "11.okt"}) {
        EXPECT_EQ(damageOfPort(cell), date) << cell;
    }
    for (const char* cell : {"192.0.2.41", "192.0.2", "1-1", "Jan", "Jan-Feb", "11-Janosch7", "-/",
                             "RACK-1", "1-2-3-4", "20260111/1"}) {
        EXPECT_NE(damageOfPort(cell), date) << cell;
    }
}

TEST_F(SpreadsheetText, DigitsAreShownInGroupsAndWithDecimalPlaces) {
    for (const char* cell : {"10,000", "10.000", "10 000", "10'000", "10\u00A0000", "1,000,000"}) {
        EXPECT_EQ(damageOfPort(cell), groupedDigits) << cell;
    }
    for (const char* cell : {"3520.0", "3520,00", "10,00", "1000,000"}) {
        EXPECT_EQ(damageOfPort(cell), decimalPlaces) << cell;
    }
    EXPECT_EQ(damageOfPort("10000"), std::nullopt);
}

TEST_F(SpreadsheetText, ANumberLosesTheZerosAtItsBeginning) {
    EXPECT_EQ(damageOfSpreadsheet("4758000001", ValueForm::serialNumber), lostZeros);
    EXPECT_EQ(damageOfSpreadsheet("1", ValueForm::hardwareAddress), lostZeros);
    EXPECT_EQ(damageOfSpreadsheet("1", ValueForm::unitID), std::nullopt)
        << "nobody can know it there";
}

TEST_F(SpreadsheetText, AnAddressOfGroupsOfThreeDigitsLosesItsDots) {
    EXPECT_EQ(damageOfSpreadsheet("192168178100", ValueForm::ipv4Address), lostDots);
    EXPECT_EQ(damageOfSpreadsheet("1168178100", ValueForm::ipv4Address), lostDots);
    EXPECT_EQ(damageOfSpreadsheet("168178100", ValueForm::ipv4Address), std::nullopt)
        << "an address has four numbers";
    EXPECT_EQ(damageOfSpreadsheet("1921", ValueForm::ipv4Address), std::nullopt);
}

TEST_F(SpreadsheetText, MarksOfTheSpreadsheetStandInThePlaceOfAValue) {
    for (const char* cell : {"###", "################"}) {
        EXPECT_EQ(sightOfSpreadsheet(cell), tooNarrow) << cell;
    }
    for (const char* cell :
         {"#REF!", "#NAME?", "#N/A", "#NV", "#DIV/0!", "#WERT!", "#ÜBERLAUF!", "Err:508"}) {
        EXPECT_EQ(sightOfSpreadsheet(cell), spreadsheetError) << cell;
    }
    for (const char* cell : {"#", "##", "#1", "#A!", "#RACK7", "A#REF!", "Err:", "Err:A", ""}) {
        EXPECT_EQ(sightOfSpreadsheet(cell), std::nullopt) << cell;
    }
}

TEST_F(SpreadsheetText, OtherDamageHasItsNameToo) {
    EXPECT_EQ(damageOfPort("TRUE"), truthValue);
    EXPECT_EQ(damageOfPort("falsch"), truthValue);
    EXPECT_EQ(damageOfPort("'3520"), leadingApostrophe);
    EXPECT_EQ(damageOfSpreadsheet("'3520", ValueForm::unitID), std::nullopt);
    EXPECT_EQ(damageOfPort("35\u202F20"), otherBlank);
    EXPECT_EQ(damageOfPort("3520x"), std::nullopt);
}

TEST_F(SpreadsheetText, APlainNumberAndAPlainNameAreKept) {
    for (const char* text : {"0", "7", "255", "RACK7A", "a", "U-1", "Rm 7", "Tür 1", "May", "jan",
                             "A=1", "Tru", "Mayor", "B.1"}) {
        EXPECT_TRUE(isKeptBySpreadsheets(text)) << text;
    }
}

TEST_F(SpreadsheetText, WhatLooksLikeSomethingElseIsNotKept) {
    for (const char* text :
         {"",     "007",   "00",    "1E5",   "TRUE",  "true", "Faux",  "=1+1", "+1",
          "-1",   "@A",    "'1",    " A",    "A ",    "$5",   "(5)",   "1/2",  "1.5",
          "Jan1", "Mar-1", "MAI 5", "SEPT1", "#REF!", "5%",   "Ärger", "٥",    ".5"}) {
        EXPECT_FALSE(isKeptBySpreadsheets(text)) << text;
    }
}

} // namespace kx
