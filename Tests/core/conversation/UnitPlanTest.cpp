#include "conversation/UnitPlan.h"

#include "PlanFixture.h"

#include <algorithm>
#include <chrono>

namespace kx {

namespace {

class UnitPlanTest : public PlanTest {
protected:
    using States = std::vector<RowState>;
    using Order = std::vector<std::size_t>;
    static constexpr auto planned = RowState::planned;
    static constexpr auto refused = RowState::refused;
};

} // namespace

// --- One row ---

TEST_F(UnitPlanTest, ARowOfAUnitThatAnswersIsPlanned) {
    hear(1, 1);
    plan({row(2, 1, {{UnitParameter::unitID, "RACK7A"}})});
    EXPECT_EQ(states(), States{planned});
    EXPECT_EQ(latest.order, Order{0});
    EXPECT_EQ(latest.rows[0].line, 2U);
    EXPECT_EQ(latest.rows[0].changes[0].from, "1");
    EXPECT_EQ(latest.rows[0].changes[0].to, "RACK7A");
    EXPECT_FALSE(latest.hasObjections());
}

TEST_F(UnitPlanTest, ValuesThatAreShownAlreadyAreUnchanged) {
    hear(1, 1);
    plan({row(2, 1, {{UnitParameter::internalIPAddress, address(1)}, {UnitParameter::unitID, "1"}}),
          row(3, 1, {})});
    EXPECT_EQ(latest.rows[0].changes[0].state, ChangeState::unchanged);
    EXPECT_EQ(latest.order, Order{});
}

TEST_F(UnitPlanTest, ARowWithoutEditsIsUnchanged) {
    hear(1, 1);
    plan({row(2, 1, {})});
    EXPECT_EQ(states(), States{RowState::unchanged});
}

TEST_F(UnitPlanTest, AUnitThatHasNotAnsweredIsSilent) {
    hear(1, 1);
    plan({row(2, 7, move(8))});
    EXPECT_EQ(states(), States{RowState::silent});
    EXPECT_EQ(objection(0), RowObjection::notHeard);
    EXPECT_EQ(latest.rows[0].changes[0].state, ChangeState::refused);
    EXPECT_EQ(latest.rows[0].changes[0].from, std::nullopt);
    EXPECT_TRUE(latest.hasObjections());
}

TEST_F(UnitPlanTest, ASerialNumberUnderTwoHardwareAddressesIsRefused) {
    hear(1, 1);
    HeardUnit twin = heardUnit(1);
    twin.record.setValue(UnitParameter::internalMACAddress, sampleHardwareAddress(9));
    heard.add(twin);
    plan({row(2, 1, {{UnitParameter::unitID, "1"}})});
    EXPECT_EQ(objection(0), RowObjection::ambiguousSerialNumber);
    EXPECT_EQ(latest.rows[0].reason.others,
              (std::vector{sampleHardwareAddress(1), sampleHardwareAddress(9)}));
}

TEST_F(UnitPlanTest, AnAddressUnderTwoSerialNumbersIsRefusedWhereACommandWouldGoThere) {
    hear(1, 1);
    HeardUnit other = heardUnit(2);
    other.record.setValue(UnitParameter::internalIPAddress, address(1));
    heard.add(other);
    plan({row(2, 1, {{UnitParameter::unitID, "A"}}), row(3, 2, {})});
    EXPECT_EQ(states(), (States{refused, RowState::unchanged}));
    EXPECT_EQ(objection(0), RowObjection::ambiguousAddress);
    EXPECT_EQ(latest.rows[0].reason.value, address(1));
    EXPECT_EQ(latest.rows[0].reason.others, std::vector{sampleSerial(2)});
}

TEST_F(UnitPlanTest, AnAddressThatThousandsTellNamesAFewOfThem) {
    for (std::uint32_t number = 1; number <= 1000; ++number) {
        HeardUnit unit = heardUnit(number);
        unit.record.setValue(UnitParameter::internalIPAddress, address(1));
        heard.add(unit);
    }
    plan({row(2, 1, {{UnitParameter::unitID, "A"}})});
    EXPECT_EQ(latest.rows[0].reason.others.size(), 8U);
}

TEST_F(UnitPlanTest, ASerialNumberOfManyUnitsNamesAFewOfThem) {
    for (std::uint32_t number = 1; number <= 20; ++number) {
        HeardUnit unit = heardUnit(1);
        unit.record.setValue(UnitParameter::internalMACAddress, sampleHardwareAddress(number));
        heard.add(unit);
    }
    plan({row(2, 1, {})});
    EXPECT_EQ(objection(0), RowObjection::ambiguousSerialNumber);
    EXPECT_EQ(latest.rows[0].reason.others.size(), 8U);
}

TEST_F(UnitPlanTest, TheFirstObjectionCounts) {
    hear(1, 1);
    HeardUnit other = heardUnit(2);
    other.record.setValue(UnitParameter::internalIPAddress, address(1));
    heard.add(other);
    plan({row(2, 1, move(9)), row(3, 2, move(9))});
    EXPECT_EQ(objection(0), RowObjection::ambiguousAddress);
    EXPECT_EQ(objection(1), RowObjection::ambiguousAddress);
}

TEST_F(UnitPlanTest, AUnitThatTellsAnAddressOfManyIsRefused) {
    HeardUnit unit = heardUnit(1);
    unit.record.setValue(UnitParameter::internalIPAddress, "192.0.255.255");
    heard.add(unit);
    plan({row(2, 1, {{UnitParameter::unitID, "A"}})});
    EXPECT_EQ(objection(0), RowObjection::addressOfMany);
}

TEST_F(UnitPlanTest, AUnitWithoutAHardwareAddressCannotMove) {
    HeardUnit unit = heardUnit(1);
    unit.record.removeValue(UnitParameter::internalMACAddress);
    heard.add(unit);
    plan({row(2, 1, move(5))});
    EXPECT_EQ(objection(0), RowObjection::noHardwareAddress);
    plan({row(2, 1, {{UnitParameter::unitID, "A"}})});
    EXPECT_EQ(states(), States{planned});
}

// --- New addresses ---

TEST_F(UnitPlanTest, NewAddressesThatNoUnitCanHaveAreWrongInTheTable) {
    hear(1, 4);
    plan({row(2, 1, {{UnitParameter::internalIPAddress, "192.0.1.1"}}),
          row(3, 2, {{UnitParameter::internalIPAddress, "192.0.0.0"}}),
          row(4, 3, {{UnitParameter::internalIPAddress, "192.0.255.255"}}),
          row(5, 4, {{UnitParameter::internalIPAddress, "10.0.0.1"}}),
          row(6, 99, {{UnitParameter::internalIPAddress, "10.0.0.2"}})});
    EXPECT_EQ(objection(0), RowObjection::ownAddress);
    EXPECT_EQ(objection(1), RowObjection::networkAddress);
    EXPECT_EQ(objection(2), RowObjection::networkAddress);
    EXPECT_EQ(objection(3), RowObjection::outsideAddress);
    EXPECT_EQ(objection(4), RowObjection::outsideAddress);
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(latest.rows[i].state, refused);
        EXPECT_TRUE(isWrongInTable(objection(i)));
    }
    EXPECT_FALSE(isWrongInTable(RowObjection::ring));
}

