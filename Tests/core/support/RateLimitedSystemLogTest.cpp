#include "support/RateLimitedSystemLog.h"

#include "doubles/ManualRunLoop.h"
#include "doubles/RecordedSystemLog.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace kx {

namespace {

using std::chrono::milliseconds;

class RateLimitedLog : public testing::Test {
protected:
    void write(int count) {
        for (; count > 0; --count) {
            log->write("line");
        }
    }
    std::size_t written() const { return recorded.lines().size(); }
    std::string lastLine() const { return recorded.lines().back(); }

    ManualRunLoop loop;
    RecordedSystemLog recorded;
    std::unique_ptr<RateLimitedSystemLog> log =
        std::make_unique<RateLimitedSystemLog>(recorded, loop);
};

} // namespace

TEST_F(RateLimitedLog, TwentyLinesOfASecondAreWrittenAtOnceAndAsTheyAre) {
    for (int number = 1; number <= 20; ++number) {
        log->write(std::to_string(number));
        EXPECT_EQ(lastLine(), std::to_string(number));
    }
    loop.advanceBy(milliseconds(10'000));
    EXPECT_EQ(written(), 20U);
}

TEST_F(RateLimitedLog, TheOthersOfTheSecondAreOneLineAtItsEnd) {
    write(25);
    EXPECT_EQ(written(), 20U);
    loop.advanceBy(milliseconds(999));
    EXPECT_EQ(written(), 20U);
    loop.advanceBy(milliseconds(1));
    EXPECT_EQ(written(), 21U);
    EXPECT_EQ(lastLine(), "5 more like this");
    loop.advanceBy(milliseconds(10'000));
    EXPECT_EQ(written(), 21U);
}

TEST_F(RateLimitedLog, TheLineWithTheNumberIsTheFirstOfTheNextSecond) {
    write(21);
    loop.advanceBy(milliseconds(1000));
    EXPECT_EQ(lastLine(), "1 more like this");
    write(20);
    EXPECT_EQ(written(), 40U);
    loop.advanceBy(milliseconds(1000));
    EXPECT_EQ(written(), 41U);
    EXPECT_EQ(lastLine(), "1 more like this");
}

TEST_F(RateLimitedLog, AFloodOfAMinuteWritesTwentyLinesASecond) {
    for (int millisecond = 0; millisecond < 60'000; ++millisecond) {
        write(50);
        loop.advanceBy(milliseconds(1));
    }
    EXPECT_LE(written(), 60U * 20U + 1U);
    EXPECT_GE(written(), 60U * 20U);
    EXPECT_EQ(lastLine(), "49981 more like this");
}

TEST_F(RateLimitedLog, AfterAQuietSecondTwentyLinesAreWrittenAgain) {
    write(20);
    loop.advanceBy(milliseconds(1000));
    write(20);
    EXPECT_EQ(written(), 40U);
}

TEST_F(RateLimitedLog, TheLastLineOfTheProcessIsWrittenBehindTheNumber) {
    write(30);
    log->writeLast("Assertion failed");
    EXPECT_EQ(written(), 22U);
    EXPECT_EQ(recorded.lines()[20], "10 more like this");
    EXPECT_EQ(lastLine(), "Assertion failed");
    log->writeLast("again");
    EXPECT_EQ(lastLine(), "again");
}

TEST_F(RateLimitedLog, AtItsEndItTellsTheNumberAndHoldsNoCall) {
    write(22);
    log.reset();
    EXPECT_EQ(written(), 21U);
    EXPECT_EQ(lastLine(), "2 more like this");
    loop.advanceBy(milliseconds(2000));
    EXPECT_EQ(written(), 21U);
}

} // namespace kx
