#include "conversation/RunStep.h"

#include "addresses/IPv4Address.h"

#include <algorithm>
#include <utility>

namespace kx {

namespace {

std::optional<AddressHolders> freeAddressOf(const PlannedRow& row) {
    for (const UnitChange& change : row.changes) {
        if (change.edit.edit.parameter == UnitParameter::internalIPAddress) {
            return AddressHolders{.address = ipForString(change.edit.edit.typed),
                                  .state = HolderState::free,
                                  .holders = {}};
        }
    }
    return std::nullopt;
}

} // namespace

// A broadcast from the second try on would make every unit of a large network answer, so only the
// unit's old address is asked besides.
RunStep::RunStep(UnitExchange& exchange, const AddressMove::Services& moveServices,
                 RunJournal& journal, const PlannedRow& row, const HeardUnit& unit)
    : _journal(journal)
    , _line(row.line)
    , _rowSerialNumber(row.serialNumber)
    , _firstUnitID(unit.unitIDBytes)
    , _moveServices{.holders = moveServices.holders,
                    .bindings = moveServices.bindings,
                    .witness = this}
    , _edits(std::make_unique<UnitEdits>(exchange, &_moveServices, unit, row.changes, unit.target(),
                                         UnitEdits::Options{.witness = this,
                                                            .holders = freeAddressOf(row),
                                                            .attempts = attempts})) {}

RunStep::~RunStep() = default;

void RunStep::start() {
    _edits->begin([this] { end(); });
}

void RunStep::interrupt() {
    _edits->interrupt();
}

JournalledUnit RunStep::journalled(const HeardUnit& unit) const {
    return {.line = _line,
            .rowSerialNumber = _rowSerialNumber,
            .serialNumber = std::string(unit.serialNumber()),
            .hardwareAddress = std::string(unit.hardwareAddress())};
}

void RunStep::commandWillGo(const HeardUnit& unit, const UnitChange& change, Answer answer) {
    const UnitParameter parameter = change.edit.edit.parameter;
    write(JournalledCommand{.unit = journalled(unit),
                            .parameter = parameter,
                            .from = change.from,
                            .fromUnitID =
                                parameter == UnitParameter::unitID ? _firstUnitID : std::nullopt,
                            .to = change.to,
                            .command = change.command},
          std::move(answer));
}

void RunStep::changeDidEnd(const HeardUnit& unit, const UnitChange& change) {
    write(JournalledOutcome{.unit = journalled(unit),
                            .parameter = change.edit.edit.parameter,
                            .state = change.state,
                            .shown = change.shown},
          {});
}

void RunStep::bindingWillBeMade(const std::string& address, const std::string& hardwareAddress,
                                Answer answer) {
    write(JournalledBinding{.address = address, .hardwareAddress = hardwareAddress, .isMade = true},
          std::move(answer));
}

void RunStep::bindingIsGone(const std::string& address, const std::string& hardwareAddress) {
    write(
        JournalledBinding{.address = address, .hardwareAddress = hardwareAddress, .isMade = false},
        {});
}

// Nothing of this object is used behind the answer, which may be its end.
void RunStep::write(const JournalEntry& entry, Answer answer) {
    _journal.write(entry, [this, answer = std::move(answer),
                           isAlive = std::weak_ptr(_isAlive)](bool isOnDisk) {
        if (isAlive.expired()) {
            return;
        }
        _hasJournalFailed = _hasJournalFailed || !isOnDisk;
        if (answer) {
            answer(isOnDisk);
        }
    });
}

} // namespace kx
