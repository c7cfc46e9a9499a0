#include "conversation/UnitEdits.h"

#include "addresses/IPv4Address.h"
#include "units/UnitCommand.h"

#include <algorithm>
#include <utility>

namespace kx {

namespace {

// The place of a parameter in the order of the steps. 0 for those that may stand in any order.
int rankOf(UnitParameter parameter) {
    switch (parameter) {
    case UnitParameter::devicePortNumber:
        return 1;
    case UnitParameter::internalMACAddress:
        return 2;
    case UnitParameter::internalIPAddress:
        return 3;
    case UnitParameter::serialNumber:
        return 4;
    default:
        return 0;
    }
}

std::optional<std::string> shownText(const HeardUnit& unit, UnitParameter parameter) {
    return shownText(unit.record, unit.unitIDBytes, parameter);
}

// The two may be one unit: the texts are equal, or one of them is not known.
bool agree(std::string_view left, std::string_view right) {
    return left.empty() || right.empty() || left == right;
}

} // namespace

std::vector<UnitChange> changesOfUnit(const HeardUnit& unit, const std::vector<ExactEdit>& edits) {
    std::vector<UnitChange> changes;
    for (const ExactEdit& edit : edits) {
        const ParameterEdit& plain = edit.edit;
        changes.push_back({.edit = edit,
                           .from = shownText(unit, plain.parameter),
                           .to = plain.expectedText.value_or(plain.value),
                           .command = plain.command,
                           .state = edit.isShownBy(unit.record, unit.unitIDBytes)
                                        ? ChangeState::unchanged
                                        : ChangeState::planned});
    }
    return changes;
}

UnitEdits::UnitEdits(UnitExchange& exchange, const AddressMove::Services* moveServices,
                     const HeardUnit& unit, std::vector<UnitChange> changes, UnitTarget elsewhere,
                     Options options)
    : Listener(exchange)
    , _moveServices(moveServices)
    , _unit(unit)
    , _firstHardwareAddress(_unit.hardwareAddress())
    , _changes(std::move(changes))
    , _target(_unit.target())
    , _elsewhere(elsewhere)
    , _options(std::move(options)) {}

UnitEdits::~UnitEdits() = default;

void UnitEdits::interrupt() {
    _isInterrupted = true;
    if (_search != nullptr && !_search->hasEnded()) {
        _search->interrupt(); // the edits may be gone now
    } else if (_move != nullptr && !_move->hasEnded()) {
        _move->interrupt();
    }
}

void UnitEdits::start() {
    const auto move = std::ranges::find_if(_changes, [](const UnitChange& change) {
        return change.state == ChangeState::planned &&
               change.edit.edit.parameter == UnitParameter::internalIPAddress;
    });
    if (move == _changes.end() || _moveServices == nullptr) {
        beginNext();
    } else if (const auto& known = _options.holders) {
        beginWithHolders(*move, *known);
    } else {
        findHolders(*move);
    }
}

void UnitEdits::findHolders(UnitChange& change) {
    const AddressQuestion question{.address = ipForString(change.edit.edit.typed),
                                   .link = _target.link};
    _search =
        std::make_unique<HolderSearch>(exchange(), _moveServices->holders, std::vector{question});
    _search->begin([this, &change] {
        const AddressHolders holders = _search->results().front();
        _options.holders = holders;
        beginWithHolders(change, holders);
    });
}

// A move at an address that is not free ends before its command, so it goes first.
void UnitEdits::beginWithHolders(UnitChange& change, const AddressHolders& holders) {
    if (!_isInterrupted && !isFreeFor(holders, _unit.hardwareAddress())) {
        beginMove(change);
    } else {
        beginNext();
    }
}

UnitChange* UnitEdits::nextChange() {
    UnitChange* next = nullptr;
    for (UnitChange& change : _changes) {
        if (change.state == ChangeState::planned &&
            (next == nullptr ||
             rankOf(change.edit.edit.parameter) < rankOf(next->edit.edit.parameter))) {
            next = &change;
        }
    }
    return next;
}

void UnitEdits::beginNext() {
    UnitChange* const change = nextChange();
    if (change == nullptr || _isInterrupted || _isAmbiguous) {
        endRefused();
        return;
    }
    _attempts = 0;
    if (_options.witness != nullptr) {
        announce(*change);
    } else {
        beginChange(*change);
    }
}

void UnitEdits::announce(UnitChange& change) {
    _options.witness->commandWillGo(
        _unit, change, [this, &change, isAlive = std::weak_ptr(_isAlive)](bool mayGoOn) {
            if (isAlive.expired()) {
                return;
            }
            if (mayGoOn && !_isInterrupted && !_isAmbiguous) {
                beginChange(change);
            } else {
                endRefused();
            }
        });
}

void UnitEdits::beginChange(UnitChange& change) {
    ++_attempts;
    if (change.edit.edit.parameter == UnitParameter::internalIPAddress) {
        beginMove(change);
    } else {
        beginCommand(change);
    }
}

void UnitEdits::beginCommand(UnitChange& change) {
    _command = std::make_unique<VerifiedCommand>(exchange(), planOf(change));
    _command->begin([this, &change] {
        // The next command replaces the one whose end this is.
        const auto ended = std::move(_command);
        noteOutcome(change, *ended);
        if (mayBeginAgain(change, *ended)) {
            beginChange(change);
        } else {
            endChange(change);
        }
    });
}

// The command, or all answers to it, may have been lost.
bool UnitEdits::mayBeginAgain(const UnitChange& change, const VerifiedCommand& command) {
    if (_attempts >= _options.attempts || _isInterrupted || _isAmbiguous) {
        return false;
    }
    const auto& shown = command.shown();
    return command.outcome() == CommandOutcome::silent ||
           (command.outcome() == CommandOutcome::other && !command.isAccepted() &&
            shown.has_value() && shownText(*shown, change.edit.edit.parameter) == change.from);
}

void UnitEdits::endChange(UnitChange& change) {
    const bool mayGoOn =
        change.state == ChangeState::done ||
        (change.state == ChangeState::different && rankOf(change.edit.edit.parameter) == 0);
    if (!mayGoOn) {
        refuseRest();
    }
    if (_options.witness != nullptr) {
        _options.witness->changeDidEnd(_unit, change);
    }
    beginNext();
}

void UnitEdits::endRefused() {
    refuseRest();
    end();
}

void UnitEdits::refuseRest() {
    for (UnitChange& change : _changes) {
        if (change.state == ChangeState::planned) {
            change.state = ChangeState::refused;
        }
    }
}

CommandPlan UnitEdits::planOf(const UnitChange& change) const {
    const UnitParameter parameter = change.edit.edit.parameter;
    CommandPlan plan;
    plan.command = change.command;
    plan.target = _target;
    plan.asked = {plan.target};
    plan.askedLater = {_elsewhere};
    plan.serialNumbers = {std::string(_unit.serialNumber())};
    if (parameter == UnitParameter::serialNumber) {
        plan.serialNumbers.push_back(change.to);
    }
    // The unit takes commands on its new port as soon as it has taken it.
    if (parameter == UnitParameter::devicePortNumber && change.edit.edit.expectedText) {
        UnitTarget target = plan.target;
        target.port = unitPortForText(change.edit.edit.expectedText);
        plan.asked.push_back(target);
    }
    plan.isFromUnit = [serials = plan.serialNumbers, parameter,
                       hardware = std::string(_unit.hardwareAddress()),
                       newHardware = change.to](const HeardUnit& unit) {
        const bool isNewHardware =
            parameter == UnitParameter::internalMACAddress && unit.hardwareAddress() == newHardware;
        return std::ranges::find(serials, unit.serialNumber()) != serials.end() &&
               (isNewHardware || agree(unit.hardwareAddress(), hardware));
    };
    plan.isWanted = [edit = change.edit](const HeardUnit& unit) {
        return edit.isShownBy(unit.record, unit.unitIDBytes);
    };
    return plan;
}

void UnitEdits::beginMove(UnitChange& change) {
    if (_moveServices == nullptr) {
        endRefused();
        return;
    }
    _move = std::make_unique<AddressMove>(
        exchange(), *_moveServices, ipForString(change.edit.edit.typed),
        std::string(_unit.hardwareAddress()), planOf(change), _options.holders);
    _move->begin([this, &change] { didMove(change); });
}

void UnitEdits::noteTarget(const UnitChange& change, const HeardUnit& shown) {
    _target.link = shown.link;
    if (change.edit.edit.parameter == UnitParameter::devicePortNumber) {
        _target.port = shown.target().port;
    } else if (change.edit.edit.parameter == UnitParameter::internalIPAddress) {
        _target.address = ipForString(change.edit.edit.typed);
    }
}

void UnitEdits::noteOutcome(UnitChange& change, const VerifiedCommand& command) {
    if (const auto& shown = command.shown()) {
        _unit = *shown;
        change.shown = shownText(*shown, change.edit.edit.parameter);
    }
    switch (command.outcome()) {
    case CommandOutcome::shown:
        change.state = ChangeState::done;
        noteTarget(change, _unit);
        break;
    case CommandOutcome::other:
        change.state = ChangeState::different;
        break;
    case CommandOutcome::silent:
        change.state = ChangeState::silent;
        break;
    case CommandOutcome::notSent:
        _failure = command.failure(); // the state tells what became of an earlier attempt
        break;
    }
}

void UnitEdits::didMove(UnitChange& change) {
    if (_move->command() != nullptr) {
        noteOutcome(change, *_move->command());
    } else if (_sentMove != nullptr) {
        _move = std::move(_sentMove); // its command counts
        endChange(change);
        return;
    }
    const bool isUnanswered =
        _move->state() == MoveState::foreignAnswer && _move->foreignHardwareAddress().empty();
    if (_move->command() != nullptr &&
        (mayBeginAgain(change, *_move->command()) ||
         (isUnanswered && _attempts < _options.attempts && !_isInterrupted))) {
        _sentMove = std::move(_move);
        beginChange(change);
        return;
    }
    // Whoever answers for the address would get the next command.
    if (_move->state() == MoveState::foreignAnswer) {
        refuseRest();
    }
    endChange(change);
}

void UnitEdits::unitDidTell(const HeardUnit& unit) {
    const auto isNewHardware = [&unit](const UnitChange& change) {
        return change.edit.edit.parameter == UnitParameter::internalMACAddress &&
               change.to == unit.hardwareAddress();
    };
    if (unit.serialNumber() == _unit.serialNumber() &&
        !agree(unit.hardwareAddress(), _unit.hardwareAddress()) &&
        unit.hardwareAddress() != _firstHardwareAddress &&
        std::ranges::none_of(_changes, isNewHardware)) {
        _isAmbiguous = true;
    }
}

} // namespace kx