TEST_F(UnitPlanTest, AnAddressMustLieInANetworkOfTheInterfaceThatHearsTheUnit) {
    HostInterface other = ownInterface();
    other.name = "kx1";
    other.link = 7;
    other.networks = {{.address = 0x0A000001U, .mask = 0xFFFFFF00U}};
    network.interfaces.push_back(other);
    network.asked.push_back(other);
    hear(1, 1);
    plan({row(2, 1, {{UnitParameter::internalIPAddress, "10.0.0.9"}})});
    EXPECT_EQ(objection(0), RowObjection::outsideAddress);
    HeardUnit there = heardUnit(2);
    there.link = 7;
    heard.add(there);
    plan({row(2, 2, {{UnitParameter::internalIPAddress, "10.0.0.9"}})});
    EXPECT_EQ(states(), States{planned});
}

TEST_F(UnitPlanTest, AUnitThatIsHeardOnAnUnknownInterfaceIsLookedForOnThoseThatAreAsked) {
    HeardUnit unit = heardUnit(1);
    unit.link = 0;
    heard.add(unit);
    plan({row(2, 1, move(9))});
    EXPECT_EQ(states(), States{planned});
}

TEST_F(UnitPlanTest, AUnitOfAnotherSubnetThatKeepsItsAddressIsUnchanged) {
    HeardUnit unit = heardUnit(1);
    unit.record.setValue(UnitParameter::internalIPAddress, "10.9.9.9");
    heard.add(unit);
    plan({row(2, 1, {{UnitParameter::internalIPAddress, "10.9.9.9"}})});
    EXPECT_EQ(states(), States{RowState::unchanged});
}

