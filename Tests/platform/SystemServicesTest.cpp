// The system log and the wall clock of the host.

#include "contracts/SystemLogContract.h"
#include "contracts/WallClockContract.h"
#include "platform/posix/SyslogSystemLog.h"
#include "platform/posix/SystemWallClock.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <stdexcept>

namespace kx {

namespace {

// Standard error goes into a file while this object lives.
class CapturedStandardError {
public:
    CapturedStandardError()
        : _file(std::tmpfile())
        , _before(::dup(STDERR_FILENO)) {
        if (_file == nullptr || _before < 0 || ::dup2(::fileno(_file), STDERR_FILENO) < 0) {
            throw std::runtime_error("standard error cannot be captured");
        }
    }
    ~CapturedStandardError() {
        ::dup2(_before, STDERR_FILENO);
        ::close(_before);
        std::fclose(_file);
    }
    CapturedStandardError(const CapturedStandardError&) = delete;
    CapturedStandardError& operator=(const CapturedStandardError&) = delete;

    std::string text() {
        std::string result;
        std::rewind(_file);
        for (int character = std::fgetc(_file); character != EOF; character = std::fgetc(_file)) {
            result += static_cast<char>(character);
        }
        return result;
    }

private:
    std::FILE* _file;
    int _before;
};

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

// The process's time zone while this object lives.
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

} // namespace kx
