#include "platform/qt/WrappedLogLines.h"

#include <algorithm>

namespace kx {

WrappedLogLine WrappedLogLines::lineOf(std::size_t position) const {
    const std::size_t row = _text.rowAt(position);
    return {row, layOut(row).lineOf(position)};
}

WrappedLogLine WrappedLogLines::moved(WrappedLogLine from, int lines) const {
    std::size_t row = from.row;
    int line = from.line + lines;
    while (line < 0 && row > 0) {
        --row;
        line += layOut(row).lineCount();
    }
    int count = layOut(row).lineCount();
    while (line >= count && row + 1 < _text.rowCount()) {
        ++row;
        line -= count;
        count = layOut(row).lineCount();
    }
    return {row, std::clamp(line, 0, count - 1)};
}

int WrappedLogLines::distance(WrappedLogLine from, WrappedLogLine to, int most) const {
    int lines = to.line - from.line;
    for (std::size_t row = from.row; row < to.row && lines < most; ++row) {
        lines += layOut(row).lineCount();
    }
    return std::min(lines, most);
}

} // namespace kx
