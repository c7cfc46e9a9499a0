#include "units/UnitRecord.h"

#include <gtest/gtest.h>

#include <string>

namespace kx {

TEST(UnitRecord, HasNothingAtFirst) {
    const UnitRecord record;
    for (const UnitParameter parameter : allUnitParameters) {
        EXPECT_EQ(record.value(parameter), std::nullopt) << nameOfUnitParameter(parameter);
    }
}

TEST(UnitRecord, KeepsAnEmptyTextApartFromNone) {
    UnitRecord record;
    record.setValue(UnitParameter::devicePortNumber, "");
    EXPECT_EQ(record.value(UnitParameter::devicePortNumber), "");
    EXPECT_NE(record, UnitRecord());
}

TEST(UnitRecord, ReplacesAndRemovesValues) {
    UnitRecord record;
    record.setValue(UnitParameter::internalIPAddress, "192.168.1.10");
    record.setValue(UnitParameter::internalIPAddress, "10.0.0.7");
    EXPECT_EQ(record.value(UnitParameter::internalIPAddress), "10.0.0.7");
    record.removeValue(UnitParameter::internalIPAddress);
    EXPECT_EQ(record.value(UnitParameter::internalIPAddress), std::nullopt);
    EXPECT_EQ(record, UnitRecord());
}

TEST(UnitRecord, ComparesByItsTextsAlone) {
    UnitRecord left;
    UnitRecord right;
    left.setValue(UnitParameter::unitID, "a longer text");
    left.setValue(UnitParameter::unitID, "42");
    right.setValue(UnitParameter::unitID, "42");
    EXPECT_EQ(left, right);
    right.setValue(UnitParameter::unitID, "43");
    EXPECT_NE(left, right);
    right.removeValue(UnitParameter::unitID);
    EXPECT_NE(left, right);
}

TEST(UnitRecord, KeepsZeroBytes) {
    UnitRecord record;
    const std::string text("ABC\0\0\0", 6);
    record.setValue(UnitParameter::unitID, text);
    EXPECT_EQ(record.value(UnitParameter::unitID), text);
}

TEST(UnitRecordDeathTest, TakesNoTextThatIsLongerThanAnyValue) {
    UnitRecord record;
    record.setValue(UnitParameter::unitID, std::string(17, 'x'));
    EXPECT_EQ(record.value(UnitParameter::unitID), std::string(17, 'x'));
    EXPECT_DEATH(record.setValue(UnitParameter::unitID, std::string(18, 'x')),
                 "text.size\\(\\) <= longestText");
}

} // namespace kx
