// The file that names many units and what is wanted of them: a table of units, or a plan that was
// kept.
//
// The thread of its user. Reading takes its time. Texts are UTF-8.

#pragma once

#include "files/DocumentFault.h"
#include "files/UnitTableReader.h"
#include "files/UnitTableReport.h"
#include "support/Error.h"

#include <string>
#include <variant>
#include <vector>

namespace kx {

// Files that people choose may be so long, in bytes.
inline constexpr std::size_t mostBytesOfFile = std::size_t{256} * 1024 * 1024;

struct TableFile {
    std::string path;
    std::vector<WantedRow> rows = {};

    // The report is made of it. Its rows have moved to `rows`; its complaints are still here.
    UnitTable table = {};

    // Of the table, for a plan that is kept. Empty when the file is no table itself.
    std::string text = {};

    // The rows have their lines in the table. Otherwise the table was made of rows that stand in
    // none, and counts its own lines.
    bool isTable = true;
};

// Why there are no rows: the system's reason, or the fault of a kept plan.
using TableFileFault = std::variant<Error, DocumentFault>;

// A table that has complaints is read all the same.
std::variant<TableFile, TableFileFault> readTableFile(const std::string& path);

// Rows that stand in no table, such as those that take a run back. `path` is where they come from.
TableFile tableFileOfRows(std::vector<WantedRow> rows, std::string path);

// The table with what became of its rows, which are told in the order of the plan.
std::string reportOfFile(const TableFile& file, std::vector<ReportedRow> rows);

} // namespace kx
