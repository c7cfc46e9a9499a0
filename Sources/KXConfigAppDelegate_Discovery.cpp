#include "CommandProtocol.h"
#include "KXConfigAppDelegate.h"
#include "support/TextEncoding.h"
#include "tables/GXArrayTable.h"

namespace kx {

using namespace std::chrono_literals;

void KXConfigAppDelegate::discoverButton() {
    const auto port = integerValue(_outlets.udpPortPopUp->titleOfSelectedItem().value_or(""));
    logText.clear();
    _outlets.logTextView->setString(logText);
    appendMessage("[Begin Discover]");
    _outlets.unitSelectPopUp->removeAllItems();
    restartListener(static_cast<std::size_t>(port));
    endMessage();
    performAfterDelay(2000ms, &KXConfigAppDelegate::discoverComplete);
}

void KXConfigAppDelegate::discoverComplete() {
    _outlets.unitSelectPopUp->addItemsWithTitles(_serials.list());
    if (_selectedUnit.has_value()) {
        _outlets.unitSelectPopUp->selectItemWithTitle(*_selectedUnit);
    } else {
        _outlets.unitSelectPopUp->selectItemAtIndex(0);
    }
    showSelectedUnit();
}

void KXConfigAppDelegate::unitSelectPopUp() {
    showSelectedUnit();
    endMessage();
}

void KXConfigAppDelegate::showSelectedUnit() {
    setSelectedUnit(_outlets.unitSelectPopUp->titleOfSelectedItem());
}

void KXConfigAppDelegate::setSelectedUnit(const std::optional<std::string>& key) {
    _selectedUnit = key;
    if (key.has_value() && _editReport.has_value() && key != _editReport->unit()) {
        _editReport.reset(); // it is about another unit than the one that is shown
    }
    _outlets.unitIDField->setStringValue(selectedValue(UnitParameter::unitID).value_or(""));
    _outlets.unitParameterTable->removeAllObjects();
    for (const UnitParameter parameter : allUnitParameters) {
        const auto value = selectedValue(parameter);
        if (value.has_value()) {
            auto entry = std::make_shared<KXParameterEntry>();
            entry->setParameterName(std::string(nameOfUnitParameter(parameter)));
            entry->setParameterValue(std::string(*value));
            _outlets.unitParameterTable->addObject(std::move(entry));
        }
    }
    _outlets.unitParameterTableView->reloadData();
    refreshEditNote();
}

void KXConfigAppDelegate::reloadUnitParameterButton() {
    requestParametersOfUnit();
    if (!showFailedSend()) {
        endMessage();
    }
}

void KXConfigAppDelegate::requestParametersOfUnit() {
    sendRequest(parameterRequestCommand, unitRequestAddress(), unitRequestPort());
    refreshEditNote();
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
    _outlets.editParameterTableView->reloadData();
    showEditNote();
}

} // namespace kx
