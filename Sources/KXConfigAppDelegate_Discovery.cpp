#include "KXConfigAppDelegate.h"
#include "support/TextEncoding.h"
#include "tables/GXArrayTable.h"
#include "units/UnitCommand.h"
#include "words/EventLogEntries.h"
#include "words/SendFailureText.h"

#include <utility>

namespace kx {

using namespace std::chrono_literals;

void KXConfigAppDelegate::discoverButton() {
    const auto port = integerValue(_outlets.udpPortPopUp->titleOfSelectedItem().value_or(""));
    logText.clear();
    _outlets.logTextView->setString(logText);
    appendString(entryOfDiscovery());
    _outlets.unitSelectPopUp->removeAllItems();
    beginDiscovery(static_cast<std::uint16_t>(port));
    describeInterface();
    lookAtTarget();
    _allUnits.discoveryDidBegin();
    _session.start(static_cast<std::size_t>(port));
    showDiscoveryLine();
    endMessage();
    performAfterDelay(2000ms, &KXConfigAppDelegate::discoverComplete);
}

void KXConfigAppDelegate::discoverComplete() {
    _allUnits.discoveryDidEnd();
    _outlets.unitSelectPopUp->addItemsWithTitles(_devicesD.serialNumbers());
    if (_selectedUnit.has_value()) {
        _outlets.unitSelectPopUp->selectItemWithTitle(*_selectedUnit);
    } else {
        _outlets.unitSelectPopUp->selectItemAtIndex(0);
    }
    showSelectedUnit();
    lookAtTarget();
    endDiscovery();
}

void KXConfigAppDelegate::unitSelectPopUp() {
    showSelectedUnit();
    lookAtTarget();
    endMessage();
}

void KXConfigAppDelegate::showSelectedUnit() {
    setSelectedUnit(_outlets.unitSelectPopUp->titleOfSelectedItem());
}

std::vector<std::string> KXConfigAppDelegate::detailsOfUnit(std::string_view serialNumber) const {
    std::vector<std::string> details;
    if (const UnitRecord* const record = _devicesD.find(serialNumber)) {
        for (const auto parameter : {UnitParameter::unitID, UnitParameter::internalIPAddress}) {
            if (const auto value = record->value(parameter)) {
                details.emplace_back(withoutTrailingZeroBytes(*value));
            }
        }
    }
    return details;
}

void KXConfigAppDelegate::setSelectedUnit(const std::optional<std::string>& key) {
    _selectedUnit = key;
    _devicesD.keep(key);
    if (key.has_value()) {
        _quietLine.unitIsShown(*key);
    }
    _outlets.unitIDField->setStringValue(shownValue(UnitParameter::unitID).value_or(""));
    _outlets.unitParameterTable->removeAllObjects();
    for (const UnitParameter parameter : allUnitParameters) {
        const auto value = shownValue(parameter);
        if (value.has_value()) {
            auto entry = std::make_shared<KXParameterEntry>();
            entry->setParameterName(std::string(nameOfUnitParameter(parameter)));
            entry->setParameterValue(value);
            _outlets.unitParameterTable->addObject(std::move(entry));
        }
    }
    _outlets.unitParameterTableView->reloadData();
    showTarget();
    refreshForecast();
}

void KXConfigAppDelegate::reloadUnitParameterButton() {
    lookAtTarget();
    showRequest(RequestKind::reload, parameterRequestCommand, requestParametersOfUnit());
}

void KXConfigAppDelegate::tableViewSelectionDidChange() {
    const int row = _outlets.unitParameterTableView->selectedRow();
    if (row < 0 || _editTableEntry == nullptr) {
        return;
    }
    const auto entry = _outlets.unitParameterTable->objectAtIndex(row);
    for (const auto key :
         {KXParameterEntry::parameterNameKey, KXParameterEntry::parameterValueKey}) {
        _editTableEntry->setValueForKey(entry != nullptr ? entry->valueForKey(key) : std::nullopt,
                                        key);
    }
    _textBeingTyped.reset();
    _returnWasPressed = false;
    _unitOfRow = _selectedUnit;
    _outlets.editParameterTableView->reloadData();
    showForecast();
}

} // namespace kx
