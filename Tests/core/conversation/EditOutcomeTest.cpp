#include "EditOutcomes.h"
#include "support/AuthorizationService.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace kx {

namespace {

using enum UnitParameter;

const std::string newNumber = "0A 0B 0C 0D 0E 0F";

EditOutcome changeOfSerialNumber(const EditOutcome::Unit& unit) {
    return {editOf(serialNumber, "0a0b0c0d0e0f"), unit};
}

UnitRecord recordOf(std::string_view serial, std::string_view hardwareAddress) {
    UnitRecord record;
    record.setValue(serialNumber, serial);
    record.setValue(internalMACAddress, hardwareAddress);
    return record;
}

} // namespace

TEST(EditOutcome, GoesFromPendingOverAcceptedToShown) {
    EditOutcome outcome = outcomeOf(destinationPortNumber, "3523", "3520");
    EXPECT_EQ(outcome.state(), EditState::pending);
    EXPECT_TRUE(outcome.unitDidAccept(editedUnit, {}));
    EXPECT_EQ(outcome.state(), EditState::accepted);
    EXPECT_TRUE(outcome.unitDidTell(editedUnit, recordWith(destinationPortNumber, "3523")));
    EXPECT_EQ(outcome.state(), EditState::shown);
    EXPECT_EQ(outcome.shownValue(), "3523");
}

TEST(EditOutcome, ASecondAcceptanceIsADuplicate) {
    EditOutcome outcome = outcomeOf(destinationPortNumber, "3523", "3520");
    outcome.unitDidAccept(editedUnit, {});
    outcome.unitDidTell(editedUnit, recordWith(destinationPortNumber, "3523"));
    EXPECT_FALSE(outcome.unitDidAccept(editedUnit, {}));
    EXPECT_EQ(outcome.state(), EditState::shown);
}

TEST(EditOutcome, ASecondAcceptanceCountsWhenTheUnitCouldBeAskedOnlyThen) {
    EditOutcome outcome = outcomeOf(destinationPortNumber, "3523", "3520");
    outcome.unitDidAccept(editedUnit, SendFailure());
    ASSERT_TRUE(outcome.requestFailure().has_value());
    EXPECT_FALSE(outcome.unitDidAccept(editedUnit, SendFailure())) << "nothing has changed";
    EXPECT_TRUE(outcome.unitDidAccept(editedUnit, {}));
    EXPECT_FALSE(outcome.requestFailure().has_value());
    EXPECT_EQ(outcome.state(), EditState::accepted);
}

TEST(EditOutcome, ASecondAcceptanceDoesNotHideWhatTheUnitShows) {
    EditOutcome outcome = outcomeOf(destinationPortNumber, "3523", "3520");
    outcome.unitDidAccept(editedUnit, SendFailure());
    outcome.unitDidTell(editedUnit, recordWith(destinationPortNumber, "3523"));
    EXPECT_FALSE(outcome.unitDidAccept(editedUnit, {}));
    EXPECT_EQ(outcome.state(), EditState::shown);
}

TEST(EditOutcome, AnAcceptanceCountsAfterAReplyThatWasUnderWayAlready) {
    EditOutcome outcome = outcomeOf(destinationPortNumber, "3523", "3520");
    outcome.unitDidTell(editedUnit, recordWith(destinationPortNumber, "3520"));
    EXPECT_EQ(outcome.state(), EditState::unchanged);
    outcome.unitDidAccept(editedUnit, {});
    EXPECT_EQ(outcome.state(), EditState::accepted);
}

TEST(EditOutcome, TellsTheOldValueFromAnother) {
    EditOutcome outcome = outcomeOf(devicePortNumber, "70000", "10000");
    outcome.unitDidTell(editedUnit, recordWith(devicePortNumber, "10000"));
    EXPECT_EQ(outcome.state(), EditState::unchanged);
    outcome.unitDidTell(editedUnit, recordWith(devicePortNumber, "4464"));
    EXPECT_EQ(outcome.state(), EditState::different);
    EXPECT_EQ(outcome.shownValue(), "4464");
}

TEST(EditOutcome, AValueThatWasSoAlreadyCountsAsShown) {
    EditOutcome outcome = outcomeOf(unitID, "42", "42");
    outcome.unitDidTell(editedUnit, recordWith(unitID, "42"));
    EXPECT_EQ(outcome.state(), EditState::shown);
}

