// UDP sockets beside the listener, to ask what the listener must not ask and to hear what it cannot
// hear. None needs rights.
//
// Threading: the thread of the run loop; the events come from it. Ownership: whoever opens a socket
// owns it; destroying it closes it, also inside one of its events. Addresses and ports are in host
// byte order.

#pragma once

#include "DatagramSystemCalls.h"
#include "conversation/HeardUnits.h"
#include "support/Error.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace kx {

// An error that came back for a datagram: an ICMP message, or the host's own report that nobody
// answers for the address.
struct DeliveryFailure {
    std::uint32_t destination = 0; // of the datagram
    int error = 0;                 // as in errno(3): ECONNREFUSED, EHOSTUNREACH and so on
    std::uint32_t reporter = 0;    // who said it; 0 when it is this host itself
};

class DiagnosticSocket {
public:
    virtual ~DiagnosticSocket() = default;

    // The port from which it sends.
    virtual std::uint16_t port() const = 0;

    // Sends one datagram. The result is absent when it left. A socket that is bound to an interface
    // needs no link.
    virtual std::optional<Error> send(std::string_view text, const UnitTarget& target) = 0;
};

class DiagnosticSockets {
public:
    struct Wish {
        // The only interface by which it sends and hears; empty for all of them. Such a socket is
        // not told when this host itself gives up a datagram.
        std::string interface;
        std::uint16_t port = 0; // to listen on; 0 for any
    };
    struct Events {
        std::function<void(ByteView data, std::uint32_t sender, std::uint16_t port)> received;
        std::function<void(const DeliveryFailure&)> failed; // may be empty
    };

    virtual ~DiagnosticSockets() = default;

    // Null when the system refuses, for example because another program has the port. Datagrams go
    // through `calls`, which must outlive the socket.
    virtual std::unique_ptr<DiagnosticSocket> open(DatagramSystemCalls& calls, const Wish& wish,
                                                   Events events) = 0;
};

} // namespace kx
