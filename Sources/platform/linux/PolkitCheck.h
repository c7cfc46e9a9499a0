// Asks polkit about this process and one of its actions.
//
// Each question uses its own connection to the system bus, so a bus that was restarted, or that
// starts late, makes no difference.
//
// No question is without bounds. The application's events are handled meanwhile, and the person can
// give up (support/Waiting.h); the question is then taken back from polkit. While a person is asked,
// polkit has to show from time to time that it still answers at all. A bus has one second to show
// that it is there; no event is handled during this second.
//
// Threading: the main thread only. A QCoreApplication must exist.

#pragma once

#include "support/Waiting.h"

#include <chrono>
#include <functional>
#include <string>

namespace kx {

enum class PolkitAnswer {
    authorized,
    refused,     // also when the person's password was wrong
    dismissed,   // the person who was asked dismissed the question, or gave up waiting
    nobodyAsked, // a person must be asked, but may not be, or there is no agent
    unreachable, // no bus answers, there is no polkit, it is silent, or it knows no such action
};

// The time that polkit may take for an answer that needs no person.
inline constexpr std::chrono::milliseconds patienceWithPolkit{10'000};

// Whether polkit is there. The bus starts it when it can.
bool isPolkitThere(Waiting& waiting);

// Whether this process may do the action with this identifier. With `mayAskPerson` polkit may have
// a person asked, and the answer takes as long as that person takes.
PolkitAnswer askPolkit(const std::string& action, bool mayAskPerson, Waiting& waiting);

// Begins to watch whether polkit answers at all. The result has to be called now and then. It
// returns true from the time on when polkit has not answered for patienceWithPolkit, or is gone.
std::function<bool()> watchPolkitForSilence();

} // namespace kx
