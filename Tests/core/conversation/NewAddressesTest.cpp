#include "conversation/NewAddresses.h"

#include "PlanFixture.h"

namespace kx {

namespace {

class NewAddressesTest : public PlanTest {
protected:
    // Unit 1 takes the address of unit 2, which goes to 9.
    NewAddressesTest() {
        hear(1, 3);
        plan({row(2, 1, move(2)), row(3, 2, move(9)), row(4, 3, {{UnitParameter::unitID, "A"}})});
    }

    void note(std::size_t place, std::uint32_t number, HolderState state,
              const std::vector<std::string>& hardwareAddresses = {}) {
        AddressHolders holders{.address = 0xC0000200U + number, .state = state, .holders = {}};
        for (const std::string& each : hardwareAddresses) {
            holders.holders.push_back({.hardwareAddress = each, .serialNumber = {}});
        }
        noteHolders(latest, place, holders);
    }

    using States = std::vector<RowState>;
    static constexpr auto planned = RowState::planned;
    static constexpr auto refused = RowState::refused;
    static inline const std::string stranger = "AA:BB:CC:DD:EE:FF";
};

} // namespace

TEST_F(NewAddressesTest, TheAddressesOfPlannedMovesAreInTheOrderOfThePlan) {
    const auto addresses = newAddressesOf(latest);
    ASSERT_EQ(addresses.size(), 2U);
    EXPECT_EQ(addresses[0].row, 1U);
    EXPECT_EQ(addresses[0].question.address, 0xC0000209U);
    EXPECT_EQ(addresses[0].question.link, 2U);
    EXPECT_EQ(addresses[1].row, 0U);
    EXPECT_EQ(newAddressOf(latest.rows[2]), 0U);
}

TEST_F(NewAddressesTest, ARowThatIsNotPlannedAnyMoreAsksForNoAddress) {
    endRow(latest.rows[0], RowState::untouched, {.objection = RowObjection::interrupted});
    EXPECT_EQ(newAddressesOf(latest).size(), 1U);
    note(0, 2, HolderState::held, {stranger});
    EXPECT_EQ(objection(0), RowObjection::interrupted);
}

TEST_F(NewAddressesTest, AFreeAddressIsTaken) {
    note(1, 9, HolderState::free);
    EXPECT_EQ(states(), States(3, planned));
}

TEST_F(NewAddressesTest, TheUnitItselfAndTheOneThatGivesTheAddressUpMayHoldIt) {
    note(1, 9, HolderState::held, {sampleHardwareAddress(2)});
    note(0, 2, HolderState::held, {sampleHardwareAddress(2)});
    EXPECT_EQ(states(), States(3, planned));
}

TEST_F(NewAddressesTest, AnAddressThatAnotherHostHoldsRefusesItsRowAndThoseThatWaitForIt) {
    note(1, 9, HolderState::held, {sampleHardwareAddress(2), stranger});
    EXPECT_EQ(states(), (States{refused, refused, planned}));
    EXPECT_EQ(objection(1), RowObjection::heldByHost);
    EXPECT_EQ(latest.rows[1].reason.others, std::vector{stranger});
    EXPECT_EQ(latest.rows[1].reason.value, address(9));
    EXPECT_EQ(objection(0), RowObjection::waitsForRefused);
}

TEST_F(NewAddressesTest, AnAddressThatAnotherRowsUnitHoldsIsHeldByThatUnit) {
    note(1, 9, HolderState::held, {sampleHardwareAddress(3)});
    EXPECT_EQ(objection(1), RowObjection::heldByHost);
}

TEST_F(NewAddressesTest, AnAddressOfWhichNothingIsKnownRefusesItsRow) {
    note(0, 2, HolderState::unknown);
    EXPECT_EQ(states(), (States{refused, planned, planned}));
    EXPECT_EQ(objection(0), RowObjection::unknownHolder);
    EXPECT_EQ(latest.rows[0].reason.parameter, UnitParameter::internalIPAddress);
}

} // namespace kx
