#include "conversation/RowOutcome.h"

#include "addresses/IPv4Address.h"

#include <algorithm>
#include <utility>

namespace kx {

namespace {

const UnitChange* changeIn(const UnitEdits& edits, ChangeState state) {
    const auto found = std::ranges::find(edits.changes(), state, &UnitChange::state);
    return found != edits.changes().end() ? &*found : nullptr;
}

bool isTaken(const UnitEdits& edits) {
    return changeIn(edits, ChangeState::done) != nullptr;
}

RowReason reasonOfChange(RowObjection objection, const UnitChange& change) {
    RowReason reason;
    reason.objection = objection;
    reason.parameter = change.edit.edit.parameter;
    reason.value = change.to;
    reason.shown = change.shown.value_or("");
    return reason;
}

RowReason reasonOfMove(RowObjection objection, const AddressMove& move) {
    RowReason reason;
    reason.objection = objection;
    reason.parameter = UnitParameter::internalIPAddress;
    reason.value = stringForIP(move.holders().address);
    return reason;
}

RowReason reasonOfHolders(const AddressMove& move) {
    RowReason reason = reasonOfMove(RowObjection::heldByHost, move);
    for (const auto& holder : move.holders().holders) {
        reason.others.push_back(holder.hardwareAddress);
    }
    return reason;
}

// Why a command did not go out.
RowReason reasonOfRefusal(const UnitEdits& edits, RowObjection stopped) {
    const AddressMove* const move = edits.move();
    RowReason reason{.objection = stopped};
    if (edits.isAmbiguous()) {
        reason.objection = RowObjection::twinAnswered;
    } else if (edits.failure().has_value()) {
        reason.objection = RowObjection::notSent;
        reason.failure = edits.failure();
    } else if (move != nullptr && move->state() == MoveState::held) {
        reason = reasonOfHolders(*move);
    } else if (move != nullptr && move->state() == MoveState::unknownHolder) {
        reason = reasonOfMove(RowObjection::unknownHolder, *move);
    } else if (move != nullptr && move->state() == MoveState::notBound) {
        reason = reasonOfMove(RowObjection::notBound, *move);
        reason.entry = move->binding();
    }
    return reason;
}

struct Ending {
    RowState state = RowState::done;
    RowReason reason = {};
};

// A unit that does not tell the value may have taken it.
bool showsOldValue(const UnitChange& change) {
    return change.shown.has_value() && change.shown == change.from;
}

Ending endingByDifference(const UnitEdits& edits) {
    for (const UnitChange& change : edits.changes()) {
        if (change.state == ChangeState::different && !showsOldValue(change)) {
            return {RowState::half, reasonOfChange(RowObjection::different, change)};
        }
    }
    return {isTaken(edits) ? RowState::half : RowState::refused,
            reasonOfChange(RowObjection::notTaken, *changeIn(edits, ChangeState::different))};
}

Ending endingByRefusal(const UnitEdits& edits, RowObjection stopped) {
    RowReason reason = reasonOfRefusal(edits, stopped);
    if (isTaken(edits)) {
        return {RowState::half, std::move(reason)};
    }
    const bool isStopped = reason.objection == stopped;
    return {isStopped ? RowState::untouched : RowState::refused, std::move(reason)};
}

Ending endingOf(const UnitEdits& edits, RowObjection stopped) {
    const AddressMove* const move = edits.move();
    if (move != nullptr && move->state() == MoveState::foreignAnswer) {
        RowReason reason = reasonOfMove(RowObjection::foreignAnswer, *move);
        if (!move->foreignHardwareAddress().empty()) {
            reason.others.push_back(move->foreignHardwareAddress());
        }
        return {RowState::half, std::move(reason)};
    }
    if (const UnitChange* const silent = changeIn(edits, ChangeState::silent)) {
        return {isTaken(edits) ? RowState::half : RowState::silent,
                reasonOfChange(RowObjection::fellSilent, *silent)};
    }
    if (changeIn(edits, ChangeState::different) != nullptr) {
        return endingByDifference(edits);
    }
    return changeIn(edits, ChangeState::refused) != nullptr ? endingByRefusal(edits, stopped)
                                                            : Ending{};
}

} // namespace

void endRowByEdits(PlannedRow& row, const UnitEdits& edits, RowObjection stopped) {
    Ending ending = endingOf(edits, stopped);
    row.changes = edits.changes();
    row.unit = edits.unit();
    row.isStillBound = edits.move() != nullptr && edits.move()->isStillBound();
    endRow(row, ending.state, std::move(ending.reason));
}

} // namespace kx
