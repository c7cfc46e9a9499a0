#include "conversation/OptionCommand.h"

#include "units/UnitCommand.h"

#include <chrono>

namespace kx {

using namespace std::chrono_literals;

namespace {

constexpr auto timeForAnswers = 1000ms;

} // namespace

OptionCommand::OptionCommand(UnitExchange& exchange, const HeardUnit& unit, const std::string& text)
    : Listener(exchange)
    , _serialNumber(unit.serialNumber())
    , _target(unit.target())
    , _command(optionCommand(text)) {}

void OptionCommand::start() {
    _isSent = true;
    _failure = exchange().send(_command, _target);
    if (_failure.has_value()) {
        end();
        return;
    }
    _deadline = exchange().runLoop().callOnceAfter(timeForAnswers, [this] { end(); });
}

// An answer whose header tells no serial number is the unit's when it comes from its address.
void OptionCommand::unitDidAnswer(const UnitAnswer& answer) {
    const bool isFromUnit = answer.serialNumber.has_value() ? *answer.serialNumber == _serialNumber
                                                            : answer.sender == _target.address;
    if (_isSent && !hasEnded() && isFromUnit && !answer.bytes.empty()) {
        _answers.push_back(answer);
    }
}

} // namespace kx
