// Apply, Stop and Save Report.

#include "KXTableRun.h"
#include "KXTableRunJournal.h"
#include "conversation/RunHistory.h"
#include "support/LocalizedText.h"
#include "words/QuotedText.h"
#include "words/UnitPlanText.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace kx {

namespace {

bool isSameChange(const UnitChange& one, const UnitChange& other) {
    return one.edit.edit.parameter == other.edit.edit.parameter && one.from == other.from &&
           one.to == other.to && one.state == other.state;
}

bool isSameRow(const PlannedRow& one, const PlannedRow& other) {
    return one.state == other.state && one.unit.has_value() && other.unit.has_value() &&
           one.unit->hardwareAddress() == other.unit->hardwareAddress() &&
           std::ranges::equal(one.changes, other.changes, isSameChange);
}

} // namespace

void KXTableRun::apply() {
    if (!canApply()) {
        return;
    }
    auto lock = _services.lock.take();
    if (const auto* const refusal = std::get_if<RunLockRefusal>(&lock)) {
        show(Stage::planned, sentenceOfLock(*refusal));
        return;
    }
    refreshInterfaces();
    if (!openExchange()) {
        return;
    }
    _held = std::get<std::unique_ptr<HeldRunLock>>(std::move(lock));
    _leftEntry.clear();
    show(Stage::applying);
    tick();
    _left = journalsBefore();
    std::erase_if(
        _left, [](const KeptJournal& kept) { return bindingsLeft(kept.journal.entries).empty(); });
    releaseLeftEntries();
}

// A run that was killed may have left fixed entries in the ARP cache, which lead astray.
void KXTableRun::releaseLeftEntries() {
    if (_left.empty() || _isStopping) {
        searchAgain();
        return;
    }
    const KeptJournal kept = std::move(_left.back());
    _left.pop_back();
    std::vector<std::uint32_t> links;
    links.reserve(_all.size());
    for (const HostInterface& interface : _all) {
        links.push_back(interface.link);
    }
    _journal =
        std::make_unique<WrittenJournal>(_services.session.runLoop, kept.journal.entries.size());
    const bool isNoted =
        !kept.journal.hasEnded &&
        !_journal->file.begin(kept.path, wholeLinesOfJournal(kept.text)).has_value();
    _release = std::make_unique<BindingRelease>(
        BindingRelease::Services{.bindings = _services.moves.bindings,
                                 .neighbours = _services.moves.holders.neighbours,
                                 .journal = isNoted ? &_journal->file : nullptr},
        std::move(links), bindingsLeft(kept.journal.entries));
    _release->begin([this] { goOn(&KXTableRun::didRelease); });
}

void KXTableRun::didRelease() {
    if (!_release->failures().empty()) {
        _leftEntry = _release->failures().front().binding.address;
    }
    releaseLeftEntries();
}

void KXTableRun::searchAgain() {
    _release.reset();
    _journal.reset();
    search(&KXTableRun::didAskAgain);
    if (_isStopping) {
        _search->interrupt();
    }
}

// Only what the person has seen is sent.
void KXTableRun::didAskAgain() {
    std::string fault = faultOfSearch();
    if (!fault.empty()) {
        close();
        show(Stage::planned, fault + ' ' + localizedText("Nothing was sent."));
        return;
    }
    UnitPlan fresh = planOfAnswers();
    keepRefusals(fresh);
    const bool mayBegin = isAsShown(fresh);
    _plan = std::move(fresh);
    _lines = linesOfPlan(_plan);
    ++_listNumber;
    if (!mayBegin) {
        close();
        show(Stage::planned, localizedText("The units are not as they were: this is the new plan. "
                                           "Nothing was sent."));
        return;
    }
    if (const auto error = beginJournal()) {
        close();
        show(Stage::planned, localizedText("The journal cannot be written: %@. Nothing was sent.",
                                           {error->localizedDescription()}));
        return;
    }
    carryOut();
}

// Who holds the new addresses is looked at again only by the run. What was refused for it before
// the person's eyes stays refused.
void KXTableRun::keepRefusals(UnitPlan& fresh) const {
    for (std::size_t row = 0; row < fresh.rows.size() && row < _plan.rows.size(); ++row) {
        const RowObjection objection = _plan.rows[row].reason.objection;
        if (fresh.rows[row].state == RowState::planned &&
            (objection == RowObjection::heldByHost || objection == RowObjection::unknownHolder)) {
            endRow(fresh.rows[row], RowState::refused, _plan.rows[row].reason);
            refuseWaiting(fresh, row);
        }
    }
}

