// The interface that a person chose, with the address and the mask that it had then, and whether
// these still hold.
//
// Nothing follows the host's changes: address and mask stay those of the choice until the interface
// is chosen again. A front looks at each discovery and tells what it finds. Main thread only.

#pragma once

#include "System Configuration/NetworkInterfaces.h"
#include "conversation/Finding.h"
#include "conversation/InterfaceAddress.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

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

// Whether a broadcast to this address can leave by the interface of this name as it is now. The
// system itself does not tell: it would look for a host of this address on the link, and say that
// the datagram was sent. True for 255.255.255.255, and when the system tells nothing of the
// interface.
bool broadcastCanLeave(NetworkInterfaces& interfaces, std::string_view bsdName,
                       std::uint32_t address);

} // namespace kx
