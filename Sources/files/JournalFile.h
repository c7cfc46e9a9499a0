// The journal of a run in a file: a line for each entry, on the disk before its user is told so.
//
// A disk takes milliseconds to confirm what it has, whether that is one line or twenty. Entries of
// several units that come close together are therefore written at once, in the next turn of the
// run loop.
//
// Threading: the thread of the run loop; it waits for the disk. Ownership: the run loop must
// outlive the journal.

#pragma once

#include "conversation/RunJournal.h"
#include "files/AppendedFile.h"
#include "support/Error.h"
#include "support/RunLoop.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

class JournalFile final : public RunJournal {
public:
    // Makes the line of an entry, with its line break. Called once for each entry, in their order.
    using LineOfEntry = std::function<std::string(const JournalEntry&)>;

    JournalFile(RunLoop& runLoop, LineOfEntry lineOfEntry);

    // Writes the entries that wait. Their users are not told any more.
    ~JournalFile() override;

    // Replaces the file by one that begins with this text. Absent when it was done; without it
    // every entry fails.
    std::optional<Error> begin(const std::string& path, std::string_view text);

    void write(const JournalEntry& entry, Written written) override;

    // Writes the entries that wait, tells their users, and adds this text.
    void finish(std::string_view text);

    // Why something could not be written; absent when all of it is on the disk.
    const std::optional<Error>& failure() const { return _failure; }

private:
    void flush();

    RunLoop& _runLoop;
    LineOfEntry _lineOfEntry;
    AppendedFile _file;
    std::optional<Error> _failure;
    std::string _lines; // that wait
    std::vector<Written> _waiting;
    RunLoop::Handle _nextFlush;
};

} // namespace kx
