// Foreign text within an entry of the event log, which must not forge a line of its own.
//
// A line feed of a quoted text does not end a line. It travels and is kept as a byte that no text
// in UTF-8 has, and comes out as the line feed that it was. Everything else stays as it is. The
// text itself is never changed for the log: compare and send it unquoted.
//
// Pure; any thread. Texts are UTF-8.

#pragma once

#include <string>
#include <string_view>

namespace kx {

// The byte of a quoted line feed. It is one UTF-16 unit long where characters are counted.
inline constexpr char quotedLineFeed = '\xC1';

// The text with every line feed quoted.
std::string quotedLines(std::string_view text);

// The text with every quoted line feed as it was.
std::string unquotedLines(std::string text);

} // namespace kx
