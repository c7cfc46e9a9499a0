// The calendar time of the host, as a seam, so that tests can choose the date.
//
// Threading: main thread only, like its users. Ownership: whoever is given a clock does not own it;
// it must outlive them.

#pragma once

#include <ctime>

namespace kx {

class WallClock {
public:
    virtual ~WallClock() = default;

    // Now, broken down in the local time zone (see localtime_r(3)): tm_mon counts from 0. Never
    // fails.
    virtual std::tm localTime() const = 0;
};

} // namespace kx
