#include "KXConfigAppDelegate.h"
#include "addresses/IPv4Address.h"
#include "words/EditForecast.h"
#include "words/HolderText.h"
#include "words/RequestTargetText.h"
#include "words/SendFailureText.h"

namespace kx {

using namespace std::chrono_literals;

void KXConfigAppDelegate::editTextDidChange(std::string_view text) {
    if (text != _textBeingTyped.value_or(editedValue())) {
        _textBeingTyped = text;
        _returnWasPressed = false;
        showForecast();
    }
}

void KXConfigAppDelegate::editTextWasKept() {
    _returnWasPressed = true;
    refreshForecast();
}

void KXConfigAppDelegate::pointAtRequest(std::optional<RequestKind> button) {
    _pointedAt = button;
    const RequestTarget target = _shownTarget.value_or(RequestTarget());
    _quietLine.setHint(button == RequestKind::reload    ? descriptionOfReload(target)
                       : button == RequestKind::restore ? descriptionOfRestore(target)
                                                        : "");
}

// The host's addresses are read when a person does something and when a discovery is complete, not
// with each reply: anybody can send replies, and reading takes time.
void KXConfigAppDelegate::lookAtTarget() {
    _broadcastAddresses.clear();
    _knownNetwork = {};
    if (_services.networkInterfaces != nullptr) {
        NetworkInterfaces& interfaces = *_services.networkInterfaces;
        _knownNetwork.own = addressesOfHost(interfaces);
        _broadcastAddresses = broadcastAddressesOf(_knownNetwork.own);
        const auto chosen = chosenInterface();
        const std::string name = chosen.has_value()
                                     ? chosen->name
                                     : _services.systemCalls.nameForLink(linkOfSelectedUnit());
        _knownNetwork.subnets =
            name.empty() ? _knownNetwork.own : addressesOfInterface(interfaces, name);
    }
    // Those of the choice are used, also when the interface has others by now. In a subnet of two
    // addresses the other one is that of a single host.
    if (const auto chosen = broadcastAddressOf({.address = localAddress, .mask = localMask})) {
        _broadcastAddresses.push_back(*chosen);
    }
    showTarget();
}

void KXConfigAppDelegate::showTarget() {
    const RequestTarget target =
        targetOfRequest(_selectedUnit.has_value(), selectedRecord(), _broadcastAddresses);
    if (_shownTarget == target) {
        return;
    }
    _shownTarget = target;
    _quietLine.setWarning(warningOfTarget(target));
    _outlets.reloadButton->setDescription(descriptionOfReload(target));
    _outlets.restoreButton->setDescription(descriptionOfRestore(target));
    if (_quietLine.hasHint()) {
        pointAtRequest(_pointedAt);
    }
}

CommandTarget KXConfigAppDelegate::commandTarget() const {
    return {.unitIsSelected = _selectedUnit.has_value(),
            .address = selectedText(UnitParameter::internalIPAddress),
            .hardwareAddress = selectedText(UnitParameter::internalMACAddress),
            .isListening = _session.isListening()};
}

KnownNetwork KXConfigAppDelegate::knownNetwork(const ParameterEdit& edit) {
    KnownNetwork known = _knownNetwork;
    const std::uint32_t address = edit.parameter == UnitParameter::internalIPAddress
                                      ? ipForString(edit.value)
                                      : std::uint32_t{0};
    if (address == 0) {
        _listedHolder.reset();
    } else {
        _listedHolder.seek(_devicesD, address, _selectedUnit);
    }
    known.isHeldByAnotherUnit = _listedHolder.serialNumber().has_value();
    return known;
}

CommandTarget
KXConfigAppDelegate::targetOfEdit(const std::variant<ParameterEdit, EditRefusal>& edit) {
    CommandTarget target = commandTarget();
    const auto* const planned = std::get_if<ParameterEdit>(&edit);
    if (planned == nullptr) {
        return target;
    }
    target.newSerialNumberIsTaken = newSerialNumberIsTaken(*planned);
    if (planned->parameter == UnitParameter::internalIPAddress) {
        target.objectionToARPEntry = objectionToARPEntry(target.hardwareAddress, planned->typed);
    }
    target.trouble = troubleOfEdit(*planned, knownNetwork(*planned));
    target.holderOfAddress = _listedHolder.serialNumber().value_or("");
    const bool isAnotherUnit = _unitOfRow.has_value() && _selectedUnit != _unitOfRow;
    target.unitInPlaceOfRow = isAnotherUnit ? _selectedUnit : std::nullopt;
    target.returnWasPressed = _returnWasPressed;
    return target;
}

QuietLine::Forecast KXConfigAppDelegate::forecast() {
    const auto parameter = editedParameter();
    if (!parameter.has_value()) {
        return {};
    }
    const auto edit = editOfParameter(*parameter, _textBeingTyped.value_or(editedValue()));
    CommandTarget target = targetOfEdit(edit);
    bool isTrouble = meansTrouble(edit, target);
    std::string holder;
    const auto* const holders = _holderLookup.resultOf(questionOfHolder());
    const bool isHeld = holders != nullptr && holders->state == HolderState::held;
    if (isHeld && target.trouble == EditTrouble::addressOfAnotherUnit) {
        target.trouble = EditTrouble::none; // the sentence about the holder says more
    }
    // A unit that has told the address and is silent now makes it no free one.
    if (holders != nullptr && target.trouble == EditTrouble::none) {
        holder = ' ' + textOfHolders(*holders);
        isTrouble = isTrouble || isHeld;
    }
    return {.text = forecastOfEdit(edit, target) + holder, .meansTrouble = isTrouble};
}

// An address that the unit tells already is none to ask for.
std::optional<AddressQuestion> KXConfigAppDelegate::questionOfHolder() const {
    const std::string typed = _textBeingTyped.value_or(editedValue());
    const std::uint32_t address = ipForString(typed);
    if (editedParameter() != UnitParameter::internalIPAddress || !_selectedUnit.has_value() ||
        stringForIP(address) != typed || _devicesD.lastToldAddress(*_selectedUnit) == typed) {
        return std::nullopt;
    }
    return AddressQuestion{.address = address, .link = linkOfSelectedUnit()};
}

std::optional<std::string>
KXConfigAppDelegate::unitOfHardwareAddress(std::string_view hardwareAddress) const {
    return _devicesD.lowestWhere([&](const UnitRecord& record) {
        return record.value(UnitParameter::internalMACAddress) == hardwareAddress;
    });
}

void KXConfigAppDelegate::showForecast() {
    _holderLookup.lookUp(questionOfHolder());
    const auto now = forecast();
    _quietLine.showForecast(now.text, now.meansTrouble);
}

void KXConfigAppDelegate::refreshForecast() {
    if (std::holds_alternative<QuietLine::Forecast>(_quietLine.state())) {
        _holderLookup.lookUp(questionOfHolder());
        const auto now = forecast();
        _quietLine.refreshForecast(now.text, now.meansTrouble);
    }
}

void KXConfigAppDelegate::endMessage() {
    const auto now = forecast();
    _quietLine.endMessage(now.text, now.meansTrouble);
}

// The same time as for the answers to a discovery.
void KXConfigAppDelegate::waitForAnswers() {
    _quietLine.patienceDidBegin();
    _patience = _services.runLoop.callOnceAfter(2000ms, [this] {
        _patience = {};
        _quietLine.patienceDidEnd();
    });
}

// The outcome of an edit says more than the outcome of Reload, so it stays.
void KXConfigAppDelegate::showRequest(RequestKind kind, std::string_view command,
                                      const std::optional<SendFailure>& failure) {
    if (failure.has_value()) {
        _quietLine.showMessage(noteOfSendFailure(*failure));
        return;
    }
    const bool followsEdit =
        kind == RequestKind::reload && std::holds_alternative<EditOutcome>(_quietLine.state());
    if (!followsEdit) {
        _quietLine.showOutcome(RequestOutcome(
            kind, std::string(command), _shownTarget.value_or(RequestTarget()), _selectedUnit));
    }
    waitForAnswers();
}

} // namespace kx
