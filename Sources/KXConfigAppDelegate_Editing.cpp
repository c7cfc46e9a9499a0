#include "CommandProtocol.h"
#include "KXConfigAppDelegate.h"

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
    _outlets.editParameterTableView->reloadData();
}

void KXConfigAppDelegate::optionCommandPopUp() {
    const auto title = _outlets.optionCommandPopUp->titleOfSelectedItem();
    _outlets.optionCommandField->setStringValue(
        optionTextForTitle(title.value_or(""), _services.wallClock.localTime()));
}

bool KXConfigAppDelegate::sendOptionButton() {
    return sendCommand(optionCommand(_outlets.optionCommandField->stringValue()));
}

void KXConfigAppDelegate::restoreDefaultSettings() {
    sendRequest(restoreCommand, unitRequestAddress(), unitRequestPort());
    performAfterDelay(1000ms, &KXConfigAppDelegate::reloadUnitParameterButton);
}

} // namespace kx
