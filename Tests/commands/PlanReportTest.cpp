#include "commands/PlanReport.h"

#include "words/PlanCells.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

PlannedRow rowIn(RowState state, std::size_t line, RowReason reason = {}) {
    PlannedRow row;
    row.line = line;
    row.serialNumber = "4B 58 00 00 00 0" + std::to_string(line);
    row.state = state;
    row.reason = std::move(reason);
    return row;
}

UnitChange change(ChangeState state) {
    ExactEdit edit;
    edit.edit.parameter = UnitParameter::destinationPortNumber;
    return {.edit = edit, .from = "3520", .to = "3521", .command = "^^IdT0DC1", .state = state};
}

UnitPlan planWith(std::vector<PlannedRow> rows) {
    UnitPlan plan;
    plan.rows = std::move(rows);
    return plan;
}

ErrorCode codeFor(std::vector<PlannedRow> rows) {
    return failureOfRows(planWith(std::move(rows))).value().code;
}

} // namespace

TEST(PlanReport, RowsThatAreAsWantedAreNoFailure) {
    EXPECT_FALSE(failureOfRows({}).has_value());
    EXPECT_FALSE(failureOfRows(planWith({rowIn(RowState::done, 2), rowIn(RowState::unchanged, 3),
                                         rowIn(RowState::planned, 4)}))
                     .has_value());
}

TEST(PlanReport, AUnitThatMustBeLookedAtWeighsMoreThanARefusal) {
    const auto refused = rowIn(RowState::refused, 2, {.objection = RowObjection::ring});
    const auto notHeard = rowIn(RowState::silent, 3, {.objection = RowObjection::notHeard});
    const auto fellSilent = rowIn(RowState::silent, 4, {.objection = RowObjection::fellSilent});
    const auto half = rowIn(RowState::half, 5, {.objection = RowObjection::fellSilent});
    EXPECT_EQ(codeFor({refused, notHeard}), ErrorCode::held) << "the first of the same weight";
    EXPECT_EQ(codeFor({refused, fellSilent}), ErrorCode::silent);
    EXPECT_EQ(codeFor({fellSilent, half, refused}), ErrorCode::half);
    EXPECT_EQ(failureOfRows(planWith({refused, half})).value().exitStatus, exitMustBeLookedAt);
}

TEST(PlanReport, AJournalThatFailsEndsWithItsOwnStatusButHalfAUnitWeighsMore) {
    const auto untouched =
        rowIn(RowState::untouched, 2, {.objection = RowObjection::journalFailed});
    const auto half = rowIn(RowState::half, 3, {.objection = RowObjection::journalFailed});
    const auto failure = failureOfRows(planWith({untouched})).value();
    EXPECT_EQ(failure.code, ErrorCode::file);
    EXPECT_EQ(failure.exitStatus, exitCannotAsk);
    EXPECT_EQ(codeFor({untouched, half}), ErrorCode::half);
}

TEST(PlanReport, TheMessageNamesTheLineAndCountsTheOtherCausesOnly) {
    const RowReason silent{.objection = RowObjection::notHeard};
    const RowReason rest{.objection = RowObjection::othersRefused};
    const RowReason waits{.objection = RowObjection::waitsForRefused, .otherLine = 2};
    EXPECT_EQ(failureOfRows(planWith({rowIn(RowState::untouched, 2, rest),
                                      rowIn(RowState::silent, 3, silent)}))
                  .value()
                  .message,
              "Line 3, 4B 58 00 00 00 03: The unit 4B 58 00 00 00 03 does not answer.");
    EXPECT_EQ(failureOfRows(
                  planWith({rowIn(RowState::silent, 2, silent), rowIn(RowState::refused, 3, waits),
                            rowIn(RowState::silent, 4, silent)}))
                  .value()
                  .message,
              "Line 2, 4B 58 00 00 00 02: The unit 4B 58 00 00 00 02 does not answer. Other lines "
              "that are not done: 1.");
}

TEST(PlanReport, OnlyFaultsOfTheTableItselfAreFailuresInIt) {
    EXPECT_FALSE(failureInTable(planWith({rowIn(RowState::refused, 2,
                                                {.objection = RowObjection::heldByUnit})}))
                     .has_value());
    const auto failure =
        failureInTable(
            planWith({rowIn(RowState::refused, 2,
                            {.objection = RowObjection::ownAddress, .value = "192.0.2.1"})}))
            .value();
    EXPECT_EQ(failure.code, ErrorCode::value);
    EXPECT_EQ(failure.exitStatus, exitWrong);
}

TEST(PlanReport, ATableTellsEachChangeAndEachReasonOnce) {
    PlannedRow half = rowIn(RowState::half, 2, {.objection = RowObjection::fellSilent});
    half.changes = {change(ChangeState::done), change(ChangeState::unchanged),
                    change(ChangeState::silent)};
    PlannedRow untouched =
        rowIn(RowState::untouched, 3, {.objection = RowObjection::othersFailed, .otherLine = 2});
    untouched.changes = {change(ChangeState::refused)};
    const std::string text =
        tableOfRows(planWith({half, untouched, rowIn(RowState::unchanged, 4)}), false);
    std::vector<std::string> lines;
    for (std::size_t begin = 0; begin < text.size(); begin = text.find('\n', begin) + 1) {
        lines.push_back(text.substr(begin, text.find('\n', begin) - begin));
    }
    ASSERT_EQ(lines.size(), 4U) << text;
    EXPECT_NE(lines[1].find("has taken some"), std::string::npos) << text;
    EXPECT_EQ(lines[2].find("has taken some"), std::string::npos) << text;
    EXPECT_NE(lines[3].find("untouched"), std::string::npos) << text;
    EXPECT_EQ(lines[3].find("3521"), std::string::npos) << "nothing was sent to it: " << text;
}

TEST(PlanReport, ATableWithoutAnythingToTellHasNoHeadEither) {
    EXPECT_EQ(tableOfRows(planWith({rowIn(RowState::unchanged, 2)}), true), "");
}

TEST(PlanReport, APlanAndARunHaveSumsOfTheirOwn) {
    const UnitPlan plan = planWith({rowIn(RowState::planned, 2), rowIn(RowState::unchanged, 3)});
    EXPECT_EQ(lineOfSums(plan, PlanStage::planned),
              "1 to change, 1 unchanged, 0 refused, 0 silent\n");
    EXPECT_EQ(jsonOfSums(plan, PlanStage::carriedOut).dump(),
              R"({"done":0,"unchanged":1,"refused":0,"untouched":0,"half":0,"silent":0})");
}

TEST(PlanReport, AReportHasEveryRowInTheOrderOfTheTable) {
    const auto rows = rowsOfReport(
        planWith({rowIn(RowState::done, 2),
                  rowIn(RowState::untouched, 3, {.objection = RowObjection::interrupted})}));
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].state, "done");
    EXPECT_EQ(rows[0].reason, "");
    EXPECT_EQ(rows[1].line, 3U);
    EXPECT_EQ(rows[1].reason, "Interrupted.");
}

} // namespace kx
