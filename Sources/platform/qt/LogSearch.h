// Searches the log's text as it is shown. Letters match in either case. Pure; the search goes
// through the text piece by piece, so a long text is never copied whole. `sought` must not be
// empty.

#pragma once

#include "platform/qt/LogCaretMovement.h"

#include <QString>
#include <optional>

namespace kx {

// The first match that begins at `start` or after it.
std::optional<LogRange> findForward(const LogText& text, const QString& sought, std::size_t start);

// The last match that ends at `end` or before it.
std::optional<LogRange> findBackward(const LogText& text, const QString& sought, std::size_t end);

// The number of matches, and at most `most`. A match begins behind the one before it.
std::size_t countMatches(const LogText& text, const QString& sought, std::size_t most);

} // namespace kx
