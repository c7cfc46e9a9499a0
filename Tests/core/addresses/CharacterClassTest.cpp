#include "addresses/CharacterClass.h"

#include <gtest/gtest.h>

#include <string_view>

namespace kx {
namespace {

// Every value of a byte as a character.
template<class Check>
void forEachByte(Check check) {
    for (int byte = 0; byte < 256; ++byte) {
        check(static_cast<char>(byte));
    }
}

TEST(CharacterClass, DigitsAreExactlyZeroToNine) {
    constexpr std::string_view digits = "0123456789";
    forEachByte([&](char character) {
        EXPECT_EQ(isDigit(character), digits.find(character) != std::string_view::npos)
            << static_cast<int>(character);
    });
}

TEST(CharacterClass, HexDigitsAreExactlyDigitsAndLettersAToFOfEitherCase) {
    constexpr std::string_view digits = "0123456789ABCDEFabcdef";
    forEachByte([&](char character) {
        EXPECT_EQ(isHexDigit(character), digits.find(character) != std::string_view::npos)
            << static_cast<int>(character);
    });
}

TEST(CharacterClass, HexDigitValuesOfBothCasesAreTheSame) {
    constexpr std::string_view upper = "0123456789ABCDEF";
    constexpr std::string_view lower = "0123456789abcdef";
    for (unsigned value = 0; value < 16; ++value) {
        EXPECT_EQ(hexDigitValue(upper[value]), value);
        EXPECT_EQ(hexDigitValue(lower[value]), value);
    }
}

} // namespace
} // namespace kx
