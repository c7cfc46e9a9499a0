// Units as a session hears them, told apart by a number.

#pragma once

#include "addresses/IPv4Address.h"
#include "conversation/HeardUnits.h"
#include "units/IdentityText.h"
#include "units/ParameterNumber.h"

namespace kx {

inline std::string sampleSerial(std::uint32_t number) {
    return textOfSixBytes(0x4B5800000000U + number, " ");
}

inline std::string sampleHardwareAddress(std::uint32_t number) {
    return textOfSixBytes(0x024B58000000U + number, ":");
}

inline void setUnitID(HeardUnit& unit, const UnitIDBytes& bytes) {
    unit.unitIDBytes = bytes;
    unit.record.removeValue(UnitParameter::unitID);
    if (const auto text = unitIDforData(bytes)) {
        unit.record.setValue(UnitParameter::unitID, *text);
    }
}

// A unit of 192.0.0.0/16 that is heard on the interface with the index 2. Numbers up to 65,535.
inline HeardUnit heardUnit(std::uint32_t number) {
    HeardUnit unit;
    const std::string address = stringForIP(0xC0000200U + number);
    unit.record.setValue(UnitParameter::serialNumber, sampleSerial(number));
    unit.record.setValue(UnitParameter::internalMACAddress, sampleHardwareAddress(number));
    unit.record.setValue(UnitParameter::internalIPAddress, address);
    unit.record.setValue(UnitParameter::destinationIPAddress, "192.0.2.254");
    unit.record.setValue(UnitParameter::destinationMACAddress, "02:00:00:00:00:01");
    unit.record.setValue(UnitParameter::destinationPortNumber, "3520");
    unit.record.setValue(UnitParameter::devicePortNumber, "10000");
    setUnitID(unit, unitIDOfNumber(number & 0xFFU));
    unit.sender = 0xC0000200U + number;
    unit.link = 2;
    return unit;
}

} // namespace kx
