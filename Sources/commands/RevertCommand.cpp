// revert: gives units back the values that they had before a run, by its journal.

#include "commands/Commands.h"
#include "commands/JournalFiles.h"
#include "commands/TableRun.h"
#include "conversation/RunHistory.h"
#include "support/LocalizedText.h"
#include "words/QuotedText.h"

#include <utility>

namespace kx {

namespace {

using Refusal = CommandRun::Refusal;

void warnOfLostValue(CommandRun& run, const LostValue& lost) {
    run.warn("lost", localizedText("No command brings %@ of the unit %@ back: it was “%@”.",
                                   {descriptionOf(lost.parameter).identifier, lost.serialNumber,
                                    safeForSentence(lost.value.value_or(""))}));
}

Refusal readRows(CommandRun& run, RowsFile& file) {
    FoundJournal found;
    if (auto refusal = readJournalFile(run.line().words.front(), found)) {
        return refusal;
    }
    RevertedRows reverted = revertedRows(found.journal.entries);
    for (const LostValue& lost : reverted.lost) {
        warnOfLostValue(run, lost);
    }
    file = fileOfRows(std::move(reverted.rows));
    file.source = found.path;
    return std::nullopt;
}

} // namespace

int runRevert(CommandRun& run) {
    return runTable(run, readRows);
}

} // namespace kx
