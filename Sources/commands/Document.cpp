#include "commands/Document.h"

#include "addresses/IPv4Address.h"
#include "support/TextEncoding.h"
#include "units/IdentityText.h"

namespace kx {

namespace {

constexpr int schemaVersion = 1;

// What a key holds before its command has got anything.
Json emptyValue(std::string_view key) {
    if (key == "interface" || key == "port") {
        return nullptr;
    }
    if (key == "dropped" || key == "rejected" || key == "same") {
        return 0;
    }
    if (key == "complete") {
        return false;
    }
    return Json::array();
}

Json jsonOfText(const std::optional<std::string_view>& text) {
    return text.has_value() ? Json(std::string(*text)) : Json(nullptr);
}

Json jsonOfNumber(const std::optional<std::string_view>& text) {
    return text.has_value() ? Json(integerValue(*text)) : Json(nullptr);
}

} // namespace

Document::Document(const std::optional<std::string>& command) {
    _json["schema"] = schemaVersion;
    _json["command"] = command.has_value() ? Json(*command) : Json(nullptr);
    _json["exit"] = 0;
    _json["error"] = nullptr;
    _json["warnings"] = Json::array();
    const CommandRow* const row = command.has_value() ? commandForName(*command) : nullptr;
    if (row != nullptr) {
        for (const std::string_view key : row->keys) {
            _json[std::string(key)] = emptyValue(key);
        }
    }
}

void Document::warn(std::string_view code, std::string_view message) {
    Json warning;
    warning["code"] = std::string(code);
    warning["message"] = std::string(message);
    _json["warnings"].push_back(std::move(warning));
}

std::string Document::text(int exitStatus, const std::optional<Failure>& failure) {
    _json["exit"] = exitStatus;
    if (failure.has_value()) {
        Json error;
        error["code"] = std::string(nameOf(failure->code));
        error["message"] = failure->message;
        _json["error"] = std::move(error);
    }
    return lineOfJson(_json);
}

std::string lineOfJson(const Json& json) {
    return json.dump(-1, ' ', true, Json::error_handler_t::replace) + "\n";
}

Json nameOfLink(const std::vector<HostInterface>& interfaces, std::uint32_t link) {
    for (const HostInterface& interface : interfaces) {
        if (link != 0 && interface.link == link) {
            return interface.name;
        }
    }
    return nullptr;
}

Json jsonOfUnit(const HeardUnit& unit, const std::vector<HostInterface>& interfaces) {
    const UnitRecord& record = unit.record;
    Json json;
    json["serial"] = jsonOfText(record.value(UnitParameter::serialNumber));
    json["unit_id"] = jsonOfText(unitIDText(record));
    json["unit_id_bytes"] = unit.unitIDBytes.has_value()
                                ? Json(hexStringForData(*unit.unitIDBytes, ""))
                                : Json(nullptr);
    json["internal_ip"] = jsonOfText(record.value(UnitParameter::internalIPAddress));
    json["internal_mac"] = jsonOfText(record.value(UnitParameter::internalMACAddress));
    json["destination_ip"] = jsonOfText(record.value(UnitParameter::destinationIPAddress));
    json["destination_mac"] = jsonOfText(record.value(UnitParameter::destinationMACAddress));
    json["destination_port"] = jsonOfNumber(record.value(UnitParameter::destinationPortNumber));
    json["device_port"] = jsonOfNumber(record.value(UnitParameter::devicePortNumber));
    json["source_ip"] = stringForIP(unit.sender);
    json["interface"] = nameOfLink(interfaces, unit.link);
    json["answered_ms"] = unit.answered.count();
    return json;
}

Json jsonOfDuplicates(const HeardUnits& units) {
    Json list = Json::array();
    for (const DuplicateAddress& duplicate : units.duplicateAddresses()) {
        Json json;
        json["internal_ip"] = duplicate.address;
        json["serials"] = duplicate.serialNumbers;
        list.push_back(std::move(json));
    }
    for (const DuplicateSerialNumber& duplicate : units.duplicateSerialNumbers()) {
        Json json;
        json["serial"] = duplicate.serialNumber;
        json["internal_macs"] = duplicate.hardwareAddresses;
        list.push_back(std::move(json));
    }
    return list;
}

} // namespace kx
