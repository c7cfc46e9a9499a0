#include "platform/qtcore/QtTranslations.h"

#include "InLanguage.h"
#include "support/LabelledNames.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

namespace kx {

namespace {

std::string rankOfLabel(const char* label) {
    return compareStringForCID(":555 [" + localizedText(label) + "]");
}

std::string languageFor(const QStringList& preferred) {
    return QtTranslations(preferred).language().toStdString();
}

} // namespace

TEST(QtTranslations, TheProgramCarriesItsLanguagesInItself) {
    EXPECT_EQ(QtTranslations::available(), QStringList({"de", "es", "fr", "ja"}));
}

TEST(QtTranslations, TheFirstPreferredLanguageThatThereIsIsTaken) {
    EXPECT_EQ(languageFor({"de"}), "de");
    EXPECT_EQ(languageFor({"it-IT", "fr-CA", "de-DE"}), "fr");
    EXPECT_EQ(languageFor({"ja_JP"}), "ja");
    EXPECT_EQ(languageFor({"es-Latn-MX"}), "es");
}

TEST(QtTranslations, WithoutAPreferredLanguageTheTextsAreEnglish) {
    EXPECT_EQ(languageFor({}), "en");
    EXPECT_EQ(languageFor({"it-IT", "C"}), "en");
    EXPECT_EQ(languageFor({"deutsch"}), "en");
}

TEST(QtTranslations, WhoPrefersEnglishToATranslationGetsEnglish) {
    EXPECT_EQ(languageFor({"en-GB", "de"}), "en");
    const InLanguage english("en");
    EXPECT_EQ(localizedText("Apply"), "Apply");
}

TEST(QtTranslations, TheTextsAreInTheLanguageWhileItExists) {
    {
        const InLanguage german("de-AT");
        EXPECT_EQ(localizedText("Apply"), "Anwenden");
        EXPECT_EQ(localizedText("not available"), "nicht verfügbar");
    }
    EXPECT_EQ(localizedText("Apply"), "Apply");
}

TEST(QtTranslations, TheTextsOfQtAreInTheSameLanguage) {
    const auto cancel = [] { return QCoreApplication::translate("QPlatformTheme", "Cancel"); };
    const QString english = cancel();
    {
        const QtTranslations french({"it", "fr"});
        EXPECT_EQ(cancel(), "Annuler");
    }
    EXPECT_EQ(cancel(), english);
}

// A fax is listed with the other numbers of its place, so no entry has the ranks 06 and 07.
TEST(QtTranslations, InEveryLanguageAFaxCountsAsItsPlaceAndEveryOtherLabelAsItself) {
    for (const QString& language : QStringList{"en"} + QtTranslations::available()) {
        const InLanguage spoken(language);
        ASSERT_EQ(spoken.language(), language);
        EXPECT_EQ(rankOfLabel("work"), "01") << language.toStdString();
        EXPECT_EQ(rankOfLabel("home"), "02") << language.toStdString();
        EXPECT_EQ(rankOfLabel("iPhone"), "03") << language.toStdString();
        EXPECT_EQ(rankOfLabel("mobile"), "04") << language.toStdString();
        EXPECT_EQ(rankOfLabel("main"), "05") << language.toStdString();
        EXPECT_EQ(rankOfLabel("home fax"), "02") << language.toStdString();
        EXPECT_EQ(rankOfLabel("work fax"), "01") << language.toStdString();
        EXPECT_EQ(rankOfLabel("pager"), "08") << language.toStdString();
        EXPECT_EQ(rankOfLabel("other"), "09") << language.toStdString();
        EXPECT_EQ(rankOfLabel("vacation"), "10") << language.toStdString();
    }
}

} // namespace kx
