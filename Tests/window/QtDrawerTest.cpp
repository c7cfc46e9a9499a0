#include "platform/qt/QtDrawer.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

constexpr QRect screen(0, 32, 1366, 736);

} // namespace

TEST(RoomBelow, IsUpToTheScreensLowerEdgeWhereThePlaceIsTold) {
    EXPECT_EQ(roomBelow(QRect(100, 50, 600, 611), screen, true), 107);
    EXPECT_EQ(roomBelow(QRect(100, 200, 600, 611), screen, true), -43);
}

TEST(RoomBelow, IsHalfOfWhatTheScreenHasMoreWhereThePlaceIsNotTold) {
    EXPECT_EQ(roomBelow(QRect(0, 0, 600, 611), screen, false), 62);
    EXPECT_EQ(roomBelow(QRect(0, 0, 600, 800), screen, false), -32);
}

} // namespace kx
