// What apply and revert have in common: the rows become a plan, a person is asked, the plan is
// carried out, and what became of each row is told.
//
// Main thread only.

#pragma once

#include "commands/CommandRun.h"
#include "conversation/RunJournal.h"
#include "files/TableFile.h"

#include <functional>
#include <string>
#include <vector>

namespace kx {

// Reads what the command has named. Nothing was sent yet.
using RowsReader = std::function<CommandRun::Refusal(CommandRun& run, TableFile& file)>;

// Runs the command to its end, and returns the exit status.
int runTable(CommandRun& run, const RowsReader& readRows);

} // namespace kx
