#include "conversation/UnitRestore.h"

#include "conversation/VerifiedCommand.h"
#include "units/UnitCommand.h"

#include <algorithm>
#include <utility>

namespace kx {

namespace {

constexpr int mostSends = 3;

// A restored unit may have got back another serial number or another hardware address, so it is the
// one that still has one of the two.
bool isSameUnit(const HeardUnit& left, const HeardUnit& right) {
    const bool hasSameHardware =
        !left.hardwareAddress().empty() && left.hardwareAddress() == right.hardwareAddress();
    return hasSameHardware || left.serialNumber() == right.serialNumber();
}

} // namespace

bool RestoredUnit::hasChanged() const {
    return after.has_value() &&
           (!(after->record == before.record) || after->unitIDBytes != before.unitIDBytes);
}

UnitRestore::UnitRestore(UnitExchange& exchange, const std::vector<HeardUnit>& units,
                         std::vector<UnitTarget> targets, std::vector<UnitTarget> everybody)
    : Listener(exchange)
    , _targets(std::move(targets))
    , _everybody(std::move(everybody)) {
    for (const HeardUnit& unit : units) {
        _units.push_back({.before = unit});
    }
}

void UnitRestore::start() {
    _begun = exchange().now();
    command();
    if (!_isSent) {
        end();
        return;
    }
    scheduleTry();
}

void UnitRestore::command() {
    ++_sends;
    for (const UnitTarget& target : _targets) {
        auto failure = exchange().send(restoreCommand, target);
        if (!failure.has_value()) {
            _isSent = true;
        } else if (_sends == 1) {
            _failure = std::move(failure);
        }
    }
}

void UnitRestore::ask() {
    for (const UnitTarget& target : _everybody) {
        exchange().send(parameterRequestCommand, target);
    }
}

void UnitRestore::scheduleTry() {
    const auto sinceBegin = exchange().now() - _begun;
    _nextTry = exchange().runLoop().callOnceAfter(readBackTries().at(_tries) - sinceBegin,
                                                  [this] { tryAgain(); });
}

void UnitRestore::tryAgain() {
    ++_tries;
    if (_tries == readBackTries().size()) {
        end();
        return;
    }
    if (!areAllAccepted() && _sends < mostSends) {
        command();
    }
    ask();
    scheduleTry();
}

bool UnitRestore::areAllAccepted() const {
    return std::ranges::all_of(_units, &RestoredUnit::isAccepted);
}

void UnitRestore::unitDidAnswer(const UnitAnswer& answer) {
    for (RestoredUnit& unit : _units) {
        if (answer.isAcknowledgement && _sends > 0 &&
            (answer.serialNumber == unit.before.serialNumber() ||
             answer.sender == unit.before.sender)) {
            unit.isAccepted = true;
        }
    }
}

// Answers that come at once may tell the values from before the command.
void UnitRestore::unitDidTell(const HeardUnit& told) {
    if (hasEnded() || _sends == 0 || exchange().now() - _begun < timeOfOldAnswers) {
        return;
    }
    for (RestoredUnit& unit : _units) {
        if (isSameUnit(unit.before, told)) {
            unit.after = told;
        }
    }
    endWhenAllAreRestored();
}

void UnitRestore::endWhenAllAreRestored() {
    if (std::ranges::all_of(_units, &RestoredUnit::isRestored)) {
        _nextTry.reset();
        end();
    }
}

} // namespace kx
