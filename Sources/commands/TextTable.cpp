#include "commands/TextTable.h"

#include "support/TextEncoding.h"
#include "support/VisibleText.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace kx {

namespace {

constexpr std::string_view gap = "  ";
constexpr std::string_view bold = "\x1b[1m";
constexpr std::string_view plain = "\x1b[0m";

} // namespace

TextTable::TextTable(std::vector<std::string> heads) {
    _rows.push_back(std::move(heads));
}

void TextTable::addRow(std::vector<std::string> texts) {
    for (std::string& text : texts) {
        text = visibleText(text);
    }
    _rows.push_back(std::move(texts));
}

std::string TextTable::text(bool isBold) const {
    std::vector<std::size_t> widths(_rows.front().size());
    for (const auto& row : _rows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], lengthInCharacters(row[i]));
        }
    }
    std::string result;
    for (const auto& row : _rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            line += row[i];
            line.append(widths[i] - lengthInCharacters(row[i]) + gap.size(), ' ');
        }
        line.resize(line.find_last_not_of(' ') + 1);
        const bool isHead = isBold && &row == &_rows.front();
        result += isHead ? bold : std::string_view();
        result += line;
        result += isHead ? plain : std::string_view();
        result += '\n';
    }
    return result;
}

} // namespace kx
