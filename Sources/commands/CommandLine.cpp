#include "commands/CommandLine.h"

#include "addresses/CharacterClass.h"
#include "support/LocalizedText.h"
#include "units/UnitCommand.h"
#include "words/QuotedText.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <charconv>
#include <memory>
#include <numeric>
#include <span>

namespace kx {

namespace {

// The library's own help, messages and exit codes are not used: it only takes options apart. It has
// no positional arguments, because it would read lists into them: "[a,b]". What it does not know it
// leaves as it is.
class Parser {
public:
    Parser()
        : _app("kxctl") {
        _app.set_help_flag();
        _app.require_subcommand(0, 1);
        _app.allow_extras();
        addOptions(_app, generalOptions());
        for (const CommandRow& row : commandTable()) {
            CLI::App* const command = _app.add_subcommand(std::string(row.name));
            command->set_help_flag();
            command->fallthrough();
            command->allow_extras();
            addOptions(*command, row.options);
            command->callback([this, &row] { _line.command = &row; });
        }
    }

    std::variant<CommandLine, Failure> parse(std::vector<std::string> arguments) {
        // The library forgets behind a command that "--" makes everything a word.
        const auto mark = std::ranges::find(arguments, "--");
        const auto afterMark = mark != arguments.end() ? std::next(mark) : mark;
        const std::vector<std::string> plainWords(afterMark, arguments.end());
        arguments.erase(mark, arguments.end());
        std::ranges::reverse(arguments); // the library takes them from the end
        try {
            _app.parse(arguments);
        } catch (const CLI::ArgumentMismatch& error) {
            return missingValue();
        } catch (const CLI::ParseError& error) {
            return failureOf(ErrorCode::usage,
                             localizedText("The command line cannot be read: %@.", {error.what()}));
        }
        for (const auto& [name, value] : _values) {
            if (value->isThere) {
                _line.options.emplace(name, value->text);
            }
        }
        return takeRest(plainWords);
    }

private:
    struct Value {
        bool isThere = false;
        std::string text;
    };

    void addOptions(CLI::App& app, std::span<const OptionRow> options) {
        for (const OptionRow& row : options) {
            const std::string name(row.name);
            Value& value = *_values.emplace(name, std::make_unique<Value>()).first->second;
            if (row.kind == ValueKind::none) {
                app.add_flag_callback(name, [&value] { value.isThere = true; });
            } else {
                app.add_option_function<std::string>(name,
                                                     [&value](const std::string& text) {
                                                         value = {.isThere = true, .text = text};
                                                     })
                    ->take_last();
            }
        }
    }

    Failure missingValue() const {
        return failureOf(ErrorCode::usage, localizedText("An option lacks its value, or a flag has "
                                                         "one. See kxctl --help."));
    }

    std::optional<Failure> takeExtras(const std::vector<std::string>& extras);
    std::variant<CommandLine, Failure> takeRest(const std::vector<std::string>& plainWords);

