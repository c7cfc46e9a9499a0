// A comparison with a discovery that was saved: what `discover --compare` and `compare` have in
// common.
//
// A unit is called missing only when it was asked at its last address and did not answer, and never
// when answers may have got lost in this host.
//
// Main thread only. Ownership: the run must outlive the comparison.

#pragma once

#include "commands/CommandRun.h"
#include "conversation/DiscoveryComparison.h"
#include "conversation/LastAddressRequests.h"
#include "files/SavedDiscovery.h"

#include <cstddef>
#include <string>
#include <vector>

namespace kx {

// A file and the discovery that it holds.
struct DiscoveryFile {
    std::string path;
    SavedDiscovery discovery;
};

// Reads the file, or says why it holds no discovery.
CommandRun::Refusal readDiscovery(const std::string& path, DiscoveryFile& file);

class SavedComparison {
public:
    // The run has chosen its interfaces, unless nobody is to be asked.
    SavedComparison(CommandRun& run, const DiscoveryFile& before);
    SavedComparison(const SavedComparison&) = delete;
    SavedComparison& operator=(const SavedComparison&) = delete;

    // Compares with the units that have answered a discovery just now. Asks those that have not
    // answered at their last addresses first, which takes up to 2.2 s.
    void compareWithAnswers(const HeardUnits& heard);

    // Compares with another file. Nobody is asked.
    void compareWithFile(const DiscoveryFile& now);

    // The units of the later discovery, also those that answered at their last addresses.
    const HeardUnits& units() const { return _now; }

    // The interfaces of this host, and those that only a file names.
    const std::vector<HostInterface>& interfaces() const { return _interfaces; }

    // An object with the keys `new`, `missing`, `changed` and `same`.
    Json json() const;

    // A line for each unit that is new or missing and for each parameter that has changed; empty
    // without any.
    std::string table(bool isBold) const;

    // Tells what is doubtful, and returns why the command does not end with 0: the discoveries
    // differ, or units have not answered and cannot be called missing.
    CommandRun::Refusal result();

private:
    HeardUnits unitsOf(const SavedDiscovery& discovery);
    std::uint32_t linkOf(const std::string& interface);
    std::vector<HeardUnit> lastAddressesOf(const std::vector<const HeardUnit*>& units) const;
    void keepBackMissing(const std::string& sentence);
    void keepBackUnasked(const LastAddressRequests& requests);
    long long countOfMissing() const;

    CommandRun& _run;
    std::string _path;
    bool _isBaselineComplete;
    std::vector<HostInterface> _interfaces;
    HeardUnits _before;
    HeardUnits _now;
    DiscoveryComparison _comparison; // refers to units of both
    std::string _doubt;              // why units are not called missing; empty without any
};

} // namespace kx
