#include "conversation/EditOutcome.h"

#include <utility>

namespace kx {

EditOutcome::EditOutcome(ParameterEdit edit, Unit unit, std::optional<SendFailure> failure)
    : _edit(std::move(edit))
    , _unit(std::move(unit))
    , _state(failure.has_value() ? EditState::notSent : EditState::pending)
    , _failure(std::move(failure)) {}

bool EditOutcome::unitDidAccept(std::string_view serialNumber,
                                std::optional<SendFailure> requestFailure) {
    const bool isNewNumber = _edit.parameter == UnitParameter::serialNumber &&
                             serialNumber == _edit.expectedText && !_unit.newSerialNumberIsTaken;
    const bool isFirst = !_hasAccepted || (_state == EditState::accepted && _requestFailure &&
                                           !requestFailure.has_value());
    if (_state == EditState::notSent || !isFirst ||
        (serialNumber != _unit.serialNumber && !isNewNumber)) {
        return false;
    }
    _hasAccepted = true;
    _state = EditState::accepted;
    _requestFailure = std::move(requestFailure);
    return true;
}

bool EditOutcome::otherUnitDidAccept(std::string_view serialNumber, std::uint32_t sender) {
    const bool isOwnNewNumber =
        _edit.parameter == UnitParameter::serialNumber && serialNumber == _edit.expectedText;
    if (_state == EditState::notSent || serialNumber == _unit.serialNumber || isOwnNewNumber ||
        serialNumber == _otherUnit || sender == 0 || sender != _unit.address) {
        return false;
    }
    _otherUnit = serialNumber;
    return true;
}

bool EditOutcome::setPatienceIsOver(bool isOver) {
    return std::exchange(_isPatienceOver, isOver) != isOver && _state == EditState::pending;
}

bool EditOutcome::unitDidTell(std::string_view serialNumber, const UnitRecord& record) {
    if (_state == EditState::notSent || !isFromUnit(serialNumber, record)) {
        return false;
    }
    const auto found = record.value(_edit.parameter);
    if (!found.has_value()) {
        _shownValue.reset();
        _state = EditState::notReported;
        return true;
    }
    _shownValue = withoutTrailingZeroBytes(*found);
    _state = _shownValue == _edit.expectedText ? EditState::shown
             : found == _unit.valueBefore      ? EditState::unchanged
                                               : EditState::different;
    return true;
}

bool EditOutcome::isFromUnit(std::string_view serialNumber, const UnitRecord& record) const {
    if (serialNumber == _unit.serialNumber) {
        return true;
    }
    if (_edit.parameter != UnitParameter::serialNumber || serialNumber != _edit.expectedText) {
        return false;
    }
    const auto hardwareAddress = record.value(UnitParameter::internalMACAddress);
    return hardwareAddress.has_value() && _unit.hardwareAddress.has_value()
               ? hardwareAddress == _unit.hardwareAddress
               : !_unit.newSerialNumberIsTaken;
}

} // namespace kx