TEST_F(UnitPlanTest, AnAddressThatAUnitKeepsIsHeld) {
    hear(1, 3);
    plan({row(2, 1, move(2)), row(3, 3, move(3)), row(4, 2, {{UnitParameter::unitID, "A"}})});
    EXPECT_EQ(states(), (States{refused, RowState::unchanged, planned}));
    EXPECT_EQ(objection(0), RowObjection::heldByUnit);
    EXPECT_EQ(latest.rows[0].reason.parameter, UnitParameter::internalIPAddress);
    EXPECT_EQ(latest.rows[0].reason.value, address(2));
    EXPECT_EQ(latest.rows[0].reason.others, std::vector{sampleSerial(2)});
}

TEST_F(UnitPlanTest, TwoRowsForOneAddressAreBothRefused) {
    hear(1, 2);
    plan({row(2, 1, move(9)), row(3, 2, move(9))});
    EXPECT_EQ(states(), (States{refused, refused}));
    EXPECT_EQ(objection(0), RowObjection::wantedTwice);
    EXPECT_EQ(latest.rows[0].reason.otherLine, 3U);
    EXPECT_EQ(latest.rows[1].reason.otherLine, 2U);
}

TEST_F(UnitPlanTest, TwoRowsForOneUnitAreBothRefused) {
    hear(1, 1);
    plan({row(2, 1, move(8)), row(3, 1, move(9))});
    EXPECT_EQ(objection(0), RowObjection::namedTwice);
    EXPECT_EQ(objection(1), RowObjection::namedTwice);
    EXPECT_EQ(latest.rows[0].reason.otherLine, 3U);
}

// --- Order ---

TEST_F(UnitPlanTest, AUnitThatFreesAnAddressGoesBeforeTheOneThatTakesIt) {
    hear(1, 2);
    plan({row(2, 1, move(2)), row(3, 2, move(9))});
    EXPECT_EQ(states(), (States{planned, planned}));
    EXPECT_EQ(latest.order, (Order{1, 0}));
    EXPECT_EQ(latest.rows[0].after.at(0).row, 1U);
    EXPECT_EQ(latest.rows[1].waiting, Order{0});
}

TEST_F(UnitPlanTest, ASwapIsRefusedAndTheOthersArePlanned) {
    hear(1, 3);
    plan({row(2, 1, move(2)), row(3, 2, move(1)), row(4, 3, move(9))});
    EXPECT_EQ(states(), (States{refused, refused, planned}));
    EXPECT_EQ(objection(0), RowObjection::ring);
    EXPECT_EQ(latest.rows[0].reason.otherLine, 3U);
    EXPECT_EQ(latest.rows[0].reason.value, address(2));
    EXPECT_EQ(objection(1), RowObjection::ring);
    EXPECT_EQ(latest.order, Order{2});
}

TEST_F(UnitPlanTest, ARowThatWaitsForARingIsRefusedBecauseOfIt) {
    hear(1, 3);
    plan({row(2, 1, move(2)), row(3, 2, move(3)), row(4, 3, move(2))});
    // Two rows want the address of unit 2, so none of them may have it.
    EXPECT_EQ(objection(0), RowObjection::wantedTwice);
    hear(4, 4);
    plan({row(2, 1, rename(2)),
          row(3, 2,
              {{UnitParameter::serialNumber, sampleSerial(9)},
               {UnitParameter::internalIPAddress, address(3)}}),
          row(4, 3, move(2))});
    EXPECT_EQ(objection(0), RowObjection::waitsForRefused);
    EXPECT_EQ(latest.rows[0].reason.otherLine, 3U);
    EXPECT_EQ(latest.rows[0].reason.parameter, UnitParameter::serialNumber);
    EXPECT_EQ(latest.rows[0].reason.value, sampleSerial(2));
    EXPECT_EQ(objection(1), RowObjection::ring);
    EXPECT_EQ(objection(2), RowObjection::ring);
    EXPECT_EQ(latest.rows[0].changes[0].state, ChangeState::refused);
}

TEST_F(UnitPlanTest, ARowThatWaitsForARefusedRowIsRefused) {
    hear(1, 4);
    plan({row(2, 1, move(2)), row(3, 2, move(3)), row(4, 3, move(4))});
    EXPECT_EQ(states(), (States{refused, refused, refused}));
    EXPECT_EQ(objection(2), RowObjection::heldByUnit);
    EXPECT_EQ(objection(1), RowObjection::waitsForRefused);
    EXPECT_EQ(objection(0), RowObjection::waitsForRefused);
    EXPECT_EQ(latest.rows[0].reason.otherLine, 3U);
}

