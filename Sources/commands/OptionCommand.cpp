// option: sends an option command to a unit, once, and prints what it answers.

#include "conversation/OptionCommand.h"

#include "commands/CommandRun.h"
#include "commands/Commands.h"
#include "support/LocalizedText.h"
#include "support/TextEncoding.h"
#include "support/VisibleText.h"
#include "units/IdentityText.h"
#include "units/UnitCommand.h"
#include "words/QuotedText.h"

namespace kx {

namespace {

using Refusal = CommandRun::Refusal;

constexpr std::string_view clockTitle = "-Z"; // stands for the time in the window's pop-up too

Refusal readText(const CommandRun& run, std::string& text) {
    const CommandLine& line = run.line();
    if (line.has("--clock") == (line.words.size() > 1)) {
        return failureOf(ErrorCode::usage, line.has("--clock")
                                               ? localizedText("Write a text or --clock, not both.")
                                               : localizedText("Write the text of the option "
                                                               "command, or --clock."));
    }
    text = line.has("--clock")
               ? optionTextForTitle(clockTitle, run.services().wallClock.localTime())
               : line.words.back();
    if (!asciiBytes(text).has_value()) {
        return failureOf(ErrorCode::value, localizedText("“%@” has other characters than ASCII.",
                                                         {safeForSentence(text)}));
    }
    return std::nullopt;
}

// The text behind the payload marker.
std::string textOf(const UnitAnswer& answer) {
    return {answer.bytes.begin() + 1, answer.bytes.end()};
}

void report(CommandRun& run, const std::vector<UnitAnswer>& answers) {
    std::string text;
    for (const UnitAnswer& answer : answers) {
        Json json;
        json["text"] = textOf(answer);
        json["bytes"] = hexStringForData(answer.bytes, "");
        run.document()["replies"].push_back(std::move(json));
        std::string line = textOf(answer);
        if (line.ends_with('\r')) {
            line.pop_back(); // ends most answers
        }
        text += visibleText(line) + "\n";
    }
    run.print(text);
}

} // namespace

int runOption(CommandRun& run) {
    std::string text;
    HeardUnit unit;
    if (auto refusal = readText(run, text)) {
        return run.finish(std::move(refusal));
    }
    if (auto refusal = run.reachUnit(run.line().words.front(), unit)) {
        return run.finish(std::move(refusal));
    }
    OptionCommand command(run.exchange(), unit, text);
    run.wait(command, [&command] { return std::to_string(command.answers().size()); });
    if (auto refusal = CommandRun::refusalOfSend(command.failure())) {
        return run.finish(std::move(refusal));
    }
    report(run, command.answers());
    if (command.answers().empty()) {
        return run.finish(Failure{ErrorCode::silent,
                                  localizedText("The unit %@ has not answered the option command.",
                                                {std::string(unit.serialNumber())}),
                                  exitNo});
    }
    return run.finish();
}

} // namespace kx
