#include "files/SavedDiscovery.h"

#include "addresses/IPv4Address.h"
#include "units/IdentityText.h"
#include "units/UnitName.h"

#include <nlohmann/json.hpp>

#include <charconv>

namespace kx {

namespace {

using SavedJson = nlohmann::json;

// A value that the format does not allow. It does not leave this file.
struct Damage {};

const SavedJson& valueOf(const SavedJson& object, const char* key) {
    const auto found = object.find(key);
    if (found == object.end()) {
        throw Damage();
    }
    return *found;
}

std::optional<std::string> textOf(const SavedJson& object, const char* key) {
    const SavedJson& value = valueOf(object, key);
    if (value.is_null()) {
        return std::nullopt;
    }
    if (!value.is_string()) {
        throw Damage();
    }
    return value.get<std::string>();
}

std::uint64_t numberOf(const SavedJson& value, std::uint64_t most) {
    if (!value.is_number_unsigned() || value.get<std::uint64_t>() > most) {
        throw Damage();
    }
    return value.get<std::uint64_t>();
}

bool truthOf(const SavedJson& object, const char* key) {
    const SavedJson& value = valueOf(object, key);
    if (!value.is_boolean()) {
        throw Damage();
    }
    return value.get<bool>();
}

std::string sixPairs(const std::string& text, char separator) {
    const auto digits = digitsOfSixPairs(text);
    if (!digits.has_value()) {
        throw Damage();
    }
    return textOfSixPairs(*digits, separator);
}

std::uint32_t address(const std::string& text) {
    const std::uint32_t address = ipForString(text);
    if (stringForIP(address) != text) {
        throw Damage(); // 0 stands for a text that is none, and for 0.0.0.0
    }
    return address;
}

UnitIDBytes bytesOfUnitID(const std::string& text) {
    const auto digits = digitsOfSixPairs(text);
    if (!digits.has_value()) {
        throw Damage();
    }
    UnitIDBytes bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const char* const pair = digits->data() + 2 * i;
        std::from_chars(pair, pair + 2, bytes[i], 16);
    }
    return bytes;
}

// The text of a value in a record; absent when the unit did not tell it.
std::optional<std::string> recordText(const SavedJson& json, const char* key, ValueForm form) {
    if (form == ValueForm::anyPort) {
        const SavedJson& value = valueOf(json, key);
        return value.is_null() ? std::nullopt
                               : std::optional(std::to_string(numberOf(value, 0xFFFF)));
    }
    const auto text = textOf(json, key);
    if (!text.has_value()) {
        return std::nullopt;
    }
    switch (form) {
    case ValueForm::serialNumber:
        return sixPairs(*text, ' ');
    case ValueForm::hardwareAddress:
        return sixPairs(*text, ':');
    default:
        return stringForIP(address(*text));
    }
}

struct RecordKey {
    UnitParameter parameter;
    const char* key;
    ValueForm form; // as a text of the document: both kinds of ports are numbers
};

// The unit ID is read from its bytes.
constexpr std::array recordKeys{
    RecordKey{UnitParameter::serialNumber, "serial", ValueForm::serialNumber},
    RecordKey{UnitParameter::internalIPAddress, "internal_ip", ValueForm::ipv4Address},
    RecordKey{UnitParameter::internalMACAddress, "internal_mac", ValueForm::hardwareAddress},
    RecordKey{UnitParameter::destinationIPAddress, "destination_ip", ValueForm::ipv4Address},
    RecordKey{UnitParameter::destinationMACAddress, "destination_mac", ValueForm::hardwareAddress},
    RecordKey{UnitParameter::destinationPortNumber, "destination_port", ValueForm::anyPort},
    RecordKey{UnitParameter::devicePortNumber, "device_port", ValueForm::anyPort},
};
static_assert(recordKeys.size() + 1 == unitParameterCount);

SavedUnit unitOf(const SavedJson& json) {
    SavedUnit unit;
    for (const RecordKey& each : recordKeys) {
        if (const auto text = recordText(json, each.key, each.form)) {
            unit.record.setValue(each.parameter, *text);
        }
    }
    if (!unit.record.value(UnitParameter::serialNumber).has_value()) {
        throw Damage();
    }
    if (const auto bytes = textOf(json, "unit_id_bytes")) {
        unit.unitIDBytes = bytesOfUnitID(*bytes);
        if (const auto text = unitIDforData(*unit.unitIDBytes)) {
            unit.record.setValue(UnitParameter::unitID, *text);
        }
    }
    unit.sender = address(textOf(json, "source_ip").value_or(""));
    unit.interface = textOf(json, "interface");
    constexpr std::uint64_t day = 86'400'000;
    unit.answered = std::chrono::milliseconds(numberOf(valueOf(json, "answered_ms"), day));
    return unit;
}

SavedDiscovery discoveryOf(const SavedJson& json) {
    SavedDiscovery discovery;
    const SavedJson& units = valueOf(json, "units");
    if (!units.is_array()) {
        throw Damage();
    }
    discovery.units.reserve(units.size());
    for (const SavedJson& unit : units) {
        discovery.units.push_back(unitOf(unit));
    }
    discovery.isComplete = truthOf(json, "complete");
    return discovery;
}

// A text of any version names its version and its command in the same way.
std::optional<SavedDiscoveryFault> objectionTo(const SavedJson& json) {
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
        const SavedJson json = SavedJson::parse(text, nullptr, false);
        if (json.is_discarded()) {
            return SavedDiscoveryFault::damaged;
        }
        if (const auto fault = objectionTo(json)) {
            return *fault;
        }
        return discoveryOf(json);
    } catch (const Damage&) {
        return SavedDiscoveryFault::damaged;
    }
}

} // namespace kx
