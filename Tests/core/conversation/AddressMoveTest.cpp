#include "conversation/AddressMove.h"

#include "AddressFixture.h"

namespace kx {

namespace {

constexpr std::uint32_t newAddress = 0xC0A80132U; // 192.168.1.50

class AddressMoveTest : public AddressTest {
protected:
    static constexpr auto command = "192.168.1.50:10000 ^^IdIC0A80132";

    void begin(std::optional<AddressHolders> known = {}) {
        CommandPlan plan{.command = "^^IdIC0A80132",
                         .target = unitTarget,
                         .asked = {},
                         .serialNumbers = {"01 02 03 04 05 06"},
                         .isFromUnit = [](const HeardUnit&) { return true; },
                         .isWanted =
                             [](const HeardUnit& unit) {
                                 return unit.record.value(UnitParameter::internalIPAddress) ==
                                        "192.168.1.50";
                             }};
        move = std::make_unique<AddressMove>(
            exchange,
            AddressMove::Services{.holders = {.neighbours = neighbours}, .bindings = bindings},
            newAddress, unitHardware, plan, std::move(known));
        move->begin([this] { hasEnded = true; });
    }

    void setEntry(NeighbourState state, const std::string& hardware = {}) {
        neighbours.entries[newAddress] = {.state = state, .hardwareAddress = hardware};
    }

    // Nobody holds the address.
    void beginAtFreeAddress() {
        setEntry(NeighbourState::failed);
        begin();
        runLoop.advanceBy(1300ms);
    }

    void answerAtNewAddress() {
        SampleUnit unit;
        unit.internalIP = {192, 168, 1, 50};
        receive(unit.reply(), newAddress);
    }

