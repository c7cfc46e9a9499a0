// The window's diagnosis: why no unit answers, for the line below Discover and for the window with
// the checks.
//
// The line's sentence rests on what the listener has heard and the host knows; nothing is sent for
// it. The checks are asked for when a person opens their window or presses its button. They use
// sockets of their own, so that nothing of them reaches the listener's owner or the event log.
//
// Threading: the main thread only; nothing blocks. Ownership: the services and whatever the
// selection reads must outlive this object.

#pragma once

#include "conversation/Diagnosis.h"
#include "conversation/EvidenceSearch.h"
#include "conversation/HostInterface.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kx {

class KXDiagnosis {
public:
    struct Services {
        RunLoop& runLoop;
        MonotonicClock now;
        ListenerWitness& witness; // the listener uses it
        DatagramSystemCalls& systemCalls;
        DiagnosticSockets& sockets;
        HostDiagnostics& host;
        NeighbourTable& neighbours;
        HostInterfaces& interfaces;
    };

    // What a person has chosen in the main window. Each may be empty.
    struct Selection {
        std::function<std::optional<std::string>()> chosenInterface; // its name in the system
        std::function<std::optional<std::string>()> selectedUnit;    // its serial number
        std::function<std::optional<UnitRecord>(const std::string& serial)> record;
    };

    // One row of the window.
    struct Row {
        CheckState state = CheckState::unknown;
        std::string title;
        std::string word; // for the state
        std::string evidence;
        std::string advice; // empty when there is none
    };
    struct Report {
        std::vector<std::string> causes; // sentences, the likeliest first
        std::vector<Row> rows;
        bool isHealthy = false;
    };

    explicit KXDiagnosis(const Services& services)
        : _services(services) {}

    void setSelection(Selection selection) { _selection = std::move(selection); }

    // Why the latest discovery was not answered; absent when nothing speaks for a cause.
    std::optional<std::string> likeliestCause();

    // Asks, and calls `ended` when the report is there. Another call begins anew. When the selected
    // unit has not answered the latest discovery, it is asked for too.
    void ask(std::function<void()> ended);
    bool isAsking() const { return _search != nullptr && !_search->hasEnded(); }

    // Gives up what is under way, without a word.
    void stop() { _search.reset(); }

    // Of the latest time that was asked; empty before.
    const Report& report() const { return _report; }

    // The report as plain text, a line for each cause and each check.
    std::string text() const;

private:
    DiagnosisQuestion question();
    std::optional<HostInterface> interfaceWithoutChoice(const std::vector<HostInterface>& all);
    void addSelectedUnit(DiagnosisQuestion& question);
    EvidenceSearch::Services searchServices() const;
    void makeReport(const DiagnosisEvidence& evidence);

    Services _services;
    Selection _selection;
    std::unique_ptr<EvidenceSearch> _search; // the latest; null before the first
    Report _report;
};

} // namespace kx
