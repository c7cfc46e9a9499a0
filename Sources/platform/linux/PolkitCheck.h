// Asks polkit about this process and one of its actions.
//
// Each question uses its own connection to the system bus, so a bus that was restarted, or that
// starts late, makes no difference.
//
// polkit asks nobody for these answers; a person is asked by pkexec. No question is without bounds.
// The application's events are handled meanwhile, and the person can give up (support/Waiting.h).
// A bus has one second to show that it is there; no event is handled during this second.
//
// Threading: the main thread only.

#pragma once

#include "support/Waiting.h"

#include <chrono>
#include <functional>
#include <string>

namespace kx {

enum class PolkitAnswer {
    authorized,
    refused,
    nobodyAsked, // a person must be asked
    unreachable, // no bus answers, there is no polkit, it is silent, or it knows no such action
};

// The time that polkit may take for an answer.
inline constexpr std::chrono::milliseconds patienceWithPolkit{10'000};

// Whether polkit is there. The bus starts it when it can.
bool isPolkitThere(Waiting& waiting);

// Whether this process may do the action with this identifier without anybody being asked.
PolkitAnswer askPolkit(const std::string& action, Waiting& waiting);

// Begins to watch whether polkit answers at all, while somebody else has it ask a person. The
// result has to be called now and then. It returns true from the time on when polkit has not
// answered for patienceWithPolkit, or is gone.
std::function<bool()> watchPolkitForSilence();

} // namespace kx
