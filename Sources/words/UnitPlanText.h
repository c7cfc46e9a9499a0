// The plan for many units and its run in words: the reasons for the states of its rows, and what is
// said of the run as a whole.
//
// Pure, except that it looks up the sentences (support/LocalizedText.h), so it belongs to the main
// thread. Texts are UTF-8.

#pragma once

#include "conversation/RunHistory.h"
#include "conversation/RunLock.h"
#include "conversation/UnitPlan.h"

#include <chrono>
#include <cstddef>
#include <string>

namespace kx {

// Why a row is refused, silent, untouched or half, as one or two sentences. Empty when there is
// nothing to say.
std::string reasonOfRow(const PlannedRow& row);

// Why no run can begin.
std::string sentenceOfLock(const RunLockRefusal& refusal);

// A value that no run brings back.
std::string sentenceOfLostValue(const LostValue& lost);

// An entry of the ARP cache that a run has made is still there. `address` is the one that it binds.
std::string sentenceOfLeftEntry(const std::string& address);

// How long the rest takes when it goes on as before: "about 12 s left". Empty when that cannot be
// told, and when nothing is left.
std::string textOfTimeLeft(std::chrono::milliseconds passed, std::size_t ended, std::size_t total);

} // namespace kx
