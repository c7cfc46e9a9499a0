#include "commands/RowDiscovery.h"

#include "addresses/IPv4Address.h"
#include "conversation/LastAddressRequests.h"
#include "conversation/NewAddressSearch.h"
#include "conversation/NewAddresses.h"

#include <algorithm>
#include <functional>
#include <set>
#include <string>
#include <utility>

namespace kx {

namespace {

using Refusal = CommandRun::Refusal;

// Others who claim to be the same unit have at least so long to answer after the last one.
constexpr std::chrono::milliseconds timeForOthers{10};

// Whether a unit is known by the value.
bool isIdentity(UnitParameter parameter) {
    return parameter == UnitParameter::serialNumber ||
           parameter == UnitParameter::internalIPAddress ||
           parameter == UnitParameter::internalMACAddress;
}

bool changesIdentities(std::span<const WantedRow> rows) {
    return std::ranges::any_of(rows, [](const WantedRow& row) {
        return std::ranges::any_of(
            row.edits, [](const ExactEdit& edit) { return isIdentity(edit.edit.parameter); });
    });
}

// The serial numbers of rows from which nobody has answered yet.
class AwaitedUnits final : private UnitExchange::Listener {
public:
    AwaitedUnits(UnitExchange& exchange, std::span<const WantedRow> rows)
        : Listener(exchange) {
        for (const WantedRow& row : rows) {
            _serialNumbers.insert(row.serialNumber);
        }
    }

    bool isEmpty() const { return _serialNumbers.empty(); }
    bool contains(const std::string& serialNumber) const {
        return _serialNumbers.contains(serialNumber);
    }

private:
    void unitDidTell(const HeardUnit& unit) override {
        const auto found = _serialNumbers.find(unit.serialNumber());
        if (found != _serialNumbers.end()) {
            _serialNumbers.erase(found);
        }
    }

    std::set<std::string, std::less<>> _serialNumbers;
};

const ExactEdit* editOf(const WantedRow& row, UnitParameter parameter) {
    const auto found = std::ranges::find_if(
        row.edits, [parameter](const ExactEdit& edit) { return edit.edit.parameter == parameter; });
    return found != row.edits.end() ? &*found : nullptr;
}

// The unit at an address that the file tells of it: the one that a kept plan saw, or the one that a
// table wants. An exported table wants what the unit had.
HeardUnit lastKnownUnit(const WantedRow& row) {
    HeardUnit unit;
    if (row.seen.has_value()) {
        unit.record = row.seen->record;
    }
    unit.record.setValue(UnitParameter::serialNumber, row.serialNumber);
    for (const UnitParameter parameter :
         {UnitParameter::internalIPAddress, UnitParameter::internalMACAddress,
          UnitParameter::devicePortNumber}) {
        const ExactEdit* const edit = editOf(row, parameter);
        if (!row.seen.has_value() && edit != nullptr && edit->edit.expectedText.has_value()) {
            unit.record.setValue(parameter, *edit->edit.expectedText);
        }
    }
    return unit;
}

std::uint32_t linkFor(const CommandRun& run, std::uint32_t address) {
    const auto& chosen = run.chosen();
    const auto found = std::ranges::find_if(chosen, [address](const HostInterface& interface) {
        return interface.networkOf(address) != nullptr;
    });
    return found != chosen.end() ? found->link : chosen.front().link;
}

void askAtLastAddresses(CommandRun& run, std::span<const WantedRow> rows,
                        const AwaitedUnits& awaited, HeardUnits& heard) {
    std::vector<HeardUnit> missing;
    for (const WantedRow& row : rows) {
        if (awaited.contains(row.serialNumber)) {
            HeardUnit unit = lastKnownUnit(row);
            if (unit.target().address != 0) {
                unit.link = linkFor(run, unit.target().address);
                missing.push_back(unit);
            }
        }
    }
    if (missing.empty() || run.isInterrupted()) {
        return;
    }
    LastAddressRequests requests(run.exchange(), missing);
    run.wait(requests, [&heard] { return std::to_string(heard.count()); });
    for (const HeardUnit* const unit : requests.heard().all()) {
        heard.add(*unit);
    }
}

// Ends before its time when every awaited unit has answered and `mayEndEarly` is true.
Refusal askEverybody(CommandRun& run, const AwaitedUnits& awaited, bool mayEndEarly,
                     HeardUnits& heard) {
    DiscoveryPlan plan{.everybody = run.everybody(), .settling = timeForOthers};
    if (mayEndEarly) {
        plan.isEnough = [&awaited](const HeardUnits&) { return awaited.isEmpty(); };
    }
    Discovery discovery(run.exchange(), std::move(plan));
    run.wait(discovery, [&discovery] { return std::to_string(discovery.units().count()); });
    if (!discovery.hasAsked() && !run.isInterrupted()) {
        return CommandRun::refusalOfSend(discovery.failure());
    }
    run.warnOfSend(discovery.failure());
    for (const HeardUnit* const unit : discovery.units().all()) {
        heard.add(*unit);
    }
    return std::nullopt;
}

} // namespace

Refusal findUnitsOfRows(CommandRun& run, std::span<const WantedRow> rows, HeardUnits& heard) {
    const AwaitedUnits awaited(run.exchange(), rows);
    auto refusal = askEverybody(run, awaited, !changesIdentities(rows), heard);
    if (!refusal.has_value()) {
        askAtLastAddresses(run, rows, awaited, heard);
    }
    // One silent row holds up all the others, so a unit gets a second chance before it is called
    // silent: a busy host sends few of the requests of one discovery.
    if (!refusal.has_value() && !awaited.isEmpty() && !run.isInterrupted()) {
        refusal = askEverybody(run, awaited, true, heard);
    }
    return refusal;
}

void findHolders(CommandRun& run, UnitPlan& plan, AddressProbes* probes) {
    const std::vector<NewAddress> addresses = newAddressesOf(plan);
    std::vector<AddressQuestion> questions;
    questions.reserve(addresses.size());
    for (const NewAddress& address : addresses) {
        questions.push_back(address.question);
    }
    if (questions.empty()) {
        return;
    }
    NewAddressSearch search(run.exchange(),
                            {.neighbours = run.services().neighbours, .probes = probes},
                            std::move(questions));
    run.wait(search, [&plan] { return std::to_string(plan.sum(RowState::planned)); });
    for (std::size_t i = 0; i < addresses.size() && !run.isInterrupted(); ++i) {
        noteHolders(plan, addresses[i].row, search.results()[i]);
    }
}

} // namespace kx
