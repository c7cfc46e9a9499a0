#include "commands/SavedComparison.h"

#include "commands/TextTable.h"
#include "commands/UnitTables.h"
#include "files/WholeFile.h"
#include "support/LocalizedText.h"
#include "units/IdentityText.h"
#include "words/QuotedText.h"

#include <algorithm>
#include <utility>

namespace kx {

namespace {

using Refusal = CommandRun::Refusal;

// More than 190,000 units.
constexpr std::size_t mostBytes = std::size_t{64} * 1024 * 1024;

// Interfaces that only a file names get numbers from here on. The kernel's indexes are positive
// integers of 32 bits with a sign.
constexpr std::uint32_t firstLinkOfFiles = 0x80000000U;

std::string sentenceOfFault(SavedDiscoveryFault fault, const std::string& path) {
    switch (fault) {
    case SavedDiscoveryFault::damaged:
        return localizedText("“%@” is damaged.", {path});
    case SavedDiscoveryFault::otherDocument:
        return localizedText("“%@” is no saved discovery. “kxctl discover --save FILE” writes one.",
                             {path});
    case SavedDiscoveryFault::otherVersion:
        return localizedText("“%@” has the format of another version of kxctl.", {path});
    case SavedDiscoveryFault::neverAsked:
        break;
    }
    return localizedText("“%@” tells of a discovery that could not ask anybody.", {path});
}

struct ShownDifference {
    std::string from;
    std::string to;
};

// Two unit IDs may differ and have the same text, "1" for example. Their bytes tell them apart.
ShownDifference shownDifference(const ParameterDifference& difference) {
    ShownDifference shown{shownValue(*difference.before, difference.parameter),
                          shownValue(*difference.now, difference.parameter)};
    if (shown.from == shown.to && difference.before->unitIDBytes.has_value() &&
        difference.now->unitIDBytes.has_value()) {
        shown = {hexStringForData(*difference.before->unitIDBytes, ""),
                 hexStringForData(*difference.now->unitIDBytes, "")};
    }
    return shown;
}

Json jsonOfValue(const HeardUnit& unit, UnitParameter parameter, std::string shown) {
    const bool isTold = unit.record.value(parameter).has_value() ||
                        (parameter == UnitParameter::unitID && unit.unitIDBytes.has_value());
    return isTold ? Json(std::move(shown)) : Json(nullptr);
}

} // namespace

Refusal readDiscovery(const std::string& path, DiscoveryFile& file) {
    file.path = path;
    const std::string shownPath = safeForSentence(path);
    const auto contents = contentsOfFile(path, mostBytes);
    if (const auto* const error = std::get_if<Error>(&contents)) {
        return failureOf(
            ErrorCode::file,
            localizedText("“%@” cannot be read: %@.", {shownPath, error->localizedDescription()}));
    }
    auto read = readSavedDiscovery(std::get<std::string>(contents));
    if (const auto* const fault = std::get_if<SavedDiscoveryFault>(&read)) {
        return failureOf(ErrorCode::file, sentenceOfFault(*fault, shownPath));
    }
    file.discovery = std::get<SavedDiscovery>(std::move(read));
    return std::nullopt;
}

SavedComparison::SavedComparison(CommandRun& run, const DiscoveryFile& before)
    : _run(run)
    , _path(safeForSentence(before.path))
    , _isBaselineComplete(before.discovery.isComplete)
    , _interfaces(run.interfaces())
    , _before(unitsOf(before.discovery)) {}

HeardUnits SavedComparison::unitsOf(const SavedDiscovery& discovery) {
    HeardUnits units;
    for (const SavedUnit& saved : discovery.units) {
        units.add({.record = saved.record,
                   .unitIDBytes = saved.unitIDBytes,
                   .sender = saved.sender,
                   .link = saved.interface.has_value() ? linkOf(*saved.interface) : 0,
                   .answered = saved.answered});
    }
    return units;
}

std::uint32_t SavedComparison::linkOf(const std::string& interface) {
    const auto known = std::ranges::find(_interfaces, interface, &HostInterface::name);
    if (known != _interfaces.end()) {
        return known->link;
    }
    HostInterface onlyInFile;
    onlyInFile.name = interface;
    onlyInFile.link = firstLinkOfFiles + static_cast<std::uint32_t>(_interfaces.size());
    _interfaces.push_back(onlyInFile);
    return onlyInFile.link;
}

// The routes decide for a unit whose interface this host does not have.
std::vector<HeardUnit>
SavedComparison::lastAddressesOf(const std::vector<const HeardUnit*>& units) const {
    std::vector<HeardUnit> targets;
    targets.reserve(units.size());
    for (const HeardUnit* const unit : units) {
        targets.push_back(*unit);
        if (unit->link >= firstLinkOfFiles) {
            targets.back().link = 0;
        }
    }
    return targets;
}

void SavedComparison::compareWithAnswers(const HeardUnits& heard) {
    _now = heard;
    _comparison = compareDiscoveries(_before, _now);
    LastAddressRequests requests(_run.exchange(), lastAddressesOf(_comparison.missing));
    _run.wait(requests, [this, &requests] {
        return std::to_string(_now.count() + requests.heard().count());
    });
    for (const HeardUnit* const unit : requests.heard().all()) {
        _now.add(*unit);
    }
    _comparison = compareDiscoveries(_before, _now);
    if (_run.exchange().dropped() > 0) {
        keepBackMissing(localizedText("Units of “%@” that have not answered: %d. They are not "
                                      "called missing, because datagrams were dropped.",
                                      {_path, countOfMissing()}));
    } else if (_now.isIncomplete() || _run.isInterrupted()) {
        keepBackMissing(localizedText("Units of “%@” that have not answered: %d. They are not "
                                      "called missing, because the discovery was not complete.",
                                      {_path, countOfMissing()}));
    } else {
        keepBackUnasked(requests);
    }
}

void SavedComparison::keepBackUnasked(const LastAddressRequests& requests) {
    const auto unasked = std::erase_if(_comparison.missing, [&requests](const HeardUnit* unit) {
        return !requests.wasAsked(*unit);
    });
    if (unasked > 0) {
        _doubt = localizedText("Units of “%@” that have not answered: %d. They are not called "
                               "missing, because they could not be asked at their last addresses.",
                               {_path, static_cast<long long>(unasked)});
    }
}

void SavedComparison::compareWithFile(const DiscoveryFile& now) {
    _now = unitsOf(now.discovery);
    _comparison = compareDiscoveries(_before, _now);
    if (!now.discovery.isComplete) {
        keepBackMissing(
            localizedText("Units that are not in “%@”: %d. They are not called missing, "
                          "because that discovery was not complete.",
                          {safeForSentence(now.path), countOfMissing()}));
    }
}

long long SavedComparison::countOfMissing() const {
    return static_cast<long long>(_comparison.missing.size());
}

void SavedComparison::keepBackMissing(const std::string& sentence) {
    if (!_comparison.missing.empty()) {
        _comparison.missing.clear();
        _doubt = sentence;
    }
}

Json SavedComparison::json() const {
    Json json;
    json["new"] = Json::array();
    for (const HeardUnit* const unit : _comparison.added) {
        json["new"].push_back(jsonOfUnit(*unit, _interfaces));
    }
    json["missing"] = Json::array();
    for (const HeardUnit* const unit : _comparison.missing) {
        json["missing"].push_back(jsonOfUnit(*unit, _interfaces));
    }
    json["changed"] = Json::array();
    for (const ParameterDifference& each : _comparison.differences) {
        const ShownDifference shown = shownDifference(each);
        Json change;
        change["serial"] = std::string(each.now->serialNumber());
        change["parameter"] = std::string(descriptionOf(each.parameter).identifier);
        change["from"] = jsonOfValue(*each.before, each.parameter, shown.from);
        change["to"] = jsonOfValue(*each.now, each.parameter, shown.to);
        json["changed"].push_back(std::move(change));
    }
    json["same"] = _comparison.same;
    return json;
}

std::string SavedComparison::table(bool isBold) const {
    if (_comparison.areEqual()) {
        return {};
    }
    TextTable table({"state", "serial", "unit-id", "internal-ip", "parameter", "from", "to"});
    const auto addRow = [&table](const char* state, const HeardUnit& unit, std::string parameter,
                                 ShownDifference shown) {
        table.addRow({state, std::string(unit.serialNumber()),
                      shownValue(unit, UnitParameter::unitID),
                      shownValue(unit, UnitParameter::internalIPAddress), std::move(parameter),
                      std::move(shown.from), std::move(shown.to)});
    };
    for (const HeardUnit* const unit : _comparison.added) {
        addRow("new", *unit, {}, {});
    }
    for (const HeardUnit* const unit : _comparison.missing) {
        addRow("missing", *unit, {}, {});
    }
    for (const ParameterDifference& each : _comparison.differences) {
        addRow("changed", *each.now, std::string(descriptionOf(each.parameter).identifier),
               shownDifference(each));
    }
    return table.text(isBold);
}

Refusal SavedComparison::result() {
    if (!_isBaselineComplete && !_comparison.added.empty()) {
        _run.warn("baseline",
                  localizedText("The discovery in “%@” was not complete, so a unit that "
                                "is called new may have been there.",
                                {_path}));
    }
    if (_comparison.areEqual()) {
        return _doubt.empty() ? std::nullopt : Refusal(failureOf(ErrorCode::fewer, _doubt));
    }
    if (!_doubt.empty()) {
        _run.warn("unverified", _doubt);
    }
    return failureOf(ErrorCode::differs,
                     localizedText("The units differ from “%@”: %d new, %d missing, %d changed, %d "
                                   "the same.",
                                   {_path, static_cast<long long>(_comparison.added.size()),
                                    static_cast<long long>(_comparison.missing.size()),
                                    static_cast<long long>(_comparison.changed),
                                    static_cast<long long>(_comparison.same)}));
}

} // namespace kx
