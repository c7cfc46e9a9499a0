// Tables for a person: columns of texts, each as wide as its widest text.
//
// Pure; any thread. Texts are UTF-8; foreign texts may hold anything.

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kx {

class TextTable {
public:
    explicit TextTable(std::vector<std::string> heads);

    // As many texts as there are heads. Characters that would break the line, change the order of
    // its characters or reach the terminal as a command are shown as marks.
    void addRow(std::vector<std::string> texts);

    // No row was added.
    bool isEmpty() const { return _rows.size() == 1; }

    // One line for the heads and one for each row. The heads are bold when `isBold`.
    std::string text(bool isBold) const;

private:
    std::vector<std::vector<std::string>> _rows; // the heads first
};

} // namespace kx
