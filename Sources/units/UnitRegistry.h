// The units that have answered, by serial number: the latest record of each, and the numbers in
// ascending order.
//
// A unit that stops answering stays in the registry. Main thread only.

#pragma once

#include "support/TitleList.h"
#include "units/OrderedSerialNumbers.h"
#include "units/UnitRecord.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

class UnitRegistry {
public:
    using Records = std::map<std::string, UnitRecord, std::less<>>;

    void clear();

    // Adds a unit, or replaces the whole record of a known unit. For a record without a serial
    // number, returns false and stores nothing.
    bool store(const UnitRecord& record);

    // Null for a serial number that no unit has told. Valid until the next store() or clear().
    const UnitRecord* find(std::string_view serial) const;

    // Takes the internal IP address out of a unit's record, if there is one, because the unit is
    // moving to another address. The unit's next record replaces this one.
    void withdrawAddress(std::string_view serial);

    // A known unit was heard by the interface with this index. Does nothing for another unit, and
    // for link 0, which tells nothing.
    void setLink(std::string_view serial, std::uint32_t link);

    // The internal IP address in a unit's record, or the address that was withdrawn since the unit
    // told its record; absent when the unit told none.
    std::optional<std::string_view> lastToldAddress(std::string_view serial) const;

    // Ascending by serial number.
    const Records& records() const { return _records; }

    // Every serial number once, in ascending order. These are the keys of records(), but the list
    // is ready in a fraction of the time that a walk over the records takes.
    TitleList serialNumbers() { return _serialNumbers.list(); }

private:
    Records _records;
    OrderedSerialNumbers _serialNumbers;
    std::map<std::string, std::string, std::less<>> _withdrawnAddresses; // by serial number
};

} // namespace kx
