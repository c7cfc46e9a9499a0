#include "support/PropertyListCoding.h"

#include "support/TextEncoding.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

namespace kx {
namespace {

std::string coded(const PropertyListValue& value) {
    PropertyListEncoder encoder;
    EXPECT_TRUE(encoder.encodeObject(value));
    return {encoder.bytes().begin(), encoder.bytes().end()};
}

// The one object that `bytes` hold. Absent also when other bytes follow it.
std::optional<PropertyListValue> decoded(std::string_view bytes) {
    PropertyListDecoder decoder(bytesOfText(bytes));
    auto value = decoder.decodeObject();
    return decoder.isAtEnd() ? value : std::nullopt;
}

PropertyListValue nested(int depth) {
    PropertyListValue value = "core";
    for (int i = 0; i < depth; ++i) {
        value = i % 2 == 0 ? PropertyListValue(PropertyList{value})
                           : PropertyListValue(PropertyDictionary{{"k", value}});
    }
    return value;
}

TEST(PropertyListCoding, WritesTheDocumentedForm) {
    EXPECT_EQ(coded("b\xC3\xA9"), "t3:b\xC3\xA9");
    EXPECT_EQ(coded(""), "t0:");
    EXPECT_EQ(coded(-12), "i-12;");
    EXPECT_EQ(coded(PropertyList{}), "l0:");
    EXPECT_EQ(coded(PropertyDictionary{}), "d0:");
    EXPECT_EQ(coded(PropertyDictionary{{"a", PropertyList{1, "b"}}}), "d1:t1:al2:i1;t1:b");
}

TEST(PropertyListCoding, ReadsBackWhatItWrote) {
    using namespace std::string_literals;
    const PropertyListValue values[] = {
        "",
        "t1:a;:",
        "zero\0byte"s,
        0,
        std::numeric_limits<std::int64_t>::min(),
        std::numeric_limits<std::int64_t>::max(),
        PropertyList{},
        PropertyList{"", 0, PropertyList{PropertyDictionary{}}},
        PropertyDictionary{{"", ""}, {"A", 1}, {"a", PropertyList{1, "x"}}, {"\xC3\xA9", -1}},
    };
    for (const auto& value : values) {
        EXPECT_EQ(decoded(coded(value)), value) << value.description();
    }
}

TEST(PropertyListCoding, ReadsObjectsInTheOrderWritten) {
    PropertyListEncoder encoder;
    ASSERT_TRUE(encoder.encodeObject("first"));
    ASSERT_TRUE(encoder.encodeObject(2));

    PropertyListDecoder decoder(encoder.bytes());
    EXPECT_EQ(decoder.decodeObject(), PropertyListValue("first"));
    EXPECT_FALSE(decoder.isAtEnd());
    EXPECT_EQ(decoder.decodeObject(), PropertyListValue(2));
    EXPECT_TRUE(decoder.isAtEnd());
    EXPECT_EQ(decoder.decodeObject(), std::nullopt);
}

TEST(PropertyListCoding, StaysWhereItWasAtBytesThatAreNoObject) {
    PropertyListDecoder decoder(bytesOfText("i1;l2:i2;?"));
    EXPECT_EQ(decoder.decodeObject(), PropertyListValue(1));
    EXPECT_EQ(decoder.decodeObject(), std::nullopt);
    EXPECT_EQ(decoder.decodeObject(), std::nullopt);
    EXPECT_FALSE(decoder.isAtEnd());
}

TEST(PropertyListCoding, EveryTruncationOfAnObjectIsRefused) {
    const std::string whole =
        coded(PropertyDictionary{{"a", PropertyList{1, "text", PropertyDictionary{}}}, {"b", -7}});
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const std::string part = whole.substr(0, length);
        PropertyListDecoder decoder(bytesOfText(part));
        EXPECT_EQ(decoder.decodeObject(), std::nullopt) << part;
    }
    EXPECT_NE(decoded(whole), std::nullopt);
}

TEST(PropertyListCoding, AnyOneByteChangedIsReadSafelyAndAnswersToItsOneForm) {
    const std::string whole = coded(PropertyDictionary{{"a", PropertyList{1, "text"}}, {"b", -7}});
    for (std::size_t position = 0; position < whole.size(); ++position) {
        for (int byte = 0; byte < 256; ++byte) {
            std::string changed = whole;
            changed[position] = static_cast<char>(byte);
            if (const auto value = decoded(changed)) {
                EXPECT_EQ(coded(*value), changed);
            }
        }
    }
}

TEST(PropertyListCoding, ForeignBytesAreRefused) {
    const char* const foreign[] = {"",
                                   "x",
                                   ";",
                                   "t",
                                   "t1",
                                   "t:",
                                   "t-1:",
                                   "t+1:a",
                                   "t 1:a",
                                   "t01:a",
                                   "t2:a",
                                   "i;",
                                   "i-;",
                                   "i-0;",
                                   "i01;",
                                   "i1",
                                   "i1:",
                                   "i1x;",
                                   "i 1;",
                                   "i+1;",
                                   "i9223372036854775808;",
                                   "l1:",
                                   "l:",
                                   "l-1:",
                                   "l1:t0",
                                   "l01:t0:",
                                   "d1:",
                                   "d1:t1:a",
                                   "d1:i1;i1;",
                                   "d2:t1:bi1;t1:ai1;",
                                   "d2:t1:ai1;t1:ai1;",
                                   "t1:\xFF",
                                   "d1:t1:\xFFi1;",
                                   "t18446744073709551615:a",
                                   "t18446744073709551616:a",
                                   "l18446744073709551615:i1;",
                                   "l99999999999999999999:i1;"};
    for (const char* bytes : foreign) {
        EXPECT_EQ(decoded(bytes), std::nullopt) << bytes;
    }
}

// Each kind of object with the end of another kind, and with every byte that ends no object.
TEST(PropertyListCoding, ANumberEndsWithTheCharacterOfItsKindAndNoOther) {
    const std::pair<std::string, std::string> objects[] = {
        {"t1", "a"}, {"i12", ""}, {"l1", "i1;"}, {"d1", "t1:ai1;"}, {"l1:i1", ""}, {"t0", ""}};
    for (const auto& [number, rest] : objects) {
        const bool isInteger = number.find('i') != std::string::npos;
        for (int byte = 0; byte < 256; ++byte) {
            const std::string bytes = number + static_cast<char>(byte) + rest;
            EXPECT_EQ(decoded(bytes).has_value(), byte == (isInteger ? ';' : ':')) << bytes;
        }
    }
}

// The decoder does not search the next object for the end of a number.
TEST(PropertyListCoding, ANumberWithoutItsEndIsRefusedWhateverFollows) {
    for (const char* bytes : {"i1", "i12", "t0", "l0", "d0", "l1:i1", "i1t1:a", "i1 2;",
                              "t1ai1;:", "l1i1;:", "i12i3;", "d0i1:", "t0t0:"}) {
        PropertyListDecoder decoder(bytesOfText(bytes));
        EXPECT_EQ(decoder.decodeObject(), std::nullopt) << bytes;
        EXPECT_FALSE(decoder.isAtEnd()) << bytes;
    }
}

TEST(PropertyListCoding, WhatFollowsTheEndOfANumberIsLeftToTheNextObject) {
    PropertyListDecoder decoder(bytesOfText("i1;i-23;t0:i4;"));
    for (const PropertyListValue& value : {PropertyListValue(1), PropertyListValue(-23),
                                           PropertyListValue(""), PropertyListValue(4)}) {
        EXPECT_EQ(decoder.decodeObject(), value);
    }
    EXPECT_TRUE(decoder.isAtEnd());
}

TEST(PropertyListCoding, NestingUpToTheLimitIsWrittenAndRead) {
    const PropertyListValue deepest = nested(deepestPropertyListNesting);
    EXPECT_EQ(decoded(coded(deepest)), deepest);
}

TEST(PropertyListCoding, NestingBeyondTheLimitIsNotWritten) {
    PropertyListEncoder encoder;
    EXPECT_FALSE(encoder.encodeObject(nested(deepestPropertyListNesting + 1)));
    EXPECT_TRUE(encoder.bytes().empty());
}

TEST(PropertyListCoding, NestingBeyondTheLimitIsNotRead) {
    std::string bytes = "i1;";
    for (int i = 0; i < deepestPropertyListNesting; ++i) {
        bytes.insert(0, "l1:");
    }
    EXPECT_NE(decoded(bytes), std::nullopt);
    EXPECT_EQ(decoded("l1:" + bytes), std::nullopt);

    std::string flood;
    for (int i = 0; i < 1000000; ++i) {
        flood += i % 2 == 0 ? "l1:" : "d1:t0:";
    }
    EXPECT_EQ(decoded(flood), std::nullopt);
}

} // namespace
} // namespace kx
