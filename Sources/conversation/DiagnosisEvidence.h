// What is known about a discovery that a unit did not answer: facts that were looked up, asked for
// or heard. It accuses nobody; conversation/Diagnosis.h draws the conclusions.
//
// A value; any thread. Addresses and ports are in host byte order, hardware addresses are texts
// such as "02:4B:58:00:00:01", texts are UTF-8.

#pragma once

#include "conversation/HeardUnits.h"
#include "conversation/HostDiagnostics.h"
#include "conversation/HostInterface.h"
#include "conversation/NeighbourTable.h"
#include "support/Error.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kx {

// Whether the listener heard a broadcast of this host. The system delivers a broadcast to its
// sender too, so one that does not come back was taken away on this host.
enum class OwnBroadcast { untested, heard, notHeard };

// What the listener has done and heard since it was started.
struct ListenerEvidence {
    std::uint16_t port = 0; // 0 when it was never started
    bool isListening = false;
    std::optional<Error> startError = {};

    bool hasAsked = false;               // a request to everybody left
    bool hasAskedNow = false;            // and while this evidence was gathered
    std::optional<Error> sendError = {}; // why the latest one did not
    OwnBroadcast ownBroadcast = OwnBroadcast::untested;

    HeardUnits units{4096};
    bool isWhole = true;             // false when more came than was looked at
    std::uint32_t notUnderstood = 0; // datagrams that look like answers and cannot be decoded
    std::uint32_t foreign = 0;       // datagrams that look like nothing that is known
    std::uint32_t dropped = 0;       // by the system, before they were read
};

// How the host's counters rose. Windows in which answers to a request are due stand against the
// quiet time between them.
struct CounterRises {
    int requests = 0;                     // windows behind a request; 0 when nothing was counted
    int requestsWithWrongReversePath = 0; // those in which the filter took something
    std::uint64_t wrongReversePath = 0;
    std::uint64_t wrongReversePathInQuiet = 0; // of them in the quiet time
    std::uint64_t takenAway = 0; // came, and was neither handed on nor filtered by its path
    std::uint64_t withoutListener = 0;
};

// A fixed entry of the neighbour table that names another hardware address than the unit.
struct WrongEntry {
    std::uint32_t address = 0;
    std::string entered;
    std::string told;    // by the unit
    bool isDeaf = false; // what was sent to the address itself was not answered
};

// A unit that answered to another port than the one from which it was asked.
struct AnswerOnPort {
    std::uint16_t port = 0;
    HeardUnit unit;
};

// The unit or the address that a person has named.
struct TargetEvidence {
    std::string name;                 // as a person reads it
    std::uint32_t address = 0;        // 0 while it is not known
    std::uint16_t port = 0;           // to which it was asked
    std::string hardwareAddress = {}; // as the unit tells it; empty when it has not told any
    bool answersBroadcast = false;
    bool answersItsAddress = false;
    std::optional<HostRoute> route = {};
    std::optional<Neighbour> neighbour = {};
    std::optional<Error> sendError = {};
    int failure = 0;            // an errno(3) that came back for a request; 0 for none
    std::uint32_t reporter = 0; // who said so; 0 when it was this host itself
};

struct DiagnosisEvidence {
    std::string interfaceName;              // empty when there is none
    std::optional<HostInterface> interface; // absent when the host has none of this name
    ListenerEvidence listener;
    std::optional<PortOwner> portOwner = {}; // only where the port is taken

    // Asked by sockets of its own, on this link only.
    bool hasAskedLink = false; // 255.255.255.255
    HeardUnits linkUnits{4096};
    std::uint32_t linkNotUnderstood = 0; // answers to it that cannot be decoded
    bool hasAskedHosts = false;          // hosts whose addresses are known, one by one
    bool hostHasAnswered = false;
    std::vector<AnswerOnPort> answersOnOtherPorts = {};

    // Looked up.
    std::vector<HostRoute> subnetRoutes = {}; // to hosts of the interface's first network
    std::optional<int> reversePathFilter = {};
    CounterRises counters = {};
    std::vector<FirewallService> firewallServices = {}; // only where a firewall is the cause
    std::vector<WrongEntry> wrongEntries = {};

    std::optional<TargetEvidence> target = {};
};

} // namespace kx
