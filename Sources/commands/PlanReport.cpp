#include "commands/PlanReport.h"

#include "commands/TextTable.h"
#include "files/StateNames.h"
#include "support/LocalizedText.h"
#include "words/UnitPlanText.h"

#include <algorithm>
#include <array>
#include <span>

namespace kx {

namespace {

constexpr std::array plannedStates{RowState::planned, RowState::unchanged, RowState::refused,
                                   RowState::silent};
constexpr std::array finalStates{RowState::done,      RowState::unchanged, RowState::refused,
                                 RowState::untouched, RowState::half,      RowState::silent};

std::span<const RowState> statesOf(PlanStage stage) {
    return stage == PlanStage::planned ? std::span<const RowState>(plannedStates) : finalStates;
}

std::string identifierOf(const UnitChange& change) {
    return std::string(descriptionOf(change.edit.edit.parameter).identifier);
}

// The changes of a row that tell something about it. Nothing was sent to a unit that is refused,
// silent from the beginning or untouched; its reason tells the rest.
std::vector<const UnitChange*> toldChanges(const PlannedRow& row) {
    std::vector<const UnitChange*> told;
    const bool wasBegun = row.state == RowState::planned ||
                          std::ranges::any_of(row.changes, [](const UnitChange& change) {
                              return change.state != ChangeState::planned &&
                                     change.state != ChangeState::unchanged &&
                                     change.state != ChangeState::refused;
                          });
    for (const UnitChange& change : row.changes) {
        if (wasBegun && change.state != ChangeState::unchanged) {
            told.push_back(&change);
        }
    }
    return told;
}

void addRow(TextTable& table, const PlannedRow& row) {
    const std::string line = std::to_string(row.line);
    std::string reason = reasonOfRow(row);
    for (const UnitChange* const change : toldChanges(row)) {
        table.addRow({line, row.serialNumber, identifierOf(*change), change->from.value_or(""),
                      change->to, std::string(nameOfState(change->state)), reason});
        reason.clear(); // once is enough
    }
    if (!reason.empty()) {
        table.addRow(
            {line, row.serialNumber, "", "", "", std::string(nameOfState(row.state)), reason});
    }
}

bool isAsWanted(const PlannedRow& row) {
    return row.state == RowState::planned || row.state == RowState::unchanged ||
           row.state == RowState::done;
}

ErrorCode codeOf(RowObjection objection) {
    switch (objection) {
    case RowObjection::ownAddress:
    case RowObjection::networkAddress:
    case RowObjection::outsideAddress:
        return ErrorCode::value;
    case RowObjection::namedTwice:
    case RowObjection::wantedTwice:
    case RowObjection::journalFailed:
        return ErrorCode::file;
    case RowObjection::ambiguousSerialNumber:
    case RowObjection::ambiguousAddress:
    case RowObjection::addressOfMany:
    case RowObjection::noHardwareAddress:
    case RowObjection::twinAnswered:
        return ErrorCode::ambiguous;
    case RowObjection::heldByUnit:
    case RowObjection::heldByHost:
    case RowObjection::ring:
    case RowObjection::waitsForRefused:
        return ErrorCode::held;
    case RowObjection::unknownHolder:
        return ErrorCode::interface;
    case RowObjection::outOfDate:
    case RowObjection::different:
        return ErrorCode::differs;
    case RowObjection::notTaken:
        return ErrorCode::unchanged;
    case RowObjection::fellSilent:
        return ErrorCode::silent;
    case RowObjection::foreignAnswer:
        return ErrorCode::half;
    case RowObjection::notBound:
        return ErrorCode::rights;
    case RowObjection::notSent:
        return ErrorCode::socket;
    default:
        return ErrorCode::notFound;
    }
}

Failure failureOfRow(const PlannedRow& row) {
    const ErrorCode code =
        row.state == RowState::half ? ErrorCode::half : codeOf(row.reason.objection);
    return {code,
            localizedText("Line %d, %@: %@",
                          {static_cast<long long>(row.line), row.serialNumber, reasonOfRow(row)}),
            row.reason.objection == RowObjection::journalFailed ? exitCannotAsk
                                                                : exitStatusOf(code)};
}

// Rows that were left alone, or that wait for another one, follow from others and tell no cause.
bool isConsequence(const PlannedRow& row) {
    return row.state == RowState::untouched ||
           row.reason.objection == RowObjection::waitsForRefused;
}

// A person must look at a unit; a refusal is less than that.
int weightOf(const PlannedRow& row) {
    if (isConsequence(row) && row.reason.objection != RowObjection::journalFailed) {
        return 0;
    }
    if (row.state == RowState::half) {
        return 4;
    }
    if (row.reason.objection == RowObjection::fellSilent) {
        return 3;
    }
    return row.reason.objection == RowObjection::journalFailed ? 2 : 1;
}

} // namespace

Json jsonOfChanges(const std::string& serialNumber, const std::vector<UnitChange>& changes) {
    Json list = Json::array();
    for (const UnitChange& change : changes) {
        Json json;
        json["serial"] = serialNumber;
        json["parameter"] = identifierOf(change);
        json["from"] = change.from.has_value() ? Json(*change.from) : Json(nullptr);
        json["to"] = change.to;
        json["command"] = change.command;
        json["state"] = std::string(nameOfState(change.state));
        list.push_back(std::move(json));
    }
    return list;
}

Json jsonOfRows(const UnitPlan& plan) {
    Json list = Json::array();
    for (const PlannedRow& row : plan.rows) {
        const std::string reason = reasonOfRow(row);
        Json json;
        json["line"] = row.line;
        json["serial"] = row.serialNumber;
        json["state"] = std::string(nameOfState(row.state));
        json["reason"] = reason.empty() ? Json(nullptr) : Json(reason);
        json["changes"] = jsonOfChanges(row.serialNumber, row.changes);
        list.push_back(std::move(json));
    }
    return list;
}

Json jsonOfSums(const UnitPlan& plan, PlanStage stage) {
    Json json = Json::object();
    const auto sums = plan.sums();
    for (const RowState state : statesOf(stage)) {
        json[std::string(nameOfState(state))] = sums.at(static_cast<std::size_t>(state));
    }
    return json;
}

std::string tableOfRows(const UnitPlan& plan, bool isBold) {
    TextTable table({"line", "serial", "parameter", "from", "to", "state", "reason"});
    for (const PlannedRow& row : plan.rows) {
        addRow(table, row);
    }
    return table.isEmpty() ? std::string() : table.text(isBold);
}

std::string lineOfSums(const UnitPlan& plan, PlanStage stage) {
    std::string line;
    const auto sums = plan.sums();
    for (const RowState state : statesOf(stage)) {
        line += line.empty() ? "" : ", ";
        line += std::to_string(sums.at(static_cast<std::size_t>(state))) + ' ';
        line += state == RowState::planned ? "to change" : nameOfState(state);
    }
    return line + '\n';
}

std::optional<Failure> failureOfRows(const UnitPlan& plan) {
    const PlannedRow* worst = nullptr;
    long long others = -1;
    for (const PlannedRow& row : plan.rows) {
        if (isAsWanted(row)) {
            continue;
        }
        others += isConsequence(row) ? 0 : 1;
        if (worst == nullptr || weightOf(row) > weightOf(*worst)) {
            worst = &row;
        }
    }
    if (worst == nullptr) {
        return std::nullopt;
    }
    Failure failure = failureOfRow(*worst);
    if (others > 0) {
        failure.message += ' ' + localizedText("Other lines that are not done: %d.", {others});
    }
    return failure;
}

std::optional<Failure> failureInTable(const UnitPlan& plan) {
    const auto wrong = std::ranges::find_if(
        plan.rows, [](const PlannedRow& row) { return isWrongInTable(row.reason.objection); });
    return wrong != plan.rows.end() ? std::optional(failureOfRow(*wrong)) : std::nullopt;
}

} // namespace kx
