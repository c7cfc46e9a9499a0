#include "commands/Document.h"

#include "core/conversation/HeardUnitSamples.h"

#include <gtest/gtest.h>

namespace kx {

TEST(Document, HasEveryKeyOfItsCommandFromTheBeginning) {
    EXPECT_EQ(Document("discover").text(0, {}),
              R"({"schema":1,"command":"discover","exit":0,"error":null,"warnings":[],)"
              R"("interface":null,"port":null,"units":[],"duplicates":[],"dropped":0,)"
              R"("rejected":0,"complete":false})"
              "\n");
    EXPECT_EQ(Document(std::nullopt).text(2, failureOf(ErrorCode::usage, "Why.")),
              R"({"schema":1,"command":null,"exit":2,"error":{"code":"usage","message":"Why."},)"
              R"("warnings":[]})"
              "\n");
}

TEST(Document, ToldWarningsStandInTheirOrder) {
    Document document("show");
    document.warn("ambiguous", "One.");
    document.warn("dropped", "Two.");
    const Json json = Json::parse(document.text(0, {}));
    EXPECT_EQ(json["warnings"][1]["code"], "dropped");
    EXPECT_EQ(json["warnings"][0]["message"], "One.");
}

TEST(Document, AppendedElementsStandInTheirPlaceAndOrder) {
    Document document("check");
    document.append("addresses", {{"address", "192.0.2.11"}});
    document.append("addresses", {{"address", "caf\xE9"}});
    EXPECT_EQ(document.text(0, {}),
              R"({"schema":1,"command":"check","exit":0,"error":null,"warnings":[],)"
              R"("addresses":[{"address":"192.0.2.11"},{"address":"caf\ufffd"}]})"
              "\n");
}

TEST(Document, DuplicatesOfBothKindsAreOneList) {
    HeardUnits units;
    for (const char* hardware : {"00:00:00:00:00:01", "00:00:00:00:00:02"}) {
        HeardUnit unit = heardUnit(1);
        unit.record.setValue(UnitParameter::internalMACAddress, hardware);
        unit.record.setValue(UnitParameter::internalIPAddress, "192.0.2.11");
        units.add(unit);
    }
    EXPECT_EQ(jsonOfDuplicates(units).dump(),
              R"([{"serial":"4B 58 00 00 00 01",)"
              R"("internal_macs":["00:00:00:00:00:01","00:00:00:00:00:02"]}])");
    HeardUnit other = heardUnit(2);
    other.record.setValue(UnitParameter::internalIPAddress, "192.0.2.11");
    units.add(other);
    EXPECT_EQ(jsonOfDuplicates(units)[0].dump(),
              R"({"internal_ip":"192.0.2.11",)"
              R"("serials":["4B 58 00 00 00 01","4B 58 00 00 00 02"]})");
}

TEST(ExitStatus, EveryCodeHasItsNameAndItsStatus) {
    EXPECT_EQ(nameOf(ErrorCode::notFound), "not-found");
    EXPECT_EQ(exitStatusOf(ErrorCode::notFound), 1);
    EXPECT_EQ(exitStatusOf(ErrorCode::value), 2);
    EXPECT_EQ(exitStatusOf(ErrorCode::rights), 3);
    EXPECT_EQ(exitStatusOf(ErrorCode::busy), 3);
    EXPECT_EQ(exitStatusOf(ErrorCode::silent), 4);
    EXPECT_EQ(exitStatusOf(ErrorCode::interrupted), 130);
}

} // namespace kx
