#include "conversation/Diagnosis.h"

#include "addresses/IPv4Address.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <map>
#include <set>

namespace kx {

namespace {

using Evidence = DiagnosisEvidence;

// --- Short questions to the evidence ---

bool hasCode(const std::optional<Error>& error, int code) {
    return error.has_value() && error->code == code;
}

// No route leads there, or one says that nothing is to be sent there.
bool isRouteError(const std::optional<Error>& error) {
    return hasCode(error, ENETUNREACH) || hasCode(error, EHOSTUNREACH);
}

bool isAnswered(const Evidence& evidence) {
    return evidence.listener.units.count() > 0;
}

// The unit that a person looks for does not answer; without one, nobody does. Units may have come
// since the listener asked.
bool isMissing(const Evidence& evidence) {
    if (const auto& target = evidence.target) {
        return target->address != 0 ? !target->answersItsAddress : !target->answersBroadcast;
    }
    return !isAnswered(evidence) &&
           (evidence.listener.hasAskedNow || evidence.linkUnits.count() == 0);
}

// What is known of the named address when nobody answers there; null otherwise.
const TargetEvidence* silentTarget(const Evidence& evidence) {
    const auto& target = evidence.target;
    return target.has_value() && target->address != 0 && !target->answersItsAddress ? &*target
                                                                                    : nullptr;
}

bool hasAnsweredListener(const Evidence& evidence, const HeardUnit& unit) {
    return !evidence.listener.units.named(SerialNumberOfUnit{std::string(unit.serialNumber())})
                .empty();
}

bool lacksSubnetRoute(const Evidence& evidence) {
    return std::ranges::any_of(evidence.subnetRoutes,
                               [](const HostRoute& route) { return !route.exists; });
}

// The routes to the interface's own network lead elsewhere.
bool subnetRouteLeadsElsewhere(const Evidence& evidence) {
    return std::ranges::any_of(evidence.subnetRoutes, [&evidence](const HostRoute& route) {
        return route.exists && (route.link != evidence.interface->link || route.gateway != 0);
    });
}

bool hasNoTargetRoute(const Evidence& evidence) {
    const TargetEvidence* const target = silentTarget(evidence);
    return target != nullptr && ((target->route.has_value() && !target->route->exists) ||
                                 isRouteError(target->sendError));
}

// --- A cause each ---

bool hasNoLink(const Evidence& evidence) {
    return !evidence.interface.has_value() || !evidence.interface->isRunning;
}

bool hasNoAddress(const Evidence& evidence) {
    return evidence.interface.has_value() && evidence.interface->networks.empty();
}

bool portIsTaken(const Evidence& evidence) {
    return hasCode(evidence.listener.startError, EADDRINUSE);
}

bool sendIsRefused(const Evidence& evidence) {
    const auto isRefusal = [](const std::optional<Error>& error) {
        return error.has_value() && !isRouteError(error);
    };
    return canAsk(evidence) &&
           (isRefusal(evidence.listener.sendError) ||
            (evidence.target.has_value() && isRefusal(evidence.target->sendError)));
}

bool hasNoRoute(const Evidence& evidence) {
    return canAsk(evidence) &&
           (isRouteError(evidence.listener.sendError) || hasNoTargetRoute(evidence) ||
            (!isAnswered(evidence) && lacksSubnetRoute(evidence)));
}

bool isShutOff(const Evidence& evidence) {
    return canAsk(evidence) && evidence.listener.ownBroadcast == OwnBroadcast::notHeard &&
           !isAnswered(evidence);
}

bool firewallStands(const Evidence& evidence) {
    return isShutOff(evidence) && !evidence.hostHasAnswered;
}

bool firewallKnowsUnicastOnly(const Evidence& evidence) {
    return isShutOff(evidence) && evidence.hostHasAnswered;
}

bool reversePathFails(const Evidence& evidence) {
    return canAsk(evidence) && !isAnswered(evidence) && !lacksSubnetRoute(evidence) &&
           reversePathFilterTakesAnswers(evidence);
}

bool answersGoToOtherPort(const Evidence& evidence) {
    return canAsk(evidence) && !unitsOnOtherPorts(evidence).empty();
}

// Where the routes of the interface's own network are right, an answer that the reverse path filter
// takes comes from another network.
bool unitsAreOfOtherSubnet(const Evidence& evidence) {
    return canAsk(evidence) && (!unitsOfOtherSubnets(evidence).empty() ||
                                (reversePathFails(evidence) && !evidence.subnetRoutes.empty() &&
                                 !subnetRouteLeadsElsewhere(evidence)));
}

bool addressIsShared(const Evidence& evidence) {
    return canAsk(evidence) &&
           (!sharedAddresses(evidence).empty() || targetHasAnotherHolder(evidence));
}

bool entryIsWrong(const Evidence& evidence) {
    return canAsk(evidence) && std::ranges::any_of(evidence.wrongEntries, &WrongEntry::isDeaf);
}

bool datagramsAreDropped(const Evidence& evidence) {
    return evidence.listener.dropped > 0;
}

bool nobodyReadsPort(const Evidence& evidence) {
    const TargetEvidence* const target = silentTarget(evidence);
    return canAsk(evidence) && target != nullptr && target->failure == ECONNREFUSED;
}

bool hostIsNotThere(const Evidence& evidence) {
    const TargetEvidence* const target = silentTarget(evidence);
    if (!canAsk(evidence) || target == nullptr) {
        return false;
    }
    return target->failure == EHOSTUNREACH ||
           (target->neighbour.has_value() && target->neighbour->state == NeighbourState::failed);
}

// Strangers send to the listener's port; to a port that was opened a moment ago they do not. So
// what came to the listener counts only when nothing else was asked.
bool answersAreNotUnderstood(const Evidence& evidence) {
    const bool looksSo = evidence.hasAskedLink ? evidence.linkNotUnderstood > 0
                                               : evidence.listener.notUnderstood > 0;
    return canAsk(evidence) && looksSo && !isAnswered(evidence) && evidence.linkUnits.count() == 0;
}

struct Rule {
    Cause cause;
    bool (*applies)(const Evidence&);
};

constexpr std::array rules{
    Rule{Cause::noLink, hasNoLink},
    Rule{Cause::noAddress, hasNoAddress},
    Rule{Cause::portTaken, portIsTaken},
    Rule{Cause::sendRefused, sendIsRefused},
    Rule{Cause::noRoute, hasNoRoute},
    Rule{Cause::firewall, firewallStands},
    Rule{Cause::firewallUnicastOnly, firewallKnowsUnicastOnly},
    Rule{Cause::reversePath, reversePathFails},
    Rule{Cause::otherPort, answersGoToOtherPort},
    Rule{Cause::otherSubnet, unitsAreOfOtherSubnet},
    Rule{Cause::sameAddress, addressIsShared},
    Rule{Cause::staleARP, entryIsWrong},
    Rule{Cause::dropped, datagramsAreDropped},
    Rule{Cause::nobodyOnPort, nobodyReadsPort},
    Rule{Cause::noHost, hostIsNotThere},
    Rule{Cause::notUnderstood, answersAreNotUnderstood},
};
static_assert(rules.size() + 1 == allCauses.size()); // nothingArrived is what remains

// Nothing speaks for any other cause. A fixed entry hides whether anybody is at the address, so it
// is the first thing to look at there.
std::optional<Cause> remainingCause(const Evidence& evidence) {
    if (!canAsk(evidence) || !isMissing(evidence) || !evidence.listener.hasAsked) {
        return std::nullopt;
    }
    const auto& target = evidence.target;
    const bool hasFixedEntry = target.has_value() && target->neighbour.has_value() &&
                               target->neighbour->state == NeighbourState::permanent;
    return hasFixedEntry && target->hardwareAddress.empty() ? Cause::staleARP
                                                            : Cause::nothingArrived;
}

} // namespace

bool canAsk(const DiagnosisEvidence& evidence) {
    return evidence.interface.has_value() && evidence.interface->isRunning &&
           evidence.interface->canBroadcast && !evidence.interface->networks.empty();
}

std::vector<const HeardUnit*> unitsOfOtherSubnets(const DiagnosisEvidence& evidence) {
    std::vector<const HeardUnit*> found;
    if (!evidence.interface.has_value()) {
        return found;
    }
    const bool nobodyTakesBroadcast = evidence.listener.hasAskedNow && evidence.listener.isWhole &&
                                      evidence.listener.ownBroadcast == OwnBroadcast::heard &&
                                      !isAnswered(evidence);
    std::ranges::copy_if(evidence.linkUnits.all(), std::back_inserter(found),
                         [&](const HeardUnit* unit) {
                             return nobodyTakesBroadcast ||
                                    (evidence.interface->networkOf(unit->sender) == nullptr &&
                                     !hasAnsweredListener(evidence, *unit));
                         });
    return found;
}

std::vector<const AnswerOnPort*> unitsOnOtherPorts(const DiagnosisEvidence& evidence) {
    std::vector<const AnswerOnPort*> found;
    for (const AnswerOnPort& answer : evidence.answersOnOtherPorts) {
        if (!hasAnsweredListener(evidence, answer.unit)) {
            found.push_back(&answer);
        }
    }
    return found;
}

std::vector<SharedAddress> sharedAddresses(const DiagnosisEvidence& evidence) {
    std::map<std::uint32_t, std::set<UnitIdentity>> holders;
    for (const HeardUnit* const unit : evidence.linkUnits.all()) {
        const auto told = unit->record.value(UnitParameter::internalIPAddress);
        const std::uint32_t address = told.has_value() ? ipForString(*told) : 0;
        if (address != 0) {
            holders[address].insert(identityOf(*unit));
        }
    }
    std::vector<SharedAddress> shared;
    for (const auto& [address, units] : holders) {
        if (units.size() < 2) {
            continue;
        }
        const bool isOneSerial = units.begin()->serialNumber == units.rbegin()->serialNumber;
        SharedAddress& each = shared.emplace_back(SharedAddress{.address = address, .units = {}});
        for (const auto& [serial, hardware] : units) {
            each.units.push_back(isOneSerial ? hardware : serial);
        }
    }
    return shared;
}

bool targetHasAnotherHolder(const DiagnosisEvidence& evidence) {
    const TargetEvidence* const target = silentTarget(evidence);
    return target != nullptr && target->neighbour.has_value() &&
           target->neighbour->state == NeighbourState::reachable &&
           !target->hardwareAddress.empty() &&
           target->neighbour->hardwareAddress != target->hardwareAddress;
}

bool reversePathFilterTakesAnswers(const DiagnosisEvidence& evidence) {
    const CounterRises& counters = evidence.counters;
    return evidence.reversePathFilter.value_or(0) != 0 && counters.requests >= 2 &&
           counters.requestsWithWrongReversePath == counters.requests &&
           counters.wrongReversePathInQuiet == 0;
}

std::vector<Check> checksOf(const DiagnosisEvidence& evidence, const std::vector<Cause>& causes);

Diagnosis diagnosisOf(const DiagnosisEvidence& evidence) {
    Diagnosis diagnosis;
    for (const Rule& rule : rules) {
        if (rule.applies(evidence)) {
            diagnosis.causes.push_back(rule.cause);
        }
    }
    if (diagnosis.causes.empty()) {
        if (const auto remaining = remainingCause(evidence)) {
            diagnosis.causes.push_back(*remaining);
        }
    }
    diagnosis.checks = checksOf(evidence, diagnosis.causes);
    diagnosis.isHealthy = diagnosis.causes.empty() && !isMissing(evidence) &&
                          std::ranges::none_of(diagnosis.checks, [](const Check& check) {
                              return check.state == CheckState::fail;
                          });
    return diagnosis;
}

std::string_view idOfCause(Cause cause) {
    constexpr std::array<std::string_view, allCauses.size()> ids{"no-link",
                                                                 "no-address",
                                                                 "port-taken",
                                                                 "send-refused",
                                                                 "no-route",
                                                                 "firewall",
                                                                 "firewall-unicast-only",
                                                                 "reverse-path",
                                                                 "other-port",
                                                                 "other-subnet",
                                                                 "same-address",
                                                                 "stale-arp",
                                                                 "dropped",
                                                                 "nobody-on-port",
                                                                 "no-host",
                                                                 "not-understood",
                                                                 "nothing-arrived"};
    return ids[static_cast<std::size_t>(cause)];
}

} // namespace kx
