// The connection profiles that are active on the host: network services that a person has named.
//
// Threading: the main thread only. The object belongs to whoever made it.

#pragma once

#include "platform/linux/NetworkLink.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace kx {

struct ConnectionProfile {
    std::string identifier; // stays the same for as long as the profile exists
    std::string name;       // for people
    std::string interfaceName;
    std::vector<IPv4InterfaceAddress> addresses; // what the profile gave its link; may be empty

    friend bool operator==(const ConnectionProfile&, const ConnectionProfile&) = default;
};

class ConnectionProfiles {
public:
    virtual ~ConnectionProfiles() = default;

    // The active profiles as far as they are known; none when nobody on the host keeps any. They
    // stay until the next call. The first call may take up to three quarters of a second, and so
    // may the first one after whoever keeps them could not be reached; others return at once.
    virtual const std::vector<ConnectionProfile>& activeProfiles() = 0;

    // Grows whenever the active profiles have changed.
    virtual std::uint64_t generation() const = 0;

    // What is called when they have changed: from the run loop, or from inside activeProfiles().
    virtual void setChangeAction(std::function<void()> action) = 0;
};

} // namespace kx
