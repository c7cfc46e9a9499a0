#include "Simulator/CommandLine.h"

#include <gtest/gtest.h>

namespace kx::simulator {
namespace {

CommandLine read(std::vector<const char*> arguments) {
    return readCommandLine(arguments);
}

std::string complaintAbout(std::vector<const char*> arguments) {
    try {
        readCommandLine(arguments);
    } catch (const UsageFailure& failure) {
        return failure.what();
    }
    return "none";
}

TEST(CommandLine, WithoutOptionsThreeFlawlessUnitsAreOnTheLink) {
    const CommandLine line = read({});
    EXPECT_EQ(line.link, "kx1");
    EXPECT_EQ(line.count, 3U);
    EXPECT_EQ(line.first, 1U);
    EXPECT_EQ(line.network.base, 0xC0000200U);
    EXPECT_EQ(line.network.prefixLength, 24U);
    EXPECT_EQ(line.floodPerSecond, 0U);
    EXPECT_EQ(line.faults.losePercent, 0U);
    EXPECT_FALSE(line.faults.truncatedLength);
    EXPECT_FALSE(line.recordPath);
}

TEST(CommandLine, EveryOptionIsRead) {
    const CommandLine line =
        read({"--link",      "tap7",        "--count",      "200",  "--first",    "11",
              "--network",   "10.1.2.3/16", "--late",       "1500", "--lose",     "1",
              "--duplicate", "2",           "--reorder",    "3",    "--truncate", "0",
              "--malform",   "100",         "--flood",      "1000", "--seed",     "42",
              "--record",    "a b/record",  "--broadcasts", "own"});
    EXPECT_EQ(line.link, "tap7");
    EXPECT_EQ(line.count, 200U);
    EXPECT_EQ(line.first, 11U);
    EXPECT_EQ(line.network.base, 0x0A010000U);
    EXPECT_EQ(line.network.prefixLength, 16U);
    EXPECT_EQ(line.faults.late, std::chrono::milliseconds(1500));
    EXPECT_EQ(line.faults.losePercent, 1U);
    EXPECT_EQ(line.faults.duplicatePercent, 2U);
    EXPECT_EQ(line.faults.reorderPercent, 3U);
    EXPECT_EQ(line.faults.truncatedLength, 0U);
    EXPECT_EQ(line.faults.malformPercent, 100U);
    EXPECT_EQ(line.faults.seed, 42U);
    EXPECT_EQ(line.floodPerSecond, 1000U);
    EXPECT_EQ(line.recordPath, "a b/record");
    EXPECT_TRUE(line.ignoresOtherSubnets);
}

TEST(CommandLine, HelpWinsOverWhatFollows) {
    EXPECT_TRUE(read({"--help", "--nonsense"}).help);
}

TEST(CommandLine, HelpNamesEveryOption) {
    for (const char* option : {"--link", "--count", "--first", "--network", "--late", "--lose",
                               "--duplicate", "--reorder", "--truncate", "--malform", "--flood",
                               "--seed", "--record", "--broadcasts", "--help"}) {
        EXPECT_NE(helpText().find("\n  " + std::string(option) + ' '), std::string::npos) << option;
    }
}

TEST(CommandLine, ComplaintsNameTheOption) {
    EXPECT_EQ(complaintAbout({"--nonsense", "1"}), "unknown option --nonsense");
    EXPECT_EQ(complaintAbout({"--count"}), "--count needs a value");
    EXPECT_EQ(complaintAbout({"--lose", "101"}),
              "--lose needs a number from 0 to 100, not \"101\"");
    EXPECT_EQ(complaintAbout({"--count", "3x"}),
              "--count needs a number from 1 to 99999, not \"3x\"");
    EXPECT_EQ(complaintAbout({"--count", "-1"}),
              "--count needs a number from 1 to 99999, not \"-1\"");
    EXPECT_EQ(complaintAbout({"--network", "192.0.2.0"}),
              "--network needs a network such as 192.0.2.0/24, not \"192.0.2.0\"");
    EXPECT_EQ(complaintAbout({"--network", "192.0.2.0/31"}),
              "--network needs a number from 8 to 30, not \"31\"");
}

TEST(CommandLine, UnitsTakeAnyBroadcastOrThoseOfTheirOwnSubnet) {
    EXPECT_FALSE(read({}).ignoresOtherSubnets);
    EXPECT_FALSE(read({"--broadcasts", "own", "--broadcasts", "any"}).ignoresOtherSubnets);
    EXPECT_EQ(complaintAbout({"--broadcasts", "none"}),
              "--broadcasts needs any or own, not \"none\"");
}

TEST(CommandLine, UnitsMustFitTheirNetworkAndTheirNumbers) {
    EXPECT_EQ(complaintAbout({"--count", "244"}), "none");
    EXPECT_EQ(complaintAbout({"--count", "245"}), "--network is too small for so many units");
    EXPECT_EQ(complaintAbout({"--network", "10.0.0.0/8", "--first", "99999", "--count", "2"}),
              "unit numbers end at 99999");
    EXPECT_EQ(complaintAbout({"--network", "10.0.0.0/8", "--first", "99999", "--count", "1"}),
              "none");
    EXPECT_EQ(complaintAbout({"--network", "10.0.0.0/8", "--first", "99998", "--count", "2"}),
              "none");
}

} // namespace
} // namespace kx::simulator
