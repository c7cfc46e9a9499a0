// check: tells who holds IPv4 addresses.

#include "addresses/IPv4Address.h"
#include "commands/CommandRun.h"
#include "commands/Commands.h"
#include "commands/TextTable.h"
#include "support/LocalizedText.h"
#include "units/IdentityText.h"
#include "words/QuotedText.h"

#include <algorithm>

namespace kx {

namespace {

using Refusal = CommandRun::Refusal;

Refusal readAddresses(const std::vector<std::string>& words,
                      std::vector<std::uint32_t>& addresses) {
    for (const std::string& word : words) {
        const std::uint32_t address = ipForString(word);
        if (address == 0 || stringForIP(address) != word) {
            return failureOf(ErrorCode::value,
                             localizedText("“%@” is no IPv4 address, such as 192.0.2.41.",
                                           {safeForSentence(word)}));
        }
        addresses.push_back(address);
    }
    return std::nullopt;
}

const HostInterface* interfaceOf(const std::vector<HostInterface>& interfaces,
                                 std::uint32_t address) {
    const auto found = std::ranges::find_if(interfaces, [address](const HostInterface& interface) {
        return interface.networkOf(address) != nullptr;
    });
    return found != interfaces.end() ? &*found : nullptr;
}

// Addresses that no single host can hold, and those that cannot be asked for here.
Refusal objectionToAddresses(const CommandRun& run, const std::vector<std::uint32_t>& addresses) {
    for (const std::uint32_t address : addresses) {
        const auto objection = objectionToAddress(address, run.interfaces(), run.chosen());
        if (objection != AddressObjection::isOwn) {
            if (auto refusal = CommandRun::refusalOfAddress(objection, address)) {
                return refusal;
            }
        }
    }
    return std::nullopt;
}

// This host holds its own addresses; the network is not asked for them.
std::vector<AddressHolders> ownHolders(const CommandRun& run,
                                       std::vector<std::uint32_t>& addresses) {
    std::vector<AddressHolders> own;
    std::erase_if(addresses, [&](std::uint32_t address) {
        for (const HostInterface& interface : run.interfaces()) {
            if (std::ranges::find(interface.networks, address, &NetworkOfInterface::address) !=
                interface.networks.end()) {
                own.push_back({.address = address,
                               .state = HolderState::held,
                               .holders = {{.hardwareAddress =
                                                hexStringForData(interface.hardwareAddress, ":"),
                                            .serialNumber = {}}}});
                return true;
            }
        }
        return false;
    });
    return own;
}

std::string_view nameOf(HolderState state) {
    switch (state) {
    case HolderState::free:
        return "free";
    case HolderState::held:
        return "held";
    case HolderState::unknown:
        break;
    }
    return "unknown";
}

Json jsonOfHolders(const AddressHolders& found) {
    Json json;
    json["address"] = stringForIP(found.address);
    json["state"] = std::string(nameOf(found.state));
    json["holders"] = Json::array();
    for (const auto& holder : found.holders) {
        Json one;
        one["mac"] = holder.hardwareAddress;
        one["serial"] =
            holder.serialNumber.has_value() ? Json(*holder.serialNumber) : Json(nullptr);
        json["holders"].push_back(std::move(one));
    }
    return json;
}

void report(CommandRun& run, const std::vector<AddressHolders>& results) {
    TextTable table({"address", "state", "mac", "serial"});
    for (const AddressHolders& found : results) {
        run.document().append("addresses", jsonOfHolders(found));
        const std::string address = stringForIP(found.address);
        const std::string state(nameOf(found.state));
        if (found.holders.empty()) {
            table.addRow({address, state, "", ""});
        }
        for (const auto& holder : found.holders) {
            table.addRow(
                {address, state, holder.hardwareAddress, holder.serialNumber.value_or("")});
        }
    }
    run.print(table.text(run.isBold()));
}

Refusal failureOfResults(const std::vector<AddressHolders>& results) {
    const auto first = [&results](HolderState state) {
        return std::ranges::find(results, state, &AddressHolders::state);
    };
    if (const auto held = first(HolderState::held); held != results.end()) {
        return failureOf(ErrorCode::held,
                         localizedText("Somebody holds %@.", {stringForIP(held->address)}));
    }
    if (const auto unknown = first(HolderState::unknown); unknown != results.end()) {
        return failureOf(ErrorCode::interface,
                         localizedText("Whether somebody holds %@ could not be found out.",
                                       {stringForIP(unknown->address)}));
    }
    return std::nullopt;
}

} // namespace

int runCheck(CommandRun& run) {
    std::vector<std::uint32_t> addresses;
    for (const auto& step : std::initializer_list<std::function<Refusal()>>{
             [&] { return readAddresses(run.line().words, addresses); },
             [&] { return run.chooseInterfaces(); },
             [&] { return objectionToAddresses(run, addresses); },
             [&] { return run.openExchange(); }}) {
        if (auto refusal = step()) {
            return run.finish(std::move(refusal));
        }
    }
    const auto wanted = addresses;
    auto results = ownHolders(run, addresses);
    std::vector<AddressQuestion> questions;
    questions.reserve(addresses.size());
    for (const std::uint32_t address : addresses) {
        questions.push_back({.address = address, .link = interfaceOf(run.chosen(), address)->link});
    }
    HolderSearch search(run.exchange(),
                        {.neighbours = run.services().neighbours, .probes = run.services().probes},
                        questions);
    run.wait(search, [&search] {
        return std::to_string(search.decided()) + '/' + std::to_string(search.results().size());
    });
    results.insert(results.end(), search.results().begin(), search.results().end());
    std::ranges::sort(results, {}, [&wanted](const AddressHolders& found) {
        return std::ranges::find(wanted, found.address);
    });
    report(run, results);
    return run.finish(failureOfResults(results));
}

} // namespace kx
