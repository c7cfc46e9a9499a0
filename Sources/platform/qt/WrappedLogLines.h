// The lines into which the log's rows are broken at a width, counted from a given line.
//
// The number of lines in the whole text is not known: only the rows between two lines are laid out.
// Pure, except for the layouts; both arguments must outlive the object.

#pragma once

#include "platform/qt/LogRowLayout.h"

#include <compare>

namespace kx {

struct WrappedLogLine {
    std::size_t row = 0;
    int line = 0; // number of the line within the row

    auto operator<=>(const WrappedLogLine&) const = default;
};

class WrappedLogLines {
public:
    WrappedLogLines(const LogText& text, const LogRowStyle& looks)
        : _text(text)
        , _looks(looks) {}

    LogRowLayout layOut(std::size_t row) const { return {_text.row(row), _looks}; }

    WrappedLogLine lineOf(std::size_t position) const;

    // The line that is `lines` further down, or up when `lines` is negative. Stops at the first and
    // the last line.
    WrappedLogLine moved(WrappedLogLine from, int lines) const;

    // The number of lines from `from` down to `to`, and at most `most`.
    int distance(WrappedLogLine from, WrappedLogLine to, int most) const;

private:
    const LogText& _text;
    const LogRowStyle& _looks;
};

} // namespace kx
