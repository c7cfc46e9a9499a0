#include "conversation/UnitRestore.h"

#include "ExchangeFixture.h"

#include <cerrno>

namespace kx {

namespace {

class UnitRestoreTest : public ExchangeTest {
protected:
    static constexpr auto command = "192.168.1.10:10000 ^^IdZ";
    static constexpr auto request = "192.168.1.255:3520 ^^IdX";

    void begin(const std::vector<SampleUnit>& units) {
        std::vector<HeardUnit> heard;
        for (const SampleUnit& unit : units) {
            heard.push_back(heardUnit(unit));
        }
        restore = std::make_unique<UnitRestore>(exchange, heard, std::vector{unitTarget},
                                                std::vector{everybody});
        restore->begin([this] { endedAt = runLoop.now(); });
    }

    std::unique_ptr<UnitRestore> restore;
    std::optional<std::chrono::milliseconds> endedAt;
};

SampleUnit restoredUnit() {
    SampleUnit unit;
    unit.devicePort = {0x0D, 0xC0};
    return unit;
}

} // namespace

TEST_F(UnitRestoreTest, IsDoneWhenTheUnitHasAcknowledgedAndShownItself) {
    begin({SampleUnit()});
    EXPECT_EQ(sent(), Lines{command});
    receive(SampleUnit().acknowledgement());
    runLoop.advanceBy(200ms);
    EXPECT_EQ(sent(), Lines{request});
    receive(SampleUnit().reply());
    EXPECT_EQ(endedAt, 200ms);
    EXPECT_TRUE(restore->units()[0].isAccepted);
    EXPECT_FALSE(restore->units()[0].hasChanged());
}

TEST_F(UnitRestoreTest, OtherValuesShowThatItWasTakenWhenTheAcknowledgementIsLost) {
    begin({SampleUnit()});
    runLoop.advanceBy(300ms);
    receive(restoredUnit().reply());
    EXPECT_TRUE(restore->hasEnded());
    EXPECT_TRUE(restore->units()[0].hasChanged());
}

TEST_F(UnitRestoreTest, AnAnswerThatComesAtOnceMayBeOlderThanTheCommand) {
    begin({SampleUnit()});
    receive(SampleUnit().acknowledgement());
    runLoop.advanceBy(100ms);
    receive(SampleUnit().reply());
    EXPECT_FALSE(restore->hasEnded());
    EXPECT_FALSE(restore->units()[0].after.has_value());
}

TEST_F(UnitRestoreTest, AUnitThatGotBackItsSerialNumberIsKnownByItsHardwareAddress) {
    begin({SampleUnit()});
    runLoop.advanceBy(300ms);
    SampleUnit renamed;
    renamed.serial.back() = 9;
    receive(renamed.reply());
    EXPECT_TRUE(restore->hasEnded());
    EXPECT_EQ(restore->units()[0].after->serialNumber(), "01 02 03 04 05 09");
}

TEST_F(UnitRestoreTest, ASilentUnitGetsThreeCommandsAndThreeSeconds) {
    begin({SampleUnit()});
    runLoop.advanceBy(2999ms);
    EXPECT_FALSE(restore->hasEnded());
    runLoop.advanceBy(1ms);
    EXPECT_EQ(endedAt, 3000ms);
    EXPECT_EQ(std::ranges::count(sent(), command), 3);
    EXPECT_FALSE(restore->units()[0].after.has_value());
}

TEST_F(UnitRestoreTest, TheOldValuesWithoutAnAcknowledgementAreNoSuccess) {
    begin({SampleUnit()});
    runLoop.advanceBy(300ms);
    receive(SampleUnit().reply());
    runLoop.advanceBy(2700ms);
    EXPECT_TRUE(restore->hasEnded());
    EXPECT_FALSE(restore->units()[0].isAccepted);
    EXPECT_FALSE(restore->units()[0].hasChanged());
}

TEST_F(UnitRestoreTest, WaitsForEveryUnit) {
    begin({SampleUnit(), secondSampleUnit()});
    receive(SampleUnit().acknowledgement());
    receive(secondSampleUnit().acknowledgement(), unitAddress + 1);
    runLoop.advanceBy(300ms);
    receive(SampleUnit().reply());
    EXPECT_FALSE(restore->hasEnded());
    receive(secondSampleUnit().reply(), unitAddress + 1);
    EXPECT_TRUE(restore->hasEnded());
}

TEST_F(UnitRestoreTest, ACommandThatIsNotSentEndsAtOnce) {
    systemCalls.failNext(Operation::sendTo, ENETDOWN);
    begin({});
    EXPECT_TRUE(restore->hasEnded());
    EXPECT_TRUE(restore->failure().has_value());
    EXPECT_FALSE(restore->isSent());
}

TEST_F(UnitRestoreTest, APlaceThatTheCommandDoesNotReachIsNoEnd) {
    restore =
        std::make_unique<UnitRestore>(exchange, std::vector{heardUnit(SampleUnit())},
                                      std::vector{everybody, unitTarget}, std::vector{everybody});
    systemCalls.failNext(Operation::sendTo, ENETDOWN);
    restore->begin([this] { endedAt = runLoop.now(); });
    EXPECT_FALSE(restore->hasEnded());
    EXPECT_TRUE(restore->isSent());
    EXPECT_TRUE(restore->failure().has_value());
    receive(SampleUnit().acknowledgement());
    runLoop.advanceBy(200ms);
    receive(SampleUnit().reply());
    EXPECT_EQ(endedAt, 200ms);
}

} // namespace kx
