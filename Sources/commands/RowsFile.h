// The file that names many units and what is wanted of them: a table, or a plan that was kept.
//
// Main thread only. Texts are UTF-8.

#pragma once

#include "commands/CommandRun.h"
#include "conversation/UnitPlan.h"
#include "files/UnitTableReport.h"

#include <span>
#include <string>
#include <vector>

namespace kx {

struct RowsFile {
    std::vector<WantedRow> rows = {};
    UnitTable table = {};    // the report is made of it
    bool isTable = true;     // otherwise the table was made of the rows, and has lines of its own
    std::string source = {}; // the path that was named
    std::string text = {};   // of the table; empty when it was made of the rows
};

// Reads the file, or says what is wrong with it: the first fault in the refusal, and where there
// are several each of them as a warning.
CommandRun::Refusal readRowsFile(CommandRun& run, const std::string& path, RowsFile& file);

// Rows that stand in no table.
RowsFile fileOfRows(std::vector<WantedRow> rows);

// The contents of a file that a person has named, up to 256 MiB of them.
CommandRun::Refusal readWholeFile(const std::string& path, std::string& contents);

// Why rows cannot be carried out that are wrong in the file itself, whatever units answer. The
// interfaces must be chosen.
CommandRun::Refusal objectionToRows(const CommandRun& run, std::span<const WantedRow> rows);

// The report: the table with the state of each row and its reason.
std::string reportOf(const RowsFile& file, const UnitPlan& plan);

} // namespace kx
