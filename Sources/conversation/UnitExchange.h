// The one session of a program that asks units and listens to several questions at the same time.
//
// It opens the session on the first port that is free, sends, and hands every answer to all of its
// listeners. It also counts the datagrams that were no answers.
//
// Threading: everything on the thread of the run loop; nothing blocks. Ownership: the services must
// outlive the exchange, and the exchange must outlive its listeners.

#pragma once

#include "conversation/HeardUnits.h"
#include "conversation/UnitSession.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

// Time on a clock that only moves on. Its beginning has no meaning.
using MonotonicClock = std::function<std::chrono::milliseconds()>;

// An answer of a unit that is no list of parameters.
struct UnitAnswer {
    std::optional<std::string> serialNumber; // as the answer's header tells it
    bool isAcknowledgement = false;
    Bytes bytes;              // from the payload marker on
    std::uint32_t sender = 0; // address from which it came
};

// Why the session could not be opened.
struct OpenFailure {
    bool arePortsTaken = false;
    Error error;
};

class UnitExchange final : private UnitSessionObserver {
public:
    struct Services {
        UnitSession::Services session;
        MonotonicClock now;
    };

    // Hears every answer from its construction to its destruction.
    class Listener {
    public:
        explicit Listener(UnitExchange& exchange);
        virtual ~Listener();
        Listener(const Listener&) = delete;
        Listener& operator=(const Listener&) = delete;

        virtual void unitDidTell(const HeardUnit& unit);
        virtual void unitDidAnswer(const UnitAnswer& answer);

    protected:
        UnitExchange& exchange() const { return _exchange; }

    private:
        UnitExchange& _exchange;
    };

    explicit UnitExchange(const Services& services);
    ~UnitExchange() override;

    // The addresses of this host: its own broadcast, which it also hears, is no rejected datagram.
    void setOwnAddresses(std::vector<std::uint32_t> addresses);

    // Listens on the first of these ports that is free. Absent when it listens.
    std::optional<OpenFailure> open(std::span<const std::uint16_t> ports);

    // 0 while it does not listen.
    std::uint16_t port() const { return _port; }

    // Sends one datagram. The result is absent when it was sent.
    std::optional<SendFailure> send(std::string_view command, const UnitTarget& target);

    // Datagrams that were no answers of units, or could not be decoded.
    std::uint32_t rejected() const { return _received - _understood; }

    // Datagrams that the system had no room for, up to now.
    std::uint32_t dropped();

    RunLoop& runLoop() const { return _services.session.runLoop; }
    std::chrono::milliseconds now() const { return _services.now(); }

private:
    void sessionDidStop(const Error& error) override;
    void sessionDidReceiveDatagram(std::size_t length, const DatagramOrigin& origin) override;
    void unitDidTellParameters(const Reply& reply, const DecodedUnitParameters& parameters,
                               const DatagramOrigin& origin) override;
    void unitDidAccept(const Reply& reply, const DatagramOrigin& origin) override;
    void unitDidSendOtherReply(const Reply& reply, const DatagramOrigin& origin) override;

    void tellAnswer(const Reply& reply, bool isAcknowledgement, const DatagramOrigin& origin);
    bool isOwnRequest(const Reply& reply, const DatagramOrigin& origin) const;
    template<class Action>
    void tellListeners(const Action& action);

    Services _services;
    UnitRegistry _registry{2}; // nobody looks into it
    UnitSession _session;
    std::vector<Listener*> _listeners;
    std::vector<std::uint32_t> _ownAddresses;
    std::uint16_t _port = 0;
    std::optional<Error> _stopError;
    std::chrono::milliseconds _latestRequest{0};
    std::uint32_t _received = 0;
    std::uint32_t _understood = 0;
};

} // namespace kx
