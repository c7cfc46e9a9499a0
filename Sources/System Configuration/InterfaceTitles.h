// The titles by which people choose a network interface: a name, a blank and an interface
// identifier in parentheses, such as "Ethernet 2 (en0:1)". An interface identifier is the name of
// the interface in the system, with ":" and a number behind it where a second service shares the
// interface.
//
// All functions are pure and may be called from any thread.

#pragma once

#include <string>
#include <string_view>

namespace kx {

// The interface's name in the system: what stands before the last ":", or the whole identifier.
std::string bsdNameForInterfaceID(std::string_view interfaceID);

// The same for a title: of the text behind its last "(", without the title's final character; of
// the whole title when it has no "(".
std::string bsdNameForTitle(std::string_view title);

} // namespace kx
