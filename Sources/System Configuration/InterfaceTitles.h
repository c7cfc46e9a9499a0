// The titles by which people choose a network interface: a name, a blank and an interface
// identifier in parentheses, such as "Ethernet 2 (en0:1)". An interface identifier is the name of
// the interface in the system. When a second service shares the interface, ":" and a number follow
// the name.
//
// The functions look for the last occurrence of every separator, because names may contain it too.
// The final character of a title counts as the closing parenthesis, whichever character it is.
//
// All functions are pure and may be called from any thread.

#pragma once

#include <string>
#include <string_view>

namespace kx {

// The title of a user name and an interface identifier; the user name alone when it already ends
// with the identifier in parentheses.
std::string titleForNameAndID(std::string_view userName, std::string_view interfaceID);

// The text before the last " ("; the whole title when there is none.
std::string userNameForTitle(std::string_view title);

// The text behind the last "(", without the title's final character; the whole title when there is
// no "(".
std::string interfaceIDForTitle(std::string_view title);

// The interface's name in the system: the text before the last ":", or the whole identifier when
// there is no ":".
std::string bsdNameForInterfaceID(std::string_view interfaceID);

// The same for a title: the name in the system of its interface identifier.
std::string bsdNameForTitle(std::string_view title);

} // namespace kx
