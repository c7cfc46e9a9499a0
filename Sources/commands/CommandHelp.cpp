#include "commands/CommandHelp.h"

#include <algorithm>
#include <vector>

namespace kx {

namespace {

constexpr std::size_t lineWidth = 79;
constexpr std::size_t nameWidth = 18; // of the column with commands and options

// The words of a text on lines of at most `lineWidth`, behind `indent` blanks. The first line
// begins with `head`, which may be longer than the indent.
std::string wrapped(std::string_view head, std::size_t indent, std::string_view text) {
    std::string result(head);
    std::size_t column = head.size();
    const auto newLine = [&] {
        result += '\n';
        result.append(indent, ' ');
        column = indent;
    };
    if (column + 1 > indent && indent > 0) {
        newLine();
    } else {
        result.append(indent - column, ' ');
        column = indent;
    }
    while (!text.empty()) {
        const std::size_t length = std::min(text.find(' '), text.size());
        if (column > indent && column + 1 + length > lineWidth) {
            newLine();
        }
        if (column > indent) {
            result += ' ';
            ++column;
        }
        result += text.substr(0, length);
        column += length;
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    return result += '\n';
}

std::string paragraphs(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find("\n\n"), text.size());
        result += wrapped("", 0, text.substr(0, end)) + "\n";
        text.remove_prefix(std::min(end + 2, text.size()));
    }
    return result;
}

std::string optionLines(std::span<const OptionRow> options) {
    std::string result;
    for (const OptionRow& row : options) {
        std::string head = "  ";
        head += row.name;
        head += row.value.empty() ? "" : " ";
        head += row.value;
        result += wrapped(head, nameWidth, row.text);
    }
    return result;
}

} // namespace

std::string versionText() {
    return "kxctl " KX_VERSION "\n";
}

std::string helpOfProgram() {
    std::string text = "usage: kxctl [OPTION]... COMMAND ...\n\n";
    text += "Finds and configures small networked units over UDP on the local network.\n\n";
    text += "Commands:\n";
    for (const CommandRow& row : commandTable()) {
        text += wrapped("  " + std::string(row.name), nameWidth, row.summary);
    }
    text += "\nOptions, before or after the command:\n" + optionLines(generalOptions());
    text += "\n";
    text += paragraphs("Exit status: 0 done and verified; 1 the answer is no; 2 a wrong command "
                       "line, value or file; 3 could not ask; 4 a unit needs a person; 130 and 143 "
                       "interrupted.");
    text += "Example: kxctl discover -i kx0\n";
    text += "kxctl COMMAND --help tells more about a command, kxctl(1) about all of them.\n";
    return text;
}

std::string helpOfCommand(const CommandRow& row) {
    std::string text = "usage: kxctl ";
    text += row.name;
    text += " [OPTION]...";
    text += row.arguments.empty() ? "" : " ";
    text += row.arguments;
    text += "\n\n" + paragraphs(row.text);
    if (!row.options.empty()) {
        text += "Options:\n" + optionLines(row.options) + "\n";
    }
    text += "General options:\n" + optionLines(generalOptions());
    text += row.examples.size() == 1 ? "\nExample:\n" : "\nExamples:\n";
    for (const std::string_view example : row.examples) {
        text += "  " + std::string(example) + "\n";
    }
    return text;
}

} // namespace kx
