#include "platform/qt/LogLines.h"

#include <algorithm>

namespace kx {

LogLine LogLines::lineOf(std::size_t position) const {
    const std::size_t row = _text.rowAt(position);
    return {row, layOut(row).lineOf(position)};
}

LogLine LogLines::moved(LogLine from, int lines) const {
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

int LogLines::distance(LogLine from, LogLine to, int most) const {
    int lines = to.line - from.line;
    for (std::size_t row = from.row; row < to.row && lines < most; ++row) {
        lines += layOut(row).lineCount();
    }
    return std::min(lines, most);
}

} // namespace kx
