#include "support/TextComparison.h"

#include "support/UnicodeTables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace kx {
namespace {

constexpr bool same = true;
constexpr bool different = false;

void expectCaseInsensitive(bool expected, std::string_view text, std::string_view other) {
    EXPECT_EQ(caseInsensitiveIsEqualToString(text, other), expected) << text << " / " << other;
    EXPECT_EQ(caseInsensitiveIsEqualToString(other, text), expected) << other << " / " << text;
}

TEST(TextComparison, CaseDoesNotCountInAnyScript) {
    expectCaseInsensitive(same, "ABC", "abc");
    expectCaseInsensitive(same, "GRÜSSE ÆØÅ", "grüsse æøå");
    expectCaseInsensitive(same, "ДОМ", "дом");
    expectCaseInsensitive(same, "ΟΔΟΣ", "οδος");
    expectCaseInsensitive(same, "\U00010400", "\U00010428"); // Deseret, beyond the basic plane
    expectCaseInsensitive(same, "", "");
}

TEST(TextComparison, OneLetterMayFoldToTwo) {
    expectCaseInsensitive(same, "STRASSE", "straße");
    expectCaseInsensitive(same, "ẞ", "ß");
    expectCaseInsensitive(same, "ﬁle", "FILE");
    expectCaseInsensitive(same, "ŉ", "ʼN");
}

TEST(TextComparison, BothSmallFormsOfAGreekLetterAreEqual) {
    expectCaseInsensitive(same, "οδος", "οδοσ");
}

TEST(TextComparison, NoLanguagesOwnRulesApply) {
    expectCaseInsensitive(same, "I", "i");
    expectCaseInsensitive(different, "ı", "i"); // Turkish rules do not apply
    expectCaseInsensitive(different, "İ", "i");
    expectCaseInsensitive(same, "İ", "i̇");
}

TEST(TextComparison, AccentsWidthAndCompatibilityFormsCount) {
    expectCaseInsensitive(different, "e", "é");
    expectCaseInsensitive(different, "A", "Ａ");
    expectCaseInsensitive(different, "2", "²");
    expectCaseInsensitive(different, "abc", "abcd");
    expectCaseInsensitive(different, "", "a");
}

TEST(TextComparison, CanonicallyEquivalentTextsAreEqual) {
    expectCaseInsensitive(same, "é", "e\u0301");
    expectCaseInsensitive(same, "É", "e\u0301");
    expectCaseInsensitive(same, "각", "\u1100\u1161\u11A8");
    expectCaseInsensitive(same, "가", "\u1100\u1161");
    expectCaseInsensitive(same, "\u212B", "å"); // U+212B is the sign of the unit
    EXPECT_EQ(compareTexts("é", "e\u0301"), std::weak_ordering::equivalent);
    EXPECT_EQ(compareTexts("힣", "\u1112\u1175\u11C2"), std::weak_ordering::equivalent);
}

TEST(TextComparison, TheOrderOfIndependentMarksDoesNotCount) {
    expectCaseInsensitive(same, "a\u0323\u0302", "a\u0302\u0323"); // one mark is below, one above
    expectCaseInsensitive(same, "ậ", "A\u0302\u0323");
    expectCaseInsensitive(different, "a\u0301\u0300", "a\u0300\u0301"); // both above: order counts
    EXPECT_EQ(compareTexts("a\u0323\u0302", "a\u0302\u0323"), std::weak_ordering::equivalent);
    EXPECT_EQ(compareTexts("ậ", "a\u0302\u0323"), std::weak_ordering::equivalent);
    EXPECT_EQ(compareTexts("a\u0300\u0301", "a\u0301\u0300"), std::weak_ordering::less);
}

// So marks that are in order stay in order when their text is folded.
TEST(TextComparison, OnlyTheMarkThatComesLastFolds) {
    const auto classOf = [](char32_t character) {
        const auto ranges = combiningClasses();
        const auto range =
            std::ranges::find_if(ranges, [character](const CombiningClassRange& each) {
                return each.first <= character && character <= each.last;
            });
        return range == ranges.end() ? 0 : range->combiningClass;
    };
    const int last = std::ranges::max(combiningClasses(), {}, &CombiningClassRange::combiningClass)
                         .combiningClass;
    for (const CharacterMapping& folding : caseFoldings()) {
        EXPECT_TRUE(classOf(folding.from) == 0 || classOf(folding.from) == last);
        EXPECT_TRUE(std::ranges::all_of(
            folding.to, [&](char32_t character) { return classOf(character) == 0; }));
    }
}

// The iota below a letter folds to a letter of its own, behind every other mark.
TEST(TextComparison, AMarkThatFoldsToALetterIsOrderedBeforehand) {
    expectCaseInsensitive(same, "α\u0345\u0301", "ΆΙ");
    expectCaseInsensitive(same, "ᾴ", "άι");
}

TEST(TextComparison, BytesThatAreNoTextEqualOnlyTheirLike) {
    expectCaseInsensitive(same, "a\xFF", "A\xFF");
    expectCaseInsensitive(different, "\xFF", "\xFE");
    expectCaseInsensitive(different, "\xC3", "Ã");
    expectCaseInsensitive(different, "\xFF", "");
    EXPECT_EQ(compareTexts("\U0010FFFF", "\x80"), std::weak_ordering::less);
}

TEST(TextComparison, ZeroBytesAreCharacters) {
    using namespace std::string_view_literals;
    expectCaseInsensitive(same, "a\0B"sv, "A\0b"sv);
    expectCaseInsensitive(different, "a\0"sv, "a"sv);
}

TEST(TextComparison, TheOrderIsThatOfTheCharacters) {
    EXPECT_EQ(compareTexts("", "a"), std::weak_ordering::less);
    EXPECT_EQ(compareTexts("B", "a"), std::weak_ordering::less); // case counts
    EXPECT_EQ(compareTexts("10", "9"), std::weak_ordering::less);
    EXPECT_EQ(compareTexts("é", "f"), std::weak_ordering::less); // the letter, not its number
    EXPECT_EQ(compareTexts("e", "é"), std::weak_ordering::less);
    EXPECT_EQ(compareTexts("z", "я"), std::weak_ordering::less);
    EXPECT_EQ(compareTexts("\U00010400", "\uFFFD"), std::weak_ordering::greater);
    EXPECT_EQ(compareTexts("a", "a"), std::weak_ordering::equivalent);
}

TEST(TextComparison, ABeginningIsFoundWhateverItsCase) {
    EXPECT_TRUE(caseInsensitiveBeginsWith("Mobile]", "mobile"));
    EXPECT_TRUE(caseInsensitiveBeginsWith("mobile", "mobile"));
    EXPECT_TRUE(caseInsensitiveBeginsWith("STRASSE 7", "straße"));
    EXPECT_TRUE(caseInsensitiveBeginsWith("Straße 7", "STRASSE"));
    EXPECT_TRUE(caseInsensitiveBeginsWith("e\u0301te\u0301", "É"));
    EXPECT_FALSE(caseInsensitiveBeginsWith("the mobile", "mobile"));
    EXPECT_FALSE(caseInsensitiveBeginsWith("mob", "mobile"));
    EXPECT_FALSE(caseInsensitiveBeginsWith("", "mobile"));
}

TEST(TextComparison, ABeginningEndsWhereACharacterEnds) {
    EXPECT_FALSE(caseInsensitiveBeginsWith("é", "e"));
    EXPECT_FALSE(caseInsensitiveBeginsWith("e\u0301", "e"));
    EXPECT_FALSE(caseInsensitiveBeginsWith("ß", "s")); // "ß" folds to two letters
    EXPECT_TRUE(caseInsensitiveBeginsWith("ee\u0301", "e"));
}

TEST(TextComparison, NoTextBeginsWithTheEmptyText) {
    EXPECT_FALSE(caseInsensitiveBeginsWith("mobile", ""));
    EXPECT_FALSE(caseInsensitiveBeginsWith("", ""));
}

} // namespace
} // namespace kx
