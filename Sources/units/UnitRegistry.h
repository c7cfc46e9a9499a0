// The units that have answered, by serial number: the record that each told last, and the numbers
// in ascending order.
//
// A unit that stops answering stays. Main thread only.

#pragma once

#include "support/TitleList.h"
#include "units/OrderedSerialNumbers.h"
#include "units/UnitRecord.h"

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

    // Adds a unit, or replaces the whole record of one that is known. False, and nothing is stored,
    // for a record without a serial number.
    bool store(const UnitRecord& record);

    // Null for a serial number that nobody has told. Valid until the next store() or clear().
    const UnitRecord* find(std::string_view serial) const;

    // Takes the internal IP address out of a unit's record, if there is one: the unit is on its way
    // to another. Its next record replaces this one.
    void withdrawAddress(std::string_view serial);

    // The internal IP address in a unit's record, or the one that was withdrawn since the unit told
    // its record; absent when it told none.
    std::optional<std::string_view> lastToldAddress(std::string_view serial) const;

    // Ascending by serial number.
    const Records& records() const { return _records; }

    // Every serial number once, in ascending order: the keys of records(), in a fraction of the
    // time that a walk over them takes.
    TitleList serialNumbers() { return _serialNumbers.list(); }

private:
    Records _records;
    OrderedSerialNumbers _serialNumbers;
    std::map<std::string, std::string, std::less<>> _withdrawnAddresses; // by serial number
};

} // namespace kx
