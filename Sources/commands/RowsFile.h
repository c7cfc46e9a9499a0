// The file that names many units and what is wanted of them (files/TableFile.h), as commands read
// it.
//
// Main thread only. Texts are UTF-8.

#pragma once

#include "commands/CommandRun.h"
#include "conversation/UnitPlan.h"
#include "files/TableFile.h"

#include <span>
#include <string>

namespace kx {

// Reads the file, or says what is wrong with it: the first fault in the refusal, and where there
// are several each of them as a warning.
CommandRun::Refusal readRowsFile(CommandRun& run, const std::string& path, TableFile& file);

// Why rows cannot be carried out that are wrong in the file itself, whatever units answer. The
// interfaces must be chosen.
CommandRun::Refusal objectionToRows(const CommandRun& run, std::span<const WantedRow> rows);

} // namespace kx
