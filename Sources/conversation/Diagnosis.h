// Why no unit answers, or why one does not: checks and ranked causes from evidence.
//
// Pure; any thread. A cause is named only where the evidence shows it. The host's counters belong
// to everybody who sends to this host, so they never accuse alone.

#pragma once

#include "conversation/DiagnosisEvidence.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

// The weightiest cause comes first: what keeps a request from leaving, then what keeps every answer
// away, then what concerns some units only.
enum class Cause {
    noLink,
    noAddress,
    portTaken,
    sendRefused,
    noRoute,
    firewall,
    firewallUnicastOnly, // answers to broadcasts are not let in, other answers are
    reversePath,
    otherPort,
    otherSubnet,
    sameAddress,
    staleARP, // a fixed entry with another hardware address
    dropped,
    nobodyOnPort,
    noHost,
    notUnderstood,
    nothingArrived,
};

inline constexpr std::array allCauses{Cause::noLink,
                                      Cause::noAddress,
                                      Cause::portTaken,
                                      Cause::sendRefused,
                                      Cause::noRoute,
                                      Cause::firewall,
                                      Cause::firewallUnicastOnly,
                                      Cause::reversePath,
                                      Cause::otherPort,
                                      Cause::otherSubnet,
                                      Cause::sameAddress,
                                      Cause::staleARP,
                                      Cause::dropped,
                                      Cause::nobodyOnPort,
                                      Cause::noHost,
                                      Cause::notUnderstood,
                                      Cause::nothingArrived};

// The name that scripts read, for example "no-link".
std::string_view idOfCause(Cause cause);

enum class CheckState {
    ok,
    warn, // worth a look, and no reason why nothing answers
    fail,
    unknown, // it could not be found out, or was not asked for
};

std::string_view idOfState(CheckState state);

enum class CheckKind {
    link,
    address,
    port,
    send,
    route,
    ownBroadcast,
    answers,
    understood,
    dropped,
    otherPorts,
    otherSubnets,
    reversePath,
    addresses, // two units of one address
    entries,   // fixed entries of the neighbour table
    target,    // only when a unit or an address is named
};

// The name that scripts read, for example "own-broadcast".
std::string_view idOfCheck(CheckKind kind);

struct Check {
    CheckKind kind = CheckKind::link;
    CheckState state = CheckState::unknown;
    std::optional<Cause> cause = {}; // why it fails

    friend bool operator==(const Check&, const Check&) = default;
};

struct Diagnosis {
    std::vector<Check> checks; // in the order of the way from this host to a unit and back
    std::vector<Cause> causes; // the likeliest first

    // Units answer, the named one included, and no check fails.
    bool isHealthy = false;
};

Diagnosis diagnosisOf(const DiagnosisEvidence& evidence);

// --- Facts that the sentences about a diagnosis need too ---

// The interface carries datagrams and has an address.
bool canAsk(const DiagnosisEvidence& evidence);

// The units that answer 255.255.255.255 and not the listener's request to the subnet's broadcast
// address. Where others answer the listener, only those outside the networks of the interface
// count, because a single answer may have been lost.
std::vector<const HeardUnit*> unitsOfOtherSubnets(const DiagnosisEvidence& evidence);

// The units that answered on another port and not the listener.
std::vector<const AnswerOnPort*> unitsOnOtherPorts(const DiagnosisEvidence& evidence);

struct SharedAddress {
    std::uint32_t address = 0;
    std::vector<std::string>
        units; // their serial numbers; hardware addresses where those are equal
};

// The addresses that several units hold.
std::vector<SharedAddress> sharedAddresses(const DiagnosisEvidence& evidence);

// A host that is not the named unit answers for its address.
bool targetHasAnotherHolder(const DiagnosisEvidence& evidence);

// The reverse path filter is on and took datagrams behind every request, and none in between.
bool reversePathFilterTakesAnswers(const DiagnosisEvidence& evidence);

} // namespace kx
