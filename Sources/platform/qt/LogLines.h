// The lines that the log's rows fall into at a width, counted from where one looks.
//
// Nobody knows how many lines the whole text has: only rows on the way from one line to another are
// laid out. Pure but for the layouts; both arguments must outlive it.

#pragma once

#include "platform/qt/LogRowLayout.h"

#include <compare>

namespace kx {

struct LogLine {
    std::size_t row = 0;
    int line = 0; // within the row

    auto operator<=>(const LogLine&) const = default;
};

class LogLines {
public:
    LogLines(const LogText& text, const LogLooks& looks)
        : _text(text)
        , _looks(looks) {}

    LogRowLayout layOut(std::size_t row) const { return {_text.row(row), _looks}; }

    LogLine lineOf(std::size_t position) const;

    // So many lines further down, or up when negative. Stops at the first and the last line.
    LogLine moved(LogLine from, int lines) const;

    // How many lines `to` is below `from`; `most` when it is further.
    int distance(LogLine from, LogLine to, int most) const;

private:
    const LogText& _text;
    const LogLooks& _looks;
};

} // namespace kx
