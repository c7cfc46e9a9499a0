// The contract of support/WallClock.h: tests that every wall clock must pass.
//
// A test program runs them against its clock by
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(System, WallClockContract, SystemWallClockTrait);
//
// with a trait that is made anew for each test and has
//
//     const WallClock& clock();

#pragma once

#include "support/WallClock.h"

#include <gtest/gtest.h>

#include <ctime>

namespace kx {

template<typename Trait>
class WallClockContract : public testing::Test {
protected:
    Trait trait;
};

TYPED_TEST_SUITE_P(WallClockContract);

TYPED_TEST_P(WallClockContract, TheFieldsAreThoseOfARealDayInTheLocalTimeZone) {
    const std::tm time = this->trait.clock().localTime();
    std::tm normalised = time;
    ASSERT_NE(std::mktime(&normalised), std::time_t{-1});
    EXPECT_EQ(normalised.tm_year, time.tm_year);
    EXPECT_EQ(normalised.tm_mon, time.tm_mon);
    EXPECT_EQ(normalised.tm_mday, time.tm_mday);
    EXPECT_EQ(normalised.tm_hour, time.tm_hour);
    EXPECT_EQ(normalised.tm_min, time.tm_min);
    EXPECT_EQ(normalised.tm_sec, time.tm_sec);
    EXPECT_EQ(normalised.tm_wday, time.tm_wday);
    EXPECT_EQ(normalised.tm_yday, time.tm_yday);
}

TYPED_TEST_P(WallClockContract, ALaterReadingIsNotEarlier) {
    std::tm first = this->trait.clock().localTime();
    std::tm second = this->trait.clock().localTime();
    EXPECT_LE(std::mktime(&first), std::mktime(&second));
}

REGISTER_TYPED_TEST_SUITE_P(WallClockContract, TheFieldsAreThoseOfARealDayInTheLocalTimeZone,
                            ALaterReadingIsNotEarlier);

} // namespace kx
