#include "files/JSONReading.h"

#include "addresses/IPv4Address.h"
#include "units/IdentityText.h"
#include "units/UnitName.h"

#include <array>
#include <charconv>
#include <cstddef>

namespace kx {

bool isNoJSONAtAll(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\r\n");
    return first != std::string_view::npos && text[first] != '{' && text[first] != '[' &&
           text.find("\"schema\"") == std::string_view::npos;
}

const Json& valueOf(const Json& object, const char* key) {
    const auto found = object.find(key);
    if (found == object.end()) {
        throw JSONDamage();
    }
    return *found;
}

std::optional<std::string> textOf(const Json& object, const char* key) {
    const Json& value = valueOf(object, key);
    if (value.is_null()) {
        return std::nullopt;
    }
    if (!value.is_string()) {
        throw JSONDamage();
    }
    return value.get<std::string>();
}

std::string presentTextOf(const Json& object, const char* key) {
    auto text = textOf(object, key);
    if (!text.has_value()) {
        throw JSONDamage();
    }
    return *std::move(text);
}

std::uint64_t numberOf(const Json& value, std::uint64_t most) {
    if (!value.is_number_unsigned() || value.get<std::uint64_t>() > most) {
        throw JSONDamage();
    }
    return value.get<std::uint64_t>();
}

bool truthOf(const Json& object, const char* key) {
    const Json& value = valueOf(object, key);
    if (!value.is_boolean()) {
        throw JSONDamage();
    }
    return value.get<bool>();
}

std::string sixPairsOf(const std::string& text, char separator) {
    const auto digits = digitsOfSixPairs(text);
    if (!digits.has_value()) {
        throw JSONDamage();
    }
    return textOfSixPairs(*digits, separator);
}

std::uint32_t addressOf(const std::string& text) {
    const std::uint32_t address = ipForString(text);
    if (stringForIP(address) != text) {
        throw JSONDamage(); // 0 stands for a text that is none, and for 0.0.0.0
    }
    return address;
}

UnitIDBytes unitIDOf(const std::string& text) {
    const auto digits = digitsOfSixPairs(text);
    if (!digits.has_value()) {
        throw JSONDamage();
    }
    UnitIDBytes bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const char* const pair = digits->data() + 2 * i;
        std::from_chars(pair, pair + 2, bytes[i], 16);
    }
    return bytes;
}

namespace {

// The text of a value in a record; absent when the unit did not tell it.
std::optional<std::string> recordText(const Json& json, const char* key, ValueForm form) {
    if (form == ValueForm::anyPort) {
        const Json& value = valueOf(json, key);
        return value.is_null() ? std::nullopt
                               : std::optional(std::to_string(numberOf(value, 0xFFFF)));
    }
    const auto text = textOf(json, key);
    if (!text.has_value()) {
        return std::nullopt;
    }
    switch (form) {
    case ValueForm::serialNumber:
        return sixPairsOf(*text, ' ');
    case ValueForm::hardwareAddress:
        return sixPairsOf(*text, ':');
    default:
        return stringForIP(addressOf(*text));
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

} // namespace

ReadRecord recordOf(const Json& json) {
    ReadRecord read;
    for (const RecordKey& each : recordKeys) {
        if (const auto text = recordText(json, each.key, each.form)) {
            read.record.setValue(each.parameter, *text);
        }
    }
    if (!read.record.value(UnitParameter::serialNumber).has_value()) {
        throw JSONDamage();
    }
    if (const auto bytes = textOf(json, "unit_id_bytes")) {
        read.unitIDBytes = unitIDOf(*bytes);
        if (const auto text = unitIDforData(*read.unitIDBytes)) {
            read.record.setValue(UnitParameter::unitID, *text);
        }
    }
    return read;
}

} // namespace kx
