// How a run of a command finds the units that it is told of.

#include "addresses/IPv4Address.h"
#include "commands/CommandRun.h"
#include "conversation/Discovery.h"
#include "conversation/Finding.h"
#include "conversation/RequestTarget.h"
#include "support/LocalizedText.h"
#include "words/FindingText.h"
#include "words/QuotedText.h"
#include "words/SendFailureText.h"

#include <algorithm>
#include <utility>

namespace kx {

using namespace std::chrono_literals;

namespace {

// Others who claim to be the same unit have at least so long to answer after it. Most units answer
// sooner; for slow ones the time is longer (Discovery.h).
constexpr auto timeForOthers = 10ms;

// A unit that was named is asked for so often within the usual time.
constexpr int triesForUnits = 10;

std::string textOf(const UnitName& name) {
    const auto* const serial = std::get_if<SerialNumberOfUnit>(&name);
    return serial != nullptr ? serial->text : "id:" + std::get<UnitIDOfUnit>(name).text;
}

std::string hardwareAddressesOf(const std::vector<const HeardUnit*>& units) {
    std::string text;
    for (const HeardUnit* const unit : units) {
        text += text.empty() ? "" : ", ";
        text += unit->hardwareAddress();
    }
    return text;
}

// A unit may have been named twice, by its serial number and by its unit ID.
void addOnce(std::vector<HeardUnit>& units, const HeardUnit& unit) {
    if (std::ranges::find(units, unit.serialNumber(), &HeardUnit::serialNumber) == units.end()) {
        units.push_back(unit);
    }
}

// Absent when exactly one unit has the name, one host answers as it, and no other unit has its
// address.
std::optional<Failure> objectionToUnits(const UnitName& name, const Discovery& discovery) {
    const HeardUnits& heard = discovery.units();
    const auto units = heard.named(name);
    const std::string shown = safeForSentence(textOf(name));
    if (units.empty()) {
        return failureOf(ErrorCode::notFound,
                         localizedText("The unit %@ does not answer.", {shown}));
    }
    if (units.size() > 1) {
        return failureOf(ErrorCode::ambiguous, localizedText("Several units answer as %@: %@.",
                                                             {shown, hardwareAddressesOf(units)}));
    }
    if (const auto hosts = discovery.twoHostsOf(units.front()->serialNumber())) {
        return failureOf(ErrorCode::ambiguous, textOfFinding(*hosts));
    }
    if (heard.isDuplicated(*units.front())) {
        return failureOf(ErrorCode::ambiguous,
                         localizedText("Another unit has the address of the unit %@.", {shown}));
    }
    return std::nullopt;
}

} // namespace

CommandRun::Refusal CommandRun::readNames(const std::vector<std::string>& words,
                                          std::vector<UnitName>& names) const {
    for (const std::string& word : words) {
        auto name = unitNameForText(word);
        if (!name.has_value()) {
            return failureOf(ErrorCode::value,
                             localizedText("“%@” names no unit. Write a serial number of six pairs "
                                           "of digits, such as 4B5800000001, or id:TEXT.",
                                           {safeForSentence(word)}));
        }
        names.push_back(std::move(*name));
    }
    return std::nullopt;
}

CommandRun::Refusal CommandRun::findUnits(const std::vector<UnitName>& names,
                                          std::vector<HeardUnit>& found) {
    // Whether only one unit has a unit ID is known when everybody has had time to answer.
    const bool areSerialNumbers = std::ranges::all_of(names, [](const UnitName& name) {
        return std::holds_alternative<SerialNumberOfUnit>(name);
    });
    DiscoveryPlan plan{.everybody = everybody(), .tries = triesForUnits, .settling = timeForOthers};
    if (areSerialNumbers) {
        plan.isEnough = [&names](const HeardUnits& units) {
            return std::ranges::none_of(
                names, [&units](const UnitName& name) { return units.named(name).empty(); });
        };
    }
    Discovery discovery(exchange(), std::move(plan));
    wait(discovery, [&discovery] { return std::to_string(discovery.units().count()); });
    if (!discovery.hasAsked() && !isInterrupted()) {
        return refusalOfSend(discovery.failure());
    }
    warnOfSend(discovery.failure());
    Refusal first;
    for (const UnitName& name : names) {
        auto refusal = objectionToUnits(name, discovery);
        if (!refusal.has_value()) {
            addOnce(found, *discovery.units().named(name).front());
        } else if (!first.has_value()) {
            first = std::move(refusal);
        } else {
            first->message += ' ' + refusal->message;
        }
    }
    return isInterrupted() ? Refusal(interruption()) : first;
}

CommandRun::Refusal CommandRun::findEveryone(std::vector<HeardUnit>& found) {
    Discovery discovery(exchange(), {.everybody = everybody()});
    wait(discovery, [&discovery] { return std::to_string(discovery.units().count()); });
    if (!discovery.hasAsked() && !isInterrupted()) {
        return refusalOfSend(discovery.failure());
    }
    warnOfSend(discovery.failure());
    for (const HeardUnit* const unit : discovery.units().all()) {
        found.push_back(*unit);
    }
    if (isInterrupted()) {
        return interruption();
    }
    return found.empty()
               ? Refusal(failureOf(ErrorCode::notFound, localizedText("No unit has answered.")))
               : std::nullopt;
}

CommandRun::Refusal CommandRun::refusalOfSerialNumber(const std::string& serial) {
    const UnitName name = SerialNumberOfUnit{serial};
    Discovery discovery(exchange(),
                        {.everybody = everybody(), .isEnough = [&name](const HeardUnits& units) {
                             return !units.named(name).empty();
                         }});
    wait(discovery, [&discovery] { return std::to_string(discovery.units().count()); });
    if (isInterrupted()) {
        return interruption();
    }
    if (!discovery.hasAsked()) {
        return refusalOfSend(discovery.failure());
    }
    const auto others = discovery.units().named(name);
    return others.empty()
               ? std::nullopt
               : Refusal(failureOf(ErrorCode::ambiguous,
                                   localizedText("Another unit has the serial number %@: %@.",
                                                 {serial, hardwareAddressesOf(others)})));
}

CommandRun::Refusal CommandRun::findUnit(const UnitName& name, HeardUnit& unit) {
    std::vector<HeardUnit> found;
    if (auto refusal = findUnits({name}, found)) {
        return refusal;
    }
    unit = found.front();
    if (auto refusal = objectionToReach(unit)) {
        return refusal;
    }
    warnOfSender(unit);
    return std::nullopt;
}

// A command to an address of many would reach others too.
CommandRun::Refusal CommandRun::objectionToReach(const HeardUnit& unit) const {
    const RequestTarget target = targetOfRequest(true, &unit.record, addressesOfMany(_interfaces));
    if (target.reach == RequestReach::oneUnit ||
        target.reach == RequestReach::everybodyWithoutAddress) {
        return std::nullopt;
    }
    return failureOf(
        ErrorCode::ambiguous,
        localizedText("The unit %@ tells an address of many as its own: %@.",
                      {std::string(unit.serialNumber()), stringForIP(unit.target().address)}));
}

void CommandRun::warnOfSend(const std::optional<SendFailure>& failure) {
    if (failure.has_value()) {
        warn("socket", noteOfSendFailure(*failure));
    }
}

void CommandRun::warnOfSender(const HeardUnit& unit) {
    const std::uint32_t claimed = unit.target().address;
    if (claimed != unit.sender) {
        warn("sender", textOfFinding(SenderOfAnotherAddress{std::string(unit.serialNumber()),
                                                            claimed, unit.sender}));
    }
}

CommandRun::Refusal CommandRun::reachUnit(const std::string& typedName, HeardUnit& unit) {
    std::vector<UnitName> names;
    if (auto refusal = readNames({typedName}, names)) {
        return refusal;
    }
    if (auto refusal = chooseInterfaces()) {
        return refusal;
    }
    if (auto refusal = openExchange()) {
        return refusal;
    }
    return findUnit(names.front(), unit);
}

} // namespace kx
