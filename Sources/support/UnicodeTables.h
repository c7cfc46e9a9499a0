// The parts of the Unicode character database that TextComparison.cpp needs. scripts/unicode-tables
// writes the tables themselves. Constant data, any thread.

#pragma once

#include <cstdint>
#include <span>

namespace kx {

// A character and the characters that replace it, up to four; the unused ones are 0.
struct CharacterMapping {
    char32_t from;
    char32_t to[4];
};

// The characters from `first` to `last` have one canonical combining class, which is not 0.
struct CombiningClassRange {
    char32_t first;
    char32_t last;
    std::uint8_t combiningClass;
};

// Each table is ordered by its first member, without overlaps.

// Full canonical decompositions, without the syllables of Hangul, which follow a formula.
std::span<const CharacterMapping> canonicalDecompositions();

// Full case foldings, in canonical decomposition, of the characters that have no decomposition
// themselves.
std::span<const CharacterMapping> caseFoldings();

// Every other character has class 0: it is no combining mark, or a mark that never moves.
std::span<const CombiningClassRange> combiningClasses();

} // namespace kx
