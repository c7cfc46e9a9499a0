// Sockets of a diagnosis on a network that the test plays. Every datagram is recorded; the test
// answers from inside `onSend`, or later by the events of an open socket.

#pragma once

#include "conversation/DiagnosticSockets.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace kx {

class ScriptedDiagnosticSockets final : public DiagnosticSockets {
public:
    class Socket final : public DiagnosticSocket {
    public:
        Socket(ScriptedDiagnosticSockets& network, Wish theWish, Events theEvents,
               std::uint16_t itsPort)
            : wish(std::move(theWish))
            , events(std::move(theEvents))
            , _network(network)
            , _port(itsPort) {
            _network.sockets.push_back(this);
        }
        ~Socket() override { std::erase(_network.sockets, this); }
        Socket(const Socket&) = delete;
        Socket& operator=(const Socket&) = delete;

        std::uint16_t port() const override { return _port; }
        std::optional<Error> send(std::string_view text, const UnitTarget& target) override {
            const Sent datagram{.interface = wish.interface,
                                .text = std::string(text),
                                .address = target.address,
                                .port = target.port,
                                .link = target.link};
            _network.sent.push_back(datagram);
            return _network.onSend ? _network.onSend(*this, datagram) : std::nullopt;
        }

        Wish wish;
        Events events;

    private:
        ScriptedDiagnosticSockets& _network;
        std::uint16_t _port;
    };

    struct Sent {
        std::string interface;
        std::string text;
        std::uint32_t address = 0;
        std::uint16_t port = 0;
        std::uint32_t link = 0;
    };

    std::vector<Socket*> sockets; // those that are open
    std::vector<Sent> sent;
    std::set<std::uint16_t> takenPorts;
    bool isRefused = false; // no socket opens
    std::function<std::optional<Error>(Socket&, const Sent&)> onSend;

    std::unique_ptr<DiagnosticSocket> open(DatagramSystemCalls& /*calls*/, const Wish& wish,
                                           Events events) override {
        if (isRefused || takenPorts.contains(wish.port)) {
            return nullptr;
        }
        const std::uint16_t port = wish.port != 0 ? wish.port : _nextPort++;
        return std::make_unique<Socket>(*this, wish, std::move(events), port);
    }

    // The open socket that listens on this port; null when there is none.
    Socket* onPort(std::uint16_t port) {
        const auto found = std::ranges::find_if(
            sockets, [port](const Socket* socket) { return socket->port() == port; });
        return found != sockets.end() ? *found : nullptr;
    }

private:
    std::uint16_t _nextPort = 40000;
};

} // namespace kx
