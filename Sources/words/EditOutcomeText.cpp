#include "words/EditOutcomeText.h"

#include "addresses/IPv4Address.h"
#include "support/LocalizedText.h"
#include "words/QuotedText.h"
#include "words/SendFailureText.h"

namespace kx {

namespace {

std::string textOfAcceptance(const EditOutcome& outcome) {
    if (const auto& failure = outcome.requestFailure(); failure.has_value()) {
        const std::string reason = reasonOfSendFailure(*failure);
        return isWholeSentence(reason)
                   ? localizedText("The unit accepted a command. It could not be asked for its "
                                   "parameters: %@",
                                   {reason})
                   : localizedText("The unit accepted a command. It could not be asked for its "
                                   "parameters: %@.",
                                   {reason});
    }
    const bool hasNewPort = outcome.edit().parameter == UnitParameter::devicePortNumber &&
                            outcome.edit().expectedText != outcome.valueBefore();
    return hasNewPort ? localizedText("The unit accepted a command and was asked for its "
                                      "parameters. If its port has changed, Discover finds it.")
                      : localizedText("The unit accepted a command and was asked for its "
                                      "parameters.");
}

// With the value before, where that was another one.
std::string textOfNewValue(const EditOutcome& outcome, const std::string& shown,
                           const std::string& name) {
    const bool hasNewNumber = outcome.edit().parameter == UnitParameter::serialNumber &&
                              outcome.shownValue() != outcome.unit();
    const std::string before =
        safeForSentence(withoutTrailingZeroBytes(outcome.valueBefore().value_or("")));
    if (before.empty() || before == shown) {
        return hasNewNumber ? localizedText("The unit now shows %@ as its serial number. Discover "
                                            "lists it under that.",
                                            {shown})
                            : localizedText("The unit now shows %@ as its %@.", {shown, name});
    }
    return hasNewNumber
               ? localizedText("The unit now shows %@ as its serial number (was %@). Discover "
                               "lists it under that.",
                               {shown, before})
               : localizedText("The unit now shows %@ as its %@ (was %@).", {shown, name, before});
}

std::string textOfShownValue(const EditOutcome& outcome) {
    const std::string name = localizedText(nameOfUnitParameter(outcome.edit().parameter));
    const std::string shown = safeForSentence(outcome.shownValue().value_or(""));
    switch (outcome.state()) {
    case EditState::shown:
        return textOfNewValue(outcome, shown, name);
    case EditState::unchanged:
        return localizedText("The unit still shows %@ as its %@.", {shown, name});
    case EditState::different:
        return localizedText("The unit now shows %@ as its %@, which is not what was sent.",
                             {shown, name});
    default:
        return localizedText("The unit's parameters hold no %@.", {name});
    }
}

// The edited unit may have heard nothing, or may have taken the command as well.
std::string textOfOtherUnit(const EditOutcome& outcome) {
    const auto& other = outcome.otherUnit();
    if (!other.has_value()) {
        return {};
    }
    const std::string address = stringForIP(outcome.address());
    return outcome.edit().parameter == UnitParameter::internalIPAddress
               ? localizedText("Another unit, %@, accepted a command: it has the address %@ "
                               "already.",
                               {*other, address})
               : localizedText("Another unit, %@, accepted a command: both have the address %@.",
                               {*other, address});
}

std::string textOfWaiting(const EditOutcome& outcome) {
    const std::string command = safeForSentence(outcome.edit().command);
    if (outcome.otherUnit().has_value()) {
        return localizedText("Sent %@.", {command});
    }
    return outcome.isPatienceOver()
               ? localizedText("Sent %@. The unit has not answered.", {command})
               : localizedText("Sent %@. The unit has not answered yet.", {command});
}

std::string textOfState(const EditOutcome& outcome) {
    switch (outcome.state()) {
    case EditState::notSent:
        return noteOfSendFailure(outcome.failure().value_or(SendFailure()));
    case EditState::pending:
        return textOfWaiting(outcome);
    case EditState::accepted:
        return textOfAcceptance(outcome);
    case EditState::shown:
    case EditState::unchanged:
    case EditState::different:
    case EditState::notReported:
        break;
    }
    return textOfShownValue(outcome);
}

// In the words of the tool or the authority. A sentence that the catalogues know is translated.
std::string textOfSentence(const std::string& address, const std::string& said) {
    const std::string sentence = safeForSentence(localizedText(said), mostCharactersOfSentence);
    return isWholeSentence(sentence)
               ? localizedText("No ARP entry was made for %@: %@", {address, sentence})
               : localizedText("No ARP entry was made for %@: %@.", {address, sentence});
}

} // namespace

std::string textOfARPEntry(std::string_view typedAddress, const ARPEntry& entry) {
    const std::string address = safeForSentence(typedAddress);
    if (!entry.sentence.empty()) {
        return textOfSentence(address, entry.sentence);
    }
    switch (entry.state) {
    case ARPEntryState::notWanted:
    case ARPEntryState::started:
        break;
    case ARPEntryState::rightsNotGiven:
        return localizedText("No ARP entry was made for %@: administrator rights were not given.",
                             {address});
    case ARPEntryState::refused:
        return localizedText("No ARP entry was made for %@: running the ARP tool was refused.",
                             {address});
    case ARPEntryState::dismissed:
        return localizedText(
            "No ARP entry was made for %@: the question for administrator rights was dismissed.",
            {address});
    case ARPEntryState::cannotRun:
        return localizedText("No ARP entry was made for %@: the ARP tool cannot be run.",
                             {address});
    case ARPEntryState::notASCII:
        return localizedText("No ARP entry was made for %@: it can hold ASCII characters only.",
                             {address});
    case ARPEntryState::notStarted:
        return localizedText("No ARP entry was made for %@: the ARP tool was not started (%d).",
                             {address, entry.code});
    case ARPEntryState::ended:
        return localizedText("No ARP entry was made for %@: the ARP tool ended with status %d.",
                             {address, entry.code});
    case ARPEntryState::onAnotherLink:
        return localizedText("The ARP entry for %@ is not on the interface by which the command "
                             "left, so the unit may not have heard it.",
                             {address});
    }
    return {};
}

std::string textOfEditOutcome(const EditOutcome& outcome) {
    std::string text = textOfState(outcome);
    for (const std::string& more :
         {textOfOtherUnit(outcome), textOfARPEntry(outcome.edit().typed, outcome.arpEntry())}) {
        text += more.empty() ? "" : ' ' + more;
    }
    return text;
}

bool meansTrouble(const EditOutcome& outcome) {
    switch (outcome.state()) {
    case EditState::notSent:
    case EditState::unchanged:
    case EditState::different:
        return true;
    case EditState::pending:
        if (outcome.isPatienceOver()) {
            return true;
        }
        break;
    case EditState::accepted:
    case EditState::shown:
    case EditState::notReported:
        break;
    }
    return outcome.otherUnit().has_value() || outcome.requestFailure().has_value() ||
           !textOfARPEntry(outcome.edit().typed, outcome.arpEntry()).empty();
}

} // namespace kx
