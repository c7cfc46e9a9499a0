// What polkit says of this process and one of its actions.
//
// Each question has a connection to the system bus of its own, so a bus that was restarted, or that
// comes up late, is no different from any other.
//
// Threading: the main thread only; a question blocks until it is answered, and no event is handled
// meanwhile. The bus itself gets a second for each answer, and two to start polkit: one that has
// stopped is as good as none. A QCoreApplication must exist.

#pragma once

#include <string>

namespace kx {

enum class PolkitAnswer {
    authorized,
    refused,     // also when the person's password was wrong
    dismissed,   // by the person who was asked
    nobodyAsked, // a person would have to be asked, which was not wanted or for which no agent is
                 // there
    unreachable, // no bus, or none that answers, no polkit, or it knows no such action
};

// Whether polkit is there. It is started when the bus can do that.
bool isPolkitThere();

// Whether this process may do the action, by its identifier. With `mayAskPerson` polkit may have a
// person asked, and the answer takes as long as that person does.
PolkitAnswer askPolkit(const std::string& action, bool mayAskPerson);

} // namespace kx
