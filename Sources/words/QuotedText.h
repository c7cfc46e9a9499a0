// Foreign text within a sentence.
//
// Pure; any thread. Texts are UTF-8.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kx {

// The numbers of characters that are shown of a value, and of a whole sentence of another program.
inline constexpr std::size_t mostCharactersOfValue = 32;
inline constexpr std::size_t mostCharactersOfSentence = 200;

// The visible text (support/VisibleText.h), cut behind the first `mostCharacters` of its
// characters.
std::string safeForSentence(std::string_view text,
                            std::size_t mostCharacters = mostCharactersOfValue);

} // namespace kx