bool KXTableRun::isAsShown(const UnitPlan& fresh) const {
    if (fresh.rows.size() != _plan.rows.size() || (fresh.hasObjections() && !_options.keepsGoing)) {
        return false;
    }
    for (std::size_t row = 0; row < fresh.rows.size(); ++row) {
        if (fresh.rows[row].state == RowState::planned &&
            !isSameRow(fresh.rows[row], _plan.rows[row])) {
            return false;
        }
    }
    return fresh.sum(RowState::planned) > 0;
}

// --- The journal ---

std::string KXTableRun::folderOfFile() const {
    const auto folder = std::filesystem::path(_file.path).parent_path();
    return folder.empty() ? "." : folder.string();
}

std::vector<KeptJournal> KXTableRun::journalsBefore() const {
    return journalsOfFolders({folderOfFile(), _services.stateFolder});
}

std::optional<Error> KXTableRun::openJournalIn(const std::string& folder) {
    _journal = std::make_unique<WrittenJournal>(_services.session.runLoop);
    const std::string path = newJournalPath(folder, _services.wallClock.localTime());
    auto error = _journal->file.begin(
        path,
        JournalLines::head({.started = timeOfJournal(_services.utc()), .source = _file.path}));
    if (!error.has_value()) {
        _journalPath = path;
    }
    return error;
}

std::optional<Error> KXTableRun::beginJournal() {
    auto error = openJournalIn(folderOfFile());
    if (error.has_value() && !_services.stateFolder.empty()) {
        std::error_code none;
        std::filesystem::create_directories(_services.stateFolder, none);
        error = openJournalIn(_services.stateFolder);
    }
    return error;
}

// --- The run ---

void KXTableRun::carryOut() {
    _run = std::make_unique<PlanRun>(*_exchange, _services.moves, _journal->file,
                                     std::exchange(_plan, {}), _options);
    _firstCommand = _services.now();
    Operation& run = *_run;
    run.begin([this] { goOn(&KXTableRun::didCarryOut); });
    changed();
}

void KXTableRun::didCarryOut() {
    _plan = _run->plan();
    _journal->file.finish(_journal->lines.end());
    std::string message = messageOfRun();
    close();
    show(Stage::ended, std::move(message));
}

std::string KXTableRun::messageOfRun() const {
    if (const auto& failure = _journal->file.failure()) {
        return localizedText("The journal could not be written: %@.",
                             {failure->localizedDescription()});
    }
    if (needsALook()) {
        return localizedText("Look at the units that are half configured or have fallen silent.");
    }
    return _leftEntry.empty() ? std::string() : sentenceOfLeftEntry(_leftEntry);
}

void KXTableRun::stop() {
    if (!canStop()) {
        return;
    }
    _isStopping = true;
    if (_run != nullptr) {
        _run->interrupt();
    } else if (_holders != nullptr) {
        _holders->interrupt();
    } else if (_search != nullptr) {
        _search->interrupt();
    } else if (_release != nullptr) {
        _release->interrupt();
    }
    changed();
}

void KXTableRun::stopThen(std::function<void()> ended) {
    if (canChoose()) {
        ended();
        return;
    }
    _whenStopped.push_back(std::move(ended));
    stop();
}

void KXTableRun::breakOff() {
    stop();
    if (_run != nullptr) {
        _run->interrupt(); // for the second time
    }
}

// --- The report ---

void KXTableRun::saveReport() {
    if (_panels.save == nullptr || !canSaveReport()) {
        return;
    }
    const std::string stem = std::filesystem::path(_file.path).stem().string();
    _panels.save->ask({.title = localizedText("Save Report"),
                       .suggestedName = stem + "-report.csv",
                       .kind = localizedText("Comma-separated values"),
                       .suffix = "csv"},
                      [this](const std::string& path) {
                          if (!canSaveReport()) {
                              return;
                          }
                          const auto error =
                              _services.writeFile(path, reportOfFile(_file, rowsOfReport(_plan)));
                          _faultOfReport =
                              error.has_value()
                                  ? localizedText("“%@” cannot be written: %@.",
                                                  {safeForSentence(path, mostCharactersOfSentence),
                                                   error->localizedDescription()})
                                  : std::string();
                          changed();
                      });
}

} // namespace kx
