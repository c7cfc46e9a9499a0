// The manual page kxctl(1), in the language of man(7).

#include "commands/CommandHelp.h"

#include <algorithm>

namespace kx {

namespace {

// A dash that is copied from the page must be an ASCII one.
std::string escaped(std::string_view text) {
    std::string result;
    for (const char character : text) {
        if (character == '\\') {
            result += "\\e";
        } else if (character == '-') {
            result += "\\-";
        } else {
            result += character;
        }
    }
    return result;
}

// The text on lines that a person can read in the source too. A line that would begin with a dot or
// an apostrophe gets a mark that takes no room.
std::string lines(std::string_view text) {
    constexpr std::size_t longestLine = 78;
    std::string result;
    std::string line;
    const auto endLine = [&] {
        const bool wouldBeRequest = line.starts_with('.') || line.starts_with('\'');
        result += (wouldBeRequest ? "\\&" : "") + line + "\n";
        line.clear();
    };
    const std::string all = escaped(text);
    for (std::size_t begin = 0; begin < all.size();) {
        const std::size_t end = std::min(all.find(' ', begin), all.size());
        const std::string_view word = std::string_view(all).substr(begin, end - begin);
        if (!line.empty() && line.size() + 1 + word.size() > longestLine) {
            endLine();
        }
        line += line.empty() ? "" : " ";
        line += word;
        begin = end + 1;
    }
    endLine();
    return result;
}

std::string manualParagraphs(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const std::size_t end = text.find("\n\n");
        result += result.empty() ? "" : ".PP\n";
        result += lines(text.substr(0, end));
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 2);
    }
    return result;
}

std::string optionEntries(std::span<const OptionRow> options) {
    std::string result;
    for (const OptionRow& row : options) {
        result += ".TP\n";
        result += row.value.empty() ? ".B " : ".BI ";
        result += escaped(row.name);
        if (!row.value.empty()) {
            result += " \" " + escaped(row.value) + "\"";
        }
        result += "\n" + lines(row.text);
    }
    return result;
}

std::string commandSection(const CommandRow& row) {
    std::string result = ".SS " + escaped(row.name) + "\n.B kxctl " + escaped(row.name) + "\n";
    if (!row.arguments.empty()) {
        result += ".I " + escaped(row.arguments) + "\n";
    }
    result += ".PP\n" + manualParagraphs(row.text);
    result += optionEntries(row.options);
    if (!row.keys.empty()) {
        result += ".PP\nKeys of the document:\n";
        for (const std::string_view key : row.keys) {
            result += ".BR " + escaped(key) + (key == row.keys.back() ? " ." : " ,") + "\n";
        }
    }
    result += ".PP\n.EX\n";
    for (const std::string_view example : row.examples) {
        result += escaped(example) + "\n";
    }
    return result + ".EE\n";
}

constexpr std::string_view beginning = R"(.SH NAME
kxctl \- find and configure small networked units
.SH SYNOPSIS
.B kxctl
.RI [ option ].\|.\|.
.I command
.RI [ argument ].\|.\|.
.SH DESCRIPTION
.B kxctl
finds small networked units on the local IPv4 network and configures them, as
.BR kxconfig (1)
does with a window. It keeps no settings.
Data goes to standard output; sentences, progress and questions go to standard
error. Progress and questions appear only on a terminal.
.PP
Values that a unit is to get are read back from the unit, with retries. The exit
status 0 means that the unit shows them.
.SH GENERAL OPTIONS
They may stand before or after the command.
)";

constexpr std::string_view ending = R"(.SH DOCUMENTS
With
.B \-\-json
exactly one JSON document goes to standard output, whatever happens. It always has
the keys schema, command, exit, error (null, or code and message) and warnings, and
those of the command. JSON Schemas are installed in /usr/share/kxconfig/json\-schema.
.SH EXIT STATUS
.TP
.B 0
Done as asked, and verified by what the unit shows.
.TP
.B 1
Asked properly, and the answer is no: no unit, fewer than expected, the units differ
from a saved discovery, an address is held, a unit did not take a value.
.TP
.B 2
A wrong command line, value or file; nothing was sent.
.TP
.B 3
Could not ask: interface, port, rights or socket. Also: another apply or revert runs on this
host.
.TP
.B 4
A unit was left half configured or silent; a person must look.
.TP
.BR 130 ", " 143
Interrupted by SIGINT, or by SIGTERM or SIGHUP. What was under way has been read back and
reported. A second signal ends the program at once.
.SH ENVIRONMENT
.TP
.BR LANGUAGE ", " LC_ALL ", " LC_MESSAGES ", " LANG
The language of sentences. Names, keys and the heads of tables are not translated.
.TP
.B NO_COLOR
When set, nothing is bold.
.SH FILES
.TP
.I kxctl\-journal\-TIME.jsonl
The journal of an apply or a revert, in the current folder unless \-\-journal names another file.
apply, revert and set look there for the journals of runs that were cut off.
.SH SEE ALSO
.BR kxconfig (1),
.BR kxunits (1),
.BR arp (8)
)";

} // namespace

std::string manualPage(std::string_view day) {
    std::string page =
        ".TH KXCTL 1 \"" + std::string(day) + "\" \"KXConfig " KX_VERSION "\" \"User Commands\"\n";
    page += beginning;
    page += optionEntries(generalOptions());
    page += ".SH COMMANDS\n";
    for (const CommandRow& row : commandTable()) {
        page += commandSection(row);
    }
    return page += ending;
}

} // namespace kx
