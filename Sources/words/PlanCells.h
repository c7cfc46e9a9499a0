// The table of the window *Configure from File…*: a line for each change of a unit, for each unit
// without one, and for each complaint about the file. The same columns serve all of them.
//
// Pure, except that it looks up the words (support/LocalizedText.h), so it belongs to the main
// thread. Texts are UTF-8 and may be shown as they are: characters of foreign texts that would act
// on the screen are marks (support/VisibleText.h).

#pragma once

#include "conversation/UnitPlan.h"
#include "files/TableComplaint.h"
#include "files/UnitTableReport.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kx {

// In the order in which a person sees them.
enum class PlanColumn : std::uint8_t {
    line, // of the file
    unit,
    parameter,
    before, // the change
    wanted,
    state,
    reason,
    end, // no column; equals the number of columns
};

inline constexpr std::size_t planColumnCount = static_cast<std::size_t>(PlanColumn::end);

// What a line is about.
struct PlanLine {
    std::size_t row = 0; // its place in UnitPlan::rows

    // Its place in PlannedRow::changes; absent when the unit shows everything already, or when the
    // row asks for nothing.
    std::optional<std::size_t> change = {};
};

// The lines of a plan in the order of its rows. Values that the units had before are left out. They
// stay the same while the plan is carried out.
std::vector<PlanLine> linesOfPlan(const UnitPlan& plan);

// The head of the column.
std::string titleOfPlanColumn(PlanColumn column);

// A cell of a line of the plan. `isUnderWay` says that commands go to the unit now.
std::string cellOfPlan(const UnitPlan& plan, const PlanLine& line, bool isUnderWay,
                       PlanColumn column);

// A cell of a complaint. The column of the state says that the cell is wrong.
std::string cellOfComplaint(const TableComplaint& complaint, PlanColumn column);

// The words for every state of a line, as wide as the column has to be. They begin with a sign.
std::vector<std::string> wordsOfPlanStates();

// The state without its sign, as a screen reader says it.
std::string withoutSign(const std::string& state);

// Why the row is as it is, and that an entry of the ARP cache was left behind. Empty when there is
// nothing to say.
std::string noteOfRow(const PlannedRow& row);

// For example "2 units to change, 5 parameters in all; 1 unchanged, 0 refused, 0 without an
// answer."
std::string sentenceOfPlan(const UnitPlan& plan);

// The same when the plan was carried out.
std::string sentenceOfRun(const UnitPlan& plan);

// The rows as a report has them.
std::vector<ReportedRow> rowsOfReport(const UnitPlan& plan);

} // namespace kx
