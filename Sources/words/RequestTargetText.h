// Whom Reload and Restore Defaults reach, in words.
//
// Pure but for looking up the sentences (support/LocalizedText.h), so it belongs to the main
// thread. Texts are UTF-8.

#pragma once

#include "conversation/RequestTarget.h"

#include <string>

namespace kx {

// The sentence that stands while everybody is the target. Empty when it is one unit.
std::string warningOfTarget(const RequestTarget& target);

// What pressing each button does, as a sentence.
std::string descriptionOfReload(const RequestTarget& target);
std::string descriptionOfRestore(const RequestTarget& target);

} // namespace kx
