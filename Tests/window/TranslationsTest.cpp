#include "translations/Translations.h"

#include "InLanguage.h"
#include "support/LabelledNames.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <algorithm>
#include <cstdlib>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kx {

namespace {

using Names = std::vector<std::string>;

std::string rankOfLabel(const char* label) {
    return compareStringForCID(":555 [" + localizedText(label) + "]");
}

std::string languageFor(const Names& preferred) {
    return std::string(firstTranslation(preferred).language);
}

Names languagesOfProgram() {
    Names languages;
    for (const Translation& translation : translations()) {
        languages.emplace_back(translation.language);
    }
    return languages;
}

// The variables that tell languages, and only these, while it exists.
class LanguageVariables {
public:
    explicit LanguageVariables(const std::map<std::string, std::string>& values) {
        for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) {
            const char* const value = std::getenv(name);
            _before[name] = value != nullptr ? std::optional<std::string>(value) : std::nullopt;
            const auto wanted = values.find(name);
            set(name, wanted != values.end() ? std::optional(wanted->second) : std::nullopt);
        }
    }
    ~LanguageVariables() {
        for (const auto& [name, value] : _before) {
            set(name, value);
        }
    }
    LanguageVariables(const LanguageVariables&) = delete;
    LanguageVariables& operator=(const LanguageVariables&) = delete;

private:
    static void set(const std::string& name, const std::optional<std::string>& value) {
        if (value.has_value()) {
            ::setenv(name.c_str(), value->c_str(), 1);
        } else {
            ::unsetenv(name.c_str());
        }
    }

    std::map<std::string, std::optional<std::string>> _before;
};

} // namespace

TEST(Translations, TheProgramCarriesItsLanguagesInItself) {
    EXPECT_EQ(languagesOfProgram(), Names({"de", "es", "fr", "ja"}));
}

TEST(Translations, EveryLanguageHasTheSameKeysInTheirOrder) {
    const auto keysOf = [](const Translation& translation) {
        Names keys;
        for (const CatalogueEntry& entry : translation.entries) {
            keys.emplace_back(entry.key);
        }
        return keys;
    };
    const Names keys = keysOf(translations().front());
    EXPECT_GT(keys.size(), 500U);
    EXPECT_TRUE(std::ranges::is_sorted(keys));
    for (const Translation& translation : translations()) {
        EXPECT_EQ(keysOf(translation), keys) << translation.language;
    }
}

TEST(Translations, TheFirstPreferredLanguageThatThereIsIsTaken) {
    EXPECT_EQ(languageFor({"de"}), "de");
    EXPECT_EQ(languageFor({"it-IT", "fr-CA", "de-DE"}), "fr");
    EXPECT_EQ(languageFor({"ja_JP"}), "ja");
    EXPECT_EQ(languageFor({"ja_JP.UTF-8"}), "ja");
    EXPECT_EQ(languageFor({"de@euro"}), "de");
    EXPECT_EQ(languageFor({"es-Latn-MX"}), "es");
}

TEST(Translations, TheUsersLanguagesAreThoseOfTheEnvironment) {
    const auto languages = [](const std::map<std::string, std::string>& values) {
        const LanguageVariables variables(values);
        return languagesOfUser();
    };
    EXPECT_EQ(languages({}), Names());
    EXPECT_EQ(languages({{"LANG", "de_AT.UTF-8"}}), Names{"de_AT.UTF-8"});
    EXPECT_EQ(languages({{"LANG", "de"}, {"LC_MESSAGES", "fr"}}), Names{"fr"});
    EXPECT_EQ(languages({{"LANG", "de"}, {"LC_MESSAGES", "fr"}, {"LC_ALL", "ja"}}), Names{"ja"});
    EXPECT_EQ(languages({{"LANGUAGE", "it:de"}, {"LC_ALL", "ja"}}), Names({"it", "de"}));
    EXPECT_EQ(languages({{"LANGUAGE", ""}, {"LC_ALL", "ja"}}), Names{"ja"}) << "not set";
    EXPECT_EQ(languages({{"LANGUAGE", "it::de:"}}), Names({"it", "de"}));
    EXPECT_EQ(languages({{"LANGUAGE", ":"}, {"LANG", "de"}}), Names{"de"});
}

TEST(Translations, WithoutAPreferredLanguageTheTextsAreEnglish) {
    EXPECT_EQ(languageFor({}), "en");
    EXPECT_EQ(languageFor({"it-IT", "C"}), "en");
    EXPECT_EQ(languageFor({"deutsch", ""}), "en");
}

TEST(Translations, WhoPrefersEnglishToATranslationGetsEnglish) {
    EXPECT_EQ(languageFor({"en-GB", "de"}), "en");
    const InLanguage english("en");
    EXPECT_EQ(localizedText("Apply"), "Apply");
}

TEST(Translations, TheTextsAreInTheLanguageWhileItExists) {
    {
        const InLanguage german("de-AT");
        EXPECT_EQ(localizedText("Apply"), "Anwenden");
        EXPECT_EQ(localizedText("not available"), "nicht verfügbar");
    }
    EXPECT_EQ(localizedText("Apply"), "Apply");
}

TEST(Translations, TheTextsOfQtAreInTheSameLanguage) {
    const auto cancel = [] { return QCoreApplication::translate("QPlatformTheme", "Cancel"); };
    const QString english = cancel();
    {
        const QtTranslations french("fr");
        EXPECT_EQ(cancel(), "Annuler");
    }
    EXPECT_EQ(cancel(), english);
}

// A fax is listed with the other numbers of its place, so no entry has the ranks 06 and 07.
TEST(Translations, InEveryLanguageAFaxCountsAsItsPlaceAndEveryOtherLabelAsItself) {
    Names languages = languagesOfProgram();
    languages.emplace_back("en");
    for (const std::string& language : languages) {
        const InLanguage spoken(language);
        ASSERT_EQ(spoken.language().toStdString(), language);
        EXPECT_EQ(rankOfLabel("work"), "01") << language;
        EXPECT_EQ(rankOfLabel("home"), "02") << language;
        EXPECT_EQ(rankOfLabel("iPhone"), "03") << language;
        EXPECT_EQ(rankOfLabel("mobile"), "04") << language;
        EXPECT_EQ(rankOfLabel("main"), "05") << language;
        EXPECT_EQ(rankOfLabel("home fax"), "02") << language;
        EXPECT_EQ(rankOfLabel("work fax"), "01") << language;
        EXPECT_EQ(rankOfLabel("pager"), "08") << language;
        EXPECT_EQ(rankOfLabel("other"), "09") << language;
        EXPECT_EQ(rankOfLabel("vacation"), "10") << language;
    }
}

} // namespace kx
