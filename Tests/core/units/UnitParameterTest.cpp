// The parameter table as people, scripts and units know it.

#include "units/UnitParameter.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace kx {

namespace {

using ParameterTexts = std::vector<std::string_view>;

// One field of every row, in the order of the table.
template<class Field>
auto fieldOfEveryRow(Field ParameterDescription::*field) {
    std::vector<Field> fields;
    for (const UnitParameter parameter : allUnitParameters) {
        fields.push_back(descriptionOf(parameter).*field);
    }
    return fields;
}

} // namespace

TEST(UnitParameter, NamesStandInTheOrderInWhichPeopleSeeThem) {
    EXPECT_EQ(
        fieldOfEveryRow(&ParameterDescription::name),
        (ParameterTexts{"destination IP address", "destination MAC address",
                        "destination Port number", "device Port number", "internal IP address",
                        "internal MAC address", "serial number", "unit ID"}));
}

TEST(UnitParameter, PhrasesHaveTheValueWithinASentence) {
    EXPECT_EQ(fieldOfEveryRow(&ParameterDescription::phrase),
              (ParameterTexts{"destination IP address %@", "destination MAC address %@",
                              "destination port %@", "device port %@", "internal IP address %@",
                              "internal MAC address %@", "serial number %@", "unit ID %@"}));
}

TEST(UnitParameter, IdentifiersForScriptsNeverChange) {
    EXPECT_EQ(fieldOfEveryRow(&ParameterDescription::identifier),
              (ParameterTexts{"destination-ip", "destination-mac", "destination-port",
                              "device-port", "internal-ip", "internal-mac", "serial", "unit-id"}));
}

TEST(UnitParameter, TagsAndCommandLettersAreThoseOfTheUnits) {
    EXPECT_EQ(fieldOfEveryRow(&ParameterDescription::tag),
              (ParameterTexts{"<D>", "<C>", "<T>", "<P>", "<I>", "<M>", "<S>", "<U>"}));
    EXPECT_EQ(fieldOfEveryRow(&ParameterDescription::commandLetter),
              (std::vector<char>{'D', 'C', 'T', 'P', 'I', 'M', 'S', 'U'}));
}

TEST(UnitParameter, ValuesHaveTheLengthsThatUnitsSend) {
    std::vector<std::size_t> lengths;
    for (const UnitParameter parameter : allUnitParameters) {
        lengths.push_back(lengthOfValue(descriptionOf(parameter).form));
    }
    EXPECT_EQ(lengths, (std::vector<std::size_t>{4, 6, 2, 2, 4, 6, 6, 6}));
}

TEST(UnitParameter, AValueWithoutAFormHasNoBytes) {
    const ParameterDescription notFilled;
    EXPECT_EQ(lengthOfValue(notFilled.form), 0U);
}

TEST(UnitParameter, EveryOneOfTodayCanBeEdited) {
    for (const auto& row : parameterTable) {
        EXPECT_TRUE(row.isEditable()) << row.name;
    }
    EXPECT_FALSE(ParameterDescription().isEditable());
}

TEST(UnitParameter, IsFoundByItsExactName) {
    for (const UnitParameter parameter : allUnitParameters) {
        EXPECT_EQ(unitParameterForName(nameOfUnitParameter(parameter)), parameter);
    }
    for (const char* name : {"Unit ID", "unit ID ", "unit-id", "<U>", ""}) {
        EXPECT_EQ(unitParameterForName(name), std::nullopt) << name;
    }
}

} // namespace kx
