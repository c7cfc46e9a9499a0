// What became of Reload, Restore Defaults or an option command, in words.
//
// Pure but for looking up the sentences (support/LocalizedText.h), so it belongs to the main
// thread. Texts are UTF-8.

#pragma once

#include "conversation/RequestOutcome.h"

#include <string>
#include <string_view>

namespace kx {

// For example "Sent ^^IdZ to every unit that hears it. Accepted by 3 units."
std::string textOfRequestOutcome(const RequestOutcome& outcome);

// An answer without the payload marker in front, and without the line ends, blanks and zero bytes
// behind.
std::string textOfAnswer(std::string_view payload);

// Whether it is bad news: nobody has answered in time, or another unit has.
bool meansTrouble(const RequestOutcome& outcome);

} // namespace kx
