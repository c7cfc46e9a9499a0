// Gathers the evidence for a diagnosis: looks up what this host knows, asks with sockets of its
// own, and reads what the listener has heard.
//
// It takes 0.8 s. Where a named host does not answer for its address, it waits until the system has
// given up asking for the hardware address, 3.4 s in all.
//
// It sends, three times, a request to 255.255.255.255 by the interface, one to the broadcast
// address on the listener's port, which no unit takes and which only the listener hears, and one to
// each host that is asked alone: the named one, units behind a wrong entry, and, as long as nobody
// answers, a few hosts of the neighbour table.
//
// Threading and ownership: see Operation.h. The services must outlive the search.

#pragma once

#include "conversation/DiagnosisEvidence.h"
#include "conversation/DiagnosticSockets.h"
#include "conversation/ListenerWitness.h"
#include "conversation/Operation.h"
#include "conversation/UnitExchange.h"
#include "support/RunLoop.h"
#include "units/UnitName.h"

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <variant>
#include <vector>

namespace kx {

// The unit or the address of which a person asks why it does not answer.
using DiagnosisTarget = std::variant<UnitName, std::uint32_t>;

struct DiagnosisQuestion {
    std::string interfaceName;               // empty when there is none
    std::optional<HostInterface> interface;  // absent when the host has none of this name
    std::vector<std::uint32_t> ownAddresses; // of all interfaces

    std::optional<DiagnosisTarget> target = {};
    std::string targetName = {}; // as a person reads it

    // The unit's record where it is known from before; its address is asked then.
    std::optional<UnitRecord> knownRecord = {};

    // Sends the listener's request to everybody; empty when the listener must not send.
    std::function<void()> ask = {};
};

class EvidenceSearch final : public Operation {
public:
    struct Services {
        RunLoop& runLoop;
        MonotonicClock now;
        ListenerWitness& witness;
        DatagramSystemCalls& systemCalls; // of its own sockets
        DiagnosticSockets& sockets;
        HostDiagnostics& host;
        NeighbourTable& neighbours;
    };

    static constexpr std::chrono::milliseconds firstRequest{60};
    static constexpr std::chrono::milliseconds timeBetweenRequests{240};
    static constexpr std::chrono::milliseconds timeForAnswers{100};
    static constexpr int requests = 3;
    static constexpr std::chrono::milliseconds usualTime{800};
    static constexpr std::chrono::milliseconds longestTime{3400};

    EvidenceSearch(const Services& services, DiagnosisQuestion question);
    ~EvidenceSearch() override;

    const DiagnosisEvidence& evidence() const { return _evidence; }

    // Instead of begin(): gathers what the listener has heard and the host knows, and sends
    // nothing. The listener's latest request counts as one of now.
    void look();

    // Ends with what is known by now.
    void interrupt() override { finish(); }

private:
    // A host that is asked alone.
    struct Host {
        std::uint16_t port = 0;
        bool hasAnswered = false;
    };

    void start() override;
    void lookUp();
    void beginTarget();
    void openSockets();
    void openOtherPorts();
    void request();
    bool askListener(std::uint16_t port);
    void requestFromHosts();
    void askHost(std::uint32_t address);
    void afterRequest();
    void count(bool isBehindRequest);
    std::vector<const HeardUnit*> meantAmong(const HeardUnits& units) const;
    void findTarget();
    void compareEntries();
    void chooseNeighbours();
    void finishOrWait();
    void finish();
    void readListener();
    void conclude();

    void linkDidReceive(ByteView data, std::uint32_t sender, std::uint16_t port);
    void hostDidAnswer(ByteView data, std::uint32_t sender);
    void deliveryDidFail(const DeliveryFailure& failure);
    std::uint32_t link() const { return _interface.link; }

    Services _services;
    DiagnosisQuestion _question;
    HostInterface _interface; // of the question; empty without one
    DiagnosisEvidence _evidence;
    std::chrono::milliseconds _begun{0};
    std::unique_ptr<DiagnosticSocket> _everybody; // asks 255.255.255.255 by the interface
    std::unique_ptr<DiagnosticSocket> _single;    // asks hosts one by one
    std::vector<std::unique_ptr<DiagnosticSocket>> _otherPorts;
    std::map<std::uint32_t, Host> _hosts; // by address
    std::size_t _chosenNeighbours = 0;    // among them
    std::optional<HostCounters> _lastCounters;
    bool _probeLeft = false;       // a request that the listener must hear
    bool _listenerWasTold = false; // to ask
    int _requests = 0;
    RunLoop::Handle _nextRequest;
    RunLoop::Handle _nextCount;
    RunLoop::Handle _deadline;
};

} // namespace kx
