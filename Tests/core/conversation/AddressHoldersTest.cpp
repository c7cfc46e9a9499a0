#include "conversation/AddressHolders.h"

#include "AddressFixture.h"

namespace kx {

namespace {

class AddressHoldersTest : public AddressTest {
protected:
    void begin(bool withProbes, const std::vector<std::uint32_t>& addresses = {unitAddress}) {
        std::vector<AddressQuestion> questions;
        for (const std::uint32_t address : addresses) {
            questions.push_back({.address = address, .link = link});
        }
        search = std::make_unique<HolderSearch>(
            exchange,
            HolderSearch::Services{.neighbours = neighbours,
                                   .probes = withProbes ? &probes : nullptr},
            questions);
        search->begin([this] { endedAt = runLoop.now(); });
    }

    void setEntry(NeighbourState state, const std::string& hardware = {}) {
        neighbours.entries[unitAddress] = {.state = state, .hardwareAddress = hardware};
    }

    const AddressHolders& result(std::size_t index = 0) const { return search->results()[index]; }

    std::unique_ptr<HolderSearch> search;
    std::optional<std::chrono::milliseconds> endedAt;
};

} // namespace

TEST_F(AddressHoldersTest, ARequestMakesTheSystemLookForTheHolder) {
    begin(false);
    EXPECT_EQ(sent(), Lines{"192.168.1.10:3520 ^^IdX"});
}

TEST_F(AddressHoldersTest, AConfirmedNeighbourHoldsTheAddress) {
    begin(false);
    setEntry(NeighbourState::reachable, otherHardware);
    runLoop.advanceBy(20ms);
    EXPECT_FALSE(search->hasEnded()) << "a unit has a moment to tell its serial number";
    runLoop.advanceBy(200ms);
    EXPECT_EQ(endedAt, 220ms);
    EXPECT_EQ(result().state, HolderState::held);
    ASSERT_EQ(result().holders.size(), 1U);
    EXPECT_EQ(result().holders[0].hardwareAddress, otherHardware);
    EXPECT_EQ(result().holders[0].serialNumber, std::nullopt);
}

TEST_F(AddressHoldersTest, AUnitThatAnswersTellsItsSerialNumber) {
    begin(false);
    setEntry(NeighbourState::reachable, unitHardware);
    runLoop.advanceBy(20ms);
    receive(SampleUnit().reply());
    runLoop.advanceBy(200ms);
    EXPECT_EQ(result().holders.at(0).serialNumber, "01 02 03 04 05 06");
}

TEST_F(AddressHoldersTest, AUnitThatAnswersFromTheAddressHoldsIt) {
    setEntry(NeighbourState::stale, unitHardware);
    begin(false);
    receive(SampleUnit().reply());
    runLoop.advanceBy(300ms);
    EXPECT_EQ(result().state, HolderState::held);
    EXPECT_EQ(result().holders.at(0).serialNumber, "01 02 03 04 05 06");
}

TEST_F(AddressHoldersTest, AFailedSearchMeansThatTheAddressIsFree) {
    begin(false);
    setEntry(NeighbourState::asking);
    runLoop.advanceBy(3070ms);
    setEntry(NeighbourState::failed);
    runLoop.advanceBy(300ms);
    EXPECT_EQ(result().state, HolderState::free);
    EXPECT_TRUE(search->hasEnded());
}

TEST_F(AddressHoldersTest, AnOldFailureIsNoAnswerYet) {
    setEntry(NeighbourState::failed);
    begin(false);
    runLoop.advanceBy(900ms);
    setEntry(NeighbourState::reachable, otherHardware);
    runLoop.advanceBy(300ms);
    EXPECT_EQ(result().state, HolderState::held);
}

TEST_F(AddressHoldersTest, StaleAndFixedEntriesAndSilenceDecideNothing) {
    for (const auto state :
         {NeighbourState::stale, NeighbourState::permanent, NeighbourState::asking}) {
        setEntry(state, otherHardware);
        begin(false);
        runLoop.advanceBy(3999ms);
        EXPECT_FALSE(search->hasEnded());
        runLoop.advanceBy(41ms);
        EXPECT_TRUE(search->hasEnded());
        EXPECT_EQ(result().state, HolderState::unknown);
        EXPECT_TRUE(result().holders.empty());
    }
}

TEST_F(AddressHoldersTest, ProbesFindEveryHolder) {
    begin(true);
    probes.heard(unitAddress, unitHardware);
    probes.heard(unitAddress, unitHardware);
    runLoop.advanceBy(1500ms);
    probes.heard(unitAddress, otherHardware);
    probes.heard(unitAddress + 1, "00:00:00:00:00:01");
    runLoop.advanceBy(2500ms);
    EXPECT_EQ(probes.probed, (std::vector<std::uint32_t>{unitAddress, unitAddress, unitAddress}));
    EXPECT_EQ(result().state, HolderState::held);
    EXPECT_EQ(result().holders.size(), 2U);
}

TEST_F(AddressHoldersTest, ProbesAreNotDeceivedByAFixedEntry) {
    setEntry(NeighbourState::permanent, unitHardware);
    begin(true);
    runLoop.advanceBy(2999ms);
    EXPECT_FALSE(search->hasEnded());
    runLoop.advanceBy(500ms);
    EXPECT_EQ(result().state, HolderState::free);
}

TEST_F(AddressHoldersTest, WithoutTheRightToProbeTheTableDecides) {
    probes.isPermitted = false;
    setEntry(NeighbourState::reachable, otherHardware);
    begin(true);
    runLoop.advanceBy(300ms);
    EXPECT_EQ(result().state, HolderState::held);
    EXPECT_TRUE(probes.probed.empty());
}

TEST_F(AddressHoldersTest, SeveralAddressesAreAskedForAtOnce) {
    neighbours.entries[unitAddress + 1] = {.state = NeighbourState::reachable,
                                           .hardwareAddress = otherHardware};
    begin(false, {unitAddress, unitAddress + 1});
    runLoop.advanceBy(4100ms);
    EXPECT_EQ(endedAt, 4000ms);
    EXPECT_EQ(result(0).state, HolderState::unknown);
    EXPECT_EQ(result(1).state, HolderState::held);
}

TEST_F(AddressHoldersTest, NothingToAskEndsSoon) {
    begin(false, {});
    runLoop.advanceBy(200ms);
    EXPECT_TRUE(search->hasEnded());
}

TEST_F(AddressHoldersTest, AnInterruptionLeavesTheRestUnknown) {
    begin(false);
    search->interrupt();
    EXPECT_TRUE(search->hasEnded());
    EXPECT_EQ(result().state, HolderState::unknown);
}

TEST_F(AddressHoldersTest, AnInterruptionKeepsTheSerialNumbersThatWereTold) {
    begin(false, {unitAddress, unitAddress + 1});
    receive(SampleUnit().reply());
    search->interrupt();
    EXPECT_EQ(result().state, HolderState::held);
    EXPECT_EQ(result().holders.at(0).serialNumber, "01 02 03 04 05 06");
    EXPECT_EQ(search->decided(), 1U);
}

} // namespace kx
