// The outcome of an edit that was applied, in words.
//
// Pure, except that it looks up the sentences (support/LocalizedText.h), so it belongs to the main
// thread. Texts are UTF-8.

#pragma once

#include "conversation/EditOutcome.h"

#include <string>
#include <string_view>

namespace kx {

// One or two sentences, for example "The unit now shows 3523 as its destination Port number."
std::string textOfEditOutcome(const EditOutcome& outcome);

// Whether the outcome is bad news: the edit was not sent, another unit took it, nobody answered in
// time, the unit shows something else, or an ARP entry is missing.
bool meansTrouble(const EditOutcome& outcome);

// The reason why there is no entry for a new address, as a sentence; empty when there is an entry,
// or none is wanted.
std::string textOfARPEntry(std::string_view typedAddress, const ARPEntry& entry);

} // namespace kx
