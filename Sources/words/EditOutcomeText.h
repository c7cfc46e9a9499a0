// The outcome of an edit that was applied, in words.
//
// Pure, except that it looks up the sentences (support/LocalizedText.h), so it belongs to the main
// thread. Texts are UTF-8.

#pragma once

#include "conversation/EditOutcome.h"

#include <string>

namespace kx {

// One or two sentences, for example "The unit now shows 3523 as its destination Port number."
std::string textOfEditOutcome(const EditOutcome& outcome);

} // namespace kx
