#include "files/UnitJSON.h"

#include "addresses/IPv4Address.h"
#include "support/TextEncoding.h"
#include "units/IdentityText.h"

#include <string_view>

namespace kx {

namespace {

Json jsonOfText(const std::optional<std::string_view>& text) {
    return text.has_value() ? Json(std::string(*text)) : Json(nullptr);
}

Json jsonOfNumber(const std::optional<std::string_view>& text) {
    return text.has_value() ? Json(integerValue(*text)) : Json(nullptr);
}

} // namespace

std::string textOfJson(const Json& json) {
    return json.dump(-1, ' ', true, Json::error_handler_t::replace);
}

std::string lineOfJson(const Json& json) {
    return textOfJson(json) + "\n";
}

Json nameOfLink(const std::vector<HostInterface>& interfaces, std::uint32_t link) {
    for (const HostInterface& interface : interfaces) {
        if (link != 0 && interface.link == link) {
            return interface.name;
        }
    }
    return nullptr;
}

Json jsonOfRecord(const UnitRecord& record, const std::optional<UnitIDBytes>& unitIDBytes) {
    Json json;
    json["serial"] = jsonOfText(record.value(UnitParameter::serialNumber));
    json["unit_id"] = jsonOfText(unitIDText(record));
    json["unit_id_bytes"] =
        unitIDBytes.has_value() ? Json(hexStringForData(*unitIDBytes, "")) : Json(nullptr);
    json["internal_ip"] = jsonOfText(record.value(UnitParameter::internalIPAddress));
    json["internal_mac"] = jsonOfText(record.value(UnitParameter::internalMACAddress));
    json["destination_ip"] = jsonOfText(record.value(UnitParameter::destinationIPAddress));
    json["destination_mac"] = jsonOfText(record.value(UnitParameter::destinationMACAddress));
    json["destination_port"] = jsonOfNumber(record.value(UnitParameter::destinationPortNumber));
    json["device_port"] = jsonOfNumber(record.value(UnitParameter::devicePortNumber));
    return json;
}

Json jsonOfUnit(const HeardUnit& unit, const std::vector<HostInterface>& interfaces) {
    Json json = jsonOfRecord(unit.record, unit.unitIDBytes);
    json["source_ip"] = stringForIP(unit.sender);
    json["interface"] = nameOfLink(interfaces, unit.link);
    json["answered_ms"] = unit.answered.count();
    return json;
}

// One unit after the other, because a hundred thousand of them take too much memory as one value.
std::string documentOfUnits(const std::vector<const HeardUnit*>& units,
                            const std::vector<HostInterface>& interfaces) {
    std::string text = "{\"schema\":" + std::to_string(schemaOfDocuments) + ",\"units\":[";
    std::string_view separator = "\n";
    for (const HeardUnit* const unit : units) {
        text += separator;
        text += textOfJson(jsonOfUnit(*unit, interfaces));
        separator = ",\n";
    }
    return text + "\n]}\n";
}

} // namespace kx
