// discover: broadcasts, collects the answers, and lists them in the order of serial numbers.

#include "commands/CommandRun.h"
#include "commands/Commands.h"
#include "commands/SavedComparison.h"
#include "commands/UnitTables.h"
#include "conversation/Discovery.h"
#include "conversation/UnitDestination.h"
#include "support/LocalizedText.h"
#include "units/UnitCommand.h"
#include "words/FindingText.h"
#include "words/QuotedText.h"

#include <memory>

namespace kx {

namespace {

using Refusal = CommandRun::Refusal;

struct DiscoverOptions {
    DiscoveryPlan plan;
    std::optional<std::int32_t> expected;
    std::unique_ptr<OutputFile> file;      // null when the document is not saved
    std::optional<DiscoveryFile> baseline; // absent when nothing is compared
};

// The file with which the units are compared may be the one that is replaced afterwards.
Refusal readFiles(CommandRun& run, DiscoverOptions& options) {
    if (const auto path = run.line().valueOf("--compare")) {
        run.document()["compare"] = nullptr;
        options.baseline.emplace();
        if (auto refusal = readDiscovery(*path, *options.baseline)) {
            return refusal;
        }
    }
    if (const auto path = run.line().valueOf("--save")) {
        options.file = std::make_unique<OutputFile>(*path);
        return CommandRun::refusalOfFile(*options.file, options.file->lookForReplacement());
    }
    return std::nullopt;
}

Refusal readOptions(const CommandLine& line, DiscoverOptions& options) {
    const TimeOption wait = secondsOf(line, "--wait");
    const NumberOption tries = wholeNumberOf(line, "--tries");
    const NumberOption expected = wholeNumberOf(line, "--expect");
    for (const auto& failure : {wait.failure, tries.failure, expected.failure}) {
        if (failure.has_value()) {
            return failure;
        }
    }
    options.plan.wait = wait.time.value_or(options.plan.wait);
    options.plan.tries = tries.number;
    if (tries.number.has_value() &&
        options.plan.wait / *tries.number < shortestTimeBetweenRequests) {
        return failureOf(
            ErrorCode::usage,
            localizedText("%d requests in that time follow each other too closely. They "
                          "need 0.01 seconds each.",
                          {static_cast<int>(*tries.number)}));
    }
    options.expected = expected.number;
    return std::nullopt;
}

void addPlaces(const CommandRun& run, DiscoveryPlan& plan) {
    plan.everybody = run.everybody();
    if (run.line().has("--limited")) {
        for (const HostInterface& interface : run.chosen()) {
            plan.everybody.push_back({.address = limitedBroadcastAddress,
                                      .port = defaultUnitPort,
                                      .link = interface.link});
        }
    }
}

std::string joined(const std::vector<std::string>& texts) {
    std::string result;
    for (const std::string& text : texts) {
        result += (result.empty() ? "" : ", ") + text;
    }
    return result;
}

void warnOfDuplicates(CommandRun& run, const HeardUnits& units) {
    for (const DuplicateAddress& duplicate : units.duplicateAddresses()) {
        run.warn("ambiguous", localizedText("Several units have the address %@: %@.",
                                            {duplicate.address, joined(duplicate.serialNumbers)}));
    }
    for (const DuplicateSerialNumber& duplicate : units.duplicateSerialNumbers()) {
        run.warn("ambiguous",
                 localizedText("Several units have the serial number %@: %@.",
                               {duplicate.serialNumber, joined(duplicate.hardwareAddresses)}));
    }
}

// The list of units has one line for these.
void warnOfContradictions(CommandRun& run, const Discovery& discovery) {
    const auto nameOfLink = [&run](std::uint32_t link) {
        return nameOfInterface(run.interfaces(), link);
    };
    for (const Finding& finding : discovery.contradictions()) {
        const auto* const hosts = std::get_if<TwoHostsOfOneSerial>(&finding);
        const bool isOneUnit =
            hosts != nullptr &&
            discovery.units().named(SerialNumberOfUnit{hosts->serial}).size() == 1;
        if (isOneUnit) {
            run.warn("ambiguous", textOfFinding(finding));
        } else if (std::holds_alternative<UnitOnTwoInterfaces>(finding)) {
            run.warn("interfaces", textOfFinding(finding, nameOfLink));
        }
    }
}

void fillDocument(CommandRun& run, const Discovery& discovery, const HeardUnits& units) {
    Document& document = run.document();
    const std::uint32_t dropped = run.exchange().dropped();
    if (run.wantsDocument() || run.line().has("--save")) {
        for (const HeardUnit* const unit : units.all()) {
            document.appendText("units", textOfUnit(*unit, run.interfaces()));
        }
    }
    document["duplicates"] = jsonOfDuplicates(units);
    document["dropped"] = dropped;
    document["rejected"] = run.exchange().rejected();
    document["complete"] = dropped == 0 && !units.isIncomplete() && !run.isInterrupted() &&
                           !discovery.failure().has_value();
    run.warnOfSend(discovery.failure());
    if (dropped > 0) {
        run.warn("dropped", localizedText("The system had no room for %d datagrams. Units may be "
                                          "missing.",
                                          {static_cast<int>(dropped)}));
    }
    warnOfDuplicates(run, units);
    warnOfContradictions(run, discovery);
    for (const HeardUnit* const unit : units.all()) {
        run.warnOfSender(*unit);
    }
}

void printUnits(CommandRun& run, const HeardUnits& units) {
    if (run.wantsDocument()) {
        return; // which holds the units already
    }
    if (run.line().has("--csv")) {
        run.print(csvOfUnits(units.all(), run.interfaces()));
    } else if (units.count() > 0) {
        run.print(tableOfUnits(units.all(), run.interfaces(), run.isBold()));
    }
}

// The table of differences stands below that of the units, and never within comma-separated values.
Refusal tellComparison(CommandRun& run, SavedComparison& comparison) {
    run.document()["compare"] = comparison.json();
    const std::string table = comparison.table(run.isBold());
    if (!run.line().has("--csv") && !table.empty()) {
        run.print((comparison.units().count() > 0 ? "\n" : "") + table);
    }
    return comparison.result();
}

// What was known of units is not given up for the knowledge that none has answered.
void save(CommandRun& run, std::unique_ptr<OutputFile> file, const HeardUnits& units) {
    if (file != nullptr && units.count() == 0 && file->isFilled()) {
        run.warn("kept", localizedText("“%@” stays as it is, because no unit has answered.",
                                       {safeForSentence(file->path())}));
    } else {
        run.saveDocument(std::move(file));
    }
}

Refusal resultOf(const HeardUnits& units, const std::optional<std::int32_t>& expected) {
    const auto count = static_cast<long long>(units.count());
    if (expected.has_value() && count < *expected) {
        return failureOf(ErrorCode::fewer, localizedText("%d of %d units have answered.",
                                                         {count, static_cast<int>(*expected)}));
    }
    return count == 0
               ? Refusal(failureOf(ErrorCode::notFound, localizedText("No unit has answered.")))
               : std::nullopt;
}

} // namespace

int runDiscover(CommandRun& run) {
    DiscoverOptions options;
    for (const auto& step : std::initializer_list<std::function<Refusal()>>{
             [&] { return readOptions(run.line(), options); },
             [&] { return readFiles(run, options); }, [&] { return run.chooseInterfaces(); },
             [&] { return run.openExchange(); }}) {
        if (auto refusal = step()) {
            return run.finish(std::move(refusal));
        }
    }
    addPlaces(run, options.plan);
    if (options.expected.has_value()) {
        options.plan.isEnough = [expected = *options.expected](const HeardUnits& units) {
            return units.count() >= static_cast<std::size_t>(expected);
        };
    }
    run.document()["interface"] =
        run.chosen().size() == 1 ? Json(run.chosen().front().name) : Json("all");
    run.document()["port"] = run.exchange().port();

    Discovery discovery(run.exchange(), options.plan);
    run.wait(discovery, [&discovery] { return std::to_string(discovery.units().count()); });
    if (!discovery.hasAsked()) {
        return run.finish(CommandRun::refusalOfSend(discovery.failure()));
    }
    std::optional<SavedComparison> comparison;
    if (options.baseline.has_value()) {
        comparison.emplace(run, *options.baseline);
        comparison->compareWithAnswers(discovery.units());
    }
    const HeardUnits& units = comparison.has_value() ? comparison->units() : discovery.units();
    fillDocument(run, discovery, units);
    printUnits(run, units);
    Refusal result = resultOf(units, options.expected);
    if (comparison.has_value()) {
        auto refusal = tellComparison(run, *comparison);
        result = result.has_value() ? std::move(result) : std::move(refusal);
    }
    save(run, std::move(options.file), units);
    return run.finish(std::move(result));
}

} // namespace kx
