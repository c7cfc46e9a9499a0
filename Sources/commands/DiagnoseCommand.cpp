// diagnose: tells why no unit answers, or why one does not.

#include "addresses/IPv4Address.h"
#include "commands/CommandRun.h"
#include "commands/Commands.h"
#include "commands/TextTable.h"
#include "conversation/Diagnosis.h"
#include "conversation/EvidenceSearch.h"
#include "support/LocalizedText.h"
#include "units/UnitCommand.h"
#include "words/DiagnosisText.h"
#include "words/QuotedText.h"

#include <algorithm>

namespace kx {

namespace {

using Refusal = CommandRun::Refusal;

// What was found out about one interface.
struct Look {
    DiagnosisEvidence evidence;
    Diagnosis diagnosis;
};

Refusal readTarget(const std::vector<std::string>& words, std::optional<DiagnosisTarget>& target) {
    if (words.empty()) {
        return std::nullopt;
    }
    const std::string& word = words.front();
    const std::uint32_t address = ipForString(word);
    if (address != 0 && stringForIP(address) == word) {
        target = address;
    } else if (const auto name = unitNameForText(word)) {
        target = *name;
    } else {
        return failureOf(ErrorCode::value,
                         localizedText("“%@” names no unit and is no IPv4 address. Write a serial "
                                       "number such as 4B5800000001, id:TEXT, or 192.0.2.41.",
                                       {safeForSentence(word)}));
    }
    return std::nullopt;
}

// Nobody else can be asked at an address of this host or of a whole network. One outside of the
// networks can be asked about.
Refusal objectionToTarget(const CommandRun& run, const std::optional<DiagnosisTarget>& target) {
    const auto* const address = target.has_value() ? std::get_if<std::uint32_t>(&*target) : nullptr;
    if (address == nullptr) {
        return std::nullopt;
    }
    const auto objection = objectionToAddress(*address, run.interfaces(), run.chosen());
    return objection == AddressObjection::isOutside
               ? std::nullopt
               : CommandRun::refusalOfAddress(objection, *address);
}

std::vector<std::uint32_t> ownAddresses(const std::vector<HostInterface>& interfaces) {
    std::vector<std::uint32_t> addresses;
    for (const HostInterface& interface : interfaces) {
        for (const NetworkOfInterface& network : interface.networks) {
            addresses.push_back(network.address);
        }
    }
    return addresses;
}

Look askOn(CommandRun& run, ListenerWitness& witness, const std::optional<HostInterface>& interface,
           const std::optional<DiagnosisTarget>& target) {
    DiagnosisQuestion question;
    question.interface = interface;
    question.interfaceName = interface.has_value() ? interface->name : std::string();
    question.ownAddresses = ownAddresses(run.interfaces());
    question.target = target;
    question.targetName = run.line().words.empty() ? std::string() : run.line().words.front();
    if (run.isListening() && interface.has_value()) {
        question.ask = [&run, everybody = UnitTarget{.address = interface->broadcast(),
                                                     .port = defaultUnitPort,
                                                     .link = interface->link}] {
            run.exchange().send(parameterRequestCommand, everybody);
        };
    }
    const CommandServices& services = run.services();
    EvidenceSearch search({.runLoop = services.session.runLoop,
                           .now = services.now,
                           .witness = witness,
                           .systemCalls = run.systemCalls(),
                           .sockets = services.diagnosticSockets,
                           .host = services.diagnostics,
                           .neighbours = services.neighbours},
                          std::move(question));
    run.wait(search);
    return {.evidence = search.evidence(), .diagnosis = diagnosisOf(search.evidence())};
}

// An interface on which units answer shows that they are not expected on the others.
void forgiveSilence(std::vector<Look>& looks, bool hasTarget) {
    const auto isHealthy = [](const Look& look) { return look.diagnosis.isHealthy; };
    if (std::ranges::none_of(looks, isHealthy)) {
        return;
    }
    if (hasTarget) {
        std::erase_if(looks, std::not_fn(isHealthy));
        return;
    }
    for (Look& look : looks) {
        if (std::erase(look.diagnosis.causes, Cause::nothingArrived) == 0) {
            continue;
        }
        for (Check& check : look.diagnosis.checks) {
            if (check.cause == Cause::nothingArrived) {
                check = {.kind = check.kind, .state = CheckState::warn, .cause = {}};
            }
        }
    }
}

void reportChecks(CommandRun& run, const std::vector<Look>& looks) {
    TextTable table({"check", "state", "evidence"});
    for (const Look& look : looks) {
        for (const Check& check : look.diagnosis.checks) {
            const std::string id(idOfCheck(check.kind));
            const std::string state(idOfState(check.state));
            const std::string evidence = evidenceOfCheck(check, look.evidence);
            const auto advice = adviceOfCheck(check, look.evidence);
            Json json;
            json["id"] = id;
            json["state"] = state;
            json["evidence"] = evidence;
            json["advice"] = advice.has_value() ? Json(*advice) : Json(nullptr);
            run.document()["checks"].push_back(std::move(json));
            table.addRow({id, state, evidence});
        }
    }
    run.print(table.text(run.isBold()));
}

// The weightiest cause of all interfaces first; of equal ones that of the interface that comes
// first.
void reportCauses(CommandRun& run, const std::vector<Look>& looks) {
    std::vector<std::pair<Cause, const Look*>> causes;
    for (const Look& look : looks) {
        for (const Cause cause : look.diagnosis.causes) {
            causes.emplace_back(cause, &look);
        }
    }
    std::ranges::stable_sort(causes, {}, [](const auto& each) { return each.first; });
    for (const auto& [cause, look] : causes) {
        const std::string id(idOfCause(cause));
        const std::string sentence = sentenceOfCause(cause, look->evidence);
        Json json;
        json["id"] = id;
        json["sentence"] = sentence;
        run.document()["causes"].push_back(std::move(json));
        std::string text = "\n" + id;
        text.append(": ").append(sentence).append("\n    ");
        run.print(text.append(adviceOfCause(cause, look->evidence)).append("\n"));
    }
}

// No cause can be named where the program could not ask for a reason that is none of the network's.
Refusal refusalWithoutCause(const CommandRun& run, Refusal notOpened) {
    if (notOpened.has_value()) {
        return notOpened;
    }
    return failureOf(ErrorCode::interface,
                     localizedText("%@ cannot broadcast. It needs a link and an IPv4 address.",
                                   {safeForSentence(run.chosen().front().title)}));
}

} // namespace

int runDiagnose(CommandRun& run) {
    std::optional<DiagnosisTarget> target;
    for (const auto& step : std::initializer_list<std::function<Refusal()>>{
             [&] { return readTarget(run.line().words, target); },
             [&] { return run.chooseInterfacesToLookAt(); },
             [&] { return objectionToTarget(run, target); }}) {
        if (auto refusal = step()) {
            return run.finish(std::move(refusal));
        }
    }
    std::optional<ListenerWitness> witness;
    Refusal notOpened = run.openExchange([&](DatagramSystemCalls& inner) -> DatagramSystemCalls& {
        return witness.emplace(inner, run.services().session.receiveBuffers);
    });
    std::vector<Look> looks;
    for (const HostInterface& interface : run.chosen()) {
        looks.push_back(askOn(run, *witness, interface, target));
    }
    if (run.chosen().empty()) {
        looks.push_back(askOn(run, *witness, std::nullopt, target));
    }
    if (run.isInterrupted()) {
        run.closeExchange();
        return run.finish(); // half of the evidence would accuse wrongly
    }
    forgiveSilence(looks, target.has_value());
    reportChecks(run, looks);
    reportCauses(run, looks);
    run.closeExchange();
    if (std::ranges::any_of(looks,
                            [](const Look& each) { return !each.diagnosis.causes.empty(); })) {
        return run.finish({}, exitNo);
    }
    const bool isHealthy =
        std::ranges::any_of(looks, [](const Look& each) { return each.diagnosis.isHealthy; });
    return isHealthy ? run.finish() : run.finish(refusalWithoutCause(run, std::move(notOpened)));
}

} // namespace kx
