#include "conversation/UnitEdits.h"

#include "AddressFixture.h"

#include <cerrno>

namespace kx {

namespace {

class UnitEditsTest : public AddressTest {
protected:
    using Edits = std::vector<std::pair<UnitParameter, std::string>>;

    void begin(const Edits& typed) {
        const HeardUnit heard = heardUnit(unit);
        std::vector<ExactEdit> wanted;
        for (const auto& [parameter, value] : typed) {
            wanted.push_back(std::get<ExactEdit>(exactEdit(parameter, value)));
        }
        edits = std::make_unique<UnitEdits>(exchange, &services, heard,
                                            changesOfUnit(heard, wanted), everybody);
        edits->begin([this] { hasEnded = true; });
    }

    // The unit takes the command and shows what it has now.
    void obey(const std::function<void(SampleUnit&)>& change) {
        change(unit);
        receive(unit.reply());
    }

    // The command that was sent last.
    std::string latest() {
        const Lines lines = sent();
        const auto found = std::find_if(lines.rbegin(), lines.rend(),
                                        [](const auto& line) { return !line.ends_with("^^IdX"); });
        return found != lines.rend() ? *found : "(nothing)";
    }

    std::vector<ChangeState> states() const {
        std::vector<ChangeState> all;
        for (const UnitChange& change : edits->changes()) {
            all.push_back(change.state);
        }
        return all;
    }

