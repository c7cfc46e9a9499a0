// revert: gives units back the values that they had before a run, by its journal.

#include "commands/Commands.h"
#include "commands/JournalFiles.h"
#include "commands/TableRun.h"
#include "conversation/RunHistory.h"
#include "words/UnitPlanText.h"

#include <utility>

namespace kx {

namespace {

using Refusal = CommandRun::Refusal;

Refusal readRows(CommandRun& run, TableFile& file) {
    KeptJournal found;
    if (auto refusal = readJournalFile(run.line().words.front(), found)) {
        return refusal;
    }
    RevertedRows reverted = revertedRows(found.journal.entries);
    for (const LostValue& lost : reverted.lost) {
        run.warn("lost", sentenceOfLostValue(lost));
    }
    file = tableFileOfRows(std::move(reverted.rows), found.path);
    return std::nullopt;
}

} // namespace

int runRevert(CommandRun& run) {
    return runTable(run, readRows);
}

} // namespace kx
