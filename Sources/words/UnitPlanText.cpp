#include "words/UnitPlanText.h"

#include "support/LocalizedText.h"
#include "words/EditOutcomeText.h"
#include "words/QuotedText.h"
#include "words/SendFailureText.h"

#include <algorithm>

namespace kx {

namespace {

// Names of other units, of which a sentence has room for a few.
std::string textOf(const std::vector<std::string>& names) {
    constexpr std::size_t mostNames = 4;
    std::string text;
    for (std::size_t i = 0; i < names.size() && i < mostNames; ++i) {
        text += (i == 0 ? "" : ", ") + safeForSentence(names[i]);
    }
    return names.size() > mostNames ? text + ", …" : text;
}

long long lineOf(const RowReason& reason) {
    return static_cast<long long>(reason.otherLine);
}

// The table itself is wrong.
std::string reasonInTable(const RowReason& reason) {
    switch (reason.objection) {
    case RowObjection::ownAddress:
        return localizedText("%@ is this host's own address.", {reason.value});
    case RowObjection::networkAddress:
        return localizedText("%@ is the address of a whole network.", {reason.value});
    case RowObjection::outsideAddress:
        return localizedText("%@ lies in no network of the interface.", {reason.value});
    case RowObjection::namedTwice:
        return localizedText("Line %d is about the same unit.", {lineOf(reason)});
    case RowObjection::wantedTwice:
        return localizedText("Line %d wants the same value: %@.",
                             {lineOf(reason), safeForSentence(reason.value)});
    default:
        return {};
    }
}

// One unit is taken for another.
std::string reasonOfIdentity(const PlannedRow& row) {
    const RowReason& reason = row.reason;
    switch (reason.objection) {
    case RowObjection::notHeard:
        return localizedText("The unit %@ does not answer.", {row.serialNumber});
    case RowObjection::ambiguousSerialNumber:
        return localizedText("Several units answer as %@: %@.",
                             {row.serialNumber, textOf(reason.others)});
    case RowObjection::ambiguousAddress:
        return localizedText("Several units have the address %@: %@.",
                             {reason.value, textOf(reason.others)});
    case RowObjection::addressOfMany:
        return localizedText("The unit %@ tells an address of many as its own: %@.",
                             {row.serialNumber, reason.value});
    case RowObjection::noHardwareAddress:
        return localizedText("The unit %@ does not tell its hardware address, which a new address "
                             "needs.",
                             {row.serialNumber});
    case RowObjection::twinAnswered:
        return localizedText("Another unit answers with the same serial number.");
    default:
        return {};
    }
}

// Somebody else has what the row takes, or the unit is not what the plan saw.
std::string reasonOfAnswers(const RowReason& reason) {
    const std::string value = safeForSentence(reason.value);
    switch (reason.objection) {
    case RowObjection::heldByUnit:
        return localizedText("%@ is held by the unit %@.", {value, textOf(reason.others)});
    case RowObjection::heldByHost:
        return localizedText("%@ is held by %@.", {value, textOf(reason.others)});
    case RowObjection::unknownHolder:
        return localizedText("Whether somebody holds %@ could not be found out.", {value});
    case RowObjection::ring:
        return localizedText("%@ changes hands in a ring: line %d must be done first, and waits "
                             "for this one.",
                             {value, lineOf(reason)});
    case RowObjection::waitsForRefused:
        return localizedText("%@ does not become free, because line %d is not done.",
                             {value, lineOf(reason)});
    case RowObjection::outOfDate:
        return localizedText(
            "The plan is out of date: %@ was “%@” and is “%@” now.",
            {descriptionOf(reason.parameter).identifier, value, safeForSentence(reason.shown)});
    default:
        return {};
    }
}

std::string reasonOfForeignAnswer(const PlannedRow& row) {
    const RowReason& reason = row.reason;
    if (reason.others.empty()) {
        return localizedText("The unit shows %@ but does not answer ARP requests for it.",
                             {reason.value});
    }
    const std::string own = row.unit.has_value() ? std::string(row.unit->hardwareAddress()) : "";
    return localizedText("The unit %@ shows %@, but %@ answers ARP requests for it.",
                         {own, reason.value, textOf(reason.others)});
}

// A command went out, or should have gone out.
std::string reasonOfCommand(const PlannedRow& row) {
    const RowReason& reason = row.reason;
    switch (reason.objection) {
    case RowObjection::notTaken:
        return localizedText("The unit %@ shows the old value.", {row.serialNumber});
    case RowObjection::different:
        return reason.shown.empty()
                   ? localizedText("The unit %@ does not tell whether it has taken %@.",
                                   {row.serialNumber, descriptionOf(reason.parameter).identifier})
                   : localizedText("The unit %@ shows another value: %@ is “%@”.",
                                   {row.serialNumber, descriptionOf(reason.parameter).identifier,
                                    safeForSentence(reason.shown)});
    case RowObjection::fellSilent:
        return localizedText("The unit %@ has not answered since the command.", {row.serialNumber});
    case RowObjection::foreignAnswer:
        return reasonOfForeignAnswer(row);
    case RowObjection::notBound:
        return textOfARPEntry(reason.value, reason.entry);
    case RowObjection::notSent:
        return reason.failure.has_value() ? noteOfSendFailure(*reason.failure) : std::string();
    default:
        return {};
    }
}

std::string reasonOfRest(const RowReason& reason) {
    switch (reason.objection) {
    case RowObjection::othersRefused:
        return localizedText("Nothing was sent, because other lines are refused or silent.");
    case RowObjection::othersFailed:
        return localizedText("Nothing new was begun after line %d.", {lineOf(reason)});
    case RowObjection::interrupted:
        return localizedText("Interrupted.");
    case RowObjection::journalFailed:
        return localizedText("The journal could not be written.");
    default:
        return {};
    }
}

bool isTakenInPart(const PlannedRow& row) {
    const auto isDone = [](const UnitChange& change) { return change.state == ChangeState::done; };
    const auto isOpen = [](const UnitChange& change) {
        return change.state != ChangeState::done && change.state != ChangeState::unchanged;
    };
    return std::ranges::any_of(row.changes, isDone) && std::ranges::any_of(row.changes, isOpen);
}

} // namespace

std::string reasonOfRow(const PlannedRow& row) {
    std::string reason = isTakenInPart(row)
                             ? localizedText("The unit %@ has taken some of the values and not "
                                             "others.",
                                             {row.serialNumber})
                             : std::string();
    // The reason is one of one group.
    for (const std::string& text :
         {reasonInTable(row.reason), reasonOfIdentity(row), reasonOfAnswers(row.reason),
          reasonOfCommand(row), reasonOfRest(row.reason)}) {
        reason += (reason.empty() || text.empty() ? "" : " ") + text;
    }
    return reason;
}

std::string sentenceOfLock(const RunLockRefusal& refusal) {
    if (refusal.error.has_value()) {
        return localizedText("Whether another run is under way could not be found out: %@.",
                             {refusal.error->localizedDescription()});
    }
    return refusal.holder == 0
               ? localizedText("Another run changes units from this host.")
               : localizedText("Another run changes units from this host: process %d.",
                               {static_cast<int>(refusal.holder)});
}

std::string sentenceOfLostValue(const LostValue& lost) {
    return localizedText("No command brings %@ of the unit %@ back: it was “%@”.",
                         {descriptionOf(lost.parameter).identifier, lost.serialNumber,
                          safeForSentence(lost.value.value_or(""))});
}

std::string sentenceOfLeftEntry(const std::string& address) {
    return localizedText("The entry for %@ could not be taken out of the ARP cache again.",
                         {address});
}

std::string textOfTimeLeft(std::chrono::milliseconds passed, std::size_t ended, std::size_t total) {
    constexpr long long secondsOfMinute = 60;
    constexpr long long mostSeconds = 90;
    if (ended == 0 || ended >= total) {
        return {};
    }
    const long long left = 1 + passed.count() * static_cast<long long>(total - ended) /
                                   static_cast<long long>(ended) / 1000;
    return left <= mostSeconds ? localizedText("about %d s left", {left})
                               : localizedText("about %d min left",
                                               {(left + secondsOfMinute / 2) / secondsOfMinute});
}

} // namespace kx
