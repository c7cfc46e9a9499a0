// The completions of shells: commands, their options, and what stands behind an option.

#include "commands/CommandHelp.h"
#include "units/UnitParameter.h"

#include <vector>

namespace kx {

namespace {

// Lists the names of interfaces in the shell itself, without a look at the network.
constexpr std::string_view interfaceNames = "all $(ls /sys/class/net 2>/dev/null)";
constexpr std::string_view portNames = "auto 3520 3521 3522 3523";

std::string joinedCommands() {
    std::string names;
    for (const CommandRow& row : commandTable()) {
        names += names.empty() ? "" : " ";
        names += row.name;
    }
    return names;
}

std::string joinedOptions(std::span<const OptionRow> options) {
    std::string names;
    for (const OptionRow& row : options) {
        names += names.empty() ? "" : " ";
        names += row.name;
    }
    return names;
}

std::string joinedParameters() {
    std::string names;
    for (const ParameterDescription& row : parameterTable) {
        names += names.empty() ? "" : " ";
        names += std::string(row.identifier) + "=";
    }
    return names;
}

// A pattern of all options with a value of this kind, "-i|--interface".
std::string patternOf(ValueKind kind) {
    std::string pattern;
    const auto add = [&](std::span<const OptionRow> options) {
        for (const OptionRow& row : options) {
            const std::string name(row.name);
            if (row.kind == kind &&
                ("|" + pattern + "|").find("|" + name + "|") == std::string::npos) {
                pattern += (pattern.empty() ? "" : "|") + name;
            }
        }
    };
    add(generalOptions());
    for (const CommandRow& row : commandTable()) {
        add(row.options);
    }
    return pattern;
}

// Text within single quotation marks of a shell.
std::string inSingleQuotes(std::string_view text) {
    std::string result = "'";
    for (const char character : text) {
        result += character == '\'' ? std::string("'\\''") : std::string(1, character);
    }
    return result + "'";
}

// Text within the brackets and colons of a specification of zsh.
std::string zshText(std::string_view text) {
    std::string result;
    for (const char character : text) {
        if (character == '[' || character == ']' || character == ':' || character == '\\') {
            result += '\\';
        }
        result += character;
    }
    return result;
}

std::string zshAction(ValueKind kind) {
    switch (kind) {
    case ValueKind::file:
        return "_files";
    case ValueKind::interface:
        return "{_values -s \" \" interface all ${(f)\"$(ls /sys/class/net 2>/dev/null)\"}}";
    case ValueKind::port:
        return "(" + std::string(portNames) + ")";
    default:
        return " ";
    }
}

std::string zshOptions(std::span<const OptionRow> options) {
    std::string result;
    for (const OptionRow& row : options) {
        std::string specification(row.name);
        specification += "[" + zshText(row.text) + "]";
        if (row.kind != ValueKind::none) {
            specification += ":" + std::string(row.value) + ":" + zshAction(row.kind);
        }
        result += " \\\n                " + inSingleQuotes(specification);
    }
    return result;
}

std::string fishOptions(std::span<const OptionRow> options, std::string_view condition) {
    std::string result;
    for (const OptionRow& row : options) {
        const bool isLong = row.name.starts_with("--");
        result += "complete -c kxctl";
        result += condition.empty() ? "" : " -n " + inSingleQuotes(condition);
        result += (isLong ? " -l " : " -s ") + std::string(row.name.substr(isLong ? 2 : 1));
        if (row.kind == ValueKind::file) {
            result += " -r -F";
        } else if (row.kind == ValueKind::interface) {
            result += " -x -a " + inSingleQuotes("all (ls /sys/class/net 2>/dev/null)");
        } else if (row.kind == ValueKind::port) {
            result += " -x -a " + inSingleQuotes(portNames);
        } else if (row.kind != ValueKind::none) {
            result += " -x";
        }
        result += " -d " + inSingleQuotes(row.text) + "\n";
    }
    return result;
}

} // namespace

std::string bashCompletion() {
    std::string script =
        "# Completion of kxctl for bash. Generated from the table of commands.\n\n"
        "_kxctl() {\n"
        "    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]}\n"
        "    local command='' candidate words files='' i\n"
        "    COMPREPLY=()\n"
        "    for ((i = 1; i < COMP_CWORD; i++)); do\n"
        "        for candidate in " +
        joinedCommands() +
        "; do\n"
        "            if [[ -z $command && ${COMP_WORDS[i]} == \"$candidate\" ]]; then\n"
        "                command=$candidate\n"
        "            fi\n"
        "        done\n"
        "    done\n"
        "    case $previous in\n";
    script += "    " + patternOf(ValueKind::interface) + ") words=\"" +
              std::string(interfaceNames) + "\" ;;\n";
    script +=
        "    " + patternOf(ValueKind::port) + ") words=\"" + std::string(portNames) + "\" ;;\n";
    script += "    " + patternOf(ValueKind::file) +
              ") mapfile -t COMPREPLY < <(compgen -f -- \"$word\"); return ;;\n";
    script += "    " + patternOf(ValueKind::text) + ") return ;;\n";
    script +=
        "    *)\n        case $command in\n        '') words=\"" + joinedCommands() + "\" ;;\n";
    for (const CommandRow& row : commandTable()) {
        script += "        " + std::string(row.name) + ") words=\"" + joinedOptions(row.options);
        if (row.words == ValueKind::parameter) {
            script += " " + joinedParameters();
        }
        script += row.words == ValueKind::file ? "\"; files=yes ;;\n" : "\" ;;\n";
    }
    script += "        esac\n        words+=\" " + joinedOptions(generalOptions()) +
              "\"\n        ;;\n    esac\n"
              "    mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$word\"\n"
              "        [[ -z $files ]] || compgen -f -- \"$word\")\n"
              "    if [[ ${#COMPREPLY[@]} -eq 1 && ${COMPREPLY[0]} == *= ]]; then\n"
              "        compopt -o nospace\n"
              "    fi\n"
              "}\n\ncomplete -F _kxctl kxctl\n";
    return script;
}

std::string zshCompletion() {
    std::string script = "#compdef kxctl\n"
                         "# Completion of kxctl for zsh. Generated from the table of commands.\n\n"
                         "_kxctl() {\n    local line state\n    _arguments -C" +
                         zshOptions(generalOptions()) +
                         " \\\n                '1:command:->command' '*::argument:->argument'\n"
                         "    case $state in\n    command)\n        _values command";
    for (const CommandRow& row : commandTable()) {
        script += " \\\n                " +
                  inSingleQuotes(std::string(row.name) + "[" + zshText(row.summary) + "]");
    }
    script += "\n        ;;\n    argument)\n        case $line[1] in\n";
    for (const CommandRow& row : commandTable()) {
        script += "        " + std::string(row.name) + ")\n            _arguments" +
                  zshOptions(row.options) + zshOptions(generalOptions());
        if (row.words == ValueKind::parameter) {
            script += " \\\n                '*:parameter:(" + joinedParameters() + ")'";
        } else if (row.words == ValueKind::file) {
            script += " \\\n                '*:file:_files'";
        }
        script += "\n            ;;\n";
    }
    return script + "        esac\n        ;;\n    esac\n}\n\n_kxctl \"$@\"\n";
}

std::string fishCompletion() {
    std::string script = "# Completion of kxctl for fish. Generated from the table of commands.\n\n"
                         "complete -c kxctl -f\n";
    for (const CommandRow& row : commandTable()) {
        script += "complete -c kxctl -n " +
                  inSingleQuotes("not __fish_seen_subcommand_from " + joinedCommands()) + " -a " +
                  std::string(row.name) + " -d " + inSingleQuotes(row.summary) + "\n";
    }
    script += fishOptions(generalOptions(), "");
    for (const CommandRow& row : commandTable()) {
        const std::string condition = "__fish_seen_subcommand_from " + std::string(row.name);
        script += fishOptions(row.options, condition);
        if (row.words == ValueKind::parameter) {
            script += "complete -c kxctl -n " + inSingleQuotes(condition) + " -a " +
                      inSingleQuotes(joinedParameters()) + "\n";
        } else if (row.words == ValueKind::file) {
            script += "complete -c kxctl -n " + inSingleQuotes(condition) + " -F\n";
        }
    }
    return script;
}

} // namespace kx
