#include "conversation/VerifiedCommand.h"

#include "ExchangeFixture.h"

#include <cerrno>

namespace kx {

namespace {

class VerifiedCommandTest : public ExchangeTest {
protected:
    static constexpr auto command = "192.168.1.10:10000 ^^IdT0DC3";
    static constexpr auto request = "192.168.1.10:10000 ^^IdX";
    static constexpr auto requestToAll = "192.168.1.255:3520 ^^IdX";

    static SampleUnit unitWithPort(std::uint8_t lastByte) {
        SampleUnit unit;
        unit.destinationPort = {0x0D, lastByte};
        return unit;
    }

    CommandPlan plan() const {
        return {
            .command = "^^IdT0DC3",
            .target = unitTarget,
            .asked = {unitTarget},
            .askedLater = {everybody},
            .serialNumbers = {"01 02 03 04 05 06"},
            .isFromUnit =
                [](const HeardUnit& unit) { return unit.serialNumber() == "01 02 03 04 05 06"; },
            .isWanted =
                [](const HeardUnit& unit) {
                    return unit.record.value(UnitParameter::destinationPortNumber) == "3523";
                }};
    }

    void begin() {
        verified = std::make_unique<VerifiedCommand>(exchange, plan());
        verified->begin([this] { endedAt = runLoop.now(); });
    }

    SampleUnit oldUnit = unitWithPort(0xC0);
    SampleUnit newUnit = unitWithPort(0xC3);
    SampleUnit otherUnit = unitWithPort(0xC1);
    std::unique_ptr<VerifiedCommand> verified;
    std::optional<std::chrono::milliseconds> endedAt;
};

} // namespace

TEST_F(VerifiedCommandTest, AnAcknowledgedCommandIsAskedForAtOnce) {
    begin();
    EXPECT_EQ(sent(), Lines{command});
    runLoop.advanceBy(4ms);
    receive(newUnit.acknowledgement());
    EXPECT_EQ(sent(), Lines{request});
    runLoop.advanceBy(4ms);
    receive(newUnit.reply());
    EXPECT_EQ(endedAt, 8ms);
    EXPECT_EQ(verified->outcome(), CommandOutcome::shown);
}

TEST_F(VerifiedCommandTest, TheTriesComeWithGrowingPauses) {
    begin();
    receive(newUnit.acknowledgement());
    sent();
    for (const auto& [pause, wanted] :
         std::vector<std::pair<std::chrono::milliseconds, Lines>>{{200ms, {request}},
                                                                  {400ms, {request, requestToAll}},
                                                                  {600ms, {request, requestToAll}},
                                                                  {800ms, {request, requestToAll}},
                                                                  {1000ms, {}}}) {
        EXPECT_FALSE(verified->hasEnded());
        runLoop.advanceBy(pause - 1ms);
        EXPECT_EQ(sent(), Lines{}) << pause.count();
        runLoop.advanceBy(1ms);
        EXPECT_EQ(sent(), wanted) << pause.count();
    }
    EXPECT_EQ(endedAt, 3000ms);
    EXPECT_EQ(verified->outcome(), CommandOutcome::silent);
}

TEST_F(VerifiedCommandTest, ACommandThatNobodyAcknowledgesIsSentThreeTimesInAll) {
    begin();
    runLoop.advanceBy(3000ms);
    const Lines all = sent();
    EXPECT_EQ(std::ranges::count(all, command), 3);
    EXPECT_EQ(all.at(1), command);
}

TEST_F(VerifiedCommandTest, AnOldValueMayBeUnderWayAndIsNoVerdict) {
    begin();
    receive(oldUnit.reply());
    runLoop.advanceBy(500ms);
    receive(oldUnit.reply());
    EXPECT_FALSE(verified->hasEnded());
    receive(newUnit.reply());
    EXPECT_EQ(verified->outcome(), CommandOutcome::shown);
}

TEST_F(VerifiedCommandTest, AnotherValueCountsAtTheDeadline) {
    begin();
    runLoop.advanceBy(300ms);
    receive(oldUnit.reply());
    runLoop.advanceBy(300ms);
    receive(otherUnit.reply());
    runLoop.advanceBy(2399ms);
    EXPECT_FALSE(verified->hasEnded());
    runLoop.advanceBy(1ms);
    EXPECT_EQ(verified->outcome(), CommandOutcome::other);
    EXPECT_EQ(verified->shown()->record.value(UnitParameter::destinationPortNumber), "3521");
}

TEST_F(VerifiedCommandTest, OnlyAnswersThatCameAtOnceAreSilence) {
    begin();
    runLoop.advanceBy(199ms);
    receive(oldUnit.reply());
    runLoop.advanceBy(2801ms);
    EXPECT_EQ(verified->outcome(), CommandOutcome::silent);
    EXPECT_FALSE(verified->shown().has_value());
}

TEST_F(VerifiedCommandTest, AnotherUnitSaysNothingAboutThisOne) {
    begin();
    SampleUnit stranger = newUnit;
    stranger.serial.back() = 9;
    receive(stranger.acknowledgement());
    receive(stranger.reply());
    EXPECT_FALSE(verified->hasEnded());
    runLoop.advanceBy(200ms);
    EXPECT_EQ(sent(), (Lines{command, command, request})) << "nobody has acknowledged it";
}

TEST_F(VerifiedCommandTest, ACommandThatTheNetworkRefusesEndsAtOnce) {
    systemCalls.failNext(Operation::sendTo, EHOSTUNREACH);
    begin();
    EXPECT_EQ(verified->outcome(), CommandOutcome::notSent);
    EXPECT_EQ(verified->failure()->error, posixError(EHOSTUNREACH));
    runLoop.advanceBy(5000ms);
    EXPECT_EQ(sent(), Lines{command});
}

TEST_F(VerifiedCommandTest, AnInterruptionWaitsForTheOutcome) {
    begin();
    verified->interrupt();
    EXPECT_FALSE(verified->hasEnded());
    receive(newUnit.reply());
    EXPECT_EQ(verified->outcome(), CommandOutcome::shown);
}

TEST_F(VerifiedCommandTest, AnswersFromBeforeTheBeginningDoNotCount) {
    verified = std::make_unique<VerifiedCommand>(exchange, plan());
    receive(newUnit.acknowledgement());
    receive(newUnit.reply());
    EXPECT_FALSE(verified->hasEnded());
    EXPECT_EQ(sent(), Lines{});
}

} // namespace kx
