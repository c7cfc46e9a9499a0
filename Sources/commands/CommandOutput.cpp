// What a run of a command says: data, sentences, questions and progress.

#include "commands/CommandHelp.h"
#include "commands/CommandRun.h"
#include "support/LocalizedText.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <utility>

namespace kx {

namespace {

constexpr std::chrono::milliseconds timeBetweenProgress{100};
constexpr std::chrono::milliseconds timeForSignal{50};

constexpr std::string_view beginningOfLine = "\r\x1b[K"; // and nothing on it

std::optional<Failure> outputFailure(const Console& console) {
    const auto& error = console.outputError();
    if (!error.has_value() || error->code == EPIPE) {
        return std::nullopt; // a reader that has seen enough is no failure
    }
    return Failure{
        ErrorCode::file,
        localizedText("Standard output cannot be written: %@.", {error->localizedDescription()}),
        exitCannotAsk};
}

} // namespace

void CommandRun::print(std::string_view text) {
    if (!wantsDocument()) {
        _services.console.writeOutput(text);
    }
}

bool CommandRun::isBold() const {
    return _services.console.isOutputTerminal() && !_services.console.isPlain();
}

void CommandRun::say(const std::string& sentence) {
    if (!_line.has("--quiet")) {
        endProgress();
        _services.console.writeNote(sentence + "\n");
    }
}

void CommandRun::warn(std::string_view code, const std::string& sentence) {
    _document.warn(code, sentence);
    say(sentence);
}

void CommandRun::showProgress(std::string_view text) {
    if (_line.has("--quiet") || !_services.console.isNoteTerminal()) {
        return;
    }
    const auto now = _services.now();
    if (_latestProgress.has_value() && now - *_latestProgress < timeBetweenProgress) {
        return;
    }
    _latestProgress = now;
    const auto tenths = (now - _begun).count() / 100;
    std::array<char, 32> time{};
    std::snprintf(time.data(), time.size(), "  %lld.%lld s", static_cast<long long>(tenths / 10),
                  static_cast<long long>(tenths % 10));
    _services.console.writeNote(std::string(beginningOfLine).append(text).append(time.data()));
    _showsProgress = true;
}

void CommandRun::endProgress() {
    if (std::exchange(_showsProgress, false)) {
        _services.console.writeNote(beginningOfLine);
    }
}

std::optional<std::string> CommandRun::ask(const std::string& question) {
    if (!_services.console.isInputTerminal()) {
        return std::nullopt;
    }
    endProgress();
    _services.console.writeNote(question + " ");
    auto answer = _services.console.readLine();
    if (!answer.has_value()) {
        _services.console.writeNote("\n");
        takeSignal();
    }
    return answer;
}

// A signal that ended the question waits for a turn of the loop.
void CommandRun::takeSignal() {
    bool isOver = false;
    const auto moment =
        _services.session.runLoop.callOnceAfter(timeForSignal, [&isOver] { isOver = true; });
    _services.session.runLoop.runUntil([&] { return isOver || isInterrupted(); });
}

void CommandRun::tellFailure(const Failure& failure) {
    endProgress();
    _services.console.writeNote("kxctl: " + failure.message + "\n");
}

int CommandRun::finish(std::optional<Failure> failure) {
    if (isInterrupted()) {
        failure = interruption();
    }
    if (_captureFile != nullptr && !*_captureFile) {
        warn("capture",
             localizedText("The capture is not whole, because it could not be written."));
    }
    const int exitStatus = failure.has_value() ? failure->exitStatus : exitDone;
    if (wantsDocument()) {
        _services.console.writeOutput(_document.text(exitStatus, failure));
    }
    if (failure.has_value()) {
        tellFailure(*failure);
    }
    if (const auto output = outputFailure(_services.console)) {
        tellFailure(*output);
        return exitStatus == exitDone ? output->exitStatus : exitStatus;
    }
    return exitStatus;
}

std::variant<CommandLine, int> readCommandLine(const std::vector<std::string>& arguments,
                                               Console& console) {
    auto line = commandLineOf(arguments);
    if (const auto* const failure = std::get_if<Failure>(&line)) {
        if (asksForDocument(arguments)) {
            console.writeOutput(
                Document(commandNameIn(arguments)).text(failure->exitStatus, *failure));
        }
        console.writeNote("kxctl: " + failure->message + "\n");
        return failure->exitStatus;
    }
    auto& parsed = std::get<CommandLine>(line);
    if (parsed.has("--help")) {
        console.writeOutput(parsed.command != nullptr ? helpOfCommand(*parsed.command)
                                                      : helpOfProgram());
    } else if (parsed.has("--version")) {
        console.writeOutput(versionText());
    } else {
        return std::move(parsed);
    }
    const auto failure = outputFailure(console);
    if (failure.has_value()) {
        console.writeNote("kxctl: " + failure->message + "\n");
    }
    return failure.has_value() ? failure->exitStatus : exitDone;
}

} // namespace kx
