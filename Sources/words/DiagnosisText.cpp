#include "words/DiagnosisText.h"

#include "addresses/IPv4Address.h"
#include "support/LocalizedText.h"
#include "words/QuotedText.h"

#include <algorithm>

namespace kx {

namespace {

using Evidence = DiagnosisEvidence;

std::string interfaceIn(const Evidence& evidence) {
    return safeForSentence(evidence.interfaceName);
}

HostInterface interfaceOf(const Evidence& evidence) {
    return evidence.interface.value_or(HostInterface());
}

// Empty where nothing is named.
TargetEvidence targetOf(const Evidence& evidence) {
    return evidence.target.value_or(TargetEvidence());
}

Neighbour neighbourOf(const Evidence& evidence) {
    return targetOf(evidence).neighbour.value_or(Neighbour());
}

std::string targetIn(const Evidence& evidence) {
    const TargetEvidence target = targetOf(evidence);
    return target.name.empty() ? stringForIP(target.address) : safeForSentence(target.name);
}

// Why the system refused to send: the listener's request, or the one to the named address.
std::string reasonOfRefusal(const Evidence& evidence) {
    const auto& error = evidence.listener.sendError.has_value() || !evidence.target.has_value()
                            ? evidence.listener.sendError
                            : evidence.target->sendError;
    return error.has_value() ? error->localizedDescription() : std::string();
}

std::string sentenceOfNoLink(const Evidence& evidence) {
    return evidence.interfaceName.empty()
               ? localizedText("This computer has no network interface that reaches units.")
               : localizedText("The interface %@ has no link.", {interfaceIn(evidence)});
}

std::string sentenceOfTakenPort(const Evidence& evidence) {
    const int port = evidence.listener.port;
    const auto& owner = evidence.portOwner;
    if (owner.has_value() && !owner->program.empty()) {
        return localizedText(
            "UDP port %d is taken by %@ (process %d).",
            {port, safeForSentence(owner->program), static_cast<long long>(owner->process)});
    }
    if (owner.has_value() && !owner->user.empty()) {
        return localizedText("UDP port %d is taken by a program of the user %@.",
                             {port, safeForSentence(owner->user)});
    }
    return localizedText("UDP port %d is taken by another program.", {port});
}

std::string sentenceOfNoRoute(const Evidence& evidence) {
    const auto& target = evidence.target;
    if (target.has_value() && target->address != 0 && !target->answersItsAddress &&
        ((target->route.has_value() && !target->route->exists) || target->sendError.has_value())) {
        return localizedText("No route of this computer leads to %@.",
                             {stringForIP(target->address)});
    }
    return localizedText("No route of this computer leads to the units behind the interface %@.",
                         {interfaceIn(evidence)});
}

std::string sentenceOfOtherPort(const Evidence& evidence) {
    const auto units = unitsOnOtherPorts(evidence);
    return localizedText("The unit %@ answers to UDP port %d, and not to the one that asks.",
                         {std::string(units.front()->unit.serialNumber()), units.front()->port});
}

std::string sentenceOfOtherSubnet(const Evidence& evidence) {
    const auto units = unitsOfOtherSubnets(evidence);
    if (units.empty()) {
        return localizedText("Units answer from another network than that of the interface %@.",
                             {interfaceIn(evidence)});
    }
    const HeardUnit& unit = *units.front();
    const std::string serial(unit.serialNumber());
    if (interfaceOf(evidence).networkOf(unit.sender) != nullptr) {
        return localizedText("The unit %@ takes no request to %@, so its network is another one.",
                             {serial, stringForIP(interfaceOf(evidence).broadcast())});
    }
    return localizedText("The unit %@ is at %@, which is not in the network of the interface %@.",
                         {serial, stringForIP(unit.sender), interfaceIn(evidence)});
}

std::string sentenceOfSharedAddress(const Evidence& evidence) {
    const auto shared = sharedAddresses(evidence);
    if (shared.empty()) {
        return localizedText(
            "Another host than the unit answers for %@: %@.",
            {stringForIP(targetOf(evidence).address), neighbourOf(evidence).hardwareAddress});
    }
    std::string units;
    for (const std::string& unit : shared.front().units) {
        units += (units.empty() ? "" : ", ") + unit;
    }
    return localizedText(
        "Several units have the address %@: %@.",
        {stringForIP(shared.front().address), safeForSentence(units, mostCharactersOfSentence)});
}

std::string sentenceOfStaleEntry(const Evidence& evidence) {
    const auto wrong = std::ranges::find_if(evidence.wrongEntries, &WrongEntry::isDeaf);
    if (wrong != evidence.wrongEntries.end()) {
        return localizedText("A fixed ARP entry says that %@ is %@, but the unit there is %@.",
                             {stringForIP(wrong->address), wrong->entered, wrong->told});
    }
    return localizedText(
        "A fixed ARP entry says that %@ is %@, and nobody answers there.",
        {stringForIP(targetOf(evidence).address), neighbourOf(evidence).hardwareAddress});
}

std::string sentenceOfNoHost(const Evidence& evidence) {
    const TargetEvidence target = targetOf(evidence);
    const auto networks = interfaceOf(evidence).networks;
    const bool isReportedByAnother =
        target.reporter != 0 && std::ranges::find(networks, target.reporter,
                                                  &NetworkOfInterface::address) == networks.end();
    return isReportedByAnother
               ? localizedText("%@ says that %@ cannot be reached.",
                               {stringForIP(target.reporter), stringForIP(target.address)})
               : localizedText("No host answers for the address %@.",
                               {stringForIP(target.address)});
}

std::string adviceOfFirewall(const Evidence& evidence) {
    const int port = evidence.listener.port;
    const auto runs = [&evidence](FirewallService service) {
        return std::ranges::find(evidence.firewallServices, service) !=
               evidence.firewallServices.end();
    };
    if (runs(FirewallService::firewalld)) {
        return localizedText("Let the answers in: sudo firewall-cmd --add-port=%d/udp", {port});
    }
    if (runs(FirewallService::ufw)) {
        return localizedText("Let the answers in: sudo ufw allow %d/udp", {port});
    }
    return localizedText("Let UDP to port %d in, in the rules of the firewall.", {port});
}

std::string adviceOfStaleEntry(const Evidence& evidence) {
    const auto wrong = std::ranges::find_if(evidence.wrongEntries, &WrongEntry::isDeaf);
    const std::uint32_t address =
        wrong != evidence.wrongEntries.end() ? wrong->address : targetOf(evidence).address;
    return localizedText("Take the entry out: sudo arp -d %@", {stringForIP(address)});
}

} // namespace

std::string sentenceOfCause(Cause cause, const DiagnosisEvidence& evidence) {
    switch (cause) {
    case Cause::noLink:
        return sentenceOfNoLink(evidence);
    case Cause::noAddress:
        return localizedText("The interface %@ has no IPv4 address.", {interfaceIn(evidence)});
    case Cause::portTaken:
        return sentenceOfTakenPort(evidence);
    case Cause::sendRefused:
        return localizedText("The system refuses to send the request: %@.",
                             {reasonOfRefusal(evidence)});
    case Cause::noRoute:
        return sentenceOfNoRoute(evidence);
    case Cause::firewall:
        return localizedText("A firewall on this computer lets no answers in to UDP port %d.",
                             {evidence.listener.port});
    case Cause::firewallUnicastOnly:
        return localizedText("A firewall on this computer lets no answers to a broadcast in to UDP "
                             "port %d, only those to single requests.",
                             {evidence.listener.port});
    case Cause::reversePath:
        return localizedText("The reverse path filter of the interface %@ takes the answers away.",
                             {interfaceIn(evidence)});
    case Cause::otherPort:
        return sentenceOfOtherPort(evidence);
    case Cause::otherSubnet:
        return sentenceOfOtherSubnet(evidence);
    case Cause::sameAddress:
        return sentenceOfSharedAddress(evidence);
    case Cause::staleARP:
        return sentenceOfStaleEntry(evidence);
    case Cause::dropped:
        return localizedText("The system had no room for %d datagrams. Units may be missing.",
                             {static_cast<long long>(evidence.listener.dropped)});
    case Cause::nobodyOnPort:
        return localizedText("The host %@ is there, but nothing reads its UDP port %d.",
                             {stringForIP(targetOf(evidence).address), targetOf(evidence).port});
    case Cause::noHost:
        return sentenceOfNoHost(evidence);
    case Cause::notUnderstood:
        return localizedText("Something answers, but not as a unit does.");
    case Cause::nothingArrived:
        break;
    }
    return evidence.target.has_value()
               ? localizedText("The request left, and nothing came back from %@.",
                               {targetIn(evidence)})
               : localizedText("The request left, and nothing came back.");
}

std::string adviceOfCause(Cause cause, const DiagnosisEvidence& evidence) {
    switch (cause) {
    case Cause::noLink:
        return localizedText("Plug in the cable, switch the interface on, and look whether "
                             "something is switched on at the other end.");
    case Cause::noAddress:
        return localizedText("Give the interface an address in the network of the units.");
    case Cause::portTaken:
        return localizedText("Quit that program, or choose another UDP port.");
    case Cause::sendRefused:
        return localizedText("Look for a firewall rule on this computer that stops datagrams to "
                             "UDP port 3520.");
    case Cause::noRoute:
        return localizedText("Give the interface an address in the network of the unit, or add a "
                             "route.");
    case Cause::firewall:
    case Cause::firewallUnicastOnly:
        return adviceOfFirewall(evidence);
    case Cause::reversePath:
        return localizedText("Give the interface an address in the network of the units, or take "
                             "out the route that leads elsewhere. The filter is the setting "
                             "net.ipv4.conf.%@.rp_filter.",
                             {interfaceIn(evidence)});
    case Cause::otherPort:
        return localizedText("Choose that UDP port, or change the unit’s destination port.");
    case Cause::otherSubnet:
        return localizedText("Give the interface an address in the network of the unit as its "
                             "first one, or change the unit’s address.");
    case Cause::sameAddress:
        return localizedText("Disconnect one of them, and give the other one another address.");
    case Cause::staleARP:
        return adviceOfStaleEntry(evidence);
    case Cause::dropped:
        return localizedText("Allow a larger receive buffer. Help says how.");
    case Cause::nobodyOnPort:
        return localizedText("Look whether this is a unit, and which device port it has.");
    case Cause::noHost:
        return localizedText("Look whether the unit has power and its cable, and whether the "
                             "address is right.");
    case Cause::notUnderstood:
        return localizedText("Find out what it is. The event log shows what came.");
    case Cause::nothingArrived:
        break;
    }
    return localizedText("Look whether the unit has power and its cable, and whether a router or a "
                         "switch with separated ports stands in between.");
}

std::optional<std::string> adviceOfCheck(const Check& check, const DiagnosisEvidence& evidence) {
    return check.cause.has_value() ? std::optional(adviceOfCause(*check.cause, evidence))
                                   : std::nullopt;
}

} // namespace kx
