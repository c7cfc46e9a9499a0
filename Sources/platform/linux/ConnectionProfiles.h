// The connection profiles that are active on the host: network services that a person has named.
//
// Threading: the main thread only. Ownership: the maker of the object owns it.

#pragma once

#include "platform/linux/NetworkLink.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace kx {

struct ConnectionProfile {
    std::string identifier; // stays the same for as long as the profile exists
    std::string name;       // the name that people see
    std::string interfaceName;
    std::vector<IPv4InterfaceAddress> addresses; // from the profile; may be empty

    friend bool operator==(const ConnectionProfile&, const ConnectionProfile&) = default;
};

class ConnectionProfiles {
public:
    virtual ~ConnectionProfiles() = default;

    // The active profiles as far as they are known; none when no program on the host keeps
    // profiles. The reference is valid until the next call. The first call may take up to three
    // quarters of a second, and so may the first call after the keeper of the profiles could not be
    // reached. Other calls return at once.
    virtual const std::vector<ConnectionProfile>& activeProfiles() = 0;

    // Grows whenever the active profiles have changed.
    virtual std::uint64_t generation() const = 0;

    // Sets the action that runs when the profiles have changed: from the run loop, or from inside
    // activeProfiles().
    virtual void setChangeAction(std::function<void()> action) = 0;
};

} // namespace kx
