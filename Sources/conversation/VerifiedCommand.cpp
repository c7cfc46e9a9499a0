#include "conversation/VerifiedCommand.h"

#include "units/UnitCommand.h"

#include <algorithm>
#include <utility>

namespace kx {

namespace {

constexpr int mostSends = 3;

} // namespace

VerifiedCommand::VerifiedCommand(UnitExchange& exchange, CommandPlan plan)
    : Listener(exchange)
    , _plan(std::move(plan)) {}

void VerifiedCommand::start() {
    _begun = exchange().now();
    ++_sends;
    _failure = exchange().send(_plan.command, _plan.target);
    if (_failure.has_value()) {
        finish(CommandOutcome::notSent);
        return;
    }
    scheduleTry();
}

void VerifiedCommand::scheduleTry() {
    const auto sinceCommand = exchange().now() - _begun;
    _nextTry = exchange().runLoop().callOnceAfter(readBackTries().at(_tries) - sinceCommand,
                                                  [this] { tryAgain(); });
}

void VerifiedCommand::tryAgain() {
    ++_tries;
    if (_tries == readBackTries().size()) {
        finish(_shown.has_value() ? CommandOutcome::other : CommandOutcome::silent);
        return;
    }
    if (!_isAccepted && _sends < mostSends) {
        ++_sends;
        exchange().send(_plan.command, _plan.target); // the next try sends it again
    }
    ask();
    if (_tries > 1) {
        for (const UnitTarget& target : _plan.askedLater) {
            exchange().send(parameterRequestCommand, target);
        }
    }
    scheduleTry();
}

void VerifiedCommand::ask() {
    for (const UnitTarget& target : _plan.asked) {
        exchange().send(parameterRequestCommand, target);
    }
}

void VerifiedCommand::unitDidTell(const HeardUnit& unit) {
    if (hasEnded() || _sends == 0 || !_plan.isFromUnit(unit)) {
        return;
    }
    const auto sinceCommand = exchange().now() - _begun;
    if (_plan.isWanted(unit)) {
        _shown = unit;
        finish(CommandOutcome::shown);
    } else if (sinceCommand >= timeOfOldAnswers) {
        _shown = unit;
    }
}

void VerifiedCommand::unitDidAnswer(const UnitAnswer& answer) {
    const bool isFromUnit =
        answer.serialNumber.has_value() &&
        std::ranges::find(_plan.serialNumbers, *answer.serialNumber) != _plan.serialNumbers.end();
    if (hasEnded() || _sends == 0 || _isAccepted || !answer.isAcknowledgement || !isFromUnit) {
        return;
    }
    _isAccepted = true;
    ask();
}

void VerifiedCommand::finish(CommandOutcome outcome) {
    _outcome = outcome;
    _nextTry.reset();
    end();
}

} // namespace kx
