// Saved discoveries: any text is read or refused, and what is read is of the values that units
// tell.

#include "FuzzInput.h"
#include "addresses/IPv4Address.h"
#include "files/SavedDiscovery.h"
#include "units/UnitName.h"

#include <cstdint>
#include <string>
#include <variant>

using namespace kx;

namespace {

void lookAt(const SavedUnit& unit) {
    const auto serial = unit.record.value(UnitParameter::serialNumber);
    requireInvariant(serial.has_value() &&
                         textOfSixPairs(digitsOfSixPairs(*serial).value_or(""), ' ') == *serial,
                     "a unit has a serial number in the form in which units tell it");
    const auto address = unit.record.value(UnitParameter::internalIPAddress);
    requireInvariant(!address.has_value() || stringForIP(ipForString(*address)) == *address,
                     "an address is one");
    requireInvariant(!unit.record.value(UnitParameter::unitID).has_value() ||
                         unit.unitIDBytes.has_value(),
                     "a unit ID comes from its bytes");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto read = readSavedDiscovery(textOfInput(data, size));
    if (const auto* const discovery = std::get_if<SavedDiscovery>(&read)) {
        for (const SavedUnit& unit : discovery->units) {
            lookAt(unit);
        }
    }
    return 0;
}
