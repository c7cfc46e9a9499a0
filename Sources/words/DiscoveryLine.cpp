#include "words/DiscoveryLine.h"

#include "addresses/IPv4Address.h"
#include "support/LocalizedText.h"
#include "units/UnitCommand.h"
#include "words/FindingText.h"
#include "words/SendFailureText.h"

#include <cerrno>
#include <initializer_list>

namespace kx {

namespace {

long long number(std::size_t count) {
    return static_cast<long long>(count);
}

// The sentences with a blank between them; empty ones are left out.
std::string joined(std::initializer_list<std::string> sentences) {
    std::string text;
    for (const std::string& sentence : sentences) {
        text += text.empty() || sentence.empty() ? "" : " ";
        text += sentence;
    }
    return text;
}

bool isFault(const Finding& finding) {
    return std::holds_alternative<InterfaceFinding>(finding);
}

std::string textOfListenerError(const Error& error, std::uint16_t port) {
    return error.code == EADDRINUSE
               ? localizedText("Port %d is taken by another program. Choose another port.",
                               {static_cast<int>(port)})
               : localizedText("The UDP port cannot be opened: %@.",
                               {error.localizedDescription()});
}

std::string textOfRequestFailure(const std::string& reason) {
    return isWholeSentence(reason) ? localizedText("No request was sent: %@", {reason})
                                   : localizedText("No request was sent: %@.", {reason});
}

std::string textOfProgress(const DiscoveryFacts& facts) {
    const std::string address = stringForIP(facts.asked.value_or(Everybody()).address);
    const int port = defaultUnitPort;
    switch (facts.units.answered) {
    case 0:
        return localizedText("Asking %@, port %d: no unit has answered yet", {address, port});
    case 1:
        return localizedText("Asking %@, port %d: 1 unit answered", {address, port});
    default:
        return localizedText("Asking %@, port %d: %d units answered",
                             {address, port, number(facts.units.answered)});
    }
}

// The first interface of the list looks chosen and is not.
std::string textOfChoice(const DiscoveryFacts& facts) {
    return facts.asked.has_value() && !facts.isInterfaceChosen
               ? localizedText("No interface is chosen: asked %@.",
                               {stringForIP(facts.asked->address)})
               : std::string();
}

std::string textOfSilence(const DiscoveryFacts& facts) {
    std::string earlier;
    if (facts.listed == 1) {
        earlier = localizedText("The one listed answered earlier.");
    } else if (facts.listed > 1) {
        earlier = localizedText("The %d listed answered earlier.", {number(facts.listed)});
    }
    return joined({localizedText("No unit answered."), earlier, facts.cause.value_or(""),
                   textOfChoice(facts)});
}

std::string textOfLate(std::size_t late) {
    return late == 1 ? localizedText("1 unit answered late. Discover again to list it.")
                     : localizedText("%d units answered late. Discover again to list them.",
                                     {number(late)});
}

std::string textOfAnswers(std::size_t answered, std::size_t listed) {
    if (answered != listed) {
        return localizedText("%d of the %d listed answered.", {number(answered), number(listed)});
    }
    return answered == 1 ? localizedText("1 unit answered.")
                         : localizedText("%d units answered.", {number(answered)});
}

std::string textOfSilentUnits(const DiscoveryFacts& facts) {
    switch (facts.units.silent) {
    case 0:
        return {};
    case 1:
        return localizedText("%@ answered last time and not now.", {facts.silentUnit.value_or("")});
    default:
        return localizedText("%d answered last time and not now.", {number(facts.units.silent)});
    }
}

// Where all are new, that goes without saying.
std::string textOfAdded(const RoundTally& units) {
    if (units.added.count == 0 || units.added.count == units.answered) {
        return {};
    }
    return units.added.count == 1 ? localizedText("%@ is new.", {units.added.latest})
                                  : localizedText("%d are new.", {number(units.added.count)});
}

std::string textOfChanged(const RoundTally::Units& units) {
    switch (units.count) {
    case 0:
        return {};
    case 1:
        return localizedText("%@ has changed.", {units.latest});
    default:
        return localizedText("%d have changed.", {number(units.count)});
    }
}

std::string textOfBack(const RoundTally::Units& units) {
    switch (units.count) {
    case 0:
        return {};
    case 1:
        return localizedText("%@ answers again.", {units.latest});
    default:
        return localizedText("%d answer again.", {number(units.count)});
    }
}

// A unit that tells other values than last time has changed, wherever it was asked.
std::string textOfDifferences(const DiscoveryFacts& facts) {
    if (!facts.isComparable) {
        return textOfChanged(facts.units.changed);
    }
    return joined({textOfSilentUnits(facts), textOfChanged(facts.units.changed),
                   textOfAdded(facts.units), textOfBack(facts.units.back)});
}

} // namespace

std::string discoveryLine(const DiscoveryFacts& facts,
                          const std::function<std::string(std::uint32_t link)>& nameOfLink) {
    if (facts.listenerError.has_value()) {
        return textOfListenerError(*facts.listenerError, facts.port);
    }
    if (facts.finding.has_value() && isFault(*facts.finding)) {
        return textOfFinding(*facts.finding, nameOfLink);
    }
    if (facts.requestFailure.has_value()) {
        return joined({textOfRequestFailure(*facts.requestFailure), facts.cause.value_or("")});
    }
    if (facts.isUnderWay) {
        return textOfProgress(facts);
    }
    const bool isSilent = facts.units.answered == 0;
    if (facts.finding.has_value() && !(isSilent && facts.cause.has_value())) {
        return textOfFinding(*facts.finding, nameOfLink);
    }
    if (isSilent) {
        return textOfSilence(facts);
    }
    if (facts.late > 0) {
        return textOfLate(facts.late);
    }
    return joined({textOfAnswers(facts.units.answered, facts.listed), textOfDifferences(facts),
                   textOfChoice(facts)});
}

bool meansTrouble(const DiscoveryFacts& facts) {
    const bool nobodyWasAsked = facts.listenerError.has_value() ||
                                facts.requestFailure.has_value() ||
                                (facts.finding.has_value() && isFault(*facts.finding));
    return nobodyWasAsked ||
           (!facts.isUnderWay && (facts.finding.has_value() || facts.units.answered == 0));
}

} // namespace kx
