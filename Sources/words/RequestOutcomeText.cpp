#include "words/RequestOutcomeText.h"

#include "addresses/IPv4Address.h"
#include "support/LocalizedText.h"
#include "words/QuotedText.h"

#include <string_view>

namespace kx {

namespace {

// The carriage return at the end of an option command is no part of what a person typed.
std::string shownCommand(const RequestOutcome& outcome) {
    std::string_view command = outcome.command();
    command.remove_suffix(command.ends_with('\r') ? 1 : 0);
    return safeForSentence(command);
}

std::string whatWasSent(const RequestOutcome& outcome) {
    const std::string address = stringForIP(outcome.target().address);
    if (outcome.kind() == RequestKind::reload) {
        return outcome.isForOneUnit()
                   ? localizedText("Asked the unit at %@ for its parameters.", {address})
                   : localizedText("Asked every unit that hears it for its parameters.");
    }
    return outcome.isForOneUnit()
               ? localizedText("Sent %@ to the unit at %@.", {shownCommand(outcome), address})
               : localizedText("Sent %@ to every unit that hears it.", {shownCommand(outcome)});
}

std::string answerOf(const RequestOutcome& outcome) {
    return safeForSentence(outcome.answer().value_or(""), mostCharactersOfSentence);
}

std::string answerOfOtherUnit(const RequestOutcome& outcome) {
    const std::string unit = outcome.otherUnit().value_or("");
    return outcome.answer().has_value()
               ? localizedText("Another unit at this address, %@, answered “%@”.",
                               {unit, answerOf(outcome)})
               : localizedText("Another unit at this address, %@, answered.", {unit});
}

std::string answerOfOneUnit(const RequestOutcome& outcome) {
    if (outcome.otherUnit().has_value()) {
        return answerOfOtherUnit(outcome);
    }
    if (outcome.answer().has_value()) {
        return localizedText("The unit answered “%@”.", {answerOf(outcome)});
    }
    if (outcome.hasUnitAnswered()) {
        return outcome.kind() == RequestKind::reload
                   ? localizedText("The unit has told them.")
                   : localizedText("The unit accepted a command.");
    }
    return outcome.isPatienceOver() ? localizedText("The unit has not answered.")
                                    : localizedText("The unit has not answered yet.");
}

std::string answerOfMany(const RequestOutcome& outcome) {
    const auto answers = static_cast<long long>(outcome.answers());
    const bool isAcceptance = outcome.kind() == RequestKind::restore;
    switch (answers) {
    case 0:
        return outcome.isPatienceOver() ? localizedText("No unit has answered.")
                                        : localizedText("No unit has answered yet.");
    case 1:
        return isAcceptance ? localizedText("Accepted by 1 unit.")
                            : localizedText("1 unit has answered.");
    case RequestOutcome::mostUnits:
        return isAcceptance ? localizedText("Accepted by %d units or more.", {answers})
                            : localizedText("%d units or more have answered.", {answers});
    default:
        return isAcceptance ? localizedText("Accepted by %d units.", {answers})
                            : localizedText("%d units have answered.", {answers});
    }
}

} // namespace

std::string textOfRequestOutcome(const RequestOutcome& outcome) {
    return whatWasSent(outcome) + ' ' +
           (outcome.isForOneUnit() ? answerOfOneUnit(outcome) : answerOfMany(outcome));
}

std::string textOfAnswer(std::string_view payload) {
    payload.remove_prefix(payload.starts_with('$') ? 1 : 0);
    const auto last = payload.find_last_not_of(std::string_view("\r\n\t \0", 5));
    return std::string(payload.substr(0, last == payload.npos ? 0 : last + 1));
}

bool meansTrouble(const RequestOutcome& outcome) {
    return outcome.otherUnit().has_value() || (outcome.isPatienceOver() && outcome.answers() == 0);
}

} // namespace kx
