// The entries of a neighbour table, written by the test.

#pragma once

#include "conversation/NeighbourTable.h"

#include <cstdint>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace kx {

class ScriptedNeighbours final : public NeighbourTable {
public:
    std::map<std::uint32_t, Neighbour> entries; // by address, on every link

    // The entries that stand on one link only, by address and link.
    std::map<std::pair<std::uint32_t, std::uint32_t>, Neighbour> entriesOnLinks;

    std::optional<Neighbour> entry(std::uint32_t address, std::uint32_t link) override {
        const auto onLink = entriesOnLinks.find({address, link});
        if (onLink != entriesOnLinks.end()) {
            return onLink->second;
        }
        const auto found = entries.find(address);
        return found != entries.end() ? std::optional(found->second) : std::nullopt;
    }

    std::size_t inUse = 0;                // entries that the system does not give up
    bool mayForget = true;                // as with administrator rights
    std::vector<std::uint32_t> forgotten; // addresses, in the order of the calls

    std::size_t entriesInUse() override { return inUse; }

    void forget(std::uint32_t address, std::uint32_t /*link*/) override {
        if (mayForget && inUse > 0) {
            --inUse;
            forgotten.push_back(address);
        }
    }

    // Those on every link.
    std::vector<std::uint32_t> knownAddresses(std::uint32_t /*link*/) override {
        std::vector<std::uint32_t> addresses;
        for (const auto& [address, neighbour] : entries) {
            if (!neighbour.hardwareAddress.empty()) {
                addresses.push_back(address);
            }
        }
        return addresses;
    }
};

} // namespace kx
