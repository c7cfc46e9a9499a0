#include "commands/TableRun.h"

#include "commands/JournalFiles.h"
#include "commands/PlanReport.h"
#include "commands/RowDiscovery.h"
#include "commands/RowsFile.h"
#include "conversation/PlanRun.h"
#include "conversation/RunHistory.h"
#include "support/LocalizedText.h"
#include "words/PlanCells.h"
#include "words/UnitPlanText.h"

#include <algorithm>
#include <utility>

namespace kx {

namespace {

using Refusal = CommandRun::Refusal;

// More at once help nobody: a unit answers within milliseconds, and the answers of all of them come
// through one socket.
constexpr std::int32_t mostInFlight = 256;

Refusal busy(const RunLockRefusal& refusal) {
    return failureOf(refusal.error.has_value() ? ErrorCode::socket : ErrorCode::busy,
                     sentenceOfLock(refusal));
}

// From the rows of a file to the report on what became of them.
class TableRun {
public:
    explicit TableRun(CommandRun& run)
        : _run(run)
        , _journal(run, run.line().valueOf("--journal")) {}

    int perform(const RowsReader& readRows);

private:
    Refusal readOptions();
    Refusal lookAtFiles();
    Refusal takeLock();
    Refusal plan();
    void leaveUntouchedIfRefused();
    Refusal ask();
    Refusal carryOut();
    void tellLeftEntries();
    int report(Refusal refusal);
    Refusal writeReport();

