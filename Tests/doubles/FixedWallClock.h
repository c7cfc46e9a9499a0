// A calendar clock that stands still at a time that the test chooses.

#pragma once

#include "support/WallClock.h"

#include <ctime>

namespace kx {

class FixedWallClock final : public WallClock {
public:
    // `month` and `day` count from 1.
    FixedWallClock(int year, int month, int day, int hour, int minute, int second) {
        _time.tm_year = year - 1900;
        _time.tm_mon = month - 1;
        _time.tm_mday = day;
        _time.tm_hour = hour;
        _time.tm_min = minute;
        _time.tm_sec = second;
        _time.tm_isdst = -1;
        std::tm normalised = _time; // mktime() fills in the day of the week and of the year
        if (std::mktime(&normalised) != -1) {
            _time.tm_wday = normalised.tm_wday;
            _time.tm_yday = normalised.tm_yday;
        }
    }

    std::tm localTime() const override { return _time; }

private:
    std::tm _time{};
};

} // namespace kx
