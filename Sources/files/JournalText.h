// The text of a run's journal: JSON lines, one for each entry, behind a line that names the format.
//
// The first line is a sealed document (SealedJSON.h) of the kind "journal". Every further line is a
// sealed object with the number of the entry, counted from 1, so that no line can change or go
// missing unnoticed. Version 1 is described by docs/json-schema/journal.json. The reader passes
// over keys that it does not know.
//
// A run that is killed leaves a journal that ends anywhere. A line without its line break is not
// counted: its command was never sent.
//
// Pure; any thread. Texts are UTF-8.

#pragma once

#include "conversation/RunJournal.h"
#include "files/SealedJSON.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kx {

inline constexpr int journalVersion = 1;

struct JournalHead {
    std::string started; // date and time, "2026-11-22T18:30:05Z"
    std::string source;  // path of the table, the plan or the journal that was applied
};

// Makes the lines of one journal, in the order in which they are to be written. Each ends with a
// line break.
class JournalLines {
public:
    // `count` entries are there already, in a journal that is carried on.
    explicit JournalLines(std::size_t count = 0)
        : _count(count) {}

    // The first line.
    static std::string head(const JournalHead& head);

    std::string entry(const JournalEntry& entry);

    // The run has ended by itself. Nothing follows.
    std::string end();

private:
    std::size_t _count;
};

struct Journal {
    JournalHead head;
    std::vector<JournalEntry> entries;
    bool hasEnded = false; // the run was not killed
    bool isCut = false;    // a line without its line break was not counted
};

struct JournalFault {
    DocumentFault fault = DocumentFault::damaged;
    std::size_t line = 1; // of the text, where it is damaged
};

std::variant<Journal, JournalFault> readJournal(std::string_view text);

} // namespace kx
