// Texts of the event log's kind, and their rows.

#pragma once

#include "words/LogText.h"

#include <string>
#include <vector>

namespace kx {

inline std::vector<std::string> rowsOf(const LogText& text) {
    std::vector<std::string> rows;
    for (std::size_t index = 0; index < text.rowCount(); ++index) {
        rows.emplace_back(text.row(index).text);
    }
    return rows;
}

// Lines of every length up to a few hundred bytes, with letters of one to four bytes in them.
inline std::string manyLines(int count) {
    std::string text;
    for (int line = 0; line < count; ++line) {
        text += "\n" + std::to_string(line) + " Ä網😀 " +
                std::string(static_cast<std::size_t>(line % 300), 'x');
    }
    return text;
}

} // namespace kx
