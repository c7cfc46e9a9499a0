// One row of a plan as it is carried out: the edits of its unit, each in the journal before its
// command goes out.
//
// Threading and ownership: see Operation.h. The exchange, the services and the journal must outlive
// the step.

#pragma once

#include "conversation/AddressMove.h"
#include "conversation/Operation.h"
#include "conversation/PlannedRow.h"
#include "conversation/RunJournal.h"
#include "conversation/UnitEdits.h"
#include "conversation/UnitExchange.h"

#include <memory>
#include <optional>
#include <string>

namespace kx {

class RunStep final : public Operation, private EditWitness {
public:
    // A command is begun so many times in all. Where a third of all datagrams gets lost, one of
    // twelve commands has no outcome the first time, and one of 250,000 the fifth time.
    static constexpr int attempts = 5;

    // The new address of a row that has one must be free.
    RunStep(UnitExchange& exchange, const AddressMove::Services& moveServices, RunJournal& journal,
            const PlannedRow& row, const HeardUnit& unit);
    ~RunStep() override;

    const UnitEdits& edits() const { return *_edits; }

    // A command was not sent, because it could not be written to the journal.
    bool hasJournalFailed() const { return _hasJournalFailed; }

    // The command under way is read back, and no other one is sent.
    void interrupt() override;

private:
    void start() override;
    void commandWillGo(const HeardUnit& unit, const UnitChange& change, Answer answer) override;
    void changeDidEnd(const HeardUnit& unit, const UnitChange& change) override;
    void bindingWillBeMade(const std::string& address, const std::string& hardwareAddress,
                           Answer answer) override;
    void bindingIsGone(const std::string& address, const std::string& hardwareAddress) override;
    void write(const JournalEntry& entry, Answer answer);
    JournalledUnit journalled(const HeardUnit& unit) const;

    RunJournal& _journal;
    std::size_t _line;
    std::string _rowSerialNumber;
    std::optional<UnitIDBytes> _firstUnitID;
    AddressMove::Services _moveServices;
    std::unique_ptr<UnitEdits> _edits;
    bool _hasJournalFailed = false;
    std::shared_ptr<int> _isAlive = std::make_shared<int>(); // the journal may answer after this
};

} // namespace kx
