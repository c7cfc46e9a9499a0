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

TEST_F(DiscoveryTest, SendsTwoRequestsWhereNothingGetsLost) {
    begin({.wait = 2400ms});
    receive(SampleUnit().reply());
    runLoop.advanceBy(1200ms);
    receive(SampleUnit().reply());
    runLoop.advanceBy(1200ms);
    EXPECT_EQ(sent(), (Lines{request, request}));
}

TEST_F(DiscoveryTest, AsksAgainUntilEveryUnitHasAnsweredTheLatestRequest) {
    begin({.wait = 2400ms});
    receive(SampleUnit().reply());
    runLoop.advanceBy(1200ms);
    receive(secondSampleUnit().reply(), unitAddress + 1);
    runLoop.advanceBy(99ms);
    EXPECT_EQ(sent().size(), 2U);
    runLoop.advanceBy(1ms); // the first unit has not answered the second request
    EXPECT_EQ(sent(), Lines{request});
    receive(SampleUnit().reply());
    receive(secondSampleUnit().reply(), unitAddress + 1);
    runLoop.advanceBy(1100ms);
    EXPECT_EQ(sent(), Lines{});
}

TEST_F(DiscoveryTest, AsksTwelveTimesWhereNobodyAnswers) {
    begin({.wait = 2400ms});
    runLoop.advanceBy(1199ms);
    EXPECT_EQ(sent(), Lines{request});
    runLoop.advanceBy(1001ms);
    EXPECT_EQ(sent(), Lines(11, request));
    runLoop.advanceBy(200ms);
    EXPECT_EQ(sent(), Lines{});
    EXPECT_EQ(endedAt, 2400ms);
}

TEST_F(DiscoveryTest, RequestsOfAShortTimeKeepTheirDistance) {
    begin({.wait = 60ms});
    runLoop.advanceBy(500ms);
    EXPECT_EQ(sent().size(), 4U); // after 0, 30, 40 and 50 ms; then the time is over
}

TEST_F(DiscoveryTest, AFixedNumberOfRequestsIsKeptWhoeverAnswers) {
    begin({.wait = 2400ms, .tries = 3});
    runLoop.advanceBy(2400ms);
    EXPECT_EQ(sent(), Lines(3, request));
}

TEST_F(DiscoveryTest, ASlowUnitGivesItsTwinsTwiceItsOwnTime) {
    begin({.tries = 1, .isEnough = isOneEnough, .settling = 10ms});
    runLoop.advanceBy(300ms);
    receive(SampleUnit().reply());
    runLoop.advanceBy(599ms);
    EXPECT_FALSE(discovery->hasEnded());
    runLoop.advanceBy(1ms);
    EXPECT_EQ(endedAt, 900ms);
}

TEST_F(DiscoveryTest, APlaceThatCannotBeAskedIsToldWhenAnotherCanBe) {
    discovery = std::make_unique<Discovery>(
        exchange, DiscoveryPlan{.everybody = {everybody, unitTarget}, .tries = 1});
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    discovery->begin({});
    EXPECT_FALSE(discovery->hasEnded());
    EXPECT_TRUE(discovery->hasAsked());
    EXPECT_TRUE(discovery->failure().has_value());
}

} // namespace kx
