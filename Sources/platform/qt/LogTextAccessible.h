// What a screen reader sees of the log view: a text of many lines that can be read and selected.
//
// Nothing is announced, and nothing is counted, while no assistive technology listens.

#pragma once

#include <cstddef>

namespace kx {

class LogTextView;

// Before the first view is made; again does nothing.
void installLogTextAccessible();

// The text from this position on is new.
void announceInsertion(LogTextView& view, std::size_t from);

// The text up to this position is about to go.
void announceRemoval(LogTextView& view, std::size_t to);

void announceSelection(LogTextView& view);

} // namespace kx
