// The calendar time of the host, as a seam, so that tests can choose the date.

#pragma once

#include <ctime>

namespace kx {

class WallClock {
public:
    virtual ~WallClock() = default;

    // Now, broken down in the local time zone (see localtime_r(3)): tm_mon counts from 0.
    virtual std::tm localTime() const = 0;
};

} // namespace kx
