// set: changes parameters of one unit, and reads them back.

#include "addresses/IPv4Address.h"
#include "commands/CommandRun.h"
#include "commands/Commands.h"
#include "commands/JournalFiles.h"
#include "commands/PlanReport.h"
#include "commands/TextTable.h"
#include "conversation/EditTrouble.h"
#include "conversation/UnitEdits.h"
#include "files/StateNames.h"
#include "support/LocalizedText.h"
#include "support/TextEncoding.h"
#include "units/ExactEdit.h"
#include "words/EditForecast.h"
#include "words/EditOutcomeText.h"
#include "words/QuotedText.h"
#include "words/SendFailureText.h"
#include "words/UnitPlanText.h"

#include <algorithm>
#include <iterator>

namespace kx {

namespace {

using Refusal = CommandRun::Refusal;
using Edits = std::vector<ExactEdit>;

std::string_view identifierOf(const ExactEdit& edit) {
    return descriptionOf(edit.edit.parameter).identifier;
}

// In the words that the window has for the same value.
Refusal objectionToValue(const ExactEdit& edit) {
    // With such an address a unit would never be found again.
    const bool isOfMany = troubleOfEdit(edit.edit, {}) == EditTrouble::hardwareAddressOfMany;
    if (!edit.isChanged && !isOfMany) {
        return std::nullopt;
    }
    const std::string sentence = edit.isChanged
                                     ? forecastOfValueAlone(edit.edit)
                                     : localizedText("No unit can have it: it reaches many hosts.");
    return failureOf(
        ErrorCode::value,
        localizedText("%@ is refused without --loose. The window says of its value: %@",
                      {identifierOf(edit), sentence}));
}

Refusal readEdit(const std::string& word, bool isLoose, Edits& edits) {
    const std::size_t equals = word.find('=');
    const std::string name = word.substr(0, equals);
    const auto parameter = unitParameterForTypedName(name);
    if (equals == std::string::npos || !parameter.has_value()) {
        return failureOf(ErrorCode::usage,
                         localizedText("“%@” is not NAME=VALUE with the name of a parameter. See "
                                       "kxctl set --help.",
                                       {safeForSentence(word)}));
    }
    const auto edit = exactEdit(*parameter, word.substr(equals + 1));
    if (const auto* const refusal = std::get_if<EditRefusal>(&edit)) {
        return failureOf(ErrorCode::value, *refusal == EditRefusal::emptyValue
                                               ? localizedText("%@ has no value.", {name})
                                               : localizedText("The value of %@ is not a text in "
                                                               "UTF-8.",
                                                               {name}));
    }
    const auto& exact = std::get<ExactEdit>(edit);
    if (auto refusal = objectionToValue(exact); refusal.has_value() && !isLoose) {
        return refusal;
    }
    if (!asciiBytes(exact.edit.command).has_value() || exact.edit.isTooLong()) {
        return failureOf(ErrorCode::value,
                         localizedText("The value of %@ does not fit into a command.", {name}));
    }
    if (std::ranges::any_of(
            edits, [&](const ExactEdit& other) { return other.edit.parameter == *parameter; })) {
        return failureOf(ErrorCode::usage, localizedText("%@ is there twice.", {name}));
    }
    edits.push_back(exact);
    return std::nullopt;
}

// A new address must be one that another host on the interfaces may have.
Refusal objectionToNewAddress(const CommandRun& run, const std::vector<HostInterface>& asked,
                              const Edits& edits) {
    for (const ExactEdit& edit : edits) {
        if (edit.edit.parameter == UnitParameter::internalIPAddress) {
            const std::uint32_t address = ipForString(edit.edit.typed);
            return CommandRun::refusalOfAddress(
                objectionToAddress(address, run.interfaces(), asked), address);
        }
    }
    return std::nullopt;
}

// Where several interfaces are asked, only the answer tells on which one the unit is.
Refusal objectionOnLink(const CommandRun& run, std::uint32_t link, const Edits& edits) {
    std::vector<HostInterface> own;
    std::ranges::copy_if(run.interfaces(), std::back_inserter(own),
                         [link](const HostInterface& each) { return each.link == link; });
    return own.empty() ? std::nullopt : objectionToNewAddress(run, own, edits);
}

// Two units with one serial number could not be told apart any more.
Refusal objectionToNewSerialNumber(CommandRun& run, const std::vector<UnitChange>& changes) {
    const auto change = std::ranges::find_if(changes, [](const UnitChange& each) {
        return each.edit.edit.parameter == UnitParameter::serialNumber &&
               each.state == ChangeState::planned;
    });
    return change != changes.end() ? run.refusalOfSerialNumber(change->to) : std::nullopt;
}

void report(CommandRun& run, const std::string& serial, const std::vector<UnitChange>& changes) {
    TextTable table({"parameter", "from", "to", "command", "state"});
    for (const UnitChange& change : changes) {
        table.addRow({std::string(identifierOf(change.edit)), change.from.value_or(""), change.to,
                      change.command, std::string(nameOfState(change.state))});
    }
    run.document()["changes"] = jsonOfChanges(serial, changes);
    run.print(table.text(run.isBold()));
}

// A fixed entry that a killed run has left would lead the commands astray.
Refusal takeOutEntries(CommandRun& run) {
    if (!run.line().has("--dry-run")) {
        takeOutLeftEntriesBetweenRuns(run);
    }
    return std::nullopt;
}

std::string holdersOf(const AddressHolders& holders) {
    std::string text;
    for (const auto& holder : holders.holders) {
        text += (text.empty() ? "" : ", ") + holder.hardwareAddress;
    }
    return text;
}

// At a terminal without a desktop nobody can be asked.
std::string textOfBinding(const AddressMove& move) {
    const std::string text = textOfARPEntry(stringForIP(move.holders().address), move.binding());
    return move.binding().state == ARPEntryState::rightsNotGiven
               ? text + ' ' + localizedText("kxctl needs no question when root runs it.")
               : text;
}

// The unit shows the new address and does not answer for it, as far as this host can tell.
std::string textOfForeignAnswer(const AddressMove& move) {
    const std::string address = stringForIP(move.holders().address);
    if (!move.foreignHardwareAddress().empty()) {
        return localizedText("The unit %@ shows %@, but %@ answers ARP requests for it.",
                             {move.hardwareAddress(), address, move.foreignHardwareAddress()});
    }
    return move.isStillBound()
               ? localizedText("Whether the unit itself answers ARP requests for %@ could not be "
                               "found out.",
                               {address})
               : localizedText("The unit shows %@ but does not answer ARP requests for it.",
                               {address});
}

// Why the move to another address has not begun, or what is wrong after it.
Refusal failureOfMove(const AddressMove& move) {
    switch (move.state()) {
    case MoveState::held:
        return failureOf(ErrorCode::held,
                         localizedText("%@ is held by %@.", {stringForIP(move.holders().address),
                                                             holdersOf(move.holders())}));
    case MoveState::unknownHolder:
        return failureOf(ErrorCode::interface,
                         localizedText("Whether somebody holds %@ could not be found out.",
                                       {stringForIP(move.holders().address)}));
    case MoveState::notBound:
        return failureOf(ErrorCode::rights, textOfBinding(move));
    case MoveState::foreignAnswer:
        return failureOf(ErrorCode::half, textOfForeignAnswer(move));
    case MoveState::notBegun:
    case MoveState::commanded:
    case MoveState::moved:
        break;
    }
    return std::nullopt;
}

bool isIn(const std::vector<UnitChange>& changes, ChangeState state) {
    return std::ranges::find(changes, state, &UnitChange::state) != changes.end();
}

// What the states of all changes mean together.
Refusal failureOfChanges(const UnitEdits& edits) {
    const auto& changes = edits.changes();
    const bool isDone = isIn(changes, ChangeState::done);
    const bool isSilent = isIn(changes, ChangeState::silent);
    const bool isDifferent = isIn(changes, ChangeState::different);
    const std::string unit(edits.unit().serialNumber());
    if (isDone && (isSilent || isDifferent || isIn(changes, ChangeState::refused))) {
        return failureOf(
            ErrorCode::half,
            localizedText("The unit %@ has taken some of the values and not others.", {unit}));
    }
    if (isSilent) {
        return failureOf(ErrorCode::silent,
                         localizedText("The unit %@ has not answered since the command.", {unit}));
    }
    if (!isDifferent) {
        return std::nullopt;
    }
    const bool isOld = std::ranges::all_of(changes, [](const UnitChange& change) {
        return change.state != ChangeState::different || change.shown == change.from;
    });
    return isOld ? failureOf(ErrorCode::unchanged,
                             localizedText("The unit %@ shows the old value.", {unit}))
                 : failureOf(ErrorCode::differs,
                             localizedText("The unit %@ shows another value.", {unit}));
}

// Why a command did not go out; absent when all did.
Refusal reasonOfRefusal(const UnitEdits& edits) {
    if (edits.isAmbiguous()) {
        return failureOf(ErrorCode::ambiguous,
                         localizedText("Another unit answers with the same serial number."));
    }
    if (auto refusal = CommandRun::refusalOfSend(edits.failure())) {
        return refusal;
    }
    return edits.move() != nullptr ? failureOfMove(*edits.move()) : std::nullopt;
}

Refusal failureOfEdits(const UnitEdits& edits) {
    if (edits.move() != nullptr && edits.move()->state() == MoveState::foreignAnswer) {
        return failureOfMove(*edits.move());
    }
    auto failure = failureOfChanges(edits);
    auto reason = reasonOfRefusal(edits);
    if (!reason.has_value()) {
        return failure;
    }
    if (!failure.has_value() || failure->code == ErrorCode::unchanged) {
        return reason;
    }
    failure->message += ' ' + reason->message;
    return failure;
}

int edit(CommandRun& run, const HeardUnit& unit, std::vector<UnitChange> changes) {
    const std::string serial(unit.serialNumber());
    const AddressMove::Services moveServices{
        .holders = {.neighbours = run.services().neighbours, .probes = run.services().probes},
        .bindings = run.services().bindings};
    UnitEdits edits(run.exchange(), &moveServices, unit, std::move(changes),
                    run.everybodyOf(unit.link));
    const std::string count = '/' + std::to_string(edits.changes().size());
    run.wait(edits, [&edits, &count] {
        return std::to_string(std::ranges::count_if(
                   edits.changes(),
                   [](const UnitChange& change) { return change.state != ChangeState::planned; })) +
               count;
    });
    report(run, serial, edits.changes());
    if (edits.move() != nullptr && edits.move()->isStillBound()) {
        run.warn("arp-entry", sentenceOfLeftEntry(stringForIP(edits.move()->holders().address)));
    }
    return run.finish(failureOfEdits(edits));
}

} // namespace

int runSet(CommandRun& run) {
    const auto& words = run.line().words;
    Edits edits;
    HeardUnit unit;
    std::vector<UnitName> names; // read before the values, so that the first fault is told
    if (auto refusal = run.readNames({words.front()}, names)) {
        return run.finish(std::move(refusal));
    }
    for (std::size_t i = 1; i < words.size(); ++i) {
        if (auto refusal = readEdit(words[i], run.line().has("--loose"), edits)) {
            return run.finish(std::move(refusal));
        }
    }
    for (const auto& step : std::initializer_list<std::function<Refusal()>>{
             [&] { return run.chooseInterfaces(); },
             [&] { return objectionToNewAddress(run, run.chosen(), edits); },
             [&] { return run.openExchange(); }, [&] { return takeOutEntries(run); },
             [&] { return run.findUnit(names.front(), unit); },
             [&] { return objectionOnLink(run, unit.link, edits); }}) {
        if (auto refusal = step()) {
            return run.finish(std::move(refusal));
        }
    }
    auto changes = changesOfUnit(unit, edits);
    if (auto refusal = objectionToNewSerialNumber(run, changes)) {
        return run.finish(std::move(refusal));
    }
    if (run.line().has("--dry-run")) {
        report(run, std::string(unit.serialNumber()), changes);
        return run.finish();
    }
    return edit(run, unit, std::move(changes));
}

} // namespace kx
