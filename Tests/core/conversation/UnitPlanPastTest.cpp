// Plans of rows that have a past: those of kept plans, and those of runs that are resumed.

#include "PlanFixture.h"

namespace kx {

namespace {

class UnitPlanPastTest : public PlanTest {
protected:
    using States = std::vector<RowState>;
    static constexpr auto planned = RowState::planned;
};

} // namespace

// --- Kept plans ---

TEST_F(UnitPlanPastTest, AUnitThatShowsAnotherValueThanAKeptPlanSawIsRefusedByTheParameter) {
    hear(1, 1);
    WantedRow kept = row(2, 1, {{UnitParameter::unitID, "A"}});
    kept.seen = SeenUnit{.record = heardUnit(1).record, .unitIDBytes = heardUnit(1).unitIDBytes};
    plan({kept});
    EXPECT_EQ(states(), States{planned});
    kept.seen->record.setValue(UnitParameter::destinationPortNumber, "3521");
    plan({kept});
    EXPECT_EQ(objection(0), RowObjection::outOfDate);
    EXPECT_EQ(latest.rows[0].reason.parameter, UnitParameter::destinationPortNumber);
    EXPECT_EQ(latest.rows[0].reason.value, "3521");
    EXPECT_EQ(latest.rows[0].reason.shown, "3520");
}

TEST_F(UnitPlanPastTest, AWantedValueThatARunBeforeHasGivenIsNotOutOfDate) {
    HeardUnit unit = heardUnit(1);
    setUnitID(unit, {'A', 0, 0, 0, 0, 0});
    heard.add(unit);
    WantedRow kept =
        row(2, 1, {{UnitParameter::unitID, "A"}, {UnitParameter::devicePortNumber, "9"}});
    kept.seen = SeenUnit{.record = heardUnit(1).record, .unitIDBytes = heardUnit(1).unitIDBytes};
    plan({kept});
    EXPECT_EQ(states(), States{planned});
    EXPECT_EQ(latest.rows[0].changes[0].state, ChangeState::unchanged);
}

TEST_F(UnitPlanPastTest, AUnitIDThatIsNoTextIsToldByItsBytes) {
    HeardUnit unit = heardUnit(1);
    setUnitID(unit, {0xFF, 0xFE, 0, 0, 0, 1});
    heard.add(unit);
    WantedRow kept = row(2, 1, {{UnitParameter::devicePortNumber, "9"}});
    kept.seen = SeenUnit{.record = heardUnit(1).record, .unitIDBytes = heardUnit(1).unitIDBytes};
    plan({kept});
    EXPECT_EQ(latest.rows[0].reason.parameter, UnitParameter::unitID);
    EXPECT_EQ(latest.rows[0].reason.value, "1");
    EXPECT_EQ(latest.rows[0].reason.shown, "FFFE00000001");
}

TEST_F(UnitPlanPastTest, AUnitIDThatWasNoTextIsComparedByItsBytes) {
    HeardUnit unit = heardUnit(1);
    setUnitID(unit, {0xFF, 0xFE, 0, 0, 0, 1});
    WantedRow kept = row(2, 1, {{UnitParameter::devicePortNumber, "9"}});
    kept.seen = SeenUnit{.record = unit.record, .unitIDBytes = unit.unitIDBytes};
    heard.add(unit);
    plan({kept});
    EXPECT_EQ(states(), States{planned});
    setUnitID(unit, {0xFF, 0xFE, 0, 0, 0, 2});
    heard.add(unit);
    plan({kept});
    EXPECT_EQ(objection(0), RowObjection::outOfDate);
    EXPECT_EQ(latest.rows[0].reason.value, "FFFE00000001");
    EXPECT_EQ(latest.rows[0].reason.shown, "FFFE00000002");
}

// --- Identities ---

TEST_F(UnitPlanPastTest, ARowWithAnIdentityFindsItsUnitUnderTheNewSerialNumber) {
    HeardUnit unit = heardUnit(1);
    unit.record.setValue(UnitParameter::serialNumber, sampleSerial(9));
    heard.add(unit);
    WantedRow resumed = row(2, 1, rename(9));
    plan({resumed});
    EXPECT_EQ(states(), States{RowState::silent});
    resumed.identities = {{sampleSerial(1), sampleHardwareAddress(1)},
                          {sampleSerial(9), sampleHardwareAddress(1)}};
    plan({resumed});
    EXPECT_EQ(states(), States{RowState::unchanged});
    EXPECT_EQ(latest.rows[0].serialNumber, sampleSerial(1));
}

TEST_F(UnitPlanPastTest, AUnitWithAnIdentityIsNotTakenForTheUnitThatHadItsSerialNumberBefore) {
    // Unit 1 has got the serial number of unit 2, which has got 9 and is switched off.
    HeardUnit unit = heardUnit(1);
    unit.record.setValue(UnitParameter::serialNumber, sampleSerial(2));
    heard.add(unit);
    WantedRow first = row(2, 1, rename(2));
    first.identities = {{sampleSerial(2), sampleHardwareAddress(1)}};
    const WantedRow second = row(3, 2, rename(9));
    plan({first, second});
    EXPECT_EQ(states(), (States{RowState::unchanged, RowState::silent}));
}

TEST_F(UnitPlanPastTest, AUnitWithAnotherHardwareAddressHasAnotherIdentity) {
    hear(1, 1);
    WantedRow resumed = row(2, 1, rename(9));
    resumed.identities = {{sampleSerial(1), sampleHardwareAddress(5)},
                          {sampleSerial(9), sampleHardwareAddress(5)}};
    plan({resumed});
    EXPECT_EQ(states(), States{RowState::silent});
}

TEST_F(UnitPlanPastTest, AUnitWithAnIdentityAndATwinIsRefused) {
    hear(1, 1);
    HeardUnit twin = heardUnit(1);
    twin.record.setValue(UnitParameter::internalMACAddress, sampleHardwareAddress(9));
    heard.add(twin);
    WantedRow resumed = row(2, 1, rename(9));
    resumed.identities = {{sampleSerial(1), sampleHardwareAddress(1)},
                          {sampleSerial(9), sampleHardwareAddress(1)}};
    plan({resumed});
    EXPECT_EQ(objection(0), RowObjection::ambiguousSerialNumber);
}

} // namespace kx
