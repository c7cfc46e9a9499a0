#include "words/RequestTargetText.h"

#include "addresses/IPv4Address.h"
#include "support/LocalizedText.h"

namespace kx {

std::string warningOfTarget(const RequestTarget& target) {
    switch (target.reach) {
    case RequestReach::everybodyWithoutUnit:
        return localizedText("No unit is selected: Restore Defaults, like Reload, reaches every "
                             "unit that hears it.");
    case RequestReach::everybodyWithoutAddress:
        return localizedText("The address of this unit is not known: Restore Defaults, like "
                             "Reload, reaches every unit that hears it.");
    case RequestReach::everybodyAtItsAddress:
        return localizedText("This unit tells an address of many as its own: Restore Defaults, "
                             "like Reload, Apply and Send, reaches every unit that hears it.");
    case RequestReach::oneUnit:
        break;
    }
    return {};
}

std::string descriptionOfReload(const RequestTarget& target) {
    return target.reach == RequestReach::oneUnit
               ? localizedText("Asks the unit at %@ for its parameters.",
                               {stringForIP(target.address)})
               : localizedText("Asks every unit that hears it for its parameters.");
}

std::string descriptionOfRestore(const RequestTarget& target) {
    return target.reach == RequestReach::oneUnit
               ? localizedText("Resets the unit at %@ to its factory settings.",
                               {stringForIP(target.address)})
               : localizedText("Resets every unit that hears it to its factory settings.");
}

} // namespace kx
