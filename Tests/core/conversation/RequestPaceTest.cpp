#include "conversation/RequestPace.h"

#include "doubles/ManualRunLoop.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

using namespace std::chrono_literals;

class RequestPaceTest : public testing::Test {
protected:
    // How many of so many acknowledgements are followed at once.
    int admittedOf(int acknowledgements) {
        int admitted = 0;
        for (int i = 0; i < acknowledgements; ++i) {
            admitted += pace.admits() ? 1 : 0;
        }
        return admitted;
    }

    ManualRunLoop runLoop;
    int owed = 0; // requests that were sent at the end of a second
    RequestPace pace{runLoop, [this] { ++owed; }};
};

} // namespace

TEST_F(RequestPaceTest, TwentyOfASecondAreFollowedAtOnceAndOwesNothing) {
    EXPECT_EQ(admittedOf(20), 20);
    runLoop.advanceBy(10s);
    EXPECT_EQ(owed, 0);
}

TEST_F(RequestPaceTest, AllThatComeBeyondAreFollowedByOneAtTheEndOfTheSecond) {
    EXPECT_EQ(admittedOf(500), 20);
    runLoop.advanceBy(999ms);
    EXPECT_EQ(owed, 0);
    EXPECT_EQ(admittedOf(1), 0);
    runLoop.advanceBy(1ms);
    EXPECT_EQ(owed, 1);
    runLoop.advanceBy(10s);
    EXPECT_EQ(owed, 1);
}

TEST_F(RequestPaceTest, OneMoreThanTwentyOwesOneToo) {
    EXPECT_EQ(admittedOf(21), 20);
    runLoop.advanceBy(1s);
    EXPECT_EQ(owed, 1);
}

TEST_F(RequestPaceTest, ASecondBeginsWithItsFirstAcknowledgement) {
    EXPECT_EQ(admittedOf(15), 15);
    runLoop.advanceBy(999ms);
    EXPECT_EQ(admittedOf(15), 5);
    runLoop.advanceBy(1ms);
    EXPECT_EQ(owed, 1);
    runLoop.advanceBy(5s);
    EXPECT_EQ(admittedOf(25), 20) << "the next one begins here";
}

TEST_F(RequestPaceTest, ASenderThatDoesNotStopGetsTwentyOneInASecond) {
    int admitted = 0;
    for (int i = 0; i < 1000; ++i) { // for ten seconds
        admitted += admittedOf(10);
        runLoop.advanceBy(10ms);
    }
    EXPECT_LE(admitted + owed, 21 * 10 + 20);
    EXPECT_GE(owed, 9);
}

TEST_F(RequestPaceTest, MayBeAskedFromInsideTheRequestThatIsOwed) {
    int admitted = 0;
    RequestPace busy(runLoop, [&] { admitted += busy.admits() ? 1 : 0; });
    for (int i = 0; i < 21; ++i) {
        busy.admits();
    }
    runLoop.advanceBy(1s);
    EXPECT_EQ(admitted, 1);
}

TEST_F(RequestPaceTest, AfterAResetNothingIsOwed) {
    admittedOf(25);
    pace.reset();
    EXPECT_EQ(runLoop.pendingCallCount(), 0U);
    runLoop.advanceBy(10s);
    EXPECT_EQ(owed, 0);
    EXPECT_EQ(admittedOf(25), 20);
}

} // namespace kx
