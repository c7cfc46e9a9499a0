// The commands of kxctl: one table with a row for each.
//
// The parser of the command line, the help, the manual page and the completions of shells are made
// of it. A new command is a row here and a file of its own with the function that runs it.
//
// Constant; any thread. Texts are English.

#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace kx {

class CommandRun;

// What stands behind an option or a command, so that shells can complete it.
enum class ValueKind {
    none,      // an option without a value
    text,      // nothing that a shell could know
    file,      // the name of a file
    interface, // the name of an interface
    port,      // one of the ports
    parameter, // the identifier of a parameter and "="
};

struct OptionRow {
    std::string_view name;  // with its dashes, "--wait" or "-i"
    std::string_view value; // how its value is called in the help, "S"; empty without one
    ValueKind kind = ValueKind::none;
    std::string_view text;
};

struct CommandRow {
    std::string_view name;
    std::string_view arguments; // how they are called in the help, "UNIT NAME=VALUE..."
    std::string_view summary;   // one line without a full stop
    std::string_view text;      // paragraphs, separated by an empty line
    std::span<const OptionRow> options;
    std::span<const std::string_view> examples; // whole command lines
    std::span<const std::string_view> keys;     // of its document, beside those of every document
    std::size_t leastWords = 0;
    std::size_t mostWords = 0;
    ValueKind words = ValueKind::none; // what the last of its words is

    // Runs the command and returns its exit status.
    int (*run)(CommandRun& run) = nullptr;
};

std::span<const CommandRow> commandTable();

// The options that every command has; they may also stand before the command.
std::span<const OptionRow> generalOptions();

// Null when there is none of this name.
const CommandRow* commandForName(std::string_view name);

// `mostWords` of a command that takes as many words as a person likes.
inline constexpr std::size_t anyNumberOfWords = ~std::size_t{0};

} // namespace kx
