// The records of a registry by their serial numbers, as a test compares them.

#pragma once

#include "units/UnitRegistry.h"

#include <map>
#include <string>

namespace kx {

inline std::map<std::string, UnitRecord> recordsBySerialNumber(const UnitRegistry& registry) {
    std::map<std::string, UnitRecord> records;
    for (const UnitRecord& record : registry.records()) {
        records.emplace(record.value(UnitParameter::serialNumber).value_or(""), record);
    }
    return records;
}

} // namespace kx
