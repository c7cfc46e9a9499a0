// What a run of a command says: data, sentences, questions and progress.

#include "commands/CommandHelp.h"
#include "commands/CommandRun.h"
#include "support/LocalizedText.h"
#include "words/QuotedText.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <utility>

namespace kx {

namespace {

constexpr std::chrono::milliseconds timeBetweenProgress{100};

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

void CommandRun::awaitProgress() {
    if (_count && !_line.has("--quiet") && _services.console.isNoteTerminal()) {
        _nextProgress = _services.session.runLoop.callOnceAfter(timeBetweenProgress, [this] {
            showProgress();
            awaitProgress();
        });
    }
}

void CommandRun::showProgress() {
    if (!_services.console.canRewriteNotes()) {
        return; // another program may have the terminal for a while
    }
    const auto tenths = (_services.now() - _begun).count() / 100;
    std::array<char, 32> time{};
    std::snprintf(time.data(), time.size(), "  %lld.%lld s", static_cast<long long>(tenths / 10),
                  static_cast<long long>(tenths % 10));
    _services.console.writeNote(std::string(Console::beginningOfLine) + _count() + time.data() +
                                (_left ? _left() : std::string()));
    _showsProgress = true;
}

void CommandRun::endProgress() {
    if (std::exchange(_showsProgress, false)) {
        _services.console.writeNote(Console::beginningOfLine);
    }
}

bool CommandRun::canAsk() const {
    return _services.console.isInputTerminal() && _services.console.isNoteTerminal();
}

std::optional<std::string> CommandRun::ask(const std::string& question) {
    if (!canAsk()) {
        return std::nullopt;
    }
    endProgress();
    _services.console.writeNote(question + " ");
    std::optional<std::string> answer;
    bool isOver = false;
    const auto reading =
        _services.console.readLine(_services.session.runLoop, [&](std::optional<std::string> line) {
            answer = std::move(line);
            isOver = true;
        });
    if (reading != nullptr) {
        _services.session.runLoop.runUntil([&] { return isOver || isInterrupted(); });
    }
    if (!answer.has_value()) {
        _services.console.writeNote("\n");
    }
    return answer;
}

void CommandRun::tellFailure(const Failure& failure) {
    endProgress();
    _services.console.writeNote("kxctl: " + failure.message + "\n");
}

std::string sentenceOfFile(const std::string& path, const Error& error) {
    return localizedText("“%@” cannot be written: %@.",
                         {safeForSentence(path), error.localizedDescription()});
}

// The document is saved as it is printed. That it cannot be saved is a failure of its own.
std::string CommandRun::documentText(std::optional<Failure>& failure, int exitStatus) {
    const auto text = [this, &failure, exitStatus] {
        return _document.text(failure.has_value() ? failure->exitStatus : exitStatus, failure);
    };
    if (_savedDocument == nullptr) {
        return wantsDocument() ? text() : std::string();
    }
    const auto error = _savedDocument->replaceBy(text());
    if (error.has_value() && !isInterrupted()) {
        failure =
            Failure{ErrorCode::file, sentenceOfFile(_savedDocument->path(), *error), exitCannotAsk};
    }
    return text();
}

int CommandRun::finish(std::optional<Failure> failure, int statusWithoutFailure) {
    if (isInterrupted()) {
        failure = interruption();
    }
    endCapture();
    if (_captureFile != nullptr && _captureFile->error().has_value()) {
        warn("capture",
             localizedText("The capture is not whole, because it could not be written."));
    }
    const std::string text = documentText(failure, statusWithoutFailure);
    const int exitStatus = failure.has_value() ? failure->exitStatus : statusWithoutFailure;
    if (wantsDocument()) {
        _services.console.writeOutput(text);
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