    CLI::App _app;
    CommandLine _line;
    std::map<std::string, std::unique_ptr<Value>> _values;
};

bool isPairOfDigits(std::string_view word) {
    return word.size() == 2 && isHexDigit(word[0]) && isHexDigit(word[1]);
}

// Six words where one serial number was meant.
std::optional<Failure> objectionToSixWords(const CommandLine& line) {
    int pairs = 0;
    for (const std::string& word : line.words) {
        pairs = isPairOfDigits(word) ? pairs + 1 : 0;
        if (pairs == 6) {
            return failureOf(ErrorCode::usage,
                             localizedText("These are six words. Write the serial number without "
                                           "blanks, 4B5800000001, or in quotation marks."));
        }
    }
    return std::nullopt;
}

std::optional<Failure> objectionToNumberOfWords(const CommandLine& line) {
    const CommandRow& row = *line.command;
    if (line.words.size() < row.leastWords) {
        return failureOf(ErrorCode::usage, localizedText("kxctl %@ needs more words: %@.",
                                                         {row.name, row.arguments}));
    }
    if (line.words.size() > row.mostWords) {
        return failureOf(ErrorCode::usage,
                         localizedText("kxctl %@ does not take the word “%@”.",
                                       {row.name, safeForSentence(line.words[row.mostWords])}));
    }
    return std::nullopt;
}

std::optional<Failure> objectionToForms(const CommandLine& line) {
    return line.has("--json") && line.has("--csv")
               ? std::optional(failureOf(ErrorCode::usage,
                                         localizedText("--json and --csv cannot stand together.")))
               : std::nullopt;
}

std::optional<Failure> takePorts(CommandLine& line) {
    const std::string text = line.valueOf("--port").value_or("auto");
    for (std::uint16_t port = defaultUnitPort; port <= lastListeningPort; ++port) {
        if (text == "auto" || text == std::to_string(port)) {
            line.ports.push_back(port);
        }
    }
    if (!line.ports.empty()) {
        return std::nullopt;
    }
    return failureOf(ErrorCode::usage,
                     localizedText("--port takes auto, 3520, 3521, 3522 or 3523, not “%@”.",
                                   {safeForSentence(text)}));
}

// How many letters two words differ by: put in, left out or exchanged.
std::size_t distance(std::string_view left, std::string_view right) {
    std::vector<std::size_t> row(right.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (const char letter : left) {
        std::size_t diagonal = row[0]++;
        for (std::size_t j = 0; j < right.size(); ++j) {
            const std::size_t exchanged = diagonal + (letter == right[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({row[j] + 1, row[j + 1] + 1, exchanged});
        }
    }
    return row.back();
}

Failure unknownCommand(const std::string& word) {
    const auto commands = commandTable();
    const auto nearest = std::ranges::min_element(
        commands, {}, [&word](const CommandRow& row) { return distance(word, row.name); });
    const std::string shown = safeForSentence(word);
    if (distance(word, nearest->name) <= 2) {
        return failureOf(
            ErrorCode::usage,
            localizedText("There is no command “%@”. Did you mean “%@”?", {shown, nearest->name}));
    }
    return failureOf(ErrorCode::usage,
                     localizedText("There is no command “%@”. See kxctl --help.", {shown}));
}

// The text of an option command may look like an option: "-Z11152347".
bool isOptionText(const CommandLine& line, const std::vector<std::string>& extras) {
    return line.command != nullptr && line.command->name == "option" && line.words.size() == 1 &&
           extras.size() == 1 && !extras.front().starts_with("--");
}

std::optional<Failure> Parser::takeExtras(const std::vector<std::string>& extras) {
    if (_line.command == nullptr && !_line.words.empty()) {
        return unknownCommand(_line.words.front());
    }
    if (extras.empty()) {
        return std::nullopt;
    }
    if (isOptionText(_line, extras)) {
        _line.words.push_back(extras.front());
        return std::nullopt;
    }
    return failureOf(ErrorCode::usage,
                     localizedText("There is no option “%@” here. See kxctl --help.",
                                   {safeForSentence(extras.front())}));
}

std::variant<CommandLine, Failure> Parser::takeRest(const std::vector<std::string>& plainWords) {
    if (_line.has("--help") || _line.has("--version")) {
        return _line;
    }
    std::vector<std::string> extras; // options that there are not
    for (const std::string& word : _app.remaining(true)) {
        const bool isOption = word.size() > 1 && word.starts_with('-');
        (isOption ? extras : _line.words).push_back(word);
    }
    if (auto failure = takeExtras(extras)) {
        return *failure;
    }
    _line.words.insert(_line.words.end(), plainWords.begin(), plainWords.end());
    if (_line.command == nullptr) {
        return failureOf(ErrorCode::usage,
                         localizedText("A command is missing. See kxctl --help."));
    }
    for (const auto& objection : {objectionToSixWords(_line), objectionToNumberOfWords(_line),
                                  objectionToForms(_line), takePorts(_line)}) {
        if (objection.has_value()) {
            return *objection;
        }
    }
    return _line;
}

} // namespace

std::optional<std::string> CommandLine::valueOf(std::string_view option) const {
    const auto found = options.find(option);
    return found != options.end() ? std::optional(found->second) : std::nullopt;
}

std::variant<CommandLine, Failure> commandLineOf(const std::vector<std::string>& arguments) {
    return Parser().parse(arguments);
}

namespace {

bool hasBeforeMark(const std::vector<std::string>& arguments, std::string_view option) {
    const auto end = std::ranges::find(arguments, "--");
    return std::find(arguments.begin(), end, option) != end;
}

} // namespace

bool asksForDocument(const std::vector<std::string>& arguments) {
    return hasBeforeMark(arguments, "--json");
}

bool asksForHelp(const std::vector<std::string>& arguments) {
    return hasBeforeMark(arguments, "--help") || hasBeforeMark(arguments, "--version");
}

std::optional<std::string> commandNameIn(const std::vector<std::string>& arguments) {
    const auto found = std::ranges::find_if(
        arguments, [](const std::string& word) { return commandForName(word) != nullptr; });
    return found != arguments.end() ? std::optional(*found) : std::nullopt;
}

NumberOption wholeNumberOf(const CommandLine& line, std::string_view option) {
    const auto text = line.valueOf(option);
    if (!text.has_value()) {
        return {};
    }
    std::int32_t number = 0;
    const char* const end = text->data() + text->size();
    const auto result = std::from_chars(text->data(), end, number);
    if (result.ec == std::errc() && result.ptr == end && number > 0) {
        return {.number = number, .failure = {}};
    }
    return {.number = {},
            .failure = failureOf(ErrorCode::usage,
                                 localizedText("%@ takes a whole number from 1 on, not “%@”.",
                                               {option, safeForSentence(*text)}))};
}

TimeOption secondsOf(const CommandLine& line, std::string_view option) {
    constexpr double longest = 24 * 60 * 60;
    const auto text = line.valueOf(option);
    if (!text.has_value()) {
        return {};
    }
    double seconds = 0;
    const char* const end = text->data() + text->size();
    const auto result = std::from_chars(text->data(), end, seconds, std::chars_format::fixed);
    const auto time = std::chrono::milliseconds(result.ec == std::errc() && seconds <= longest
                                                    ? static_cast<long long>(seconds * 1000)
                                                    : 0);
    if (result.ec == std::errc() && result.ptr == end && time.count() > 0) {
        return {.time = time, .failure = {}};
    }
    return {.time = {},
            .failure = failureOf(ErrorCode::usage,
                                 localizedText("%@ takes seconds, such as 2 or 0.5, not “%@”.",
                                               {option, safeForSentence(*text)}))};
}

} // namespace kx
