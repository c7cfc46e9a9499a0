// Units as comma-separated values: the table that a spreadsheet, and kxctl, read.
//
// Pure; any thread. Texts are UTF-8.

#pragma once

#include "conversation/HeardUnits.h"
#include "conversation/HostInterface.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

using UnitList = std::vector<const HeardUnit*>;

// The parameters in the order of the columns.
inline constexpr std::array exportedParameters{
    UnitParameter::serialNumber,          UnitParameter::unitID,
    UnitParameter::internalIPAddress,     UnitParameter::internalMACAddress,
    UnitParameter::destinationIPAddress,  UnitParameter::destinationMACAddress,
    UnitParameter::destinationPortNumber, UnitParameter::devicePortNumber,
};

// The columns behind them, which are no parameters.
inline constexpr std::array<std::string_view, 4> exportedFacts{"unit_id_bytes", "source_ip",
                                                               "interface", "answered_ms"};

// What a unit tells, as a text; empty when it does not tell it. A unit ID that is no text is shown
// by its bytes.
std::string shownValue(const HeardUnit& unit, UnitParameter parameter);

// The name of an interface; empty when it is none of these.
std::string nameOfInterface(const std::vector<HostInterface>& interfaces, std::uint32_t link);

// The table that can be read back (UnitTableReader.h): a header, and a record for each unit. The
// unit ID stands as a text only where that text gives the same unit ID, also after a spreadsheet
// has saved the table (SpreadsheetText.h); `unit_id_bytes` has it in every case.
std::string csvOfUnits(const UnitList& units, const std::vector<HostInterface>& interfaces);

} // namespace kx
