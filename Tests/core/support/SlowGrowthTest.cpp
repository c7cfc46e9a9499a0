#include "support/SlowGrowth.h"

#include <gtest/gtest.h>

namespace kx {

TEST(SlowGrowth, LeavesLittleRoomAndMovesAnElementSomeEightTimes) {
    std::vector<int> numbers;
    std::size_t moves = 0;
    for (int number = 0; number < 100'000; ++number) {
        const auto before = numbers.capacity();
        makeRoomForOneMore(numbers);
        numbers.push_back(number);
        moves += numbers.capacity() != before ? numbers.size() : 0;
        ASSERT_LE(numbers.capacity(), numbers.size() + numbers.size() / 8 + 8);
    }
    EXPECT_LT(moves, 9 * numbers.size());
}

} // namespace kx
