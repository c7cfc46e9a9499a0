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

TEST(CSV, LinesMayEndWithALineFeedOrNotAtAll) {
    EXPECT_EQ(csvRecords("a,b\nc,d"), (std::vector<Record>{{"a", "b"}, {"c", "d"}}));
    EXPECT_EQ(csvRecords(""), std::vector<Record>{});
    EXPECT_EQ(csvRecords("a,"), (std::vector<Record>{{"a", ""}}));
}

TEST(CSV, AFaultyQuotationLosesNothing) {
    EXPECT_EQ(csvRecords("\"ab"), (std::vector<Record>{{"ab"}}));
    EXPECT_EQ(csvRecords("\"a\"b,c"), (std::vector<Record>{{"ab", "c"}}));
}

} // namespace kx
