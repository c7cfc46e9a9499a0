#include "support/Require.h"

#include "contracts/BrokenContract.h"
#include "doubles/RecordedSystemLog.h"
#include "support/SystemLog.h"
#include "support/TextFormat.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <source_location>
#include <string>

namespace kx {
namespace {

// A contract as modules state it. Returns the place of the check, to compare the report with it.
std::source_location checkPort(int port) {
    const auto here = std::source_location::current();
    require(port > 0, "(port > 0) && (port < 65536)", "Sources/UDPEcho");
    return here;
}

std::string reportOfBrokenContract() {
    return filledText(
        "Assertion failed: ((port > 0) && (port < 65536)), function %@, Sources/UDPEcho",
        {checkPort(1).function_name()});
}

TEST(Require, KeptContractSaysNothing) {
    const RecordedSystemLog log;
    checkPort(3520);
    EXPECT_TRUE(log.lines().empty());
}

TEST(Require, ReportNamesTheFunctionThatChecks) {
    EXPECT_NE(reportOfBrokenContract().find("checkPort"), std::string::npos);
}

TEST(Require, ThePatternOfABrokenContractIsOneWholeLine) {
    const testing::Matcher<const std::string&> pattern =
        testing::ContainsRegex(brokenContractPattern("(a > 0)", "Sources/UDPEcho"));
    const std::string line = "Assertion failed: ((a > 0)), function f(), Sources/UDPEcho";
    EXPECT_TRUE(pattern.Matches("before\n" + line + "\nafter\n"));
    EXPECT_FALSE(pattern.Matches(line + "X\n"));
    EXPECT_FALSE(pattern.Matches("Assertion failed: ((a > 0)), function f()\n, Sources/UDPEcho\n"));
    EXPECT_FALSE(pattern.Matches("Assertion failed: (a > 0), function f(), Sources/UDPEcho\n"));
}

TEST(RequireDeathTest, BrokenContractWritesOneLineAndAborts) {
    const auto breakContract = [] {
        installSystemLog(nullptr);
        checkPort(0);
    };
    EXPECT_EXIT(breakContract(), testing::KilledBySignal(SIGABRT),
                testing::Eq(reportOfBrokenContract() + "\n"));
}

TEST(RequireDeathTest, BrokenContractIsReportedToTheInstalledSink) {
    class Marked final : public SystemLog {
    public:
        void write(std::string_view line) override {
            std::fprintf(stderr, "<%s>", std::string(line).c_str());
        }
    };
    const auto breakContract = [] {
        Marked marked;
        installSystemLog(&marked);
        checkPort(0);
    };
    EXPECT_EXIT(breakContract(), testing::KilledBySignal(SIGABRT),
                testing::Eq(filledText("<%@>", {reportOfBrokenContract()})));
}

} // namespace
} // namespace kx
