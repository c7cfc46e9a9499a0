// The log view as a screen reader sees it: a text of many lines that can be read and selected.
//
// While no assistive technology listens, nothing is announced, and no characters are counted.

#pragma once

#include <cstddef>

namespace kx {

class LogTextView;

// Call this before the first view is made. Further calls do nothing.
void installLogTextAccessible();

// Announces that the text between these positions is new.
void announceInsertion(LogTextView& view, std::size_t from, std::size_t to);

// Announces that the text up to this position is about to be removed.
void announceRemoval(LogTextView& view, std::size_t to);

void announceSelection(LogTextView& view);

} // namespace kx
