#include "commands/RowDiscovery.h"

#include "conversation/NewAddressSearch.h"
#include "conversation/NewAddresses.h"
#include "conversation/RowSearch.h"

#include <string>
#include <utility>
#include <vector>

namespace kx {

CommandRun::Refusal findUnitsOfRows(CommandRun& run, std::span<const WantedRow> rows,
                                    HeardUnits& heard) {
    RowSearch search(run.exchange(), {rows.begin(), rows.end()}, run.chosen());
    run.wait(search, [&search] { return std::to_string(search.heard().count()); });
    if (!search.hasAsked() && !run.isInterrupted()) {
        return CommandRun::refusalOfSend(search.failure());
    }
    run.warnOfSend(search.failure());
    heard = search.heard();
    return std::nullopt;
}

void findHolders(CommandRun& run, UnitPlan& plan, AddressProbes* probes) {
    const std::vector<NewAddress> addresses = newAddressesOf(plan);
    if (addresses.empty()) {
        return;
    }
    NewAddressSearch search(run.exchange(),
                            {.neighbours = run.services().neighbours, .probes = probes},
                            questionsAbout(addresses));
    run.wait(search, [&plan] { return std::to_string(plan.sum(RowState::planned)); });
    for (std::size_t i = 0; i < addresses.size() && !run.isInterrupted(); ++i) {
        noteHolders(plan, addresses[i].row, search.results()[i]);
    }
}

} // namespace kx
