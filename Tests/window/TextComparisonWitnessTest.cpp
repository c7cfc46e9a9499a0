// Compares texts, character by character, and checks the results against the toolkit's own
// knowledge of Unicode. The toolkit folds each character to one, so this test cannot check
// characters that fold to several.

#include "platform/qt/QtText.h"
#include "support/TextComparison.h"

#include <gtest/gtest.h>

#include <QChar>
#include <functional>

namespace kx {

namespace {

QString folded(const QString& text) {
    return text.normalized(QString::NormalizationForm_D)
        .toCaseFolded()
        .normalized(QString::NormalizationForm_D);
}

// The characters in the toolkit's own edition of Unicode; the core's edition may be newer.
void forEachCharacter(const std::function<void(const QString&)>& action) {
    for (char32_t character = 0; character <= QChar::LastValidCodePoint; ++character) {
        const auto category = QChar::category(character);
        if (category != QChar::Other_NotAssigned && category != QChar::Other_Surrogate &&
            category != QChar::Other_PrivateUse) {
            action(QString::fromUcs4(&character, 1));
        }
    }
}

} // namespace

TEST(TextComparisonWitness, EveryCharacterEqualsItsFoldedAndItsDecomposedForm) {
    int characters = 0;
    forEachCharacter([&](const QString& text) {
        ++characters;
        const std::string own = utf8Text(text);
        EXPECT_TRUE(caseInsensitiveIsEqualToString(own, utf8Text(folded(text)))) << own;
        EXPECT_EQ(compareTexts(own, utf8Text(text.normalized(QString::NormalizationForm_D))),
                  std::weak_ordering::equivalent)
            << own;
    });
    EXPECT_GT(characters, 140'000);
}

TEST(TextComparisonWitness, NoCharacterEqualsAnotherCaseThatItDoesNotFoldTo) {
    forEachCharacter([](const QString& text) {
        for (const QString& other : {text.toLower(), text.toUpper()}) {
            if (other.size() != text.size()) {
                continue;
            }
            EXPECT_EQ(caseInsensitiveIsEqualToString(utf8Text(text), utf8Text(other)),
                      folded(text) == folded(other))
                << utf8Text(text) << " / " << utf8Text(other);
            EXPECT_EQ(compareTexts(utf8Text(text), utf8Text(other)) ==
                          std::weak_ordering::equivalent,
                      text.normalized(QString::NormalizationForm_D) ==
                          other.normalized(QString::NormalizationForm_D))
                << utf8Text(text) << " / " << utf8Text(other);
        }
    });
}

} // namespace kx
