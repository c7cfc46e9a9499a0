#include "files/JSONReading.h"

#include <gtest/gtest.h>

namespace kx {

TEST(JSONReading, AValueOfTheRightKindIsRead) {
    const Json json = Json::parse(R"({"text":"a","none":null,"number":7,"truth":true})");
    EXPECT_EQ(textOf(json, "text"), "a");
    EXPECT_EQ(textOf(json, "none"), std::nullopt);
    EXPECT_EQ(presentTextOf(json, "text"), "a");
    EXPECT_EQ(numberOf(valueOf(json, "number"), 7), 7U);
    EXPECT_TRUE(truthOf(json, "truth"));
    EXPECT_EQ(sixPairsOf("4b5800000001", ' '), "4B 58 00 00 00 01");
    EXPECT_EQ(addressOf("0.0.0.0"), 0U);
    EXPECT_EQ(unitIDOf("0001FF00000a"), (UnitIDBytes{0, 1, 0xFF, 0, 0, 10}));
}

TEST(JSONReading, AnyOtherValueIsDamage) {
    const Json json = Json::parse(R"({"none":null,"number":7,"less":-1,"part":1.5})");
    EXPECT_THROW(valueOf(json, "text"), JSONDamage);
    EXPECT_THROW(valueOf(Json(7), "text"), JSONDamage);
    EXPECT_THROW(valueOf(Json::array(), "text"), JSONDamage);
    EXPECT_THROW(textOf(json, "number"), JSONDamage);
    EXPECT_THROW(presentTextOf(json, "none"), JSONDamage);
    EXPECT_THROW(numberOf(json["number"], 6), JSONDamage);
    EXPECT_THROW(numberOf(json["less"], 6), JSONDamage);
    EXPECT_THROW(numberOf(json["part"], 6), JSONDamage);
    EXPECT_THROW(truthOf(json, "number"), JSONDamage);
    EXPECT_THROW(sixPairsOf("4B 58", ' '), JSONDamage);
    EXPECT_THROW(addressOf("192.0.2"), JSONDamage);
    EXPECT_THROW(unitIDOf("FF"), JSONDamage);
}

TEST(JSONReading, ATableWasNeverJSONAndWhatIsLeftOfADocumentMayHaveBeen) {
    EXPECT_TRUE(isNoJSONAtAll("serial,unit-id\n"));
    for (const char* text : {"", "\n", "{\"kind\":", " [", "x\"schema\":1}"}) {
        EXPECT_FALSE(isNoJSONAtAll(text)) << text;
    }
}

} // namespace kx
