// What became of the entry in the host's ARP cache that a unit's new address needs.
//
// A plain value; any thread.

#pragma once

#include <cstdint>

namespace kx {

enum class ARPEntryState {
    notWanted,      // the edit needs none
    started,        // the tool was started and has not failed so far
    rightsNotGiven, // nobody gave administrator rights
    refused,        // running the tool was refused
    dismissed,      // the person who was asked again said no
    cannotRun,      // there is no such tool, or it cannot be executed
    notASCII,       // the address holds something else
    notStarted,     // `code` is the authority's status
    ended,          // the tool ran and failed; `code` is how it ended
};

struct ARPEntry {
    ARPEntryState state = ARPEntryState::notWanted;
    std::int32_t code = 0;

    friend bool operator==(const ARPEntry&, const ARPEntry&) = default;
};

// By the result of Authorization::runToolWithArgs().
ARPEntry arpEntryForResult(std::int32_t result);

// By how the tool ended: its exit status, or 128 and the number of the signal that ended it.
ARPEntry arpEntryForEndOfTool(std::int32_t status);

} // namespace kx
