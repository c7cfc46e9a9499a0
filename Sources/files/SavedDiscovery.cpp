#include "files/SavedDiscovery.h"

#include "files/JSONReading.h"

namespace kx {

namespace {

SavedUnit unitOf(const Json& json) {
    const ReadRecord read = recordOf(json);
    SavedUnit unit;
    unit.record = read.record;
    unit.unitIDBytes = read.unitIDBytes;
    unit.sender = addressOf(presentTextOf(json, "source_ip"));
    unit.interface = textOf(json, "interface");
    constexpr std::uint64_t day = 86'400'000;
    unit.answered = std::chrono::milliseconds(numberOf(valueOf(json, "answered_ms"), day));
    return unit;
}

SavedDiscovery discoveryOf(const Json& json) {
    SavedDiscovery discovery;
    const Json& units = valueOf(json, "units");
    if (!units.is_array()) {
        throw JSONDamage();
    }
    discovery.units.reserve(units.size());
    for (const Json& unit : units) {
        discovery.units.push_back(unitOf(unit));
    }
    discovery.isComplete = truthOf(json, "complete");
    return discovery;
}

// A text of any version names its version and its command in the same way.
std::optional<SavedDiscoveryFault> objectionTo(const Json& json) {
    if (!json.is_object() || !json.contains("schema") || !json.contains("command") ||
        !json["schema"].is_number_integer()) {
        return SavedDiscoveryFault::otherDocument;
    }
    if (json["command"] != "discover") {
        return SavedDiscoveryFault::otherDocument;
    }
    if (json["schema"] != savedDiscoveryVersion) {
        return SavedDiscoveryFault::otherVersion;
    }
    if (valueOf(json, "port").is_null()) {
        return SavedDiscoveryFault::neverAsked;
    }
    return std::nullopt;
}

} // namespace

std::variant<SavedDiscovery, SavedDiscoveryFault> readSavedDiscovery(std::string_view text) {
    try {
        const Json json = Json::parse(text, nullptr, false);
        if (json.is_discarded()) {
            return isNoJSONAtAll(text) ? SavedDiscoveryFault::otherDocument
                                       : SavedDiscoveryFault::damaged;
        }
        if (const auto fault = objectionTo(json)) {
            return *fault;
        }
        return discoveryOf(json);
    } catch (const JSONDamage&) {
        return SavedDiscoveryFault::damaged;
    }
}

} // namespace kx
