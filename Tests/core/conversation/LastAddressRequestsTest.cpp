#include "conversation/LastAddressRequests.h"

#include "ExchangeFixture.h"

#include <cerrno>

namespace kx {

namespace {

class LastAddressRequestsTest : public ExchangeTest {
protected:
    static constexpr auto request = "192.168.1.10:10000 ^^IdX";
    static constexpr auto secondRequest = "192.168.1.11:10000 ^^IdX";

    void begin(const std::vector<HeardUnit>& units) {
        requests = std::make_unique<LastAddressRequests>(exchange, units);
        began = runLoop.now();
        requests->begin([this] { endedAt = runLoop.now() - began; });
    }

    HeardUnit first() { return heardUnit(SampleUnit()); }
    HeardUnit second() { return heardUnit(secondSampleUnit()); }

    std::unique_ptr<LastAddressRequests> requests;
    std::chrono::milliseconds began{0};
    std::optional<std::chrono::milliseconds> endedAt;
};

} // namespace

TEST_F(LastAddressRequestsTest, WithoutUnitsItEndsAtOnceAndSendsNothing) {
    begin({});
    EXPECT_EQ(endedAt, 0ms);
    EXPECT_EQ(sent(), Lines{});
}

TEST_F(LastAddressRequestsTest, EachUnitIsAskedAtTheAddressAndThePortThatItToldLast) {
    begin({first(), second()});
    EXPECT_EQ(sent(), (Lines{request, secondRequest}));
    EXPECT_EQ(systemCalls.sentDatagrams().back().link, link) << "by the link on which it answered";
}

TEST_F(LastAddressRequestsTest, EndsAsSoonAsAllHaveAnswered) {
    const auto units = std::vector{first(), second()};
    begin(units);
    runLoop.advanceBy(5ms);
    receive(SampleUnit().reply());
    EXPECT_EQ(endedAt, std::nullopt);
    receive(SampleUnit().reply());
    EXPECT_EQ(endedAt, std::nullopt) << "the other one has not answered";
    receive(secondSampleUnit().reply());
    EXPECT_EQ(endedAt, 5ms);
    EXPECT_EQ(requests->heard().count(), 2U);
    runLoop.advanceBy(5000ms);
    EXPECT_EQ(sent().size(), 2U) << "no request follows the end";
}

TEST_F(LastAddressRequestsTest, ASilentUnitIsAskedEightTimesAndTheLastRequestHasItsTime) {
    const HeardUnit silent = second();
    begin({first(), silent});
    receive(SampleUnit().reply());
    runLoop.advanceBy(2199ms);
    EXPECT_EQ(endedAt, std::nullopt);
    runLoop.advanceBy(1ms);
    EXPECT_EQ(endedAt, 2200ms);
    const Lines all = sent();
    EXPECT_EQ(std::ranges::count(all, secondRequest), 8);
    EXPECT_EQ(std::ranges::count(all, request), 1) << "who has answered is left alone";
    EXPECT_TRUE(requests->wasAsked(silent));
}

TEST_F(LastAddressRequestsTest, AnAnswerToTheLastRequestCounts) {
    begin({first()});
    runLoop.advanceBy(2190ms);
    receive(SampleUnit().reply());
    EXPECT_EQ(endedAt, 2190ms);
    EXPECT_EQ(requests->heard().count(), 1U);
}

TEST_F(LastAddressRequestsTest, AnotherUnitAtThatAddressIsHeardAndIsNotTheOneThatWasAsked) {
    begin({first()});
    SampleUnit other = secondSampleUnit();
    other.internalIP = SampleUnit().internalIP;
    receive(other.reply());
    EXPECT_EQ(requests->heard().count(), 1U);
    EXPECT_EQ(endedAt, std::nullopt);
}

TEST_F(LastAddressRequestsTest, AUnitWithoutAnAddressIsAskedWhereItsAnswerCameFrom) {
    SampleUnit unset;
    unset.internalIP = {0, 0, 0, 0};
    begin({heardUnit(unset)});
    EXPECT_EQ(sent(), Lines{request});
}

TEST_F(LastAddressRequestsTest, NobodyIsAskedWhereNoAddressIsKnown) {
    SampleUnit unset;
    unset.internalIP = {0, 0, 0, 0};
    HeardUnit unknown = heardUnit(unset);
    unknown.sender = 0;
    begin({unknown});
    EXPECT_EQ(sent(), Lines{}) << "0.0.0.0 would be this host";
    runLoop.advanceBy(2200ms);
    EXPECT_TRUE(requests->hasEnded());
    EXPECT_FALSE(requests->wasAsked(unknown));
}

TEST_F(LastAddressRequestsTest, AUnitToWhichNoRequestLeftWasNotAsked) {
    const HeardUnit unit = first();
    begin({});
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    begin({unit});
    EXPECT_FALSE(requests->wasAsked(unit));
    runLoop.advanceBy(200ms);
    EXPECT_TRUE(requests->wasAsked(unit)) << "the next one left";
}

TEST_F(LastAddressRequestsTest, ManyUnitsAreAskedInGroups) {
    std::vector<HeardUnit> many;
    for (int i = 0; i < 250; ++i) {
        SampleUnit unit;
        unit.serial.back() = static_cast<std::uint8_t>(i);
        unit.internalIP = {10, 0, 0, static_cast<std::uint8_t>(i)};
        many.push_back(heardUnit(unit));
    }
    begin(many);
    EXPECT_EQ(sent().size(), 100U);
    runLoop.advanceBy(10ms);
    EXPECT_EQ(sent().size(), 100U);
    runLoop.advanceBy(10ms);
    EXPECT_EQ(sent().size(), 50U);
    runLoop.advanceBy(180ms);
    EXPECT_EQ(sent().size(), 100U) << "the next try begins 0.2 s after the one before";
}

// Somebody tells the address of a host that has nothing to do with it, as that of many units.
TEST_F(LastAddressRequestsTest, InventedUnitsFloodNobody) {
    std::vector<HeardUnit> invented;
    for (int i = 0; i < 250; ++i) {
        SampleUnit unit;
        unit.serial.back() = static_cast<std::uint8_t>(i);
        invented.push_back(heardUnit(unit));
        invented.back().record.setValue(UnitParameter::devicePortNumber, std::to_string(1000 + i));
    }
    begin(invented);
    runLoop.advanceBy(5000ms);
    EXPECT_EQ(sent().size(), 128U) << "16 units, eight times";
    EXPECT_TRUE(requests->wasAsked(invented[15]));
    EXPECT_FALSE(requests->wasAsked(invented[16])) << "so nobody calls it missing";
    EXPECT_TRUE(requests->hasEnded());
}

TEST_F(LastAddressRequestsTest, AnInterruptionEndsIt) {
    begin({first()});
    requests->interrupt();
    EXPECT_EQ(endedAt, 0ms);
    runLoop.advanceBy(5000ms);
    EXPECT_EQ(sent(), Lines{request});
}

} // namespace kx
