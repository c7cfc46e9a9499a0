// Who holds an address, in words.
//
// Pure, except that it looks up the sentences (support/LocalizedText.h), so it belongs to the main
// thread. Texts are UTF-8.

#pragma once

#include "conversation/HolderState.h"

#include <string>

namespace kx {

// For example "192.0.2.13 is held by 02:4B:58:00:00:03, unit 4B 58 00 00 00 03." Of several holders
// the first one is named.
std::string textOfHolders(const AddressHolders& holders);

} // namespace kx
