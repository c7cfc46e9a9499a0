#include "support/SystemLog.h"

#include "doubles/RecordedSystemLog.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kx {
namespace {

using Lines = std::vector<std::string>;

// Removes the process's log for its own lifetime.
class NoSystemLog {
public:
    NoSystemLog()
        : _previous(installSystemLog(nullptr)) {}
    ~NoSystemLog() { installSystemLog(_previous); }
    NoSystemLog(const NoSystemLog&) = delete;
    NoSystemLog& operator=(const NoSystemLog&) = delete;

private:
    SystemLog* _previous;
};

TEST(SystemLog, LinesGoToTheInstalledSink) {
    const RecordedSystemLog log;
    logToSystem("first");
    logToSystem("");
    EXPECT_EQ(log.lines(), (Lines{"first", ""}));
}

TEST(SystemLog, OnlyTheInnermostSinkReceives) {
    const RecordedSystemLog outer;
    {
        const RecordedSystemLog inner;
        logToSystem("inner");
        EXPECT_EQ(inner.lines(), Lines{"inner"});
    }
    logToSystem("outer");
    EXPECT_EQ(outer.lines(), Lines{"outer"});
}

TEST(SystemLog, InstallingReturnsTheSinkBefore) {
    const NoSystemLog quiet;
    RecordedSystemLog log;
    EXPECT_EQ(installSystemLog(nullptr), &log);
    EXPECT_EQ(installSystemLog(&log), nullptr);
}

TEST(SystemLog, LinesGoToStandardErrorWithoutASink) {
    const NoSystemLog quiet;
    testing::internal::CaptureStderr();
    logToSystem(std::string_view("a 100% line, cut").substr(0, 11));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "a 100% line\n");
}

TEST(SystemLog, LineWithAZeroByteAndALineBreakIsOneWholeLineWithoutASinkToo) {
    using namespace std::string_literals;
    const NoSystemLog quiet;
    testing::internal::CaptureStderr();
    logToSystem("a\0b\nc"s);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "a\\x00b\\x0Ac\n");
}

TEST(SystemLog, OnlyWhatActsOnAScreenIsEscapedByteByByte) {
    EXPECT_EQ(escapedLine("\x1F \t~\x7F \xC3\xA9 \\ %"), "\\x1F \t~\\x7F \xC3\xA9 \\ %");
    EXPECT_EQ(escapedLine("a\u009B31m\u202Eb"), R"(a\xC2\x9B31m\xE2\x80\xAEb)");
    EXPECT_EQ(escapedLine("\x9B"
                          "31m\xC1"),
              R"(\x9B31m\xC1)")
        << "an 8-bit terminal obeys it";
    EXPECT_EQ(escapedLine("網😀"), "網😀");
    EXPECT_EQ(escapedLine(""), "");
}

TEST(SystemLog, TheLastLineGoesToTheInstalledSinkOrToStandardError) {
    {
        const RecordedSystemLog log;
        logLastToSystem("the end");
        EXPECT_EQ(log.lines(), Lines{"the end"});
    }
    const NoSystemLog quiet;
    testing::internal::CaptureStderr();
    logLastToSystem("the end");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "the end\n");
}

} // namespace
} // namespace kx