    CommandRun& _run;
    TableFile _file;
    PlanRun::Options _options;
    std::unique_ptr<OutputFile> _report; // null without one
    NewJournal _journal;
    std::unique_ptr<HeldRunLock> _lock;
    UnitPlan _plan;
};

Refusal TableRun::readOptions() {
    const NumberOption inFlight = wholeNumberOf(_run.line(), "--in-flight");
    if (inFlight.failure.has_value()) {
        return inFlight.failure;
    }
    const std::int32_t number = inFlight.number.value_or(8);
    if (number > mostInFlight) {
        return failureOf(ErrorCode::usage, localizedText("%@ takes a number up to %d.",
                                                         {"--in-flight", mostInFlight}));
    }
    _options = {.inFlight = static_cast<std::size_t>(number),
                .keepsGoing = _run.line().has("--keep-going")};
    return _run.line().has("--yes") || _run.canAsk()
               ? std::nullopt
               : Refusal(failureOf(ErrorCode::usage,
                                   localizedText("Nobody can be asked here. Write --yes if this is "
                                                 "meant.")));
}

Refusal TableRun::lookAtFiles() {
    if (const auto path = _run.line().valueOf("--report")) {
        _report = std::make_unique<OutputFile>(*path);
        if (auto refusal = CommandRun::refusalOfFile(*_report, _report->lookForReplacement())) {
            return refusal;
        }
    }
    return _journal.look();
}

Refusal TableRun::takeLock() {
    auto lock = _run.services().runLock.take();
    if (const auto* const refusal = std::get_if<RunLockRefusal>(&lock)) {
        return busy(*refusal);
    }
    _lock = std::get<std::unique_ptr<HeldRunLock>>(std::move(lock));
    return std::nullopt;
}

// A unit that has not answered yet is not silent.
void endInterruptedSearch(UnitPlan& plan) {
    for (PlannedRow& row : plan.rows) {
        if (row.state == RowState::silent) {
            endRow(row, RowState::untouched, {.objection = RowObjection::interrupted});
        }
    }
    leaveUntouched(plan, {.objection = RowObjection::interrupted});
}

// Journals of runs before tell where a unit may be that was cut off in the middle of a move, and
// which entries of the ARP cache lead astray.
Refusal TableRun::plan() {
    const std::vector<KeptJournal> before = journalsLeft(_journal.path());
    takeOutLeftEntries(_run, before);
    for (const KeptJournal& found : before) {
        _file.rows = resumedRows(std::move(_file.rows), found.journal.entries);
    }
    HeardUnits heard;
    if (auto refusal = findUnitsOfRows(_run, _file.rows, heard)) {
        return refusal;
    }
    _plan =
        planOfRows(_file.rows, heard, {.interfaces = _run.interfaces(), .asked = _run.chosen()});
    if (_run.isInterrupted()) {
        endInterruptedSearch(_plan);
    }
    leaveUntouchedIfRefused();
    return std::nullopt;
}

void TableRun::leaveUntouchedIfRefused() {
    if (_plan.hasObjections() && !_options.keepsGoing) {
        leaveUntouched(_plan, {.objection = RowObjection::othersRefused});
    }
}

// A person who is asked sees before that which addresses are held. The run looks again.
Refusal TableRun::ask() {
    if (_plan.sum(RowState::planned) == 0 || _run.line().has("--yes")) {
        return std::nullopt;
    }
    findHolders(_run, _plan, _run.services().probes);
    leaveUntouchedIfRefused();
    if (_run.isInterrupted() || _plan.sum(RowState::planned) == 0) {
        return std::nullopt;
    }
    const std::string question =
        localizedText("Change %d units, %d parameters in all? (y/n)",
                      {static_cast<long long>(_plan.sum(RowState::planned)),
                       static_cast<long long>(_plan.plannedChanges())});
    const auto answer =
        _run.ask(tableOfRows(_plan, false) + lineOfSums(_plan, PlanStage::planned) + question);
    if (answer == "y" || answer == "yes") {
        return std::nullopt;
    }
    leaveUntouched(_plan, {.objection = RowObjection::none});
    return Failure{ErrorCode::unchanged, localizedText("Nothing was changed."), exitNo};
}

Refusal TableRun::carryOut() {
    if (_plan.sum(RowState::planned) == 0) {
        return std::nullopt;
    }
    _journal.setSource(_file.path);
    const AddressMove::Services moveServices{
        .holders = {.neighbours = _run.services().neighbours, .probes = _run.services().probes},
        .bindings = _run.services().bindings};
    PlanRun carried(_run.exchange(), moveServices, _journal, std::move(_plan), _options);
    const auto begun = _run.services().now();
    _run.wait(
        carried,
        [&carried] {
            return std::to_string(carried.ended()) + '/' + std::to_string(carried.total());
        },
        [this, &carried, begun] {
            const std::string left =
                textOfTimeLeft(_run.services().now() - begun, carried.ended(), carried.total());
            return left.empty() ? left : "  " + left;
        });
    _plan = carried.plan();
    _journal.finish();
    return std::nullopt;
}

void TableRun::tellLeftEntries() {
    for (const PlannedRow& row : _plan.rows) {
        for (const UnitChange& change : row.changes) {
            if (row.isStillBound &&
                change.edit.edit.parameter == UnitParameter::internalIPAddress) {
                _run.warn("arp-entry", sentenceOfLeftEntry(change.to));
            }
        }
    }
}

Refusal TableRun::writeReport() {
    if (_report == nullptr || _plan.rows.empty()) {
        return std::nullopt;
    }
    const auto error = _report->replaceBy(reportOfFile(_file, rowsOfReport(_plan)));
    return error.has_value()
               ? Refusal(Failure{ErrorCode::file, sentenceOfFile(_report->path(), *error),
                                 exitCannotAsk})
               : std::nullopt;
}

// What became of the units weighs more than what became of the report.
int TableRun::report(Refusal refusal) {
    _run.document()["rows"] = jsonOfRows(_plan);
    _run.document()["sums"] = jsonOfSums(_plan, PlanStage::carriedOut);
    if (!_plan.rows.empty()) {
        _run.print(tableOfRows(_plan, _run.isBold()) + lineOfSums(_plan, PlanStage::carriedOut));
    }
    tellLeftEntries();
    if (!refusal.has_value()) {
        refusal = failureOfRows(_plan);
    }
    if (auto ofReport = writeReport()) {
        if (refusal.has_value()) {
            _run.warn("file", ofReport->message);
        } else {
            refusal = std::move(ofReport);
        }
    }
    return _run.finish(std::move(refusal));
}

int TableRun::perform(const RowsReader& readRows) {
    for (const auto& step : std::initializer_list<std::function<Refusal()>>{
             [this] { return readOptions(); }, [this, &readRows] { return readRows(_run, _file); },
             [this] { return lookAtFiles(); }, [this] { return _run.chooseInterfaces(); },
             [this] { return objectionToRows(_run, _file.rows); }, [this] { return takeLock(); },
             [this] { return _run.openExchange(); }, [this] { return plan(); },
             [this] { return ask(); }, [this] { return carryOut(); }}) {
        if (auto refusal = step()) {
            return report(std::move(refusal));
        }
    }
    return report(std::nullopt);
}

} // namespace

int runTable(CommandRun& run, const RowsReader& readRows) {
    return TableRun(run).perform(readRows);
}

} // namespace kx
