#include "files/CSV.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

using Record = std::vector<std::string>;

std::string written(const Record& record) {
    return csvRecord(record);
}

} // namespace

TEST(CSV, FieldsStandBetweenCommasAndARecordEndsItsLine) {
    EXPECT_EQ(written({"a", "", "c"}), "a,,c\r\n");
}

TEST(CSV, AFieldThatWouldBreakTheTableIsQuoted) {
    EXPECT_EQ(written({"a,b", "say \"x\"", "two\nlines", "c\rd", " edge", "edge "}),
              "\"a,b\",\"say \"\"x\"\"\",\"two\nlines\",\"c\rd\",\" edge\",\"edge \"\r\n");
}

TEST(CSV, WhatIsWrittenIsReadBack) {
    const std::vector<Record> table{{"a", "", "c"},   {""},          {"a,b", "\"", "\"\"", "\r\n"},
                                    {"x\n", "\ny\r"}, {" ", "  z "}, {"é", std::string("\0", 1)}};
    std::string text;
    for (const Record& record : table) {
        text += csvRecord(record);
    }
    EXPECT_EQ(csvRecords(text), table);
}

TEST(CSV, ARecordOfOneEmptyFieldIsNoEmptyLine) {
    const std::vector<std::string> field{""};
    EXPECT_EQ(csvRecord(field), "\"\"\r\n");
    EXPECT_EQ(csvRecords(csvRecord(field)), std::vector<std::vector<std::string>>{field});
}

TEST(CSV, LinesMayEndWithALineFeedOrNotAtAll) {
    EXPECT_EQ(csvRecords("a,b\nc,d"), (std::vector<Record>{{"a", "b"}, {"c", "d"}}));
    EXPECT_EQ(csvRecords(""), std::vector<Record>{});
    EXPECT_EQ(csvRecords("a,"), (std::vector<Record>{{"a", ""}}));
}

TEST(CSV, AFaultyQuotationLosesNothing) {
    EXPECT_EQ(csvRecords("\"ab"), (std::vector<Record>{{"ab"}}));
    EXPECT_EQ(csvRecords("\"a\"b,c"), (std::vector<Record>{{"ab", "c"}}));
}

TEST(CSV, AnOldSystemsLinesEndWithACarriageReturn) {
    EXPECT_EQ(csvRecords("a,b\rc,d\r"), (std::vector<Record>{{"a", "b"}, {"c", "d"}}));
}

TEST(CSV, ADialectHasItsOwnSeparatorAndLineBreak) {
    const CSVDialect dialect{.separator = ';', .lineBreak = "\n"};
    EXPECT_EQ(csvRecord(Record{"a", "b;c", "1,5"}, dialect), "a;\"b;c\";\"1,5\"\n");
    const auto table = csvTable("a;\"b;c\";1,5\n", ';');
    ASSERT_EQ(table.size(), 1U);
    EXPECT_EQ(table[0].fields, (Record{"a", "b;c", "1,5"}));
}

TEST(CSV, ALineIsCountedAsAnEditorCountsIt) {
    const auto table = csvTable("a\n\"x\r\ny\nz\rz\",\"\n\"\r\n\nlast");
    ASSERT_EQ(table.size(), 4U);
    EXPECT_EQ(table[0].line, 1U);
    EXPECT_EQ(table[1].line, 2U);
    EXPECT_EQ(table[2].line, 7U) << "four line breaks within the record, and its own";
    EXPECT_EQ(table[2].fields, Record{""});
    EXPECT_EQ(table[3].line, 8U);
}

TEST(CSV, AQuotationThatNothingClosesIsToldWhereItBegins) {
    const auto table = csvTable("a,b\n1,\"two\nthree,4\n");
    ASSERT_EQ(table.size(), 2U);
    EXPECT_FALSE(table[0].fault.has_value());
    ASSERT_TRUE(table[1].fault.has_value());
    EXPECT_EQ(table[1].fault->line, 2U);
    EXPECT_EQ(table[1].fault->field, 1U);
    EXPECT_TRUE(table[1].fault->isOpen);
}

TEST(CSV, TextBehindAQuotationIsToldWithItsLine) {
    const auto table = csvTable("\"a\nb\",\"c\"d,\"e\"f\n");
    ASSERT_EQ(table.size(), 1U);
    ASSERT_TRUE(table[0].fault.has_value());
    EXPECT_EQ(table[0].fault->line, 2U);
    EXPECT_EQ(table[0].fault->field, 1U) << "the first of them";
    EXPECT_FALSE(table[0].fault->isOpen);
}

TEST(CSV, AQuotationMarkWithinAFieldIsText) {
    EXPECT_EQ(csvRecords("a\"b,c"), (std::vector<Record>{{"a\"b", "c"}}));
    EXPECT_FALSE(csvTable("a\"b,c").front().fault.has_value());
}

} // namespace kx
