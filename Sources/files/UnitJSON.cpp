#include "files/UnitJSON.h"

#include "addresses/IPv4Address.h"
#include "support/TextEncoding.h"
#include "units/IdentityText.h"

#include <string_view>

namespace kx {

namespace {

std::optional<std::string_view> nameOfLink(const std::vector<HostInterface>& interfaces,
                                           std::uint32_t link) {
    for (const HostInterface& interface : interfaces) {
        if (link != 0 && interface.link == link) {
            return interface.name;
        }
    }
    return std::nullopt;
}

void addNumber(JSONObjectText& object, std::string_view key,
               const std::optional<std::string_view>& text) {
    object.add(key, text.has_value() ? std::optional(integerValue(*text)) : std::nullopt);
}

} // namespace

std::string textOfJson(const Json& json) {
    return json.dump(-1, ' ', true, Json::error_handler_t::replace);
}

std::string lineOfJson(const Json& json) {
    return textOfJson(json) + "\n";
}

void addRecord(JSONObjectText& object, const UnitRecord& record,
               const std::optional<UnitIDBytes>& unitIDBytes) {
    const auto text = [&record](UnitParameter parameter) { return record.value(parameter); };
    object.add("serial", text(UnitParameter::serialNumber));
    object.add("unit_id", unitIDText(record));
    object.add("unit_id_bytes", unitIDBytes.has_value()
                                    ? std::optional(hexStringForData(*unitIDBytes, ""))
                                    : std::nullopt);
    object.add("internal_ip", text(UnitParameter::internalIPAddress));
    object.add("internal_mac", text(UnitParameter::internalMACAddress));
    object.add("destination_ip", text(UnitParameter::destinationIPAddress));
    object.add("destination_mac", text(UnitParameter::destinationMACAddress));
    addNumber(object, "destination_port", text(UnitParameter::destinationPortNumber));
    addNumber(object, "device_port", text(UnitParameter::devicePortNumber));
}

std::string textOfUnit(const HeardUnit& unit, const std::vector<HostInterface>& interfaces) {
    JSONObjectText object;
    addRecord(object, unit.record, unit.unitIDBytes);
    object.add("source_ip", stringForIP(unit.sender));
    object.add("interface", nameOfLink(interfaces, unit.link));
    object.add("answered_ms", unit.answered.count());
    return object.text();
}

Json jsonOfUnit(const HeardUnit& unit, const std::vector<HostInterface>& interfaces) {
    return Json::parse(textOfUnit(unit, interfaces));
}

// One unit after the other, because a hundred thousand of them take too much memory as one value.
std::string documentOfUnits(const std::vector<const HeardUnit*>& units,
                            const std::vector<HostInterface>& interfaces) {
    std::string text = "{\"schema\":" + std::to_string(schemaOfDocuments) + ",\"units\":[";
    std::string_view separator = "\n";
    for (const HeardUnit* const unit : units) {
        text += separator;
        text += textOfUnit(*unit, interfaces);
        separator = ",\n";
    }
    return text + "\n]}\n";
}

} // namespace kx
