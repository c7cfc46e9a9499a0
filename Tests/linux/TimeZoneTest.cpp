// The time zone of the host changes while the program runs, as the settings of a desktop change it.

#include "ReplacedFile.h"
#include "platform/posix/SystemWallClock.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <optional>
#include <string>
#include <thread>

namespace kx {

namespace {

// A description of a time zone that never changes, so many seconds east of Greenwich (RFC 8536,
// version 1): a header, one kind of local time, its name.
std::string zoneFile(std::int32_t secondsEast) {
    std::string file = "TZif";
    file.append(16, '\0'); // version 1, and room
    for (const std::int32_t count : {0, 0, 0, 0, 1, 4}) {
        file += {'\0', '\0', '\0', static_cast<char>(count)};
    }
    for (unsigned shift = 32; shift != 0; shift -= 8) {
        file += static_cast<char>(static_cast<std::uint32_t>(secondsEast) >> (shift - 8));
    }
    file += {'\0', '\0'}; // no summer time; the name begins at 0
    file.append("KXT\0", 4);
    return file;
}

// Without the variable TZ, the host's own time zone counts.
class WithoutTZ {
public:
    WithoutTZ() {
        if (const char* const before = std::getenv("TZ")) {
            _before = before;
        }
        ::unsetenv("TZ");
    }
    ~WithoutTZ() {
        if (_before.has_value()) {
            ::setenv("TZ", _before->c_str(), 1);
        }
        ::tzset();
    }
    WithoutTZ(const WithoutTZ&) = delete;
    WithoutTZ& operator=(const WithoutTZ&) = delete;

private:
    std::optional<std::string> _before;
};

} // namespace

TEST(TimeZone, AClockFollowsTheHostIntoAnotherTimeZone) {
    const WithoutTZ hostsOwn;
    const SystemWallClock clock;
    {
        const ReplacedFile zone("/etc/localtime", zoneFile(2 * 60 * 60), 0644);
        EXPECT_EQ(clock.localTime().tm_gmtoff, 2 * 60 * 60);
    }
    // The C library knows a file by its number and by the second in which it was made. The second
    // file may get the number of the first one.
    std::this_thread::sleep_for(std::chrono::milliseconds(1100));
    const ReplacedFile zone("/etc/localtime", zoneFile(-7 * 60 * 60), 0644);
    EXPECT_EQ(clock.localTime().tm_gmtoff, -7 * 60 * 60);
}

} // namespace kx
