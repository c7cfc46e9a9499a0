// The plan for many units: what a table wants of each, whether that can be done, and in which
// order.
//
// A row names a unit by its serial number and lists the edits of its parameters. The plan compares
// the rows with the units that have answered. A row is refused when its command could reach another
// unit, or when it takes what somebody else keeps: an IP address, a hardware address or a serial
// number. A row that takes what another row of the same table gives up waits for that row. Rows
// that wait for each other in a ring are refused, and so is a row that waits for a refused one.
//
// Pure; any thread. Texts are UTF-8. The time is in proportion to the numbers of rows and of units.

#pragma once

#include "conversation/HeardUnits.h"
#include "conversation/HostInterface.h"
#include "conversation/PlannedRow.h"
#include "units/ExactEdit.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace kx {

// The values of a unit that a kept plan was made from.
struct SeenUnit {
    UnitRecord record;
    std::optional<UnitIDBytes> unitIDBytes = {};
};

struct WantedRow {
    std::size_t line = 0;              // in the file; the header is line 1
    std::string serialNumber;          // as units show it: "4B 58 00 00 00 01"
    std::vector<ExactEdit> edits;      // at most one for each parameter; a new serial number is one
    std::optional<SeenUnit> seen = {}; // absent for a row of a table

    // The names under which the unit may answer after a run has begun to change them; an empty
    // hardware address stands for any. Without names the serial number alone names the unit.
    std::vector<UnitIdentity> identities = {};

    // The names that it had before these. They count when the unit answers under none of
    // `identities`: somebody may have given an old name back since.
    std::vector<UnitIdentity> formerIdentities = {};
};

struct PlanNetwork {
    std::vector<HostInterface> interfaces; // all of this host
    std::vector<HostInterface> asked;      // those on which units are asked
};

// The rows' states are planned, unchanged, refused and silent.
UnitPlan planOfRows(const std::vector<WantedRow>& rows, const HeardUnits& heard,
                    const PlanNetwork& network);

} // namespace kx
