#include "conversation/Discovery.h"

#include "ExchangeFixture.h"

#include <cerrno>

namespace kx {

namespace {

class DiscoveryTest : public ExchangeTest {
protected:
    static constexpr auto request = "192.168.1.255:3520 ^^IdX";

    void begin(DiscoveryPlan plan) {
        plan.everybody = {everybody};
        discovery = std::make_unique<Discovery>(exchange, std::move(plan));
        discovery->begin([this] { endedAt = runLoop.now(); });
    }

    static bool isOneEnough(const HeardUnits& units) { return units.count() >= 1; }

    std::unique_ptr<Discovery> discovery;
    std::optional<std::chrono::milliseconds> endedAt;
};

} // namespace

TEST_F(DiscoveryTest, SendsItsRequestsSpreadOverTheWait) {
    begin({.wait = 2000ms, .tries = 4});
    EXPECT_EQ(sent(), Lines{request});
    runLoop.advanceBy(499ms);
    EXPECT_EQ(sent(), Lines{});
    runLoop.advanceBy(1ms);
    EXPECT_EQ(sent(), Lines{request});
    runLoop.advanceBy(1499ms);
    EXPECT_EQ(sent(), (Lines{request, request}));
    EXPECT_FALSE(discovery->hasEnded());
    runLoop.advanceBy(1ms);
    EXPECT_EQ(endedAt, 2000ms);
    EXPECT_EQ(sent(), Lines{});
}

TEST_F(DiscoveryTest, CollectsWhoAnswersUntilTheEnd) {
    begin({.wait = 1000ms});
    receive(SampleUnit().reply());
    runLoop.advanceBy(900ms);
    receive(secondSampleUnit().reply(), unitAddress + 1);
    runLoop.advanceBy(100ms);
    receive(SampleUnit().reply());
    EXPECT_TRUE(discovery->hasEnded());
    EXPECT_EQ(discovery->units().count(), 2U);
}

TEST_F(DiscoveryTest, EndsAtOnceWhenItIsEnough) {
    begin({.isEnough = isOneEnough});
    runLoop.advanceBy(10ms);
    receive(SampleUnit().reply());
    EXPECT_EQ(endedAt, 10ms);
}

TEST_F(DiscoveryTest, OthersHaveAMomentToClaimThatTheyAreTheSame) {
    begin({.isEnough = isOneEnough, .settling = 10ms});
    receive(SampleUnit().reply());
    EXPECT_FALSE(discovery->hasEnded());
    runLoop.advanceBy(5ms);
    SampleUnit other;
    other.internalMAC.back() = 0x77;
    receive(other.reply());
    runLoop.advanceBy(5ms);
    EXPECT_EQ(endedAt, 10ms);
    EXPECT_EQ(discovery->units().count(), 2U);
}

TEST_F(DiscoveryTest, ARequestThatIsNotSentEndsItAtOnce) {
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    begin({});
    EXPECT_TRUE(discovery->hasEnded());
    EXPECT_FALSE(discovery->hasAsked());
    ASSERT_TRUE(discovery->failure().has_value());
    EXPECT_EQ(discovery->failure()->error, posixError(ENETUNREACH));
}

TEST_F(DiscoveryTest, ALaterRequestThatIsNotSentIsNoEnd) {
    begin({.wait = 1000ms});
    systemCalls.failNext(Operation::sendTo, ENOBUFS);
    runLoop.advanceBy(500ms);
    EXPECT_FALSE(discovery->hasEnded());
    EXPECT_TRUE(discovery->failure().has_value());
    runLoop.advanceBy(500ms);
    EXPECT_TRUE(discovery->hasAsked());
}

TEST_F(DiscoveryTest, AnInterruptionEndsItWithWhatItHas) {
    begin({});
    receive(SampleUnit().reply());
    discovery->interrupt();
    EXPECT_TRUE(endedAt.has_value());
    EXPECT_EQ(discovery->units().count(), 1U);
}

TEST_F(DiscoveryTest, MayBeGivenUpWithoutAWord) {
    begin({});
    discovery.reset();
    runLoop.advanceBy(5000ms);
    EXPECT_EQ(endedAt, std::nullopt);
    EXPECT_EQ(sent(), Lines{request});
}

} // namespace kx
