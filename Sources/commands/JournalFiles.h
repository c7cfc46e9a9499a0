// The journals of runs, as the commands find them: those that runs before have left in the current
// folder, and the one that is going to be written.
//
// A run that was killed may have left fixed entries in the ARP cache of this host. Its journal
// names them, and the next command that changes units takes them out.
//
// Main thread only. Texts are UTF-8.

#pragma once

#include "commands/CommandRun.h"
#include "files/JournalFile.h"
#include "files/JournalFolder.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kx {

// Reads a journal, or says why it is none.
CommandRun::Refusal readJournalFile(const std::string& path, KeptJournal& found);

// The journals of the current folder that kxctl has named itself, and the one at `path` where that
// is another one, the oldest first. What cannot be read is passed over.
std::vector<KeptJournal> journalsLeft(const std::string& path = {});

// Takes out the entries of the ARP cache that the journals name and that are still there, and notes
// in the journals that they are gone. Warns of an entry that stays. The interfaces must be chosen,
// and this process must have the lock of runs: the entries of a run that is under way are its own.
void takeOutLeftEntries(CommandRun& run, const std::vector<KeptJournal>& journals);

// The same for a command that is no run, with the journals of the current folder. Does nothing
// while a run is under way.
void takeOutLeftEntriesBetweenRuns(CommandRun& run);

// The journal of a run that is going to begin. Its file is made at the first entry, so a run that
// sends nothing leaves none.
class NewJournal final : public RunJournal {
public:
    // `path` is absent for a name of kxctl's own in the current folder.
    NewJournal(CommandRun& run, const std::optional<std::string>& path);

    const std::string& path() const { return _path; }

    // Why the journal could not be written there, before anything is sent: also when another run's
    // journal is in the file that has ended, or something else than a journal.
    CommandRun::Refusal look();

    // The path of what is applied, for the first line.
    void setSource(std::string source) { _source = std::move(source); }

    // At the first entry the journal is begun, or that of a run that was killed is continued, and
    // its path is told.
    void write(const JournalEntry& entry, Written written) override;

    // The run has ended by itself: the last line. Warns when something could not be written.
    void finish();

private:
    std::optional<Error> begin();

    CommandRun& _run;
    std::string _path;
    std::string _source;
    JournalLines _lines;
    std::unique_ptr<JournalFile> _file; // null before the first entry
    std::optional<Error> _failure;      // of the beginning
};

} // namespace kx
