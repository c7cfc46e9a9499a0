#include "words/PlanCells.h"

#include "files/StateNames.h"
#include "support/LocalizedText.h"
#include "words/QuotedText.h"
#include "words/TableComplaintText.h"
#include "words/UnitPlanText.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace kx {

namespace {

// The sign stands before the words, so that a state is seen without reading and without a colour.
std::string withSign(std::string_view sign, std::string_view key) {
    return std::string(sign) + ' ' + localizedText(key);
}

std::string wordsOf(RowState state) {
    switch (state) {
    case RowState::planned:
        return withSign("·", localizedKey("To change"));
    case RowState::unchanged:
        return withSign("=", localizedKey("Unchanged"));
    case RowState::refused:
        return withSign("✗", localizedKey("Refused"));
    case RowState::silent:
        return withSign("○", localizedKey("No answer"));
    case RowState::done:
        return withSign("✓", localizedKey("Done"));
    case RowState::untouched:
        return withSign("–", localizedKey("Not begun"));
    case RowState::half:
        break;
    }
    return withSign("⚠", localizedKey("Half configured"));
}

// Of a change whose unit has got a command.
std::string wordsOf(ChangeState state) {
    switch (state) {
    case ChangeState::done:
        return wordsOf(RowState::done);
    case ChangeState::silent:
        return wordsOf(RowState::silent);
    case ChangeState::planned:
        return wordsOf(RowState::planned);
    case ChangeState::unchanged:
        return wordsOf(RowState::unchanged);
    case ChangeState::refused:
        return withSign("✗", localizedKey("Not sent"));
    case ChangeState::different:
        break;
    }
    return withSign("⚠", localizedKey("Other value"));
}

std::string wordsOfUnderWay() {
    return withSign("…", localizedKey("Under way"));
}

std::string wordsOfWrongCell() {
    return withSign("✗", localizedKey("Wrong"));
}

// A command went to the unit, so that each change has an outcome of its own.
bool hasOutcomes(const PlannedRow& row) {
    return std::ranges::any_of(row.changes, [](const UnitChange& change) {
        return change.state == ChangeState::done || change.state == ChangeState::different ||
               change.state == ChangeState::silent;
    });
}

std::string stateOf(const PlannedRow& row, const UnitChange* change, bool isUnderWay) {
    if (isUnderWay) {
        return wordsOfUnderWay();
    }
    return change != nullptr && hasOutcomes(row) ? wordsOf(change->state) : wordsOf(row.state);
}

// A cell of a foreign file has any length.
std::string shown(std::string_view text) {
    return safeForSentence(text, mostCharactersOfSentence);
}

std::string nameOf(const UnitChange& change) {
    return localizedText(nameOfUnitParameter(change.edit.edit.parameter));
}

} // namespace

std::vector<PlanLine> linesOfPlan(const UnitPlan& plan) {
    std::vector<PlanLine> lines;
    for (std::size_t row = 0; row < plan.rows.size(); ++row) {
        const auto& changes = plan.rows[row].changes;
        const std::size_t before = lines.size();
        for (std::size_t change = 0; change < changes.size(); ++change) {
            if (changes[change].state != ChangeState::unchanged) {
                lines.push_back({.row = row, .change = change});
            }
        }
        if (lines.size() == before) {
            lines.push_back({.row = row});
        }
    }
    return lines;
}

std::string titleOfPlanColumn(PlanColumn column) {
    switch (column) {
    case PlanColumn::line:
        return localizedText("Line");
    case PlanColumn::unit:
        return localizedText("Unit");
    case PlanColumn::parameter:
        return localizedText("Parameter");
    case PlanColumn::before:
        return localizedText("Before");
    case PlanColumn::wanted:
        return localizedText("Wanted");
    case PlanColumn::state:
        return localizedText("State");
    default:
        return localizedText("Reason");
    }
}

