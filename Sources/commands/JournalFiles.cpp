#include "commands/JournalFiles.h"

#include "commands/RowsFile.h"
#include "conversation/BindingRelease.h"
#include "conversation/RunHistory.h"
#include "files/WholeFile.h"
#include "support/LocalizedText.h"
#include "words/DocumentFaultText.h"
#include "words/QuotedText.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <ctime>
#include <filesystem>
#include <utility>

namespace kx {

namespace {

using Refusal = CommandRun::Refusal;

constexpr std::string_view beginningOfName = "kxctl-journal-";
constexpr std::string_view endOfName = ".jsonl";

std::string newPath(const CommandRun& run) {
    const std::tm time = run.services().wallClock.localTime();
    std::array<char, 32> digits{};
    std::strftime(digits.data(), digits.size(), "%Y%m%d-%H%M%S", &time);
    const std::string name = std::string(beginningOfName) + digits.data();
    std::string path = name + std::string(endOfName);
    std::error_code none;
    for (int number = 2; std::filesystem::exists(path, none); ++number) {
        path = name + '-' + std::to_string(number) + std::string(endOfName);
    }
    return path;
}

// A path is shown longer than a value, because it is looked for afterwards.
constexpr std::size_t mostOfPath = 200;

// The time as files have it: UTC, to the second.
std::string timeOf(std::chrono::microseconds sinceEpoch) {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(sinceEpoch).count();
    const auto moment = static_cast<std::time_t>(seconds);
    std::tm time{};
    ::gmtime_r(&moment, &time);
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%SZ", &time);
    return text.data();
}

bool isFilled(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0;
}

Refusal objectionToEnded(const FoundJournal& found) {
    return found.journal.hasEnded
               ? Refusal(failureOf(ErrorCode::file,
                                   localizedText("“%@” is the journal of a run that has ended. "
                                                 "Name another file.",
                                                 {safeForSentence(found.path)})))
               : std::nullopt;
}

// Without the part of a line at the end, whose command was never sent.
std::string_view wholeLinesOf(std::string_view text) {
    return text.substr(0, text.rfind('\n') + 1);
}

// A journal that cannot be written keeps the entries; they are looked for again next time.
void takeOutEntriesOf(CommandRun& run, const FoundJournal& found) {
    std::vector<JournalledBinding> left = bindingsLeft(found.journal.entries);
    if (left.empty()) {
        return;
    }
    std::vector<std::uint32_t> links;
    for (const HostInterface& interface : run.interfaces()) {
        links.push_back(interface.link);
    }
    JournalLines lines(found.journal.entries.size());
    JournalFile file(run.services().session.runLoop,
                     [&lines](const JournalEntry& entry) { return lines.entry(entry); });
    const bool isNoted =
        !found.journal.hasEnded && !file.begin(found.path, wholeLinesOf(found.text)).has_value();
    BindingRelease release({.bindings = run.services().bindings,
                            .neighbours = run.services().neighbours,
                            .journal = isNoted ? &file : nullptr},
                           std::move(links), std::move(left));
    run.wait(release);
    for (const BindingRelease::Failure& failure : release.failures()) {
        run.warn("arp-entry", localizedText("The entry for %@ could not be taken out of the ARP "
                                            "cache again.",
                                            {failure.binding.address}));
    }
}

} // namespace

Refusal readJournalFile(const std::string& path, FoundJournal& found) {
    found.path = path;
    if (auto refusal = readWholeFile(path, found.text)) {
        return refusal;
    }
    auto read = readJournal(found.text);
    if (const auto* const fault = std::get_if<JournalFault>(&read)) {
        return failureOf(ErrorCode::file, textOfDocumentFault(fault->fault, path));
    }
    found.journal = std::get<Journal>(std::move(read));
    return std::nullopt;
}

std::vector<FoundJournal> journalsLeft(const std::string& path) {
    std::vector<std::string> paths;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(".", error)) {
        const std::string name = entry.path().filename().string();
        if (name.starts_with(beginningOfName) && name.ends_with(endOfName) && name != path) {
            paths.push_back(name);
        }
    }
    std::ranges::sort(paths);
    if (!path.empty()) {
        paths.push_back(path);
    }
    std::vector<FoundJournal> journals;
    for (const std::string& each : paths) {
        FoundJournal found;
        if (isFilled(each) && !readJournalFile(each, found).has_value()) {
            journals.push_back(std::move(found));
        }
    }
    return journals;
}

void takeOutLeftEntries(CommandRun& run, const std::vector<FoundJournal>& journals) {
    for (const FoundJournal& found : journals) {
        takeOutEntriesOf(run, found);
    }
}

void takeOutLeftEntriesBetweenRuns(CommandRun& run) {
    const std::vector<FoundJournal> journals = journalsLeft();
    const bool isAnyLeft = std::ranges::any_of(journals, [](const FoundJournal& found) {
        return !bindingsLeft(found.journal.entries).empty();
    });
    if (isAnyLeft) {
        const auto lock = run.services().runLock.take();
        if (std::holds_alternative<std::unique_ptr<HeldRunLock>>(lock)) {
            takeOutLeftEntries(run, journals);
        }
    }
}

NewJournal::NewJournal(CommandRun& run, const std::optional<std::string>& path)
    : _run(run)
    , _path(path.has_value() ? *path : newPath(run)) {}

Refusal NewJournal::look() {
    if (const auto error = objectionToReplacing(_path)) {
        return failureOf(ErrorCode::file, sentenceOfFile(_path, *error));
    }
    if (!isFilled(_path)) {
        return std::nullopt;
    }
    FoundJournal found;
    auto refusal = readJournalFile(_path, found);
    return refusal.has_value() ? std::move(refusal) : objectionToEnded(found);
}

// The file was looked at. It is read again, because entries of the ARP cache that are gone have
// been noted in it meanwhile.
std::optional<Error> NewJournal::begin() {
    std::string text =
        JournalLines::head({.started = timeOf(_run.services().utc()), .source = _source});
    FoundJournal found;
    if (isFilled(_path) && !readJournalFile(_path, found).has_value()) {
        text = wholeLinesOf(found.text);
        _lines = JournalLines(found.journal.entries.size());
    }
    _file = std::make_unique<JournalFile>(
        _run.services().session.runLoop,
        [this](const JournalEntry& entry) { return _lines.entry(entry); });
    auto error = _file->begin(_path, text);
    if (!error.has_value()) {
        _run.say(localizedText("The journal is “%@”.", {safeForSentence(_path, mostOfPath)}));
    }
    return error;
}

void NewJournal::write(const JournalEntry& entry, Written written) {
    if (_file == nullptr) {
        _failure = begin();
    }
    _file->write(entry, std::move(written));
}

void NewJournal::finish() {
    if (_file == nullptr) {
        return;
    }
    _file->finish(_lines.end());
    const auto& error = _failure.has_value() ? _failure : _file->failure();
    if (error.has_value()) {
        _run.warn("journal", sentenceOfFile(_path, *error));
    }
}

} // namespace kx