    std::unique_ptr<AddressMove> move;
    bool hasEnded = false;
};

} // namespace

TEST_F(AddressMoveTest, BindsCommandsReleasesAndAwaitsTheUnitsOwnAnswer) {
    beginAtFreeAddress();
    EXPECT_EQ(bindings.calls, Lines{"bind 192.168.1.50 00:1A:2B:3C:4D:5E"});
    EXPECT_EQ(sent().back(), command);
    setEntry(NeighbourState::permanent, unitHardware);
    bindings.onRelease = [this] { neighbours.entries.clear(); };
    answerAtNewAddress();
    EXPECT_EQ(bindings.calls.back(), "release 192.168.1.50 00:1A:2B:3C:4D:5E");
    EXPECT_EQ(sent().back(), "192.168.1.50:10000 ^^IdX");
    EXPECT_FALSE(hasEnded);
    setEntry(NeighbourState::reachable, unitHardware);
    runLoop.advanceBy(20ms);
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(move->state(), MoveState::moved);
    EXPECT_FALSE(move->isStillBound());
}

TEST_F(AddressMoveTest, AnAddressThatSomebodyElseHoldsIsLeftAlone) {
    setEntry(NeighbourState::reachable, otherHardware);
    begin();
    runLoop.advanceBy(300ms);
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(move->state(), MoveState::held);
    EXPECT_EQ(move->holders().holders.at(0).hardwareAddress, otherHardware);
    EXPECT_TRUE(bindings.calls.empty());
    EXPECT_EQ(sent(), Lines{"192.168.1.50:3520 ^^IdX"});
}

TEST_F(AddressMoveTest, AnAddressThatTheUnitItselfHoldsMayBeTaken) {
    setEntry(NeighbourState::reachable, unitHardware);
    begin();
    runLoop.advanceBy(300ms);
    EXPECT_EQ(sent().back(), command);
}

TEST_F(AddressMoveTest, AnAddressOfWhichNothingIsKnownIsLeftAlone) {
    setEntry(NeighbourState::stale, otherHardware);
    begin();
    runLoop.advanceBy(4100ms);
    EXPECT_EQ(move->state(), MoveState::unknownHolder);
    EXPECT_TRUE(bindings.calls.empty());
}

TEST_F(AddressMoveTest, WithoutAnEntryNothingIsSent) {
    bindings.answerToBind = {.state = ARPEntryState::rightsNotGiven};
    beginAtFreeAddress();
    EXPECT_EQ(move->state(), MoveState::notBound);
    EXPECT_EQ(move->binding().state, ARPEntryState::rightsNotGiven);
    EXPECT_EQ(sent(), Lines{"192.168.1.50:3520 ^^IdX"});
    EXPECT_EQ(bindings.calls.size(), 1U);
}

TEST_F(AddressMoveTest, TheEntryIsTakenOutOfTheCacheWhenTheUnitIsSilentToo) {
    beginAtFreeAddress();
    runLoop.advanceBy(3000ms);
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(move->state(), MoveState::commanded);
    EXPECT_EQ(move->command()->outcome(), CommandOutcome::silent);
    EXPECT_EQ(bindings.calls.back(), "release 192.168.1.50 00:1A:2B:3C:4D:5E");
}

TEST_F(AddressMoveTest, AnEntryThatStaysIsTold) {
    bindings.answerToRelease = {.state = ARPEntryState::ended, .code = 1};
    beginAtFreeAddress();
    answerAtNewAddress();
    setEntry(NeighbourState::reachable, unitHardware);
    runLoop.advanceBy(20ms);
    EXPECT_TRUE(move->isStillBound());
    EXPECT_EQ(move->state(), MoveState::moved);
}

TEST_F(AddressMoveTest, AnotherHardwareAddressThatAnswersIsTold) {
    beginAtFreeAddress();
    neighbours.entries.clear();
    answerAtNewAddress();
    setEntry(NeighbourState::reachable, otherHardware);
    runLoop.advanceBy(20ms);
    EXPECT_EQ(move->state(), MoveState::foreignAnswer);
    EXPECT_EQ(move->foreignHardwareAddress(), otherHardware);
}

TEST_F(AddressMoveTest, AUnitThatDoesNotAnswerForItsAddressIsTold) {
    beginAtFreeAddress();
    neighbours.entries.clear();
    answerAtNewAddress();
    runLoop.advanceBy(3199ms);
    EXPECT_FALSE(hasEnded);
    runLoop.advanceBy(30ms);
    EXPECT_EQ(move->state(), MoveState::foreignAnswer);
    EXPECT_EQ(move->foreignHardwareAddress(), "");
}

TEST_F(AddressMoveTest, AnInterruptionBeforeTheCommandSendsNothing) {
    begin();
    move->interrupt();
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(move->state(), MoveState::notBegun);
    runLoop.advanceBy(5000ms);
    EXPECT_TRUE(bindings.calls.empty());
}

TEST_F(AddressMoveTest, AnInterruptionTakesTheQuestionForRightsBack) {
    bindings.asksAPerson = true;
    beginAtFreeAddress();
    sent();
    move->interrupt();
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(move->state(), MoveState::notBound);
    EXPECT_EQ(bindings.calls.back(), "give up");
    runLoop.advanceBy(5000ms);
    EXPECT_EQ(sent(), Lines{});
}

TEST_F(AddressMoveTest, AnEntryThatWasMadeDuringAnInterruptionIsTakenOutAgain) {
    bindings.asksAPerson = true;
    beginAtFreeAddress();
    const auto answer = std::exchange(bindings.answer, nullptr); // it is too late to give up
    move->interrupt();
    EXPECT_FALSE(hasEnded);
    answer({.state = ARPEntryState::started});
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(bindings.calls.back(), "release 192.168.1.50 00:1A:2B:3C:4D:5E");
    EXPECT_EQ(move->command(), nullptr);
}

TEST_F(AddressMoveTest, AnInterruptionAfterTheCommandFinishesTheMove) {
    beginAtFreeAddress();
    move->interrupt();
    EXPECT_EQ(bindings.calls.size(), 1U) << "nothing is given up any more";
    EXPECT_FALSE(hasEnded);
    answerAtNewAddress();
    setEntry(NeighbourState::reachable, unitHardware);
    runLoop.advanceBy(20ms);
    EXPECT_EQ(move->state(), MoveState::moved);
    EXPECT_EQ(bindings.calls.size(), 2U);
}

TEST_F(AddressMoveTest, AnAddressWhoseHoldersAreKnownIsNotLookedForAgain) {
    begin(AddressHolders{.address = newAddress, .state = HolderState::free, .holders = {}});
    EXPECT_EQ(sent(), Lines{command});
}

TEST_F(AddressMoveTest, AKnownHolderEndsItAtOnce) {
    begin(AddressHolders{.address = newAddress,
                         .state = HolderState::held,
                         .holders = {{.hardwareAddress = otherHardware, .serialNumber = {}}}});
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(move->state(), MoveState::held);
    EXPECT_EQ(sent(), Lines{});
}

} // namespace kx
