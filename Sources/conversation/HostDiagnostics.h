// What this host tells about its own part of the way between it and a unit: routes, counters,
// settings, and the programs that stand in the way. Everything is asked without rights.
//
// Threading: the main thread. Ownership: its users do not own it; it must outlive them. Addresses
// are in host byte order; links are indexes of interfaces.

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kx {

// The way that the host's routes take to an address.
struct HostRoute {
    bool exists = false;
    std::uint32_t link = 0;    // by which a datagram leaves; 0 without a route
    std::uint32_t gateway = 0; // 0 when the address is on the link itself

    friend bool operator==(const HostRoute&, const HostRoute&) = default;
};

// Datagrams of the whole host since its start. They belong to everybody who sends to it.
struct HostCounters {
    std::uint64_t received = 0;         // IP datagrams that came (Ip InReceives)
    std::uint64_t delivered = 0;        // and that were handed on (Ip InDelivers)
    std::uint64_t wrongReversePath = 0; // taken away by the reverse path filter
    std::uint64_t withoutListener = 0;  // to a UDP port that nobody reads (Udp NoPorts)
};

// The program that has a UDP port. A text is empty where the host does not tell it.
struct PortOwner {
    std::string program;
    std::int64_t process = 0; // 0 when it is not known
    std::string user;

    friend bool operator==(const PortOwner&, const PortOwner&) = default;
};

// A service that decides which datagrams this host takes.
enum class FirewallService { ufw, firewalld };

class HostDiagnostics {
public:
    virtual ~HostDiagnostics() = default;

    // Absent when the host does not tell.
    virtual std::optional<HostRoute> route(std::uint32_t address) = 0;
    virtual std::optional<HostCounters> counters() = 0;

    // The reverse path filter that is in force on an interface (RFC 3704): 0 none, 1 strict: the
    // answer must come by the interface to which the routes lead; 2 loose: there must be a route.
    // Absent when the host does not tell.
    virtual std::optional<int> reversePathFilter(const std::string& interface) = 0;

    // Absent when nobody has the port, or the host does not tell.
    virtual std::optional<PortOwner> ownerOfPort(std::uint16_t port) = 0;

    // Those that run.
    virtual std::vector<FirewallService> firewallServices() = 0;
};

} // namespace kx
