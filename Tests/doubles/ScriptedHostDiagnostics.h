// A host whose routes, counters and settings the test writes.

#pragma once

#include "conversation/HostDiagnostics.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kx {

class ScriptedHostDiagnostics final : public HostDiagnostics {
public:
    std::function<std::optional<HostRoute>(std::uint32_t address)> routeTo;
    std::optional<HostCounters> counts = HostCounters();
    std::optional<int> filter = 0;
    std::map<std::uint16_t, PortOwner> owners;
    std::vector<FirewallService> services;

    std::optional<HostRoute> route(std::uint32_t address) override {
        return routeTo ? routeTo(address) : std::nullopt;
    }
    std::optional<HostCounters> counters() override { return counts; }
    std::optional<int> reversePathFilter(const std::string& /*interface*/) override {
        return filter;
    }
    std::optional<PortOwner> ownerOfPort(std::uint16_t port) override {
        const auto found = owners.find(port);
        return found != owners.end() ? std::optional(found->second) : std::nullopt;
    }
    std::vector<FirewallService> firewallServices() override { return services; }
};

} // namespace kx
