// The calendar time of the host, as a seam, so that tests can choose the date.
//
// Threading: main thread only, like its users. Ownership: users of a clock do not own it; it must
// outlive them.

#pragma once

#include <ctime>

namespace kx {

class WallClock {
public:
    virtual ~WallClock() = default;

    // The present time, broken down in the present local time zone (see localtime_r(3)): tm_mon
    // counts from 0. Never fails.
    virtual std::tm localTime() const = 0;
};

} // namespace kx
