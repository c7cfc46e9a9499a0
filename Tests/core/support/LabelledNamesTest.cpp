#include "support/LabelledNames.h"

#include "doubles/ScriptedLocalizedText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace kx {
namespace {

class InstalledTranslations {
public:
    InstalledTranslations() { installLocalizedText(&source); }
    ~InstalledTranslations() { installLocalizedText(nullptr); }
    InstalledTranslations(const InstalledTranslations&) = delete;
    InstalledTranslations& operator=(const InstalledTranslations&) = delete;

    ScriptedLocalizedText source;
};

TEST(LabelledNames, TheKeyIsTheNameAndTheRankOfTheLabel) {
    EXPECT_EQ(compareStringForCID("Desk:555 1234 [Mobile]"), "Desk04");
    EXPECT_EQ(compareStringForCID("Desk:555 [work]"), "Desk01");
    EXPECT_EQ(compareStringForCID("Desk:555 [HOME]"), "Desk02");
    EXPECT_EQ(compareStringForCID("Desk:555 [iphone]"), "Desk03");
    EXPECT_EQ(compareStringForCID("Desk:555 [main]"), "Desk05");
    EXPECT_EQ(compareStringForCID("Desk:555 [pager]"), "Desk08");
    EXPECT_EQ(compareStringForCID("Desk:555 [other]"), "Desk09");
    EXPECT_EQ(compareStringForCID("Desk:555 [vacation]"), "Desk10");
}

TEST(LabelledNames, AFaxCountsAsItsPlace) {
    EXPECT_EQ(compareStringForCID("Desk:555 [home fax]"), "Desk02");
    EXPECT_EQ(compareStringForCID("Desk:555 [work fax]"), "Desk01");
}

TEST(LabelledNames, ALabelWithoutARankStandsForItself) {
    EXPECT_EQ(compareStringForCID("Desk:555 [car]"), "Deskcar]");
    EXPECT_EQ(compareStringForCID("Desk:555 ["), "Desk");
    EXPECT_EQ(compareStringForCID("Desk:555 [ work]"), "Desk work]");
}

TEST(LabelledNames, WithoutALabelTheKeyIsTheName) {
    EXPECT_EQ(compareStringForCID("Desk:555"), "Desk");
    EXPECT_EQ(compareStringForCID(":555"), "");
}

TEST(LabelledNames, WithoutAColonTheKeyIsTheWholeText) {
    EXPECT_EQ(compareStringForCID("Desk"), "Desk");
    EXPECT_EQ(compareStringForCID("Desk [work]"), "Desk [work]");
    EXPECT_EQ(compareStringForCID(""), "");
}

TEST(LabelledNames, TheFirstColonAndTheLastBracketCount) {
    EXPECT_EQ(compareStringForCID("Desk:5:55 [work] [mobile]"), "Desk04");
    EXPECT_EQ(compareStringForCID("[work]:555"), "[work]01"); // its bracket is before the colon
}

TEST(LabelledNames, LabelsAreThoseOfTheUsersLanguage) {
    InstalledTranslations translations;
    translations.source.setTranslation("work", "Büro");
    translations.source.setTranslation("home", "");
    EXPECT_EQ(compareStringForCID("Desk:555 [BÜRO]"), "Desk01");
    EXPECT_EQ(compareStringForCID("Desk:555 [work]"), "Deskwork]");
    EXPECT_EQ(compareStringForCID("Desk:555 [mobile]"), "Desk04"); // no label is empty
}

// A translation whose text for "home" is no beginning of its text for "home fax" can reach the
// later rank. The program's own translations have no such text.
TEST(LabelledNames, TheFirstLabelThatFitsGivesTheRank) {
    InstalledTranslations translations;
    translations.source.setTranslation("home fax", "Fax (privat)");
    EXPECT_EQ(compareStringForCID("Desk:555 [fax (privat)]"), "Desk06");
}

TEST(LabelledNames, EntriesSortByNameThenByRank) {
    std::vector<std::string> entries{"B:2 [home]", "B:1 [work]", "A:9 [other]", "B:3"};
    std::ranges::sort(entries, [](const auto& one, const auto& other) {
        return compareCID(one, other) == std::weak_ordering::less;
    });
    EXPECT_EQ(entries,
              (std::vector<std::string>{"A:9 [other]", "B:3", "B:1 [work]", "B:2 [home]"}));
}

TEST(LabelledNames, OnlyTheKeysAreCompared) {
    EXPECT_EQ(compareCID("B:1 [work]", "B:2 [home]"), std::weak_ordering::less);
    EXPECT_EQ(compareCID("B:2 [home]", "B:1 [work]"), std::weak_ordering::greater);
    EXPECT_EQ(compareCID("B:1 [work]", "B:9 [WORK FAX]"), std::weak_ordering::equivalent);
    EXPECT_EQ(compareCID("a:1", "B:1"), std::weak_ordering::greater); // the name's case counts
    EXPECT_EQ(compareCID("Desk10:1", "Desk9:1"), std::weak_ordering::less);
}

} // namespace
} // namespace kx
