// What became of a row of a plan, from the edits of its unit.
//
// Pure; any thread.

#pragma once

#include "conversation/PlannedRow.h"
#include "conversation/UnitEdits.h"

namespace kx {

// Ends the row with the state that follows from the edits, which have ended. Edits that were
// stopped from outside end it too; `stopped` says why. A row that is untouched had nothing sent.
void endRowByEdits(PlannedRow& row, const UnitEdits& edits, RowObjection stopped);

} // namespace kx
