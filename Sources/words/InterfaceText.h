// The chosen interface in words: its addresses and its link.
//
// Pure but for looking up the sentences (support/LocalizedText.h), so it belongs to the main
// thread. Texts are UTF-8. Addresses are in host byte order.

#pragma once

#include "System Configuration/NetworkInterfaces.h"
#include "conversation/ChosenInterface.h"

#include <cstdint>
#include <optional>
#include <string>

namespace kx {

// For example "Address 192.0.2.1, mask 255.255.255.0, broadcast address 192.0.2.255. The link is
// up." `chosen` is absent before a choice, and `state` when the system does not tell it. Broadcasts
// go to `broadcastAddress`.
std::string descriptionOfInterface(const std::optional<ChosenInterface>& chosen,
                                   const std::optional<InterfaceState>& state,
                                   std::uint32_t broadcastAddress);

} // namespace kx
