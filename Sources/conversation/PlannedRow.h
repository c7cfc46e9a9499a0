// The rows of a plan for many units: what is to be done, what became of it, and why.
//
// Values and pure functions; any thread. Texts are UTF-8; values of parameters are in the form in
// which units show them.

#pragma once

#include "conversation/ARPEntry.h"
#include "conversation/HeardUnits.h"
#include "conversation/UnitEdits.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace kx {

enum class RowState {
    planned,
    unchanged, // the unit shows every value already; nothing is sent
    refused,   // nothing was sent, or the unit shows all its old values after a command
    silent,    // the unit has not answered: before a command, or since the first one
    done,      // an answer after each command shows its value
    untouched, // the row could be done, and the run ended before it began
    half,      // some of the values were taken, or the unit shows values that nobody wanted
};
inline constexpr std::size_t rowStateCount = 7;

// Why a row is not planned, unchanged or done. The comments name the fields of RowReason that are
// filled in besides.
enum class RowObjection {
    none,

    // The table itself is wrong.
    ownAddress,     // this host has the new address (value)
    networkAddress, // the new address stands for a whole network (value)
    outsideAddress, // no network of the interface has the new address (value)
    namedTwice,     // another row is for the same unit (otherLine)
    wantedTwice,    // another row wants the same value (parameter, value, otherLine)

    // The units' answers speak against it.
    notHeard,              // no unit with this serial number has answered
    ambiguousSerialNumber, // several units have it (others: their hardware addresses)
    ambiguousAddress,      // another unit tells the unit's address (value, others: serial numbers)
    addressOfMany,         // the unit tells an address of many as its own (value)
    noHardwareAddress,     // the unit does not tell the one that its move needs
    heldByUnit,            // another unit keeps the value (parameter, value, others: its serial)
    ring,            // rows that wait for each other (parameter, value, otherLine: waits for it)
    outOfDate,       // the unit shows another value than the kept plan saw (parameter, value: the
                     // one that was seen, shown: the one now, empty when it tells none)
    waitsForRefused, // the row that gives the value up is not done (parameter, value, otherLine)
    heldByHost,      // somebody answers for the new address (value, others: hardware addresses)
    unknownHolder,   // whether somebody holds the new address could not be found out (value)

    // A command went out, or should have gone out. `parameter` and `value` are those of the change.
    notTaken,      // the unit shows its old value (shown)
    different,     // the unit shows a value that is neither the old nor the wanted one (shown)
    fellSilent,    // the unit has not answered since the command
    foreignAnswer, // the unit shows its new address, and another hardware address answers for it
                   // (others), or none
    notBound,      // the entry of the ARP cache could not be made (entry)
    notSent,       // the network refused the command (failure)
    twinAnswered,  // another unit has answered with the unit's serial number meanwhile

    // The row was not begun, or not carried on.
    othersRefused, // the whole table is checked before the first command, and other rows are wrong
    othersFailed,  // the run ended because of another row (otherLine)
    interrupted,
    journalFailed,
};

// The objection is to the table, whatever units answer.
bool isWrongInTable(RowObjection objection);

struct RowReason {
    RowObjection objection = RowObjection::none;
    UnitParameter parameter = UnitParameter::end;
    std::string value = {};
    std::string shown = {};
    std::vector<std::string> others = {};
    std::size_t otherLine = 0;
    ARPEntry entry = {};
    std::optional<SendFailure> failure = {};
};

// A row must be done before another one, because it gives up what the other one takes.
struct RowDependency {
    std::size_t row = 0; // its place in UnitPlan::rows
    UnitParameter parameter = UnitParameter::end;
};

struct PlannedRow {
    std::size_t line = 0;
    std::string serialNumber;             // as the table has it
    std::optional<HeardUnit> unit = {};   // as it was heard last; absent when it is silent
    std::vector<UnitChange> changes = {}; // in the order of the edits
    RowState state = RowState::planned;
    RowReason reason = {};
    std::vector<RowDependency> after = {}; // rows that must be done before this one
    std::vector<std::size_t> waiting = {}; // rows that have this one in `after`

    // The entry of the ARP cache that the move needed could not be taken out again.
    bool isStillBound = false;
};

struct UnitPlan {
    std::vector<PlannedRow> rows; // in the order of the table
    std::vector<std::size_t>
        order; // the places of the planned rows, each behind those it waits for

    // The number of rows in each state, by the state's number.
    std::array<std::size_t, rowStateCount> sums() const;
    std::size_t sum(RowState state) const { return sums().at(static_cast<std::size_t>(state)); }

    // A row is refused or silent.
    bool hasObjections() const;

    // The number of changes that planned rows ask for.
    std::size_t plannedChanges() const;
};

// Ends a row. Its changes that were not sent are refused.
void endRow(PlannedRow& row, RowState state, RowReason reason);

// Refuses the planned rows that wait for this row, and those that wait for them.
void refuseWaiting(UnitPlan& plan, std::size_t row);

// The rows that are still planned are untouched for this reason.
void leaveUntouched(UnitPlan& plan, const RowReason& reason);

} // namespace kx