    SampleUnit unit;
    AddressMove::Services services{.holders = {.neighbours = neighbours}, .bindings = bindings};
    std::unique_ptr<UnitEdits> edits;
    bool hasEnded = false;
};

using ChangeStates = std::vector<ChangeState>;

} // namespace

TEST_F(UnitEditsTest, GoFromTheHarmlessToTheSerialNumber) {
    begin({{UnitParameter::serialNumber, "010203040509"},
           {UnitParameter::devicePortNumber, "4000"},
           {UnitParameter::internalMACAddress, "001A2B3C4D77"},
           {UnitParameter::destinationPortNumber, "3523"}});
    EXPECT_EQ(latest(), "192.168.1.10:10000 ^^IdT0DC3");
    obey([](SampleUnit& each) { each.destinationPort = {0x0D, 0xC3}; });
    EXPECT_EQ(latest(), "192.168.1.10:10000 ^^IdP0FA0");
    obey([](SampleUnit& each) { each.devicePort = {0x0F, 0xA0}; });
    EXPECT_EQ(latest(), "192.168.1.10:4000 ^^IdM001A2B3C4D77");
    obey([](SampleUnit& each) { each.internalMAC.back() = 0x77; });
    EXPECT_EQ(latest(), "192.168.1.10:4000 ^^IdS010203040509");
    obey([](SampleUnit& each) { each.serial.back() = 9; });
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(states(), ChangeStates(4, ChangeState::done));
    EXPECT_EQ(edits->unit().serialNumber(), "01 02 03 04 05 09");
    EXPECT_FALSE(edits->isAmbiguous());
}

TEST_F(UnitEditsTest, AValueThatIsThereIsNotSent) {
    begin({{UnitParameter::unitID, "42"}, {UnitParameter::devicePortNumber, "10000"}});
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(states(), ChangeStates(2, ChangeState::unchanged));
    EXPECT_EQ(latest(), "(nothing)");
}

TEST_F(UnitEditsTest, AUnitIDIsShownWhenItsBytesAreFilledUpWithZeros) {
    begin({{UnitParameter::unitID, "AB"}});
    obey([](SampleUnit& each) { each.unitID = {'A', 'B', 0, 0, 0, 1}; });
    EXPECT_FALSE(hasEnded);
    obey([](SampleUnit& each) { each.unitID = {'A', 'B', 0, 0, 0, 0}; });
    EXPECT_EQ(states(), ChangeStates{ChangeState::done});
    EXPECT_EQ(edits->changes()[0].from, "42");
    EXPECT_EQ(edits->changes()[0].to, "AB");
}

TEST_F(UnitEditsTest, AnotherValueDoesNotHoldUpTheHarmlessOnes) {
    begin({{UnitParameter::unitID, "AB"}, {UnitParameter::destinationPortNumber, "3523"}});
    runLoop.advanceBy(2000ms);
    receive(unit.reply());
    runLoop.advanceBy(1000ms);
    EXPECT_EQ(latest(), "192.168.1.10:10000 ^^IdT0DC3");
    obey([](SampleUnit& each) { each.destinationPort = {0x0D, 0xC3}; });
    EXPECT_EQ(states(), (ChangeStates{ChangeState::different, ChangeState::done}));
    EXPECT_EQ(edits->changes()[0].shown, "42");
}

TEST_F(UnitEditsTest, NothingFollowsAStepThatFailedOnTheWayToTheUnit) {
    begin(
        {{UnitParameter::serialNumber, "010203040509"}, {UnitParameter::devicePortNumber, "4000"}});
    runLoop.advanceBy(2000ms);
    receive(unit.reply());
    runLoop.advanceBy(1000ms);
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(states(), (ChangeStates{ChangeState::refused, ChangeState::different}));
}

TEST_F(UnitEditsTest, NothingFollowsSilence) {
    begin({{UnitParameter::unitID, "AB"}, {UnitParameter::destinationPortNumber, "3523"}});
    runLoop.advanceBy(3000ms);
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(states(), (ChangeStates{ChangeState::silent, ChangeState::refused}));
}

TEST_F(UnitEditsTest, AUnitIsAskedAtItsNewAndItsOldDevicePort) {
    begin({{UnitParameter::devicePortNumber, "4000"}});
    receive(unit.acknowledgement());
    EXPECT_EQ(sent(), (Lines{"192.168.1.10:10000 ^^IdP0FA0", "192.168.1.10:10000 ^^IdX",
                             "192.168.1.10:4000 ^^IdX"}));
}

TEST_F(UnitEditsTest, ACommandThatTheNetworkRefusesEndsThem) {
    systemCalls.failNext(Operation::sendTo, ENETUNREACH);
    begin({{UnitParameter::unitID, "AB"}});
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(states(), ChangeStates{ChangeState::refused});
    EXPECT_EQ(edits->failure()->error, posixError(ENETUNREACH));
}

TEST_F(UnitEditsTest, AnotherUnitWithTheSameSerialNumberEndsThem) {
    begin({{UnitParameter::unitID, "AB"}, {UnitParameter::destinationPortNumber, "3523"}});
    SampleUnit twin;
    twin.internalMAC.back() = 0x77;
    receive(twin.reply());
    obey([](SampleUnit& each) { each.unitID = {'A', 'B', 0, 0, 0, 0}; });
    EXPECT_TRUE(hasEnded);
    EXPECT_TRUE(edits->isAmbiguous());
    EXPECT_EQ(states(), (ChangeStates{ChangeState::done, ChangeState::refused}));
}

TEST_F(UnitEditsTest, AnInterruptionWaitsForTheCommandAndSendsNoOther) {
    begin({{UnitParameter::unitID, "AB"}, {UnitParameter::destinationPortNumber, "3523"}});
    edits->interrupt();
    EXPECT_FALSE(hasEnded);
    obey([](SampleUnit& each) { each.unitID = {'A', 'B', 0, 0, 0, 0}; });
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(states(), (ChangeStates{ChangeState::done, ChangeState::refused}));
}

TEST_F(UnitEditsTest, AMoveIsOneOfTheSteps) {
    neighbours.entries[0xC0A80132U] = {.state = NeighbourState::failed, .hardwareAddress = {}};
    begin({{UnitParameter::internalIPAddress, "192.168.1.50"},
           {UnitParameter::serialNumber, "010203040509"}});
    runLoop.advanceBy(1300ms);
    EXPECT_EQ(latest(), "192.168.1.50:10000 ^^IdIC0A80132");
    neighbours.entries[0xC0A80132U] = {.state = NeighbourState::reachable,
                                       .hardwareAddress = unitHardware};
    obey([](SampleUnit& each) { each.internalIP.back() = 50; });
    runLoop.advanceBy(20ms);
    EXPECT_EQ(latest(), "192.168.1.50:10000 ^^IdS010203040509");
    obey([](SampleUnit& each) { each.serial.back() = 9; });
    EXPECT_EQ(states(), ChangeStates(2, ChangeState::done));
    EXPECT_EQ(edits->move()->state(), MoveState::moved);
}

TEST_F(UnitEditsTest, AMoveThatIsNotBegunLeavesTheRestAlone) {
    neighbours.entries[0xC0A80132U] = {.state = NeighbourState::reachable,
                                       .hardwareAddress = otherHardware};
    begin({{UnitParameter::internalIPAddress, "192.168.1.50"},
           {UnitParameter::serialNumber, "010203040509"}});
    runLoop.advanceBy(300ms);
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(states(), ChangeStates(2, ChangeState::refused));
    EXPECT_EQ(edits->move()->state(), MoveState::held);
}

TEST_F(UnitEditsTest, NothingIsSentWhenSomebodyHoldsTheNewAddress) {
    neighbours.entries[0xC0A80132U] = {.state = NeighbourState::reachable,
                                       .hardwareAddress = otherHardware};
    begin({{UnitParameter::unitID, "AB"}, {UnitParameter::internalIPAddress, "192.168.1.50"}});
    runLoop.advanceBy(300ms);
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(latest(), "(nothing)");
    EXPECT_EQ(states(), ChangeStates(2, ChangeState::refused));
    EXPECT_EQ(edits->move()->state(), MoveState::held);
    EXPECT_EQ(edits->move()->holders().holders.at(0).hardwareAddress, otherHardware);
}

TEST_F(UnitEditsTest, TheHolderIsLookedForOnceBeforeTheFirstCommand) {
    neighbours.entries[0xC0A80132U] = {.state = NeighbourState::failed, .hardwareAddress = {}};
    begin({{UnitParameter::unitID, "AB"}, {UnitParameter::internalIPAddress, "192.168.1.50"}});
    EXPECT_EQ(latest(), "(nothing)");
    runLoop.advanceBy(1300ms);
    EXPECT_EQ(latest(), "192.168.1.10:10000 ^^IdU4142");
    obey([](SampleUnit& each) { each.unitID = {'A', 'B', 0, 0, 0, 0}; });
    EXPECT_EQ(latest(), "192.168.1.50:10000 ^^IdIC0A80132");
}

TEST_F(UnitEditsTest, AnInterruptionOfTheSearchSendsNothing) {
    begin({{UnitParameter::unitID, "AB"}, {UnitParameter::internalIPAddress, "192.168.1.50"}});
    edits->interrupt();
    EXPECT_TRUE(hasEnded);
    runLoop.advanceBy(5000ms);
    EXPECT_EQ(latest(), "(nothing)");
    EXPECT_EQ(states(), ChangeStates(2, ChangeState::refused));
    EXPECT_EQ(edits->move(), nullptr);
}

TEST_F(UnitEditsTest, NothingFollowsAMoveAfterWhichAnotherAnswersForTheAddress) {
    neighbours.entries[0xC0A80132U] = {.state = NeighbourState::failed, .hardwareAddress = {}};
    begin({{UnitParameter::internalIPAddress, "192.168.1.50"},
           {UnitParameter::serialNumber, "010203040509"}});
    runLoop.advanceBy(1300ms);
    neighbours.entries[0xC0A80132U] = {.state = NeighbourState::reachable,
                                       .hardwareAddress = otherHardware};
    obey([](SampleUnit& each) { each.internalIP.back() = 50; });
    runLoop.advanceBy(20ms);
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(edits->move()->state(), MoveState::foreignAnswer);
    EXPECT_EQ(states(), (ChangeStates{ChangeState::done, ChangeState::refused}));
    EXPECT_EQ(latest(), "192.168.1.50:10000 ^^IdIC0A80132");
}

TEST_F(UnitEditsTest, AUnitThatTellsAnotherAddressMeanwhileLeadsNoCommandThere) {
    begin({{UnitParameter::unitID, "AB"}, {UnitParameter::destinationPortNumber, "3523"}});
    obey([](SampleUnit& each) {
        each.unitID = {'A', 'B', 0, 0, 0, 0};
        each.internalIP.back() = 255;
    });
    EXPECT_EQ(latest(), "192.168.1.10:10000 ^^IdT0DC3");
}

} // namespace kx
