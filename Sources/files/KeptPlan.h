// The plan that `kxctl plan --out` keeps in a file: the table, and the values that its units showed
// when it was made.
//
// The format is one sealed document (SealedJSON.h) of the kind "plan". Version 1 is described by
// docs/json-schema/kept-plan.json. The reader passes over keys that it does not know.
//
// Pure; any thread. Texts are UTF-8.

#pragma once

#include "conversation/UnitPlan.h"
#include "files/SealedJSON.h"
#include "files/UnitTableReader.h"

#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace kx {

inline constexpr int keptPlanVersion = 1;

// Whether a text that may also be a table is a plan, whole or not: a plan begins with a brace, and
// no header of a table does.
bool looksLikeKeptPlan(std::string_view text);

// `table` is the text from which readUnitTable() has read the rows. Rows with values that were seen
// are kept with them; the others follow from the table.
std::string textOfKeptPlan(std::string_view table, std::span<const WantedRow> rows);

// The table with the values that were seen in its rows. It has complaints where a later reader is
// stricter than the one that wrote the plan.
std::variant<UnitTable, DocumentFault> readKeptPlan(std::string_view text);

} // namespace kx
