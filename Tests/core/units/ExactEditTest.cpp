#include "units/ExactEdit.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

ExactEdit edit(UnitParameter parameter, std::string_view typed) {
    return std::get<ExactEdit>(exactEdit(parameter, typed));
}

bool isTaken(UnitParameter parameter, std::string_view typed) {
    return !edit(parameter, typed).isChanged;
}

} // namespace

TEST(ExactEdit, TakesWhatUnitsShow) {
    EXPECT_TRUE(isTaken(UnitParameter::destinationPortNumber, "3523"));
    EXPECT_TRUE(isTaken(UnitParameter::devicePortNumber, "80"));
    EXPECT_TRUE(isTaken(UnitParameter::destinationIPAddress, "192.0.2.10"));
    EXPECT_TRUE(isTaken(UnitParameter::destinationMACAddress, "02:4b:58:00:00:0A"));
    EXPECT_TRUE(isTaken(UnitParameter::serialNumber, "4B 58 00 00 00 01"));
    EXPECT_TRUE(isTaken(UnitParameter::unitID, "RACK7A"));
    EXPECT_TRUE(isTaken(UnitParameter::unitID, "255"));
}

TEST(ExactEdit, KnowsWhatAConversionWouldChange) {
    EXPECT_FALSE(isTaken(UnitParameter::destinationPortNumber, "3524"));
    EXPECT_FALSE(isTaken(UnitParameter::destinationPortNumber, "03520"));
    EXPECT_FALSE(isTaken(UnitParameter::devicePortNumber, "70000"));
    EXPECT_FALSE(isTaken(UnitParameter::devicePortNumber, "-1"));
    EXPECT_FALSE(isTaken(UnitParameter::destinationIPAddress, "192.0.2.010"));
    EXPECT_FALSE(isTaken(UnitParameter::destinationIPAddress, "192.0.2"));
    EXPECT_FALSE(isTaken(UnitParameter::destinationIPAddress, "host"));
    EXPECT_FALSE(isTaken(UnitParameter::internalMACAddress, "12:34"));
    EXPECT_FALSE(isTaken(UnitParameter::unitID, "SEVENBY"));
    EXPECT_FALSE(isTaken(UnitParameter::unitID, "256"));
    EXPECT_FALSE(isTaken(UnitParameter::unitID, "7AB"));
    EXPECT_FALSE(isTaken(UnitParameter::unitID, "007"));
}

TEST(ExactEdit, AShortNameIsFilledUpByTheUnit) {
    EXPECT_TRUE(isTaken(UnitParameter::unitID, "AB"));
    EXPECT_EQ(edit(UnitParameter::unitID, "AB").unitIDBytes, (UnitIDBytes{'A', 'B', 0, 0, 0, 0}));
    EXPECT_EQ(edit(UnitParameter::unitID, "300").unitIDBytes, (UnitIDBytes{0, 0, 0, 0, 1, 44}));
    EXPECT_EQ(edit(UnitParameter::unitID, "SEVENBY").unitIDBytes, std::nullopt);
    EXPECT_EQ(edit(UnitParameter::devicePortNumber, "80").unitIDBytes, std::nullopt);
}

TEST(ExactEdit, TakesEverySeparatorOfOctets) {
    for (const char* typed :
         {"02:4B:58:00:00:01", "02-4B-58-00-00-01", "02 4B 58 00 00 01", "024B58000001"}) {
        EXPECT_TRUE(isTaken(UnitParameter::internalMACAddress, typed)) << typed;
        EXPECT_EQ(edit(UnitParameter::internalMACAddress, typed).edit.command, "^^IdM024B58000001");
        EXPECT_EQ(edit(UnitParameter::serialNumber, typed).edit.command, "^^IdS024B58000001");
    }
}

TEST(ExactEdit, IsRefusedWhereThereIsNoCommand) {
    EXPECT_EQ(std::get<EditRefusal>(exactEdit(UnitParameter::unitID, "")), EditRefusal::emptyValue);
    EXPECT_EQ(std::get<EditRefusal>(exactEdit(UnitParameter::unitID, "\xFF")),
              EditRefusal::notUTF8);
}

TEST(ExactEdit, IsShownByTheTextOrForAUnitIDByItsBytes) {
    UnitRecord record;
    record.setValue(UnitParameter::devicePortNumber, "80");
    record.setValue(UnitParameter::unitID, "AB");
    EXPECT_TRUE(edit(UnitParameter::devicePortNumber, "80").isShownBy(record, std::nullopt));
    EXPECT_FALSE(edit(UnitParameter::devicePortNumber, "81").isShownBy(record, std::nullopt));
    EXPECT_FALSE(edit(UnitParameter::destinationPortNumber, "3520").isShownBy(record, {}));
    const ExactEdit name = edit(UnitParameter::unitID, "AB");
    EXPECT_FALSE(name.isShownBy(record, std::nullopt));
    EXPECT_TRUE(name.isShownBy(UnitRecord(), UnitIDBytes{'A', 'B', 0, 0, 0, 0}));
    EXPECT_FALSE(name.isShownBy(record, UnitIDBytes{'A', 'B', 0, 0, 0, 1}));
    EXPECT_FALSE(edit(UnitParameter::unitID, "SEVENBY").isShownBy(record, std::nullopt));
}

TEST(ExactEdit, ParametersHaveTheNamesOfScriptsAndOfTheWindow) {
    for (const UnitParameter parameter : allUnitParameters) {
        EXPECT_EQ(unitParameterForTypedName(descriptionOf(parameter).identifier), parameter);
        EXPECT_EQ(unitParameterForTypedName(descriptionOf(parameter).name), parameter);
    }
    EXPECT_EQ(unitParameterForTypedName("UNIT-ID"), UnitParameter::unitID);
    EXPECT_EQ(unitParameterForTypedName("device port number"), UnitParameter::devicePortNumber);
    EXPECT_EQ(unitParameterForTypedName("unit_id"), std::nullopt);
    EXPECT_EQ(unitParameterForTypedName(""), std::nullopt);
}

TEST(ExactEdit, GivesAUnitAnyBytesAsItsUnitID) {
    const UnitIDBytes bytes{0xFF, 0, 'A', 0, 0, 1};
    const ExactEdit exact = exactEditOfUnitID(bytes);
    EXPECT_EQ(exact.edit.command, "^^IdUFF0041000001");
    EXPECT_EQ(exact.unitIDBytes, bytes);
    EXPECT_FALSE(exact.isChanged);
    EXPECT_EQ(exact.edit.expectedText, std::nullopt);
    EXPECT_EQ(exact.edit.value, "FF0041000001");
    EXPECT_TRUE(exact.isShownBy(UnitRecord(), bytes));
    EXPECT_EQ(exactEditOfUnitID({'A', 'B', 0, 0, 0, 0}).edit.expectedText, "AB");
    EXPECT_EQ(exactEditOfUnitID({0, 0, 0, 0, 0, 42}).edit.expectedText, "42");
}

} // namespace kx
