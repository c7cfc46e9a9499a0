// The interface that a person chose, with the address and the mask that it had then, and whether
// these still hold.
//
// Nothing follows the host's changes: address and mask stay those of the choice until the interface
// is chosen again. A front looks at each discovery and tells what it finds. Main thread only.

#pragma once

#include "System Configuration/NetworkInterfaces.h"
#include "conversation/Finding.h"
#include "conversation/InterfaceAddress.h"

#include <optional>
#include <string>

namespace kx {

struct ChosenInterface {
    std::string name;         // in the system
    InterfaceAddress address; // at the time of the choice
};

// The fault of the interface as it is now; the weightiest one when there are several. `exists` says
// whether the system has an interface of this name. Absent when nothing is wrong, and when the
// system does not tell.
std::optional<InterfaceFinding> faultOfInterface(NetworkInterfaces& interfaces,
                                                 const ChosenInterface& chosen, bool exists);

} // namespace kx
