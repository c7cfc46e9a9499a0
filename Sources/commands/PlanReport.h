// The plan for many units as a command tells it, before it is carried out and afterwards: its rows
// in a document and in a table, their sums, and how the command ends.
//
// Pure, except that it looks up the sentences (support/LocalizedText.h), so it belongs to the main
// thread. Texts are UTF-8.

#pragma once

#include "commands/ExitStatus.h"
#include "conversation/UnitPlan.h"
#include "files/UnitJSON.h"

#include <optional>
#include <string>
#include <vector>

namespace kx {

// A plan has other states than one that was carried out.
enum class PlanStage { planned, carriedOut };

// The keys "rows" and "sums".
Json jsonOfRows(const UnitPlan& plan);
Json jsonOfSums(const UnitPlan& plan, PlanStage stage);

// The keys of the changes of one unit.
Json jsonOfChanges(const std::string& serialNumber, const std::vector<UnitChange>& changes);

// A line for each change, and one for each row without any that is not as it should be. Rows that
// are unchanged have none. Empty when no line is left.
std::string tableOfRows(const UnitPlan& plan, bool isBold);

// For example "2 to change, 1 unchanged, 0 refused, 0 silent" and a line break.
std::string lineOfSums(const UnitPlan& plan, PlanStage stage);

// Why the command has not done as asked, with the heaviest exit status of all rows; absent when
// every row is planned, unchanged or done.
std::optional<Failure> failureOfRows(const UnitPlan& plan);

// The same for rows that are wrong whatever units answer.
std::optional<Failure> failureInTable(const UnitPlan& plan);

} // namespace kx
