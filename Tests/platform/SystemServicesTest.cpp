// The system log and the wall clock of the host.

#include "StandardError.h"
#include "contracts/SystemLogContract.h"
#include "contracts/WallClockContract.h"
#include "platform/posix/SyslogSystemLog.h"
#include "platform/posix/SystemWallClock.h"

#include <unistd.h>

#include <cstdlib>
#include <optional>

namespace kx {

namespace {

class SyslogTrait {
public:
    SystemLog& log() { return _log; }
    std::vector<std::string> lines() {
        std::vector<std::string> result;
        const std::string text = _captured.text();
        const std::string prefix = "kxtests[" + std::to_string(::getpid()) + "]: ";
        for (std::size_t start = 0; start < text.size();) {
            const auto end = text.find('\n', start);
            const std::string line = text.substr(start, end - start);
            const bool hasPrefix = line.compare(0, prefix.size(), prefix) == 0;
            result.push_back(hasPrefix ? line.substr(prefix.size()) : "without prefix: " + line);
            start = end + 1;
        }
        return result;
    }

private:
    CapturedStandardError _captured;
    SyslogSystemLog _log{"kxtests"};
};

class SystemWallClockTrait {
public:
    const WallClock& clock() { return _clock; }

private:
    SystemWallClock _clock;
};

// Sets the process's time zone while this object lives.
class TimeZone {
public:
    explicit TimeZone(const char* name) {
        if (const char* before = std::getenv("TZ")) {
            _before = before;
        }
        ::setenv("TZ", name, 1);
        ::tzset();
    }
    ~TimeZone() {
        if (_before) {
            ::setenv("TZ", _before->c_str(), 1);
        } else {
            ::unsetenv("TZ");
        }
        ::tzset();
    }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;

private:
    std::optional<std::string> _before;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Syslog, SystemLogContract, SyslogTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(System, WallClockContract, SystemWallClockTrait);

} // namespace

TEST(SystemWallClock, ShowsTheHostsTimeInTheLocalTimeZone) {
    const TimeZone fiveHoursEast("TEST-5");
    const SystemWallClock clock;
    const std::time_t before = std::time(nullptr);
    std::tm local = clock.localTime();
    const std::time_t after = std::time(nullptr);
    EXPECT_EQ(local.tm_gmtoff, 5 * 60 * 60);
    const std::time_t shown = std::mktime(&local);
    EXPECT_GE(shown, before);
    EXPECT_LE(shown, after);
}

TEST(SystemWallClock, ShowsTheTimeInTheZoneThatTheHostHasNow) {
    const TimeZone fiveHoursEast("TEST-5");
    const SystemWallClock clock;
    EXPECT_EQ(clock.localTime().tm_gmtoff, 5 * 60 * 60);
    ::setenv("TZ", "OTHER+3", 1);
    EXPECT_EQ(clock.localTime().tm_gmtoff, -3 * 60 * 60);
}

} // namespace kx
