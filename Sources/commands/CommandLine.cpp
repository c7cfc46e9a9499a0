#include "commands/CommandLine.h"

#include "addresses/CharacterClass.h"
#include "support/LocalizedText.h"
#include "units/UnitCommand.h"
#include "words/QuotedText.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <charconv>
#include <numeric>
#include <span>
#include <utility>

namespace kx {

namespace {

using Words = std::vector<std::string>;

bool isFlag(const OptionRow& row) {
    return row.kind == ValueKind::none;
}

Failure missingValue() {
    return failureOf(ErrorCode::usage, localizedText("An option lacks its value, or a flag has "
                                                     "one. See kxctl --help."));
}

// Takes the options of one part of the command line, and keeps the rest as it is.
//
// The library's own help, messages and exit codes are not used: it only takes options apart. It has
// no positional arguments, because it would read lists into them: "[a,b]"; and no subcommands,
// because it would let "++" end them.
class OptionParser {
public:
    explicit OptionParser(CommandLine& line)
        : _line(line)
        , _app("kxctl") {
        _app.set_help_flag();
        _app.allow_extras();
    }

    // Options behind the first word belong to the rest.
    void endAtFirstWord() { _app.prefix_command(); }

    // The last of an option counts. The rows must outlive the object.
    void add(std::span<const OptionRow> options) {
        for (const OptionRow& row : options) {
            const std::string name(row.name);
            if (isFlag(row)) {
                _flags.push_back(name + '=');
                _app.add_flag_callback(name, [this, &row] { take(row, {}); });
            } else {
                _app.add_option_function<std::string>(
                        name, [this, &row](const std::string& text) { take(row, text); })
                    ->take_last();
            }
        }
    }

    std::optional<Failure> parse(Words words) {
        // The library would take "--json=true" for the flag, and "--json=false" for none.
        const auto setFlags =
            std::erase_if(words, [this](const std::string& word) { return isSetFlag(word); });
        std::ranges::reverse(words); // the library takes them from the end
        try {
            _app.parse(words);
        } catch (const CLI::ArgumentMismatch& error) {
            return missingValue();
        } catch (const CLI::ParseError& error) {
            return failureOf(ErrorCode::usage,
                             localizedText("The command line cannot be read: %@.", {error.what()}));
        }
        return setFlags > 0 ? std::optional(missingValue()) : std::nullopt;
    }

    Words rest() const { return _app.remaining(); }

private:
    void take(const OptionRow& row, std::string text) {
        _line.options.insert_or_assign(std::string(row.name), std::move(text));
    }

    bool isSetFlag(const std::string& word) const {
        return std::ranges::any_of(
            _flags, [&word](const std::string& flag) { return word.starts_with(flag); });
    }

    CommandLine& _line;
    CLI::App _app;
    Words _flags; // each with "="
};

bool isOption(const std::string& word) {
    return word.size() > 1 && word.starts_with('-');
}

// A command line as far as its command.
struct Beginning {
    Words extras; // options that there are not
    Words words;  // the name of the command, and all behind it
};

std::optional<Failure> takeBeginning(const Words& arguments, CommandLine& line,
                                     Beginning& beginning) {
    OptionParser parser(line);
    parser.endAtFirstWord();
    parser.add(generalOptions());
    auto failure = parser.parse(arguments);
    const Words rest = parser.rest();
    const auto first = std::ranges::find_if_not(rest, isOption);
    beginning = {.extras = {rest.begin(), first}, .words = {first, rest.end()}};
    line.command = first != rest.end() ? commandForName(*first) : nullptr;
    return failure;
}

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

Failure unknownOption(const std::string& word) {
    return failureOf(
        ErrorCode::usage,
        localizedText("There is no option “%@” here. See kxctl --help.", {safeForSentence(word)}));
}

// What stands behind the name of the command.
std::optional<Failure> takeCommand(const Words& arguments, CommandLine& line, Words& extras) {
    OptionParser parser(line);
    parser.add(generalOptions());
    if (line.command != nullptr) {
        parser.add(line.command->options);
    }
    auto failure = parser.parse(arguments);
    for (const std::string& word : parser.rest()) {
        (isOption(word) ? extras : line.words).push_back(word);
    }
    return failure;
}

std::optional<Failure> objectionToRest(CommandLine& line, const Beginning& beginning,
                                       const Words& extras) {
    if (!beginning.extras.empty()) {
        return unknownOption(beginning.extras.front());
    }
    if (line.command == nullptr && !beginning.words.empty()) {
        return unknownCommand(beginning.words.front());
    }
    if (isOptionText(line, extras)) {
        line.words.push_back(extras.front());
    } else if (!extras.empty()) {
        return unknownOption(extras.front());
    }
    return std::nullopt;
}

std::optional<Failure> objectionToLine(CommandLine& line) {
    if (line.command == nullptr) {
        return failureOf(ErrorCode::usage,
                         localizedText("A command is missing. See kxctl --help."));
    }
    for (const auto& objection : {objectionToSixWords(line), objectionToNumberOfWords(line),
                                  objectionToForms(line), takePorts(line)}) {
        if (objection.has_value()) {
            return objection;
        }
    }
    return std::nullopt;
}

// Behind "--" everything is a word.
Words withoutPlainWords(const Words& arguments) {
    return {arguments.begin(), std::ranges::find(arguments, "--")};
}

} // namespace

std::optional<std::string> CommandLine::valueOf(std::string_view option) const {
    const auto found = options.find(option);
    return found != options.end() ? std::optional(found->second) : std::nullopt;
}

std::variant<CommandLine, Failure> commandLineOf(const std::vector<std::string>& arguments) {
    CommandLine line;
    Beginning beginning;
    const Words options = withoutPlainWords(arguments);
    if (auto failure = takeBeginning(options, line, beginning)) {
        return *failure;
    }
    Words extras;
    if (!beginning.words.empty()) {
        const Words behind(beginning.words.begin() + 1, beginning.words.end());
        if (auto failure = takeCommand(behind, line, extras)) {
            return *failure;
        }
    }
    if (line.has("--help") || line.has("--version")) {
        return line;
    }
    if (auto failure = objectionToRest(line, beginning, extras)) {
        return *failure;
    }
    const auto mark = arguments.begin() + static_cast<std::ptrdiff_t>(options.size());
    if (mark != arguments.end()) {
        line.words.insert(line.words.end(), mark + 1, arguments.end());
    }
    if (auto failure = objectionToLine(line)) {
        return *failure;
    }
    return line;
}

bool asksForDocument(const std::vector<std::string>& arguments) {
    return std::ranges::count(withoutPlainWords(arguments), "--json") > 0;
}

bool asksForHelp(const std::vector<std::string>& arguments) {
    const Words options = withoutPlainWords(arguments);
    return std::ranges::count(options, "--help") + std::ranges::count(options, "--version") > 0;
}

std::optional<std::string> commandNameIn(const std::vector<std::string>& arguments) {
    CommandLine line;
    Beginning beginning;
    takeBeginning(withoutPlainWords(arguments), line, beginning);
    return line.command != nullptr ? std::optional(std::string(line.command->name)) : std::nullopt;
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
