#include "conversation/PlannedRow.h"

#include <algorithm>
#include <utility>

namespace kx {

namespace {

// The row takes this value from the row that it waits for.
RowReason reasonOfWaiting(const PlannedRow& waiting, const PlannedRow& other, std::size_t place) {
    RowReason reason;
    reason.objection = RowObjection::waitsForRefused;
    reason.otherLine = other.line;
    const auto dependency = std::ranges::find(waiting.after, place, &RowDependency::row);
    if (dependency != waiting.after.end()) {
        reason.parameter = dependency->parameter;
    }
    for (const UnitChange& change : waiting.changes) {
        if (change.edit.edit.parameter == reason.parameter) {
            reason.value = change.to;
        }
    }
    return reason;
}

} // namespace

bool isWrongInTable(RowObjection objection) {
    switch (objection) {
    case RowObjection::ownAddress:
    case RowObjection::networkAddress:
    case RowObjection::outsideAddress:
    case RowObjection::namedTwice:
    case RowObjection::wantedTwice:
        return true;
    default:
        return false;
    }
}

std::array<std::size_t, rowStateCount> UnitPlan::sums() const {
    std::array<std::size_t, rowStateCount> counts{};
    for (const PlannedRow& row : rows) {
        ++counts.at(static_cast<std::size_t>(row.state));
    }
    return counts;
}

std::size_t UnitPlan::plannedChanges() const {
    std::size_t count = 0;
    for (const PlannedRow& row : rows) {
        if (row.state == RowState::planned) {
            count += static_cast<std::size_t>(
                std::ranges::count(row.changes, ChangeState::planned, &UnitChange::state));
        }
    }
    return count;
}

bool UnitPlan::hasObjections() const {
    return std::ranges::any_of(rows, [](const PlannedRow& row) {
        return row.state == RowState::refused || row.state == RowState::silent;
    });
}

void endRow(PlannedRow& row, RowState state, RowReason reason) {
    row.state = state;
    row.reason = std::move(reason);
    for (UnitChange& change : row.changes) {
        if (change.state == ChangeState::planned) {
            change.state = ChangeState::refused;
        }
    }
}

void refuseWaiting(UnitPlan& plan, std::size_t row) {
    std::vector<std::size_t> refused{row};
    while (!refused.empty()) {
        const std::size_t place = refused.back();
        refused.pop_back();
        for (const std::size_t waiting : plan.rows[place].waiting) {
            PlannedRow& other = plan.rows[waiting];
            if (other.state == RowState::planned) {
                endRow(other, RowState::refused, reasonOfWaiting(other, plan.rows[place], place));
                refused.push_back(waiting);
            }
        }
    }
}

void leaveUntouched(UnitPlan& plan, const RowReason& reason) {
    for (PlannedRow& row : plan.rows) {
        if (row.state == RowState::planned) {
            endRow(row, RowState::untouched, reason);
        }
    }
}

} // namespace kx
