// Foreign text within a sentence.
//
// Pure; any thread. Texts are UTF-8.

#pragma once

#include <string>
#include <string_view>

namespace kx {

// The visible text (support/VisibleText.h), cut behind the first 32 of its characters.
std::string safeForSentence(std::string_view text);

} // namespace kx