TEST_F(UnitPlanTest, SerialNumbersAndHardwareAddressesChangeHandsInOrderToo) {
    hear(1, 3);
    plan({row(2, 1, rename(2)), row(3, 2, rename(9))});
    EXPECT_EQ(latest.order, (Order{1, 0}));
    plan({row(2, 1, {{UnitParameter::internalMACAddress, sampleHardwareAddress(2)}}),
          row(3, 2, {{UnitParameter::internalMACAddress, sampleHardwareAddress(9)}}),
          row(4, 3, rename(1))});
    EXPECT_EQ(latest.order, (Order{1, 0}));
    EXPECT_EQ(objection(2), RowObjection::heldByUnit);
    EXPECT_EQ(latest.rows[2].reason.parameter, UnitParameter::serialNumber);
}

TEST_F(UnitPlanTest, AnAddressAgainstASerialNumberIsARing) {
    hear(1, 2);
    plan({row(2, 1, move(2)), row(3, 2,
                                  {{UnitParameter::internalIPAddress, address(9)},
                                   {UnitParameter::serialNumber, sampleSerial(1)}})});
    // Unit 1 keeps its serial number, so unit 2 cannot have it.
    EXPECT_EQ(objection(1), RowObjection::heldByUnit);
    EXPECT_EQ(objection(0), RowObjection::waitsForRefused);
    plan({row(2, 1,
              {{UnitParameter::internalIPAddress, address(2)},
               {UnitParameter::serialNumber, sampleSerial(8)}}),
          row(3, 2,
              {{UnitParameter::internalIPAddress, address(9)},
               {UnitParameter::serialNumber, sampleSerial(1)}})});
    EXPECT_EQ(objection(0), RowObjection::ring);
    EXPECT_EQ(objection(1), RowObjection::ring);
    EXPECT_EQ(latest.rows[1].reason.parameter, UnitParameter::serialNumber);
}

TEST_F(UnitPlanTest, AUnitThatTellsNoHardwareAddressNeitherGivesNorTakesASerialNumber) {
    for (const std::uint32_t without : {1U, 2U}) {
        heard = HeardUnits();
        hear(3 - without, 3 - without);
        HeardUnit unit = heardUnit(without);
        unit.record.removeValue(UnitParameter::internalMACAddress);
        heard.add(unit);
        plan({row(2, 1, rename(2)), row(3, 2, rename(9))});
        EXPECT_EQ(objection(0), RowObjection::heldByUnit);
        EXPECT_EQ(latest.rows[1].state, planned);
    }
}

// --- Sums and size ---

TEST_F(UnitPlanTest, EveryRowIsCountedInItsState) {
    hear(1, 3);
    plan({row(2, 1, move(9)), row(3, 2, {}), row(4, 3, move(2)), row(5, 7, {})});
    EXPECT_EQ(latest.sum(planned), 1U);
    EXPECT_EQ(latest.sum(RowState::unchanged), 1U);
    EXPECT_EQ(latest.sum(refused), 1U);
    EXPECT_EQ(latest.sum(RowState::silent), 1U);
    leaveUntouched(latest, {.objection = RowObjection::othersRefused});
    EXPECT_EQ(latest.sum(RowState::untouched), 1U);
    EXPECT_EQ(objection(0), RowObjection::othersRefused);
    EXPECT_EQ(latest.rows[0].changes[0].state, ChangeState::refused);
}

TEST_F(UnitPlanTest, TenThousandRowsInOneChainArePlannedInAPartOfASecond) {
    constexpr std::uint32_t count = 10'000;
    hear(1, count);
    std::vector<WantedRow> rows;
    for (std::uint32_t number = 1; number <= count; ++number) {
        rows.push_back(row(number + 1, number,
                           {{UnitParameter::internalIPAddress, address(number + 1)},
                            {UnitParameter::serialNumber, sampleSerial(number + 1)},
                            {UnitParameter::unitID, "A"}}));
    }
    const auto begun = std::chrono::steady_clock::now();
    plan(rows);
    const auto taken = std::chrono::steady_clock::now() - begun;
    EXPECT_EQ(latest.sum(planned), count);
    EXPECT_EQ(latest.order.front(), count - 1);
    EXPECT_LT(taken, std::chrono::seconds(1));
    rows.back() = row(count + 1, count, move(1));
    rows.front() = row(2, 1, move(2));
    plan(rows);
    EXPECT_EQ(latest.sum(refused), count);
}

} // namespace kx
