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

TEST_F(WatchCommandTest, RoundsThatWouldFloodTheUnitsAreRefused) {
    play({});
    EXPECT_EQ(run({"watch", "--every", "0.099", "--for", "1", "--json"}), 2);
    EXPECT_EQ(errorCode(), "usage");
    EXPECT_TRUE(systemCalls.sentDatagrams().empty());
    EXPECT_EQ(run({"watch", "--every", "0.1", "--for", "1"}), 0);
}

} // namespace kx
