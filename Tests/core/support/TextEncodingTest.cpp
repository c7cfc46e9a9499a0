#include "support/TextEncoding.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace kx {
namespace {

// The encoding of a code point by the definition of UTF-8, surrogates and beyond included.
Bytes encoded(std::uint32_t codePoint) {
    const auto tail = [codePoint](unsigned shift) {
        return static_cast<std::uint8_t>(0x80U | ((codePoint >> shift) & 0x3FU));
    };
    const auto head = [codePoint](unsigned mark, unsigned shift) {
        return static_cast<std::uint8_t>(mark | (codePoint >> shift));
    };
    if (codePoint < 0x80) {
        return {head(0, 0)};
    }
    if (codePoint < 0x800) {
        return {head(0xC0, 6), tail(0)};
    }
    if (codePoint < 0x10000) {
        return {head(0xE0, 12), tail(6), tail(0)};
    }
    return {head(0xF0, 18), tail(12), tail(6), tail(0)};
}

bool isSurrogate(std::uint32_t codePoint) {
    return codePoint >= 0xD800 && codePoint <= 0xDFFF;
}

TEST(UTF8, EveryCodePointButTheSurrogatesIsValid) {
    for (std::uint32_t codePoint = 0; codePoint <= 0x110100; ++codePoint) {
        const bool expected = !isSurrogate(codePoint) && codePoint <= 0x10FFFF;
        ASSERT_EQ(isValidUTF8(encoded(codePoint)), expected) << std::hex << codePoint;
    }
}

TEST(UTF8, CodePointsWithTheirLastByteCutOffAreInvalid) {
    for (const std::uint32_t codePoint : {0x80U, 0x7FFU, 0x800U, 0xFFFFU, 0x10000U, 0x10FFFFU}) {
        Bytes bytes = encoded(codePoint);
        bytes.pop_back();
        EXPECT_FALSE(isValidUTF8(bytes)) << std::hex << codePoint;
        bytes.push_back('a');
        EXPECT_FALSE(isValidUTF8(bytes)) << std::hex << codePoint;
    }
}

TEST(UTF8, OnlyTheFrontOfASequenceIsNoWholeCharacter) {
    EXPECT_EQ(lengthOfWholeCharacters({}), 0U);
    for (const std::uint32_t codePoint : {0x7FU, 0x80U, 0x7FFU, 0x800U, 0xFFFFU, 0x10FFFFU}) {
        const Bytes character = encoded(codePoint);
        for (std::size_t length = 0; length <= character.size(); ++length) {
            Bytes bytes{'a'};
            bytes.insert(bytes.end(), character.begin(),
                         character.begin() + static_cast<std::ptrdiff_t>(length));
            EXPECT_EQ(lengthOfWholeCharacters(bytes),
                      length == character.size() ? bytes.size() : 1U)
                << std::hex << codePoint;
            EXPECT_EQ(lengthOfWholeCharacters(ByteView(bytes).subspan(1)),
                      length == character.size() ? length : 0U);
        }
    }
}

TEST(UTF8, WhatNoByteCouldCompleteIsNotHeldBack) {
    for (const Bytes& bytes : {Bytes{'a', 0xFF}, Bytes{0xC1}, Bytes{0x80, 0x80, 0x80, 0x80},
                               Bytes{0xC3, 0xA9, 0x80}, Bytes{0xF5}}) {
        EXPECT_EQ(lengthOfWholeCharacters(bytes), bytes.size());
    }
}

TEST(UTF8, MalformedSequencesAreInvalid) {
    const std::vector<Bytes> malformed = {
        {0x80},                   // continuation alone
        {0xBF},                   //
        {0xC0, 0x80},             // overlong forms of U+0000
        {0xE0, 0x80, 0x80},       //
        {0xF0, 0x80, 0x80, 0x80}, //
        {0xC1, 0xBF},             // overlong form of U+007F
        {0xE0, 0x9F, 0xBF},       // overlong form of U+07FF
        {0xF0, 0x8F, 0xBF, 0xBF}, // overlong form of U+FFFF
        {0xED, 0xA0, 0x80},       // U+D800
        {0xED, 0xBF, 0xBF},       // U+DFFF
        {0xF4, 0x90, 0x80, 0x80}, // U+110000
        {0xF5, 0x80, 0x80, 0x80}, // no such first byte
        {0xFE},                   //
        {0xFF},                   //
        {0xC3, 0x28},             // no continuation
        {0xE2, 0x28, 0xA1},       //
        {0xE2, 0x82, 0x28},       //
        {0xF0, 0x28, 0x8C, 0xBC}, //
        {0xF0, 0x90, 0x28, 0xBC}, //
        {0xF0, 0x90, 0x8C, 0x28}, //
    };
    for (const Bytes& bytes : malformed) {
        EXPECT_FALSE(isValidUTF8(bytes)) << testing::PrintToString(bytes);
        EXPECT_EQ(textFromUTF8(bytes), std::nullopt);
        Bytes inside = {'a'};
        inside.insert(inside.end(), bytes.begin(), bytes.end());
        inside.push_back('b');
        EXPECT_FALSE(isValidUTF8(inside)) << testing::PrintToString(bytes);
    }
}

TEST(UTF8, NoBytesAndZeroBytesAreText) {
    using namespace std::string_literals;
    EXPECT_EQ(textFromUTF8({}), "");
    EXPECT_EQ(textFromUTF8(Bytes{0, 'a', 0}), "\0a\0"s);
}

TEST(UTF8, BytesOfATextAreItsOwn) {
    const std::string text = "a\xC3\xA9";
    const ByteView bytes = bytesOfText(text);
    EXPECT_EQ(static_cast<const void*>(bytes.data()), text.data());
    EXPECT_EQ(Bytes(bytes.begin(), bytes.end()), (Bytes{'a', 0xC3, 0xA9}));
    EXPECT_TRUE(bytesOfText("").empty());
}

TEST(ASCII, EncodesAllCharactersUpTo127) {
    Bytes all;
    for (std::uint8_t byte = 0; byte < 0x80; ++byte) {
        all.push_back(byte);
    }
    EXPECT_EQ(asciiBytes(std::string(all.begin(), all.end())), all);
    EXPECT_EQ(asciiBytes(""), Bytes());
}

TEST(ASCII, HasNoFormForAnyOtherCharacter) {
    EXPECT_EQ(asciiBytes("caf\xC3\xA9"), std::nullopt);
    EXPECT_EQ(asciiBytes("\xC2\x80"), std::nullopt);
    EXPECT_EQ(asciiBytes("\xFF"), std::nullopt);
}

TEST(TextLength, CountsUTF16Units) {
    EXPECT_EQ(lengthInCharacters(""), 0U);
    EXPECT_EQ(lengthInCharacters("abc"), 3U);
    EXPECT_EQ(lengthInCharacters("\xC3\xA9"), 1U);             // U+00E9
    EXPECT_EQ(lengthInCharacters("\xE2\x82\xAC"), 1U);         // U+20AC
    EXPECT_EQ(lengthInCharacters("\xEF\xBF\xBF"), 1U);         // U+FFFF
    EXPECT_EQ(lengthInCharacters("\xF0\x90\x80\x80"), 2U);     // U+10000, a surrogate pair
    EXPECT_EQ(lengthInCharacters("a\xF0\x9F\x98\x80\xC3"), 4U) // plus a stray byte
        << "one unit, a pair, one unit for the stray byte";
}

TEST(TextLength, CountsEveryStrayByte) {
    EXPECT_EQ(lengthInCharacters("\xE2\x82"), 2U);
    EXPECT_EQ(lengthInCharacters("\xFF\xFE\x80"), 3U);
}

TEST(IntegerValue, ReadsTheLeadingDigits) {
    EXPECT_EQ(integerValue("3520"), 3520);
    EXPECT_EQ(integerValue("007"), 7);
    EXPECT_EQ(integerValue("12ab34"), 12);
    EXPECT_EQ(integerValue("1.9"), 1);
    EXPECT_EQ(integerValue("0x10"), 0);
}

TEST(IntegerValue, SkipsLeadingWhiteSpace) {
    EXPECT_EQ(integerValue(" \t\n\v\f\r42"), 42);
    EXPECT_EQ(integerValue("4 2"), 4);
}

TEST(IntegerValue, TakesOneSign) {
    EXPECT_EQ(integerValue("-5"), -5);
    EXPECT_EQ(integerValue("+5"), 5);
    EXPECT_EQ(integerValue(" -5"), -5);
    EXPECT_EQ(integerValue("--5"), 0);
    EXPECT_EQ(integerValue("+-5"), 0);
    EXPECT_EQ(integerValue("- 5"), 0);
}

TEST(IntegerValue, IsZeroWithoutDigits) {
    for (const char* text : {"", " ", "-", "+", "abc", "\xD9\xA3"}) {
        EXPECT_EQ(integerValue(text), 0) << text;
    }
}

TEST(TextEncoding, ATextIsReadCharacterByCharacter) {
    EXPECT_EQ(charactersOfText("aé装\U0001F600"), U"aé装\U0001F600");
    EXPECT_EQ(charactersOfText(std::string_view("a\0b", 3)), std::u32string_view(U"a\0b", 3));
    EXPECT_EQ(charactersOfText("\u007F\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF"),
              U"\x7F\x80\x7FF\x800\xFFFF\x10000\x10FFFF");
    EXPECT_EQ(charactersOfText(""), U"");
}

TEST(TextEncoding, AByteOutsideAnySequenceIsACharacterBeyondUnicode) {
    const std::u32string expected{U'a', 0x1100FF, 0x1100C3, U'b'};
    EXPECT_EQ(charactersOfText("a\xFF\xC3"
                               "b"),
              expected);
    EXPECT_EQ(charactersOfText("\xED\xA0\x80"),
              (std::u32string{0x1100ED, 0x1100A0, 0x110080})); // a surrogate
}

TEST(IntegerValue, SaturatesAtTheEndsOf32Bits) {
    constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t highest = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(integerValue("2147483646"), highest - 1);
    EXPECT_EQ(integerValue("2147483647"), highest);
    EXPECT_EQ(integerValue("2147483648"), highest);
    EXPECT_EQ(integerValue("4294967296"), highest);
    EXPECT_EQ(integerValue("-2147483647"), lowest + 1);
    EXPECT_EQ(integerValue("-2147483648"), lowest);
    EXPECT_EQ(integerValue("-2147483649"), lowest);
    EXPECT_EQ(integerValue(std::string(1000, '9')), highest);
    EXPECT_EQ(integerValue("-" + std::string(1000, '9')), lowest);
}

} // namespace
} // namespace kx
