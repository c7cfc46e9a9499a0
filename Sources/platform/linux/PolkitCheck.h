// Asks polkit about this process and one of its actions.
//
// Each question uses its own connection to the system bus, so a bus that was restarted, or that
// starts late, makes no difference.
//
// Threading: the main thread only; a question blocks until it is answered, and no event is handled
// meanwhile. The bus itself gets one second for each answer, and two to start polkit. A bus that
// has stopped counts as no bus. A QCoreApplication must exist.

#pragma once

#include <string>

namespace kx {

enum class PolkitAnswer {
    authorized,
    refused,     // also when the person's password was wrong
    dismissed,   // the person who was asked dismissed the question
    nobodyAsked, // a person must be asked, but may not be, or there is no agent
    unreachable, // no bus answers, there is no polkit, or it knows no such action
};

// Whether polkit is there. The bus starts it when it can.
bool isPolkitThere();

// Whether this process may do the action with this identifier. With `mayAskPerson` polkit may have
// a person asked, and the answer takes as long as that person takes.
PolkitAnswer askPolkit(const std::string& action, bool mayAskPerson);

} // namespace kx
