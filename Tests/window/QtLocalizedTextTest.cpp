#include "platform/qt/QtLocalizedText.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>
#include <cstring>

namespace kx {

namespace {

// Knows one text of the context "KXConfig".
class OneTextTranslator final : public QTranslator {
public:
    QString translate(const char* context, const char* sourceText, const char*,
                      int) const override {
        const bool isKnown = std::strcmp(context, "KXConfig") == 0 &&
                             std::strcmp(sourceText, "No configured interfaces") == 0;
        return isKnown ? QString("Keine eingerichteten Schnittstellen (ä)") : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

TEST(QtLocalizedText, AKeyWithoutTranslationStandsForItself) {
    EXPECT_EQ(QtLocalizedText().textForKey("not available"), "not available");
    EXPECT_EQ(QtLocalizedText().textForKey(""), "");
}

TEST(QtLocalizedText, KeepsPlaceholdersAndLineBreaksOfTheKey) {
    const std::string key = "\nSend to: %@ command: %@ %d %1 %n 100%%";
    EXPECT_EQ(QtLocalizedText().textForKey(key), key);
}

TEST(QtLocalizedText, AsksTheInstalledTranslatorsInOneContext) {
    OneTextTranslator translator;
    QCoreApplication::installTranslator(&translator);
    EXPECT_EQ(QtLocalizedText().textForKey("No configured interfaces"),
              "Keine eingerichteten Schnittstellen (ä)");
    QCoreApplication::removeTranslator(&translator);
    EXPECT_EQ(QtLocalizedText().textForKey("No configured interfaces"), "No configured interfaces");
}

TEST(QtLocalizedText, ReadsNoFurtherThanTheKey) {
    const std::string_view longer = "not available at all";
    EXPECT_EQ(QtLocalizedText().textForKey(longer.substr(0, 13)), "not available");
}

} // namespace kx
