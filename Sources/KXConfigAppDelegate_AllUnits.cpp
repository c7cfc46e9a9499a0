// The table of all units: what it is told, and what it asks for.

#include "KXConfigAppDelegate.h"
#include "conversation/SenderAddress.h"

namespace kx {

void KXConfigAppDelegate::rememberUnit(const DecodedUnitParameters& parameters,
                                       const DatagramOrigin& origin) {
    _allUnits.unitDidTell({.record = parameters.record,
                           .unitIDBytes = parameters.unitIDBytes,
                           .sender = addressOfSender(origin),
                           .link = origin.link});
}

void KXConfigAppDelegate::rememberAnswer(const Reply& reply, const DatagramOrigin& origin) {
    if (reply.serialNumber.has_value()) {
        _allUnits.unitDidAnswer(*reply.serialNumber, addressOfSender(origin), origin.link);
    }
}

// The pop-up does not list a unit that was late, and none while a discovery is under way.
void KXConfigAppDelegate::pickUnit(std::string_view serial) {
    if (_devicesD.find(serial) == nullptr) {
        return;
    }
    _outlets.unitSelectPopUp->selectItemWithTitle(serial);
    if (_outlets.unitSelectPopUp->titleOfSelectedItem() != serial) {
        _outlets.unitSelectPopUp->addItemsWithTitles(_devicesD.serialNumbers());
        _outlets.unitSelectPopUp->selectItemWithTitle(serial);
    }
    unitSelectPopUp();
}

} // namespace kx
