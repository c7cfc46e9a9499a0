// Reports about tables of units: the table itself, with what became of each row.
//
// Pure; any thread. Texts are UTF-8.

#pragma once

#include "files/UnitTableReader.h"

#include <cstddef>
#include <span>
#include <string>

namespace kx {

struct ReportedRow {
    std::size_t line = 0; // of the table
    std::string state;    // "done"; never translated
    std::string reason;   // a sentence; empty when there is nothing to say
};

// The table in its own dialect, its lines in their places, with the columns `state` and `reason`
// filled in. They are added behind the others when the table does not have them. Lines without a
// reported row have empty cells there. The report of a table without complaints can be read as a
// table again, and asks for the same.
std::string reportOfTable(const UnitTable& table, std::span<const ReportedRow> rows);

// A table that asks for what the rows want, for the report of a run that was not made of a table.
// Its lines are counted from 2, whatever those of the rows are. A value that no cell can ask for,
// such as a unit ID that is no text, leaves its cell empty.
UnitTable unitTableOfRows(std::span<const WantedRow> rows);

} // namespace kx
