// The plan for many units in words: the reasons for the states of its rows.
//
// Pure, except that it looks up the sentences (support/LocalizedText.h), so it belongs to the main
// thread. Texts are UTF-8.

#pragma once

#include "conversation/UnitPlan.h"

#include <string>

namespace kx {

// Why a row is refused, silent, untouched or half, as one or two sentences. Empty when there is
// nothing to say.
std::string reasonOfRow(const PlannedRow& row);

} // namespace kx
