#include "platform/qt/QtTranslations.h"

#include "InLanguage.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

namespace kx {

namespace {

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

} // namespace kx
