// Foreign text as a screen or a terminal may show it.
//
// Text from the network may hold characters that nobody sees and that act on what shows them: they
// move a terminal's cursor, turn a line around, hide a word, or forge a line. This is the one
// filter for all of them. Every front shows a foreign text through it: tables, fields, pop-ups, the
// event log, the system log. It is for the eye alone: keep, compare and send the text itself.
//
// These characters act:
//
//   controls         U+0000 to U+001F, U+007F, and U+0080 to U+009F (C1)
//   separators       of lines and paragraphs: U+2028, U+2029
//   ignorable ones   every character with the Unicode property Default_Ignorable_Code_Point: marks
//                    of direction, zero-width characters, fillers, variation selectors, tags
//   annotations      U+FFF9 to U+FFFB, and the place of an object, U+FFFC
//
// A byte that is no part of a well-formed UTF-8 sequence acts as well, because a terminal may take
// it for a control.
//
// Pure; any thread. Texts are UTF-8.

#pragma once

#include <string>
#include <string_view>

namespace kx {

// Stands in the place of a character that acts: U+FFFD.
inline constexpr std::string_view markOfActingCharacter = "\uFFFD";

// Whether a character acts, as told above. A code beyond the last of Unicode does.
bool actsOnTheScreen(char32_t character);

enum class Tabs { marked, kept };

// The text with a mark for each character that acts, and two marks for one beyond U+FFFF. So the
// result has as many UTF-16 units as the text. A tab acts in a table and in a field, so it is
// marked; keep it only where the text is shown in lines of its own.
std::string visibleText(std::string_view text, Tabs tabs = Tabs::marked);

} // namespace kx
