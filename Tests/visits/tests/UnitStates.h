// The simulated units' own states, read from their record (Simulator/README.md), in the form that a
// window has to show. Shares no code with the program under test. Main thread only.
//
// Environment: KX_UNITS_PIDS, the processes of the units; KX_UNITS_RECORD, their record.

#pragma once

#include <QMap>
#include <QString>
#include <vector>

namespace kx {

// Parameter names and values.
using ShownParameters = QMap<QString, QString>;

// Ends all faults of the units' replies.
void makeUnitsHonest();

// The values that a window has to show for each unit, in no particular order. Waits for the record
// in a nested event loop, and throws a VisitFailure when the wait was in vain.
std::vector<ShownParameters> askUnitsForStates(int units);

} // namespace kx
