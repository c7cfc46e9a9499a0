#include "units/UnitName.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

std::optional<UnitName> nameOfSerialNumber(std::string text) {
    return SerialNumberOfUnit{std::move(text)};
}

} // namespace

TEST(UnitName, TakesSixPairsWithBlanksColonsDashesOrNothingInEitherCase) {
    for (const char* typed :
         {"4B 58 00 00 00 0A", "4b:58:00:00:00:0a", "4B-58-00-00-00-0a", "4b580000000A"}) {
        EXPECT_EQ(unitNameForText(typed), nameOfSerialNumber("4B 58 00 00 00 0A")) << typed;
    }
}

TEST(UnitName, TakesNothingElseForASerialNumber) {
    for (const char* typed :
         {"", "4B58000000", "4B580000000", "4B58000000011", "4B580000000101", "4B 58:00:00:00:01",
          "4B 5800000001", " 4B5800000001", "4B5800000001 ", "4B  58 00 00 00 01", "4G5800000001",
          "4B 58 00 00 00 0", "4B.58.00.00.00.01", "4.7E+11", "4B 58 00 00 00 0100"}) {
        EXPECT_EQ(unitNameForText(typed), std::nullopt) << typed;
    }
}

TEST(UnitName, TakesATextBehindIdForAUnitID) {
    EXPECT_EQ(unitNameForText("id:RACK7A"), std::optional<UnitName>(UnitIDOfUnit{"RACK7A"}));
    EXPECT_EQ(unitNameForText("id: x "), std::optional<UnitName>(UnitIDOfUnit{" x "}));
    EXPECT_EQ(unitNameForText("id:"), std::nullopt);
    EXPECT_EQ(unitNameForText("ID:x"), std::nullopt);
}

TEST(UnitName, KeepsTheCaseOfDigitsUntilTheyAreWritten) {
    EXPECT_EQ(digitsOfSixPairs("4b:58:00:00:00:0A"), "4b580000000A");
    EXPECT_EQ(textOfSixPairs("4b580000000a", ':'), "4B:58:00:00:00:0A");
}

} // namespace kx
