#include "CommandProtocol.h"
#include "KXConfigAppDelegate.h"
#include "support/LocalizedText.h"

#include <utility>

namespace kx {

using namespace std::chrono_literals;

int KXConfigAppDelegate::numberOfRowsInTableView() {
    return 1;
}

// A window may ask once more while the application ends, when the entry is gone.
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
    showEditNote();
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
        appendMessage("\nUnit ID could not be converted to 6-byte UTF-8 string");
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
    const std::string typed = editedValue();
    if (!typed.empty() && sendCommand(editCommand(parameter, typed))) {
        beginReport(reportOfEdit(parameter));
    } else {
        showRefusal(refusalOfEdit(parameter, typed, commandTarget()));
    }
}

void KXConfigAppDelegate::edit_internalIP() {
    const std::string address = editedValue();
    if (address.empty()) {
        showRefusal(CommandRefusal::emptyValue);
        return;
    }
    EditReport report = reportOfEdit(UnitParameter::internalIPAddress);
    const auto command = editCommand(UnitParameter::internalIPAddress, address);
    const auto result = arpSetEAForIP(selectedText(UnitParameter::internalMACAddress), address);
    report.arpEntryDidGive(_arpRightsWereGiven ? std::optional(result) : std::nullopt);
    const auto record =
        _selectedUnit.has_value() ? _devicesD.find(*_selectedUnit) : _devicesD.end();
    if (record != _devicesD.end()) {
        record->second.removeValue(UnitParameter::internalIPAddress);
    }
    if (sendCommandToAddress(command, address)) {
        beginReport(std::move(report));
    }
}

std::int32_t KXConfigAppDelegate::arpSetEAForIP(const std::optional<std::string>& hardwareAddress,
                                                const std::optional<std::string>& ip) {
    // A dialogue runs the event loop. What comes from elsewhere waits for the end of the action.
    const auto hold = _services.runLoop.holdCallbacks();
    _arpRightsWereGiven = authenticateForARP();
    if (!_arpRightsWereGiven) {
        _outlets.alert->runModal(
            localizedText("KXConfig"),
            localizedText("Authentication was not completed, some features may not be available."),
            localizedText("OK"));
        return -1;
    }
    std::vector<std::string> arguments{"-s"};
    for (const auto* const text : {&ip, &hardwareAddress}) {
        if (!text->has_value()) {
            break;
        }
        arguments.push_back(**text);
    }
    const auto result =
        _auth->runToolWithArgs(arguments, [this, address = ip.value_or("")](int status) {
            arpToolDidEnd(address, status);
        });
    if (result == 0) {
        appendMessage("\nStuff ARP cache with MAC %@ for IP %@", {hardwareAddress, ip});
    } else {
        appendMessage("\nStuff ARP cache result: %d", {result});
    }
    return result;
}

bool KXConfigAppDelegate::authenticateForARP() {
    if (_services.authorizationService == nullptr) {
        return false;
    }
    if (_auth == nullptr) {
        _auth = std::make_unique<Authorization>(*_services.authorizationService, "/usr/sbin/arp");
    }
    return _auth->authenticate();
}

void KXConfigAppDelegate::optionCommandPopUp() {
    const auto title = _outlets.optionCommandPopUp->titleOfSelectedItem();
    _outlets.optionCommandField->setStringValue(
        optionTextForTitle(title.value_or(""), _services.wallClock.localTime()));
}

void KXConfigAppDelegate::sendOptionButton() {
    const auto command = optionCommand(_outlets.optionCommandField->stringValue());
    if (!sendCommand(command)) {
        showRefusal(refusalOfCommand(command, commandTarget()));
    } else if (!showFailedSend()) {
        showEditNote();
    }
}

void KXConfigAppDelegate::restoreDefaultSettings() {
    sendRequest(restoreCommand, unitRequestAddress(), unitRequestPort());
    performAfterDelay(1000ms, &KXConfigAppDelegate::requestParametersOfUnit);
    if (!showFailedSend()) {
        showEditNote();
    }
}

} // namespace kx
