// Foreign text within a sentence.
//
// Pure; any thread. Texts are UTF-8.

#pragma once

#include <string>
#include <string_view>

namespace kx {

// The text on one line, in the order of its characters, and cut behind the first 32 of them.
// Characters that would change the line or their order are shown as U+FFFD.
std::string safeForSentence(std::string_view text);

} // namespace kx
