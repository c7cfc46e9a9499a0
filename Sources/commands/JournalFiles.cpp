#include "commands/JournalFiles.h"

#include "conversation/BindingRelease.h"
#include "conversation/RunHistory.h"
#include "files/WholeFile.h"
#include "support/LocalizedText.h"
#include "words/QuotedText.h"
#include "words/TableFileText.h"
#include "words/UnitPlanText.h"

#include <sys/stat.h>

#include <algorithm>
#include <chrono>
#include <utility>

namespace kx {

namespace {

using Refusal = CommandRun::Refusal;

// A path is shown longer than a value, because it is looked for afterwards.
constexpr std::size_t mostOfPath = 200;

bool isFilled(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0;
}

Refusal objectionToEnded(const KeptJournal& found) {
    return found.journal.hasEnded
               ? Refusal(failureOf(ErrorCode::file,
                                   localizedText("“%@” is the journal of a run that has ended. "
                                                 "Name another file.",
                                                 {safeForSentence(found.path)})))
               : std::nullopt;
}

// A journal that cannot be written keeps the entries; they are looked for again next time.
void takeOutEntriesOf(CommandRun& run, const KeptJournal& found) {
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
    const bool isNoted = !found.journal.hasEnded &&
                         !file.begin(found.path, wholeLinesOfJournal(found.text)).has_value();
    BindingRelease release({.bindings = run.services().bindings,
                            .neighbours = run.services().neighbours,
                            .journal = isNoted ? &file : nullptr},
                           std::move(links), std::move(left));
    run.wait(release);
    for (const BindingRelease::Failure& failure : release.failures()) {
        run.warn("arp-entry", sentenceOfLeftEntry(failure.binding.address));
    }
}

} // namespace

Refusal readJournalFile(const std::string& path, KeptJournal& found) {
    auto read = readKeptJournal(path);
    if (const auto* const fault = std::get_if<JournalFileFault>(&read)) {
        return failureOf(ErrorCode::file, sentenceOfFileFault(*fault, path));
    }
    found = std::get<KeptJournal>(std::move(read));
    return std::nullopt;
}

std::vector<KeptJournal> journalsLeft(const std::string& path) {
    std::vector<KeptJournal> journals = journalsIn("");
    std::erase_if(journals, [&path](const KeptJournal& kept) { return kept.path == path; });
    KeptJournal named;
    if (isFilled(path) && !readJournalFile(path, named).has_value()) {
        journals.push_back(std::move(named));
        sortByBeginning(journals);
    }
    return journals;
}

void takeOutLeftEntries(CommandRun& run, const std::vector<KeptJournal>& journals) {
    for (const KeptJournal& found : journals) {
        takeOutEntriesOf(run, found);
    }
}

void takeOutLeftEntriesBetweenRuns(CommandRun& run) {
    const std::vector<KeptJournal> journals = journalsLeft();
    const bool isAnyLeft = std::ranges::any_of(journals, [](const KeptJournal& found) {
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
    , _path(path.has_value() ? *path : newJournalPath("", run.services().wallClock.localTime())) {}

Refusal NewJournal::look() {
    if (const auto error = objectionToReplacing(_path)) {
        return failureOf(ErrorCode::file, sentenceOfFile(_path, *error));
    }
    if (!isFilled(_path)) {
        return std::nullopt;
    }
    KeptJournal found;
    auto refusal = readJournalFile(_path, found);
    return refusal.has_value() ? std::move(refusal) : objectionToEnded(found);
}

// The file was looked at. It is read again, because entries of the ARP cache that are gone have
// been noted in it meanwhile.
std::optional<Error> NewJournal::begin() {
    std::string text = JournalLines::head(
        {.started =
             timeOfJournal(std::chrono::duration_cast<std::chrono::seconds>(_run.services().utc())),
         .source = _source});
    KeptJournal found;
    if (isFilled(_path) && !readJournalFile(_path, found).has_value()) {
        text = wholeLinesOfJournal(found.text);
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
