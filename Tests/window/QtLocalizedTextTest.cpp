#include "platform/qtcore/QtLocalizedText.h"

#include "contracts/LocalizedTextContract.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>
#include <map>
#include <string>
#include <utility>

namespace kx {

namespace {

// An installed translator that has texts of the context "KXConfig".
class ScriptedTranslator final : public QTranslator {
public:
    ScriptedTranslator() { QCoreApplication::installTranslator(this); }
    ~ScriptedTranslator() override { QCoreApplication::removeTranslator(this); }

    void setTranslation(std::string key, std::string translation) {
        _translations[std::move(key)] = std::move(translation);
    }

    QString translate(const char* context, const char* sourceText, const char*,
                      int) const override {
        const auto found = _translations.find(sourceText);
        const bool isKnown = std::string(context) == "KXConfig" && found != _translations.end();
        return isKnown ? QString::fromStdString(found->second) : QString();
    }
    bool isEmpty() const override { return false; }

private:
    std::map<std::string, std::string> _translations;
};

class QtLocalizedTextTrait {
public:
    const LocalizedText& source() { return _source; }
    void setTranslation(std::string key, std::string translation) {
        _translator.setTranslation(std::move(key), std::move(translation));
    }

private:
    ScriptedTranslator _translator;
    QtLocalizedText _source;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, LocalizedTextContract, QtLocalizedTextTrait);

TEST(QtLocalizedText, ATranslatorThatWasRemovedIsNotAsked) {
    {
        ScriptedTranslator translator;
        translator.setTranslation("Unit:", "Gerät:");
        EXPECT_EQ(QtLocalizedText().textForKey("Unit:"), "Gerät:");
    }
    EXPECT_EQ(QtLocalizedText().textForKey("Unit:"), "Unit:");
}

} // namespace kx
