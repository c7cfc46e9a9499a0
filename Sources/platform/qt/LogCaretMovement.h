// Movements of the keyboard in the log, and the ranges that a click selects. Nothing here depends
// on how the text is drawn; the view itself moves up and down.

#pragma once

#include "words/LogText.h"

namespace kx {

struct LogRange {
    std::size_t from;
    std::size_t to;
};

enum class LogCaretMovement {
    nextCharacter,
    previousCharacter,
    nextWord,
    previousWord,
    startOfRow,
    endOfRow,
    startOfText,
    endOfText
};

// The position after a movement. At an end of the text the position stays the same.
std::size_t movedPosition(const LogText& text, std::size_t position, LogCaretMovement movement);

enum class LogSelectionUnit { character, word, line };

// The word at a position, which may be a run of blanks or one mark, or the whole line with its line
// feed. A character is the empty range at the position.
LogRange unitAround(const LogText& text, std::size_t position, LogSelectionUnit unit);

} // namespace kx
