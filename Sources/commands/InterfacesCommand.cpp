// interfaces: lists the network interfaces of this host.

#include "addresses/IPv4Address.h"
#include "commands/CommandRun.h"
#include "commands/Commands.h"
#include "commands/TextTable.h"
#include "support/LocalizedText.h"

#include <bit>
#include <utility>

namespace kx {

namespace {

Json jsonOfInterface(const HostInterface& interface) {
    Json json;
    json["name"] = interface.name;
    json["title"] = interface.title;
    json["kind"] = interface.kind;
    json["address"] = nullptr;
    json["prefix_length"] = nullptr;
    json["broadcast"] = nullptr;
    if (!interface.networks.empty()) {
        const NetworkOfInterface& network = interface.networks.front();
        json["address"] = stringForIP(network.address);
        json["prefix_length"] = std::popcount(network.mask);
        if (interface.canBroadcast) {
            json["broadcast"] = stringForIP(network.broadcast());
        }
    }
    json["can_ask"] = interface.canAsk;
    return json;
}

void addRow(TextTable& table, const HostInterface& interface) {
    std::string address;
    std::string broadcast;
    if (!interface.networks.empty()) {
        const NetworkOfInterface& network = interface.networks.front();
        address = stringForIP(network.address) + "/" + std::to_string(std::popcount(network.mask));
        broadcast = interface.canBroadcast ? stringForIP(network.broadcast()) : "";
    }
    table.addRow({interface.name, interface.title, interface.kind, address, broadcast,
                  interface.canAsk ? "yes" : "no"});
}

} // namespace

int runInterfaces(CommandRun& run) {
    const auto name = run.line().valueOf("-i");
    const bool isNamed = name.has_value() && *name != "all";
    if (isNamed) {
        if (auto refusal = run.chooseInterfacesToLookAt()) {
            return run.finish(std::move(refusal));
        }
    }
    const auto interfaces = isNamed ? run.chosen() : run.services().interfaces.list();
    if (interfaces.empty()) {
        return run.finish(failureOf(ErrorCode::interface,
                                    localizedText("The system tells no network interfaces.")));
    }
    TextTable table({"name", "title", "kind", "address", "broadcast", "can-ask"});
    for (const HostInterface& interface : interfaces) {
        run.document().append("interfaces", jsonOfInterface(interface));
        addRow(table, interface);
    }
    run.print(table.text(run.isBold()));
    return run.finish();
}

} // namespace kx
