#include "KXDiagnosis.h"

#include "conversation/UnitDestination.h"
#include "words/DiagnosisText.h"

#include <algorithm>
#include <utility>

namespace kx {

std::optional<std::string> KXDiagnosis::likeliestCause() {
    EvidenceSearch search(searchServices(), question());
    search.look();
    const Diagnosis diagnosis = diagnosisOf(search.evidence());
    return diagnosis.causes.empty()
               ? std::nullopt
               : std::optional(sentenceOfCause(diagnosis.causes.front(), search.evidence()));
}

void KXDiagnosis::ask(std::function<void()> ended) {
    DiagnosisQuestion asked = question();
    addSelectedUnit(asked);
    _search = std::make_unique<EvidenceSearch>(searchServices(), std::move(asked));
    _search->begin([this, ended = std::move(ended)] {
        makeReport(_search->evidence());
        if (ended) {
            ended();
        }
    });
}

EvidenceSearch::Services KXDiagnosis::searchServices() const {
    return {.runLoop = _services.runLoop,
            .now = _services.now,
            .witness = _services.witness,
            .systemCalls = _services.systemCalls,
            .sockets = _services.sockets,
            .host = _services.host,
            .neighbours = _services.neighbours};
}

// Before a choice the requests go to 255.255.255.255 and leave by the default route.
DiagnosisQuestion KXDiagnosis::question() {
    DiagnosisQuestion question;
    const std::vector<HostInterface> all = _services.interfaces.list();
    for (const HostInterface& interface : all) {
        for (const NetworkOfInterface& network : interface.networks) {
            question.ownAddresses.push_back(network.address);
        }
    }
    const auto chosen = _selection.chosenInterface ? _selection.chosenInterface() : std::nullopt;
    if (chosen.has_value()) {
        question.interfaceName = *chosen;
        const auto found = std::ranges::find(all, *chosen, &HostInterface::name);
        if (found != all.end()) {
            question.interface = *found;
        }
    } else {
        question.interface = interfaceWithoutChoice(all);
        question.interfaceName =
            question.interface.has_value() ? question.interface->name : std::string();
    }
    return question;
}

std::optional<HostInterface>
KXDiagnosis::interfaceWithoutChoice(const std::vector<HostInterface>& all) {
    const auto route = _services.host.route(limitedBroadcastAddress);
    if (route.has_value() && route->exists) {
        const auto found = std::ranges::find(all, route->link, &HostInterface::link);
        return found != all.end() ? std::optional(*found) : std::nullopt;
    }
    for (const auto& isWanted : {+[](const HostInterface& each) { return each.canAsk; },
                                 +[](const HostInterface& each) {
                                     return each.canBroadcast && each.kind != "loopback";
                                 }}) {
        const auto found = std::ranges::find_if(all, isWanted);
        if (found != all.end()) {
            return *found;
        }
    }
    return std::nullopt;
}

void KXDiagnosis::addSelectedUnit(DiagnosisQuestion& question) {
    const auto serial = _selection.selectedUnit ? _selection.selectedUnit() : std::nullopt;
    if (!serial.has_value()) {
        return;
    }
    const UnitName name = SerialNumberOfUnit{*serial};
    if (_services.witness.evidence(question.ownAddresses).units.named(name).empty()) {
        question.target = name;
        question.targetName = *serial;
        question.knownRecord = _selection.record ? _selection.record(*serial) : std::nullopt;
    }
}

void KXDiagnosis::makeReport(const DiagnosisEvidence& evidence) {
    const Diagnosis diagnosis = diagnosisOf(evidence);
    _report = {};
    _report.isHealthy = diagnosis.isHealthy;
    for (const Cause cause : diagnosis.causes) {
        _report.causes.push_back(sentenceOfCause(cause, evidence));
    }
    for (const Check& check : diagnosis.checks) {
        _report.rows.push_back({.state = check.state,
                                .title = titleOfCheck(check.kind),
                                .word = wordOfState(check.state),
                                .evidence = evidenceOfCheck(check, evidence),
                                .advice = adviceOfCheck(check, evidence).value_or("")});
    }
}

std::string KXDiagnosis::text() const {
    std::string text;
    for (const std::string& cause : _report.causes) {
        text += cause + "\n";
    }
    for (const Row& row : _report.rows) {
        text += row.title + "\t" + row.word + "\t" + row.evidence +
                (row.advice.empty() ? "" : "\t" + row.advice) + "\n";
    }
    return text;
}

} // namespace kx
