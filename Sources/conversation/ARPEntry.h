// The state of the entry in the host's ARP cache that a unit's new address needs.
//
// A plain value; any thread.

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kx {

class NeighbourTable;

enum class ARPEntryState {
    notWanted,      // the edit needs none
    started,        // the tool was started and has not failed so far
    rightsNotGiven, // nobody gave administrator rights
    refused,        // the authority refused to run the tool
    dismissed,      // a person was asked again and said no
    cannotRun,      // there is no such tool, or it cannot be executed
    notASCII,       // the address has other characters than ASCII
    notStarted,     // the tool did not start; `code` is the authority's status
    ended,          // the tool ran and failed; `code` is how it ended
    onAnotherLink,  // the tool did its work, and the link of the command has no such entry
};

struct ARPEntry {
    ARPEntryState state = ARPEntryState::notWanted;
    std::int32_t code = 0;
    std::string sentence = {}; // what the tool or the authority says about it; empty without words

    friend bool operator==(const ARPEntry&, const ARPEntry&) = default;
};

// The entry for a result of Authorization::runToolWithArgs(). `objection` says why the authority
// refuses such a run; it is empty when there is no such reason.
ARPEntry arpEntryForResult(std::int32_t result, std::string objection = {});

// The entry for a tool that ended. `status` is its exit status, or the number of the signal that
// ended it plus 128. `sentence` is what it said on standard error, which may be nothing.
ARPEntry arpEntryForEndOfTool(std::int32_t status, std::string sentence = {});

// Whether the link has a fixed entry that binds the address to the hardware address, which is
// compared without regard to case. The ARP tool puts an entry on the link to which the routes lead,
// and a command leaves by the link on which its unit was heard.
bool isBoundOnLink(NeighbourTable& neighbours, std::uint32_t address, std::uint32_t link,
                   std::string_view hardwareAddress);

} // namespace kx
