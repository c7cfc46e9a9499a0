#include "conversation/RequestOutcome.h"

#include <utility>

namespace kx {

RequestOutcome::RequestOutcome(RequestKind kind, std::string command, RequestTarget target,
                               std::optional<std::string> unit)
    : _kind(kind)
    , _command(std::move(command))
    , _target(target)
    , _unit(std::move(unit)) {}

bool RequestOutcome::unitDidAccept(std::string_view serialNumber, std::uint32_t sender) {
    return _kind != RequestKind::reload && count(serialNumber, sender);
}

bool RequestOutcome::unitDidTell(std::string_view serialNumber, std::uint32_t sender) {
    return _kind == RequestKind::reload && count(serialNumber, sender);
}

bool RequestOutcome::unitDidAnswer(std::string_view serialNumber, std::uint32_t sender,
                                   std::string text) {
    if (_kind != RequestKind::optionCommand) {
        return false;
    }
    const bool isCounted = count(serialNumber, sender);
    if (!isCounted && !_answered.contains(std::string(serialNumber))) {
        return false;
    }
    _answer = std::move(text);
    return true;
}

// Whether this is the first answer of a unit that counts.
bool RequestOutcome::count(std::string_view serialNumber, std::uint32_t sender) {
    const bool isUnit = serialNumber == _unit;
    if (isForOneUnit() && !isUnit && sender != _target.address) {
        return false;
    }
    if (_answered.size() >= mostUnits || !_answered.emplace(serialNumber).second) {
        return false;
    }
    if (isUnit) {
        _hasUnitAnswered = true;
    } else if (isForOneUnit()) {
        _otherUnit = serialNumber;
    }
    return true;
}

bool RequestOutcome::patienceDidEnd() {
    _isPatienceOver = true;
    return _answered.empty();
}

} // namespace kx
