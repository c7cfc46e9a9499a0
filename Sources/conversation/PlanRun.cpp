#include "conversation/PlanRun.h"

#include "addresses/IPv4Address.h"
#include "conversation/NewAddressSearch.h"
#include "conversation/RowOutcome.h"
#include "conversation/RunStep.h"

#include <algorithm>
#include <utility>

namespace kx {

namespace {

// Nobody gives rights the second time either, and every move asks for them.
bool isWithoutRights(const RowReason& reason) {
    return reason.objection == RowObjection::notBound &&
           (reason.entry.state == ARPEntryState::rightsNotGiven ||
            reason.entry.state == ARPEntryState::dismissed ||
            reason.entry.state == ARPEntryState::cannotRun);
}

} // namespace

PlanRun::PlanRun(UnitExchange& exchange, const AddressMove::Services& moveServices,
                 RunJournal& journal, UnitPlan plan, Options options)
    : _exchange(exchange)
    , _moveServices(moveServices)
    , _journal(journal)
    , _plan(std::move(plan))
    , _options(options)
    , _total(_plan.sum(RowState::planned))
    , _room(exchange.runLoop(), moveServices.holders.neighbours) {}

PlanRun::~PlanRun() = default;

void PlanRun::start() {
    if (endBeforeTheFirstCommand()) {
        return;
    }
    _newAddresses = newAddressesOf(_plan);
    if (_newAddresses.empty()) {
        beginRows();
        return;
    }
    _search = std::make_unique<NewAddressSearch>(_exchange, _moveServices.holders,
                                                 questionsAbout(_newAddresses));
    _search->begin([this] { didSearch(); });
}

// Without an objection the run goes on.
bool PlanRun::endBeforeTheFirstCommand() {
    if (_options.keepsGoing || !_plan.hasObjections()) {
        return false;
    }
    stop({.objection = RowObjection::othersRefused});
    finish();
    return true;
}

void PlanRun::didSearch() {
    const auto ended = std::move(_search);
    if (_isStopping) {
        finish();
        return;
    }
    for (std::size_t i = 0; i < _newAddresses.size(); ++i) {
        noteHolders(_plan, _newAddresses[i].row, ended->results()[i]);
    }
    if (!endBeforeTheFirstCommand()) {
        beginRows();
    }
}

void PlanRun::beginRows() {
    _ranks.resize(_plan.rows.size());
    _openWaits.resize(_plan.rows.size());
    for (std::size_t rank = 0; rank < _plan.order.size(); ++rank) {
        const std::size_t place = _plan.order[rank];
        _ranks[place] = rank;
        _openWaits[place] = _plan.rows[place].after.size();
        if (_openWaits[place] == 0) {
            _ready.insert(rank);
        }
    }
    beginReady();
}

// A row may end before the call that begins it returns; the loop then goes on.
void PlanRun::beginReady() {
    if (std::exchange(_isBeginning, true)) {
        return;
    }
    const auto limit = [this] {
        return _isFirstOver ? std::max(_options.inFlight, std::size_t{1}) : std::size_t{1};
    };
    while (!_isStopping && !_ready.empty() && _steps.size() < limit() &&
           _room.takePlace([this] { beginReady(); })) {
        const std::size_t place = _plan.order[*_ready.begin()];
        _ready.erase(_ready.begin());
        if (_plan.rows[place].state == RowState::planned) {
            beginRow(place);
        }
    }
    _isBeginning = false;
    if (_steps.empty() && (_isStopping || !_room.isAwaited())) {
        finish();
    }
}

void PlanRun::beginRow(std::size_t place) {
    PlannedRow& row = _plan.rows[place];
    if (_lackOfRights.objection != RowObjection::none && newAddressOf(row) != 0) {
        endRow(row, RowState::refused, _lackOfRights);
        refuseWaiting(_plan, place);
    } else if (const auto& unit = row.unit) {
        const auto step = _steps.emplace(
            place, std::make_unique<RunStep>(_exchange, _moveServices, _journal, row, *unit));
        step.first->second->begin([this, place] { didEnd(place); });
    }
}

void PlanRun::didEnd(std::size_t place) {
    const auto step = _steps.extract(place);
    const RunStep& ended = *step.mapped();
    _isFirstOver = true;
    if (ended.hasJournalFailed()) {
        _hasJournalFailed = true;
        stop({.objection = RowObjection::journalFailed});
    }
    PlannedRow& row = _plan.rows[place];
    endRowByEdits(row, ended.edits(), reasonToStop(ended));
    releaseAddresses(row);
    if (row.state == RowState::done) {
        releaseWaiting(row);
    } else if (row.state != RowState::untouched) {
        noteFailure(place);
    }
    beginReady();
}

// Why a row gets no further command.
RowObjection PlanRun::reasonToStop(const RunStep& step) const {
    if (step.hasJournalFailed()) {
        return RowObjection::journalFailed;
    }
    return _isInterrupted ? RowObjection::interrupted : _stopReason.objection;
}

void PlanRun::releaseWaiting(const PlannedRow& row) {
    for (const std::size_t waiting : row.waiting) {
        if (--_openWaits[waiting] == 0) {
            _ready.insert(_ranks[waiting]);
        }
    }
}

// The one that the unit had, and the one that it has got.
void PlanRun::releaseAddresses(const PlannedRow& row) {
    if (const auto& unit = row.unit) {
        _room.release(unit->target().address, unit->link);
    }
    for (const UnitChange& change : row.changes) {
        if (row.unit.has_value() &&
            change.edit.edit.parameter == UnitParameter::internalIPAddress) {
            _room.release(ipForString(change.to), row.unit->link);
        }
    }
}

void PlanRun::noteFailure(std::size_t place) {
    const PlannedRow& row = _plan.rows[place];
    refuseWaiting(_plan, place);
    if (isWithoutRights(row.reason)) {
        _lackOfRights = row.reason;
    }
    if (!_options.keepsGoing) {
        stop({.objection = RowObjection::othersFailed, .otherLine = row.line});
    }
}

// The first reason counts.
void PlanRun::stop(RowReason reason) {
    if (!std::exchange(_isStopping, true)) {
        _stopReason = std::move(reason);
    }
}

void PlanRun::finish() {
    _room.stopWaiting();
    leaveUntouched(_plan, _stopReason);
    end();
}

void PlanRun::interrupt() {
    const bool isFirst = !std::exchange(_isInterrupted, true);
    stop({.objection = RowObjection::interrupted});
    if (_search != nullptr) {
        _search->interrupt(); // the run may be gone now
    } else if (_steps.empty() && _room.isAwaited()) {
        beginReady(); // nothing is under way, so the run ends
    } else if (!isFirst) {
        interruptSteps();
    }
}

// Each may end, and the last one ends the run.
void PlanRun::interruptSteps() {
    std::vector<std::size_t> places;
    places.reserve(_steps.size());
    for (const auto& [place, step] : _steps) {
        places.push_back(place);
    }
    const std::weak_ptr<int> isAlive = _isAlive;
    for (const std::size_t place : places) {
        if (isAlive.expired()) {
            return;
        }
        const auto step = _steps.find(place);
        if (step != _steps.end()) {
            step->second->interrupt();
        }
    }
}

} // namespace kx