std::string cellOfPlan(const UnitPlan& plan, const PlanLine& line, bool isUnderWay,
                       PlanColumn column) {
    const PlannedRow& row = plan.rows[line.row];
    const UnitChange* const change = line.change.has_value() ? &row.changes[*line.change] : nullptr;
    switch (column) {
    case PlanColumn::line:
        return std::to_string(row.line);
    case PlanColumn::unit:
        return shown(row.serialNumber);
    case PlanColumn::parameter:
        return change != nullptr ? nameOf(*change) : std::string();
    case PlanColumn::before:
        return change != nullptr ? shown(change->from.value_or("")) : std::string();
    case PlanColumn::wanted:
        return change != nullptr ? shown(change->to) : std::string();
    case PlanColumn::state:
        return stateOf(row, change, isUnderWay);
    default:
        return isUnderWay ? std::string() : noteOfRow(row);
    }
}

std::string cellOfComplaint(const TableComplaint& complaint, PlanColumn column) {
    switch (column) {
    case PlanColumn::line:
        return std::to_string(complaint.line);
    case PlanColumn::parameter:
        return shown(complaint.column);
    case PlanColumn::wanted:
        return shown(complaint.cell);
    case PlanColumn::state:
        return wordsOfWrongCell();
    case PlanColumn::reason:
        return faultOfTable(complaint);
    default:
        return {};
    }
}

std::vector<std::string> wordsOfPlanStates() {
    return {wordsOf(RowState::planned),
            wordsOf(RowState::unchanged),
            wordsOf(RowState::refused),
            wordsOf(RowState::silent),
            wordsOf(RowState::done),
            wordsOf(RowState::untouched),
            wordsOf(RowState::half),
            wordsOf(ChangeState::refused),
            wordsOf(ChangeState::different),
            wordsOfUnderWay(),
            wordsOfWrongCell()};
}

std::string withoutSign(const std::string& state) {
    return state.substr(state.find(' ') + 1);
}

std::string noteOfRow(const PlannedRow& row) {
    std::string note = reasonOfRow(row);
    const auto move =
        std::ranges::find(row.changes, UnitParameter::internalIPAddress,
                          [](const UnitChange& each) { return each.edit.edit.parameter; });
    if (row.isStillBound && move != row.changes.end()) {
        note += note.empty() ? "" : " ";
        note += sentenceOfLeftEntry(move->to);
    }
    return note;
}

std::string sentenceOfPlan(const UnitPlan& plan) {
    return localizedText("Units to change: %d, parameters in all: %d. Unchanged: %d, refused: %d, "
                         "without an answer: %d.",
                         {static_cast<long long>(plan.sum(RowState::planned)),
                          static_cast<long long>(plan.plannedChanges()),
                          static_cast<long long>(plan.sum(RowState::unchanged)),
                          static_cast<long long>(plan.sum(RowState::refused)),
                          static_cast<long long>(plan.sum(RowState::silent))});
}

std::string sentenceOfRun(const UnitPlan& plan) {
    return localizedText(
        "Done: %d, unchanged: %d, refused: %d, not begun: %d, half configured: %d, "
        "without an answer: %d.",
        {static_cast<long long>(plan.sum(RowState::done)),
         static_cast<long long>(plan.sum(RowState::unchanged)),
         static_cast<long long>(plan.sum(RowState::refused)),
         static_cast<long long>(plan.sum(RowState::untouched)),
         static_cast<long long>(plan.sum(RowState::half)),
         static_cast<long long>(plan.sum(RowState::silent))});
}

std::vector<ReportedRow> rowsOfReport(const UnitPlan& plan) {
    std::vector<ReportedRow> rows;
    rows.reserve(plan.rows.size());
    for (const PlannedRow& row : plan.rows) {
        rows.push_back({row.line, std::string(nameOfState(row.state)), reasonOfRow(row)});
    }
    return rows;
}

} // namespace kx
