// The command line of kxctl, taken apart by the table of commands.
//
// Pure, except that it looks up the sentences (support/LocalizedText.h), so it belongs to the main
// thread. Texts are UTF-8.

#pragma once

#include "commands/CommandTable.h"
#include "commands/ExitStatus.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kx {

struct CommandLine {
    const CommandRow* command = nullptr; // null when a person asks only for help or the version
    std::map<std::string, std::string, std::less<>> options; // by name; a flag's value is empty
    std::vector<std::string> words;
    std::vector<std::uint16_t> ports; // to listen on, the first that is free

    bool has(std::string_view option) const { return options.contains(option); }

    // Absent when the option is not there.
    std::optional<std::string> valueOf(std::string_view option) const;
};

// The command line, without the program's name, or why it is wrong.
std::variant<CommandLine, Failure> commandLineOf(const std::vector<std::string>& arguments);

// Whether the document was asked for, and the name of the command, as far as they can be told from
// a wrong command line.
bool asksForDocument(const std::vector<std::string>& arguments);
bool asksForHelp(const std::vector<std::string>& arguments); // or for the version
std::optional<std::string> commandNameIn(const std::vector<std::string>& arguments);

// The number that an option has, or why it has none. Absent when the option is not there.
struct NumberOption {
    std::optional<std::int32_t> number;
    std::optional<Failure> failure;
};
NumberOption wholeNumberOf(const CommandLine& line, std::string_view option);

struct TimeOption {
    std::optional<std::chrono::milliseconds> time;
    std::optional<Failure> failure;
};

// A number of seconds, such as "2" or "0.5", above 0 and at most a day.
TimeOption secondsOf(const CommandLine& line, std::string_view option);

} // namespace kx
