#include "files/UnitJSON.h"

#include "HostileUnits.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kx {

namespace {

HeardUnit jsonSample(const UnitIDBytes& bytes) {
    HeardUnit unit;
    unit.record.setValue(UnitParameter::serialNumber, "4B 58 00 00 00 01");
    unit.record.setValue(UnitParameter::devicePortNumber, "10000");
    unit.unitIDBytes = bytes;
    unit.sender = 0xC000020BU;
    unit.link = 3;
    unit.answered = std::chrono::milliseconds(3);
    return unit;
}

std::vector<HostInterface> oneInterface() {
    HostInterface interface;
    interface.name = "kx0";
    interface.link = 3;
    return {interface};
}

} // namespace

TEST(UnitJSON, AUnitHasNullForWhatItDidNotTell) {
    const Json json = jsonOfUnit(jsonSample({0xFF, 1, 2, 3, 4, 5}), oneInterface());
    EXPECT_EQ(json.dump(),
              R"({"serial":"4B 58 00 00 00 01","unit_id":null,"unit_id_bytes":"FF0102030405",)"
              R"("internal_ip":null,"internal_mac":null,"destination_ip":null,)"
              R"("destination_mac":null,"destination_port":null,"device_port":10000,)"
              R"("source_ip":"192.0.2.11","interface":"kx0","answered_ms":3})");
    EXPECT_EQ(jsonOfUnit(jsonSample({}), {})["interface"], nullptr);
    EXPECT_EQ(jsonOfUnit(HeardUnit(), {})["unit_id_bytes"], nullptr);
}

TEST(UnitJSON, ZeroBytesAtTheEndOfAUnitIDAreLeftOut) {
    HeardUnit unit = jsonSample({'A', 'B', 0, 0, 0, 0});
    unit.record.setValue(UnitParameter::unitID, std::string_view("AB\0\0\0\0", 6));
    EXPECT_EQ(jsonOfUnit(unit, {})["unit_id"], "AB");
}

TEST(UnitJSON, TheTextOfAHostileUnitIsThatOfItsValue) {
    for (const HeardUnit& unit : HostileUnits::make(2000)) {
        EXPECT_EQ(textOfUnit(unit, oneInterface()), textOfJson(jsonOfUnit(unit, oneInterface())));
    }
}

TEST(UnitJSON, ForeignTextsAreEscaped) {
    Json json;
    json["text"] = std::string("\x1b[2J\n\"\\\0\u202e\xff", 12);
    const std::string line = lineOfJson(json);
    EXPECT_EQ(line, "{\"text\":\"\\u001b[2J\\n\\\"\\\\\\u0000\\u202e\\ufffd\"}\n");
    EXPECT_EQ(Json::parse(line)["text"].get<std::string>().substr(0, 5), "\x1b[2J\n");
}

TEST(UnitJSON, UnitsAreADocumentWithALineForEach) {
    const HeardUnit unit = jsonSample({'A', '\n', '"', 0xFF, 0, 0});
    const std::string text = documentOfUnits({&unit, &unit}, oneInterface());
    EXPECT_EQ(std::ranges::count(text, '\n'), 4);
    const Json json = Json::parse(text);
    EXPECT_EQ(json["schema"], 1);
    EXPECT_EQ(json["units"].size(), 2U);
    EXPECT_EQ(json["units"][1], jsonOfUnit(unit, oneInterface()));
    EXPECT_EQ(Json::parse(documentOfUnits({}, {}))["units"], Json::array());
}

} // namespace kx
