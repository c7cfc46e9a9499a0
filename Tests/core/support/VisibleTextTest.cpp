#include "support/VisibleText.h"

#include "support/TextEncoding.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace kx {

namespace {

std::string encoded(char32_t code) {
    const auto byte = [code](unsigned shift, char32_t lead, char32_t mask) {
        return static_cast<char>(lead | (code >> shift & mask));
    };
    if (code < 0x80) {
        return {byte(0, 0, 0x7F)};
    }
    if (code < 0x800) {
        return {byte(6, 0xC0, 0x1F), byte(0, 0x80, 0x3F)};
    }
    if (code < 0x10000) {
        return {byte(12, 0xE0, 0x0F), byte(6, 0x80, 0x3F), byte(0, 0x80, 0x3F)};
    }
    return {byte(18, 0xF0, 0x07), byte(12, 0x80, 0x3F), byte(6, 0x80, 0x3F), byte(0, 0x80, 0x3F)};
}

std::string marks(int count) {
    std::string text;
    for (; count > 0; --count) {
        text += "\uFFFD";
    }
    return text;
}

} // namespace

TEST(VisibleText, ControlsOfEitherSetAreMarked) {
    for (char32_t code = 0; code < 0xA0; ++code) {
        const bool isControl = code < 0x20 || code >= 0x7F;
        EXPECT_EQ(visibleText(encoded(code)), isControl ? marks(1) : encoded(code))
            << static_cast<unsigned>(code);
    }
    EXPECT_EQ(visibleText("\x1B[31mred\u009B0m\r\n"),
              marks(1) + "[31mred" + marks(1) + "0m" + marks(2));
}

TEST(VisibleText, WhatTurnsOrBreaksALineIsMarked) {
    for (const char32_t code :
         std::initializer_list<char32_t>{0x061C, 0x200E, 0x200F, 0x2028, 0x2029, 0x202A, 0x202B,
                                         0x202C, 0x202D, 0x202E, 0x2066, 0x2067, 0x2068, 0x2069}) {
        EXPECT_EQ(visibleText("a" + encoded(code) + "b"), "a" + marks(1) + "b")
            << static_cast<unsigned>(code);
    }
}

TEST(VisibleText, WhatNobodySeesIsMarked) {
    for (const char32_t code : std::initializer_list<char32_t>{
             0x00AD, 0x034F, 0x115F, 0x1160, 0x17B4, 0x17B5, 0x180B, 0x180E, 0x180F,
             0x200B, 0x200C, 0x200D, 0x2060, 0x2064, 0x206A, 0x206F, 0x3164, 0xFE00,
             0xFE0F, 0xFEFF, 0xFFA0, 0xFFF0, 0xFFF8, 0xFFF9, 0xFFFC}) {
        EXPECT_EQ(visibleText("a" + encoded(code) + "b"), "a" + marks(1) + "b")
            << static_cast<unsigned>(code);
    }
}

TEST(VisibleText, ACharacterBeyondTheBasicPlaneGivesTwoMarks) {
    for (const char32_t code :
         std::initializer_list<char32_t>{0x1BCA0, 0x1D173, 0x1D17A, 0xE0000, 0xE0001, 0xE0041,
                                         0xE007F, 0xE0100, 0xE01EF, 0xE0FFF}) {
        EXPECT_EQ(visibleText("a" + encoded(code) + "b"), "a" + marks(2) + "b")
            << static_cast<unsigned>(code);
    }
}

TEST(VisibleText, TheNeighboursOfWhatActsAreShown) {
    for (const char32_t code : std::initializer_list<char32_t>{
             0x00A0, 0x00AC, 0x00AE,  0x034E,  0x0350,  0x061B,  0x061D,  0x115E,  0x1161,
             0x17B3, 0x17B6, 0x180A,  0x1810,  0x200A,  0x2010,  0x2027,  0x202F,  0x205F,
             0x2070, 0x3163, 0x3165,  0xFDFF,  0xFE10,  0xFEFE,  0xFF00,  0xFF9F,  0xFFA1,
             0xFFEF, 0xFFFD, 0x1BC9F, 0x1BCA4, 0x1D172, 0x1D17B, 0xDFFFF, 0xE1000, 0x10FFFF}) {
        EXPECT_EQ(visibleText(encoded(code)), encoded(code)) << static_cast<unsigned>(code);
    }
    EXPECT_EQ(visibleText("Ä網😀 שלום"), "Ä網😀 שלום");
}

TEST(VisibleText, AByteThatIsNoUTF8IsMarked) {
    EXPECT_EQ(visibleText("a\x9B"
                          "b\xC1"
                          "c\xFF"),
              "a" + marks(1) + "b" + marks(1) + "c" + marks(1));
    EXPECT_EQ(visibleText("\xE2\x80"), marks(2)) << "a sequence that is cut off";
    EXPECT_EQ(visibleText("\xED\xA0\x80"), marks(3)) << "a surrogate";
}

TEST(VisibleText, ATabIsMarkedUnlessItIsToBeKept) {
    EXPECT_EQ(visibleText("a\tb"), "a" + marks(1) + "b");
    EXPECT_EQ(visibleText("a\tb\n", Tabs::kept), "a\tb" + marks(1));
}

TEST(VisibleText, HasAsManyUnitsAsTheText) {
    for (char32_t code = 0; code <= 0x10FFFF; code += code == 0xD7FF ? 0x801 : 1) {
        const std::string text = encoded(code);
        ASSERT_EQ(lengthInCharacters(visibleText(text)), lengthInCharacters(text))
            << static_cast<unsigned>(code);
    }
}

} // namespace kx
