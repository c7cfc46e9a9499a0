// Comparison of texts as readers compare them, by Unicode's own rules and not by those of one
// language.
//
// Canonically equivalent texts are equal everywhere here: "é" as one character equals "e" with a
// combining acute accent. Where case does not count, full case folding decides, so "STRASSE" equals
// "straße" and "Σ" equals both of its small forms. Width, accents and compatibility forms count.
// docs/decisions/0008-text-comparison.md says why.
//
// Texts are UTF-8; a byte outside any well-formed sequence equals only the same byte. Pure, any
// thread.

#pragma once

#include <compare>
#include <string_view>

namespace kx {

// Orders texts by the characters of their canonical decompositions. Case counts, and digits are
// characters like any other: "10" comes before "9".
std::weak_ordering compareTexts(std::string_view text, std::string_view other);

// Whether the texts are equal when case does not count.
bool caseInsensitiveIsEqualToString(std::string_view text, std::string_view other);

// Whether the text begins with `prefix` when case does not count. A character goes together with
// its combining marks, so "é" does not begin with "e". No text begins with the empty text.
bool caseInsensitiveBeginsWith(std::string_view text, std::string_view prefix);

} // namespace kx
