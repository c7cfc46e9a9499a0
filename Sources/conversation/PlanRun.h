// Carries the plan for many units out.
//
// Before the first command it is found out who holds each new IP address. When a row is refused or
// silent by then, nothing is sent, unless the run keeps going. Then one unit is changed alone, and
// after it several at once, each by UnitEdits: every command is read back. Nothing new begins after
// the first row that does not end as done, unless the run keeps going; the units under way are
// finished. A command whose outcome is not known is begun again (RunStep.h).
//
// A row begins when the rows that it waits for are done. It is refused when one of them is not.
// When nobody gave administrator rights for a move, no other move asks for them.
//
// A unit waits while this host has no room for its address (NeighbourRoom.h).
//
// Each command is in the journal before it is sent. A journal that fails ends the run.
//
// Threading and ownership: see Operation.h. The exchange, the services and the journal must outlive
// the run.

#pragma once

#include "conversation/AddressMove.h"
#include "conversation/NeighbourRoom.h"
#include "conversation/NewAddresses.h"
#include "conversation/Operation.h"
#include "conversation/RunJournal.h"
#include "conversation/UnitExchange.h"
#include "conversation/UnitPlan.h"

#include <cstddef>
#include <map>
#include <memory>
#include <set>
#include <vector>

namespace kx {

class NewAddressSearch;
class RunStep;

class PlanRun final : public Operation {
public:
    struct Options {
        std::size_t inFlight = 8; // units at once, after the first; 0 counts as 1
        bool keepsGoing = false;
    };

    PlanRun(UnitExchange& exchange, const AddressMove::Services& moveServices, RunJournal& journal,
            UnitPlan plan, Options options);
    ~PlanRun() override;

    // The rows in their states so far. When the run has ended, no row is planned any more.
    const UnitPlan& plan() const { return _plan; }

    // The number of rows that were planned, and how many of them have ended.
    std::size_t total() const { return _total; }
    std::size_t ended() const { return _total - _plan.sum(RowState::planned); }

    // Commands go to the unit of this row now.
    bool isUnderWay(std::size_t row) const { return _steps.contains(row); }

    // New addresses are being looked at; no command was sent.
    bool isSearching() const { return _search != nullptr; }

    // An entry of the journal could not be written.
    bool hasJournalFailed() const { return _hasJournalFailed; }

    // The first time, units under way are finished and no other one begins. The second time, a unit
    // under way gets no further command.
    void interrupt() override;

private:
    void start() override;
    bool endBeforeTheFirstCommand();
    void didSearch();
    void beginRows();
    void beginReady();
    void beginRow(std::size_t place);
    void didEnd(std::size_t place);
    RowObjection reasonToStop(const RunStep& step) const;
    void releaseWaiting(const PlannedRow& row);
    void releaseAddresses(const PlannedRow& row);
    void noteFailure(std::size_t place);
    void stop(RowReason reason);
    void finish();
    void interruptSteps();

    UnitExchange& _exchange;
    AddressMove::Services _moveServices;
    RunJournal& _journal;
    UnitPlan _plan;
    Options _options;
    std::size_t _total;
    std::unique_ptr<NewAddressSearch> _search;
    std::vector<NewAddress> _newAddresses; // in the order of the search
    std::vector<std::size_t> _ranks;       // of each row in the order of the plan
    std::vector<std::size_t> _openWaits;   // of each row, the rows before it that are not done
    std::set<std::size_t> _ready;          // ranks of rows that may begin
    NeighbourRoom _room;
    std::map<std::size_t, std::unique_ptr<RunStep>> _steps; // under way, by row
    RowReason _stopReason;
    RowReason _lackOfRights; // the first move that got no administrator rights
    bool _isStopping = false;
    bool _isInterrupted = false;
    bool _isBeginning = false;
    bool _isFirstOver = false;
    bool _hasJournalFailed = false;
    std::shared_ptr<int> _isAlive = std::make_shared<int>();
};

} // namespace kx