TEST(EditOutcome, AUnitMayNotTellTheParameter) {
    EditOutcome outcome = outcomeOf(unitID, "7", "42");
    outcome.unitDidTell(editedUnit, recordWith(unitID, "42"));
    outcome.unitDidTell(editedUnit, UnitRecord());
    EXPECT_EQ(outcome.state(), EditState::notReported);
    EXPECT_EQ(outcome.shownValue(), std::nullopt);
}

TEST(EditOutcome, ZeroBytesAtTheEndOfAUnitIDDoNotCount) {
    EditOutcome outcome = outcomeOf(unitID, "AB", "42");
    outcome.unitDidTell(editedUnit, recordWith(unitID, std::string_view("AB\0\0\0\0", 6)));
    EXPECT_EQ(outcome.state(), EditState::shown);
    EXPECT_EQ(outcome.shownValue(), "AB");
}

TEST(EditOutcome, IsOfItsUnitAlone) {
    EditOutcome outcome = outcomeOf(unitID, "7", "42");
    EXPECT_FALSE(outcome.unitDidAccept("01 02 03 04 05 07", {}));
    EXPECT_FALSE(outcome.unitDidTell("01 02 03 04 05 07", recordWith(unitID, "7")));
    EditOutcome withoutUnit(editOf(internalIPAddress, "10.0.0.7"), {});
    EXPECT_FALSE(withoutUnit.unitDidAccept(editedUnit, {}));
    EXPECT_FALSE(withoutUnit.unitDidTell("10.0.0.7", recordWith(internalIPAddress, "10.0.0.7")));
    EXPECT_EQ(withoutUnit.state(), EditState::pending);
}

// An acknowledgement may belong to an earlier command, and a reply to an earlier request.
TEST(EditOutcome, ACommandThatWasNotSentIsNeitherAcceptedNorShown) {
    EditOutcome outcome(editOf(unitID, "7"), {.serialNumber = editedUnit, .valueBefore = "42"},
                        SendFailure{posixError(ENETUNREACH)});
    EXPECT_FALSE(outcome.unitDidAccept(editedUnit, {}));
    EXPECT_FALSE(outcome.unitDidTell(editedUnit, recordWith(unitID, "42")));
    EXPECT_EQ(outcome.state(), EditState::notSent);
    EXPECT_EQ(outcome.failure()->error, posixError(ENETUNREACH));
}

TEST(EditOutcome, KnowsThatTheUnitCouldNotBeAsked) {
    EditOutcome outcome = outcomeOf(unitID, "7", "42");
    outcome.unitDidAccept(editedUnit, SendFailure{posixError(ENETUNREACH)});
    EXPECT_EQ(outcome.state(), EditState::accepted);
    EXPECT_EQ(outcome.requestFailure()->error, posixError(ENETUNREACH));
}

TEST(EditOutcome, AUnitWithANewSerialNumberSpeaksUnderIt) {
    EditOutcome outcome =
        changeOfSerialNumber({.serialNumber = editedUnit, .hardwareAddress = editedUnitsAddress});
    EXPECT_TRUE(outcome.unitDidAccept(newNumber, {}));
    EXPECT_TRUE(outcome.unitDidTell(newNumber, recordOf(newNumber, editedUnitsAddress)));
    EXPECT_EQ(outcome.state(), EditState::shown);
    EXPECT_FALSE(outcome.unitDidTell("0A 0B 0C 0D 0E 10",
                                     recordOf("0A 0B 0C 0D 0E 10", editedUnitsAddress)));
}

TEST(EditOutcome, AnotherUnitThatHasTheNewSerialNumberDoesNotConfirmIt) {
    EditOutcome outcome = changeOfSerialNumber({.serialNumber = editedUnit,
                                                .hardwareAddress = editedUnitsAddress,
                                                .newSerialNumberIsTaken = true});
    EXPECT_FALSE(outcome.unitDidAccept(newNumber, {}));
    EXPECT_FALSE(outcome.unitDidTell(newNumber, recordOf(newNumber, "02:4B:58:00:00:07")));
    EXPECT_EQ(outcome.state(), EditState::pending);
    EXPECT_TRUE(outcome.unitDidTell(newNumber, recordOf(newNumber, editedUnitsAddress)));
    EXPECT_EQ(outcome.state(), EditState::shown);
}

