#include "conversation/UnitWatch.h"

#include "ExchangeFixture.h"

#include <cerrno>

namespace kx {

namespace {

class UnitWatchTest : public ExchangeTest {
protected:
    static constexpr auto request = "192.168.1.255:3520 ^^IdX";
    static constexpr auto requestToUnit = "192.168.1.10:10000 ^^IdX";

    void begin(WatchPlan plan) {
        if (plan.everybody.empty()) {
            plan.everybody = {everybody};
        }
        plan.every = 1000ms;
        plan.tell = [this](UnitEvent event, const HeardUnit& unit) {
            constexpr std::array names{"appeared", "changed", "silent", "back"};
            events.push_back(names.at(static_cast<std::size_t>(event)) + std::string(" ") +
                             std::string(unit.serialNumber().substr(15)));
        };
        watch = std::make_unique<UnitWatch>(exchange, std::move(plan));
        watch->begin([this] { endedAt = runLoop.now(); });
    }

    Lines taken() { return std::exchange(events, {}); }

    std::unique_ptr<UnitWatch> watch;
    Lines events;
    std::optional<std::chrono::milliseconds> endedAt;
};

} // namespace

TEST_F(UnitWatchTest, TellsWhoAppearsOnce) {
    begin({});
    receive(SampleUnit().reply());
    receive(SampleUnit().reply());
    receive(secondSampleUnit().reply(), unitAddress + 1);
    EXPECT_EQ(taken(), (Lines{"appeared 06", "appeared 07"}));
}

TEST_F(UnitWatchTest, TellsAChangeOfAParameterAndOfTheBytesOfTheUnitID) {
    begin({});
    SampleUnit unit;
    receive(unit.reply());
    unit.destinationPort = {0x0D, 0xC1};
    receive(unit.reply());
    unit.unitID = {0xFF, 0, 0, 0, 0, 1};
    receive(unit.reply());
    unit.unitID = {0xFF, 0, 0, 0, 0, 2}; // neither is a text
    receive(unit.reply());
    EXPECT_EQ(taken(), (Lines{"appeared 06", "changed 06", "changed 06", "changed 06"}));
}

TEST_F(UnitWatchTest, AUnitIsSilentAfterThreeRequestsWithoutAnAnswer) {
    begin({});
    receive(SampleUnit().reply());
    taken();
    runLoop.advanceBy(3999ms); // requests at 1, 2 and 3 seconds
    EXPECT_EQ(taken(), Lines{});
    runLoop.advanceBy(1ms);
    EXPECT_EQ(taken(), Lines{"silent 06"});
    runLoop.advanceBy(5000ms);
    EXPECT_EQ(taken(), Lines{});
    EXPECT_EQ(watch->count(), 0U);
    receive(SampleUnit().reply());
    EXPECT_EQ(taken(), Lines{"back 06"});
    EXPECT_EQ(watch->count(), 1U);
}

TEST_F(UnitWatchTest, AUnitThatMissedARequestIsAskedAtItsOwnAddressToo) {
    begin({});
    EXPECT_EQ(sent(), Lines{request});
    receive(SampleUnit().reply());
    runLoop.advanceBy(1000ms);
    EXPECT_EQ(sent(), Lines{request});
    runLoop.advanceBy(1000ms);
    EXPECT_EQ(sent(), (Lines{request, requestToUnit}));
    receive(SampleUnit().reply());
    runLoop.advanceBy(1000ms);
    EXPECT_EQ(sent(), Lines{request});
}

TEST_F(UnitWatchTest, ASilentUnitIsAskedWithEverybodyOnly) {
    begin({});
    receive(SampleUnit().reply());
    runLoop.advanceBy(3000ms);
    sent();
    runLoop.advanceBy(1000ms);
    EXPECT_EQ(taken().back(), "silent 06");
    EXPECT_EQ(sent(), Lines{request});
    runLoop.advanceBy(3000ms);
    EXPECT_EQ(sent(), (Lines{request, request, request}));
    receive(SampleUnit().reply());
    runLoop.advanceBy(2000ms);
    EXPECT_EQ(sent(), (Lines{request, request, requestToUnit})) << "it is back";
}

// Somebody tells the address of a host that has nothing to do with it, as that of many units.
TEST_F(UnitWatchTest, InventedUnitsFloodNobody) {
    begin({});
    SampleUnit invented;
    for (int i = 0; i < 1000; ++i) {
        invented.serial[4] = static_cast<std::uint8_t>(i / 256);
        invented.serial[5] = static_cast<std::uint8_t>(i % 256);
        receive(invented.reply());
    }
    runLoop.advanceBy(1000ms);
    sent();
    runLoop.advanceBy(2000ms);
    EXPECT_EQ(sent(), (Lines{request, requestToUnit, request, requestToUnit}));
    runLoop.advanceBy(60000ms);
    EXPECT_EQ(sent(), Lines(60, request));
}

TEST_F(UnitWatchTest, InventedUnitsOfManyAddressesHaveItSendLittle) {
    begin({});
    SampleUnit invented;
    for (int i = 0; i < 1000; ++i) {
        invented.serial[4] = invented.internalIP[2] = static_cast<std::uint8_t>(i / 256);
        invented.serial[5] = invented.internalIP[3] = static_cast<std::uint8_t>(i % 256);
        receive(invented.reply());
    }
    runLoop.advanceBy(1000ms);
    sent();
    for (int i = 0; i < 2; ++i) {
        runLoop.advanceBy(1000ms);
        EXPECT_EQ(sent().size(), 1 + UnitWatch::mostAskedAlone);
    }
    runLoop.advanceBy(60000ms);
    EXPECT_EQ(sent(), Lines(60, request));
}

TEST_F(UnitWatchTest, EndsAfterItsTime) {
    begin({.duration = 2500ms});
    runLoop.advanceBy(10000ms);
    EXPECT_EQ(endedAt, 2500ms);
    EXPECT_EQ(sent().size(), 3U);
}

TEST_F(UnitWatchTest, EndsWhenEnoughUnitsAreThere) {
    begin({.until = 2});
    receive(SampleUnit().reply());
    EXPECT_FALSE(watch->hasEnded());
    receive(secondSampleUnit().reply(), unitAddress + 1);
    EXPECT_TRUE(watch->hasEnded());
    EXPECT_EQ(taken().size(), 2U);
}

TEST_F(UnitWatchTest, MayBeInterruptedInsideAnEvent) {
    begin({});
    receive(SampleUnit().reply());
    WatchPlan plan;
    watch->interrupt();
    EXPECT_TRUE(endedAt.has_value());
    runLoop.advanceBy(10000ms);
    EXPECT_EQ(sent(), Lines{request});
}

TEST_F(UnitWatchTest, AFirstRequestThatIsNotSentEndsIt) {
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    begin({});
    EXPECT_TRUE(watch->hasEnded());
    EXPECT_TRUE(watch->failure().has_value());
    EXPECT_FALSE(watch->hasAsked());
}

TEST_F(UnitWatchTest, APlaceThatCannotBeAskedIsNoEndWhenAnotherCanBe) {
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    begin({.everybody = {everybody, unitTarget}});
    EXPECT_FALSE(watch->hasEnded());
    EXPECT_TRUE(watch->hasAsked());
    EXPECT_TRUE(watch->failure().has_value());
}

TEST_F(UnitWatchTest, ALaterRequestThatIsNotSentIsNoEnd) {
    begin({});
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    runLoop.advanceBy(1000ms);
    EXPECT_FALSE(watch->hasEnded());
}

} // namespace kx
