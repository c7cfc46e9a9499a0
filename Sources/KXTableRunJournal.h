// A journal that a run of the window writes: its file, and the lines that are counted in it.
//
// Main thread only. It belongs to KXTableRun.

#pragma once

#include "KXTableRun.h"

namespace kx {

struct KXTableRun::WrittenJournal {
    explicit WrittenJournal(RunLoop& runLoop, std::size_t entries = 0)
        : lines(entries)
        , file(runLoop, [this](const JournalEntry& entry) { return lines.entry(entry); }) {}

    JournalLines lines;
    JournalFile file;
};

} // namespace kx
