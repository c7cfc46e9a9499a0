#include "CommandFixture.h"

#include <cerrno>

namespace kx {

using WatchCommandTest = CommandTest;

TEST_F(WatchCommandTest, AWatchEndsQuietlyWhenItsReaderIsGoneThoughNothingHappens) {
    at(1000ms, [this] { console.error = posixError(EPIPE); });
    EXPECT_EQ(run({"watch", "--until", "1", "--every", "60"}), 0);
    EXPECT_EQ(console.notes, "");
    EXPECT_LE(runLoop.now(), 1200ms);
}

} // namespace kx
