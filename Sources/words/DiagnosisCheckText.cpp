// The checks of a diagnosis in words.

#include "addresses/IPv4Address.h"
#include "support/LocalizedText.h"
#include "words/DiagnosisText.h"
#include "words/QuotedText.h"

#include <algorithm>

namespace kx {

namespace {

using Evidence = DiagnosisEvidence;

template<class Count>
long long number(Count count) {
    return static_cast<long long>(count);
}

std::string textOfLink(const Check& check, const Evidence& evidence) {
    if (check.cause.has_value()) {
        return sentenceOfCause(*check.cause, evidence);
    }
    const std::string name = safeForSentence(evidence.interfaceName);
    return check.state == CheckState::ok
               ? localizedText("The interface %@ carries datagrams.", {name})
               : localizedText("The interface %@ cannot broadcast.", {name});
}

std::string textOfAddress(const Evidence& evidence) {
    if (!evidence.interface.has_value() || evidence.interface->networks.empty()) {
        return localizedText("There is none.");
    }
    std::string addresses;
    for (const NetworkOfInterface& network : evidence.interface->networks) {
        addresses +=
            (addresses.empty() ? "" : ", ") + stringForNetNumber(network.address, network.mask);
    }
    return addresses;
}

std::string textOfPort(const Check& check, const Evidence& evidence) {
    if (check.state == CheckState::ok) {
        return localizedText("Answers are expected on UDP port %d.", {evidence.listener.port});
    }
    return check.cause.has_value() ? sentenceOfCause(*check.cause, evidence)
                                   : localizedText("The UDP listener is not running.");
}

std::string textOfSend(const Check& check, const Evidence& evidence) {
    return check.cause.has_value() ? sentenceOfCause(*check.cause, evidence)
                                   : localizedText("The request left.");
}

std::string textOfRoute(const Check& check, const Evidence& evidence) {
    if (check.cause.has_value()) {
        return sentenceOfCause(*check.cause, evidence);
    }
    return check.state == CheckState::ok
               ? localizedText("The routes lead to the units by this interface.")
               : localizedText("The routes to a part of the network lead elsewhere.");
}

std::string textOfOwnBroadcast(const Check& check, const Evidence& evidence) {
    if (check.state == CheckState::ok) {
        return localizedText("The computer hears its own broadcast on UDP port %d.",
                             {evidence.listener.port});
    }
    return localizedText("The computer does not hear its own broadcast on UDP port %d. Datagrams "
                         "that were taken away meanwhile: %d.",
                         {evidence.listener.port, number(evidence.counters.takenAway)});
}

std::string textOfReversePath(const Evidence& evidence) {
    return evidence.reversePathFilter == 0
               ? localizedText("The filter is off.")
               : localizedText("The filter is on. Datagrams that it took away meanwhile: %d.",
                               {number(evidence.counters.wrongReversePath)});
}

std::string textOfAnswers(const Evidence& evidence) {
    std::string text =
        localizedText("Units that answered: %d.", {number(evidence.listener.units.count())});
    const std::size_t now = evidence.linkUnits.count();
    if (!evidence.listener.hasAskedNow && now > 0) {
        text += ' ' + localizedText("Units that answer now: %d.", {number(now)});
    }
    return text;
}

std::string textOfUnderstood(const Evidence& evidence) {
    const auto strange = evidence.listener.notUnderstood + evidence.linkNotUnderstood;
    return localizedText("Answers that are not understood: %d. Other datagrams: %d.",
                         {number(strange), number(evidence.listener.foreign)});
}

std::string textOfTarget(const Check& check, const Evidence& evidence) {
    if (check.cause.has_value()) {
        return sentenceOfCause(*check.cause, evidence);
    }
    const std::string name = safeForSentence(evidence.target.value_or(TargetEvidence()).name);
    return check.state == CheckState::ok ? localizedText("%@ answers.", {name})
                                         : localizedText("%@ does not answer.", {name});
}

} // namespace

std::string titleOfCheck(CheckKind kind) {
    switch (kind) {
    case CheckKind::link:
        return localizedText("Link");
    case CheckKind::address:
        return localizedText("IPv4 address");
    case CheckKind::port:
        return localizedText("UDP port");
    case CheckKind::send:
        return localizedText("Request");
    case CheckKind::route:
        return localizedText("Routes");
    case CheckKind::ownBroadcast:
        return localizedText("Own broadcast");
    case CheckKind::answers:
        return localizedText("Answers");
    case CheckKind::understood:
        return localizedText("Strange answers");
    case CheckKind::dropped:
        return localizedText("Dropped datagrams");
    case CheckKind::otherPorts:
        return localizedText("Answers on other ports");
    case CheckKind::otherSubnets:
        return localizedText("Units of other networks");
    case CheckKind::reversePath:
        return localizedText("Reverse path filter");
    case CheckKind::addresses:
        return localizedText("Doubled addresses");
    case CheckKind::entries:
        return localizedText("Fixed ARP entries");
    case CheckKind::target:
        break;
    }
    return localizedText("The unit itself");
}

std::string wordOfState(CheckState state) {
    switch (state) {
    case CheckState::ok:
        return localizedText("Fine");
    case CheckState::warn:
        return localizedText("Odd");
    case CheckState::fail:
        return localizedText("Fails");
    case CheckState::unknown:
        break;
    }
    return localizedText("Not known");
}

std::string evidenceOfCheck(const Check& check, const DiagnosisEvidence& evidence) {
    if (check.state == CheckState::unknown && check.kind != CheckKind::port) {
        return localizedText("It was not asked.");
    }
    switch (check.kind) {
    case CheckKind::link:
        return textOfLink(check, evidence);
    case CheckKind::address:
        return textOfAddress(evidence);
    case CheckKind::port:
        return textOfPort(check, evidence);
    case CheckKind::send:
        return textOfSend(check, evidence);
    case CheckKind::route:
        return textOfRoute(check, evidence);
    case CheckKind::ownBroadcast:
        return textOfOwnBroadcast(check, evidence);
    case CheckKind::answers:
        return textOfAnswers(evidence);
    case CheckKind::understood:
        return textOfUnderstood(evidence);
    case CheckKind::dropped:
        return localizedText("Dropped before they were read: %d.",
                             {number(evidence.listener.dropped)});
    case CheckKind::otherPorts:
        return localizedText("Units that answered there: %d.",
                             {number(unitsOnOtherPorts(evidence).size())});
    case CheckKind::otherSubnets:
        return check.cause.has_value() ? sentenceOfCause(*check.cause, evidence)
                                       : localizedText("None answered.");
    case CheckKind::reversePath:
        return textOfReversePath(evidence);
    case CheckKind::addresses:
        return check.cause.has_value() ? sentenceOfCause(*check.cause, evidence)
                                       : localizedText("There are none.");
    case CheckKind::entries:
        return check.cause.has_value()
                   ? sentenceOfCause(*check.cause, evidence)
                   : localizedText("Entries that name another hardware address: %d.",
                                   {number(evidence.wrongEntries.size())});
    case CheckKind::target:
        break;
    }
    return textOfTarget(check, evidence);
}

} // namespace kx
