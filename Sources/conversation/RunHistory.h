// The rows that follow from the journal of a run: those of a table whose run was cut off, and those
// that take a run back.
//
// Pure; any thread. Texts are UTF-8.

#pragma once

#include "conversation/RunJournal.h"
#include "conversation/UnitPlan.h"

#include <span>
#include <string>
#include <vector>

namespace kx {

// The rows with the identities that their units may have after the journal's runs. To apply a table
// again is to resume: units show what was done, and a unit that has a new serial number, or may
// have it, is found by its identity. A unit is followed from the first command that its row would
// send, whichever run the later ones are of. With several journals, the oldest comes first.
//
// A run that takes another one back is resumed in the same way, with its own journal.
std::vector<WantedRow> resumedRows(std::vector<WantedRow> rows,
                                   std::span<const JournalEntry> journal);

// A value that no command can bring back: the unit did not tell it before, or units take other ones
// only.
struct LostValue {
    std::size_t line = 0; // of the table that was applied
    std::string serialNumber;
    UnitParameter parameter = UnitParameter::end;
    std::optional<std::string> value = {};
};

struct RevertedRows {
    std::vector<WantedRow> rows; // in the order of the journal; `line` is that of the table
    std::vector<LostValue> lost;
};

// The rows that give every unit of the journal back the values that it had before the first
// command. They have the identities that the units may have after the last one.
RevertedRows revertedRows(std::span<const JournalEntry> journal);

// The fixed entries of the ARP cache that runs have made and not taken out again.
std::vector<JournalledBinding> bindingsLeft(std::span<const JournalEntry> journal);

} // namespace kx
