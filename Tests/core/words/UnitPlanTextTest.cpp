#include "words/UnitPlanText.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace kx {

namespace {

constexpr auto reasonedSerial = "4B 58 00 00 00 01";

PlannedRow reasonedRow(RowState state, RowReason reason) {
    PlannedRow row;
    row.line = 2;
    row.serialNumber = reasonedSerial;
    row.state = state;
    row.reason = std::move(reason);
    return row;
}

std::string textOfReason(RowReason reason, RowState state = RowState::refused) {
    return reasonOfRow(reasonedRow(state, std::move(reason)));
}

UnitChange changeInState(ChangeState state) {
    UnitChange change;
    change.state = state;
    return change;
}

} // namespace

TEST(UnitPlanText, ARowThatIsPlannedUnchangedOrDoneHasNoReason) {
    for (const RowState state : {RowState::planned, RowState::unchanged, RowState::done}) {
        EXPECT_EQ(textOfReason({}, state), "");
    }
}

TEST(UnitPlanText, EveryObjectionHasASentenceOfItsOwn) {
    std::set<std::string> texts;
    constexpr int first = static_cast<int>(RowObjection::ownAddress);
    constexpr int last = static_cast<int>(RowObjection::journalFailed);
    for (int number = first; number <= last; ++number) {
        RowReason reason{.objection = static_cast<RowObjection>(number),
                         .parameter = UnitParameter::devicePortNumber,
                         .value = "V",
                         .shown = "S",
                         .others = {"O"},
                         .otherLine = 7};
        reason.entry.state = ARPEntryState::rightsNotGiven;
        reason.failure = SendFailure{};
        const std::string text = textOfReason(std::move(reason));
        EXPECT_TRUE(text.ends_with('.')) << number << ": " << text;
        EXPECT_TRUE(texts.insert(text).second) << text;
    }
}

TEST(UnitPlanText, AReasonNamesWhatItIsAbout) {
    EXPECT_EQ(textOfReason({.objection = RowObjection::notHeard}, RowState::silent),
              "The unit 4B 58 00 00 00 01 does not answer.");
    EXPECT_EQ(textOfReason({.objection = RowObjection::outOfDate,
                            .parameter = UnitParameter::destinationPortNumber,
                            .value = "3521",
                            .shown = "3520"}),
              "The plan is out of date: destination-port was “3521” and is “3520” now.");
    EXPECT_EQ(
        textOfReason({.objection = RowObjection::ring, .value = "192.0.2.41", .otherLine = 9}),
        "192.0.2.41 changes hands in a ring: line 9 must be done first, and waits for this "
        "one.");
    EXPECT_EQ(textOfReason({.objection = RowObjection::othersFailed, .otherLine = 9},
                           RowState::untouched),
              "Nothing new was begun after line 9.");
}

TEST(UnitPlanText, AFewOfManyOthersAreNamed) {
    EXPECT_EQ(textOfReason({.objection = RowObjection::heldByHost,
                            .value = "192.0.2.41",
                            .others = {"A", "B", "C", "D", "E"}}),
              "192.0.2.41 is held by A, B, C, D, ….");
}

TEST(UnitPlanText, WhatUnitsSayCannotLookLikeASentence) {
    EXPECT_EQ(textOfReason({.objection = RowObjection::different,
                            .parameter = UnitParameter::unitID,
                            .shown = "A\nB"}),
              "The unit 4B 58 00 00 00 01 shows another value: unit-id is “A\uFFFDB”.");
}

TEST(UnitPlanText, AValueThatTheUnitDoesNotTellIsNoOtherValue) {
    EXPECT_EQ(textOfReason({.objection = RowObjection::different,
                            .parameter = UnitParameter::devicePortNumber},
                           RowState::half),
              "The unit 4B 58 00 00 00 01 does not tell whether it has taken device-port.");
}

TEST(UnitPlanText, AUnitHasTakenSomeOfTheValuesWhenItHasAndOthersAreOpen) {
    PlannedRow row = reasonedRow(RowState::half, {.objection = RowObjection::fellSilent});
    row.changes = {changeInState(ChangeState::done), changeInState(ChangeState::silent)};
    EXPECT_EQ(reasonOfRow(row),
              "The unit 4B 58 00 00 00 01 has taken some of the values and not others. The unit "
              "4B 58 00 00 00 01 has not answered since the command.");
}

TEST(UnitPlanText, AUnitThatShowsAStrangeValueAloneHasNotTakenSomeOfTheValues) {
    PlannedRow row = reasonedRow(RowState::half, {.objection = RowObjection::different,
                                                  .parameter = UnitParameter::devicePortNumber,
                                                  .shown = "9"});
    row.changes = {changeInState(ChangeState::different), changeInState(ChangeState::unchanged)};
    EXPECT_EQ(reasonOfRow(row),
              "The unit 4B 58 00 00 00 01 shows another value: device-port is “9”.");
}

TEST(UnitPlanText, AUnitThatOnlyLacksItsARPAnswerHasTakenAllValues) {
    PlannedRow row = reasonedRow(RowState::half,
                                 {.objection = RowObjection::foreignAnswer, .value = "192.0.2.41"});
    row.changes = {changeInState(ChangeState::done)};
    EXPECT_EQ(reasonOfRow(row),
              "The unit shows 192.0.2.41 but does not answer ARP requests for it.");
    row.reason.others = {"02:4B:58:00:00:09"};
    row.unit = HeardUnit{};
    row.unit->record.setValue(UnitParameter::internalMACAddress, "02:4B:58:00:00:01");
    EXPECT_EQ(reasonOfRow(row), "The unit 02:4B:58:00:00:01 shows 192.0.2.41, but "
                                "02:4B:58:00:00:09 answers ARP requests for it.");
}

TEST(UnitPlanText, TheTimeThatIsLeftFollowsFromTheUnitsThatHaveEnded) {
    using std::chrono::seconds;
    EXPECT_EQ(textOfTimeLeft(seconds(10), 0, 20), "");
    EXPECT_EQ(textOfTimeLeft(seconds(10), 5, 20), "about 31 s left");
    EXPECT_EQ(textOfTimeLeft(seconds(10), 19, 20), "about 1 s left");
    EXPECT_EQ(textOfTimeLeft(seconds(89), 1, 2), "about 90 s left");
    EXPECT_EQ(textOfTimeLeft(seconds(90), 1, 2), "about 2 min left");
    EXPECT_EQ(textOfTimeLeft(seconds(149), 1, 2), "about 3 min left");
    EXPECT_EQ(textOfTimeLeft(seconds(10), 20, 20), "");
}

} // namespace kx
