// The names of states in documents, reports and journals. They are never translated.
//
// Pure; any thread.

#pragma once

#include "conversation/UnitEdits.h"
#include "conversation/UnitPlan.h"

#include <optional>
#include <string_view>

namespace kx {

std::string_view nameOfState(ChangeState state);
std::string_view nameOfState(RowState state);

// Absent for any other text.
std::optional<ChangeState> changeStateNamed(std::string_view name);

} // namespace kx
