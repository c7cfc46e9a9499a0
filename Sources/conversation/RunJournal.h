// The journal of a run over many units: what was sent, with the old values, so that a run that was
// cut off is carried on, and one that was a mistake is taken back.
//
// Threading: the thread of the run loop. Ownership: a run does not own its journal, which must
// outlive it.

#pragma once

#include "conversation/UnitEdits.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <variant>

namespace kx {

// The unit as it was when an entry was made.
struct JournalledUnit {
    std::size_t line = 0;        // of the table
    std::string rowSerialNumber; // as the table has it
    std::string serialNumber;    // as the unit showed it last
    std::string hardwareAddress; // the same; empty when it tells none
};

// A command that is about to be sent.
struct JournalledCommand {
    JournalledUnit unit;
    UnitParameter parameter = UnitParameter::end;
    std::optional<std::string> from;            // as units show it; absent when it is not known
    std::optional<UnitIDBytes> fromUnitID = {}; // for a unit ID
    std::string to;                             // as units show it
    std::string command;
};

// What became of it.
struct JournalledOutcome {
    JournalledUnit unit;
    UnitParameter parameter = UnitParameter::end;
    ChangeState state = ChangeState::silent; // done, different, silent, or refused: not sent
    std::optional<std::string> shown = {};
};

// A fixed entry of the ARP cache is about to be made, or is gone again (or was never made).
struct JournalledBinding {
    std::string address; // "192.0.2.41"
    std::string hardwareAddress;
    bool isMade = false;
};

using JournalEntry = std::variant<JournalledCommand, JournalledOutcome, JournalledBinding>;

class RunJournal {
public:
    // Tells whether the entry is on the disk.
    using Written = std::function<void(bool isOnDisk)>;

    virtual ~RunJournal() = default;

    // `written` is called once, maybe from inside the call, and in the order of the entries. It may
    // be called after its user has gone, so it must not rely on it. After a failure every further
    // entry fails too.
    virtual void write(const JournalEntry& entry, Written written) = 0;
};

} // namespace kx
