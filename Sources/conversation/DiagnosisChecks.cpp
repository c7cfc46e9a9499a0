// The list of checks behind a diagnosis.

#include "conversation/Diagnosis.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace kx {

namespace {

using Evidence = DiagnosisEvidence;

class CheckList {
public:
    CheckList(const Evidence& evidence, const std::vector<Cause>& causes)
        : _evidence(evidence)
        , _causes(causes) {}

    // Fails where one of these is a cause, and is otherwise in this state.
    void add(CheckKind kind, std::initializer_list<Cause> causes, CheckState otherwise) {
        for (const Cause cause : causes) {
            if (std::ranges::find(_causes, cause) != _causes.end()) {
                checks.push_back({.kind = kind, .state = CheckState::fail, .cause = cause});
                return;
            }
        }
        checks.push_back({.kind = kind, .state = otherwise, .cause = {}});
    }

    // Unknown where nothing was asked.
    void addAsked(CheckKind kind, std::initializer_list<Cause> causes, bool isKnown,
                  CheckState otherwise = CheckState::ok) {
        add(kind, causes, isKnown && canAsk(_evidence) ? otherwise : CheckState::unknown);
    }

    std::vector<Check> checks;

private:
    const Evidence& _evidence;
    const std::vector<Cause>& _causes;
};

CheckState warnIf(bool isOdd) {
    return isOdd ? CheckState::warn : CheckState::ok;
}

CheckState stateOfLink(const Evidence& evidence) {
    return warnIf(!evidence.interface.has_value() || !evidence.interface->canBroadcast);
}

bool subnetRouteIsOdd(const Evidence& evidence) {
    return std::ranges::any_of(evidence.subnetRoutes, [&evidence](const HostRoute& route) {
        return !route.exists || route.link != evidence.interface->link;
    });
}

// Units may have come since the listener asked; they then answer another socket.
void addAnswers(const Evidence& evidence, CheckList& list) {
    if (evidence.listener.units.count() > 0) {
        list.add(CheckKind::answers, {}, CheckState::ok);
    } else {
        const bool haveCome = !evidence.listener.hasAskedNow && evidence.linkUnits.count() > 0;
        list.addAsked(CheckKind::answers, {Cause::nothingArrived}, evidence.listener.hasAsked,
                      haveCome ? CheckState::warn : CheckState::fail);
    }
}

void addTarget(const TargetEvidence& target, CheckList& list) {
    const bool isThere = target.address != 0 ? target.answersItsAddress : target.answersBroadcast;
    if (isThere) {
        list.add(CheckKind::target, {}, CheckState::ok);
    } else {
        list.addAsked(CheckKind::target,
                      {Cause::noRoute, Cause::staleARP, Cause::sameAddress, Cause::nobodyOnPort,
                       Cause::noHost, Cause::nothingArrived},
                      true, CheckState::fail);
    }
}

} // namespace

std::vector<Check> checksOf(const DiagnosisEvidence& evidence, const std::vector<Cause>& causes) {
    const ListenerEvidence& listener = evidence.listener;
    CheckList list(evidence, causes);
    list.add(CheckKind::link, {Cause::noLink}, stateOfLink(evidence));
    list.add(CheckKind::address, {Cause::noAddress},
             evidence.interface.has_value() ? CheckState::ok : CheckState::unknown);
    list.add(CheckKind::port, {Cause::portTaken},
             listener.isListening ? CheckState::ok : CheckState::unknown);
    list.addAsked(CheckKind::send, {Cause::sendRefused}, listener.hasAsked);
    list.addAsked(CheckKind::route, {Cause::noRoute}, !evidence.subnetRoutes.empty(),
                  warnIf(subnetRouteIsOdd(evidence)));
    list.addAsked(CheckKind::ownBroadcast, {Cause::firewall, Cause::firewallUnicastOnly},
                  listener.ownBroadcast != OwnBroadcast::untested,
                  warnIf(listener.ownBroadcast == OwnBroadcast::notHeard));
    list.addAsked(CheckKind::reversePath, {Cause::reversePath},
                  evidence.reversePathFilter.has_value());
    addAnswers(evidence, list);
    list.addAsked(CheckKind::understood, {Cause::notUnderstood}, listener.isListening,
                  warnIf(listener.notUnderstood + evidence.linkNotUnderstood > 0));
    list.add(CheckKind::dropped, {Cause::dropped},
             listener.isListening ? CheckState::ok : CheckState::unknown);
    list.addAsked(CheckKind::otherPorts, {Cause::otherPort}, evidence.hasAskedLink);
    list.addAsked(CheckKind::otherSubnets, {Cause::otherSubnet}, evidence.hasAskedLink);
    list.addAsked(CheckKind::addresses, {Cause::sameAddress}, evidence.hasAskedLink);
    list.addAsked(CheckKind::entries, {Cause::staleARP}, true,
                  warnIf(!evidence.wrongEntries.empty()));
    if (evidence.target.has_value()) {
        addTarget(*evidence.target, list);
    }
    return std::move(list.checks);
}

std::string_view idOfState(CheckState state) {
    constexpr std::array<std::string_view, 4> ids{"ok", "warn", "fail", "unknown"};
    return ids[static_cast<std::size_t>(state)];
}

std::string_view idOfCheck(CheckKind kind) {
    constexpr std::array<std::string_view, 15> ids{
        "link",          "address",      "port",         "send",        "route",
        "own-broadcast", "answers",      "understood",   "dropped",     "other-ports",
        "other-subnets", "reverse-path", "same-address", "arp-entries", "target"};
    return ids[static_cast<std::size_t>(kind)];
}

} // namespace kx