TEST(EditOutcome, AnotherUnitThatNobodyKnewOfDoesNotConfirmANewSerialNumberEither) {
    EditOutcome outcome =
        changeOfSerialNumber({.serialNumber = editedUnit, .hardwareAddress = editedUnitsAddress});
    EXPECT_FALSE(outcome.unitDidTell(newNumber, recordOf(newNumber, "02:4B:58:00:00:07")));
    EXPECT_EQ(outcome.state(), EditState::pending);
}

TEST(EditOutcome, WithoutAHardwareAddressANewSerialNumberCountsWhenNobodyHadIt) {
    EditOutcome::Unit unit{.serialNumber = editedUnit};
    EditOutcome outcome = changeOfSerialNumber(unit);
    EXPECT_TRUE(outcome.unitDidTell(newNumber, recordOf(newNumber, editedUnitsAddress)));
    unit.newSerialNumberIsTaken = true;
    EditOutcome ofTakenNumber = changeOfSerialNumber(unit);
    EXPECT_FALSE(ofTakenNumber.unitDidTell(newNumber, recordOf(newNumber, editedUnitsAddress)));
    EXPECT_TRUE(ofTakenNumber.unitDidTell(editedUnit, recordOf(editedUnit, editedUnitsAddress)));
}

TEST(ARPEntry, IsKnownByTheResultOfTheRun) {
    EXPECT_EQ(arpEntryForResult(0), (ARPEntry{ARPEntryState::started}));
    EXPECT_EQ(arpEntryForResult(-1), (ARPEntry{ARPEntryState::notASCII}));
    EXPECT_EQ(arpEntryForResult(errAuthorizationDenied), (ARPEntry{ARPEntryState::refused}));
    EXPECT_EQ(arpEntryForResult(errAuthorizationCanceled), (ARPEntry{ARPEntryState::dismissed}));
    EXPECT_EQ(arpEntryForResult(errAuthorizationToolExecuteFailure),
              (ARPEntry{ARPEntryState::cannotRun}));
    EXPECT_EQ(arpEntryForResult(errAuthorizationInvalidRef),
              (ARPEntry{ARPEntryState::notStarted, errAuthorizationInvalidRef}));
}

TEST(ARPEntry, IsKnownByHowTheToolEnded) {
    EXPECT_EQ(arpEntryForEndOfTool(0), (ARPEntry{ARPEntryState::started}));
    EXPECT_EQ(arpEntryForEndOfTool(255), (ARPEntry{ARPEntryState::ended, 255}));
}

TEST(EditOutcome, AnotherUnitTookItOnlyWhenItAnswersFromTheAddressOfTheEdit) {
    const std::string other = "01 02 03 04 05 07";
    const std::uint32_t address = 0xC0A8010A;
    const auto outcome = [&] {
        return EditOutcome(editOf(UnitParameter::unitID, "7"),
                           {.serialNumber = editedUnit, .address = address});
    };
    EditOutcome taken = outcome();
    EXPECT_FALSE(taken.otherUnitDidAccept(editedUnit, address));
    EXPECT_FALSE(taken.otherUnitDidAccept(other, address + 1));
    EXPECT_FALSE(taken.otherUnitDidAccept(other, 0));
    EXPECT_EQ(taken.otherUnit(), std::nullopt);
    EXPECT_TRUE(taken.otherUnitDidAccept(other, address));
    EXPECT_FALSE(taken.otherUnitDidAccept(other, address));
    EXPECT_EQ(taken.otherUnit(), other);
    EXPECT_EQ(taken.state(), EditState::pending);

    EditOutcome refused(editOf(UnitParameter::unitID, "7"),
                        {.serialNumber = editedUnit, .address = address}, SendFailure());
    EXPECT_FALSE(refused.otherUnitDidAccept(other, address));
    EditOutcome renamed(editOf(UnitParameter::serialNumber, other),
                        {.serialNumber = editedUnit, .address = address});
    EXPECT_FALSE(renamed.otherUnitDidAccept(other, address)); // it is the unit itself
}

} // namespace kx
