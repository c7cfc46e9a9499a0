// What the system knows of the hosts on its links: its neighbour table, the ARP cache.
//
// Threading: the thread of the run loop. Ownership: its users do not own it; it must outlive them.
// Addresses are in host byte order, hardware addresses are hexadecimal
// texts with colons, links are indexes of interfaces.

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kx {

// What the system's neighbour table says of an address (RFC 4861 names the states).
enum class NeighbourState {
    asking,    // the system is asking for the hardware address
    reachable, // it has been confirmed lately
    stale,     // it was known once, and nobody has confirmed it since
    failed,    // nobody answered
    permanent, // somebody entered it by hand
};

struct Neighbour {
    NeighbourState state = NeighbourState::asking;
    std::string hardwareAddress; // empty while it is not known
};

class NeighbourTable {
public:
    virtual ~NeighbourTable() = default;

    // The entry of an address on a link; absent when there is none, and when the system does not
    // tell. Returns at once.
    virtual std::optional<Neighbour> entry(std::uint32_t address, std::uint32_t link) = 0;

    // The addresses of the hosts on a link whose hardware addresses are known, in ascending order.
    // Empty when there are none, and when the system does not tell. Returns at once.
    virtual std::vector<std::uint32_t> knownAddresses(std::uint32_t link) = 0;

    // The number of entries on all links that the system does not give up for another address now.
    // 0 when it does not tell. Returns at once.
    virtual std::size_t entriesInUse() = 0;

    // Takes the entry of an address out, unless somebody entered it by hand. Does nothing without
    // administrator rights. Returns at once.
    virtual void forget(std::uint32_t address, std::uint32_t link) = 0;
};

} // namespace kx
