#include "KXConfigAppDelegate.h"
#include "addresses/ARPToolPath.h"
#include "addresses/IPv4Address.h"
#include "support/LocalizedText.h"
#include "units/UnitCommand.h"
#include "words/EventLogEntries.h"
#include "words/SendFailureText.h"

#include <array>
#include <utility>

namespace kx {

using namespace std::chrono_literals;

int KXConfigAppDelegate::numberOfRowsInTableView() {
    return 1;
}

// A window may ask once more while the application ends, when the entry is gone already.
std::optional<PropertyListValue>
KXConfigAppDelegate::tableViewObjectValueForTableColumnRow(const TableColumn& column, int /*row*/) {
    const PropertyListValue emptyText;
    if (_editTableEntry == nullptr) {
        return emptyText;
    }
    try {
        return _editTableEntry->valueForKey(column.identifier).value_or(emptyText);
    } catch (const UndefinedKeyFailure&) {
        return emptyText;
    }
}

void KXConfigAppDelegate::tableViewSetObjectValueForTableColumnRow(const PropertyListValue& value,
                                                                   const TableColumn& column,
                                                                   int /*row*/) {
    if (_editTableEntry == nullptr) {
        return;
    }
    try {
        _editTableEntry->setValueForKey(value, column.identifier);
    } catch (const UndefinedKeyFailure&) {
        return;
    }
    _textBeingTyped.reset();
    _outlets.editParameterTableView->reloadData();
    showForecast();
}

std::optional<UnitParameter> KXConfigAppDelegate::editedParameter() const {
    const auto name = _editTableEntry != nullptr ? _editTableEntry->parameterName() : std::nullopt;
    return unitParameterForName(name.value_or(""));
}

std::string KXConfigAppDelegate::editedValue() const {
    const auto value =
        _editTableEntry != nullptr ? _editTableEntry->parameterValue() : std::nullopt;
    return value.value_or("");
}

void KXConfigAppDelegate::applyEditParameterButton() {
    if (!_outlets.window->makeFirstResponder()) {
        _outlets.window->endEditing();
    }
    _returnWasPressed = false;
    const auto parameter = editedParameter();
    if (!parameter.has_value()) {
        return;
    }
    switch (*parameter) {
    case UnitParameter::internalMACAddress:
        return edit_internalMAC();
    case UnitParameter::internalIPAddress:
        return edit_internalIP();
    case UnitParameter::destinationIPAddress:
        return edit_destIP();
    case UnitParameter::destinationPortNumber:
        return edit_destPort();
    case UnitParameter::devicePortNumber:
        return edit_devicePort();
    case UnitParameter::unitID:
        return edit_unitID();
    case UnitParameter::destinationMACAddress:
        return edit_destMAC();
    case UnitParameter::serialNumber:
        return edit_serial();
    case UnitParameter::end:
        break;
    }
}

void KXConfigAppDelegate::edit_internalMAC() {
    sendEdit(UnitParameter::internalMACAddress);
}

void KXConfigAppDelegate::edit_destIP() {
    sendEdit(UnitParameter::destinationIPAddress);
}

void KXConfigAppDelegate::edit_destPort() {
    sendEdit(UnitParameter::destinationPortNumber);
}

void KXConfigAppDelegate::edit_devicePort() {
    sendEdit(UnitParameter::devicePortNumber);
}

void KXConfigAppDelegate::edit_unitID() {
    if (!editCommand(UnitParameter::unitID, editedValue()).has_value()) {
        appendString(entryOfUndecodableUnitID());
    }
    sendEdit(UnitParameter::unitID);
}

void KXConfigAppDelegate::edit_destMAC() {
    sendEdit(UnitParameter::destinationMACAddress);
}

void KXConfigAppDelegate::edit_serial() {
    sendEdit(UnitParameter::serialNumber);
}

void KXConfigAppDelegate::sendEdit(UnitParameter parameter) {
    const auto edit = editOfParameter(parameter, editedValue());
    if (const auto refusal = refusalOfEdit(edit, commandTarget())) {
        _quietLine.showMessage(noteOfRefusal(*refusal));
        return;
    }
    const auto& sent = std::get<ParameterEdit>(edit);
    expectSerialNumber(sent);
    if (sendCommand(sent.command)) {
        _quietLine.showOutcome(EditOutcome(sent, editedUnit(sent), _sendFailure));
        waitForAnswers();
    }
}

void KXConfigAppDelegate::edit_internalIP() {
    const auto edit = editOfParameter(UnitParameter::internalIPAddress, editedValue());
    if (const auto refusal = refusalOfEdit(edit, commandTarget())) {
        _quietLine.showMessage(noteOfRefusal(*refusal));
        return;
    }
    const auto& move = std::get<ParameterEdit>(edit);
    EditOutcome::Unit unit = editedUnit(move);
    _holderLookup.cancel(); // from now on the entry of the move answers for everybody
    arpSetEAForIP(unit.hardwareAddress, move.typed);
    if (_selectedUnit.has_value()) {
        _devicesD.withdrawAddress(*_selectedUnit);
    }
    if (sendCommandToAddress(move.command, move.typed)) {
        EditOutcome outcome(move, std::move(unit), _sendFailure);
        outcome.setARPEntry(_arpEntry);
        _quietLine.showOutcome(std::move(outcome));
        waitForAnswers();
    }
}

EditOutcome::Unit KXConfigAppDelegate::editedUnit(const ParameterEdit& edit) const {
    EditOutcome::Unit unit{
        .serialNumber = _selectedUnit,
        .hardwareAddress = selectedText(UnitParameter::internalMACAddress),
        .valueBefore = selectedText(edit.parameter),
        .newSerialNumberIsTaken = newSerialNumberIsTaken(edit),
        .address = ipForString(selectedText(UnitParameter::internalIPAddress).value_or(""))};
    if (edit.parameter == UnitParameter::internalIPAddress) {
        unit.address = ipForString(edit.typed);
    }
    // When an earlier edit has taken the address out of the record, the unit still had that value.
    if (edit.parameter == UnitParameter::internalIPAddress && _selectedUnit.has_value()) {
        unit.valueBefore = _devicesD.lastToldAddress(*_selectedUnit);
    }
    return unit;
}

void KXConfigAppDelegate::expectSerialNumber(const ParameterEdit& edit) {
    if (edit.parameter == UnitParameter::serialNumber && edit.expectedText.has_value() &&
        _selectedUnit.has_value() && !newSerialNumberIsTaken(edit)) {
        _devicesD.expectSerialNumber(*_selectedUnit, *edit.expectedText);
    }
}

bool KXConfigAppDelegate::newSerialNumberIsTaken(const ParameterEdit& edit) const {
    if (edit.parameter != UnitParameter::serialNumber || !edit.expectedText.has_value() ||
        edit.expectedText == _selectedUnit) {
        return false;
    }
    // The registry still has the record of a serial number that this unit had before.
    const UnitRecord* const holder = _devicesD.find(*edit.expectedText);
    const UnitRecord* const selected = selectedRecord();
    return holder != nullptr && (selected == nullptr || !holder->hasHardwareAddressOf(*selected));
}

namespace {

std::vector<std::string> argumentsForARP(const std::optional<std::string>& hardwareAddress,
                                         const std::optional<std::string>& ip) {
    std::vector<std::string> arguments{"-s"};
    for (const auto* const text : {&ip, &hardwareAddress}) {
        if (!text->has_value()) {
            break;
        }
        arguments.push_back(**text);
    }
    return arguments;
}

} // namespace

std::int32_t KXConfigAppDelegate::arpSetEAForIP(const std::optional<std::string>& hardwareAddress,
                                                const std::optional<std::string>& ip) {
    // A dialogue runs the event loop. Events from outside wait for the end of the action.
    const auto hold = _services.runLoop.holdCallbacks();
    const int attempt = ++_latestARPAttempt;
    _arpEntry = {.state = ARPEntryState::rightsNotGiven};
    const auto arguments = argumentsForARP(hardwareAddress, ip);
    const auto authorization = authorizationForARP(); // stays when the application ends meanwhile
    const bool isAuthenticated = authorization != nullptr && authorization->authenticate(arguments);
    if (_auth != authorization) {
        return -1; // the application has ended
    }
    if (!isAuthenticated) {
        _outlets.alert->runModal(
            localizedText("KXConfig"),
            localizedText("Authentication was not completed, some features may not be available."),
            localizedText("OK"));
        return -1;
    }
    // Only the end of the latest attempt is shown.
    const auto ended = [this, attempt, hardware = hardwareAddress.value_or(""),
                        address = ipForString(ip.value_or("")),
                        link = linkOfSelectedUnit()](const ToolEnd& end) {
        if (attempt == _latestARPAttempt) {
            _quietLine.arpToolDidEnd(arpEntryAfter(end, hardware, address, link));
        }
    };
    const auto result = authorization->runToolWithArgs(arguments, ended);
    _arpEntry = arpEntryForResult(result, objectionToARPEntry(hardwareAddress, ip));
    appendString(result == 0 ? entryOfARPEntry(hardwareAddress, ip) : entryOfARPFailure(result));
    return result;
}

// The tool puts the entry on the link to which the routes lead. The command leaves by `link`; while
// that is 0, it leaves as the routes say, too.
ARPEntry KXConfigAppDelegate::arpEntryAfter(const ToolEnd& end, const std::string& hardwareAddress,
                                            std::uint32_t address, std::uint32_t link) const {
    ARPEntry entry = arpEntryForEndOfTool(end.status, end.sentence);
    if (entry.state == ARPEntryState::started && _services.neighbours != nullptr && link != 0 &&
        !isBoundOnLink(*_services.neighbours, address, link, hardwareAddress)) {
        entry.state = ARPEntryState::onAnotherLink;
    }
    return entry;
}

// Null when nobody gives rights.
std::shared_ptr<Authorization> KXConfigAppDelegate::authorizationForARP() {
    if (_auth == nullptr && _services.authorizationService != nullptr) {
        _auth = std::make_shared<Authorization>(*_services.authorizationService, arpToolPath);
    }
    return _auth;
}

// Empty when nothing speaks against the entry.
std::string
KXConfigAppDelegate::objectionToARPEntry(const std::optional<std::string>& hardwareAddress,
                                         const std::optional<std::string>& ip) const {
    if (_services.authorizationService == nullptr) {
        return {};
    }
    return _services.authorizationService
        ->objectionTo(arpToolPath, argumentsForARP(hardwareAddress, ip))
        .value_or("");
}

void KXConfigAppDelegate::optionCommandPopUp() {
    const auto title = _outlets.optionCommandPopUp->titleOfSelectedItem();
    _outlets.optionCommandField->setStringValue(
        optionTextForTitle(title.value_or(""), _services.wallClock.localTime()));
}

void KXConfigAppDelegate::sendOptionButton() {
    const auto command = optionCommand(_outlets.optionCommandField->stringValue());
    if (const auto refusal = refusalOfCommand(command, commandTarget())) {
        _quietLine.showMessage(noteOfRefusal(*refusal));
    } else if (sendCommand(command)) {
        showRequest(RequestKind::optionCommand, command, _sendFailure);
    }
}

void KXConfigAppDelegate::restoreDefaultSettings() {
    lookAtTarget();
    const bool isForOneUnit =
        _shownTarget.has_value() && _shownTarget->reach == RequestReach::oneUnit;
    expectChangeOf(isForOneUnit ? _selectedUnit : std::nullopt);
    const auto failure = sendRequest(restoreCommand, unitDestination());
    performAfterDelay(1000ms, &KXConfigAppDelegate::requestParametersAfterRestore);
    showRequest(RequestKind::restore, restoreCommand, failure);
}

void KXConfigAppDelegate::requestParametersAfterRestore() {
    requestParametersOfUnit();
}

} // namespace kx
