// The contract of support/SystemLog.h: tests that every system log must pass.
//
// A test program runs them against its log by
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(Syslog, SystemLogContract, SyslogTrait);
//
// with a trait that is made anew for each test and has
//
//     SystemLog& log();
//     // Everything written, line by line, without the head that the log puts before a line.
//     std::vector<std::string> lines();

#pragma once

#include "support/SystemLog.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace kx {

template<typename Trait>
class SystemLogContract : public testing::Test {
protected:
    Trait trait;
};

TYPED_TEST_SUITE_P(SystemLogContract);

TYPED_TEST_P(SystemLogContract, LinesComeOutAsTheyWentInAndInTheirOrder) {
    this->trait.log().write("first");
    this->trait.log().write("second, \xC3\xA9t\xC3\xA9");
    EXPECT_EQ(this->trait.lines(),
              (std::vector<std::string>{"first", "second, \xC3\xA9t\xC3\xA9"}));
}

TYPED_TEST_P(SystemLogContract, PercentSignsAreNoFormat) {
    this->trait.log().write("100% of %s and %n");
    EXPECT_EQ(this->trait.lines(), std::vector<std::string>{"100% of %s and %n"});
}

TYPED_TEST_P(SystemLogContract, OnlyTheGivenBytesAreWritten) {
    const std::string_view longer = "line and more";
    this->trait.log().write(longer.substr(0, 4));
    EXPECT_EQ(this->trait.lines(), std::vector<std::string>{"line"});
}

TYPED_TEST_P(SystemLogContract, EmptyLinesAndLongLinesAreLinesToo) {
    const std::string longLine(5000, 'x');
    this->trait.log().write("");
    this->trait.log().write(longLine);
    EXPECT_EQ(this->trait.lines(), (std::vector<std::string>{"", longLine}));
}

TYPED_TEST_P(SystemLogContract, OneCallIsOneLineWhateverTheTextHolds) {
    using namespace std::string_view_literals;
    this->trait.log().write("zero\0byte, two\r\nlines, \x1B[31mred, tab\tand \x7F"sv);
    this->trait.log().write("next");
    EXPECT_EQ(this->trait.lines(),
              (std::vector<std::string>{R"(zero\x00byte, two\x0D\x0Alines, \x1B[31mred, tab)"
                                        "\t"
                                        R"(and \x7F)",
                                        "next"}));
}

REGISTER_TYPED_TEST_SUITE_P(SystemLogContract, LinesComeOutAsTheyWentInAndInTheirOrder,
                            PercentSignsAreNoFormat, OnlyTheGivenBytesAreWritten,
                            EmptyLinesAndLongLinesAreLinesToo,
                            OneCallIsOneLineWhateverTheTextHolds);

} // namespace kx
