// The facts about the host's network interfaces that the controller needs.
//
// A person chooses an interface by its title: a name, a blank and the interface in parentheses. A
// service identifier names the configured network service behind a title; one that begins with "="
// stands for an interface of the kernel that no service covers. Main thread only.

#pragma once

#include "support/PropertyListValue.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

// What an interface can do now.
struct InterfaceState {
    bool isRunning = false;    // up and with a carrier
    bool canBroadcast = false; // several hosts may be on its link, and hear one datagram
};

class NetworkInterfaces {
public:
    virtual ~NetworkInterfaces() = default;

    // The titles of the configured services and of the kernel interfaces that are up, in the order
    // of the pop-up; absent when there are none. When `serviceIDs` is not null, it receives the
    // service identifiers, parallel to the titles; it is not written when the result is absent.
    virtual std::optional<std::vector<std::string>>
    bsdTitlesAndServiceIDs(std::vector<std::string>* serviceIDs) = 0;

    // The identifier of the configured service on an interface, by the interface's name in the
    // system; absent when there is none.
    virtual std::optional<std::string> serviceIDForInterface(std::string_view bsdName) = 0;

    // One entry of a service's data, for example ("IPv4", "Addresses"); absent when the service,
    // the dictionary or the entry does not exist.
    virtual std::optional<PropertyListValue>
    serviceDataForDictionaryNameKey(std::string_view serviceID, std::string_view dictionaryName,
                                    std::string_view key) = 0;

    // One entry of what the kernel's interface of this name has now, with the same dictionaries;
    // absent when the interface, the dictionary or the entry does not exist. A service may have
    // saved what its interface has not.
    virtual std::optional<PropertyListValue>
    interfaceDataForDictionaryNameKey(std::string_view bsdName, std::string_view dictionaryName,
                                      std::string_view key) = 0;

    // The state of the kernel's interface of this name; absent when there is none, and when the
    // kernel does not tell.
    virtual std::optional<InterfaceState> interfaceState(std::string_view bsdName) = 0;
};

} // namespace kx
